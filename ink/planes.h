// The dots of a part of the sheet as bits, one plane a colour.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "ink/stamps.h"
#include "strokes/colour_words.h"
#include "strokes/letter_shape.h"

namespace bramlee {

/// A size in device pixels.
struct PixelSize {
  int width = 0;
  int height = 0;
};

/// A part of a picture, in device pixels.
struct PixelRect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  bool IsEmpty() const { return width <= 0 || height <= 0; }
  /// What lies within a picture of that size.
  PixelRect Within(const PixelSize& size) const;
};

/// The pixels of a picture: 0xffRRGGBB each, line by line.
struct Pixels {
  std::uint32_t* first = nullptr;
  std::ptrdiff_t perLine = 0;
  std::uint32_t* Line(int y) const { return first + y * perLine; }
};

/// 64 sample bits a device pixel and colour; a sample belongs to one colour at most, to the one
/// that came last. Stamping only sets bits, so a stroke's edge is the same however often its dots
/// overlap, and a second colour leaves nothing of the first beneath it.
class Planes {
 public:
  /// Covers `area` (sheet pixels) at `ratio` device pixels to a sheet pixel. Throws
  /// std::bad_alloc when there is no memory for it.
  Planes(const Box& area, double ratio);

  const Box& Area() const { return area_; }
  double Ratio() const { return stamps_.Ratio(); }
  /// What it covers, in device pixels.
  PixelSize Size() const { return size_; }
  /// What `area` at `ratio` comes to, in device pixels.
  static PixelSize SizeOf(const Box& area, double ratio);

  /// The colour of the stamps to come. Throws std::bad_alloc when it is a new one and there is no
  /// memory for it.
  void SetColour(ColourWord colour);

  /// Sets a dot with its centre at `x`, `y` (sheet pixels). What lies off the area is cut off.
  void Stamp(float x, float y) {
    const double phases = Stamps::kPhases;
    const double deviceX = (static_cast<double>(x) - area_.x) * Ratio() + stamps_.Reach() + 1;
    const double deviceY = (static_cast<double>(y) - area_.y) * Ratio() + stamps_.Reach() + 1;
    if (!(deviceX >= 0 && deviceX < limitX_ && deviceY >= 0 && deviceY < limitY_)) return;
    const double half = 0.5 / phases;  // cutting off then takes the nearest phase
    const int placeX = static_cast<int>((deviceX + half) * phases);
    const int placeY = static_cast<int>((deviceY + half) * phases);
    const int column = placeX / Stamps::kPhases;
    const int row = placeY / Stamps::kPhases;
    SetBits(stamps_.At(placeX % Stamps::kPhases, placeY % Stamps::kPhases), column, row);
  }

  /// Takes every dot away.
  void Clear();

  /// Where dots were set or taken away since the last call, in device pixels of the area; all of
  /// it at first.
  PixelRect TakeDirty();

  /// Paints the part `part` (device pixels of the area) into the same place of a picture of Size(),
  /// over what stands there. Asks for no memory.
  void Compose(const Pixels& picture, const PixelRect& part) noexcept;

 private:
  /// Rows and columns of the planes, the last ones beyond it.
  struct Span {
    int left;
    int top;
    int right;
    int bottom;
    bool Empty() const { return left >= right || top >= bottom; }
    void Add(const Span& other);
    Span Shared(const Span& other) const;
  };
  struct Plane {
    ColourWord colour;
    Words words;
    Span touched;  ///< where any bit may be set
  };
  static constexpr Span kEmptySpan{1 << 30, 1 << 30, 0, 0};

  void SetBits(const std::uint64_t* stamp, int column, int row);
  void Settle();
  void ComposePixels(std::uint32_t* pixel, int x, int y, int count) const;
  std::uint64_t* RowOf(const Plane& plane, int row) const {
    return plane.words.get() + std::ptrdiff_t{row} * stride_;
  }

  Stamps stamps_;
  Box area_;
  PixelSize size_;
  int margin_;  ///< rows and columns around the area, so that no stamp has to be cut
  int stride_;
  int rows_;
  double limitX_;
  double limitY_;
  std::vector<Plane> planes_;
  std::size_t current_ = 0;
  Span dirty_;                   ///< changed since it was last asked
  Span unsettled_ = kEmptySpan;  ///< where the current colour may share samples with others
};

}  // namespace bramlee
