// What a wipe takes away and what it puts back.
#include <QCoreApplication>
#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <stdexcept>

#include "board/board.h"
#include "tests/board/board_fixture.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

class Wipe : public BoardTest {};

/// Counts what would be seen as a flash, or as another window.
class WindowWatch : public QObject {
 public:
  explicit WindowWatch(Board& board) {
    board.installEventFilter(this);
    connect(&board, &QObject::destroyed, this, [this] { ++seen; });
  }
  bool eventFilter(QObject* /*form*/, QEvent* event) override {
    switch (event->type()) {
      case QEvent::Hide:
      case QEvent::Show:
      case QEvent::Move:
      case QEvent::Resize:
      case QEvent::WindowStateChange:
      case QEvent::Close:
        ++seen;
        break;
      default:
        break;
    }
    return false;
  }
  int seen = 0;
};

TEST_F(Wipe, LeavesRuleAndGridMarkedAndTheSheetEmptyOfBoth) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnurulled(2)");
  Pick(board, "mnugrid");
  board.pic_Click(2);
  ASSERT_EQ(ColourAt(board, 450, 250), kBlue);
  ASSERT_EQ(ColourAt(board, 625, 200), kRed);
  Pick(board, "mnuclear1");
  EXPECT_TRUE(board.Checked(Q("mnugrid")));
  EXPECT_EQ(board.TextOf(Q("txtundo(32)")), Q("1"));
  EXPECT_EQ(Marked(board, "mnurulled", 5), std::vector<int>{2});
  EXPECT_EQ(board.TextOf(Q("txtundo(28)")), Q("1"));
  EXPECT_TRUE(IsBlank(board, 450, 250));
  EXPECT_TRUE(IsBlank(board, 400, 100));
  EXPECT_TRUE(IsBlank(board, 625, 200));
}

TEST_F(Wipe, KeepsColoursAndSpeedButNotTheirMarks) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnugcolor(3)");
  Pick(board, "mnucolor(1)");
  Pick(board, "mnuspd(5)");
  Pick(board, "mnuclear1");
  EXPECT_EQ(ForeColorOf(board.Named<QWidget>(Q("txtgridcolor"))), 0x00FF00U);
  EXPECT_EQ(board.sheet().ForeColor(), 0U);
  EXPECT_EQ(board.TextOf(Q("txtspd")), Q("0.2"));
  EXPECT_TRUE(Marked(board, "mnugcolor", 6).empty());
  EXPECT_TRUE(Marked(board, "mnucolor", 6).empty());
  EXPECT_TRUE(Marked(board, "mnuspd", 6).empty());
}

TEST_F(Wipe, BringsBackToDesignWhatItDoesNotKeep) {
  Board& board = Open("fbrmengc02");
  board.SetText(Q("txtundo(0)"), Q("1"));
  board.SetText(Q("txtundo(7)"), Q("1"));
  board.SetText(Q("txtgridcolor"), Q("5"));
  Pick(board, "mnuclear1");
  EXPECT_EQ(board.TextOf(Q("txtundo(0)")), Q("0"));
  EXPECT_EQ(board.TextOf(Q("txtundo(7)")), Q("0"));
  EXPECT_EQ(board.TextOf(Q("txtgridcolor")), Q("0"));
}

TEST_F(Wipe, KeepsTheFirstOfSeveralRuleFlagsAndAGridFlagOfOneOnly) {
  Board& board = Open("fbrmengc02");
  board.SetText(Q("txtundo(31)"), Q("1"));
  board.SetText(Q("txtundo(29)"), Q("7"));
  board.SetText(Q("txtundo(32)"), Q("2"));
  Pick(board, "mnuclear1");
  EXPECT_EQ(board.TextOf(Q("txtundo(29)")), Q("1"));
  EXPECT_EQ(board.TextOf(Q("txtundo(31)")), Q("0"));
  EXPECT_EQ(Marked(board, "mnurulled", 5), std::vector<int>{3});
  EXPECT_EQ(board.TextOf(Q("txtundo(32)")), Q("0"));
  EXPECT_FALSE(board.Checked(Q("mnugrid")));
}

