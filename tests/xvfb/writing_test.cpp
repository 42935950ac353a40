// Input, closes and the window while strokes are written, on a real display.
#include <gtest/gtest.h>

#include "tests/xvfb/on_watched_board.h"

namespace bramlee {
namespace {

class Writing : public ::testing::Test {
 protected:
  void ActivateOther() const {
    desktop.Xdotool({QStringLiteral("search"), QStringLiteral("--name"), QStringLiteral("^other$"),
                     QStringLiteral("windowactivate"), QStringLiteral("--sync")});
  }

  Desktop desktop;
};

TEST_F(Writing, AnswersASecondClickAfterTheFirstLetter) {
  // Slower and slower, should the machine be too busy to click within a letter.
  for (const char* step : {"0.004", "0.0005", "0.00005"}) {
    WatchedBoard board(desktop, QString::fromLatin1(step));
    board.BeginLetter();
    board.ClickTile(2);
    if (board.HasPrinted(QStringLiteral("written 1"))) continue;
    board.WaitFor(QStringLiteral("written 2"));
    board.ExpectInOrder({QStringLiteral("begins 1"), QStringLiteral("written 1"),
                         QStringLiteral("begins 2"), QStringLiteral("written 2")});
    const auto ticks = [&](const char* from, const char* to) {
      return board.CountBetween(QString::fromLatin1(from), QString::fromLatin1(to),
                                QStringLiteral("tick"));
    };
    EXPECT_EQ(ticks("begins 1", "written 1"), 0);
    EXPECT_LE(ticks("written 1", "begins 2"), 1);
    EXPECT_EQ(ticks("begins 2", "written 2"), 0);
    ExpectSheetHolds(board, Capitals(QByteArray(step).toDouble(), {1, 2}));
    return;
  }
  FAIL() << "no click came within a letter";
}

TEST_F(Writing, HurriesWithEveryDotAfterEscape) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("key Esc"));
  board.ExpectInOrder(
      {QStringLiteral("begins 1"), QStringLiteral("written 1"), QStringLiteral("key Esc")});
  ExpectSheetHolds(board, Capitals(kEndless.toDouble(), {1}));
}

TEST_F(Writing, DeliversAllInputInItsOrder) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  board.Click(QStringLiteral("text"));
  desktop.Xdotool({QStringLiteral("type"), QStringLiteral("aBc")});
  board.ClickTile(2);
  desktop.Key(QStringLiteral("w"));
  desktop.Click({900, 550});  // on the sheet
  desktop.Xdotool({QStringLiteral("click"), QStringLiteral("4")});
  desktop.Key(QStringLiteral("Escape"));
  desktop.Key(QStringLiteral("alt+f"));
  board.WaitFor(QStringLiteral("menu mnufile"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("text a"),
                       QStringLiteral("text aB"), QStringLiteral("text aBc"),
                       QStringLiteral("begins 2"), QStringLiteral("written 2"),
                       QStringLiteral("key W"), QStringLiteral("wheel"), QStringLiteral("key Esc"),
                       QStringLiteral("menu mnufile")});
  EXPECT_EQ(board.CountBetween(QStringLiteral("begins 1"), QStringLiteral("written 1"),
                               QStringLiteral("key")),
            0);
}

TEST_F(Writing, WritesALetterTwiceForADoubleClick) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  board.ClickTile(3);
  desktop.Xdotool({QStringLiteral("click"), QStringLiteral("1")});
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("key Esc"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("begins 3"),
                       QStringLiteral("written 3"), QStringLiteral("begins 3"),
                       QStringLiteral("written 3"), QStringLiteral("key Esc")});
  EXPECT_EQ(board.Lines().filter(QStringLiteral("begins 3")).size(), 2);
}

TEST_F(Writing, ClosesLastAndHurryUntilThen) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  desktop.AskToClose(board.Window());
  board.ClickTile(2);
  desktop.Key(QStringLiteral("x"));
  board.WaitFor(QStringLiteral("gone"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("close fbrmengc02")});
  EXPECT_EQ(board.Lines().filter(QStringLiteral("close")).size(), 1);
}

TEST_F(Writing, DeliversWhatCameBeforeTheClose) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  board.ClickTile(2);
  desktop.Key(QStringLiteral("x"));
  desktop.AskToClose(board.Window());
  board.WaitFor(QStringLiteral("gone"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("begins 2"),
                       QStringLiteral("written 2"), QStringLiteral("key X"),
                       QStringLiteral("close fbrmengc02"), QStringLiteral("gone")});
}

TEST_F(Writing, HurriesWhenAnotherWindowIsToClose) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  desktop.AskToClose(desktop.WindowTitled(QStringLiteral("other")));
  board.WaitFor(QStringLiteral("close other"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("close other")});
  ExpectSheetHolds(board, Capitals(kEndless.toDouble(), {1}));
}

TEST_F(Writing, HoldsTheInputOfOtherWindowsToo) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  ActivateOther();
  board.Click(QStringLiteral("other"));
  board.ClickTile(2);
  // The window manager brings the board to the front with the click, but in its own time.
  desktop.Xdotool({QStringLiteral("windowactivate"), QStringLiteral("--sync"),
                   QString::number(board.Window())});
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("key Esc"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("other clicked"),
                       QStringLiteral("begins 2"), QStringLiteral("written 2")});
}

