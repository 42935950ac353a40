#include "tests/book/overlap.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace bramlee {
namespace {

constexpr double kStretch = 1.25;        ///< how much more one axis may be scaled than the other
constexpr double kPen = 10.0 / 150;      ///< width of the pen, in heights of a letter
constexpr std::size_t kFitPoints = 100;  ///< of each line, for the fit
constexpr int kRounds = 25;
constexpr int kGrid = 150;  ///< cells of the height that the overlap is counted in

struct Transform {
  double scaleX = 1, scaleY = 1;
  double shiftX = 0, shiftY = 0;

  Point operator()(const Point& p) const {
    return {.x = p.x * scaleX + shiftX, .y = p.y * scaleY + shiftY};
  }
};

CentreLine Laid(const CentreLine& line, const Transform& transform) {
  CentreLine laid;
  for (const Point& point : line) laid.push_back(transform(point));
  return laid;
}

/// For each point of two lines the nearest one of the other, and its distance.
struct Neighbours {
  std::vector<std::size_t> ofLine, ofOther;
  std::vector<double> fromLine, fromOther;

  Neighbours(const CentreLine& line, const CentreLine& other)
      : ofLine(line.size()),
        ofOther(other.size()),
        fromLine(line.size(), std::numeric_limits<double>::max()),
        fromOther(other.size(), std::numeric_limits<double>::max()) {
    for (std::size_t i = 0; i < line.size(); ++i) {
      for (std::size_t k = 0; k < other.size(); ++k) {
        const double dx = line[i].x - other[k].x;
        const double dy = line[i].y - other[k].y;
        const double apart = dx * dx + dy * dy;
        if (apart < fromLine[i]) fromLine[i] = apart, ofLine[i] = k;
        if (apart < fromOther[k]) fromOther[k] = apart, ofOther[k] = i;
      }
    }
  }

  /// The mean of both ways.
  double Distance() const { return (Mean(fromLine) + Mean(fromOther)) / 2; }

 private:
  static double Mean(const std::vector<double>& squares) {
    double sum = 0;
    for (const double square : squares) sum += std::sqrt(square);
    return sum / static_cast<double>(squares.size());
  }
};

/// Least squares on both axes, from points of the line to their partners on the other.
class Fit {
 public:
  void Add(const Point& from, const Point& to, double weight) {
    x_.Add(from.x, to.x, weight);
    y_.Add(from.y, to.y, weight);
  }

  Transform Best() const {
    const double both = (x_.Joint() + y_.Joint()) / std::max(x_.Spread() + y_.Spread(), 1e-9);
    const auto within = [both](const Axis& axis) {
      const double own = axis.Spread() > 1e-6 ? axis.Joint() / axis.Spread() : both;
      return std::clamp(own, both / kStretch, both * kStretch);
    };
    const double scaleX = within(x_);
    const double scaleY = within(y_);
    return {scaleX, scaleY, x_.MeanTo() - scaleX * x_.MeanFrom(),
            y_.MeanTo() - scaleY * y_.MeanFrom()};
  }

 private:
  struct Axis {
    double weight = 0, from = 0, to = 0, joint = 0, square = 0;

