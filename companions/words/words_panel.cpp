#include "companions/words/words_panel.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "companions/words/words.h"
#include "ui/choices.h"
#include "ui/held_input.h"
#include "ui/return_key.h"

namespace bramlee {
namespace {

constexpr int kMostCharacters = 400;
constexpr int kWidth = 620;
constexpr int kTextPixels = 26;  ///< large enough to see which signs a letter has
constexpr int kTextHeight = 60;  ///< signs above and below a letter have room
constexpr qsizetype kMostNamed = 6;
constexpr int kBelow = 110;  ///< its title bar, the strip and the scroll bar of its board

QCheckBox* PerLetterBox(QWidget* panel) {
  auto* box = new QCheckBox(QStringLiteral("&Head line over each letter"), panel);
  box->setObjectName(QStringLiteral("words_head"));
  const QString choice = QString::fromLatin1(kPerLetterChoice);
  box->setChecked(Choices::Instance().Of(choice, false).toBool());
  QObject::connect(box, &QCheckBox::toggled,
                   [choice](bool on) { Choices::Instance().Choose(choice, on); });
  QObject::connect(&Choices::Instance(), &Choices::Changed, box,
                   [box, choice](const QString& name) {
                     if (name == choice)
                       box->setChecked(Choices::Instance().Of(choice, false).toBool());
                   });
  return box;
}

}  // namespace

WordsPanel::WordsPanel(QWidget* board, WordsActs acts)
    : QWidget(board, Qt::Tool),
      text_(new QLineEdit(this)),
      write_(new QPushButton(QStringLiteral("&Write"), this)),
      // Not Alt+M: keys of the board's menus work here too, and one board has Maths among them.
      myName_(new QPushButton(QStringLiteral("My &name"), this)),
      print_(new QPushButton(this)),
      said_(new QLabel(this)) {
  setObjectName(QStringLiteral("words_panel"));
  setWindowTitle(QStringLiteral("Words"));
  text_->setObjectName(QStringLiteral("words_text"));
  text_->setAccessibleName(QStringLiteral("Word to write"));
  text_->setPlaceholderText(QStringLiteral("Type a word or a name"));
  text_->setMaxLength(kMostCharacters);
  QFont large = text_->font();
  large.setPixelSize(kTextPixels);
  text_->setFont(large);
  text_->setMinimumHeight(kTextHeight);
  write_->setObjectName(QStringLiteral("words_write"));
  myName_->setObjectName(QStringLiteral("words_my_name"));
  myName_->setToolTip(QStringLiteral("The name on the biodata card"));
  print_->setObjectName(QStringLiteral("words_print"));
  print_->setToolTip(QStringLiteral("On a worksheet, with the rows chosen there last"));
  said_->setObjectName(QStringLiteral("words_said"));
  said_->setTextFormat(Qt::PlainText);
  said_->setWordWrap(true);
  auto* layout = new QGridLayout(this);
  layout->addWidget(text_, 0, 0, 1, 4);
  layout->addWidget(PerLetterBox(this), 1, 0);
  layout->addWidget(print_, 1, 1);
  layout->addWidget(myName_, 1, 2);
  layout->addWidget(write_, 1, 3);
  layout->addWidget(said_, 2, 0, 1, 4);
  layout->setColumnStretch(0, 1);
  connect(text_, &QLineEdit::textChanged, this, [this] { FollowText(); });
  connect(text_, &QLineEdit::returnPressed, write_, &QPushButton::click);
  connect(write_, &QPushButton::clicked, this, std::move(acts.write));
  connect(myName_, &QPushButton::clicked, this, std::move(acts.writeMy));
  connect(print_, &QPushButton::clicked, this, std::move(acts.print));
  HoldInput::Admit(this);
  PressByReturn(*this);
  FollowText();
}

void WordsPanel::Present(bool above, bool prints) {
  print_->setVisible(prints);
  resize(std::min(kWidth, parentWidget()->width()), sizeHint().height());
  const QRect board(parentWidget()->mapToGlobal(QPoint(0, 0)), parentWidget()->size());
  move(board.center().x() - width() / 2,
       above ? board.top() + 2 * fontMetrics().height() : board.bottom() - height() - kBelow);
  show();
  raise();
  activateWindow();
  text_->setFocus();
  text_->selectAll();
}

void WordsPanel::SetWriting(bool on) {
  writing_ = on;
  FollowText();
}

void WordsPanel::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return hide();
  QWidget::keyPressEvent(event);
}

void WordsPanel::FollowText() {
  const bool empty = text_->text().trimmed().isEmpty();
  write_->setEnabled(!writing_ && !empty);
  myName_->setEnabled(!writing_);
  print_->setEnabled(!writing_);
  print_->setText(empty ? QStringLiteral("&Print my name...") : QStringLiteral("&Print..."));
}

QString NamesOf(std::span<const LeftOut> leftOut) {
  QStringList names;
  for (const LeftOut& each : leftOut) {
    const QString text = QString::fromStdString(each.text);
    const char32_t code = text.toUcs4().value(0);
    const QString number = QString::number(static_cast<uint>(code), 16).toUpper();
    const QString name = QStringLiteral("%1 (U+%2)").arg(text, number.rightJustified(4, u'0'));
    if (!names.contains(name)) names.append(name);
  }
  if (names.isEmpty()) return {};
  const qsizetype more = names.size() - kMostNamed;
  if (more > 0) names = names.first(kMostNamed) + QStringList{QStringLiteral("%1 more").arg(more)};
  return QStringLiteral("Left out, as there are no strokes for it: ") +
         names.join(QStringLiteral(", "));
}

}  // namespace bramlee
