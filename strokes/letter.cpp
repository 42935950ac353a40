#include "strokes/letter.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "engine/last_point.h"
#include "strokes/run_recorder.h"

namespace bramlee {
Letter::Letter(const LetterId& id, double step, std::vector<Run> runs)
    : id_(id), step_(step), runs_(std::move(runs)), penStrokes_(JoinedRuns(id_, runs_)) {}

Letter::Letter(double step, std::vector<Run> runs, std::vector<PenStroke> penStrokes, double size,
               std::string text)
    : text_(std::move(text)),
      step_(step),
      runs_(std::move(runs)),
      penStrokes_(std::move(penStrokes)),
      sizeOfEach_(size) {}

const LetterShape& Letter::Shape() const {
  if (!shape_) shape_ = ShapeOf(runs_, penStrokes_);
  return *shape_;
}

double Letter::Size() const {
  return sizeOfEach_ > 0 ? sizeOfEach_ : std::max(Bounds().width, Bounds().height);
}

const Letter& LetterOf(const LetterId& id) {
  static const Letter kNoLetter;
  static std::map<std::tuple<std::string_view, int, bool, int, bool>, Letter> recorded;
  const LetterSet* set = FindLetterSet(id.set);
  if (set == nullptr || id.tile < 1 || id.tile > set->tiles) return kNoLetter;
  const auto& [alternative, place, book] = id.form;
  const auto key = std::tuple(set->name, id.tile, alternative, place, book);
  const auto found = recorded.find(key);
  if (found != recorded.end()) return found->second;
  const KeepLastPoint kept;
  return recorded.emplace(key, RecordTile(id, kUsualStep)).first->second;
}

Letter RecordTile(const LetterId& id, double step) {
  RunRecorder recorder(step);
  const LetterSet* set = FindLetterSet(id.set);
  if (set == nullptr) return {};
  WriteWholeTile(*set, id.tile, id.form, recorder);
  return {
      {.set = set->name, .tile = id.tile, .form = id.form},
      step, recorder.TakeRuns()
  };
}

Letter RecordLetter(const LetterId& id, WriteLetter program, StrokeRec& rec, double step) {
  RunRecorder recorder(step);
  program(rec, recorder);
  return {id, step, recorder.TakeRuns()};
}

}  // namespace bramlee
