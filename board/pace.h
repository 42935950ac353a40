// The pace of the pen.
#pragma once

#include <chrono>
#include <cstdint>

#include "writing/timeline.h"

namespace bramlee {

/// Keeps the pen to its pace, kDotsPerSecond: after each batch of dots it rests for as long as they
/// should have taken. It measures from the start, so that errors do not add up; on a machine that
/// cannot keep up it never rests.
class Pace {
 public:
  /// The pen begins, and is shown so many times a second.
  void Begin(double framesPerSecond);

  /// How many dots are due within a frame.
  std::int64_t DotsPerFrame() const { return dotsPerFrame_; }

  /// Whether what is shown is older than half a frame; if so, it counts as shown from now on.
  bool FrameIsDue();

  /// `dots` more have been set, or so many at the usual pace have had their time: rests until they
  /// are due. After a delay of more than a quarter of a second the pen does not race to catch up.
  void Rest(double dots);

  /// A pause: rests for a frame. The pen then goes on as if it had begun there.
  void Pause();

 private:
  using Clock = std::chrono::steady_clock;

  std::int64_t dotsPerFrame_ = 1;
  Clock::duration frame_{};
  Clock::time_point shown_;
  Clock::time_point start_;
  double dots_ = 0;  ///< since the start
};

}  // namespace bramlee
