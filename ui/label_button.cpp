#include "ui/label_button.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace bramlee {
namespace {

class AccessibleLabelButton : public QAccessibleWidget {
 public:
  explicit AccessibleLabelButton(LabelButton* button)
      : QAccessibleWidget(button, QAccessible::Button, button->text()), button_(button) {}

  QStringList actionNames() const override {
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action == pressAction()) return Q_EMIT button_->Clicked();
    QAccessibleWidget::doAction(action);
  }

 private:
  LabelButton* button_;
};

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object) {
  auto* button = qobject_cast<LabelButton*>(object);
  return button != nullptr ? new AccessibleLabelButton(button) : nullptr;
}

}  // namespace

LabelButton::LabelButton(const QString& text, const QColor& colour, QWidget* parent)
    : Label(text, parent), colour_(colour) {
  // Installing it again changes nothing.
  QAccessible::installFactory(MakeAccessible);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  SetForeColor(this, 0xFFFFFF);
}

void LabelButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF face = QRectF(rect()).adjusted(2, 2, -2, -2);
  const bool lit = underMouse() || hasFocus();
  const QColor lighter = underMouse() ? colour_.lighter(112) : colour_;
  painter.setPen(lit ? QPen(QColor(0xE07000), 3) : QPen(colour_.darker(130), 1));
  painter.setBrush(down_ ? colour_.darker(125) : lighter);
  painter.drawRoundedRect(face, face.height() / 4, face.height() / 4);
  painter.setPen(ColourOf(ForeColorOf(this)));
  painter.drawText(face.translated(0, down_ ? 1 : 0), Qt::AlignCenter, text());
}

void LabelButton::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!event->isAutoRepeat()) Q_EMIT Clicked();
      return;
    default:
      Label::keyPressEvent(event);
  }
}

void LabelButton::mousePressEvent(QMouseEvent* event) {
  down_ = event->button() == Qt::LeftButton;
  update();
}

void LabelButton::mouseReleaseEvent(QMouseEvent* event) {
  down_ = false;
  update();
  Label::mouseReleaseEvent(event);
}

void LabelButton::enterEvent(QEnterEvent* event) {
  Label::enterEvent(event);
  update();
}

void LabelButton::leaveEvent(QEvent* event) {
  Label::leaveEvent(event);
  update();
}

void LabelButton::focusInEvent(QFocusEvent* event) {
  Label::focusInEvent(event);
  update();
}

void LabelButton::focusOutEvent(QFocusEvent* event) {
  Label::focusOutEvent(event);
  update();
}

}  // namespace bramlee
