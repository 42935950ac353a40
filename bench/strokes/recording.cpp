// What it costs to take all letters down as data at each speed of the boards, and to write them by
// the player instead of by their programs: nanoseconds a dot; and to place their strokes' numbers.
// Best of several rounds.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "letters/letter_sets.h"
#include "strokes/letter.h"
#include "strokes/stroke_numbers.h"
#include "writing/player.h"

namespace bramlee {
namespace {

constexpr double kSteps[] = {1.0 / 1000, 2.0 / 500, 3.0 / 100, 4.0 / 50, 5.0 / 25, 6.0 - 5};
constexpr int kRounds = 7;

/// Only adds up where the dots would lie.
class Counter : public DrawingSurface {
 public:
  explicit Counter(double step) : step_(step) {}
  void PSet(float x, float y) override {
    sum_ += x + y;
    ++dots_;
  }
  double Step() const override { return step_; }
  std::int64_t Dots() const { return dots_; }
  double Sum() const { return static_cast<double>(sum_); }

 private:
  double step_;
  float sum_ = 0;
  std::int64_t dots_ = 0;
};

/// Every tile, and its alternative form where it has one.
std::vector<LetterId> EveryLetter() {
  std::vector<LetterId> letters;
  for (const LetterSet& set : LetterSets()) {
    for (int tile = 1; tile <= set.tiles; ++tile) {
      letters.push_back({.set = set.name, .tile = tile, .form = {}});
      if (!HasSecondForm(set, tile)) continue;
      letters.push_back({.set = set.name, .tile = tile, .form = {.alternative = true}});
    }
  }
  return letters;
}

template <class Task>
double Milliseconds(Task task) {
  const auto start = std::chrono::steady_clock::now();
  task();
  const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - start;
  return spent.count();
}

void PrintRecording(const std::vector<LetterId>& letters) {
  std::printf("%zu letters recorded\n%-6s %12s %14s %16s\n", letters.size(), "step", "all, ms",
              "a letter, ms", "the longest, ms");
  for (const double step : kSteps) {
    double all = 0;
    double longest = 0;
    for (const LetterId& id : letters) {
      double best = 1e9;
      for (int round = 0; round < kRounds; ++round) {
        best = std::min(best, Milliseconds([&] { RecordTile(id, step); }));
      }
      all += best;
      longest = std::max(longest, best);
    }
    std::printf("%-6g %12.2f %14.3f %16.3f\n", step, all, all / static_cast<double>(letters.size()),
                longest);
  }
}

void WritePlainly(const std::vector<LetterId>& letters, DrawingSurface& sheet) {
  for (const LetterId& id : letters) {
    WriteWholeTile(*FindLetterSet(id.set), id.tile, id.form, sheet);
  }
}

Page PageOf(const std::vector<LetterId>& letters, double step) {
  Page page;
  for (const LetterId& id : letters) {
    page.Add({.letter = RecordTile(id, step), .colour = 0, .placing = {}});
  }
  return page;
}

/// Slices of a frame's dots at the pen's usual pace and 60 frames a second.
void Play(const Page& page, DrawingSurface& sheet) {
  constexpr std::int64_t kSlice = 1666;
  Player player(page, sheet);
  while (player.Write(kSlice) > 0) {
  }
}

void PrintPlaying(const std::vector<LetterId>& letters) {
  std::printf("\n%-6s %12s %12s %12s %10s\n", "step", "dots", "programs, ns", "player, ns",
              "ratio");
  for (const double step : {0.01, 0.2, 1.0}) {
    const Page page = PageOf(letters, step);
    double plain = 1e9;
    double played = 1e9;
    Counter byProgram(step);
    WritePlainly(letters, byProgram);
    const auto dots = static_cast<double>(byProgram.Dots());
    for (int round = 0; round < kRounds; ++round) {  // in turn, so that a slow spell meets both
      Counter again(step);
      plain = std::min(plain, Milliseconds([&] { WritePlainly(letters, again); }) * 1e6 / dots);
      Counter byPlayer(step);
      played = std::min(played, Milliseconds([&] { Play(page, byPlayer); }) * 1e6 / dots);
      if (byPlayer.Dots() != byProgram.Dots() || byPlayer.Sum() != byProgram.Sum()) {
        std::printf("the player's dots differ\n");
        return;
      }
    }
    std::printf("%-6g %12.0f %12.2f %12.2f %10.2f\n", step, dots, plain, played, played / plain);
  }
}

void PrintNumberPlacing(const std::vector<LetterId>& letters) {
  double all = 0;
  double longest = 0;
  for (const LetterId& id : letters) {
    const std::vector<StrokePath>& strokes = LetterOf(id).Shape().strokes;
    double best = 1e9;
    for (int round = 0; round < kRounds; ++round) {
      best = std::min(best, Milliseconds([&] { PlaceNumbers(strokes, {}); }));
    }
    all += best;
    longest = std::max(longest, best);
  }
  std::printf("\nnumbers placed: all letters %.2f ms, a letter %.3f ms, the longest %.3f ms\n", all,
              all / static_cast<double>(letters.size()), longest);
}

}  // namespace
}  // namespace bramlee

int main() {
  const std::vector<bramlee::LetterId> letters = bramlee::EveryLetter();
  bramlee::PrintRecording(letters);
  bramlee::PrintPlaying(letters);
  bramlee::PrintNumberPlacing(letters);
  return 0;
}
