// Which numbers stand over the letters of a page.
#pragma once

#include <cstddef>
#include <vector>

#include "strokes/stroke_numbers.h"
#include "writing/page.h"
#include "writing/player.h"

namespace bramlee {

/// The number of a pen stroke of a letter on a page.
struct PageNumber {
  std::size_t letter = 0;  ///< index on the page
  std::size_t stroke = 0;  ///< index in the letter
  StrokeNumber place;
};

/// The numbers of the letters on a page, in writing order. Rulings have none, nor have letters that
/// a later one was written over. Numbers keep clear of all the letters that have some.
std::vector<PageNumber> NumbersOf(const Page& page, const NumberRule& rule);

/// The first stroke whose number is shown when the pen stands there: the first that is not begun,
/// or, when no letter is left to write, the first of all.
Player::Where FirstNumbered(const Page& page, const Player::Where& stands);

}  // namespace bramlee
