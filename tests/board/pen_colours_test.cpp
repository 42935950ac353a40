// Colours of letters and rulings, whatever a hand has the pen do.
#include "tests/board/board_fixture.h"
#include "tests/board/pen_fixture.h"

namespace bramlee {
namespace {

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

}  // namespace
}  // namespace bramlee
