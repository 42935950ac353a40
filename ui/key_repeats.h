// Keys that repeat because they are held down.
#pragma once

#include <QKeyEvent>

namespace bramlee {

/// Tells a key that repeats from one that is pressed anew. For each repeat the X server sends a
/// release and a press at one and the same time; Qt marks the press as a repeat only when it finds
/// both at once, which a program that has nothing else to do often does not. Keys that no keyboard
/// sent, as those that were held back, have no scan code and are left as they are.
class KeyRepeats {
 public:
  /// Takes note of a key event as it comes from the window system. Returns whether it is the press
  /// of a repeat that is not marked as one.
  bool IsUnmarked(const QKeyEvent& event);

 private:
  quint32 released_ = 0;  ///< scan code of the key that was let go last
  quint64 releasedAt_ = 0;
};

/// Sends the same event, marked as a repeat.
void SendMarkedAsRepeat(QObject* receiver, const QKeyEvent& event);

}  // namespace bramlee
