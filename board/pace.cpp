#include "board/pace.h"

#include <algorithm>
#include <thread>

namespace bramlee {
namespace {

constexpr std::chrono::milliseconds kLongDelay(250);

constexpr double kFewestFrames = 20;  ///< a second; some displays report nonsense
constexpr double kMostFrames = 240;

}  // namespace

void Pace::Begin(double framesPerSecond) {
  const double frames = std::clamp(framesPerSecond, kFewestFrames, kMostFrames);
  dotsPerFrame_ = static_cast<std::int64_t>(kDotsPerSecond / frames);
  frame_ = std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(1 / frames));
  start_ = Clock::now();
  shown_ = start_ - frame_;
  dots_ = 0;
}

bool Pace::FrameIsDue() {
  const auto now = Clock::now();
  if (now - shown_ < frame_ / 2) return false;
  shown_ = now;
  return true;
}

void Pace::Rest(double dots) {
  dots_ += dots;
  const std::chrono::duration<double> spent(dots_ / kDotsPerSecond);
  const auto due = start_ + std::chrono::duration_cast<Clock::duration>(spent);
  const auto late = Clock::now() - due;
  if (late > kLongDelay) {
    start_ += late;
  } else if (late < Clock::duration::zero()) {
    std::this_thread::sleep_until(due);
  }
}

void Pace::Pause() {
  std::this_thread::sleep_for(frame_);
  start_ = Clock::now();
  dots_ = 0;
}

}  // namespace bramlee