    void Add(double f, double t, double w) {
      weight += w, from += w * f, to += w * t, joint += w * f * t, square += w * f * f;
    }
    double MeanFrom() const { return from / weight; }
    double MeanTo() const { return to / weight; }
    double Joint() const { return joint - from * to / weight; }
    double Spread() const { return square - from * from / weight; }
  };
  Axis x_, y_;
};

struct Frame {
  double left, top, width, height;
};

Frame FrameOf(const CentreLine& line) {
  const auto [left, right] = std::ranges::minmax(line, {}, &Point::x);
  const auto [top, bottom] = std::ranges::minmax(line, {}, &Point::y);
  return {left.x, top.y, right.x - left.x, bottom.y - top.y};
}

/// The middles over each other, in that scale.
Transform Centred(const Frame& from, const Frame& to, double scale) {
  return {scale, scale, to.left + to.width / 2 - scale * (from.left + from.width / 2),
          to.top + to.height / 2 - scale * (from.top + from.height / 2)};
}

/// Whether both lay the line's ends within a small part of a pixel of a printed sign.
bool AreClose(const Transform& a, const Transform& b, const CentreLine& line) {
  const auto near = [&](const Point& point) { return DistanceBetween(a(point), b(point)) < 0.05; };
  return near(line.front()) && near(line.back());
}

/// Goes on from a first place to the nearest best one: each point draws its partner.
Transform Settled(const CentreLine& line, const CentreLine& other, Transform transform) {
  for (int round = 0; round < kRounds; ++round) {
    const Neighbours near(Laid(line, transform), other);
    Fit fit;
    const double weight = 1.0 / static_cast<double>(line.size());
    const double back = 1.0 / static_cast<double>(other.size());
    for (std::size_t i = 0; i < line.size(); ++i) fit.Add(line[i], other[near.ofLine[i]], weight);
    for (std::size_t k = 0; k < other.size(); ++k) fit.Add(line[near.ofOther[k]], other[k], back);
    const Transform next = fit.Best();
    if (AreClose(transform, next, line)) return next;
    transform = next;
  }
  return transform;
}

/// As wide, as high, and as long from corner to corner.
std::vector<double> FirstScales(const Frame& from, const Frame& to) {
  std::vector<double> scales{std::hypot(to.width, to.height) /
                             std::max(std::hypot(from.width, from.height), 1e-9)};
  if (from.width > 1e-6) scales.push_back(to.width / from.width);
  if (from.height > 1e-6) scales.push_back(to.height / from.height);
  return scales;
}

Transform BestFit(const CentreLine& line, const CentreLine& other) {
  Transform best;
  double least = std::numeric_limits<double>::max();
  const Frame from = FrameOf(line);
  const Frame to = FrameOf(other);
  for (const double scale : FirstScales(from, to)) {
    if (scale <= 0) continue;
    const Transform fit = Settled(line, other, Centred(from, to, scale));
    const double distance = Neighbours(Laid(line, fit), other).Distance();
    if (distance < least) least = distance, best = fit;
  }
  return best;
}

/// Ink on a grid of that many cells to a letter's height.
class Grid {
 public:
  Grid(const Frame& frame, double cell)
      : left_(frame.left - kMargin * cell),
        top_(frame.top - kMargin * cell),
        cell_(cell),
        columns_(static_cast<int>(frame.width / cell) + 2 * kMargin),
        rows_(static_cast<int>(frame.height / cell) + 2 * kMargin),
        cells_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_)) {}

  /// A disc of that radius, in cells, on each point.
  void Paint(const CentreLine& line, double radius, unsigned char colour) {
    for (const Point& point : line) {
      const double x = (point.x - left_) / cell_;
      const double y = (point.y - top_) / cell_;
      const auto last = static_cast<int>(std::floor(y + radius));
      for (auto row = static_cast<int>(std::ceil(y - radius)); row <= last; ++row) {
        const double half = std::sqrt(std::max(0.0, radius * radius - (row - y) * (row - y)));
        MarkRow(row, static_cast<int>(std::ceil(x - half)), static_cast<int>(std::floor(x + half)),
                colour);
      }
    }
  }

  std::ptrdiff_t Count(unsigned char colour) const {
    return std::ranges::count_if(
        cells_, [colour](unsigned char cell) { return (cell & colour) == colour; });
  }
  std::ptrdiff_t CountInk() const {
    return std::ranges::count_if(cells_, [](unsigned char cell) { return cell != 0; });
  }

 private:
  static constexpr int kMargin = 40;

  void MarkRow(std::ptrdiff_t row, std::ptrdiff_t from, std::ptrdiff_t to, unsigned char colour) {
    if (row < 0 || row >= rows_) return;
    to = std::min<std::ptrdiff_t>(to, columns_ - 1);
    for (from = std::max<std::ptrdiff_t>(from, 0); from <= to; ++from) {
      cells_[static_cast<std::size_t>(row * columns_ + from)] |= colour;
    }
  }

  double left_, top_, cell_;
  int columns_, rows_;
  std::vector<unsigned char> cells_;
};

}  // namespace

double Overlap(const CentreLine& line, const CentreLine& other) {
  const Transform fit = BestFit(Thinned(line, kFitPoints), Thinned(other, kFitPoints));
  const double size = SizeOf(other);
  constexpr unsigned char kLine = 1;
  constexpr unsigned char kOther = 2;
  Grid grid(FrameOf(other), size / kGrid);
  grid.Paint(Laid(line, fit), kPen * kGrid / 2, kLine);
  grid.Paint(other, kPen * kGrid / 2, kOther);
  return static_cast<double>(grid.Count(kLine | kOther)) / static_cast<double>(grid.CountInk());
}

double OverlapInBox(const CentreLine& line, const CentreLine& other) {
  constexpr double kPenInBox = 0.15;
  const Frame from = FrameOf(line);
  const Frame to = FrameOf(other);
  const auto scale = [](double own, double wanted) { return own > 1e-6 ? wanted / own : 1; };
  const double x = scale(from.width, to.width);
  const double y = scale(from.height, to.height);
  constexpr unsigned char kLine = 1;
  constexpr unsigned char kOther = 2;
  Grid grid(to, std::max(to.height, 1.0) / kGrid);
  grid.Paint(Laid(line, {x, y, to.left - x * from.left, to.top - y * from.top}),
             kPenInBox * kGrid / 2, kLine);
  grid.Paint(other, kPenInBox * kGrid / 2, kOther);
  const auto both = static_cast<double>(grid.Count(kLine | kOther));
  return 2 * both /
         (static_cast<double>(grid.Count(kLine)) + static_cast<double>(grid.Count(kOther)));
}

double MedianOf(std::vector<double> overlaps) {
  if (overlaps.empty()) return 0;
  std::ranges::sort(overlaps);
  const std::size_t half = overlaps.size() / 2;
  return overlaps.size() % 2 != 0 ? overlaps[half] : (overlaps[half - 1] + overlaps[half]) / 2;
}

}  // namespace bramlee
