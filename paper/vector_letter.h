// A letter as vectors: lines and true arcs, sharp at any size.
#pragma once

#include <QColor>
#include <QPainterPath>
#include <cstddef>
#include <limits>
#include <span>

#include "strokes/letter.h"
#include "strokes/stroke_numbers.h"

class QPainter;

namespace bramlee {

// All of it in the letter's sheet pixels: set the painter's transform for another size and place.
// Painting leaves the painter as it was.

/// All strokes of a letter.
inline constexpr std::size_t kAllStrokes = std::numeric_limits<std::size_t>::max();

/// The middle of the pen's way in one of the letter's pen strokes, from 0; empty for one that plots
/// nothing. A run that begins where the one before ended goes on with it, others begin anew.
QPainterPath StrokePathOf(const Letter& letter, std::size_t stroke);

/// The first `strokes` of them in one path.
QPainterPath LetterPathOf(const Letter& letter, std::size_t strokes = kAllStrokes);

/// How a letter is painted.
struct LetterLook {
  QColor ink = Qt::black;
  double penWidth = 10;  ///< as wide as on the boards

  std::size_t from = 0;            ///< the first stroke that is painted
  std::size_t upTo = kAllStrokes;  ///< the one behind the last
};

/// Paints whole strokes, with round ends.
void PaintLetter(QPainter& painter, const Letter& letter, const LetterLook& look = {});

/// Paints the rim of what PaintLetter would fill, the strokes united, inside white; the rim lies
/// within the ink and has that width.
void PaintHollow(QPainter& painter, const Letter& letter, const LetterLook& look, double rimWidth);

/// Paints where each stroke begins: a white dot in the ink.
void PaintBegins(QPainter& painter, const Letter& letter, const LetterLook& look = {});

/// Paints numbers and arrows of the strokes `from` to before `upTo`, where PlaceNumbers put them.
/// Their colours are `look.ink` with a white rim.
void PaintSigns(QPainter& painter, std::span<const StrokeNumber> numbers,
                const LetterLook& look = {});

}  // namespace bramlee
