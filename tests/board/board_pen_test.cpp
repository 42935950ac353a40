// The pen of a board on a sheet alone: what a hand asks of it between its frames.
#include "board/board_pen.h"

#include <new>
#include <stdexcept>
#include <utility>
#include <vector>

#include "tests/board/pen_fixture.h"
#include "tests/board/scarce_memory.h"
#include "tests/ui/failing_event.h"

namespace bramlee {
namespace {

TEST_F(BoardPenTest, WritesAtOnceWhereThereIsNoDisplay) {
  Write(TwoStrokes());
  EXPECT_EQ(Picture(), Plain());
  EXPECT_FALSE(pen.IsWriting());
  EXPECT_FALSE(pen.IsPaused());
  EXPECT_EQ(spoken, 0);
}

TEST_F(BoardPenTest, StandsStillInAPauseAndGoesOnAtTheNextDot) {
  std::vector<std::size_t> dots;
  const auto look = [&] {
    EXPECT_TRUE(pen.IsWriting());
    EXPECT_TRUE(pen.IsPaused());
    dots.push_back(Dots());
  };
  AtFrames({[&] {
              EXPECT_FALSE(pen.IsPaused());
              pen.Pause();
              look();
            },
            look, look, [&] { pen.GoOn(); }, [&] { EXPECT_GT(Dots(), dots.front()); }});
  Write(TwoStrokes());
  EXPECT_EQ(dots, std::vector<std::size_t>(3, dots.front()));
  EXPECT_EQ(Picture(), Plain());
}

TEST_F(BoardPenTest, PausesOnlyWhatIsWritten) {
  pen.Pause();
  EXPECT_FALSE(pen.IsPaused());
  Write(TwoStrokes());
  EXPECT_EQ(Picture(), Plain());
  pen.Pause();
  EXPECT_FALSE(pen.IsPaused());
}

TEST_F(BoardPenTest, HoldsAPauseIntoTheNextLetterOfAWriting) {
  int waited = 0;
  pen.SetFrameCall([&] {
    if (pen.Stands().letter == 0) return;
    if (pen.Letters().Letters().size() == 1) return pen.Pause();  // at the first one's last dot
    if (!pen.IsPaused() || ++waited < 3) return;
    EXPECT_EQ(pen.Stands(), (Player::Where{.letter = 1, .stroke = 0, .begun = false}));
    pen.GoOn();
  });
  const BoardPen::Writing all(pen);
  Write(TwoStrokes());
  Write(TwoStrokes(250));
  EXPECT_EQ(waited, 3);
  EXPECT_EQ(Picture(), Plain());
}

TEST_F(BoardPenTest, WritesToTheStrokesEndAndPauses) {
  std::vector<Player::Where> where;
  pen.SetFrameCall([&, first = true]() mutable {
    if (pen.IsPaused()) where.push_back(pen.Stands());
    if (pen.IsPaused() || std::exchange(first, false)) pen.StrokeOn();
  });
  Write(TwoStrokes());
  EXPECT_EQ(where, (std::vector<Player::Where>{
                       {.letter = 0, .stroke = 1, .begun = false},
                       {.letter = 1, .stroke = 0, .begun = false}
  }));
  EXPECT_EQ(Picture(), Plain());
}

TEST_F(BoardPenTest, TakesAStrokeBackAndPausesThere) {
  AtFrames({[] {}, [] {},
            [&] {
              EXPECT_GT(Dots(), 0U);
              EXPECT_TRUE(pen.StrokeBack());
              EXPECT_TRUE(pen.IsPaused());
              EXPECT_EQ(Dots(), 0U);
              EXPECT_FALSE(pen.StrokeBack());
            },
            [&] {
              EXPECT_EQ(Dots(), 0U);
              pen.GoOn();
            }});
  Write(TwoStrokes());
  EXPECT_EQ(Picture(), Plain());
}

TEST_F(BoardPenTest, GoesBackAndOnAfterTheLetterStands) {
  Write(TwoStrokes());
  const std::size_t all = Dots();
  EXPECT_TRUE(pen.StrokeBack());
  EXPECT_TRUE(pen.IsPaused());
  EXPECT_FALSE(pen.IsWriting());
  EXPECT_EQ(Dots(), all / 2);
  EXPECT_TRUE(pen.StrokeBack());
  EXPECT_EQ(Dots(), 0U);
  EXPECT_FALSE(pen.StrokeBack());
  pen.StrokeOn();
  EXPECT_EQ(Dots(), all / 2);
  EXPECT_TRUE(pen.IsPaused());
  pen.StrokeOn();
  EXPECT_FALSE(pen.IsPaused());
  EXPECT_EQ(Picture(), Plain());
  pen.StrokeBack();
  pen.StrokeBack();
  pen.GoOn();
  EXPECT_EQ(Picture(), Plain());
}

TEST_F(BoardPenTest, GoesBackThroughTheLastLetterAlone) {
  Write(TwoStrokes());
  Write(TwoStrokes(250));
  EXPECT_TRUE(pen.StrokeBack());
  EXPECT_TRUE(pen.StrokeBack());
  EXPECT_FALSE(pen.StrokeBack());
  EXPECT_EQ(pen.Stands(), (Player::Where{.letter = 1, .stroke = 0, .begun = false}));
}

TEST_F(BoardPenTest, OnAndGoOnDoNothingWhenAllIsWritten) {
  for (const bool empty : {true, false}) {
    if (!empty) Write(TwoStrokes());
    const std::size_t dots = Dots();
    pen.StrokeOn();
    pen.GoOn();
    EXPECT_EQ(Dots(), dots);
    EXPECT_FALSE(pen.IsPaused());
  }
  // Nor is the next letter one to pause in.
  pen.StrokeOn();
  Write(TwoStrokes(250));
  EXPECT_EQ(Picture(), Plain());
}

TEST_F(BoardPenTest, WritesTheLastLetterAgainAndSpeaksItOnce) {
  Write(TwoStrokes());
  const std::size_t one = Dots();
  Write(TwoStrokes(250));
  std::vector<std::size_t> dots;
  pen.SetFrameCall([&] { dots.push_back(Dots()); });
  pen.Again();
  EXPECT_EQ(spoken, 1);
  EXPECT_LT(dots.front(), 2 * one);  // it was taken away first
  EXPECT_GT(dots.front(), one);      // alone
  EXPECT_EQ(Picture(), Plain());
}

TEST_F(BoardPenTest, BeginsALetterAgainInItsMiddleOrInAPause) {
  for (const bool paused : {false, true}) {
    spoken = 0;
    AtFrames({[] {},
              [&] {
                if (paused) pen.Pause();
              },
              [&] {
                pen.Again();
                EXPECT_EQ(spoken, 0);  // not within the hand's own handler
              },
              [&] {
                EXPECT_FALSE(pen.IsPaused());
                EXPECT_EQ(pen.Stands(), (Player::Where{.letter = 0, .stroke = 0, .begun = true}));
              }});
    Write(TwoStrokes());
    EXPECT_EQ(spoken, 1);
    EXPECT_EQ(Picture(), Plain());
    pen.ForgetPage();
    sheet.Wipe();
  }
}

TEST_F(BoardPenTest, HasNothingToWriteAgainOnAnEmptyPage) {
  pen.Again();
  Write(TwoStrokes());
  pen.ForgetPage();
  pen.Again();
  pen.StrokeBack();
  EXPECT_EQ(spoken, 0);
  EXPECT_EQ(pen.LastLetter(), 0U);
  EXPECT_GT(Dots(), 0U);  // whoever forgets the page wipes the sheet
}

TEST_F(BoardPenTest, ForgetsALetterThatWasLeftHalfWay) {
  Write(TwoStrokes());
  pen.StrokeBack();
  const std::size_t half = Dots();
  Write(TwoStrokes(250));
  EXPECT_EQ(Dots(), 3 * half);
  EXPECT_EQ(pen.Letters().Letters().size(), 1U);
  EXPECT_FALSE(pen.IsPaused());
}

TEST_F(BoardPenTest, WritesNoMoreDotsAtAnyRateAndFewerFramesAtAHigherOne) {
  const auto framesAt = [&](double rate) {
    pen.ForgetPage();
    sheet.Wipe();
    pen.SetRate(rate);
    int frames = 0;
    pen.SetFrameCall([&] { ++frames; });
    Write(TwoStrokes());
    EXPECT_EQ(Picture(), Plain()) << rate;
    return frames;
  };
  const int usual = framesAt(1);
  EXPECT_GT(usual, 10);
  EXPECT_NEAR(framesAt(8), usual / 8.0, 1);
  EXPECT_NEAR(framesAt(0.125), usual * 8.0, 8);
}

TEST_F(BoardPenTest, TakesARateOverWhileItRuns) {
  std::vector<std::size_t> dots;
  pen.SetFrameCall([&] {
    dots.push_back(Dots());
    if (dots.size() == 3) pen.SetRate(0.25);
  });
  Write(TwoStrokes());
  ASSERT_GT(dots.size(), 6U);
  const double before = static_cast<double>(dots[2] - dots[1]);
  EXPECT_NEAR(static_cast<double>(dots[5] - dots[4]) / before, 0.25, 0.1);
}

TEST_F(BoardPenTest, LeavesALetterToWhoTakesIt) {
  bool takes = true;
  pen.SetTaker([&] { return takes; });
  Write(TwoStrokes());
  EXPECT_EQ(Dots(), 0U);
  EXPECT_TRUE(pen.WriteStrokeNow());
  const std::size_t stroke = Dots();
  EXPECT_GT(stroke, 0U);
  EXPECT_TRUE(pen.WriteStrokeNow());
  EXPECT_FALSE(pen.WriteStrokeNow());
  EXPECT_EQ(Picture(), Plain());
  takes = false;
  Write(TwoStrokes(250));
  EXPECT_EQ(Dots(), 4 * stroke);
}

TEST_F(BoardPenTest, SaysWhenItBeginsPausesAndEnds) {
  std::vector<bool> writing;
  QObject::connect(&pen, &BoardPen::Changed, &pen, [&] { writing.push_back(pen.IsWriting()); });
  Write(TwoStrokes());
  ASSERT_GE(writing.size(), 2U);
  EXPECT_TRUE(writing[writing.size() - 2]);
  EXPECT_FALSE(writing.back());
  changes = 0;
  pen.StrokeBack();
  EXPECT_EQ(changes, 1);
  changes = 0;
  pen.ForgetPage();
  EXPECT_EQ(changes, 1);
}

TEST_F(BoardPenTest, SaysWhenItIsAtTheNextStroke) {
  int atSecond = 0;
  QObject::connect(&pen, &BoardPen::Changed, &pen, [&] {
    if (pen.IsWriting() && pen.Stands().stroke == 1) ++atSecond;
  });
  pen.SetFrameCall([] {});
  Write(TwoStrokes());
  EXPECT_GE(atSecond, 1);
}

TEST_F(BoardPenTest, ForgetsALetterForWhichThereIsNoMemoryAndSaysSo) {
  /// What the journal asks for when it has 1024 dots and one more comes.
  constexpr std::size_t kFor2048Dots = 16000;
  Write(TwoStrokes());
  const std::size_t whole = Dots();
  bool pausedAtLast = false;
  QObject::connect(&pen, &BoardPen::Changed, &pen, [&] { pausedAtLast = pen.IsPaused(); });
  {
    const ScarceMemory memory(kFor2048Dots);
    EXPECT_THROW(Write(TwoStrokes(250)), std::bad_alloc);
    EXPECT_GE(memory.Refused(), 1);
  }
  EXPECT_GT(Dots(), whole);  // what was written by then stays
  EXPECT_TRUE(pen.Letters().Letters().empty());
  EXPECT_FALSE(pausedAtLast);
  Write(TwoStrokes(250));
  EXPECT_FALSE(pen.IsPaused());
}

TEST_F(BoardPenTest, WritesOnThoughWhatFollowsItFails) {
  SKIP_WHERE_LEAKS_COUNT();
  QObject::connect(&pen, &BoardPen::Changed, &pen, [] { throw std::runtime_error("no strip"); });
  pen.SetFrameCall([] {});
  EXPECT_NO_THROW(Write(TwoStrokes()));
  EXPECT_NO_THROW(pen.StrokeBack());
  EXPECT_NO_THROW(pen.GoOn());
  EXPECT_EQ(Picture(), Plain());
}

TEST_F(BoardPenTest, KeepsNoMoreLettersThanItMay) {
  const Letter dot(
      {
  },
      1, {{Primitive::LineRight, {50, 50, 52}}});
  for (int i = 0; i < 1000; ++i) Write(dot);
  EXPECT_LE(pen.Letters().Letters().size(), 256U);
  EXPECT_EQ(pen.LastLetter() + 1, pen.Letters().Letters().size());
}

}  // namespace
}  // namespace bramlee
