// The pen's speed, by the strip's slider.
#include <QCoreApplication>
#include <QEvent>
#include <cmath>

#include "tests/companions/watch/watch_fixture.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

TEST_F(WatchTest, GoesFromAnEighthToEightTimesAsFastWithTheSameDots) {
  Board& board = Show("fbrmengc02");
  board.pic_Click(2);
  const QImage usual = Picture(board);
  const auto framesAt = [&](int position) {
    Pick(board, "mnuclear1");
    Slider(board)->setValue(position);
    int frames = 0;
    board.pen().SetFrameCall([&] { ++frames; });
    board.pic_Click(2);
    EXPECT_EQ(Picture(board), usual) << position;
    return frames;
  };
  const int frames = framesAt(0);
  EXPECT_DOUBLE_EQ(board.pen().Rate(), 1);
  EXPECT_NEAR(framesAt(Slider(board)->maximum()), frames / 8.0, 1);
  EXPECT_DOUBLE_EQ(board.pen().Rate(), 8);
  EXPECT_NEAR(framesAt(Slider(board)->minimum()), frames * 8.0, 8);
  EXPECT_DOUBLE_EQ(board.pen().Rate(), 0.125);
}

TEST_F(WatchTest, KeepsTheMenusSpeedsAsTheyAre) {
  Board& board = Show("fbrmengc02");
  Slider(board)->setValue(10);
  EXPECT_DOUBLE_EQ(board.sheet().Step(), 0.01);
  Pick(board, "mnuspd(4)");
  EXPECT_DOUBLE_EQ(board.pen().Rate(), 2);
  EXPECT_EQ(Slider(board)->value(), 10);
}

TEST_F(WatchTest, TakesTheSpeedOverWhileThePenRuns) {
  Board& board = Show("fbrmengc02");
  std::vector<std::size_t> dots;
  board.pen().SetFrameCall([&] {
    dots.push_back(Dots(board));
    if (dots.size() == 3) Slider(board)->setValue(-20);
  });
  board.pic_Click(2);
  ASSERT_GT(dots.size(), 6U);
  EXPECT_NEAR(static_cast<double>(dots[5] - dots[4]) / static_cast<double>(dots[2] - dots[1]), 0.25,
              0.1);
}

TEST_F(WatchTest, KeepsTheSpeedForEveryBoard) {
  const Board& first = Show("fbrmengc02");
  Board& second = Show("fbrmtelc01");
  Slider(first)->setValue(-15);
  EXPECT_EQ(Slider(second)->value(), -15);
  EXPECT_DOUBLE_EQ(second.pen().Rate(), std::exp2(-1.5));
  EXPECT_EQ(Slider(second)->toolTip(), Q("Speed of the pen: 0.35 times"));
  UnloadAll();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Board& later = Show("fbrmhinc01");
  EXPECT_EQ(Slider(later)->value(), -15);
  EXPECT_DOUBLE_EQ(later.pen().Rate(), std::exp2(-1.5));
}

TEST_F(WatchTest, IsAtTheUsualSpeedWhereTheFileHoldsNonsense) {
  Choices::Instance().Choose(Q("watch/speed"), Q("fast"));
  EXPECT_DOUBLE_EQ(Show("fbrmengc02").pen().Rate(), 1);
  Choices::Instance().Choose(Q("watch/speed"), 4000);
  EXPECT_DOUBLE_EQ(Show("fbrmtelv01").pen().Rate(), 8);
}

}  // namespace
}  // namespace bramlee
