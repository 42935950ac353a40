#include "board/sheet.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <cmath>
#include <utility>

#include "files/numbers.h"

namespace bramlee {
namespace {

bool& Paced() {
  static bool paced = QGuiApplication::platformName() != QStringLiteral("offscreen");
  return paced;
}

}  // namespace

Sheet::Sheet(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void Sheet::SetPaced(bool paced) {
  Paced() = paced && QGuiApplication::platformName() != QStringLiteral("offscreen");
}

void Sheet::EndRun() {
  ink_.EndRun();
  if (writing_ == 0) update();
}

void Sheet::SetStepBox(QLineEdit* txtspd) {
  stepBox_ = txtspd;
  connect(stepBox_, &QLineEdit::textChanged, this, &Sheet::TakeStep);
  TakeStep(stepBox_->text());
}

void Sheet::TakeStep(const QString& text) {
  const double step = Val(text);
  if (!IsNumeric(text) || !std::isfinite(step) || step < kSmallestStep) {
    stepBox_->setText(stepText_);
    return;
  }
  stepText_ = text;
  ink_.SetStep(step);
}

void Sheet::SetBackColor(ColourWord colour) {
  backColor_ = ColourOf(colour);
  update();
}

void Sheet::Wipe() {
  ink_.Wipe();
  update();
}

Sheet::Writing::Writing(Sheet& sheet) : sheet_(sheet) {
  if (sheet_.writing_++ == 0) sheet_.BeginWriting();
}

Sheet::Writing::~Writing() {
  if (--sheet_.writing_ == 0) sheet_.EndWriting();
}

void Sheet::BeginWriting() {
  if (!Paced() || !isVisible()) return;
  pace_.Begin(screen()->refreshRate());
  dotsToFrame_ = pace_.DotsPerFrame();
}

void Sheet::EndWriting() {
  ink_.EndRun();
  const std::int64_t dotsToFrame = std::exchange(dotsToFrame_, kNever);
  if (dotsToFrame > pace_.DotsPerFrame()) return update();  // no pace was kept
  ShowNewDots();
  Rest(pace_.DotsPerFrame() - dotsToFrame);
}

void Sheet::EndFrame() {
  if (pace_.FrameIsDue()) {
    ShowNewDots();
    LetWindowsLive();
  }
  Rest(pace_.DotsPerFrame());
  dotsToFrame_ = pace_.DotsPerFrame();
}

void Sheet::Rest(std::int64_t dots) {
  if (!EndIsAwaited()) pace_.Rest(dots);
}

void Sheet::ShowNewDots() {
  const QRect dirty = Refresh();
  if (!dirty.isEmpty()) repaint(dirty);
}

/// Brings what is shown up to date; returns around what has changed, in logical pixels.
QRect Sheet::Refresh() {
  const double ratio = devicePixelRatioF();
  ink_.Cover(rect(), ratio);
  QRect dirty = ink_.TakeDirty();
  if (shown_.size() != ink_.CoveredSize()) {
    shown_ = QImage(ink_.CoveredSize(), QImage::Format_RGB32);
    shownGround_.reset();
  }
  if (shownGround_ != backColor_) dirty = shown_.rect();
  shownGround_ = backColor_;
  shown_.setDevicePixelRatio(ratio);
  ink_.Compose(shown_, dirty, backColor_);
  return QRectF(dirty.x() / ratio, dirty.y() / ratio, dirty.width() / ratio, dirty.height() / ratio)
      .toAlignedRect();
}

void Sheet::paintEvent(QPaintEvent* event) {
  // What brings this paint may be something else, a window that goes: dots that are new by now
  // and lie elsewhere would never be seen.
  const QRegion unseen = QRegion(Refresh()) - event->region();
  if (!unseen.isEmpty()) update(unseen);
  QPainter painter(this);
  painter.setClipRegion(event->region());
  painter.drawImage(0, 0, shown_);
}

}  // namespace bramlee
