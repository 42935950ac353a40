#include "ui/key_repeats.h"

#include <QCoreApplication>

namespace bramlee {

bool KeyRepeats::IsUnmarked(const QKeyEvent& event) {
  if (event.type() == QEvent::KeyRelease) {
    released_ = event.nativeScanCode();
    releasedAt_ = event.timestamp();
    return false;
  }
  return event.type() == QEvent::KeyPress && !event.isAutoRepeat() && released_ != 0 &&
         event.nativeScanCode() == released_ && event.timestamp() == releasedAt_;
}

void SendMarkedAsRepeat(QObject* receiver, const QKeyEvent& event) {
  QKeyEvent repeat(event.type(), event.key(), event.modifiers(), event.nativeScanCode(),
                   event.nativeVirtualKey(), event.nativeModifiers(), event.text(), true,
                   static_cast<quint16>(event.count()));
  repeat.setTimestamp(event.timestamp());
  QCoreApplication::sendEvent(receiver, &repeat);
}

}  // namespace bramlee
