// When the pen writes what.
#include "writing/timeline.h"

#include <gtest/gtest.h>

#include "tests/strokes/every_letter.h"
#include "writing/player.h"

namespace bramlee {
namespace {

/// Counts the dots that stood before each run.
class RunBegins final : public DrawingSurface {
 public:
  void PSet(float /*x*/, float /*y*/) override { ++dots; }
  double Step() const override { return kUsualStep; }
  void BeginRun(Primitive /*primitive*/, std::span<const double> /*arguments*/) override {
    begins.push_back(dots);
  }
  double dots = 0;
  std::vector<double> begins;
};

TEST(Timeline, TellsWhenThePlayerBeginsEachRun) {
  for (const LetterId& id : EveryLetter()) {
    const Letter& letter = LetterOf(id);
    const Timeline line = TimelineOf(letter);
    Page page;
    page.Add({.letter = letter, .colour = 0, .placing = {}});
    RunBegins surface;
    Player player(page, surface);
    player.RunToEnd();
    ASSERT_EQ(line.runs.size(), surface.begins.size()) << NameOf(id);
    for (std::size_t i = 0; i < line.runs.size(); ++i) {
      EXPECT_NEAR(line.runs[i].begin, surface.begins[i] / 100'000, 1e-9) << NameOf(id);
    }
    EXPECT_NEAR(line.seconds, surface.dots / 100'000, 1e-9) << NameOf(id);
  }
}

TEST(Timeline, HasAStrokeForEachPenStrokeFromItsFirstRunToItsLast) {
  const Letter& letter = LetterOf({.set = "hinc", .tile = 3, .form = {}});
  const Timeline line = TimelineOf(letter);
  ASSERT_EQ(line.strokes.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    const PenStroke& stroke = letter.PenStrokes()[i];
    EXPECT_DOUBLE_EQ(line.strokes[i].begin, line.runs[stroke.firstRun].begin);
    EXPECT_NEAR(line.strokes[i].End(), line.runs[stroke.firstRun + stroke.runs - 1].End(), 1e-9);
  }
}

TEST(Timeline, FollowsTheRateOfThePen) {
  const Letter& letter = LetterOf({.set = "engc", .tile = 1, .form = {}});
  const Timeline usual = TimelineOf(letter);
  const Timeline slow = TimelineOf(letter, 0.25);
  EXPECT_NEAR(slow.seconds, 4 * usual.seconds, 1e-9);
  EXPECT_NEAR(slow.strokes[1].begin, 4 * usual.strokes[1].begin, 1e-9);
  EXPECT_EQ(slow.DotsBy(1), 25'000);
}

TEST(Timeline, OfALetterWithoutRunsTakesNoTime) {
  const Timeline line = TimelineOf(Letter());
  EXPECT_EQ(line.seconds, 0);
  EXPECT_TRUE(line.strokes.empty());
}

TEST(Timeline, HasNoDotsBeforeTheBegin) {
  EXPECT_EQ(TimelineOf(Letter()).DotsBy(0), 0);
  EXPECT_EQ(TimelineOf(Letter()).DotsBy(-1), 0);
}

}  // namespace
}  // namespace bramlee
