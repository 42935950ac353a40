// Memory that runs out. The linker puts it between our code and operator new, and between our code
// and calloc (--wrap).
#pragma once

#include <cstddef>
#include <cstdint>

namespace bramlee {

/// While this lives, a request for `bytes` or more at once fails, and so does one for as many
/// zeroed bytes.
class ScarceMemory {
 public:
  static constexpr std::size_t kAny = SIZE_MAX;  ///< as many as are asked for

  explicit ScarceMemory(std::size_t bytes, std::size_t zeroedBytes = kAny);
  ~ScarceMemory();
  ScarceMemory(const ScarceMemory&) = delete;
  ScarceMemory& operator=(const ScarceMemory&) = delete;

  /// How many requests it has refused.
  int Refused() const;
};

}  // namespace bramlee
