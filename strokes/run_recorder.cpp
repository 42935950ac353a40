#include "strokes/run_recorder.h"

#include <utility>

namespace bramlee {

void RunRecorder::BeginRun(Primitive primitive, std::span<const double> arguments) {
  runs_.push_back(MakeRun(primitive, arguments));
}

std::vector<Run> RunRecorder::TakeRuns() {
  return std::exchange(runs_, {});
}

}  // namespace bramlee
