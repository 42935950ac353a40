#include "companions/numbers/number_layer.h"

#include <QPainter>
#include <algorithm>

#include "ink/stamps.h"
#include "ink/stroke_signs.h"

namespace bramlee {
namespace {

/// Radius of a disc on the screen, in logical pixels: a child reads it from a chair.
constexpr double kRadius = 12;
/// The same in sheet pixels at most and at least: larger ones find no room in small letters,
/// smaller ones look lost beside the pen.
constexpr double kLargestOnSheet = 14;
constexpr double kSmallestOnSheet = 8;

}  // namespace

void NumberLayer::PlaceFor(double scale) const {
  const Page& page = pen_.Letters();
  const Asked asked{.edition = page.Edition(),
                    .letters = page.Letters().size(),
                    .radius = std::clamp(kRadius / scale, kSmallestOnSheet, kLargestOnSheet),
                    .hand = hand_};
  if (asked == asked_) return;
  numbers_ = NumbersOf(
      page, {.discRadius = asked.radius, .penHalfWidth = kDrawWidth / 2, .hand = asked.hand});
  asked_ = asked;
}

void NumberLayer::Paint(QPainter& painter) const {
  if (!shown_) return;
  PlaceFor(painter.worldTransform().m11());
  const Player::Where first = FirstNumbered(pen_.Letters(), pen_.Stands());
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (const PageNumber& number : numbers_) {
    if (number.letter < first.letter) continue;
    if (number.letter == first.letter && number.stroke < first.stroke) continue;
    PaintNumber(painter, static_cast<int>(number.stroke + 1), number.place, {});
  }
  painter.restore();
}

}  // namespace bramlee
