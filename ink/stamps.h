// The pen's tip as sample bits: a disc, at every place within a pixel where it may stand.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace bramlee {

/// Width of the pen on every board, in sheet pixels: a broad felt pen.
inline constexpr double kDrawWidth = 10;

/// Words from zeroed memory, which costs nothing until it is written to. Throws std::bad_alloc.
struct FreeWords {
  void operator()(std::uint64_t* words) const { std::free(words); }
};
using Words = std::unique_ptr<std::uint64_t[], FreeWords>;
Words ZeroWords(std::size_t count);

/// The discs for one pixel ratio. A word holds the 64 samples of one device pixel, a set bit a
/// sample within the disc. Discs are made when the first of those beside each other within a pixel
/// is asked for: together they take a third of the time.
class Stamps {
 public:
  /// A disc's centre stands on one of kPhases by kPhases places within its pixel.
  static constexpr int kPhases = 32;

  /// `ratio`: device pixels to a sheet pixel, greater than 0.
  explicit Stamps(double ratio);

  double Ratio() const { return ratio_; }
  /// Rows of a stamp, in device pixels.
  int Rows() const { return rows_; }
  /// Columns of a stamp; a multiple of 4, the last one empty or more of them.
  int Columns() const { return columns_; }
  /// How far a stamp's top left pixel lies above and left of the pixel of its centre.
  int Reach() const { return reach_; }

  /// The disc whose centre lies `phaseX`, `phaseY` 32nds right of and below the top left corner
  /// of its pixel, row by row.
  const std::uint64_t* At(int phaseX, int phaseY) {
    const int phase = phaseY * kPhases + phaseX;
    const std::uint64_t* stamp = words_.get() + phase * wordsPerStamp_;
    // The pixel of its centre is always full in a stamp that is made.
    if (stamp[reach_ * columns_ + reach_] == 0) MakeRow(phaseY);
    return stamp;
  }

 private:
  void MakeRow(int phaseY);
  void FlipBehind(double place, int sample, std::uint64_t* words) const;

  double ratio_;
  double radius_;
  int reach_;
  int rows_;
  int columns_;
  std::ptrdiff_t wordsPerStamp_;
  Words words_;
};

}  // namespace bramlee