TEST_F(Wipe, KeepsTheFirstMarkedFormatWhilePlayIsOn) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnuaud");
  Pick(board, "mnufor(2)");
  board.SetChecked(Q("mnufor(3)"), true);
  Pick(board, "mnuclear1");
  EXPECT_TRUE(board.Checked(Q("mnuaud")));
  EXPECT_EQ(Marked(board, "mnufor", 4), std::vector<int>{2});
}

TEST_F(Wipe, LosesAFormatChosenWhilePlayIsOff) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnufor(2)");
  Pick(board, "mnuclear1");
  EXPECT_TRUE(Marked(board, "mnufor", 4).empty());
  EXPECT_FALSE(board.Checked(Q("mnuaud")));
}

TEST_F(Wipe, PutsTheBoardsOwnDriveBackWhateverTheMediasIs) {
  Board& board = Open("fbrmengc02");
  board.SetText(Q("txtdrv"), Q("D:"));
  drive = Q("E:");
  Pick(board, "mnuclear1");
  EXPECT_EQ(board.TextOf(Q("txtdrv")), Q("D:"));
}

TEST_F(Wipe, ShowsTheTitleAndLetsItBlinkAgain) {
  Board& board = Open("fbrmengc02");
  board.Timer1_Timer();
  Pick(board, "mnublink");
  ASSERT_TRUE(board.Named<QWidget>(Q("txthdr1"))->isHidden());
  Pick(board, "mnuclear1");
  EXPECT_FALSE(board.Named<QWidget>(Q("txthdr1"))->isHidden());
  EXPECT_TRUE(board.Named<QTimer>(Q("Timer1"))->isActive());
}

TEST_F(Wipe, RemovesForGoodAGridThatLostItsMark) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnugrid");
  Pick(board, "mnugrid");
  EXPECT_FALSE(board.Checked(Q("mnugrid")));
  EXPECT_EQ(board.TextOf(Q("txtundo(32)")), Q("0"));
  EXPECT_EQ(ColourAt(board, 400, 100), kBlue);
  board.pic_Click(1);
  EXPECT_TRUE(IsBlank(board, 400, 100));
  EXPECT_FALSE(board.Checked(Q("mnugrid")));
}

TEST_F(Wipe, NeitherFlashesNorMovesNorScrollsTheWindow) {
  Board& board = Open("fbrmtelc01");
  board.show();
  board.resize(600, 400);
  QCoreApplication::processEvents();
  auto* scroller = board.findChild<QScrollArea*>();
  scroller->horizontalScrollBar()->setValue(150);
  scroller->verticalScrollBar()->setValue(120);
  const QPoint place = board.sheet().pos();
  ASSERT_EQ(place, QPoint(-150, -120));
  board.Tile(3)->setFocus();
  const WindowWatch watch(board);
  Pick(board, "mnuclear1");
  QCoreApplication::processEvents();
  EXPECT_EQ(board.sheet().pos(), place);
  EXPECT_EQ(watch.seen, 0);
  EXPECT_EQ(LoadedForm(Q("fbrmtelc01")), &board);
  EXPECT_EQ(board.focusWidget(), board.Tile(3));
}

TEST_F(Wipe, ReportsItsFailure) {
  BoardRecord record = kCapitalsBoard;
  static bool fails;
  fails = false;
  record.layOut = [](Board&) {
    if (fails) throw std::runtime_error("no room");
  };
  const Board& board = Open(record);
  EXPECT_EQ(LoadedForm(Q("fcomsav1")), nullptr);
  fails = true;
  EXPECT_NO_THROW(Pick(board, "mnuclear1"));
  EXPECT_NE(LoadedForm(Q("fcomsav1")), nullptr);
}

TEST_F(Wipe, LeavesTheLocalsOfTheCallerAlone) {
  // The board's form lives on, so a handler that wipes half-way goes on with what it had.
  Board& board = Open("fbrmengc02");
  Pick(board, "mnudall");
  EXPECT_EQ(ColourAt(board, 700, 150), kRed);  // the Z of the last group
}

}  // namespace
}  // namespace bramlee
