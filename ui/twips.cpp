#include "ui/twips.h"

#include <QRectF>
#include <QVariant>
#include <QWidget>
#include <algorithm>

#include "files/numbers.h"

namespace bramlee {
namespace {

/// In pixels: farther than any widget lies, and small enough for Qt's arithmetic.
constexpr double kFarthest = 1 << 24;

constexpr char kPlace[] = "twips";

}  // namespace

int PixelsOf(double twips) {
  return static_cast<int>(RoundEven(std::clamp(twips / kTwipsPerPixel, -kFarthest, kFarthest)));
}

QRect PixelsOf(const TwipsRect& rect) {
  return {PixelsOf(rect.left), PixelsOf(rect.top), PixelsOf(rect.width), PixelsOf(rect.height)};
}

TwipsRect TwipsOf(const QRect& pixels) {
  return {.left = kTwipsPerPixel * pixels.x(),
          .top = kTwipsPerPixel * pixels.y(),
          .width = kTwipsPerPixel * pixels.width(),
          .height = kTwipsPerPixel * pixels.height()};
}

void Place(QWidget* control, const TwipsRect& rect) {
  control->setProperty(kPlace, QRectF(rect.left, rect.top, rect.width, rect.height));
  control->setGeometry(PixelsOf(rect));
}

void MoveTo(QWidget* control, double left, double top) {
  const TwipsRect now = PlaceOf(control);
  Place(control, {.left = left, .top = top, .width = now.width, .height = now.height});
}

TwipsRect PlaceOf(const QWidget* control) {
  const QRect pixels = control->geometry();
  const QRectF kept = control->property(kPlace).toRectF();
  const TwipsRect placed{
      .left = kept.x(), .top = kept.y(), .width = kept.width(), .height = kept.height()};
  if (control->property(kPlace).isValid() && PixelsOf(placed) == pixels) return placed;
  return TwipsOf(pixels);
}

}  // namespace bramlee
