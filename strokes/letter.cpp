#include "strokes/letter.h"

#include <map>
#include <tuple>
#include <utility>

#include "engine/last_point.h"
#include "strokes/run_recorder.h"

namespace bramlee {
namespace {

Letter RecordTile(const LetterSet& set, int tile, const TileForm& form) {
  const KeepLastPoint kept;
  RunRecorder recorder(kUsualStep);
  ClearLastPoint();
  WriteWholeTile(set, tile, form, recorder);
  return {
      {.set = set.name, .tile = tile, .form = form},
      kUsualStep, recorder.TakeRuns()
  };
}

}  // namespace

Letter::Letter(const LetterId& id, double step, std::vector<Run> runs)
    : id_(id), step_(step), runs_(std::move(runs)), penStrokes_(JoinedRuns(id_, runs_)) {}

const LetterShape& Letter::Shape() const {
  if (!shape_) shape_ = ShapeOf(runs_, penStrokes_);
  return *shape_;
}

const Letter& LetterOf(const LetterId& id) {
  static const Letter kNoLetter;
  static std::map<std::tuple<std::string_view, int, bool, int>, Letter> recorded;
  const LetterSet* set = FindLetterSet(id.set);
  if (set == nullptr || id.tile < 1 || id.tile > set->tiles) return kNoLetter;
  const auto key = std::tuple(set->name, id.tile, id.form.alternative, id.form.place);
  const auto found = recorded.find(key);
  if (found != recorded.end()) return found->second;
  return recorded.emplace(key, RecordTile(*set, id.tile, id.form)).first->second;
}

Letter RecordLetter(const LetterId& id, WriteLetter program, StrokeRec& rec, double step) {
  RunRecorder recorder(step);
  program(rec, recorder);
  return {id, step, recorder.TakeRuns()};
}

}  // namespace bramlee
