// The board of digits and signs: tiles, wipes, alternative forms, Draw All, sound.
#include <QMenuBar>

#include "tests/files/trap_log.h"
#include "tests/maths/maths_fixture.h"
#include "tests/ui/failing_event.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

class MathsBoard : public MathsTest {
 protected:
  const QString kAll = QStringLiteral("1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17");
};

TEST_F(MathsBoard, LooksAsDesigned) {
  EXPECT_EQ(TextOf("txthdr1"), QStringLiteral("MATHS NUMBERS"));
  EXPECT_EQ(ShownTiles(), kAll);
  for (int i = 1; i <= 10; ++i) {
    const TwipsRect tile = PlaceOf(board->Tile(i));
    EXPECT_EQ(tile.left, 600 + (i - 1) % 5 * 1050) << i;
    EXPECT_EQ(tile.top, i <= 5 ? 600 : 1500) << i;
    EXPECT_EQ(tile.width, 900) << i;
    EXPECT_EQ(tile.height, 825) << i;
  }
  for (int i = 1; i <= 17; ++i) {
    EXPECT_EQ(board->Tile(i)->toolTip(), QStringLiteral("Click To Draw")) << i;
  }
  EXPECT_EQ(board->record().backColor, 0x00E0E0E0U);
  EXPECT_TRUE(CheckedMathsItems().isEmpty());
}

TEST_F(MathsBoard, TilesLieApartAndOnASmallScreen) {
  for (int i = 1; i <= 17; ++i) {
    const QRect tile = board->Tile(i)->geometry();
    EXPECT_LT(tile.right(), 1000) << i;
    EXPECT_LT(tile.bottom(), 250) << i << " would lie over the sheet's rows";
    for (int j = i + 1; j <= 17; ++j) {
      EXPECT_FALSE(tile.intersects(board->Tile(j)->geometry())) << i << " and " << j;
    }
  }
}

TEST_F(MathsBoard, MenuBarReadsAsOnTheOtherBoardsWithMathsBeforeTheGap) {
  QStringList bar;
  for (const QAction* item : board->menuBar()->actions()) bar.append(item->text());
  EXPECT_EQ(
      bar, (QStringList{QStringLiteral("&File"), QStringLiteral("&Colors"), QStringLiteral("&Draw"),
                        QStringLiteral("&Audio"), QStringLiteral("&Maths"), QString(66, u' '),
                        QStringLiteral("&Clear     ")}));
  EXPECT_EQ(Find<QAction>("mnuback")->text(), QStringLiteral("&Back"));
  EXPECT_EQ(Find<QAction>("mnudrawalt")->text(), QStringLiteral("&Draw Alternatives"));
}

TEST_F(MathsBoard, HiddenBoxesHoldTheirDesign) {
  for (const char* box : {"txtalt", "txtalt3", "txtaltno", "txtaud", "txttable"}) {
    EXPECT_EQ(TextOf(box), QStringLiteral("0")) << box;
    EXPECT_FALSE(Shown(box)) << box;
  }
  EXPECT_EQ(TextOf("txtsetno"), QStringLiteral("1"));
  EXPECT_EQ(TextOf("txtsign"), QStringLiteral("17"));
  EXPECT_FALSE(Shown("txtsignleft") || Shown("txtsigntop"));
}

TEST_F(MathsBoard, TileOneWipesAndTileTwoAdds) {
  ClickTile(3);
  ASSERT_TRUE(InkBetween(610, 840));
  ClickTile(2);
  EXPECT_TRUE(InkBetween(610, 840));
  ClickTile(1);
  EXPECT_FALSE(InkBetween(610, 840));
  EXPECT_TRUE(InkBetween(110, 340));
}

