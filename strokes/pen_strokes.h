// Where the pen is lifted: which runs are one movement of the hand.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "engine/run.h"
#include "letters/letter_sets.h"

namespace bramlee {

/// The step of a board that was just opened, at which a letter's geometry is worked out.
inline constexpr double kUsualStep = 0.01;

/// Which letter it is.
struct LetterId {
  std::string_view set;  ///< a set's name, such as "engc"; it outlives the letter
  int tile = 0;
  TileForm form;
  bool operator==(const LetterId&) const = default;
};

/// Runs that follow each other without a lift of the pen.
struct PenStroke {
  std::size_t firstRun = 0;
  std::size_t runs = 0;
  bool operator==(const PenStroke&) const = default;
};

/// How far from the end of a run the next one may begin for the hand to go on, in sheet pixels.
inline constexpr double kJoinReach = 10;

/// Joins a letter's runs to pen strokes: a run that begins at most kJoinReach from where the one
/// before ended goes on with its stroke, but for the letters that a table lists. A run
/// that plots nothing goes with the stroke before it.
std::vector<PenStroke> JoinedRuns(const LetterId& id, std::span<const Run> runs);

}  // namespace bramlee
