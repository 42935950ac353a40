// What a stroke is taken for when it is written wrongly.
#pragma once

#include <span>

#include "strokes/letter_shape.h"

namespace bramlee {

/// A stroke that may be begun instead of the one that is on.
using OtherStroke = std::span<const Point>;

/// Whether ink that keeps near the way `right` is clearly nearer to what children write in its
/// place: the same backwards, mirrored, straight where it is curved, curved to the other side, with
/// its loop left out or the other way round, or the stroke `next`, if any. A corridor that is wide
/// enough for a small child lets these pass where a stroke is small or flat. But for `next`, where
/// the ink lies as a whole does not matter. In units; ink and right have points.
bool LooksLikeAnother(std::span<const Point> ink, std::span<const Point> right, OtherStroke next);

}  // namespace bramlee
