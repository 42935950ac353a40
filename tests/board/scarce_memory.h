// Memory that runs out. The linker puts it between our code and operator new (--wrap).
#pragma once

#include <cstddef>

namespace bramlee {

/// While this lives nobody gets `bytes` or more at once.
class ScarceMemory {
 public:
  explicit ScarceMemory(std::size_t bytes);
  ~ScarceMemory();
  ScarceMemory(const ScarceMemory&) = delete;
  ScarceMemory& operator=(const ScarceMemory&) = delete;

  /// How many requests it has refused.
  int Refused() const;
};

}  // namespace bramlee
