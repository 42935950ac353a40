// Drawings that end half-way, or stay unseen, since memory runs out.
#include "tests/board/board_fixture.h"
#include "tests/board/scarce_memory.h"

namespace bramlee {
namespace {

/// What the journal asks for when it has 4096 and 8192 dots and one more comes.
constexpr std::size_t kFor8192Dots = 60000;
constexpr std::size_t kFor16384Dots = 120000;
/// Less than any colour on a board asks for.
constexpr std::size_t kForAPlane = 1000000;

class BoardFailures : public BoardTest {};

TEST_F(BoardFailures, AGridThatEndsHalfWayPutsThePenBackAndIsMarkedButNotFlagged) {
  Board& board = Open("fbrmengc02");
  {
    const ScarceMemory memory(kFor8192Dots);
    EXPECT_NO_THROW(Pick(board, "mnugrid"));
    EXPECT_EQ(memory.Refused(), 1);
  }
  EXPECT_EQ(board.sheet().ForeColor(), 0x0000FFU);
  EXPECT_TRUE(board.Checked(Q("mnugrid")));
  EXPECT_EQ(board.TextOf(Q("txtundo(32)")), Q("0"));
  EXPECT_EQ(ColourAt(board, 500, 50), kBlue);
  EXPECT_TRUE(IsBlank(board, 1200, 400));  // near the end of its last line
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(BoardFailures, ARuleThatEndsHalfWayPutsThePenBackAndIsMarkedAndFlagged) {
  Board& board = Open("fbrmengc02");
  board.SetText(Q("txtspd"), Q("0.5"));
  {
    const ScarceMemory memory(kFor8192Dots);
    EXPECT_NO_THROW(Pick(board, "mnurulled(5)"));
    EXPECT_EQ(memory.Refused(), 1);
  }
  EXPECT_EQ(board.sheet().ForeColor(), 0x0000FFU);
  EXPECT_EQ(Marked(board, "mnurulled", 5), std::vector<int>{5});
  EXPECT_EQ(board.TextOf(Q("txtundo(31)")), Q("1"));
  EXPECT_EQ(ColourAt(board, 500, 50), kBlue);
  EXPECT_TRUE(IsBlank(board, 500, 450));
}

TEST_F(BoardFailures, AGroupStartThatEndsHalfWayHasItsGridBeforeItsRule) {
  Board& board = Open("fbrmtelv01");  // where the two lie apart
  board.SetText(Q("txtundo(31)"), Q("1"));
  board.SetText(Q("txtundo(32)"), Q("1"));
  {
    const ScarceMemory memory(kFor16384Dots);
    EXPECT_NO_THROW(board.pic_Click(1));
    EXPECT_EQ(memory.Refused(), 1);
  }
  EXPECT_EQ(ColourAt(board, 1100, 540), kBlue);  // the end of the grid's last line
  EXPECT_EQ(ColourAt(board, 1150, 50), kBlue);   // the rule's first line
  EXPECT_TRUE(IsBlank(board, 1150, 350));        // its last one
  EXPECT_TRUE(IsBlank(board, 157, 310));         // and no letter
  EXPECT_EQ(board.sheet().ForeColor(), 0x0000FFU);
}

TEST_F(BoardFailures, ALetterThatEndsHalfWayIsNotTakenUpAgain) {
  Board& board = Open("fbrmengc02");
  board.SetText(Q("txtspd"), Q("0.01"));
  for (const int tile : {1, 2}) board.pic_Click(tile);
  {
    const ScarceMemory memory(kFor8192Dots);
    EXPECT_NO_THROW(board.pic_Click(3));
    EXPECT_EQ(memory.Refused(), 1);
  }
  ASSERT_EQ(ColourAt(board, 925, 150), kRed);  // the top of C
  board.pic_Click(4);
  EXPECT_EQ(ColourAt(board, 1025, 250), kRed);  // the stem of D
  EXPECT_TRUE(IsBlank(board, 972, 335));        // the end of C
}

TEST_F(BoardFailures, TheNextClickWritesAsBefore) {
  Board& board = Open("fbrmengc02");
  {
    const ScarceMemory memory(kFor8192Dots);
    Pick(board, "mnugrid");
  }
  board.pic_Click(2);
  EXPECT_EQ(ColourAt(board, 625, 200), kRed);
  Pick(board, "mnuclear1");
  EXPECT_TRUE(IsBlank(board, 625, 200));
}

TEST_F(BoardFailures, AGridWithoutRoomForItsColourPutsThePenBackAndComesWhenThereIsRoom) {
  Board& board = Open("fbrmengc02");
  board.pic_Click(2);
  board.sheet().grab();
  {
    const ScarceMemory memory(ScarceMemory::kAny, kForAPlane);
    EXPECT_NO_THROW(Pick(board, "mnugrid"));
    board.sheet().grab();
    EXPECT_GE(memory.Refused(), 1);
  }
  EXPECT_EQ(board.sheet().ForeColor(), 0x0000FFU);
  EXPECT_EQ(board.TextOf(Q("txtundo(32)")), Q("1"));
  EXPECT_EQ(board.sheet().grab().toImage().pixelColor(500, 50), QColor(Qt::blue));
}

}  // namespace
}  // namespace bramlee
