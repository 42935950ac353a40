// A child's hand on the sheet: mouse, finger or stylus as one pen.
#pragma once

#include <QElapsedTimer>
#include <QEventPoint>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <functional>
#include <optional>

class QTabletEvent;
class QTouchEvent;
class QMouseEvent;
class QWidget;

namespace bramlee {

/// What the pen does. Places are in the widget's pixels and may lie outside of it.
struct PenHandlers {
  std::function<void(QPointF)> down;
  std::function<void(QPointF)> move;
  std::function<void()> up;
  std::function<void()> cancel;  ///< the touch was none: a palm, or its end was lost
};

/// One finger or palm on a touch screen.
struct TouchPoint {
  int id = 0;
  QEventPoint::State state = QEventPoint::Unknown;
  QPointF place;
  QSizeF diameters;  ///< of what touches, in logical pixels; empty where the screen does not say
};

/// While on, takes what mouse, finger and stylus do on a widget and hands it over as one pen. The
/// first finger counts alone; a palm and further fingers change nothing. While a stylus is near,
/// and for half a second after, fingers are ignored. Only the left button writes, also with another
/// pressed. A pen whose end is lost (the window goes, the grab is taken) counts as lifted.
class TraceInput : public QObject {
 public:
  TraceInput(QWidget& widget, PenHandlers handlers, QObject* parent);
  ~TraceInput() override {
    down_ = false;  // what the handlers stand on may be gone
    SwitchOn(false);
  }

  void SwitchOn(bool on);
  /// Writing by click, move, click instead of dragging.
  void SetByClicks(bool byClicks);
  bool IsDown() const { return down_; }
  /// What one point of a touch does. Touch events on the widget come here by themselves.
  void Take(const TouchPoint& point);
  /// Lifts the pen, if it is down.
  void Lift();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool OnSheet(QEvent* event);
  bool OnMouse(const QMouseEvent& event);
  bool OnTouch(const QTouchEvent& event);
  bool OnTablet(const QTabletEvent& event);
  void Press(QPointF place);
  void Drop();
  bool StylusIsNear() const;

  QPointer<QWidget> widget_;  ///< may go first, with its window
  PenHandlers pen_;
  bool on_ = false;
  bool byClicks_ = false;
  bool down_ = false;
  std::optional<int> finger_;  ///< the one that writes
  bool stylusDown_ = false;
  bool stylusNear_ = false;
  QElapsedTimer stylusSeen_;  ///< since it was near last
};

}  // namespace bramlee
