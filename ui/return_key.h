// The key Return, and Enter beside the digits.
#pragma once

class QKeyEvent;
class QWidget;

namespace bramlee {

/// Whether it is one of the two.
bool IsReturn(const QKeyEvent& event);

/// Has Return press the button of this window that has the focus, as Space does; for those that
/// stand in it by now. Elsewhere in the window Return does what it did: buttons that have it by
/// themselves (QPushButton::autoDefault) take it from lines and lists too.
void PressByReturn(QWidget& window);

}  // namespace bramlee
