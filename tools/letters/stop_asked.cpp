#include "tools/letters/stop_asked.h"

#include <atomic>
#include <csignal>

namespace bramlee {
namespace {

std::atomic<bool> asked = false;  // lock-free, as a signal needs it

void Remember(int /*signal*/) {
  asked = true;
}

}  // namespace

void CatchStop() {
  std::signal(SIGINT, Remember);
  std::signal(SIGTERM, Remember);
}

bool IsStopAsked() {
  return asked;
}

}  // namespace bramlee
