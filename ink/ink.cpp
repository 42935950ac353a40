#include "ink/ink.h"

#include <algorithm>

namespace bramlee {
namespace {

Box BoxOf(const QRectF& area) {
  return {.x = area.x(), .y = area.y(), .width = area.width(), .height = area.height()};
}

QSize AsQSize(const PixelSize& size) {
  return {size.width, size.height};
}

Pixels PixelsOf(QImage& image) {
  return {.first = reinterpret_cast<std::uint32_t*>(image.bits()),
          .perLine = image.bytesPerLine() / std::ptrdiff_t{sizeof(std::uint32_t)}};
}

}  // namespace

void FillPart(QImage& image, const QRect& part, const QColor& colour) noexcept {
  const QRect within = part.intersected(image.rect());
  for (int y = within.top(); y <= within.bottom(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    std::fill_n(line + within.left(), within.width(), colour.rgb());
  }
}

QImage Ink::Picture(const QRectF& area, double ratio, const QColor& ground) const {
  constexpr double kLargest = 32767;
  if (area.isEmpty() || std::max(area.width(), area.height()) * ratio > kLargest) return {};
  QImage image(SizeOf(area, ratio), QImage::Format_RGB32);
  if (image.isNull()) return {};
  image.fill(ground);
  if (!PaintAll(BoxOf(area), ratio, PixelsOf(image))) return {};
  image.setDevicePixelRatio(ratio);
  return image;
}

QSize Ink::SizeOf(const QRectF& area, double ratio) {
  return AsQSize(DotJournal::SizeOf(BoxOf(area), ratio));
}

bool Ink::Cover(const QRectF& area, double ratio) noexcept {
  return DotJournal::Cover(BoxOf(area), ratio);
}

QSize Ink::CoveredSize() const {
  return AsQSize(DotJournal::CoveredPixels());
}

QRect Ink::TakeDirty() {
  const PixelRect dirty = DotJournal::TakeDirtyPixels();
  return {dirty.x, dirty.y, dirty.width, dirty.height};
}

void Ink::Compose(QImage& image, const QRect& part) noexcept {
  DotJournal::Compose(PixelsOf(image), {part.x(), part.y(), part.width(), part.height()});
}

}  // namespace bramlee
