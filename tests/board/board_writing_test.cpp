// Rules, grids, group starts and clicks on the boards.
#include <QCoreApplication>
#include <QScrollArea>
#include <QScrollBar>

#include "board/cues.h"
#include "tests/board/writing_fixture.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

struct Kind {
  const char* form;
  SheetExtent grid;
  int groupStart;  ///< a tile that wipes
  int free;        ///< X of a place between two columns where no letter of that tile comes
};
const Kind kKinds[] = {
    {"fbrmengc02", {400, 1200, 50, 450, 100, 200}, 1, 1100},
    {"fbrmengs01", {400, 1200, 50, 350, 75, 200},  1, 1100},
    {"fbrmhinv01", {100, 1100, 250, 550, 75, 250}, 1, 1000},
    {"fbrmhinc01", {100, 1100, 250, 550, 75, 250}, 1, 1000},
    {"fbrmtelv01", {100, 1100, 250, 550, 75, 250}, 1, 1000},
    {"fbrmtelc01", {100, 1100, 250, 550, 75, 250}, 1, 1000},
};

TEST_F(BoardWriting, AGridIsDrawnInTheGridColourAndThePenPutBack) {
  for (const Kind& kind : kKinds) {
    Board& board = Open(kind.form);
    Pick(board, "mnugcolor(3)");
    Pick(board, "mnucolor(1)");
    Pick(board, "mnugrid");
    const SheetExtent& grid = kind.grid;
    for (int line = 0; line < 5; ++line) {
      const int y = static_cast<int>(grid.top + line * grid.rowPitch);
      const int x = static_cast<int>(grid.left + line * grid.columnPitch);
      EXPECT_EQ(ColourAt(board, static_cast<int>(grid.left + grid.columnPitch / 2), y), kGreen);
      EXPECT_EQ(ColourAt(board, x, static_cast<int>(grid.top + grid.rowPitch / 2)), kGreen);
    }
    EXPECT_EQ(board.sheet().ForeColor(), 0U) << kind.form;
    EXPECT_TRUE(board.Checked(Q("mnugrid")));
    EXPECT_EQ(board.TextOf(Q("txtundo(32)")), Q("1"));
  }
}

TEST_F(BoardWriting, ARuleIsMarkedAndFlaggedAndDrawnInTheGridColour) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnurulled(2)");
  EXPECT_EQ(Marked(board, "mnurulled", 5), std::vector<int>{2});
  EXPECT_EQ(board.TextOf(Q("txtundo(28)")), Q("1"));
  EXPECT_EQ(ColourAt(board, 500, 250), kBlue);
  EXPECT_EQ(ColourAt(board, 500, 350), kBlue);
  EXPECT_TRUE(IsBlank(board, 500, 150));
  EXPECT_EQ(board.sheet().ForeColor(), 0xFFU);
}

TEST_F(BoardWriting, ManyLettersAreWrittenOnOneSheet) {
  Board& board = Open("fbrmengc02");
  const auto dots = [&board] { return board.sheet().Dots().KeptDots(); };
  board.pic_Click(10);
  const std::size_t once = dots();
  for (int i = 1; i < 300; ++i) board.pic_Click(10);
  EXPECT_EQ(dots(), 300 * once);
}

TEST_F(BoardWriting, AnotherRuleTakesTheMarkAndLeavesTheLines) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnurulled(2)");
  Pick(board, "mnurulled(5)");
  EXPECT_EQ(Marked(board, "mnurulled", 5), std::vector<int>{5});
  EXPECT_EQ(board.TextOf(Q("txtundo(28)")), Q("0"));
  EXPECT_EQ(board.TextOf(Q("txtundo(31)")), Q("1"));
  EXPECT_EQ(ColourAt(board, 500, 450), kBlue);
  Pick(board, "mnurulled(5)");  // picked again it only loses its mark
  EXPECT_TRUE(Marked(board, "mnurulled", 5).empty());
  EXPECT_EQ(board.TextOf(Q("txtundo(31)")), Q("0"));
  EXPECT_EQ(ColourAt(board, 500, 450), kBlue);
}

