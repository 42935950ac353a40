// The pen of a board on a sheet alone: what a hand asks of it between its frames.
#include "board/board_pen.h"

#include <QImage>
#include <functional>
#include <new>
#include <stdexcept>
#include <utility>
#include <vector>

#include "tests/board/board_fixture.h"
#include "tests/board/scarce_memory.h"
#include "tests/board/sheet_colours.h"
#include "tests/ui/failing_event.h"

namespace bramlee {
namespace {

constexpr ColourWord kRedWord = 0x0000FF;
constexpr double kStep = 0.01;

/// A letter of two pen strokes, either of 20,000 dots: a dozen frames at 60 a second.
Letter TwoStrokes(double y = 100) {
  return {
      {                                         },
      kStep, { {Primitive::LineRight, {50, y, 250}}, {Primitive::LineRight, {50, y + 50, 250}}}
  };
}

class BoardPenTest : public ::testing::Test {
 protected:
  BoardPenTest() {
    sheet.resize(400, 400);
    QObject::connect(&pen, &BoardPen::Changed, &pen, [this] { ++changes; });
  }

  using Act = std::function<void()>;
  /// Has these happen at the pen's next frames, one a frame.
  void AtFrames(std::vector<Act> acts) {
    pen.SetFrameCall([acts = std::move(acts), next = std::size_t{0}]() mutable {
      if (next < acts.size()) acts[next++]();
    });
  }
  void Write(Letter letter, ColourWord colour = kRedWord) {
    pen.Write({.letter = std::move(letter), .colour = colour, .placing = {}}, [this] { ++spoken; });
  }
  QImage Picture() const { return sheet.Dots().Picture(QRect(0, 0, 400, 400), 1, Qt::white); }
  /// The page as it is written with no hand on the pen.
  QImage Plain() const {
    Ink ink;
    Player(pen.Letters(), ink).RunToEnd();
    return ink.Picture(QRect(0, 0, 400, 400), 1, Qt::white);
  }
  std::size_t Dots() const { return sheet.Dots().KeptDots(); }

  Sheet sheet;
  BoardPen pen{sheet};
  int changes = 0;
  int spoken = 0;
};

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

TEST_F(BoardPenTest, LeavesTheChosenColourToTheNextDots) {
  Write(TwoStrokes(), kRedWord);
  sheet.SetForeColor(kBlueWord);
  pen.StrokeBack();
  EXPECT_EQ(sheet.ForeColor(), kBlueWord);
  EXPECT_EQ(sheet.Dots().Colour(), kBlueWord);
  pen.GoOn();
  EXPECT_EQ(sheet.Dots().Colour(), kBlueWord);
  EXPECT_EQ(Picture(), Plain());  // the letter keeps its own
  EXPECT_EQ(Picture().pixelColor(100, 150), kRed);
}

TEST_F(BoardPenTest, KeepsALettersColourThroughAPauseInItsMiddle) {
  Write(TwoStrokes(), kRedWord);
  pen.StrokeBack();
  AtFrames({[] {}, [&] { pen.Pause(); }});
  pen.GoOn();
  ASSERT_TRUE(pen.IsPaused());
  ASSERT_TRUE(pen.Stands().begun);
  sheet.SetForeColor(kBlueWord);
  pen.GoOn();
  for (const int x : {60, 150, 240}) EXPECT_EQ(Picture().pixelColor(x, 150), kRed) << x;
}

TEST_F(BoardPenTest, KeepsARulingsColourThoughNoStrokeCanGoBack) {
  const Letter lines(
      {
  },
      kStep, {{Primitive::LineRight, {50, 30, 350}}});
  Write(TwoStrokes());
  pen.ForgetPage();
  std::size_t dots = 0;
  AtFrames({[] {},
            [&] {
              dots = Dots();
              EXPECT_FALSE(pen.StrokeBack());
              EXPECT_EQ(Dots(), dots);
              pen.GoOn();
            }});
  pen.WriteRuling(lines, kBlueWord);
  EXPECT_GT(Dots(), dots);
  for (const int x : {60, 200, 340}) EXPECT_EQ(Picture().pixelColor(x, 30), kBlue) << x;
}

TEST_F(BoardPenTest, LeavesARulingWhereALettersStrokeGoes) {
  const Letter line(
      {
  },
      kStep, {{Primitive::LineDown, {150, 20, 380}}});
  Write(TwoStrokes());
  pen.WriteRuling(line, kBlueWord);
  EXPECT_TRUE(pen.StrokeBack());
  EXPECT_EQ(Picture().pixelColor(150, 150), kBlue);
  EXPECT_EQ(Picture().pixelColor(100, 150), kWhite);
  EXPECT_EQ(Picture().pixelColor(100, 100), kRed);
  pen.GoOn();
  EXPECT_EQ(Picture(), Plain());
  EXPECT_EQ(pen.LastLetter(), 0U);
}

TEST_F(BoardPenTest, LaysARulingOverALetterThatStandsHalfWay) {
  Write(TwoStrokes());
  pen.StrokeBack();
  pen.WriteRuling({{}, kStep, {{Primitive::LineDown, {150, 20, 380}}}}, kBlueWord);
  EXPECT_EQ(Picture().pixelColor(150, 250), kBlue);
  EXPECT_TRUE(pen.IsPaused());
  pen.GoOn();
  EXPECT_EQ(Picture(), Plain());
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
