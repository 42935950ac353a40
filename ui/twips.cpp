#include "ui/twips.h"

#include <QRectF>
#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <optional>

#include "files/numbers.h"
#include "ui/scale.h"

namespace bramlee {
namespace {

/// In pixels: farther than any widget lies, and small enough for Qt's arithmetic.
constexpr double kFarthest = 1 << 24;

constexpr char kPlace[] = "twips";

/// The place in which the control was put, nothing for one that was not.
std::optional<TwipsRect> KeptPlace(const QWidget* control) {
  const QVariant kept = control->property(kPlace);
  if (!kept.isValid()) return std::nullopt;
  const QRectF rect = kept.toRectF();
  return TwipsRect{
      .left = rect.x(), .top = rect.y(), .width = rect.width(), .height = rect.height()};
}

/// Where the place lies on a ground of that scale. At another scale than designed its edges are
/// rounded, not its size: what meets a neighbour goes on to meet it there.
QRect PixelsAt(const Scale& scale, const TwipsRect& rect) {
  if (scale.factor == 1) return PixelsOf(rect).translated(scale.origin);
  const QPoint topLeft(PixelsOf(rect.left * scale.factor), PixelsOf(rect.top * scale.factor));
  const QPoint end(PixelsOf((rect.left + rect.width) * scale.factor),
                   PixelsOf((rect.top + rect.height) * scale.factor));
  return QRect(topLeft, end - QPoint(1, 1)).translated(scale.origin);
}

/// The place of which these are the pixels at that scale.
TwipsRect TwipsAt(const Scale& scale, const QRect& pixels) {
  const TwipsRect rect = TwipsOf(pixels.translated(-scale.origin));
  return {.left = rect.left / scale.factor,
          .top = rect.top / scale.factor,
          .width = rect.width / scale.factor,
          .height = rect.height / scale.factor};
}

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
  control->setGeometry(PixelsAt(ScaleOf(control->parentWidget()), rect));
}

void MoveTo(QWidget* control, double left, double top) {
  const TwipsRect now = PlaceOf(control);
  Place(control, {.left = left, .top = top, .width = now.width, .height = now.height});
}

void PlaceAnew(QWidget* control) {
  if (const auto place = KeptPlace(control)) Place(control, *place);
}

bool IsPlaced(const QWidget* control) {
  return KeptPlace(control).has_value();
}

TwipsRect PlaceOf(const QWidget* control) {
  const Scale scale = ScaleOf(control->parentWidget());
  const QRect pixels = control->geometry();
  const std::optional<TwipsRect> placed = KeptPlace(control);
  if (placed && PixelsAt(scale, *placed) == pixels) return *placed;
  return TwipsAt(scale, pixels);
}

}  // namespace bramlee
