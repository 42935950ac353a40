#include "companions/trace/trace_input.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTabletEvent>
#include <QTouchEvent>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace bramlee {
namespace {

/// A resting hand often lifts the stylus for a moment.
constexpr qint64 kStylusGoneMs = 500;

/// A finger touches with less than this, a palm with more; in logical pixels, about 20 mm.
constexpr double kPalmPixels = 76;

bool IsPalm(const TouchPoint& point) {
  return std::max(point.diameters.width(), point.diameters.height()) > kPalmPixels;
}

}  // namespace

TraceInput::TraceInput(QWidget& widget, PenHandlers handlers, QObject* parent)
    : QObject(parent), widget_(&widget), pen_(std::move(handlers)) {
  widget_->installEventFilter(this);
  qApp->installEventFilter(this);  // only the application hears of a stylus that comes near
}

void TraceInput::SwitchOn(bool on) {
  if (on_ == on) return;
  Drop();
  on_ = on;
  // Every point of a quick pen counts, however many come between two frames.
  QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, !on);
  if (widget_ == nullptr) return;
  widget_->setAttribute(Qt::WA_AcceptTouchEvents, on);
  widget_->setMouseTracking(on && byClicks_);
  if (on) {
    widget_->setCursor(Qt::CrossCursor);
  } else {
    widget_->unsetCursor();
  }
}

void TraceInput::SetByClicks(bool byClicks) {
  Drop();
  byClicks_ = byClicks;
  widget_->setMouseTracking(on_ && byClicks_);
}

void TraceInput::Press(QPointF place) {
  down_ = true;
  pen_.down(place);
}

void TraceInput::Lift() {
  finger_.reset();
  stylusDown_ = false;
  if (std::exchange(down_, false)) pen_.up();
}

void TraceInput::Drop() {
  finger_.reset();
  stylusDown_ = false;
  if (std::exchange(down_, false)) pen_.cancel();
}

bool TraceInput::StylusIsNear() const {
  return stylusNear_ || (stylusSeen_.isValid() && stylusSeen_.elapsed() < kStylusGoneMs);
}

bool TraceInput::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::TabletEnterProximity) {
    stylusNear_ = true;
    if (finger_) Drop();
  } else if (event->type() == QEvent::TabletLeaveProximity) {
    stylusNear_ = false;
    stylusSeen_.start();
    if (stylusDown_) Lift();
  }
  return on_ && watched == widget_ && OnSheet(event);
}

bool TraceInput::OnSheet(QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return OnMouse(*static_cast<QMouseEvent*>(event));
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
      event->accept();
      return OnTouch(*static_cast<QTouchEvent*>(event));
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
      event->accept();
      return OnTablet(*static_cast<QTabletEvent*>(event));
    case QEvent::UngrabMouse:
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
      Lift();
      return false;
    default:
      return false;
  }
}

bool TraceInput::OnMouse(const QMouseEvent& event) {
  // What a finger or stylus does has come already, as its own event.
  if (event.source() != Qt::MouseEventNotSynthesized) return true;
  const bool left = event.button() == Qt::LeftButton;
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (!left) return true;
      if (byClicks_ && down_) {
        Lift();
      } else if (!down_) {
        Press(event.position());
      }
      return true;
    case QEvent::MouseMove:
      if (!down_ || finger_ || stylusDown_) return true;
      if (!byClicks_ && !event.buttons().testFlag(Qt::LeftButton)) {
        Lift();  // its release went elsewhere
      } else {
        pen_.move(event.position());
      }
      return true;
    default:
      if (left && !byClicks_) Lift();
      return true;
  }
}

bool TraceInput::OnTouch(const QTouchEvent& event) {
  if (event.type() == QEvent::TouchCancel) {
    Drop();
    return true;
  }
  for (const QEventPoint& point : event.points()) {
    Take({.id = point.id(),
          .state = point.state(),
          .place = point.position(),
          .diameters = point.ellipseDiameters()});
  }
  return true;
}

void TraceInput::Take(const TouchPoint& point) {
  if (point.state == QEventPoint::Pressed && !down_ && !finger_ && !StylusIsNear() &&
      !IsPalm(point)) {
    finger_ = point.id;
    Press(point.place);
  } else if (finger_ == point.id) {
    if (IsPalm(point)) {
      Drop();  // the hand has come to rest on it
    } else if (point.state == QEventPoint::Released) {
      pen_.move(point.place);
      Lift();
    } else if (point.state == QEventPoint::Updated) {
      pen_.move(point.place);
    }
  }
}

bool TraceInput::OnTablet(const QTabletEvent& event) {
  stylusSeen_.start();
  switch (event.type()) {
    case QEvent::TabletPress:
      if (event.button() != Qt::LeftButton) return true;
      if (finger_) Drop();
      stylusDown_ = true;
      Press(event.position());
      return true;
    case QEvent::TabletMove:
      if (stylusDown_) pen_.move(event.position());
      return true;
    default:
      if (stylusDown_ && event.button() == Qt::LeftButton) Lift();
      return true;
  }
}

}  // namespace bramlee
