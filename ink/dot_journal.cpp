#include "ink/dot_journal.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <new>
#include <unordered_set>
#include <utility>

namespace bramlee {

void DotJournal::Turn(float x, float y) {
  if (std::exchange(held_, false) && heldAlong_ >= kNear) Keep(heldX_, heldY_);
  heldAlong_ = kNever;
  const float dx = x - lastX_;
  const float dy = y - lastY_;
  const float distance = std::sqrt(dx * dx + dy * dy);
  if (distance == 0 && atWork_) return;
  MakeRoom();
  if (!atWork_ || !(distance <= kSpacing)) return Keep(x, y);
  held_ = true;
  heldX_ = x;
  heldY_ = y;
  heldAlong_ = distance;
  directionX_ = dx / distance;
  directionY_ = dy / distance;
}

void DotJournal::Flush() noexcept {
  if (std::exchange(held_, false)) Keep(heldX_, heldY_);
  heldAlong_ = kNever;
  atWork_ = false;
}

/// Lack of memory shows here, when a dot is put on the sheet. A held dot has its room from then on:
/// what ends a run or puts a pen back must not fail.
void DotJournal::MakeRoom() {
  constexpr std::size_t kFewDots = 1024;
  if (dots_.size() >= forgetAt_) ForgetCovered();
  if (dots_.size() == dots_.capacity()) dots_.reserve(std::max(kFewDots, 2 * dots_.size()));
}

void DotJournal::Keep(float x, float y) {
  atWork_ = true;
  lastX_ = x;
  lastY_ = y;
  if (stretches_.empty() || stretches_.back().colour != colour_) {
    stretches_.push_back({colour_, dots_.size()});
  }
  dots_.push_back({x, y});
  if (planes_) planes_->Stamp(x, y);
}

/// Of dots on the very same place the last one alone is seen, in whatever colours. A dot before a
/// mark comes back into sight when what follows the mark is taken away: only dots between the same
/// two marks cover each other here.
void DotJournal::ForgetCovered() {
  std::unordered_set<std::uint64_t> places;
  places.reserve(dots_.size());
  std::vector<Dot> dots;
  std::vector<Stretch> stretches;
  auto mark = marks_.rbegin();
  for (std::size_t i = stretches_.size(); i-- > 0;) {
    const std::size_t before = dots.size();
    for (std::size_t dot = EndOf(i); dot-- > stretches_[i].first;) {
      for (; mark != marks_.rend() && mark->dots > dot; ++mark) {
        mark->dots = dots.size();
        places.clear();
      }
      if (places.insert(std::bit_cast<std::uint64_t>(dots_[dot])).second)
        dots.push_back(dots_[dot]);
    }
    if (dots.size() > before) stretches.push_back({stretches_[i].colour, dots.size()});
  }
  for (; mark != marks_.rend(); ++mark) mark->dots = dots.size();
  // All were gathered from their ends: a stretch's first dot came last, and a mark counted the
  // dots behind it.
  std::reverse(dots.begin(), dots.end());
  std::reverse(stretches.begin(), stretches.end());
  for (Stretch& stretch : stretches) stretch.first = dots.size() - stretch.first;
  for (MarkedPlace& place : marks_) place.dots = dots.size() - place.dots;
  dots_ = std::move(dots);
  stretches_ = std::move(stretches);
  forgetAt_ = std::max(kManyDots, 2 * dots_.size());
}

/// Planes that find no room for a colour go: the journal has all that they showed.
template <class Change>
void DotJournal::ChangePlanes(Change change) noexcept {
  if (!planes_) return;
  try {
    change(*planes_);
  } catch (const std::bad_alloc&) {
    planes_.reset();
  }
}

SurfaceMark DotJournal::Mark() {
  Flush();
  marks_.push_back({++marksMade_, dots_.size(), colour_});
  return {marksMade_};
}

bool DotJournal::RewindTo(SurfaceMark mark) {
  const auto place = std::ranges::find(marks_, mark.at, &MarkedPlace::serial);
  if (place == marks_.end()) return false;
  Flush();
  dots_.resize(place->dots);
  while (!stretches_.empty() && stretches_.back().first >= dots_.size()) stretches_.pop_back();
  colour_ = place->colour;
  marks_.erase(place + 1, marks_.end());
  ChangePlanes([this](Planes& planes) {
    planes.Clear();
    ReplayInto(planes);
  });
  return true;
}

void DotJournal::SetPen(ColourWord colour) noexcept {
  Flush();
  colour_ = colour;
  ChangePlanes([colour](Planes& planes) { planes.SetColour(colour); });
}

void DotJournal::Wipe() {
  Flush();
  dots_.clear();
  stretches_.clear();
  marks_.clear();
  forgetAt_ = kManyDots;
  if (planes_) planes_->Clear();
}

void DotJournal::ReplayInto(Planes& planes) const {
  for (std::size_t i = 0; i < stretches_.size(); ++i) {
    planes.SetColour(stretches_[i].colour);
    for (std::size_t dot = stretches_[i].first; dot < EndOf(i); ++dot) {
      planes.Stamp(dots_[dot].x, dots_[dot].y);
    }
  }
  planes.SetColour(colour_);
}

bool DotJournal::PaintAll(const Box& area, double ratio, const Pixels& picture) const {
  try {
    Planes planes(area, ratio);
    ReplayInto(planes);
    if (held_) planes.Stamp(heldX_, heldY_);
    const PixelSize size = planes.Size();
    planes.Compose(picture, {0, 0, size.width, size.height});
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

bool DotJournal::Cover(const Box& area, double ratio) noexcept {
  if (planes_ && planes_->Area() == area && planes_->Ratio() == ratio) return true;
  planes_.reset();  // leaves more room for the new ones
  try {
    Planes planes(area, ratio);
    ReplayInto(planes);
    planes_ = std::move(planes);
  } catch (const std::bad_alloc&) {  // the journal is there for a later call
  }
  return planes_.has_value();
}

PixelRect DotJournal::TakeDirtyPixels() {
  return planes_ ? planes_->TakeDirty() : PixelRect();
}

void DotJournal::Compose(const Pixels& picture, const PixelRect& part) noexcept {
  if (planes_) planes_->Compose(picture, part);
}

}  // namespace bramlee
