// What is to be written: letters, each at its place and in its colour.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "strokes/letter.h"
#include "strokes/placing.h"

namespace bramlee {

/// A letter on a page.
struct PlacedLetter {
  Letter letter;
  std::uint32_t colour = 0;  ///< passed to the surface as it is
  Placing placing;
  /// Rules or a grid: no step goes back over them, and a step back leaves them where they are.
  bool ruling = false;
};

/// Letters in writing order. It may grow while a player stands on it.
class Page {
 public:
  void Add(PlacedLetter letter);

  /// Removes all letters. A player goes back to the start and leaves the dots on its surface.
  void Clear();

  std::span<const PlacedLetter> Letters() const { return letters_; }

  /// How often the page was cleared: a place on it holds as long as this does.
  std::uint64_t Edition() const { return edition_; }

 private:
  std::vector<PlacedLetter> letters_;
  std::uint64_t edition_ = 0;
};

}  // namespace bramlee
