// What a stroke is taken for when it is written wrongly.
#pragma once

#include <span>

#include "strokes/letter_shape.h"

namespace bramlee {

// Whether ink that keeps near a way `right` is clearly nearer to what children write in its place:
// a corridor that is wide enough for a small child lets that pass where a stroke is small or flat.
// In units; ink and right have points.

/// Whether it is nearer to the stroke that follows; none when `next` has no points.
bool LooksLikeNext(std::span<const Point> ink, std::span<const Point> right,
                   std::span<const Point> next);

/// Whether it is nearer to the same stroke backwards, mirrored, straight where it is curved, curved
/// to the other side, or with its loop left out or the other way round. Where the ink lies as a
/// whole does not matter.
bool LooksMisshapen(std::span<const Point> ink, std::span<const Point> right);

}  // namespace bramlee
