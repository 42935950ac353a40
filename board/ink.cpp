#include "board/ink.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <new>
#include <unordered_set>
#include <utility>

namespace bramlee {

void Ink::Turn(float x, float y) {
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

void Ink::Flush() {
  if (std::exchange(held_, false)) Keep(heldX_, heldY_);
  heldAlong_ = kNever;
  atWork_ = false;
}

/// Lack of memory shows here, when a dot is put on the sheet. A held dot has its room from then on:
/// what ends a run or puts a pen back must not fail.
void Ink::MakeRoom() {
  constexpr std::size_t kFewDots = 1024;
  if (dots_.size() >= forgetAt_) ForgetCovered();
  if (dots_.size() == dots_.capacity()) dots_.reserve(std::max(kFewDots, 2 * dots_.size()));
}

void Ink::Keep(float x, float y) {
  atWork_ = true;
  lastX_ = x;
  lastY_ = y;
  if (stretches_.empty() || stretches_.back().colour != colour_) {
    stretches_.push_back({colour_, dots_.size()});
  }
  dots_.push_back({x, y});
  if (planes_) planes_->Stamp(x, y);
}

/// Of dots on the very same place the last one alone is seen, in whatever colours.
void Ink::ForgetCovered() {
  std::unordered_set<std::uint64_t> places;
  places.reserve(dots_.size());
  std::vector<Dot> dots;
  std::vector<Stretch> stretches;
  for (std::size_t i = stretches_.size(); i-- > 0;) {
    const std::size_t before = dots.size();
    for (std::size_t dot = EndOf(i); dot-- > stretches_[i].first;) {
      if (places.insert(std::bit_cast<std::uint64_t>(dots_[dot])).second)
        dots.push_back(dots_[dot]);
    }
    if (dots.size() > before) stretches.push_back({stretches_[i].colour, dots.size()});
  }
  // Both were gathered from their ends: a stretch's first dot came last.
  std::reverse(dots.begin(), dots.end());
  std::reverse(stretches.begin(), stretches.end());
  for (Stretch& stretch : stretches) stretch.first = dots.size() - stretch.first;
  dots_ = std::move(dots);
  stretches_ = std::move(stretches);
  forgetAt_ = std::max(kManyDots, 2 * dots_.size());
}

void Ink::SetColour(ColourWord colour) {
  Flush();
  colour_ = colour;
  if (planes_) planes_->SetColour(colour);
}

void Ink::Wipe() {
  Flush();
  dots_.clear();
  stretches_.clear();
  forgetAt_ = kManyDots;
  if (planes_) planes_->Clear();
}

void Ink::ReplayInto(Planes& planes) const {
  for (std::size_t i = 0; i < stretches_.size(); ++i) {
    planes.SetColour(stretches_[i].colour);
    for (std::size_t dot = stretches_[i].first; dot < EndOf(i); ++dot) {
      planes.Stamp(dots_[dot].x, dots_[dot].y);
    }
  }
  planes.SetColour(colour_);
}

QImage Ink::Picture(const QRectF& area, double ratio, const QColor& ground) const {
  constexpr double kLargest = 32767;
  if (area.isEmpty() || std::max(area.width(), area.height()) * ratio > kLargest) return {};
  try {
    Planes planes(area, ratio);
    ReplayInto(planes);
    if (held_) planes.Stamp(heldX_, heldY_);
    QImage image(planes.Size(), QImage::Format_RGB32);
    if (image.isNull()) return {};
    planes.Compose(image, image.rect(), ground.rgb());
    image.setDevicePixelRatio(ratio);
    return image;
  } catch (const std::bad_alloc&) {
    return {};
  }
}

void Ink::Cover(const QRectF& area, double ratio) {
  if (planes_ && planes_->Area() == area && planes_->Ratio() == ratio) return;
  planes_.emplace(area, ratio);
  ReplayInto(*planes_);
}

QRect Ink::TakeDirty() {
  return planes_ ? planes_->TakeDirty() : QRect();
}

void Ink::Compose(QImage& image, const QRect& part, const QColor& ground) {
  if (planes_) planes_->Compose(image, part, ground.rgb());
}

}  // namespace bramlee
