// What the player promises, one by one.
#include "writing/player.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/last_point.h"
#include "tests/writing/recording_surface.h"

namespace bramlee {
namespace {

/// Two strokes of 11 and of 6 + 3 dots.
Letter TwoStrokes() {
  return {
      {                                   },
      1,
      { {Primitive::LineRight, {0, 5, 10}},
       {Primitive::LineDown, {50, 5, 10}},
       {Primitive::LineRight, {50, 11, 52}}}
  };
}

class PlayerTest : public testing::Test {
 protected:
  void SetUp() override { page_.Add({.letter = TwoStrokes(), .colour = kRed, .placing = {}}); }
  void TearDown() override { EXPECT_EQ(surface_.errors, ""); }

  std::size_t Dots() const { return surface_.dots.size(); }

  Page page_;
  RecordingSurface surface_;
  Player player_{page_, surface_};
};

TEST_F(PlayerTest, WritesThePageToItsEnd) {
  EXPECT_FALSE(player_.AtEnd());
  EXPECT_EQ(player_.RunToEnd(), 20);
  EXPECT_TRUE(player_.AtEnd());
  EXPECT_EQ(surface_.dots, PlainDots(page_));
  EXPECT_EQ(player_.RunToEnd(), 0);
}

TEST_F(PlayerTest, WritesAsManyDotsAsItIsAskedFor) {
  EXPECT_EQ(player_.Write(0), 0);
  EXPECT_EQ(player_.Write(-1), 0);
  EXPECT_TRUE(surface_.Runs().empty());
  EXPECT_EQ(player_.Write(13), 13);
  EXPECT_EQ(Dots(), 13U);
  EXPECT_EQ(player_.Write(100), 7);
  EXPECT_EQ(player_.Write(100), 0);
}

TEST_F(PlayerTest, BeginsNoStrokeAndNoRunWithoutADotToWrite) {
  player_.WriteStroke(0);
  EXPECT_TRUE(player_.BetweenStrokes());
  player_.Write(17);  // to the end of the second run
  EXPECT_EQ(surface_.Runs().size(), 2U);
  EXPECT_FALSE(player_.BetweenStrokes());
}

TEST_F(PlayerTest, WritesNothingWhilePaused) {
  EXPECT_TRUE(player_.IsPlaying());
  player_.Write(3);
  player_.Pause();
  EXPECT_FALSE(player_.IsPlaying());
  EXPECT_EQ(player_.Write(5), 0);
  EXPECT_EQ(Dots(), 3U);
  player_.GoOn();
  EXPECT_TRUE(player_.IsPlaying());
  EXPECT_EQ(player_.Write(5), 5);
}

TEST_F(PlayerTest, RunsToTheEndAlsoWhenPaused) {
  player_.Pause();
  EXPECT_EQ(player_.RunToEnd(), 20);
  EXPECT_FALSE(player_.IsPlaying());
}

TEST_F(PlayerTest, WritesToTheEndOfThePenStrokeAlsoWhenPaused) {
  player_.Pause();
  EXPECT_EQ(player_.WriteStroke(), 11);
  EXPECT_TRUE(player_.BetweenStrokes());
  EXPECT_EQ(player_.WriteStroke(4), 4);
  EXPECT_FALSE(player_.BetweenStrokes());
  EXPECT_EQ(player_.WriteStroke(), 5);  // two runs, one stroke
  EXPECT_EQ(player_.WriteStroke(), 0);
}

TEST_F(PlayerTest, CountsTheStrokesThatAreWhole) {
  EXPECT_EQ(player_.StrokesWritten(), 0U);
  player_.Write(10);
  EXPECT_EQ(player_.StrokesWritten(), 0U);
  player_.Write(1);
  EXPECT_EQ(player_.StrokesWritten(), 1U);
  player_.RunToEnd();
  EXPECT_EQ(player_.StrokesWritten(), 2U);
  player_.StepBack();
  EXPECT_EQ(player_.StrokesWritten(), 1U);
  player_.Write(2);
  player_.StepBack();
  EXPECT_EQ(player_.StrokesWritten(), 1U);
}

TEST_F(PlayerTest, EndsARunRightAfterItsLastDot) {
  player_.Write(10);
  EXPECT_TRUE(surface_.IsInRun());
  player_.Write(1);
  EXPECT_FALSE(surface_.IsInRun());
}

TEST_F(PlayerTest, BeginsAndEndsARunOnceHoweverOftenItPauses) {
  for (int i = 0; i < 20; ++i) player_.Write(1);
  EXPECT_TRUE(player_.AtEnd());
  EXPECT_EQ(surface_.Runs().size(), 3U);
  EXPECT_EQ(surface_.Runs()[1], (bramlee::Run{
                                    Primitive::LineDown, {50, 5, 10}
  }));
}

TEST_F(PlayerTest, StepsBackToTheStartOfTheStroke) {
  player_.Write(18);  // in the second run of the second stroke
  EXPECT_TRUE(player_.StepBack());
  EXPECT_EQ(Dots(), 11U);
  EXPECT_FALSE(surface_.IsInRun());
  EXPECT_TRUE(player_.BetweenStrokes());
  EXPECT_EQ(player_.Write(100), 9);
  EXPECT_EQ(surface_.dots, PlainDots(page_));
}

TEST_F(PlayerTest, StepsBackToTheStrokeBeforeAtTheStartOfAStroke) {
  player_.RunToEnd();
  EXPECT_TRUE(player_.StepBack());
  EXPECT_EQ(Dots(), 11U);
  EXPECT_TRUE(player_.StepBack());
  EXPECT_EQ(Dots(), 0U);
  EXPECT_FALSE(player_.StepBack());
  player_.RunToEnd();
  EXPECT_EQ(surface_.dots, PlainDots(page_));
}

TEST_F(PlayerTest, StepsBackOverLetters) {
  page_.Add({.letter = TwoStrokes(), .colour = kBlue, .placing = {}});
  player_.Write(20);
  player_.StepBack();
  player_.StepBack();
  EXPECT_EQ(Dots(), 0U);
  player_.RunToEnd();
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(player_.StepBack());
  EXPECT_EQ(Dots(), 11U);
  player_.RunToEnd();
  EXPECT_EQ(surface_.dots, PlainDots(page_));
}

TEST_F(PlayerTest, CannotStepBackOnASurfaceThatTakesNothingBack) {
  Recorder plain(1);
  Player player(page_, plain);
  player.Write(15);
  EXPECT_FALSE(player.StepBack());
  EXPECT_EQ(player.RunToEnd(), 5);
  EXPECT_EQ(plain.dots.size(), 20U);
}

TEST_F(PlayerTest, GoesOnWhereItStandsWhenTheSurfaceHasForgottenTheMark) {
  player_.Write(15);
  surface_.forgotten = 2;
  EXPECT_FALSE(player_.StepBack());
  EXPECT_EQ(player_.StrokesWritten(), 1U);
  EXPECT_EQ(player_.RunToEnd(), 5);
  EXPECT_EQ(surface_.dots, PlainDots(page_));
  EXPECT_EQ(surface_.Runs().size(), 3U);
}

TEST_F(PlayerTest, SetsEachLettersColour) {
  page_.Add({.letter = TwoStrokes(), .colour = kBlue, .placing = {}});
  player_.RunToEnd();
  EXPECT_EQ(surface_.dots[19].colour, kRed);
  EXPECT_EQ(surface_.dots[20].colour, kBlue);
  player_.StepBack();
  player_.StepBack();
  player_.StepBack();
  player_.RunToEnd();
  EXPECT_EQ(surface_.dots, PlainDots(page_));
}

TEST_F(PlayerTest, WritesOnWhenThePageHasGrown) {
  player_.RunToEnd();
  for (int i = 0; i < 30; ++i) {  // often enough for the letters to move in memory
    page_.Add({.letter = TwoStrokes(), .colour = kBlue, .placing = {}});
    EXPECT_FALSE(player_.AtEnd());
    EXPECT_EQ(player_.Write(100), 20);
    EXPECT_TRUE(player_.AtEnd());
  }
  EXPECT_EQ(surface_.dots, PlainDots(page_));
}

TEST_F(PlayerTest, GoesOnInARunWhileThePageGrows) {
  for (int i = 0; i < 30; ++i) {
    player_.Write(1);
    page_.Add({.letter = TwoStrokes(), .colour = kBlue, .placing = {}});
  }
  player_.RunToEnd();
  EXPECT_EQ(surface_.dots, PlainDots(page_));
}

TEST_F(PlayerTest, BeginsAnewOnAClearedPage) {
  player_.Write(15);
  page_.Clear();
  EXPECT_TRUE(player_.AtEnd());
  EXPECT_FALSE(surface_.IsInRun());
  EXPECT_EQ(player_.StrokesWritten(), 0U);
  EXPECT_TRUE(player_.BetweenStrokes());
  EXPECT_FALSE(player_.StepBack());
  EXPECT_EQ(Dots(), 15U);  // the surface is its owner's to wipe
  page_.Add({.letter = TwoStrokes(), .colour = kBlue, .placing = {}});
  EXPECT_EQ(player_.RunToEnd(), 20);
}

TEST_F(PlayerTest, SkipsLettersWithoutStrokes) {
  page_.Add({});
  page_.Add({.letter = TwoStrokes(), .colour = kBlue, .placing = {}});
  page_.Add({});
  EXPECT_EQ(player_.Write(100), 40);
  EXPECT_TRUE(player_.AtEnd());
}

TEST_F(PlayerTest, BeginsAndEndsRunsThatPlotNothingToo) {
  page_.Clear();
  page_.Add({
      .letter = {{},
                 1, {{Primitive::LineRight, {5, 0, 1}},
                  {Primitive::LineRight, {1, 0, 2}},
                  {Primitive::LineRight, {5, 0, 1}}}},
      .colour = kRed,
      .placing = {                                                   }
  });
  EXPECT_EQ(player_.Write(100), 2);
  EXPECT_TRUE(player_.AtEnd());
  EXPECT_EQ(surface_.Runs().size(), 3U);
}

TEST_F(PlayerTest, WritesEachLetterAtItsOwnStep) {
  page_.Add({
      .letter = {{},                                   0.25, {{Primitive::LineRight, {0, 0, 1}}}},
        .colour = kRed, .placing = {                                   }
  });
  EXPECT_EQ(player_.RunToEnd(), 25);
}

TEST_F(PlayerTest, WritesAPlacedLetterScaledAndMoved) {
  page_.Clear();
  page_.Add({
      .letter = TwoStrokes(), .colour = kRed, .placing = {.scale = 2, .right = 100, .down = -7}
  });
  player_.RunToEnd();
  EXPECT_EQ(surface_.dots[1].dot, (Dot{102, 3}));
  EXPECT_EQ(surface_.dots[19].dot, (Dot{204, 15}));
  EXPECT_EQ(surface_.Runs()[0], (bramlee::Run{
                                    Primitive::LineRight, {0, 5, 10}
  }));
}

TEST_F(PlayerTest, LeavesTheDotsOfALetterThatIsNotPlacedToTheLastBit) {
  page_.Clear();
  page_.Add({
      .letter = {{},                                      1, {{Primitive::LineRight, {0, -0.0, 1}}}},
        .colour = kRed, .placing = {                                      }
  });
  player_.RunToEnd();
  EXPECT_TRUE(std::signbit(surface_.dots.at(0).dot.y));
}

TEST_F(PlayerTest, LeavesTheRegistersAlone) {
  page_.Add({.letter = LetterAt("engc", 19, 1), .colour = kRed, .placing = {}});
  LastX = LastY = LastX2 = LastY2 = -7;
  player_.RunToEnd();
  EXPECT_EQ(LastX, -7);
  EXPECT_EQ(LastY, -7);
  EXPECT_EQ(LastX2, -7);
  EXPECT_EQ(LastY2, -7);
}

TEST_F(PlayerTest, TakesARateOverWhileThePenRuns) {
  EXPECT_EQ(player_.Rate(), 1);
  EXPECT_EQ(player_.DotsDue(3), 3);
  player_.SetRate(2);
  EXPECT_EQ(player_.DotsDue(3), 6);
  player_.SetRate(0.25);
  EXPECT_EQ(player_.Rate(), 0.25);
  EXPECT_EQ(player_.DotsDue(3), 0);
  EXPECT_EQ(player_.DotsDue(3), 1);  // of 1.5 that are due by now
  EXPECT_EQ(player_.DotsDue(2), 1);
}

TEST_F(PlayerTest, IgnoresARateThatIsNotFiniteAndAboveZero) {
  using Limits = std::numeric_limits<double>;
  player_.SetRate(3);
  for (const double none : {0.0, -1.0, Limits::infinity(), Limits::quiet_NaN()}) {
    player_.SetRate(none);
    EXPECT_EQ(player_.Rate(), 3);
  }
}

/// Has no room for one of its dots.
class FullSurface : public RecordingSurface {
 public:
  void PSet(float x, float y) override {
    if (dots.size() == 14 && !full_) {
      full_ = true;
      throw std::runtime_error("full");
    }
    RecordingSurface::PSet(x, y);
  }

 private:
  bool full_ = false;
};

TEST_F(PlayerTest, StandsBeforeTheDotThatCouldNotBePlotted) {
  FullSurface surface;
  Player player(page_, surface);
  EXPECT_THROW(player.RunToEnd(), std::runtime_error);
  player.RunToEnd();
  EXPECT_EQ(surface.dots, PlainDots(page_));
  EXPECT_EQ(surface.errors, "");
}

}  // namespace
}  // namespace bramlee
