#include "ink/stamps.h"

#include <cmath>
#include <iterator>
#include <new>

namespace bramlee {
namespace {

/// Where the samples of a pixel lie: the i-th in the i-th of 64 columns and in this row. Found by
/// search: an edge of any direction at any place comes out with an error of 9 levels of 255 at
/// most and 2.5 in the mean, where 8 rows of 8 give 16 and 8.
constexpr std::int8_t kSampleRow[] = {
    19, 37, 55, 2,  46, 10, 30, 61, 25, 17, 39, 47, 5,  54, 12, 34, 23, 60, 44, 3,  28, 52,
    18, 11, 38, 32, 53, 62, 7,  42, 20, 27, 49, 0,  16, 59, 36, 9,  48, 29, 41, 22, 56, 4,
    14, 35, 24, 45, 63, 6,  50, 31, 15, 58, 40, 21, 1,  8,  51, 33, 26, 43, 57, 13,
};
constexpr int kSamples = 64;
static_assert(std::size(kSampleRow) == kSamples);

}  // namespace

Words ZeroWords(std::size_t count) {
  Words words(static_cast<std::uint64_t*>(std::calloc(count, sizeof(std::uint64_t))));
  if (words == nullptr) throw std::bad_alloc();
  return words;
}

Stamps::Stamps(double ratio)
    : ratio_(ratio),
      radius_(kDrawWidth / 2 * ratio),
      reach_(static_cast<int>(std::ceil(radius_))),
      rows_(2 * reach_ + 1),
      columns_((rows_ + 1 + 3) / 4 * 4),
      wordsPerStamp_(std::ptrdiff_t{rows_} * columns_),
      words_(
          ZeroWords(static_cast<std::size_t>(std::ptrdiff_t{kPhases} * kPhases * wordsPerStamp_))) {
}

/// Goes level by level of samples: a disc holds those of a level from one pixel to another. Flips
/// their bit where they begin and behind where they end, then carries it from pixel to pixel.
void Stamps::MakeRow(int phaseY) {
  const double centreY = reach_ + static_cast<double>(phaseY) / kPhases;
  std::uint64_t* const stamps = words_.get() + std::ptrdiff_t{phaseY} * kPhases * wordsPerStamp_;
  std::uint64_t* words = stamps;
  for (int row = 0; row < rows_; ++row, words += columns_) {
    for (int i = 0; i < kSamples; ++i) {
      const double sampleX = (i + 0.5) / kSamples;
      const double sampleY = (kSampleRow[i] + 0.5) / kSamples;
      const double offCentre = row + sampleY - centreY;
      const double square = radius_ * radius_ - offCentre * offCentre;
      if (square < 0) continue;
      const double half = std::sqrt(square);
      FlipBehind(reach_ - half - sampleX, i, words);
      FlipBehind(reach_ + half - sampleX, i, words);
    }
  }
  words = stamps;
  for (int row = 0; row < kPhases * rows_; ++row, words += columns_) {
    for (int column = 1; column < columns_; ++column) words[column] ^= words[column - 1];
  }
}

/// Flips the bit `sample` of the first pixel behind `place` in each stamp of a row, the first of
/// which begins at `words`; from stamp to stamp the place lies one phase further right, so that the
/// pixel becomes the next one once.
void Stamps::FlipBehind(double place, int sample, std::uint64_t* words) const {
  const double pixel = std::floor(place) + 1;
  const auto nextFrom = static_cast<int>(std::ceil((pixel - place) * kPhases));
  words += static_cast<int>(pixel);
  for (int phaseX = 0; phaseX < kPhases; ++phaseX, words += wordsPerStamp_) {
    words[phaseX < nextFrom ? 0 : 1] ^= std::uint64_t{1} << sample;
  }
}

}  // namespace bramlee
