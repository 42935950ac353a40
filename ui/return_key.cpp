#include "ui/return_key.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>

namespace bramlee {
namespace {

/// Makes Space of Return, down and up, so that it also holds a button down that is to be held.
class ReturnAsSpace : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool hasItByItself = static_cast<QPushButton*>(watched)->isDefault();
    if (!IsReturn(key) || hasItByItself) return false;
    QKeyEvent space(key.type(), Qt::Key_Space, key.modifiers(), QStringLiteral(" "),
                    key.isAutoRepeat());
    QCoreApplication::sendEvent(watched, &space);
    return true;
  }
};

}  // namespace

bool IsReturn(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

void PressByReturn(QWidget& window) {
  auto* filter = new ReturnAsSpace(&window);
  for (QPushButton* button : window.findChildren<QPushButton*>()) {
    button->installEventFilter(filter);
  }
}

}  // namespace bramlee
