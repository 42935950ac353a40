#include "tools/strokes/path_surface.h"

#include <cmath>

namespace bramlee {
namespace {

/// Dots this far apart read as one line, in sheet pixels: a pen 10 wide leaves notches of a sixth
/// of a pixel between them.
constexpr double kJoined = 2.5;

/// How far apart the points of an arc's path stand, in sheet pixels: on the smallest circle, of
/// radius 2, this is a fifth of a pixel off.
constexpr double kSpacing = 1;

double Distance(QPointF a, QPointF b) {
  return std::hypot(a.x() - b.x(), a.y() - b.y());
}

QString Told(char command, QPointF point) {
  const auto number = [](double value) { return QString::number(std::round(value * 1000) / 1000); };
  return QLatin1Char(command) + number(point.x()) + u' ' + number(point.y());
}

}  // namespace

void PathSurface::BeginRun(Primitive primitive, std::span<const double> /*arguments*/) {
  path_.clear();
  straight_ = primitive != Primitive::ArcStroke;
}

void PathSurface::JoinTo(QPointF dot) {
  path_ += Told('L', dot);
  joined_ = dot;
}

void PathSurface::PSet(float x, float y) {
  const QPointF dot(static_cast<double>(x), static_cast<double>(y));
  if (path_.isEmpty() || Distance(dot, dot_) > kJoined) {
    if (!path_.isEmpty()) JoinTo(dot_);
    path_ += Told('M', dot);
    joined_ = dot;
  } else if (!straight_ && Distance(dot, joined_) >= kSpacing) {
    JoinTo(dot);
  }
  dot_ = dot;
}

void PathSurface::EndRun() {
  if (path_.isEmpty()) return;
  JoinTo(dot_);
  paths_.append(path_);
}

}  // namespace bramlee
