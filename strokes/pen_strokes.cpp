#include "strokes/pen_strokes.h"

#include <cstdint>
#include <optional>

#include "strokes/run_track.h"

namespace bramlee {
namespace {

/// Those of the book have other runs: what is said of a given form does not hold for them.
enum class Form : std::uint8_t { EitherGiven, Usual, Alternative, Book };

/// A run before which the hand does otherwise than the distance says.
struct Exception {
  std::string_view set;
  int tile;
  Form form;
  std::size_t run;  ///< from 0
  bool goesOn;      ///< with the stroke of the run before
};

// clang-format off
constexpr Exception kExceptions[] = {
    {"hinv", 9,  Form::Usual,       7, true},   // the sign's ring goes on into its slant, as on tile 10
    {"hinv", 9,  Form::Alternative, 5, true},   // the same
    {"telv", 2,  Form::EitherGiven, 1, true},   // the ring goes on into the bowl, as on tile 1
    {"telc", 2,  Form::EitherGiven, 1, true},   // the ring goes on into the bow, as on tile 19, its small form
    {"telc", 2,  Form::EitherGiven, 2, true},   // the bow goes back into the loop, as on tile 19
    {"telc", 13, Form::EitherGiven, 2, true},   // the bow goes on into the cup, as on tile 30, its small form
    {"telc", 29, Form::EitherGiven, 6, false},  // the tick and the bar below it are two, as on tile 12, its large form
    {"telc", 72, Form::EitherGiven, 4, true},   // the bow goes on upwards, as on tile 71
};
// clang-format on

Form FormOf(const LetterId& id) {
  const LetterSet* set = FindLetterSet(id.set);
  if (id.form.book && set != nullptr && HasBookForm(*set, id.tile, id.form)) return Form::Book;
  return id.form.alternative ? Form::Alternative : Form::Usual;
}

/// What the table says of a run, if anything.
std::optional<bool> GoesOnByTable(const LetterId& id, std::size_t run) {
  const Form form = FormOf(id);
  for (const Exception& each : kExceptions) {
    const bool same = each.set == id.set && each.tile == id.tile && each.run == run;
    const bool holds = each.form == form || (each.form == Form::EitherGiven && form != Form::Book);
    if (same && holds) return each.goesOn;
  }
  return std::nullopt;
}

bool AreNear(const RunEnds& before, const RunEnds& next) {
  return DistanceBetween(before.end, next.begin) <= kJoinReach;
}

}  // namespace

std::vector<PenStroke> JoinedRuns(const LetterId& id, std::span<const Run> runs) {
  std::vector<PenStroke> strokes;
  std::optional<RunEnds> before;
  for (std::size_t i = 0; i < runs.size(); ++i) {
    const std::optional<RunEnds> ends = EndsOf(runs[i], kUsualStep);
    const bool isNear = !ends || (before && AreNear(*before, *ends));
    const bool goesOn = GoesOnByTable(id, i).value_or(isNear);
    if (strokes.empty() || !goesOn) strokes.push_back({.firstRun = i, .runs = 0});
    ++strokes.back().runs;
    if (ends) before = ends;
  }
  return strokes;
}

}  // namespace bramlee
