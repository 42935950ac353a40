#include "film/letter_film.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ink/stamps.h"
#include "ink/stroke_signs.h"
#include "letters/letter_names.h"
#include "strokes/run_track.h"
#include "writing/moving_svg.h"

namespace bramlee {
namespace {

/// Around the ink, in sheet pixels.
constexpr double kMargin = 20;
/// A square holds a capital, 200 high, with its margins. Smaller letters get no larger scale.
constexpr double kLeastSide = 250;

/// Radius of a number's disc, in sheet pixels: as large as boards have it at most.
constexpr double kDiscRadius = 12;
/// Signs keep so far from the picture's edge.
constexpr double kSignMargin = 2;

constexpr double kFar = 1e9;

struct Sides {
  double left, top, right, bottom;
  void Add(const Point& point, double around) {
    left = std::min(left, point.x - around), right = std::max(right, point.x + around);
    top = std::min(top, point.y - around), bottom = std::max(bottom, point.y + around);
  }
};

/// Of an arc, where it begins and ends and where it is furthest up, down, left and right.
void AddArc(Sides& sides, const RunTrack& arc, double around) {
  constexpr double kQuarter = 90;
  sides.Add(arc.ends.begin, around);
  sides.Add(arc.ends.end, around);
  const double first = std::min(arc.angle, arc.angle + arc.turn);
  const double last = std::max(arc.angle, arc.angle + arc.turn);
  for (double at = std::ceil(first / kQuarter) * kQuarter; at <= last; at += kQuarter) {
    sides.Add(arc.OnArc((at - arc.angle) / arc.turn), around);
  }
}

/// Around the ink. Letter::Bounds() looks at each dot, which takes longer than all of an SVG.
Sides SidesOf(const Letter& letter) {
  const double around = kDrawWidth / 2 + kMargin;
  Sides sides{kFar, kFar, -kFar, -kFar};
  for (const Run& run : letter.Runs()) {
    const std::optional<RunTrack> track = TrackOf(run, letter.Step());
    if (!track) continue;
    if (track->radius != 0 && track->turn != 0) {
      AddArc(sides, *track, around);
    } else {
      sides.Add(track->ends.begin, around);
      sides.Add(track->ends.end, around);
    }
  }
  return sides.left < sides.right ? sides : Sides{0, 0, 0, 0};
}

/// Pictures of it have whole pixels, so many of them in its width.
Box ViewOf(const Letter& letter, const std::vector<StrokeNumber>& numbers, int pixels) {
  Sides sides = SidesOf(letter);
  for (const StrokeNumber& number : numbers) {
    if (number.radius == 0) continue;
    sides.Add(number.centre, number.radius + kSignMargin);
    for (const Point& point : number.arrow.shaft) sides.Add(point, 2 * kSignMargin);
    if (!number.arrow.IsDrawn()) continue;
    for (const Point& point : number.arrow.head) sides.Add(point, 2 * kSignMargin);
  }
  const double width = sides.right - sides.left;
  const double height = sides.bottom - sides.top;
  const double side = std::max({width, height, kLeastSide});
  const bool isWord = !letter.Text().empty();
  const double pixel = side / std::max(pixels, 1);
  const double high = isWord ? std::ceil(std::max(height, kLeastSide) / pixel) * pixel : side;
  return {.x = sides.left - (side - width) / 2,
          .y = sides.top - (high - height) / 2,
          .width = side,
          .height = high};
}

/// Records the digits of numbers: a letter that is recorded in one thread must not be in another.
void RecordDigits() {
  QImage nothing(1, 1, QImage::Format_RGB32);
  QPainter painter(&nothing);
  PaintNumber(painter, 0, {.centre = {}, .radius = 1, .arrow = {}, .clean = true}, {});
}

std::string ColourText(const std::optional<QColor>& colour) {
  return colour ? colour->name().toStdString() : std::string();
}

}  // namespace

LetterFilm::LetterFilm(Letter letter, const FilmLook& look)
    : letter_(std::move(letter)), look_(look), times_(TimelineOf(letter_, look.rate)) {
  if (look_.numbers) {
    RecordDigits();
    numbers_ = PlaceNumbers(
        letter_.Shape().strokes,
        {.discRadius = kDiscRadius, .penHalfWidth = kDrawWidth / 2, .hand = look_.hand});
  }
  view_ = ViewOf(letter_, numbers_, look_.pixels);
}

QSize LetterFilm::Pixels() const {
  return {look_.pixels, static_cast<int>(std::lround(view_.height * Scale()))};
}

QString LetterFilm::Name() const {
  if (!letter_.Text().empty()) return QString::fromStdString(letter_.Text());
  const LetterId& id = letter_.Id();
  return QString::fromStdString(LetterName(id.set, id.tile, id.form.book));
}

QString LetterFilm::Sign() const {
  if (!letter_.Text().empty()) return Name();
  const LetterId& id = letter_.Id();
  return QString::fromStdString(PrintedLetter(id.set, id.tile, id.form.book));
}

QByteArray LetterFilm::Svg() const {
  const SignColours signs;
  return QByteArray::fromStdString(MovingSvgOf(letter_, {.view = view_,
                                                         .width = look_.pixels,
                                                         .penWidth = kDrawWidth,
                                                         .ink = ColourText(look_.ink),
                                                         .ground = ColourText(look_.ground),
                                                         .title = Name().toStdString(),
                                                         .rate = look_.rate,
                                                         .rest = look_.rest,
                                                         .numbers = numbers_,
                                                         .sign = ColourText(signs.sign),
                                                         .rim = ColourText(signs.rim)}));
}

}  // namespace bramlee
