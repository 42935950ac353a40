#include "writing/moving_svg.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "strokes/svg_path.h"
#include "writing/timeline.h"

namespace bramlee {
namespace {

/// Runs that part by more are drawn as paths of their own: a line between them would show beside
/// the round ends of the pen.
constexpr double kJoined = 1;

/// So much of the dash before a path begins keeps its round end out of sight, in sheet pixels.
constexpr double kOutOfSight = 0.1;

/// An arrow's shaft has points a pixel apart; so many of them are a part of its line.
constexpr std::size_t kShaftPart = 4;

/// What is drawn in one go: a stroke, or a part of one.
struct Piece {
  struct Part {
    double end = 0;     ///< seconds from the letter's begin
    double length = 0;  ///< of the piece up to there, in sheet pixels
  };
  SvgPath path;
  double begin = 0;  ///< seconds
  std::vector<Part> parts;
  Point at;
  double Length() const { return parts.back().length; }
};

std::vector<Piece> PiecesOf(const Letter& letter, const Timeline& times, const Point& origin) {
  std::vector<Piece> pieces;
  for (const PenStroke& stroke : letter.PenStrokes()) {
    bool goesOn = false;
    for (std::size_t i = stroke.firstRun; i < stroke.firstRun + stroke.runs; ++i) {
      const std::optional<RunTrack> track = TrackOf(letter.Runs()[i], letter.Step());
      if (!track) continue;
      const double gap = goesOn ? DistanceBetween(pieces.back().at, track->ends.begin) : 0;
      if (!goesOn || gap > kJoined) {
        pieces.push_back(
            {.path = SvgPath(origin), .begin = times.runs[i].begin, .parts = {}, .at = {}});
      }
      Piece& piece = pieces.back();
      const double before = piece.parts.empty() ? 0 : piece.Length() + gap;
      piece.path.Follow(*track);
      piece.parts.push_back({.end = times.runs[i].End(), .length = before + track->length});
      piece.at = track->ends.end;
      goesOn = true;
    }
  }
  return pieces;
}

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char each : text) {
    if (each == '<') {
      escaped += "&lt;";
    } else if (each == '&') {
      escaped += "&amp;";
    } else {
      escaped += each;
    }
  }
  return escaped;
}

/// "a", "b" ... "z", "ba": as short as names can be.
std::string NameOf(std::size_t number) {
  std::string name(1, static_cast<char>('a' + number % 26));
  return number < 26 ? name : NameOf(number / 26) + name;
}

/// Writes the text from its beginning to its end.
class Writer {
 public:
  Writer(const Letter& letter, const MovingSvg& look)
      : look_(look),
        times_(TimelineOf(letter, look.rate)),
        origin_{look.view.x, look.view.y},
        pieces_(PiecesOf(letter, times_, origin_)),
        cycle_(times_.seconds + look.rest) {
    for (const Piece& piece : pieces_) dash_ = std::max(dash_, std::ceil(piece.Length()) + 1);
  }

