#include "tests/board/scarce_memory.h"

#include <new>

namespace bramlee {
namespace {

std::size_t refusedFrom = ScarceMemory::kAny;
std::size_t zeroedRefusedFrom = ScarceMemory::kAny;
int refused = 0;

bool IsRefused(std::size_t bytes, std::size_t from) {
  if (bytes < from) return false;
  ++refused;
  return true;
}

}  // namespace

ScarceMemory::ScarceMemory(std::size_t bytes, std::size_t zeroedBytes) {
  refusedFrom = bytes;
  zeroedRefusedFrom = zeroedBytes;
  refused = 0;
}

ScarceMemory::~ScarceMemory() {
  refusedFrom = kAny;
  zeroedRefusedFrom = kAny;
}

int ScarceMemory::Refused() const {
  return refused;
}

}  // namespace bramlee

// The linker's names for them.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __real__Znwm(std::size_t bytes);
void* __wrap__Znwm(std::size_t bytes);
void* __wrap__Znwm(std::size_t bytes) {
  if (bramlee::IsRefused(bytes, bramlee::refusedFrom)) throw std::bad_alloc();
  return __real__Znwm(bytes);
}
void* __real_calloc(std::size_t count, std::size_t bytes);
void* __wrap_calloc(std::size_t count, std::size_t bytes);
void* __wrap_calloc(std::size_t count, std::size_t bytes) {
  if (bramlee::IsRefused(count * bytes, bramlee::zeroedRefusedFrom)) return nullptr;
  return __real_calloc(count, bytes);
}
}
// NOLINTEND(bugprone-reserved-identifier)