TEST_F(BoardWriting, TheLaterOfGridAndRuleLiesOnTop) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnugrid");
  Pick(board, "mnugcolor(3)");
  Pick(board, "mnurulled(1)");
  EXPECT_EQ(ColourAt(board, 500, 350), kGreen);
  EXPECT_EQ(ColourAt(board, 500, 250), kBlue);
  Pick(board, "mnugcolor(4)");
  Pick(board, "mnugrid");
  Pick(board, "mnugrid");
  EXPECT_EQ(ColourAt(board, 500, 350), kRed);
}

TEST_F(BoardWriting, RulesOfTeluguVowelsLieOffTheirGrid) {
  Board& board = Open("fbrmtelv01");
  Pick(board, "mnurulled(5)");
  for (const int y : {275, 350}) {
    EXPECT_EQ(ColourAt(board, 450, y), kBlue);
    EXPECT_EQ(ColourAt(board, 1195, y), kBlue);
    EXPECT_TRUE(IsBlank(board, 390, y));
  }
  EXPECT_TRUE(IsBlank(board, 450, 325));
}

TEST_F(BoardWriting, AGroupStartBringsTheGridBackOnEveryBoardAndTheRuleOnAllButCapitals) {
  for (const Kind& kind : kKinds) {
    Board& board = Open(kind.form);
    Pick(board, "mnugrid");
    Pick(board, "mnugcolor(3)");
    Pick(board, "mnurulled(1)");
    board.SetText(Q("txtundo(0)"), Q("1"));
    board.pic_Click(kind.groupStart);
    const bool capitals = Q(kind.form) == Q("fbrmengc02");
    const int gridX = static_cast<int>(kind.grid.left + 3 * kind.grid.columnPitch);
    EXPECT_EQ(ColourAt(board, gridX, static_cast<int>(kind.grid.top + 30)), kGreen) << kind.form;
    // Rule 1 lies on the fourth line; both are green now, so the grid is taken away once more.
    Pick(board, "mnugrid");
    board.pic_Click(kind.groupStart);
    const int ruleY = Q(kind.form) == Q("fbrmtelv01")
                          ? 275
                          : static_cast<int>(kind.grid.top + 3 * kind.grid.rowPitch);
    if (capitals) {
      EXPECT_TRUE(IsBlank(board, kind.free, ruleY)) << kind.form;
    } else {
      EXPECT_EQ(ColourAt(board, kind.free, ruleY), kGreen) << kind.form;
    }
    EXPECT_EQ(Marked(board, "mnurulled", 5), std::vector<int>{1}) << kind.form;
    EXPECT_EQ(board.TextOf(Q("txtundo(0)")), Q("0"));
    EXPECT_EQ(board.sheet().ForeColor(), 0xFFU);
  }
}

TEST_F(BoardWriting, OnCapitalsEveryGroupStartBringsTheGridBackAndNeverTheRule) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnurulled(4)");
  for (const int tile : {1, 5, 9, 13, 17, 21, 25}) {
    board.pic_Click(tile);
    EXPECT_TRUE(IsBlank(board, 1180, 450)) << tile;
  }
  Pick(board, "mnugrid");
  for (const int tile : {1, 5, 9, 13, 17, 21, 25}) {
    board.pic_Click(tile);
    EXPECT_EQ(ColourAt(board, 1180, 450), kBlue) << tile;
  }
  EXPECT_EQ(Marked(board, "mnurulled", 5), std::vector<int>{4});
}

TEST_F(BoardWriting, TheRuleComesBackByItsFlag) {
  Board& board = Open("fbrmengs01");
  board.SetText(Q("txtundo(27)"), Q("1"));
  board.pic_Click(1);
  EXPECT_EQ(Marked(board, "mnurulled", 5), std::vector<int>{1});
  EXPECT_EQ(ColourAt(board, 1100, 275), kBlue);
  EXPECT_TRUE(IsBlank(board, 1100, 125));
}

TEST_F(BoardWriting, GridAndRuleAreBackBeforeTheSound) {
  BoardRecord record = kTeluguVowelsBoard;
  record.cue = [](Board& board, const StrokeRec&) {
    Note(ColourAt(board, 1100, 300) == kBlue ? "grid" : "");
    Note(ColourAt(board, 1150, 350) == kBlue ? "rule" : "");
    Note(IsBlank(board, 157, 325 - 10) ? "blank" : "");
  };
  Board& board = Open(record);
  Pick(board, "mnugrid");
  Pick(board, "mnurulled(5)");
  board.pic_Click(1);
  EXPECT_EQ(Log(), "grid rule blank");
}

