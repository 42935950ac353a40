#include "board/strip.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QWheelEvent>

#include "board/board.h"
#include "board/strip_pictures.h"
#include "ui/choices.h"
#include "ui/held_input.h"

namespace bramlee {
namespace {

constexpr int kEdgePixels = 12;  ///< height of the strip that is folded away
constexpr int kMargin = 4;
constexpr int kGroupGap = 16;

const QString kFolded = QStringLiteral("strip/folded");

QIcon Chevron(bool down) {
  const double tip = down ? 66 : 34;
  const double base = 100 - tip;
  return StripPicture({
      {{22, base}, {50, tip} },
      {{50, tip},  {78, base}}
  });
}

QString ToolTip(const StripItem& item) {
  if (item.key.isEmpty()) return item.text;
  return QStringLiteral("%1 (%2)").arg(item.text, item.key.toString());
}

/// What the buttons stand on. The arrow keys are the strip's, and the wheel moves the row.
class RowScroller : public QScrollArea {
 public:
  using QScrollArea::QScrollArea;

 protected:
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
  void wheelEvent(QWheelEvent* event) override {
    constexpr int kDegreesApart = 120;  // in eighths, of one notch of the wheel
    const QPoint turn = event->angleDelta();
    const int notches = (turn.x() != 0 ? turn.x() : turn.y()) / kDegreesApart;
    QScrollBar* bar = horizontalScrollBar();
    bar->setValue(bar->value() - notches * kStripButtonPixels);
  }
};

/// The key of an event as a button has it. The keypad's keys are those of the same name.
QKeySequence KeyOf(const QKeyEvent& event) {
  return QKeySequence(
      QKeyCombination(event.modifiers() & ~Qt::KeypadModifier, static_cast<Qt::Key>(event.key())));
}

bool TakesKeysItself(const QWidget* widget) {
  return widget != nullptr && dynamic_cast<const StripButton*>(widget) == nullptr;
}

}  // namespace

void StripButton::Press() {
  if (!isEnabledTo(parentWidget())) return;
  nextCheckState();
  Q_EMIT clicked(isChecked());
}

void StripButton::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!event->isAutoRepeat()) click();
      return;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
      event->ignore();  // for the strip
      return;
    default:
      QToolButton::keyPressEvent(event);
  }
}

