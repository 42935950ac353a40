#include "strokes/word_ink.h"

#include <algorithm>
#include <array>
#include <utility>

#include "strokes/word.h"

namespace bramlee {

void WordInk::Add(const Letter& letter, const Placing& placing,
                  std::span<const std::size_t> without) {
  for (const PenStroke& stroke : letter.PenStrokes()) {
    std::vector<Run> runs;
    for (std::size_t i = stroke.firstRun; i < stroke.firstRun + stroke.runs; ++i) {
      if (std::ranges::find(without, i) == without.end()) {
        runs.push_back(PlacedRun(letter.Runs()[i], placing));
        continue;
      }
      AddStroke(runs);
      runs.clear();
    }
    AddStroke(runs);
  }
}

void WordInk::AddStroke(std::span<const Run> runs) {
  if (runs.empty()) return;
  strokes_.push_back({.firstRun = runs_.size(), .runs = runs.size()});
  runs_.insert(runs_.end(), runs.begin(), runs.end());
}

void WordInk::Append(const WordInk& other, double right) {
  for (const PenStroke& stroke : other.strokes_) {
    strokes_.push_back({.firstRun = runs_.size() + stroke.firstRun, .runs = stroke.runs});
  }
  const std::size_t first = runs_.size();
  runs_.insert(runs_.end(), other.runs_.begin(), other.runs_.end());
  for (std::size_t i = first; i < runs_.size(); ++i) {
    runs_[i] = PlacedRun(runs_[i], {.right = right});
  }
}

Letter WordInk::AsLetter(double step, std::string text) const {
  return {step, runs_, strokes_, kWordBase - kWordHead, std::move(text)};
}

Box WordInk::Bounds() const {
  constexpr double kCoarse = 1;  // a hundredth of the dots, and right to a pixel
  return BoundsOf(runs_, kCoarse).value_or(Box{});
}

Run LineRightRun(double fromX, double y, double toX) {
  return MakeRun(Primitive::LineRight, std::array{fromX, y, toX});
}

Run ArcRun(double from, double to, int sweepDir, Point centre, double radius) {
  return MakeRun(Primitive::ArcStroke,
                 std::array{static_cast<double>(sweepDir), from, to, centre.x, centre.y, radius});
}

}  // namespace bramlee