TEST_F(BoardWriting, OnlyAGroupsFirstTileWipes) {
  Board& board = Open("fbrmengc02");
  for (const int tile : {1, 2, 3, 4}) board.Tile(tile)->click();
  EXPECT_EQ(ColourAt(board, 625, 200), kRed);   // B
  EXPECT_EQ(ColourAt(board, 1025, 200), kRed);  // D
  board.Tile(5)->click();
  EXPECT_TRUE(IsBlank(board, 625, 200));
  EXPECT_TRUE(IsBlank(board, 1025, 200));
  EXPECT_EQ(ColourAt(board, 425, 200), kRed);  // E
}

TEST_F(BoardWriting, TileTwoWipesNothingAndTileOneWipesTheSheet) {
  Board& board = Open("fbrmtelv01");
  board.Tile(2)->click();
  EXPECT_EQ(ColourAt(board, 407, 325), kRed);
  board.Tile(1)->click();
  EXPECT_TRUE(IsBlank(board, 407, 325));
  EXPECT_EQ(ColourAt(board, 157, 325), kRed);
}

TEST_F(BoardWriting, AClickOrdersGroupStartRecordCueAndStrokes) {
  BoardRecord record = Noting(kCapitalsBoard);
  record.prepare = [](Board&, StrokeRec& rec) {
    Note("record" + std::to_string(static_cast<int>(rec.Col5)));
  };
  record.cue = [](Board&, const StrokeRec& rec) { Note("cue" + std::to_string(rec.LetterNo)); };
  Board& board = Open(record);
  board.Tile(5)->click();
  board.Tile(6)->click();
  EXPECT_EQ(Log(), "load load record1200 cue5 5 record1200 cue6 6");
}

TEST_F(BoardWriting, ACueIsAskedForOnlyWhilePlayIsOnAndWithTheBoardsNumber) {
  const struct {
    const char* form;
    std::int16_t number;
  } kNumbers[] = {
      {"fbrmengc02", 1},
      {"fbrmengs01", 2},
      {"fbrmhinv01", 3},
      {"fbrmhinc01", 4},
      {"fbrmtelv01", 5},
      {"fbrmtelc01", 6},
  };
  for (const auto& expected : kNumbers) {
    Board& board = Open(expected.form);
    CueBoardNo = 99;
    board.Tile(2)->click();
    EXPECT_EQ(CueBoardNo, 99) << expected.form;
    Pick(board, "mnuaud");
    board.Tile(2)->click();
    EXPECT_EQ(CueBoardNo, expected.number) << expected.form;
  }
}

TEST_F(BoardWriting, AnUnknownTileShowsTheBoardsMessageAndWipesNothing) {
  const struct {
    const char* form;
    const char* message;
    int beyond;
  } kMessages[] = {
      {"fbrmengc02", "My Mom is Calling.I am going for CHACOLATE",    27 },
      {"fbrmengs01", "My Mom is Calling.I am going for CHACOLATE",    27 },
      {"fbrmhinv01", "My Dad is Calling.He brings me  Dolls",         29 },
      {"fbrmhinc01", "My Friend is Calling.I am going for Ice-Cream", 112},
      {"fbrmtelv01", "My Mom is Calling.I am going for CHACOLATE",    37 },
      {"fbrmtelc01", "My Friend is Calling.I am going for Ice-Cream", 76 },
  };
  for (const auto& expected : kMessages) {
    Board& board = Open(expected.form);
    Pick(board, "mnurulled(5)");
    const QImage before = board.sheet().grab().toImage();
    for (const int index : {0, -1, expected.beyond, 1000}) {
      boxes.clear();
      board.pic_Click(index);
      EXPECT_EQ(boxes, QStringList{Q(expected.message)}) << expected.form << " " << index;
    }
    EXPECT_EQ(board.sheet().grab().toImage(), before) << expected.form;
  }
}

