// Children's hands for tests: the same ones each time, worked out from what is known of children.
#pragma once

#include <cstdint>
#include <optional>
#include <random>
#include <vector>

#include "tests/writing/pen_marks.h"

namespace bramlee {

/// The same figures for the same seed with every standard library.
class Chance {
 public:
  explicit Chance(std::uint32_t seed) : engine_(seed) {}
  /// From `least` to `most`, each figure as likely.
  double Between(double least, double most);
  /// About 0, in the manner of errors.
  double Error(double sigma);

 private:
  std::mt19937 engine_;
};

/// How a child of some age traces; lengths in units, sigmas where not said otherwise.
struct ChildHand {
  const char* name;
  double start;      ///< how far it misses the start, in any direction
  double deviation;  ///< how far it strays sideways from the stroke, in waves of 25 to 120 units
  double rounding;   ///< how far from a corner it begins to turn
  double end;        ///< how far it goes over the end or stops short of it
};

inline constexpr ChildHand kExact{"exact", 0, 0, 0, 0};
inline constexpr ChildHand kSix{"age 6", 4, 3, 2, 4};
inline constexpr ChildHand kFive{"age 5", 6, 4.5, 3, 6};
inline constexpr ChildHand kFour{"age 4", 8, 6, 4, 8};

/// The way of such a hand along a right one: also how far apart its points are is by chance.
Way DrawnBy(const ChildHand& hand, const Way& right, Chance& chance);

/// What children do instead of writing a stroke as it is.
enum class Wrong {
  Backwards,
  NextStroke,
  Half,
  Mirrored,
  MirroredWithLetter,
  Scribble,
  Tap,
  Straight,
  OtherWayRound,
  LoopLeftOut
};
inline constexpr Wrong kWrongs[] = {
    Wrong::Backwards,          Wrong::NextStroke, Wrong::Half, Wrong::Mirrored,
    Wrong::MirroredWithLetter, Wrong::Scribble,   Wrong::Tap,  Wrong::Straight,
    Wrong::OtherWayRound,      Wrong::LoopLeftOut};
const char* NameOf(Wrong wrong);

/// The stroke of that index drawn wrongly by an exact hand. Nothing where that is no wrong: where
/// it cannot be told from a right one by how far a child's hand misses anyway.
std::optional<Way> DrawnWrongly(Wrong wrong, const std::vector<Way>& letter, std::size_t stroke,
                                Chance& chance);

/// How far apart two ways are at least somewhere, however fast one goes along either.
double Apart(const Way& one, const Way& other);

}  // namespace bramlee
