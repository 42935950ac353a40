#include "board/ink.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace bramlee {

void Ink::Turn(float x, float y) {
  if (held_) Keep(heldX_, heldY_);
  held_ = false;
  heldAlong_ = kNever;
  const float dx = x - lastX_;
  const float dy = y - lastY_;
  const float distance = std::sqrt(dx * dx + dy * dy);
  if (!atWork_ || !(distance <= kSpacing)) return Keep(x, y);
  if (distance == 0) return;
  held_ = true;
  heldX_ = x;
  heldY_ = y;
  heldAlong_ = distance;
  directionX_ = dx / distance;
  directionY_ = dy / distance;
}

void Ink::Flush() {
  if (held_) Keep(heldX_, heldY_);
  held_ = false;
  heldAlong_ = kNever;
  atWork_ = false;
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

void Ink::SetColour(ColourWord colour) {
  Flush();
  colour_ = colour;
  if (planes_) planes_->SetColour(colour);
}

void Ink::Wipe() {
  Flush();
  dots_.clear();
  stretches_.clear();
  if (planes_) planes_->Clear();
}

void Ink::ReplayInto(Planes& planes) const {
  for (std::size_t i = 0; i < stretches_.size(); ++i) {
    const std::size_t end = i + 1 < stretches_.size() ? stretches_[i + 1].first : dots_.size();
    planes.SetColour(stretches_[i].colour);
    for (std::size_t dot = stretches_[i].first; dot < end; ++dot) {
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