  std::string Write() {
    const double height = look_.width * look_.view.height / look_.view.width;
    text_ = R"(<svg xmlns="http://www.w3.org/2000/svg" role="img" width=")" +
            std::to_string(look_.width) + R"(" height=")" + SvgNumber(height) +
            R"(" viewBox="0 0 )" + SvgNumber(look_.view.width) + ' ' +
            SvgNumber(look_.view.height) + R"("><title>)" + Escaped(look_.title) + "</title>";
    AddMotion();
    if (!look_.ground.empty()) {
      text_ += R"(<rect width="100%" height="100%" fill=")" + look_.ground + R"("/>)";
    }
    AddStrokes();
    AddNumbers();
    return text_ + "</svg>\n";
  }

 private:
  /// A time as a part of the cycle.
  std::string At(double second) const { return SvgNumber(second / cycle_ * 100) + '%'; }
  /// The name of a number's motion, behind those of the pieces.
  std::string NumberName(std::size_t stroke) const { return NameOf(pieces_.size() + stroke); }

  /// One dash, longer than any piece, comes in along the path as its offset goes down.
  void AddMotion() {
    if (pieces_.empty()) return;
    const std::string motion =
        "{animation:" + SvgNumber(std::max(cycle_, 0.01)) + "s linear infinite}";
    text_ += "<style>@media(prefers-reduced-motion:no-preference){path" +
             std::string(look_.numbers.empty() ? "" : ",.n") + motion +
             "}path{stroke-dasharray:" + SvgNumber(dash_) + '}';
    for (std::size_t i = 0; i < pieces_.size(); ++i) AddPieceFrames(NameOf(i), pieces_[i]);
    for (std::size_t i = 0; i < look_.numbers.size(); ++i) AddNumberFrames(i);
    text_ += "</style>";
  }

  void AddOffset(double offset) { text_ += "{stroke-dashoffset:" + SvgNumber(offset) + '}'; }

  void AddPieceFrames(const std::string& name, const Piece& piece) {
    text_ += "@keyframes " + name + "{0%," + At(piece.begin);
    AddOffset(dash_ + kOutOfSight);
    for (std::size_t i = 0; i + 1 < piece.parts.size(); ++i) {
      text_ += At(piece.parts[i].end);
      AddOffset(dash_ - piece.parts[i].length);
    }
    text_ += At(piece.parts.back().end) + ",to";
    AddOffset(std::floor(dash_ - piece.Length()));
    text_ += '}';
  }

  /// Two times a hundredth of a percent apart make a step of it.
  void AddNumberFrames(std::size_t stroke) {
    constexpr double kStep = 0.0001;
    const double begin = times_.strokes[stroke].begin;
    text_ += "@keyframes " + NumberName(stroke) + "{0%," + At(begin) + "{visibility:visible}" +
             At(begin + cycle_ * kStep) + ',' + At(times_.seconds) + "{visibility:hidden}" +
             At(times_.seconds + cycle_ * kStep) + ",to{visibility:visible}}";
  }

  void AddStrokes() {
    text_ += R"(<g fill="none" stroke=")" + look_.ink + R"(" stroke-width=")" +
             SvgNumber(look_.penWidth) + R"(" stroke-linecap="round" stroke-linejoin="round">)";
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
      text_ += R"(<path style="animation-name:)" + NameOf(i) + R"(" d=")" + pieces_[i].path.Text() +
               R"("/>)";
    }
    text_ += "</g>";
  }

  std::string PlaceText(const Point& point) const {
    return SvgNumber(point.x - origin_.x) + ' ' + SvgNumber(point.y - origin_.y);
  }

  template <class Points>
  std::string PointsText(const Points& points, std::size_t apart) const {
    std::string text;
    for (std::size_t i = 0; i < points.size(); i += apart) text += PlaceText(points[i]) + ' ';
    return text + PlaceText(points.back());
  }

  void AddNumbers() {
    if (look_.numbers.empty()) return;
    text_ += R"(<g fill=")" + look_.sign + R"(" stroke=")" + look_.rim +
             R"(" stroke-linejoin="round" stroke-linecap="round" paint-order="stroke")"
             R"( font-family="sans-serif" font-weight="bold" text-anchor="middle">)";
    for (std::size_t i = 0; i < look_.numbers.size(); ++i) {
      if (look_.numbers[i].radius == 0) continue;
      text_ += R"(<g class="n" style="animation-name:)" + NumberName(i) + R"(">)";
      AddArrow(look_.numbers[i].arrow);
      AddDisc(look_.numbers[i], i + 1);
      text_ += "</g>";
    }
    text_ += "</g>";
  }

  void AddArrow(const StrokeArrow& arrow) {
    if (!arrow.IsDrawn()) return;
    const std::string shaft =
        R"(<polyline fill="none" points=")" + PointsText(arrow.shaft, kShaftPart) + '"';
    text_ += shaft + R"( stroke-width="4"/><polygon stroke-width="2" points=")" +
             PointsText(arrow.head, 1) + R"("/>)" + shaft + R"( stroke-width="2" stroke=")" +
             look_.sign + R"("/>)";
  }

  void AddDisc(const StrokeNumber& number, std::size_t text) {
    const double size = number.radius * (text > 9 ? 1.1 : 1.5);
    const Point foot{number.centre.x, number.centre.y + size * 0.36};
    text_ += R"(<circle r=")" + SvgNumber(number.radius) + R"(" cx=")" +
             SvgNumber(number.centre.x - origin_.x) + R"(" cy=")" +
             SvgNumber(number.centre.y - origin_.y) + R"("/><text stroke="none" fill=")" +
             look_.rim + R"(" font-size=")" + SvgNumber(size) + R"(" x=")" +
             SvgNumber(foot.x - origin_.x) + R"(" y=")" + SvgNumber(foot.y - origin_.y) + R"(">)" +
             std::to_string(text) + "</text>";
  }

  const MovingSvg& look_;
  const Timeline times_;
  const Point origin_;
  const std::vector<Piece> pieces_;
  const double cycle_;
  double dash_ = 1;
  std::string text_;
};

}  // namespace

std::string MovingSvgOf(const Letter& letter, const MovingSvg& look) {
  return Writer(letter, look).Write();
}

}  // namespace bramlee