TEST_F(MathsBoard, OnlyFiveTilesWipe) {
  for (int tile = 1; tile <= 17; ++tile) {
    Find<QLineEdit>("txtundo(0)")->setText(QStringLiteral("1"));
    ClickTile(tile);
    const bool wiped = TextOf("txtundo(0)") == QStringLiteral("0");
    EXPECT_EQ(wiped, tile == 1 || tile == 5 || tile == 9 || tile == 13 || tile == 15) << tile;
  }
}

TEST_F(MathsBoard, GridAndOneRuleComeBackAtAGroupStart) {
  Pick("mnugrid");
  Pick("mnurulled(2)");
  ClickTile(1);
  EXPECT_TRUE(InkAt(1050, 325) && InkAt(1050, 475)) << "the rules";
  EXPECT_TRUE(InkAt(1050, 400)) << "the grid";
  Pick("mnugrid");
  ClickTile(5);
  EXPECT_TRUE(InkAt(1050, 325) && InkAt(1050, 475));
  EXPECT_FALSE(InkAt(1050, 400));
}

TEST_F(MathsBoard, EveryTileWritesInItsOwnPlace) {
  struct Part {
    int left;
    int right;
  };
  // Left and right edges of the cells that each tile writes in, in sheet pixels.
  constexpr Part kCells[] = {
      {100, 350 },
      {350, 600 },
      {600, 850 },
      {850, 1100},
      {100, 350 },
      {350, 600 },
      {600, 850 },
      {850, 1100},
      {100, 350 },
      {350, 600 },
      {600, 850 },
      {850, 1100},
      {100, 600 },
      {600, 1100},
      {100, 350 },
      {350, 600 },
      {600, 850 },
  };
  for (int tile = 1; tile <= 17; ++tile) {
    Pick("mnuclear1");
    ClickTile(tile);
    const Part cell = kCells[tile - 1];
    EXPECT_TRUE(InkBetween(cell.left, cell.right)) << tile;
    if (cell.left > 100) {
      EXPECT_FALSE(InkBetween(0, cell.left)) << tile;
    }
    EXPECT_FALSE(InkBetween(cell.right, 1250)) << tile;
  }
}

TEST_F(MathsBoard, AlternativesShowFourTilesAndNoNumberBox) {
  ClickTile(2);
  Pick("mnudrawalt");
  EXPECT_FALSE(InkBetween(0, 1250)) << "switching wipes";
  EXPECT_TRUE(Checked("mnudrawalt"));
  EXPECT_EQ(TextOf("txtalt"), QStringLiteral("1"));
  EXPECT_EQ(ShownTiles(), QStringLiteral("1 3 4 9"));
  EXPECT_FALSE(Shown("cmb(0)"));
  Pick("mnuclear1");
  EXPECT_EQ(ShownTiles(), QStringLiteral("1 3 4 9"));
  EXPECT_EQ(TextOf("txtalt"), QStringLiteral("1"));
  EXPECT_TRUE(Checked("mnudrawalt"));
  Pick("mnudrawalt");
  EXPECT_FALSE(Checked("mnudrawalt"));
  EXPECT_EQ(TextOf("txtalt"), QStringLiteral("0"));
  EXPECT_EQ(ShownTiles(), kAll);
  EXPECT_TRUE(Shown("cmb(0)"));
}

TEST_F(MathsBoard, AfterADrillAllTilesAreBackThoughAlternativesAreOn) {
  Pick("mnudrawalt");
  Pick("mnuadd");
  Pick("mnuadd");
  EXPECT_EQ(ShownTiles(), kAll);
  EXPECT_TRUE(Shown("cmb(0)"));
  EXPECT_TRUE(Checked("mnudrawalt"));
  EXPECT_EQ(TextOf("txtalt"), QStringLiteral("1"));
}

TEST_F(MathsBoard, AlternativeFormIsWritten) {
  ClickTile(1);
  ASSERT_TRUE(InkAt(205, 475)) << "the foot of the 1";
  Pick("mnudrawalt");
  ClickTile(1);
  EXPECT_FALSE(InkAt(205, 475));
  EXPECT_TRUE(InkAt(225, 400));
}