Strip::Strip(Board& board)
    : QToolBar(&board),
      board_(board),
      scroller_(new RowScroller(this)),
      row_(new QWidget),
      fold_(new StripButton(this)) {
  setObjectName(QStringLiteral("strip"));
  setAccessibleName(QStringLiteral("Strip"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  toggleViewAction()->setVisible(false);  // or the menu bar's context menu could take it away
  layout()->setContentsMargins(0, 0, 0, 0);
  auto* row = new QHBoxLayout(row_);
  row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  row->setSpacing(kGroupGap);
  for (QHBoxLayout*& group : groups_) {
    group = new QHBoxLayout;
    group->setSpacing(kMargin);
    row->addLayout(group);
  }
  row->addStretch();
  scroller_->setFrameShape(QFrame::NoFrame);
  scroller_->setFocusPolicy(Qt::NoFocus);  // or a click on a button would move the focus there
  scroller_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroller_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroller_->setWidgetResizable(true);
  scroller_->setWidget(row_);
  // One ground for all of the bar: that of the tool bar's own style.
  scroller_->viewport()->setAutoFillBackground(false);
  row_->setAutoFillBackground(false);
  scroller_->setFixedHeight(kStripButtonPixels + 2 * kMargin);
  shown_ = addWidget(scroller_);
  fold_->setObjectName(QStringLiteral("strip_fold"));
  fold_->setAutoRaise(true);
  fold_->setFocusPolicy(Qt::TabFocus);
  connect(fold_, &QToolButton::clicked, this, [this] { Fold(shown_->isVisible()); });
  addWidget(fold_);
  board.addToolBar(Qt::BottomToolBarArea, this);
  connect(&Choices::Instance(), &Choices::Changed, this, [this](const QString& name) {
    if (name == kFolded) FollowChoice();
  });
  FollowChoice();
  HoldInput::Admit(this);
  HoldInput::AdmitKeys(this, [this](const QKeyEvent& event) { return WantsKey(event); });
}

StripButton* Strip::AddButton(Group group, const StripItem& item, std::function<void()> click) {
  auto* button = new StripButton(row_);
  button->setObjectName(QString::fromLatin1(item.name));
  button->setAccessibleName(item.text);
  button->setToolTip(ToolTip(item));
  button->setIcon(item.picture);
  button->setIconSize({kStripPicturePixels, kStripPicturePixels});
  button->setFixedSize(kStripButtonPixels, kStripButtonPixels);
  button->setCheckable(item.checkable);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  connect(button, &QToolButton::clicked, this, std::move(click));
  AddControl(group, button);
  AddKey(item, button);
  if (item.restsWhileWriting) RestWhileWriting(button);
  return button;
}

void Strip::AddKey(const StripItem& item, StripButton* button) {
  if (item.key.isEmpty()) return;
  if (item.keyWorks != StripKeyWorks::WhenIdle) keys_[item.key] = button;
  if (item.keyWorks == StripKeyWorks::WhileWriting) return;
  auto* key = new QShortcut(item.key, &board_);
  key->setAutoRepeat(false);
  connect(key, &QShortcut::activated, button, &StripButton::Press);
}

void Strip::RestWhileWriting(StripButton* button) {
  const auto follow = [this, button] { button->setEnabled(!board_.pen().IsWriting()); };
  connect(&board_.pen(), &BoardPen::Changed, button, follow);
  follow();
}

void Strip::AddControl(Group group, QWidget* control) {
  groups_[static_cast<std::size_t>(group)]->addWidget(control);
  SetTabOrders();
}

/// From left to right, whatever came first.
void Strip::SetTabOrders() {
  QWidget* before = nullptr;
  const auto next = [&before](QWidget* control) {
    if (before != nullptr) setTabOrder(before, control);
    before = control;
  };
  for (const QHBoxLayout* group : groups_) {
    for (int i = 0; i < group->count(); ++i) next(group->itemAt(i)->widget());
  }
  next(fold_);
}

/// A text box or slider of the strip that has the focus needs its keys itself.
bool Strip::WantsKey(const QKeyEvent& event) const {
  if (!board_.pen().IsWriting() || !keys_.contains(KeyOf(event))) return false;
  const QWidget* focus = QApplication::focusWidget();
  return !isAncestorOf(focus) || !TakesKeysItself(focus);
}

void Strip::keyPressEvent(QKeyEvent* event) {
  const auto button = keys_.find(KeyOf(*event));
  if (button == keys_.end()) return QToolBar::keyPressEvent(event);
  if (!event->isAutoRepeat()) button->second->Press();
}

void Strip::Fold(bool folded) {
  Choices::Instance().Choose(kFolded, folded);
}

void Strip::FollowChoice() {
  const bool folded = Choices::Instance().Of(kFolded, false).toBool();
  shown_->setVisible(!folded);
  const QString text = folded ? QStringLiteral("Show the strip") : QStringLiteral("Fold the strip");
  fold_->setAccessibleName(text);
  fold_->setToolTip(text);
  fold_->setIcon(Chevron(!folded));
  fold_->setIconSize(folded ? QSize(kEdgePixels, kEdgePixels)
                            : QSize(kStripPicturePixels, kStripPicturePixels));
  fold_->setMinimumSize(kStripButtonPixels, folded ? kEdgePixels : kStripButtonPixels);
  fold_->setMaximumSize(folded ? QWIDGETSIZE_MAX : kStripButtonPixels,
                        folded ? kEdgePixels : kStripButtonPixels);
  fold_->setSizePolicy(folded ? QSizePolicy::Expanding : QSizePolicy::Fixed, QSizePolicy::Fixed);
}

}  // namespace bramlee
