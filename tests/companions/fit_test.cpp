// The button that fits the boards to their windows.
#include "companions/fit/fit.h"

#include <QScrollArea>
#include <QTest>

#include "board/strip.h"
#include "companions/watch/watch.h"
#include "tests/board/board_fixture.h"
#include "ui/held_input.h"

namespace bramlee {
namespace {

class Fitting : public BoardWith<AddWatching, AddFitting> {
 protected:
  Board& OpenShown(const char* form) {
    Board& board = Open(form);
    board.show();
    board.resize(1366, 768);
    board.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&board));
    return board;
  }

  static StripButton* Button(const Board& board) {
    return board.Named<StripButton>(Q("strip_fit"));
  }
  static QImage Dots(const Board& board) {
    return board.sheet().Dots().Picture(QRectF(0, 0, 1300, 700), 1, Qt::white);
  }
  static void ClickInWindow(Board& board, const QWidget* control) {
    QTest::mouseClick(board.windowHandle(), Qt::LeftButton, {},
                      control->mapTo(&board, control->rect().center()));
  }
  /// What a user does while a letter is written: it comes as the windows live.
  static void Meanwhile(Board& board, const std::function<void()>& act) {
    QMetaObject::invokeMethod(&board, act, Qt::QueuedConnection);
  }
  /// What the pen alone writes.
  static QImage Plain(int tile, double step) {
    Ink ink(step);
    StrokeRec rec = FillStrokeRec(SheetKind::Capitals, static_cast<std::int16_t>(tile));
    WriteCapital(rec, ink);
    return ink.Picture(QRectF(0, 0, 1300, 700), 1, Qt::white);
  }
};

TEST_F(Fitting, HasAButtonOnTheStripThatIsOffAtFirst) {
  const Board& board = Open("fbrmengc02");
  const StripButton* button = Button(board);
  EXPECT_EQ(button->accessibleName(), Q("Fit the board to the window"));
  EXPECT_EQ(button->toolTip(), Q("Fit the board to the window (F)"));
  EXPECT_TRUE(button->isCheckable());
  EXPECT_FALSE(button->isChecked());
  EXPECT_FALSE(button->icon().isNull());
  EXPECT_FALSE(board.FitsWindow());
}

TEST_F(Fitting, IsSwitchedByTheButtonAndStaysForBoardsToCome) {
  Board& board = OpenShown("fbrmengc02");
  Button(board)->click();
  EXPECT_TRUE(board.FitsWindow());
  EXPECT_TRUE(Open("fbrmtelv01").FitsWindow());
  UnloadAll();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Board& again = OpenShown("fbrmengc02");
  EXPECT_TRUE(again.FitsWindow());
  EXPECT_TRUE(Button(again)->isChecked());
  Button(again)->click();
  EXPECT_FALSE(again.FitsWindow());
  EXPECT_FALSE(Open("fbrmtelc01").FitsWindow());
}

TEST_F(Fitting, IsFollowedByTheBoardsThatStand) {
  const Board& capitals = Open("fbrmengc02");
  const Board& vowels = Open("fbrmhinv01");
  Button(capitals)->click();
  EXPECT_TRUE(vowels.FitsWindow());
  EXPECT_TRUE(Button(vowels)->isChecked());
  Button(vowels)->click();
  EXPECT_FALSE(capitals.FitsWindow());
  EXPECT_FALSE(Button(capitals)->isChecked());
}

TEST_F(Fitting, IsSwitchedByItsKey) {
  Board& board = OpenShown("fbrmengc02");
  QTest::keyClick(&board, Qt::Key_F);
  EXPECT_TRUE(board.FitsWindow());
  EXPECT_TRUE(Button(board)->isChecked());
  QTest::keyClick(&board, Qt::Key_F);
  EXPECT_FALSE(board.FitsWindow());
}

TEST_F(Fitting, LeavesTheSheetTheRoomThatTheStripDoesNotTake) {
  Board& board = OpenShown("fbrmtelc01");
  Button(board)->click();
  QCoreApplication::processEvents();
  const int withStrip = board.sheet().height();
  EXPECT_EQ(board.sheet().size(), board.findChild<QScrollArea*>()->viewport()->size());
  board.strip().hide();
  EXPECT_TRUE(QTest::qWaitFor([&] { return board.sheet().height() > withStrip; }));
  EXPECT_EQ(board.sheet().size(), board.findChild<QScrollArea*>()->viewport()->size());
}

TEST_F(Fitting, ActsInTheMiddleOfALetterAndOfAPauseWithTheSameDots) {
  Board& board = OpenShown("fbrmengc02");
  board.SetText(Q("txtspd"), Q("0.03"));
  int frames = 0;
  std::vector<bool> fitted;
  board.pen().SetFrameCall([&] {
    ++frames;
    if (frames == 3) Meanwhile(board, [&] { ClickInWindow(board, Button(board)); });
    if (frames == 6) board.pen().Pause();
    if (frames == 8) {
      Meanwhile(board, [&] { QTest::keyClick(board.windowHandle(), Qt::Key_F); });
    }
    if (frames == 10) Meanwhile(board, [&] { ClickInWindow(board, Button(board)); });
    if (frames == 12) board.resize(1920, 1080);
    if (frames == 14) board.pen().GoOn();
    fitted.push_back(board.FitsWindow());
  });
  board.pic_Click(2);
  board.pen().SetFrameCall(nullptr);
  ASSERT_GT(frames, 15);
  EXPECT_FALSE(fitted[1]);
  EXPECT_TRUE(fitted[5]);
  EXPECT_FALSE(fitted[9]);
  EXPECT_TRUE(fitted[12]);
  EXPECT_EQ(Dots(board), Plain(2, 0.03));
}

TEST_F(Fitting, AClickThatWaitsHitsItsTileThoughTheBoardGrewMeanwhile) {
  Board& board = OpenShown("fbrmengc02");
  int frames = 0;
  board.pen().SetFrameCall([&] {
    if (++frames == 2) Meanwhile(board, [&] { ClickInWindow(board, board.Tile(26)); });
    if (frames == 3) Button(board)->click();
    if (frames == 4) board.resize(1920, 1080);
  });
  board.SetText(Q("txtspd"), Q("0.03"));
  board.pic_Click(2);
  board.pen().SetFrameCall(nullptr);
  ASSERT_GT(frames, 4);
  EXPECT_EQ(Dots(board), Plain(2, 0.03));
  board.SetText(Q("txtspd"), Q("0.2"));
  bool free = false;
  WhenFree(&board, [&free] { free = true; });
  ASSERT_TRUE(QTest::qWaitFor([&free] { return free; }));
  Ink both(0.03);
  StrokeRec second = FillStrokeRec(SheetKind::Capitals, 2);
  WriteCapital(second, both);
  both.SetStep(0.2);
  StrokeRec last = FillStrokeRec(SheetKind::Capitals, 26);
  WriteCapital(last, both);
  EXPECT_EQ(Dots(board), both.Picture(QRectF(0, 0, 1300, 700), 1, Qt::white));
}

}  // namespace
}  // namespace bramlee
