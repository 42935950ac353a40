#include "ui/held_input.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QThread>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <cstdint>
#include <deque>
#include <memory>
#include <utility>
#include <vector>

#include "ui/key_repeats.h"

QT_BEGIN_NAMESPACE
// A key that is only sent to a window never triggers a shortcut; this way in does. QtGui exports
// it for the headers of Qt's own test library.
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key,
                                    Qt::KeyboardModifiers modifiers, const QString& text,
                                    bool autoRepeat, ushort count);
QT_END_NAMESPACE

namespace bramlee {
namespace {

/// Something that waits, as values: a clone of a mouse event would share its point with events
/// to come, and lie elsewhere when it is delivered.
struct Held {
  QPointer<QObject> receiver;
  std::function<void()> deliver;
  bool urges = false;
  bool isMove = false;
};

QWidget* WidgetOf(const QWindow* window) {
  const QWidgetList widgets = QApplication::topLevelWidgets();
  const auto found = std::find_if(widgets.begin(), widgets.end(), [window](const QWidget* widget) {
    return widget->windowHandle() == window;
  });
  return found != widgets.end() ? *found : nullptr;
}

/// A place as the user meant it: that point of that control, wherever it lies and however large it
/// is when the time has come, since its sheet may scroll or be scaled meanwhile.
struct Place {
  QPointer<QWidget> control;
  QPointF point;  ///< in the control, which had
  QSizeF size;    ///< this size then

  /// The point in the control as it is now.
  QPointF Now() const {
    if (control->size() == size) return point;
    return {point.x() * control->width() / size.width(),
            point.y() * control->height() / size.height()};
  }
};

Place PlaceAt(const QWindow* window, const QPointF& point) {
  QWidget* top = WidgetOf(window);
  QWidget* control = top != nullptr ? top->childAt(point.toPoint()) : nullptr;
  if (control == nullptr) return {nullptr, point, {}};
  return {control, control->mapFrom(top, point), control->size()};
}

Held HeldMouse(QWindow* window, const QMouseEvent& event) {
  const Place place = PlaceAt(window, event.position());
  const auto deliver = [window, place, type = event.type(), button = event.button(),
                        buttons = event.buttons(), modifiers = event.modifiers(),
                        point = event.position()] {
    const auto send = [&](QObject* receiver, const QPointF& inReceiver, const QPointF& inWindow) {
      QMouseEvent late(type, inReceiver, inWindow, window->mapToGlobal(inWindow), button, buttons,
                       modifiers);
      QCoreApplication::sendEvent(receiver, &late);
    };
    if (place.control == nullptr || !place.control->isVisible()) return send(window, point, point);
    QWidget* top = place.control->window();
    const QPointF inControl = place.Now();
    const QPointF inWindow = place.control->mapTo(top, inControl);
    const bool inView = top->childAt(inWindow.toPoint()) == place.control;
    if (inView || QApplication::activePopupWidget() != nullptr) {
      send(window, inWindow, inWindow);
    } else {
      send(place.control, inControl, inWindow);
    }
  };
  return {.receiver = window, .deliver = deliver, .isMove = event.type() == QEvent::MouseMove};
}

Held HeldWheel(QWindow* window, const QWheelEvent& event) {
  const auto deliver = [window, point = event.position(), pixels = event.pixelDelta(),
                        angle = event.angleDelta(), buttons = event.buttons(),
                        modifiers = event.modifiers(), phase = event.phase(),
                        inverted = event.inverted()] {
    QWheelEvent late(point, window->mapToGlobal(point), pixels, angle, buttons, modifiers, phase,
                     inverted);
    QCoreApplication::sendEvent(window, &late);
  };
  return {.receiver = window, .deliver = deliver};
}

Held HeldKey(QWindow* window, const QKeyEvent& event) {
  const auto deliver = [window, type = event.type(), key = event.key(),
                        modifiers = event.modifiers(), text = event.text(),
                        repeat = event.isAutoRepeat(), count = event.count()] {
    qt_handleKeyEvent(window, type, key, modifiers, text, repeat, static_cast<ushort>(count));
  };
  return {.receiver = window, .deliver = deliver, .urges = event.key() == Qt::Key_Escape};
}

/// Text from an input method goes to the control that has the focus, not to its window.
Held HeldText(QObject* control, const QInputMethodEvent& event) {
  const auto deliver = [control, preedit = event.preeditString(), attributes = event.attributes(),
                        commit = event.commitString(), from = event.replacementStart(),
                        length = event.replacementLength()] {
    QInputMethodEvent late(preedit, attributes);
    late.setCommitString(commit, from, length);
    QCoreApplication::sendEvent(control, &late);
  };
  return {.receiver = control, .deliver = deliver};
}

/// All that waits, and the watch over what comes. One for the whole program: what one board writes
/// holds the input of all windows.
class HeldInput : public QObject {
 public:
  static HeldInput& Instance() {
    static QPointer<HeldInput> input;
    if (input == nullptr) input = new HeldInput(QCoreApplication::instance());
    return *input;
  }

