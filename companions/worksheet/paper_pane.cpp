#include "companions/worksheet/paper_pane.h"

#include <QCheckBox>
#include <QFormLayout>
#include <iterator>

#include "companions/worksheet/panes.h"

namespace bramlee {
namespace {

struct OfferedRuling {
  Ruling ruling;
  const char* text;
};
constexpr OfferedRuling kRulings[] = {
    {Ruling::English, "English: four lines"      },
    {Ruling::Hindi,   "Hindi: head and base line"},
    {Ruling::Telugu,  "Telugu: four lines"       },
    {Ruling::Boxes,   "Boxes"                    },
    {Ruling::None,    "No lines"                 },
};

/// Millimetres, as a teacher measures them on a ruler.
constexpr const char* kSizeNames[] = {"very large", "large", "medium", "small"};
static_assert(std::size(kSizeNames) == std::size(kBodySizesMm));

}  // namespace

PaperPane::PaperPane(QWidget* parent)
    : QWidget(parent),
      size_(MakeChoice("size", QStringLiteral("Height of the letters"), this)),
      ruling_(MakeChoice("ruling", QStringLiteral("Lines to write on"), this)),
      paper_(MakeChoice("paper", QStringLiteral("Paper"), this)),
      orientation_(MakeChoice("orientation", QStringLiteral("Portrait or landscape"), this)),
      left_(MakeCheckBox("left", QStringLiteral("For the le&ft hand: the model at the right, too"),
                         this)) {
  for (std::size_t i = 0; i < std::size(kBodySizesMm); ++i) {
    size_->addItem(
        QStringLiteral("%1 mm, %2").arg(kBodySizesMm[i]).arg(QString::fromLatin1(kSizeNames[i])),
        kBodySizesMm[i]);
  }
  ruling_->addItem(QStringLiteral("As each script is taught"), QString());
  for (const OfferedRuling& each : kRulings) {
    ruling_->addItem(QString::fromLatin1(each.text), QString::fromLatin1(NameOf(each.ruling)));
  }
  paper_->addItem(QStringLiteral("A4"), kA4Mm);
  paper_->addItem(QStringLiteral("Letter"), kLetterMm);
  orientation_->addItem(QStringLiteral("Portrait"), false);
  orientation_->addItem(QStringLiteral("Landscape"), true);
  auto* form = new QFormLayout(this);
  AddRow(form, QStringLiteral("&Height of letters"), size_);
  AddRow(form, QStringLiteral("&Lines"), ruling_);
  AddRow(form, QStringLiteral("Pap&er"), paper_);
  AddRow(form, QStringLiteral("Pa&ge"), orientation_);
  form->addRow(left_);
  for (QComboBox* choice : {size_, ruling_, paper_, orientation_}) {
    connect(choice, &QComboBox::currentIndexChanged, this, &PaperPane::Changed);
  }
  connect(left_, &QCheckBox::toggled, this, &PaperPane::Changed);
}

void PaperPane::Show(const WorksheetRecord& record) {
  const SheetStyle& style = record.style;
  PickData(size_, style.bodyMm);
  PickData(ruling_, style.ruling ? QString::fromLatin1(NameOf(*style.ruling)) : QString());
  PickData(paper_, record.page.paperMm);
  PickData(orientation_, record.page.landscape);
  left_->setChecked(style.hand == Hand::Left);
}

void PaperPane::Read(WorksheetRecord& record) const {
  record.style.bodyMm = size_->currentData().toDouble();
  record.style.ruling = RulingNamed(ruling_->currentData().toString());
  record.page = {.paperMm = paper_->currentData().toSizeF(),
                 .landscape = orientation_->currentData().toBool()};
  record.style.hand = left_->isChecked() ? Hand::Left : Hand::Right;
}

}  // namespace bramlee
