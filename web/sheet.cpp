#include "web/sheet.h"

#include <algorithm>
#include <utility>

namespace bramlee {
namespace {

/// The most pixels that browsers allow a canvas; a wall board has half of that.
constexpr double kMostPixels = 4096.0 * 4096.0;

constexpr std::uint32_t kOpaque = 0xFF000000;

/// Planes put red two bytes above blue, a canvas wants it two bytes below: colours go in with both
/// exchanged.
ColourWord Exchanged(ColourWord colour) {
  return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

/// The ink alone of a pixel, as it is over black and over white.
std::uint32_t Separated(std::uint32_t overBlack, std::uint32_t overWhite) {
  const std::uint32_t opaque = 255 - ((overWhite & 0xFF) - (overBlack & 0xFF));
  if (opaque == 0) return 0;
  std::uint32_t pixel = opaque << 24;
  for (int bits = 0; bits < 24; bits += 8) {
    const std::uint32_t part = overBlack >> bits & 0xFF;
    pixel |= std::min((part * 255 + opaque / 2) / opaque, 255U) << bits;
  }
  return pixel;
}

}  // namespace

void WebInk::SetPen(ColourWord colour) {
  journal_.SetPen(Exchanged(colour));
  if (keeps_) changes_.push_back({.first = dots_.size() / 2, .colour = colour});
}

const std::vector<float>& WebInk::TakeDots() {
  taken_ = std::exchange(dots_, {});
  takenChanges_ = std::exchange(changes_, {});
  return taken_;
}

void WebSheet::Clear() {
  page_.Clear();
  ink_.Journal().Wipe();
}

bool WebSheet::Cover(const Box& area, double ratio, std::optional<ColourWord> ground) {
  const double width = area.width * ratio;
  const double height = area.height * ratio;
  if (!(width > 0 && height > 0 && ratio > 0 && width * height <= kMostPixels)) return false;
  if (!ink_.Journal().Cover(area, ratio)) return false;
  ground_ = ground;
  const PixelSize size = CoveredSize();
  const auto pixels = static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
  pixels_.resize(pixels);
  overWhite_.resize(ground ? 0 : pixels);
  PaintPart({0, 0, size.width, size.height});
  return true;
}

PixelRect WebSheet::Paint() {
  const PixelRect dirty = ink_.Journal().TakeDirtyPixels();
  PaintPart(dirty);
  return dirty;
}

void WebSheet::PaintPart(const PixelRect& part) {
  if (ground_) {
    PaintOver(part, kOpaque | *ground_, pixels_);
  } else {
    PaintWithoutGround(part);
  }
}

void WebSheet::PaintOver(const PixelRect& part, std::uint32_t ground,
                         std::vector<std::uint32_t>& picture) {
  const Pixels pixels{.first = picture.data(), .perLine = CoveredSize().width};
  for (int y = part.y; y < part.y + part.height; ++y) {
    std::fill_n(pixels.Line(y) + part.x, part.width, ground);
  }
  ink_.Journal().Compose(pixels, part);
}

/// Over black and over white: how far both are apart says how much of the ground is seen.
void WebSheet::PaintWithoutGround(const PixelRect& part) {
  PaintOver(part, kOpaque, pixels_);
  PaintOver(part, kOpaque | 0xFFFFFF, overWhite_);
  const auto perLine = static_cast<std::size_t>(CoveredSize().width);
  for (int y = part.y; y < part.y + part.height; ++y) {
    const std::size_t first =
        static_cast<std::size_t>(y) * perLine + static_cast<std::size_t>(part.x);
    for (std::size_t i = first; i < first + static_cast<std::size_t>(part.width); ++i) {
      pixels_[i] = Separated(pixels_[i], overWhite_[i]);
    }
  }
}

}  // namespace bramlee