  void Begin() {
    if (depth_++ > 0 || Waiting()) return;
    level_ = std::max(QThread::currentThread()->loopLevel(), 1);
  }

  void End() {
    if (--depth_ == 0 && Waiting()) next_.start(0);
  }

  void Pump() {
    if (depth_ == 0) return;
    const bool outer = std::exchange(pumping_, true);
    QCoreApplication::processEvents(QEventLoop::X11ExcludeTimers |
                                    QEventLoop::ExcludeSocketNotifiers);
    pumping_ = outer;
  }

  void Admit(QWidget* widget) { admitted_.append(widget); }
  void AdmitKeys(QWidget* widget, std::function<bool(const QKeyEvent&)> wants) {
    admittedKeys_.push_back({.widget = widget, .wants = std::move(wants)});
  }

  bool EndIsAwaited() const {
    return !closes_.isEmpty() || std::any_of(waiting_.begin(), waiting_.end(),
                                             [](const Held& held) { return held.urges; });
  }

  void Call(QObject* context, std::function<void()> call) {
    if (depth_ == 0 && !Waiting()) return call();
    waiting_.push_back({.receiver = context, .deliver = std::move(call)});
    if (depth_ == 0) next_.start(0);
  }

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (IsUnmarkedRepeat(receiver, event)) {
      SendMarkedAsRepeat(receiver, *static_cast<QKeyEvent*>(event));
      return true;
    }
    if (pumping_ && PassedOnAsWantedKey(receiver, event)) return true;
    if (!Holds() || IsAdmitted(receiver, event)) return false;
    if (event->type() == QEvent::InputMethod) {
      waiting_.push_back(HeldText(receiver, *static_cast<QInputMethodEvent*>(event)));
      return true;
    }
    if (!receiver->isWindowType()) return false;
    return Keep(static_cast<QWindow*>(receiver), event);
  }

 private:
  explicit HeldInput(QCoreApplication* application) : QObject(application) {
    next_.setSingleShot(true);
    connect(&next_, &QTimer::timeout, this, [this] { DeliverNext(); });
    application->installEventFilter(this);
  }

  bool Waiting() const { return !waiting_.empty() || !closes_.isEmpty(); }

  /// A message box within the handler runs an event loop of its own, deeper than the handler's:
  /// it takes its input at once, and what waits goes on waiting.
  bool HandlerHasReturned() const {
    return depth_ == 0 && QThread::currentThread()->loopLevel() <= level_;
  }

  /// Whether what comes now has to wait: also behind what waits already.
  bool Holds() const { return pumping_ || (Waiting() && !delivering_ && HandlerHasReturned()); }

  bool IsUnmarkedRepeat(const QObject* receiver, const QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!isKey || !receiver->isWindowType()) return false;
    return repeats_.IsUnmarked(*static_cast<const QKeyEvent*>(event));
  }

  bool IsAdmitted(const QWidget* widget) const {
    while (widget != nullptr && !admitted_.contains(widget)) widget = widget->parentWidget();
    return widget != nullptr;
  }

  /// Whether what lies at that point of a window is admitted.
  bool IsAdmittedAt(const QObject* window, const QPointF& point) const {
    if (!window->isWindowType()) return false;
    const QWidget* top = WidgetOf(static_cast<const QWindow*>(window));
    const QWidget* control = top != nullptr ? top->childAt(point.toPoint()) : nullptr;
    return IsAdmitted(control != nullptr ? control : top);
  }

  /// A press grabs the mouse: until the last release, what follows goes where the press went.
  bool IsAdmittedMouse(const QObject* window, const QMouseEvent& event) {
    if (!window->isWindowType()) return false;
    const bool admitted = mouseOf_ == MouseOf::Nobody ? IsAdmittedAt(window, event.position())
                                                      : mouseOf_ == MouseOf::Admitted;
    const MouseOf owner = admitted ? MouseOf::Admitted : MouseOf::Waiting;
    mouseOf_ = event.buttons() == Qt::NoButton ? MouseOf::Nobody : owner;
    return admitted;
  }

