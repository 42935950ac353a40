#include "companions/trace/trace_view.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "writing/trace_way.h"

namespace bramlee {
namespace {

constexpr int kPulseFrames = 25;
constexpr int kPulses = 3;
constexpr int kRestFrames = 20;         ///< how long a shown stroke stays whole
constexpr qsizetype kPointsAFrame = 3;  ///< points stand a sheet pixel apart
constexpr float kShownAlpha = 0.7F;

QPolygonF LineOf(std::span<const Point> points) {
  QPolygonF line;
  for (const Point& point : points) line << QPointF(point.x, point.y);
  return line;
}

QColor Pale(const QColor& colour, const QColor& ground) {
  constexpr double kShare = 0.24;  // of the colour; the rest is the ground
  const auto mixed = [](int part, int groundPart) {
    return static_cast<int>(std::lround(kShare * part + (1 - kShare) * groundPart));
  };
  return {mixed(colour.red(), ground.red()), mixed(colour.green(), ground.green()),
          mixed(colour.blue(), ground.blue())};
}

}  // namespace

TraceView::TraceView(Sheet& sheet) : sheet_(sheet) {
  sheet_.AddLayerBeneath(guide_);
  sheet_.AddLayerAbove(marks_);
  frames_.setInterval(kFrameMs);
  connect(&frames_, &QTimer::timeout, this, [this] { NextFrame(); });
}

void TraceView::ShowGuide(std::span<const GuideStroke> strokes, const QColor& colour,
                          const QColor& ground) {
  std::vector<QPolygonF> lines;
  for (const GuideStroke& stroke : strokes) lines.push_back(LineOf(stroke.points));
  guide_.Show(std::move(lines), Pale(colour, ground));
  sheet_.UpdateBeneath();
}

void TraceView::HideGuide() {
  guide_.Hide();
  sheet_.UpdateBeneath();
}

void TraceView::ShowWay(const Tracer& tracer, int number, const StrokeNumber& sign, Hand hand) {
  if (tracer.IsFinished()) return HideWay();
  const std::span<const Point> points = tracer.Strokes()[tracer.Stroke()].points;
  const std::span<const Point> rest = RestOfStroke(tracer);
  const bool atStart = rest.size() == points.size();
  const StrokeNumber here{
      .centre = {}, .radius = 0, .arrow = ArrowToGoOn(rest, hand), .clean = false};
  marks_.SetWay(
      TraceMarks::Way{.rest = LineOf(rest), .number = number, .sign = atStart ? sign : here});
  sheet_.update();
}

void TraceView::HideWay() {
  marks_.SetWay({});
  sheet_.update();
}

void TraceView::Pulse() {
  Start(Moves::Pulse);
}

void TraceView::ShowStroke(const GuideStroke& stroke, const QColor& colour) {
  Start(Moves::Stroke);
  shown_ = LineOf(stroke.points);
  shownColour_ = colour;
  shownColour_.setAlphaF(kShownAlpha);
}

void TraceView::Start(Moves moves) {
  Stop();
  moves_ = moves;
  frame_ = 0;
  frames_.start();
}

void TraceView::Stop() {
  frames_.stop();
  moves_ = Moves::None;
  marks_.SetPulse(0);
  marks_.SetShown({}, {});
  sheet_.update();
}

void TraceView::NextFrame() {
  ++frame_;
  sheet_.update();
  if (moves_ == Moves::Pulse) {
    if (frame_ >= kPulseFrames * kPulses) return Stop();
    return marks_.SetPulse(std::pow(std::sin(std::numbers::pi * frame_ / kPulseFrames), 2));
  }
  const qsizetype points = frame_ * kPointsAFrame;
  if (points > shown_.size() + kRestFrames * kPointsAFrame) return Stop();
  marks_.SetShown(shown_.first(std::min(points, shown_.size())), shownColour_);
}

void TraceView::BeginInk(QPointF place) {
  marks_.BeginInk(place);
  sheet_.update();
}

void TraceView::GoOnWithInk(QPointF place) {
  marks_.GoOnWithInk(place);
  sheet_.update(sheet_.FromSheet().mapRect(marks_.LastInk()).toAlignedRect());
}

void TraceView::EndInk(bool missed) {
  marks_.EndInk(missed);
}

void TraceView::WipeInk() {
  marks_.WipeInk();
  sheet_.update();
}

}  // namespace bramlee
