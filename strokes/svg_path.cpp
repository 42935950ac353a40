#include "strokes/svg_path.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace bramlee {
namespace {

/// A longer arc is written in parts: near half a circle and near a whole one, a hundredth of a
/// pixel at its ends moves its middle by a whole pixel.
constexpr double kLongestTurn = 120;

/// Nothing in a picture is farther off; what is more than that, or no number, cannot be rounded.
constexpr double kFarthest = 1e9;

long Rounded(double number) {
  if (std::isnan(number)) return 0;
  return std::lround(std::clamp(number, -kFarthest, kFarthest) * 100);
}

std::string Hundredths(long number) {
  std::string text = number < 0 ? "-" : "";
  const long size = std::labs(number);
  if (size >= 100 || size == 0) text += std::to_string(size / 100);
  if (size % 100 == 0) return text;
  text += '.';
  text += static_cast<char>('0' + size / 10 % 10);
  if (size % 10 != 0) text += static_cast<char>('0' + size % 10);
  return text;
}

/// A minus parts two numbers as well as a blank.
std::string Next(long number) {
  return number < 0 ? Hundredths(number) : ' ' + Hundredths(number);
}

}  // namespace

std::string SvgNumber(double number) {
  return Hundredths(Rounded(number));
}

SvgPath::Place SvgPath::PlaceOf(const Point& point) const {
  return {Rounded(point.x - origin_.x), Rounded(point.y - origin_.y)};
}

void SvgPath::Add(char command, const Place& step) {
  text_ += command + Hundredths(step.x) + Next(step.y);
}

void SvgPath::MoveTo(const Point& to) {
  at_ = PlaceOf(to);
  Add('M', at_);
}

void SvgPath::LineTo(const Point& to) {
  const Place from = std::exchange(at_, PlaceOf(to));
  const Place step{at_.x - from.x, at_.y - from.y};
  if (step.y == 0) {
    text_ += 'h' + Hundredths(step.x);
  } else if (step.x == 0) {
    text_ += 'v' + Hundredths(step.y);
  } else {
    Add('l', step);
  }
}

void SvgPath::ArcTo(const Point& to, double radius, bool clockwise) {
  const Place from = std::exchange(at_, PlaceOf(to));
  const std::string size = SvgNumber(radius);
  text_ += 'a' + size + ' ' + size + (clockwise ? " 0 0 1" : " 0 0 0") + Next(at_.x - from.x) +
           Next(at_.y - from.y);
}

void SvgPath::Follow(const RunTrack& track) {
  const Place begin = PlaceOf(track.ends.begin);
  if (text_.empty()) {
    MoveTo(track.ends.begin);
  } else if (begin.x != at_.x || begin.y != at_.y) {
    LineTo(track.ends.begin);
  }
  if (track.length == 0) {
    text_ += "h.01";
    ++at_.x;
  } else if (track.radius == 0) {
    LineTo(track.ends.end);
  } else {
    const double parts = std::max(1.0, std::ceil(std::abs(track.turn) / kLongestTurn));
    for (double part = 1; part < parts; ++part) {
      ArcTo(track.OnArc(part / parts), track.radius, track.turn < 0);
    }
    ArcTo(track.ends.end, track.radius, track.turn < 0);
  }
}

}  // namespace bramlee