TEST_F(MathsBoard, DrawAllEndsWithTheLastGroup) {
  Pick("mnudall");
  // 15, 16 and 17 are what is left after the wipe of 15.
  EXPECT_TRUE(InkBetween(110, 340) && InkBetween(360, 590) && InkBetween(610, 840));
  EXPECT_FALSE(InkBetween(860, 1250));
}

TEST_F(MathsBoard, DrawAllOfAlternativesOnlyWipes) {
  Pick("mnudrawalt");
  ClickTile(3);
  messages.clear();
  Pick("mnudall");
  EXPECT_FALSE(InkBetween(0, 1250));
  EXPECT_TRUE(messages.isEmpty());
  EXPECT_FALSE(Checked("mnuaud"));
}

TEST_F(MathsBoard, SilenceOutlivesAWipe) {
  Find<QLineEdit>("txtaud")->setText(QStringLiteral("1"));
  Pick("mnuclear1");
  EXPECT_EQ(TextOf("txtaud"), QStringLiteral("1"));
  ClickTile(1);
  EXPECT_TRUE(messages.isEmpty());
}

TEST_F(MathsBoard, WipeForgetsThePlaceAlone) {
  for (const char* box : {"txtalt3", "txtaltno", "txtaud", "txtsetno"}) {
    Find<QLineEdit>(box)->setText(QStringLiteral("3"));
  }
  Pick("mnunum");
  Pick("mnuclear1");
  EXPECT_EQ(TextOf("txtalt3"), QStringLiteral("0"));
  EXPECT_EQ(TextOf("txtaltno"), QStringLiteral("0"));
  EXPECT_EQ(TextOf("txtaud"), QStringLiteral("3"));
  EXPECT_EQ(TextOf("txtsetno"), QStringLiteral("3"));
  EXPECT_TRUE(Checked("mnunum"));
}

TEST_F(MathsBoard, BackUnloadsIt) {
  Pick("mnuback");
  EXPECT_EQ(LoadedForm(QStringLiteral("fbrmmat01")), nullptr);
}

TEST_F(MathsBoard, ItsRoutinesLogTheirTags) {
  SKIP_WHERE_LEAKS_COUNT();
  const TrapLog log;
  {
    const FailingEvent noColour("cmb(0)", QEvent::PaletteChange);
    TypeAndEnter("cmb(0)", "x");
  }
  EXPECT_EQ(TrapLog::Tags(), Tags({"mat:01"}));
  TrapLog::Lines().clear();
  {
    const FailingEvent noOperand("cmb(16)", QEvent::ShowToParent);
    Pick("mnuadd");
  }
  EXPECT_EQ(TrapLog::Tags(), Tags({"mat:02"}));
  TrapLog::Lines().clear();
  {
    const FailingEvent noPicture("pict", QEvent::ShowToParent);
    Pick("mnutbl");
  }
  EXPECT_EQ(TrapLog::Tags(), Tags({"mat:04"}));
  Pick("mnusub");
  TrapLog::Lines().clear();
  {
    const FailingEvent noColour("cmb(16)", QEvent::PaletteChange);
    Type("cmb(16)", "x");
    Click("picequal");
  }
  EXPECT_EQ(TrapLog::Tags(), Tags({"mat:03"}));
  TrapLog::Lines().clear();
  {
    const FailingEvent noTile("pic(1)", QEvent::ShowToParent);
    Pick("mnunum");
  }
  EXPECT_EQ(TrapLog::Tags(), Tags({"mat:06"}));
  Pick("mnutbl");
  TypeAndEnter("cmb(16)", "2");
  Click("pict");
  TrapLog::Lines().clear();
  {
    const FailingEvent noPlace("txtval(20)", QEvent::Resize);
    Click("pict");
  }
  EXPECT_EQ(TrapLog::Tags(), Tags({"mat:05"}));
}

}  // namespace
}  // namespace bramlee
