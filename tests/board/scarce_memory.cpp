#include "tests/board/scarce_memory.h"

#include <new>

namespace bramlee {
namespace {

std::size_t refusedFrom = 0;  // 0: nothing is refused
int refused = 0;

void RefuseIfScarce(std::size_t bytes) {
  if (refusedFrom == 0 || bytes < refusedFrom) return;
  ++refused;
  throw std::bad_alloc();
}

}  // namespace

ScarceMemory::ScarceMemory(std::size_t bytes) {
  refusedFrom = bytes;
  refused = 0;
}

ScarceMemory::~ScarceMemory() {
  refusedFrom = 0;
}

int ScarceMemory::Refused() const {
  return refused;
}

}  // namespace bramlee

// The linker's names for both.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __real__Znwm(std::size_t bytes);
void* __wrap__Znwm(std::size_t bytes);
void* __wrap__Znwm(std::size_t bytes) {
  bramlee::RefuseIfScarce(bytes);
  return __real__Znwm(bytes);
}
}
// NOLINTEND(bugprone-reserved-identifier)
