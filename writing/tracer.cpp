#include "writing/tracer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace bramlee {
namespace {

/// How much wider the corridor is after kMissesToWiden misses.
constexpr double kWider = 1.5;
constexpr int kMissesToWiden = static_cast<int>(TraceHelp::Wider);
/// After so many the stroke is written for the child.
constexpr int kMostMisses = static_cast<int>(TraceHelp::Written);

/// How much further than half the corridor's width from its place the pen may come down: a small
/// child hits a point less well than it follows a line.
constexpr double kFurtherAtStart = 1.3;

/// On a short stroke the corridor narrows to this share of the stroke, but not below this share of
/// itself: a corridor as wide as the stroke is long would let anything pass.
constexpr double kRadiusOfStroke = 0.4;
constexpr double kRadiusOfItself = 0.75;

struct LevelRecord {
  const char* name;
  double radius;  ///< half the corridor's width, in units
};

constexpr LevelRecord kLevels[] = {
    {"strict",  12},
    {"normal",  16},
    {"gentle",  20},
    {"toddler", 24}
};

const LevelRecord& RecordOf(TraceLevel level) {
  return kLevels[static_cast<std::size_t>(level)];
}

bool IsFinite(const Point& place) {
  return std::isfinite(place.x) && std::isfinite(place.y);
}

}  // namespace

const char* NameOf(TraceLevel level) {
  return RecordOf(level).name;
}

const char* NameOf(TraceVerdict verdict) {
  constexpr const char* kNames[] = {"done",     "resume", "elsewhere",
                                    "reversed", "astray", "scribble"};
  return kNames[static_cast<std::size_t>(verdict)];
}

const char* NameOf(TraceHelp help) {
  constexpr const char* kNames[] = {"none", "pulse", "show", "wider", "written"};
  return kNames[static_cast<std::size_t>(help)];
}

std::optional<TraceLevel> TraceLevelNamed(std::string_view name) {
  for (const TraceLevel level : kTraceLevels) {
    if (name == NameOf(level)) return level;
  }
  return std::nullopt;
}

std::vector<GuideStroke> GuideOf(const Letter& letter, const Placing& placing) {
  const double unit = letter.Size() * placing.scale / 100;
  std::vector<GuideStroke> guide;
  for (const StrokePath& stroke : letter.Shape().strokes) {
    guide.push_back({.points = stroke.points, .unit = unit});
    for (Point& point : guide.back().points) {
      point = {point.x * placing.scale + placing.right, point.y * placing.scale + placing.down};
    }
  }
  return guide;
}

Tracer::Tracer(std::vector<GuideStroke> strokes, TraceLevel level)
    : strokes_(std::move(strokes)), level_(level) {
  for (GuideStroke& stroke : strokes_) {
    if (!std::isfinite(stroke.unit) || stroke.unit <= 0) stroke.unit = 1;
  }
  BeginStroke(0);
}

void Tracer::BeginStroke(std::size_t stroke) {
  touch_.reset();
  misses_ = 0;
  written_ = 0;
  for (stroke_ = stroke; !IsFinished(); ++stroke_) {
    path_ = GuidePath(strokes_[stroke_].points, strokes_[stroke_].unit);
    if (!path_.IsEmpty()) break;
  }
  if (IsFinished()) path_ = {};
  const bool isLast = stroke_ + 1 >= strokes_.size();
  next_ = isLast ? GuidePath() : GuidePath(strokes_[stroke_ + 1].points, strokes_[stroke_].unit);
}

Point Tracer::InUnits(const Point& place) const {
  const double unit = strokes_[stroke_].unit;
  return {place.x / unit, place.y / unit};
}

TraceRule Tracer::Rule() const {
  const double usual = RecordOf(level_).radius;
  const double least = leastRadius_ / strokes_[stroke_].unit;
  const double forStroke =
      std::min(usual, std::max(kRadiusOfItself * usual, kRadiusOfStroke * path_.Length()));
  const double wider = misses_ >= kMissesToWiden ? kWider : 1;
  return {.radius = wider * std::max(forStroke, least),
          .reach = wider * kFurtherAtStart * std::max(usual, least)};
}

void Tracer::Down(const Point& place) {
  Cancel();
  if (IsFinished()) return;
  const Point inUnits = InUnits(place);
  if (IsFinite(inUnits)) touch_.emplace(path_, written_, inUnits, Rule());
}

void Tracer::Move(const Point& place) {
  if (!touch_) return;
  const Point inUnits = InUnits(place);
  if (IsFinite(inUnits)) touch_->Move(path_, inUnits, Rule());
}

std::optional<TraceJudgement> Tracer::Up() {
  if (!touch_) return std::nullopt;
  const TraceRule rule = Rule();
  const TraceVerdict verdict = touch_->Lift(path_, next_.Points(), written_, rule);
  written_ = touch_->WrittenAfter(path_, written_, rule, verdict);
  touch_.reset();
  const bool isMiss = verdict != TraceVerdict::Done && verdict != TraceVerdict::Resume;
  if (isMiss) ++misses_;
  const TraceJudgement judgement{.stroke = stroke_,
                                 .verdict = verdict,
                                 .progress = verdict == TraceVerdict::Done ? 1 : Progress(),
                                 .misses = misses_,
                                 .help = isMiss ? HelpDue() : TraceHelp::None};
  if (verdict == TraceVerdict::Done) BeginStroke(stroke_ + 1);
  if (misses_ == kMostMisses) WriteForChild();
  return judgement;
}

void Tracer::WriteForChild() {
  if (IsFinished()) return;
  ++helped_;
  BeginStroke(stroke_ + 1);
}

void Tracer::SetLevel(TraceLevel level) {
  level_ = level;
}

void Tracer::SetLeastRadius(double sheetPixels) {
  if (std::isfinite(sheetPixels)) leastRadius_ = sheetPixels;
}

std::size_t Tracer::Reached() const {
  return touch_ && !touch_->IsElsewhere() ? touch_->Leader().At() : written_;
}

double Tracer::Progress() const {
  if (path_.Last() == 0) return 0;
  return static_cast<double>(Reached()) / static_cast<double>(path_.Last());
}

Point Tracer::PlaceToGoOn() const {
  if (IsFinished()) return {};
  const Point& inUnits = path_.Points()[Reached()];
  const double unit = strokes_[stroke_].unit;
  return {inUnits.x * unit, inUnits.y * unit};
}

double Tracer::Reach() const {
  if (IsFinished()) return 0;
  return Rule().reach * strokes_[stroke_].unit;
}

TracePen Tracer::Pen() const {
  if (!touch_) return TracePen::Up;
  if (touch_->IsElsewhere()) return TracePen::Elsewhere;
  return touch_->Leader().IsAstray() ? TracePen::Astray : TracePen::OnWay;
}

}  // namespace bramlee
