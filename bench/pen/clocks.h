// The clocks of the measurements at the pen, in seconds.
#pragma once

#include <sys/resource.h>

#include <chrono>

namespace bramlee {

/// Since some moment in the past.
inline double RealSeconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// What this process has used of its processors, the system's work for it included.
inline double ProcessorSeconds() {
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
  };
  return seconds(used.ru_utime) + seconds(used.ru_stime);
}

}  // namespace bramlee
