#include "tests/ink/discs.h"

#include <algorithm>
#include <cmath>

namespace bramlee {
namespace {

constexpr int kSamples = 64;
constexpr double kRadius = 5;

}  // namespace

Discs::Discs(const QRectF& area, double ratio)
    : area_(area),
      scale_(ratio * kSamples),
      rows_(static_cast<std::size_t>(std::lround(area.height() * scale_))) {}

void Discs::Add(const std::vector<Dot>& dots) {
  const double radius = kRadius * scale_;
  const double rows = static_cast<double>(rows_.size());
  for (const Dot& dot : dots) {
    const double x = (static_cast<double>(dot.x) - area_.x()) * scale_ - 0.5;
    const double y = (static_cast<double>(dot.y) - area_.y()) * scale_ - 0.5;
    const int last = static_cast<int>(std::floor(std::min(y + radius, rows - 1)));
    for (int row = static_cast<int>(std::ceil(std::max(y - radius, 0.0))); row <= last; ++row) {
      const double half = std::sqrt(std::max(radius * radius - (row - y) * (row - y), 0.0));
      const Stretch stretch{static_cast<int>(std::ceil(x - half)),
                            static_cast<int>(std::floor(x + half)) + 1};
      auto& stretches = rows_[static_cast<std::size_t>(row)];
      if (!stretches.empty() && stretch.from <= stretches.back().to &&
          stretch.to >= stretches.back().from) {
        stretches.back().from = std::min(stretches.back().from, stretch.from);
        stretches.back().to = std::max(stretches.back().to, stretch.to);
      } else {
        stretches.push_back(stretch);
      }
    }
  }
  for (auto& stretches : rows_) {
    std::sort(stretches.begin(), stretches.end(),
              [](const Stretch& a, const Stretch& b) { return a.from < b.from; });
    std::vector<Stretch> merged;
    for (const Stretch& stretch : stretches) {
      if (!merged.empty() && stretch.from <= merged.back().to) {
        merged.back().to = std::max(merged.back().to, stretch.to);
      } else {
        merged.push_back(stretch);
      }
    }
    stretches = std::move(merged);
  }
}

int Discs::Covered(int x, int y) const {
  int covered = 0;
  const int from = x * kSamples;
  for (int row = y * kSamples; row < (y + 1) * kSamples; ++row) {
    for (const Stretch& stretch : rows_[static_cast<std::size_t>(row)]) {
      covered += std::max(0, std::min(stretch.to, from + kSamples) - std::max(stretch.from, from));
    }
  }
  return covered;
}

Distance Compare(const QImage& picture, const Discs& exact) {
  Distance distance;
  int rim = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const int covered = exact.Covered(x, y);
      const double wanted = 255 - 255.0 * covered / Discs::kFull;
      const double off = std::abs(wanted - qGray(picture.pixel(x, y)));
      distance.worst = std::max(distance.worst, static_cast<int>(std::ceil(off)));
      if (covered == 0 || covered == Discs::kFull) continue;
      distance.mean += off;
      ++rim;
    }
  }
  if (rim > 0) distance.mean /= rim;
  return distance;
}

}  // namespace bramlee