TEST_F(Writing, HoldsQueuedCallsInTheirPlace) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  board.Tell(QStringLiteral("call one"));
  board.WaitFor(QStringLiteral("came call one"));
  board.ClickTile(2);
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("key Esc"));
  board.ExpectInOrder({QStringLiteral("begins 1"), QStringLiteral("came call one"),
                       QStringLiteral("written 1"), QStringLiteral("called one"),
                       QStringLiteral("begins 2"), QStringLiteral("key Esc")});
}

TEST_F(Writing, ClicksTheTileThatWasMeantThoughTheSheetScrollsMeanwhile) {
  WatchedBoard board(desktop, kEndless, QStringLiteral("520x420"));
  board.BeginLetter();
  board.WaitFor(QStringLiteral("sheet moved -"));  // a tile says that it begins before it scrolls
  const QString moved = board.Lines().filter(QStringLiteral("sheet moved")).last();
  const QPoint by(moved.section(u' ', 2, 2).toInt(), moved.section(u' ', 3, 3).toInt());
  EXPECT_LT(by.x(), 0);
  for (const int tile : {4, 3}) {
    desktop.Click(board.Place(WatchedBoard::Tile(tile)).toPoint() + by);
  }
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("key Esc"));
  board.ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("begins 4"),
                       QStringLiteral("written 4"), QStringLiteral("begins 3"),
                       QStringLiteral("written 3"), QStringLiteral("key Esc")});
}

TEST_F(Writing, LetsAMessageBoxWithinTheHandlerHaveItsInput) {
  WatchedBoard board(desktop, kEndless);
  board.Click(QStringLiteral("asks"));
  board.WaitFor(QStringLiteral("begins asking"));
  board.ClickTile(1);
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("asks"));
  board.WaitFor(QStringLiteral("box"));
  desktop.Key(QStringLiteral("Return"));
  board.WaitFor(QStringLiteral("key Esc"));
  board.ExpectInOrder({QStringLiteral("asks"), QStringLiteral("answered"),
                       QStringLiteral("done asking"), QStringLiteral("begins 1"),
                       QStringLiteral("written 1"), QStringLiteral("key Esc")});
}

TEST_F(Writing, RepaintsWhatIsUncoveredAndAnswerTheWindowManager) {
  WatchedBoard board(desktop, kEndless);
  board.BeginLetter();
  // On a busy machine the click's own repaint may be still to come: it is through by the second
  // answer.
  for (int i = 0; i < 2; ++i) ASSERT_TRUE(desktop.AnswersPing(board.Window(), 60'000));
  const QRect part(0, 60, 360, 600);  // the tiles; the pen is elsewhere
  const QImage before = desktop.Screenshot().copy(part);
  const auto shown = [&] { return desktop.Screenshot().copy(part); };
  desktop.Cover(part);
  EXPECT_TRUE(Eventually([&] { return shown() != before; }));
  desktop.Uncover();
  EXPECT_TRUE(Eventually([&] { return shown() == before; }));
  EXPECT_TRUE(desktop.AnswersPing(board.Window(), 60'000));
  EXPECT_FALSE(board.HasPrinted(QStringLiteral("written 1")));
}

TEST_F(Writing, LosesNothingWhenTheWindowIsResizedDuringALetter) {
  WatchedBoard board(desktop, kEndless, QStringLiteral("1280x640"));
  board.BeginLetter();
  desktop.Resize(board.Window(), {500, 400});
  board.WaitFor(QStringLiteral("board 500 400"));
  desktop.Resize(board.Window(), {1300, 660});
  board.WaitFor(QStringLiteral("board 1300 660"));
  EXPECT_FALSE(board.HasPrinted(QStringLiteral("written 1")));
  desktop.Key(QStringLiteral("Escape"));
  board.WaitFor(QStringLiteral("key Esc"));
  ExpectSheetHolds(board, Capitals(kEndless.toDouble(), {1}));
}

class WritingAtRatio : public ::testing::TestWithParam<double> {};

TEST_P(WritingAtRatio, ShowsTheDotsAsTheirPicture) {
  const double ratio = GetParam();
  const Desktop desktop({2732, 1536});
  WatchedBoard board(desktop, QStringLiteral("0.03"), {},
                     {QStringLiteral("QT_SCALE_FACTOR=%1").arg(ratio)});
  for (const int tile : {5, 6, 7, 8}) {
    board.ClickTile(tile);
    board.WaitFor(QStringLiteral("written %1").arg(tile));
  }
  const Ink ink = Capitals(0.03, {5, 6, 7, 8});
  ExpectSheetHolds(board, ink, ratio);
  const QRect letters = QRectF(400 * ratio, 100 * ratio, 820 * ratio, 300 * ratio).toAlignedRect();
  const QImage dots = board.Dots().copy(letters);
  const QPoint sheet =
      desktop.PlaceOf(board.Window()) + board.Place(QStringLiteral("sheet")).toPoint();
  const auto shown = [&] { return desktop.Screenshot().copy(letters.translated(sheet)); };
  EXPECT_TRUE(Eventually([&] { return shown() == dots; }));
}

INSTANTIATE_TEST_SUITE_P(Writing, WritingAtRatio, ::testing::Values(1, 1.25, 1.5, 2),
                         [](const auto& tried) {
                           return "At" + std::to_string(std::lround(tried.param * 100));
                         });

}  // namespace
}  // namespace bramlee
