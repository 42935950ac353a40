#include "ink/planes.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <utility>

// The loops over words gain from wide registers, which most processors have and not all. The
// choice at load time and the address sanitizer do not go together.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__)
#define BRAMLEE_WIDE __attribute__((target_clones("avx2,popcnt", "default")))
#else
#define BRAMLEE_WIDE
#endif

namespace bramlee {
namespace {

BRAMLEE_WIDE void OrStamp(std::uint64_t* into, std::ptrdiff_t stride, const std::uint64_t* stamp,
                          int rows, int columns) {
  for (int row = 0; row < rows; ++row) {
    for (int i = 0; i < columns; i += 4) {
      for (int word = i; word < i + 4; ++word) into[word] |= stamp[word];
    }
    into += stride;
    stamp += columns;
  }
}

/// Takes out of a row of one colour what another colour has.
BRAMLEE_WIDE void TakeOut(std::uint64_t* from, const std::uint64_t* other, int count) {
  for (int i = 0; i < count; ++i) from[i] &= ~other[i];
}

/// On the stack: painting a frame asks for no memory.
constexpr int kPixelsAtOnce = 256;

/// What one colour adds to the pixels of a row: its three parts times its samples.
struct Sums {
  int red;
  int green;
  int blue;
  int samples;
};

BRAMLEE_WIDE void AddColour(Sums* sums, const std::uint64_t* words, int count, const Sums& colour) {
  for (int i = 0; i < count; ++i) {
    if (words[i] == 0) continue;
    const int samples = std::popcount(words[i]);
    sums[i].red += samples * colour.red;
    sums[i].green += samples * colour.green;
    sums[i].blue += samples * colour.blue;
    sums[i].samples += samples;
  }
}

/// One of the three parts of a colour: the byte that lies so many bits up.
int PartOf(std::uint32_t colour, int bits) {
  return static_cast<int>(colour >> bits & 0xFF);
}

std::uint32_t Mixed(const Sums& sums, std::uint32_t ground) {
  const int rest = 64 - sums.samples;
  const auto mixed = [&](int sum, int bits) {
    return static_cast<std::uint32_t>((sum + rest * PartOf(ground, bits) + 32) / 64) << bits;
  };
  return 0xFF000000 | mixed(sums.red, 16) | mixed(sums.green, 8) | mixed(sums.blue, 0);
}

}  // namespace

PixelRect PixelRect::Within(const PixelSize& size) const {
  const int left = std::max(x, 0);
  const int top = std::max(y, 0);
  return {left, top, std::min(x + width, size.width) - left,
          std::min(y + height, size.height) - top};
}

void Planes::Span::Add(const Span& other) {
  left = std::min(left, other.left);
  top = std::min(top, other.top);
  right = std::max(right, other.right);
  bottom = std::max(bottom, other.bottom);
}

Planes::Span Planes::Span::Shared(const Span& other) const {
  return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
          std::min(bottom, other.bottom)};
}

PixelSize Planes::SizeOf(const Box& area, double ratio) {
  return {static_cast<int>(std::ceil(area.width * ratio)),
          static_cast<int>(std::ceil(area.height * ratio))};
}

Planes::Planes(const Box& area, double ratio)
    : stamps_(ratio),
      area_(area),
      size_(SizeOf(area, ratio)),
      margin_(2 * stamps_.Reach() + 1),
      stride_(size_.width + margin_ + stamps_.Columns() + 1),
      rows_(size_.height + 2 * margin_ + 1),
      limitX_(size_.width + margin_),
      limitY_(size_.height + margin_),
      dirty_{margin_, margin_, margin_ + size_.width, margin_ + size_.height} {
  SetColour(0);
}

void Planes::SetColour(ColourWord colour) {
  if (!planes_.empty() && planes_[current_].colour == colour) return;
  Settle();
  const auto known = std::find_if(planes_.begin(), planes_.end(),
                                  [colour](const Plane& plane) { return plane.colour == colour; });
  current_ = static_cast<std::size_t>(known - planes_.begin());
  if (known != planes_.end()) return;
  const auto words = static_cast<std::size_t>(rows_) * static_cast<std::size_t>(stride_);
  planes_.push_back({colour, ZeroWords(words), kEmptySpan});
}

void Planes::SetBits(const std::uint64_t* stamp, int column, int row) {
  OrStamp(RowOf(planes_[current_], row) + column, stride_, stamp, stamps_.Rows(),
          stamps_.Columns());
  unsettled_.Add({column, row, column + stamps_.Columns(), row + stamps_.Rows()});
}

void Planes::Settle() {
  if (unsettled_.Empty()) return;
  Plane& current = planes_[current_];
  for (const Plane& plane : planes_) {
    if (&plane == &current) continue;
    const Span box = unsettled_.Shared(plane.touched);
    for (int row = box.top; row < box.bottom; ++row) {
      TakeOut(RowOf(plane, row) + box.left, RowOf(current, row) + box.left, box.right - box.left);
    }
  }
  current.touched.Add(unsettled_);
  dirty_.Add(unsettled_);
  unsettled_ = kEmptySpan;
}

void Planes::Clear() {
  Settle();
  for (Plane& plane : planes_) {
    const Span box = std::exchange(plane.touched, kEmptySpan);
    for (int row = box.top; row < box.bottom; ++row) {
      std::fill(RowOf(plane, row) + box.left, RowOf(plane, row) + box.right, 0);
    }
    dirty_.Add(box);
  }
}

PixelRect Planes::TakeDirty() {
  Settle();
  const Span box = std::exchange(dirty_, kEmptySpan);
  if (box.Empty()) return {};
  return PixelRect{box.left - margin_, box.top - margin_, box.right - box.left,
                   box.bottom - box.top}
      .Within(size_);
}

void Planes::Compose(const Pixels& picture, const PixelRect& part) noexcept {
  Settle();
  const PixelRect area = part.Within(size_);
  const int right = area.x + area.width;
  for (int y = area.y; y < area.y + area.height; ++y) {
    for (int x = area.x; x < right; x += kPixelsAtOnce) {
      ComposePixels(picture.Line(y) + x, x, y, std::min(kPixelsAtOnce, right - x));
    }
  }
}

void Planes::ComposePixels(std::uint32_t* pixel, int x, int y, int count) const {
  Sums sums[kPixelsAtOnce];
  std::fill_n(sums, count, Sums{});
  const int left = x + margin_;
  const Span pixels{left, y + margin_, left + count, y + margin_ + 1};
  for (const Plane& plane : planes_) {
    const Span box = pixels.Shared(plane.touched);
    if (box.Empty()) continue;
    const Sums colour{.red = PartOf(plane.colour, 0),
                      .green = PartOf(plane.colour, 8),
                      .blue = PartOf(plane.colour, 16),
                      .samples = 0};
    AddColour(sums + (box.left - left), RowOf(plane, box.top) + box.left, box.right - box.left,
              colour);
  }
  for (int i = 0; i < count; ++i) {
    if (sums[i].samples != 0) pixel[i] = Mixed(sums[i], pixel[i]);
  }
}

}  // namespace bramlee