TEST_F(BoardWriting, AnUnknownTileHasItsRecordAndItsCueFirst) {
  BoardRecord record = kCapitalsBoard;
  record.prepare = [](Board&, StrokeRec& rec) { Note("record" + std::to_string(rec.LetterNo)); };
  record.cue = [](Board&, const StrokeRec&) { Note("cue"); };
  Board& board = Open(record);
  board.pic_Click(27);
  EXPECT_EQ(Log(), "record27 cue");
  EXPECT_EQ(boxes.size(), 1);
}

TEST_F(BoardWriting, AtTheQuickestSpeedTheCrossbarOfAMeetsItsLegs) {
  Board& board = Open("fbrmengc02");
  board.Tile(1)->click();
  // The legs stand 37.7 to either side at 100 below the top.
  for (const int x : {462, 500, 538}) EXPECT_EQ(ColourAt(board, x, 250), kRed) << x;
  EXPECT_TRUE(IsBlank(board, 450, 250));
  EXPECT_TRUE(IsBlank(board, 550, 250));
}

TEST_F(BoardWriting, TheLettersCellIsInViewBeforeItIsWritten) {
  const struct {
    const char* form;
    int tile;
    QRect cell;
  } kCells[] = {
      {"fbrmengc02", 8, QRect(1025, 150, 150, 200)},
      {"fbrmengc02", 1, QRect(430,  150, 140, 200)},
      {"fbrmtelv01", 4, QRect(870,  330, 200, 140)},
      {"fbrmtelv01", 1, QRect(130,  330, 150, 130)},
  };
  for (const auto& expected : kCells) {
    for (const bool fromTheRight : {false, true}) {
      BoardRecord record =
          *(Q(expected.form) == Q("fbrmengc02") ? &kCapitalsBoard : &kTeluguVowelsBoard);
      static QRect seen;
      record.write = [](Board& board, StrokeRec&) {
        const auto* view = board.findChild<QScrollArea*>()->viewport();
        seen = QRect(-board.sheet().pos(), view->size());
      };
      Board& board = Open(record);
      board.show();
      board.resize(500, 420);
      QCoreApplication::processEvents();
      auto* scroller = board.findChild<QScrollArea*>();
      const int end = scroller->horizontalScrollBar()->maximum();
      scroller->horizontalScrollBar()->setValue(fromTheRight ? end : 0);
      scroller->verticalScrollBar()->setValue(fromTheRight ? 1000 : 0);
      board.pic_Click(expected.tile);
      EXPECT_TRUE(seen.contains(expected.cell)) << expected.form << " " << expected.tile;
      UnloadForm(&board);
    }
  }
}

TEST_F(BoardWriting, TheKeyboardScrollsToTheTileItReachesAndTheMouseDoesNot) {
  Board& board = Open("fbrmtelc01");
  board.show();
  board.activateWindow();
  board.resize(500, 420);
  QCoreApplication::processEvents();
  board.Tile(75)->setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(board.sheet().pos(), QPoint(0, 0));
  board.Tile(74)->setFocus(Qt::TabFocusReason);
  const auto* view = board.findChild<QScrollArea*>()->viewport();
  const QRect seen(-board.sheet().pos(), view->size());
  EXPECT_TRUE(seen.contains(board.Tile(74)->geometry()));
}

TEST_F(BoardWriting, TilesAreCalledByTheirLetters) {
  EXPECT_EQ(Open("fbrmengc02").Tile(2)->accessibleName(), Q("capital B"));
  for (const Kind& kind : kKinds) {
    const Board& board = Open(kind.form);
    for (int i = 1; i <= board.letters().tiles; ++i) {
      EXPECT_FALSE(board.Tile(i)->accessibleName().isEmpty()) << kind.form << " " << i;
    }
  }
}

TEST_F(BoardWriting, ALetterInViewScrollsNothing) {
  Board& board = Open("fbrmengc02");
  board.show();
  board.resize(1024, 700);
  QCoreApplication::processEvents();
  auto* bar = board.findChild<QScrollArea*>()->horizontalScrollBar();
  bar->setValue(90);
  board.pic_Click(2);
  EXPECT_EQ(bar->value(), 90);
}

}  // namespace
}  // namespace bramlee
