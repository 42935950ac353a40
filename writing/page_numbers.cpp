#include "writing/page_numbers.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>
#include <utility>

namespace bramlee {
namespace {

/// A letter of which a later one covers more than this part is written over.
constexpr double kCovered = 0.25;

struct NumberedLetter {
  std::size_t index;  ///< on the page
  Box around;         ///< its ink
  std::vector<StrokePath> strokes;
};

NumberedLetter AsPlaced(const PlacedLetter& placed, std::size_t index, double penHalfWidth) {
  const Placing& placing = placed.placing;
  const Box& box = placed.letter.Bounds();
  NumberedLetter letter{
      .index = index,
      .around = {.x = box.x * placing.scale + placing.right - penHalfWidth,
                 .y = box.y * placing.scale + placing.down - penHalfWidth,
                 .width = box.width * placing.scale + 2 * penHalfWidth,
                 .height = box.height * placing.scale + 2 * penHalfWidth},
      .strokes = placed.letter.Shape().strokes,
  };
  if (placing.IsNone()) return letter;
  for (StrokePath& stroke : letter.strokes) {
    stroke.length *= placing.scale;
    for (Point& point : stroke.points) {
      point = {point.x * placing.scale + placing.right, point.y * placing.scale + placing.down};
    }
  }
  return letter;
}

/// How much of the first box the other one covers, 0 to 1.
double PartCovered(const Box& box, const Box& by) {
  const double width = std::min(box.x + box.width, by.x + by.width) - std::max(box.x, by.x);
  const double height = std::min(box.y + box.height, by.y + by.height) - std::max(box.y, by.y);
  return std::max(0.0, width) * std::max(0.0, height) / (box.width * box.height);
}

/// The letters that are to be seen, in writing order.
std::vector<NumberedLetter> LettersOnTop(std::span<const PlacedLetter> letters,
                                         double penHalfWidth) {
  std::vector<NumberedLetter> onTop;
  for (std::size_t i = letters.size(); i-- > 0;) {
    if (letters[i].ruling || letters[i].letter.Runs().empty()) continue;
    NumberedLetter letter = AsPlaced(letters[i], i, penHalfWidth);
    const bool covered = std::ranges::any_of(onTop, [&](const NumberedLetter& later) {
      return PartCovered(letter.around, later.around) > kCovered;
    });
    if (!covered) onTop.push_back(std::move(letter));
  }
  std::ranges::reverse(onTop);
  return onTop;
}

/// A disc as ink: what keeps half a pen's width away from the ring keeps off the disc.
StrokePath RingOf(const StrokeNumber& number, double penHalfWidth) {
  constexpr int kParts = 40;
  const double radius = std::max(0.0, number.radius - penHalfWidth);
  StrokePath ring;
  for (int i = 0; i < kParts; ++i) {
    const double angle = 2 * std::numbers::pi * i / kParts;
    ring.points.push_back(
        {number.centre.x + radius * std::cos(angle), number.centre.y + radius * std::sin(angle)});
  }
  return ring;
}

}  // namespace

std::vector<PageNumber> NumbersOf(const Page& page, const NumberRule& rule) {
  const std::vector<NumberedLetter> letters = LettersOnTop(page.Letters(), rule.penHalfWidth);
  std::vector<PageNumber> numbers;
  std::vector<StrokePath> discs;
  for (const NumberedLetter& letter : letters) {
    std::vector<StrokePath> obstacles = discs;
    for (const NumberedLetter& other : letters) {
      if (other.index == letter.index) continue;
      obstacles.insert(obstacles.end(), other.strokes.begin(), other.strokes.end());
    }
    std::vector<StrokeNumber> places = PlaceNumbers(letter.strokes, rule, obstacles);
    for (std::size_t i = 0; i < places.size(); ++i) {
      if (places[i].radius == 0) continue;
      discs.push_back(RingOf(places[i], rule.penHalfWidth));
      numbers.push_back({.letter = letter.index, .stroke = i, .place = std::move(places[i])});
    }
  }
  return numbers;
}

Player::Where FirstNumbered(const Page& page, const Player::Where& stands) {
  const auto letters = page.Letters();
  std::size_t next = stands.letter;
  while (next < letters.size() && letters[next].ruling) ++next;
  if (next == letters.size()) return {};
  if (next != stands.letter) return {.letter = next};
  return {.letter = next, .stroke = stands.stroke + (stands.begun ? 1 : 0)};
}

}  // namespace bramlee
