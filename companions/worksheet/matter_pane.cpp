#include "companions/worksheet/matter_pane.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "companions/worksheet/panes.h"
#include "companions/worksheet/tile_picker.h"

namespace bramlee {
namespace {

constexpr int kLongestText = 500;  ///< of words, in characters

struct OfferedSums {
  SumKind kind;
  const char* text;
};
constexpr OfferedSums kSums[] = {
    {SumKind::Add,      "Additions"      },
    {SumKind::Subtract, "Subtractions"   },
    {SumKind::Multiply, "Multiplications"},
    {SumKind::Divide,   "Divisions"      },
    {SumKind::PerCent,  "Percentage"     },
};

bool AnyIsOtherwiseInTheBook(std::string_view set, const QList<int>& tiles, const TileForm& form) {
  return std::ranges::any_of(
      tiles, [&](int tile) { return HasBookForm(*FindLetterSet(set), tile, form); });
}

QLabel* Explanation(const char* text) {
  auto* label = new QLabel(QString::fromLatin1(text));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

}  // namespace

MatterPane::MatterPane(const WorksheetSource& source, QWidget* parent)
    : QWidget(parent),
      source_(source),
      matter_(MakeChoice("matter", QStringLiteral("What the worksheet is about"), this)),
      parts_(new QStackedWidget(this)),
      given_(MakeCheckBox("given", QStringLiteral("As the &board has them, not as in the book"),
                          this)) {
  // In the order of WorksheetMatter.
  matter_->addItem(QStringLiteral("Letters of this board"));
  matter_->addItem(QStringLiteral("Words or names"));
  matter_->addItem(QStringLiteral("Numbers 1 to %1").arg(kLastPractisedNumber));
  matter_->addItem(QStringLiteral("Sums to work out"));
  matter_->addItem(QStringLiteral("A book of all letters"));
  for (QWidget* part : {MakeLetters(), MakeWords(), MakeNumbers(), MakeSums(), MakeBook()}) {
    parts_->addWidget(part);
  }
  auto* column = new QVBoxLayout(this);
  column->addWidget(matter_);
  column->addWidget(parts_, 1);
  column->addWidget(given_);
  connect(matter_, &QComboBox::currentIndexChanged, this, &MatterPane::Follow);
  connect(given_, &QCheckBox::toggled, this, [this] {
    OfferTiles();
    Follow();
  });
  OfferTiles();
}

QWidget* MatterPane::MakeLetters() {
  auto* part = new QWidget;
  auto* all = MakeButton("all", QStringLiteral("&All"), QStringLiteral("Choose all letters"), part);
  auto* none =
      MakeButton("none", QStringLiteral("&None"), QStringLiteral("Choose no letter"), part);
  all->setToolTip(QStringLiteral("Ctrl+A"));
  chosen_ = NamedControl(new QLabel(part), "chosen", {});
  chosen_->setTextFormat(Qt::PlainText);
  tiles_ = new TilePicker;
  auto* scroller = new QScrollArea(part);
  scroller->setWidgetResizable(true);
  scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroller->setFrameShape(QFrame::NoFrame);
  scroller->setFocusPolicy(Qt::NoFocus);
  scroller->setWidget(tiles_);
  auto* row = new QHBoxLayout;
  row->addWidget(chosen_, 1);
  row->addWidget(all);
  row->addWidget(none);
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(row);
  column->addWidget(scroller, 1);
  connect(all, &QPushButton::clicked, tiles_, &TilePicker::ChooseAll);
  connect(none, &QPushButton::clicked, tiles_, &TilePicker::ChooseNone);
  connect(tiles_, &TilePicker::Changed, this, &MatterPane::Follow);
  return part;
}

QSpinBox* MatterPane::MakeNumber(const char* name, const char* accessibleName, int least,
                                 int most) {
  auto* box = NamedControl(new QSpinBox, name, QString::fromLatin1(accessibleName));
  box->setRange(least, most);
  connect(box, &QSpinBox::valueChanged, this, &MatterPane::Follow);
  return box;
}

QWidget* MatterPane::MakeWords() {
  auto* part = new QWidget;
  words_ = NamedControl(new QLineEdit, "words", QStringLiteral("Words or names"));
  words_->setMaxLength(kLongestText);
  auto* form = new QFormLayout(part);
  form->setContentsMargins(0, 0, 0, 0);
  AddRow(form, QStringLiteral("&Words"), words_);
  form->addRow(Explanation("English, Hindi or Telugu; a comma stands between two."));
  connect(words_, &QLineEdit::textChanged, this, &MatterPane::Follow);
  return part;
}

QWidget* MatterPane::MakeNumbers() {
  auto* part = new QWidget;
  first_ = MakeNumber("first", "First number", 1, kLastPractisedNumber);
  last_ = MakeNumber("last", "Last number", 1, kLastPractisedNumber);
  auto* form = new QFormLayout(part);
  form->setContentsMargins(0, 0, 0, 0);
  AddRow(form, QStringLiteral("&From"), first_);
  AddRow(form, QStringLiteral("&To"), last_);
  return part;
}

QWidget* MatterPane::MakeSums() {
  auto* part = new QWidget;
  sums_ = MakeChoice("sums", QStringLiteral("Kind of sums"), part);
  for (const OfferedSums& each : kSums) {
    sums_->addItem(QString::fromLatin1(each.text), QString::fromLatin1(NameOf(each.kind)));
  }
  largest_ = MakeNumber("largest", "Largest number, results too", kLeastLargest, kMostLargest);
  count_ = MakeNumber("count", "How many sums", 1, kMostSums);
  answers_ = MakeCheckBox("answers", QStringLiteral("A page with the &results"), part);
  auto* other = MakeButton("other", QStringLiteral("&Other sums"),
                           QStringLiteral("Other sums of that kind"), part);
  auto* form = new QFormLayout(part);
  form->setContentsMargins(0, 0, 0, 0);
  AddRow(form, QStringLiteral("&Kind"), sums_);
  AddRow(form, QStringLiteral("&Largest number"), largest_);
  AddRow(form, QStringLiteral("&How many"), count_);
  form->addRow(answers_);
  form->addRow(other);
  connect(sums_, &QComboBox::currentIndexChanged, this, &MatterPane::Follow);
  connect(answers_, &QCheckBox::toggled, this, &MatterPane::Follow);
  connect(other, &QPushButton::clicked, this, [this] {
    ++seed_;
    Follow();
  });
  return part;
}

QWidget* MatterPane::MakeBook() {
  auto* part = new QWidget;
  auto* column = new QVBoxLayout(part);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(
      Explanation("Every letter of every board, with a page of contents in front and page numbers "
                  "below. Rows and paper are those of the other tabs."));
  column->addStretch();
  return part;
}

void MatterPane::OfferTiles() {
  QList<OfferedTile> tiles;
  for (const int tile : source_.tiles) {
    tiles.append(OfferOf(source_, tile, given_->isChecked()));
  }
  tiles_->Offer(tiles);
}

void MatterPane::Show(const WorksheetRecord& record) {
  matter_->setCurrentIndex(static_cast<int>(record.matter));
  given_->setChecked(record.given);
  tiles_->Choose(TilesAtFirst(source_, record));
  words_->setText(record.words);
  first_->setValue(record.firstNumber);
  last_->setValue(record.lastNumber);
  PickData(sums_, QString::fromLatin1(NameOf(record.sums.kind)));
  largest_->setValue(record.sums.largest);
  count_->setValue(record.sums.count);
  answers_->setChecked(record.sums.answers);
  seed_ = record.sums.seed;
  Follow();
}

void MatterPane::Read(WorksheetRecord& record) const {
  record.matter = static_cast<WorksheetMatter>(matter_->currentIndex());
  record.given = given_->isChecked();
  record.tiles = tiles_->Chosen();
  record.words = words_->text();
  record.firstNumber = std::min(first_->value(), last_->value());
  record.lastNumber = std::max(first_->value(), last_->value());
  record.sums = {.kind = SumKindNamed(sums_->currentData().toString()).value_or(SumKind::Add),
                 .largest = largest_->value(),
                 .count = count_->value(),
                 .seed = seed_,
                 .answers = answers_->isChecked()};
}

/// Words, numbers and sums are those of the book in any case.
bool MatterPane::BookMatters() const {
  switch (static_cast<WorksheetMatter>(matter_->currentIndex())) {
    case WorksheetMatter::Letters:
      return AnyIsOtherwiseInTheBook(source_.set, source_.tiles,
                                     {.alternative = source_.alternative});
    case WorksheetMatter::TypedWords:
    case WorksheetMatter::Numbers:
    case WorksheetMatter::Sums:
      return false;
    case WorksheetMatter::Book:
      return true;
  }
  return false;
}

void MatterPane::Follow() {
  parts_->setCurrentIndex(matter_->currentIndex());
  given_->setVisible(BookMatters());
  chosen_->setText(QStringLiteral("%1 of %2 letters chosen")
                       .arg(tiles_->Chosen().size())
                       .arg(tiles_->Offered()));
  Q_EMIT Changed();
}

}  // namespace bramlee
