// A disk that can fail, or take the program with it, at any call made to it. The linker puts it
// between our code and the system's calls (--wrap).
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bramlee {

/// What happens at the call of number `at`, counted from 1; all others are the system's own.
struct DiskPlan {
  int at = 0;
  int error = 0;           ///< the call fails with this
  bool kill = false;       ///< the program is killed before the call
  bool killAfter = false;  ///< the program is killed after the call
  bool interrupt = false;  ///< every reading and writing call is interrupted once
  bool byHalves = false;   ///< every read and write does half its work
  /// What other programs do before the call of that number. Its own calls are not counted.
  std::function<void(int call)> meanwhile = {};
};

/// The names of the calls made while that plan was followed.
std::vector<std::string> WithDisk(const DiskPlan& plan, const std::function<void()>& run);

/// Follows the plan in a process of its own, a copy of this one. Whether it was killed.
bool DiesWithDisk(const DiskPlan& plan, const std::function<void()>& run);

}  // namespace bramlee
