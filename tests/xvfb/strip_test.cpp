// The strip on a real display: a hand on the pen by mouse and keys, and the window in a pause.

#include <memory>

#include "tests/xvfb/on_watched_board.h"

namespace bramlee {
namespace {

/// A letter takes some two seconds at this step.
const QString kLong = QStringLiteral("0.002");

class StripOnDesktop : public ::testing::Test {
 protected:
  /// A board whose letter at tile 1 is being written.
  std::unique_ptr<WatchedBoard> Begin(const QString& step) const {
    auto board = std::make_unique<WatchedBoard>(desktop, step, QStringLiteral("1280x640"),
                                                QStringList(), true);
    board->BeginLetter();
    return board;
  }
  /// Once it returns, all that was written until then can be seen.
  void PressSpace(WatchedBoard& board, const char* then) const {
    desktop.Key(QStringLiteral("space"));
    board.WaitFor(QString::fromLatin1(then));
    EXPECT_TRUE(desktop.AnswersPing(board.Window(), 60'000));
  }
  /// The sheet's part where the letters come, once it stands still.
  QImage SeenLetters() const { return desktop.Screenshot().copy(400, 100, 820, 400); }

  Desktop desktop;
};

TEST_F(StripOnDesktop, SpaceStopsThePenAndLetsItGoOn) {
  const auto board = Begin(kLong);
  PressSpace(*board, "paused");
  const QImage stood = SeenLetters();
  // The window answers a dozen times: a pen that ran would have gone on by then.
  for (int i = 0; i < 12; ++i) {
    ASSERT_TRUE(desktop.AnswersPing(board->Window(), 60'000));
    EXPECT_EQ(SeenLetters(), stood) << i;
  }
  EXPECT_FALSE(board->HasPrinted(QStringLiteral("written 1")));
  PressSpace(*board, "runs");
  EXPECT_TRUE(Eventually([&] { return SeenLetters() != stood; }));
  board->WaitFor(QStringLiteral("written 1"));
  ExpectSheetHolds(*board, Capitals(kLong.toDouble(), {1}));
}

TEST_F(StripOnDesktop, TheWindowRepaintsInAPause) {
  const auto board = Begin(kEndless);
  PressSpace(*board, "paused");
  const QPoint sheet =
      desktop.PlaceOf(board->Window()) + board->Place(QStringLiteral("sheet")).toPoint();
  const QRect part(sheet + QPoint(20, 60), QSize(800, 400));
  const auto shown = [&] { return desktop.Screenshot().copy(part); };
  const QImage before = shown();
  desktop.Cover(part);
  EXPECT_TRUE(Eventually([&] { return shown() != before; }));
  desktop.Uncover();
  EXPECT_TRUE(Eventually([&] { return shown() == before; }));
  EXPECT_FALSE(board->HasPrinted(QStringLiteral("runs")));
}

TEST_F(StripOnDesktop, TheStripAnswersTheMouseWhileTilesWait) {
  const auto board = Begin(kLong);
  board->Click(QStringLiteral("strip_pause"));
  board->WaitFor(QStringLiteral("paused"));
  const QImage stood = SeenLetters();
  board->ClickTile(2);
  board->Click(QStringLiteral("strip_back"));
  EXPECT_TRUE(Eventually([&] { return SeenLetters() != stood; }));
  EXPECT_FALSE(board->HasPrinted(QStringLiteral("begins 2")));
  board->Click(QStringLiteral("strip_on"));
  board->WaitFor(QStringLiteral("runs"));
  board->WaitFor(QStringLiteral("paused"));  // at the stroke's end
  board->Click(QStringLiteral("strip_pause"));
  board->WaitFor(QStringLiteral("written 2"));
  board->ExpectInOrder({QStringLiteral("written 1"), QStringLiteral("begins 2")});
  ExpectSheetHolds(*board, Capitals(kLong.toDouble(), {1, 2}));
}

TEST_F(StripOnDesktop, EscInAPauseEndsTheLetterAtOnce) {
  const auto board = Begin(kLong);
  PressSpace(*board, "paused");
  desktop.Key(QStringLiteral("Escape"));
  board->WaitFor(QStringLiteral("key Esc"));
  board->ExpectInOrder(
      {QStringLiteral("paused"), QStringLiteral("written 1"), QStringLiteral("key Esc")});
  ExpectSheetHolds(*board, Capitals(kLong.toDouble(), {1}));
}

TEST_F(StripOnDesktop, ACloseInAPauseEndsTheLetterAndTheBoard) {
  const auto board = Begin(kLong);
  PressSpace(*board, "paused");
  desktop.AskToClose(board->Window());
  board->WaitFor(QStringLiteral("gone"));
  board->ExpectInOrder({QStringLiteral("paused"), QStringLiteral("written 1"),
                        QStringLiteral("close fbrmengc02"), QStringLiteral("gone")});
}

TEST_F(StripOnDesktop, LosesNothingWhenTheWindowIsResizedInAPause) {
  const auto board = Begin(kLong);
  PressSpace(*board, "paused");
  desktop.Resize(board->Window(), {500, 400});
  board->WaitFor(QStringLiteral("board 500 400"));
  desktop.Resize(board->Window(), {1300, 660});
  board->WaitFor(QStringLiteral("board 1300 660"));
  EXPECT_FALSE(board->HasPrinted(QStringLiteral("runs")));
  PressSpace(*board, "runs");
  board->WaitFor(QStringLiteral("written 1"));
  ExpectSheetHolds(*board, Capitals(kLong.toDouble(), {1}));
}

}  // namespace
}  // namespace bramlee