  /// Whether the event belongs to a key that a widget wants; delivers its press there.
  bool PassedOnAsWantedKey(const QObject* receiver, QEvent* event) {
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!isPress && event->type() != QEvent::KeyRelease &&
        event->type() != QEvent::ShortcutOverride)
      return false;
    if (QApplication::activePopupWidget() != nullptr) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    const auto wanting = std::ranges::find_if(admittedKeys_, [&](const AdmittedKeys& keys) {
      return keys.widget != nullptr && keys.widget->window()->windowHandle() == receiver &&
             keys.wants(key);
    });
    if (wanting == admittedKeys_.end()) return false;
    event->accept();
    if (isPress) {
      const std::unique_ptr<QEvent> press(key.clone());
      QCoreApplication::sendEvent(wanting->widget, press.get());
    }
    return true;
  }

  /// Esc waits wherever the focus is, as who hits it waits for the pen's end; a list that is open
  /// closes by it all the same.
  bool IsAdmittedKey(const QEvent* event) const {
    if (const QWidget* popup = QApplication::activePopupWidget()) return IsAdmitted(popup);
    const bool isEscape = event->type() != QEvent::InputMethod &&
                          static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape;
    return !isEscape && IsAdmitted(QApplication::focusWidget());
  }

  /// Whether the event is meant for an admitted widget.
  bool IsAdmitted(const QObject* receiver, const QEvent* event) {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonDblClick:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseMove:
        return IsAdmittedMouse(receiver, *static_cast<const QMouseEvent*>(event));
      case QEvent::Wheel:
        return IsAdmittedAt(receiver, static_cast<const QWheelEvent*>(event)->position());
      case QEvent::KeyPress:
      case QEvent::KeyRelease:
      case QEvent::ShortcutOverride:
      case QEvent::InputMethod:
        return IsAdmittedKey(event);
      default:
        return false;
    }
  }

  /// Takes an event that is input; lets any other pass.
  bool Keep(QWindow* window, QEvent* event) {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
        waiting_.push_back(HeldMouse(window, *static_cast<QMouseEvent*>(event)));
        return true;
      case QEvent::MouseMove:
        // Of moves in a row the last is enough, to light what the pointer then stands on.
        if (!waiting_.empty() && waiting_.back().isMove) waiting_.pop_back();
        waiting_.push_back(HeldMouse(window, *static_cast<QMouseEvent*>(event)));
        return true;
      case QEvent::MouseButtonDblClick:  // the press that it comes with is kept
        return true;
      case QEvent::Wheel:
        waiting_.push_back(HeldWheel(window, *static_cast<QWheelEvent*>(event)));
        return true;
      case QEvent::KeyPress:
      case QEvent::KeyRelease:
        waiting_.push_back(HeldKey(window, *static_cast<QKeyEvent*>(event)));
        return true;
      case QEvent::ShortcutOverride:
        event->accept();  // or the shortcut would act at once; accepted, the key itself comes
        return true;
      case QEvent::Close:
        if (window->type() != Qt::Window && window->type() != Qt::Dialog) return false;
        event->ignore();
        if (!closes_.contains(window)) closes_.append(window);
        return true;
      case QEvent::TouchBegin:
      case QEvent::TouchUpdate:
      case QEvent::TouchEnd:
      case QEvent::TouchCancel:
      case QEvent::TabletPress:
      case QEvent::TabletMove:
      case QEvent::TabletRelease:
        // Refused, these come again as mouse events; what follows is refused for good.
      case QEvent::NativeGesture:
      case QEvent::DragEnter:
      case QEvent::DragMove:
      case QEvent::Drop:
        event->ignore();
        return true;
      default:
        return false;
    }
  }

  void DeliverNext() {
    if (depth_ > 0 || delivering_ || !Waiting()) return;
    if (!HandlerHasReturned()) return next_.start(kLookAgainMs);
    delivering_ = true;
    if (!waiting_.empty()) {
      const Held held = std::move(waiting_.front());
      waiting_.pop_front();
      if (held.receiver != nullptr) held.deliver();
    } else if (const QPointer<QWindow> window = closes_.takeFirst(); window != nullptr) {
      window->close();
    }
    delivering_ = false;
    if (Waiting()) next_.start(0);
  }

  /// Whose the mouse is while a button is down.
  enum class MouseOf : std::uint8_t { Nobody, Admitted, Waiting };

  struct AdmittedKeys {
    QPointer<QWidget> widget;
    std::function<bool(const QKeyEvent&)> wants;
  };

  KeyRepeats repeats_;
  std::vector<AdmittedKeys> admittedKeys_;
  QList<QPointer<QWidget>> admitted_;
  MouseOf mouseOf_ = MouseOf::Nobody;
  int depth_ = 0;
  int level_ = 1;  ///< of the event loop that called the handler
  bool pumping_ = false;
  bool delivering_ = false;
  std::deque<Held> waiting_;
  QList<QPointer<QWindow>> closes_;
  QTimer next_;
};

}  // namespace

HoldInput::HoldInput() {
  HeldInput::Instance().Begin();
}

HoldInput::~HoldInput() {
  HeldInput::Instance().End();
}

void HoldInput::Admit(QWidget* widget) {
  HeldInput::Instance().Admit(widget);
}

void HoldInput::AdmitKeys(QWidget* widget, std::function<bool(const QKeyEvent&)> wants) {
  HeldInput::Instance().AdmitKeys(widget, std::move(wants));
}

void LetWindowsLive() {
  HeldInput::Instance().Pump();
}

bool EndIsAwaited() {
  return HeldInput::Instance().EndIsAwaited();
}

void WhenFree(QObject* context, std::function<void()> call) {
  HeldInput::Instance().Call(context, std::move(call));
}

}  // namespace bramlee
