// A label that acts as a button.
#pragma once

#include <QColor>

#include "ui/controls.h"

namespace bramlee {

/// Looks like a button of that colour and is clicked by the mouse, or with the focus on it by Space
/// or Return. To a screen reader it is a button.
class LabelButton : public Label {
  Q_OBJECT
 public:
  LabelButton(const QString& text, const QColor& colour, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QColor colour_;
  bool down_ = false;
};

}  // namespace bramlee
