// The row of a drill: what it shows and hides, where it stands, what it keeps.
#include "tests/maths/drills_fixture.h"

namespace bramlee {
namespace {

TEST_F(Drills, ListsAndTextsStartAsDesigned) {
  auto* a = Find<QComboBox>("cmb(16)");
  auto* b = Find<QComboBox>("cmb(18)");
  EXPECT_EQ(a->count(), 28);
  EXPECT_EQ(a->itemText(0), QStringLiteral("1"));
  EXPECT_EQ(a->itemText(19), QStringLiteral("20"));
  EXPECT_EQ(a->itemText(20), QStringLiteral("30"));
  EXPECT_EQ(a->itemText(27), QStringLiteral("100"));
  EXPECT_EQ(b->count(), 19);
  EXPECT_EQ(b->itemText(9), QStringLiteral("10"));
  EXPECT_EQ(b->itemText(10), QStringLiteral("20"));
  EXPECT_EQ(b->itemText(18), QStringLiteral("100"));
  EXPECT_EQ(EntryOf("cmb(16)"), QStringLiteral("0"));
  EXPECT_EQ(EntryOf("cmb(18)"), QStringLiteral("0"));
  EXPECT_EQ(Result(), QStringLiteral("0"));
  EXPECT_EQ(BackColorOf(a), kPaleYellow);
  EXPECT_EQ(BackColorOf(b), kPaleYellow);
  EXPECT_EQ(BackColorOf(Find<QWidget>("txtval(20)")), kPaleYellow);
  EXPECT_TRUE(RowHidden());
  EXPECT_EQ(Signs(), QString());
  EXPECT_FALSE(Shown("pict"));
}

TEST_F(Drills, PicturesOfTheRowHaveNames) {
  const char* const names[] = {"plus", "minus", "times", "divided by", "per cent"};
  for (int sign = 11; sign <= 15; ++sign) {
    EXPECT_EQ(board->Named<QWidget>(Indexed("pic1", sign))->accessibleName(),
              QString::fromLatin1(names[sign - 11]));
  }
  EXPECT_EQ(Find<QWidget>("picequal")->accessibleName(), QStringLiteral("Equals"));
  EXPECT_EQ(Find<QWidget>("pict")->accessibleName(), QStringLiteral("Make the table"));
}

TEST_F(Drills, MenuListsNumbersTablesAndTheFiveDrills) {
  QStringList captions;
  for (const QAction* item : Find<QMenu>("mnutables")->actions()) captions.append(item->text());
  EXPECT_EQ(captions.join(u','),
            QStringLiteral("&Numbers,&ShowTables,&Additions,&Subtractions,&Multiplications,"
                           "&Divisions,&Percentage"));
  EXPECT_EQ(Find<QMenu>("mnutables")->title(), QStringLiteral("&Maths"));
  ASSERT_EQ(Find<QMenu>("mnutable")->actions().size(), 1);
  EXPECT_EQ(Find<QMenu>("mnutable")->actions().at(0)->text(), QStringLiteral("&Tables"));
}

TEST_F(Drills, ADrillReplacesTheTiles) {
  struct Case {
    const char* item;
    const char* sign;
  };
  for (const Case& drill : {
           Case{"mnuadd", "11"},
           Case{"mnusub", "12"},
           Case{"mnumul", "13"},
           Case{"mnudiv", "14"},
           Case{"mnuper", "15"}
  }) {
    Pick(drill.item);
    EXPECT_TRUE(RowShown());
    EXPECT_EQ(Signs(), QString::fromLatin1(drill.sign));
    EXPECT_EQ(ShownTiles(), QString());
    EXPECT_FALSE(Shown("cmb(0)"));
    EXPECT_EQ(CheckedMathsItems(), QStringList{QString::fromLatin1(drill.item)});
    Pick(drill.item);
    EXPECT_TRUE(RowHidden());
    EXPECT_EQ(Signs(), QString());
    EXPECT_EQ(ShownTiles(), kAll);
    EXPECT_TRUE(Shown("cmb(0)"));
    EXPECT_TRUE(CheckedMathsItems().isEmpty());
  }
}

TEST_F(Drills, RowStandsAlongTheTopOfTileSix) {
  for (const char* drill : {"mnuadd", "mnuper"}) {
    Pick(drill);
    const TwipsRect tile = Place("pic(6)");
    const char* sign = drill == std::string("mnuadd") ? "pic1(11)" : "pic1(15)";
    double left = tile.left;
    for (const char* control : {"cmb(16)", sign, "cmb(18)", "picequal", "txtval(20)"}) {
      EXPECT_EQ(Place(control).left, left) << control;
      EXPECT_EQ(Place(control).top, tile.top) << control;
      left += Place(control).width + 200;
    }
    EXPECT_LE(left - 200, 15 * 1000) << "the row has to fit a screen of 1024 pixels";
    EXPECT_EQ(Place("pic1(11)").left, Place(sign).left);
    Pick(drill);
  }
}

TEST_F(Drills, PlusIsLaidOutWithEveryRow) {
  Pick("mnuper");  // the first row of this board
  EXPECT_EQ(Place("pic1(11)").left, Place("pic1(15)").left);
  EXPECT_EQ(Place("pic1(11)").top, Place("pic(6)").top);
}

TEST_F(Drills, OnlyOneItemIsMarkedAtATime) {
  for (const char* item :
       {"mnunum", "mnuadd", "mnutbl", "mnusub", "mnumul", "mnunum", "mnudiv", "mnuper", "mnunum"}) {
    Pick(item);
    EXPECT_EQ(CheckedMathsItems(), QStringList{QString::fromLatin1(item)});
  }
}

TEST_F(Drills, SheetMenusStayHiddenUntilNumbersIsPicked) {
  EXPECT_TRUE(MenuShown("mnucolors") && MenuShown("mnuspeed") && MenuShown("mnudraw"));
  Pick("mnuadd");
  EXPECT_FALSE(MenuShown("mnucolors") || MenuShown("mnuspeed") || MenuShown("mnudraw"));
  Pick("mnuadd");
  EXPECT_FALSE(MenuShown("mnucolors") || MenuShown("mnuspeed") || MenuShown("mnudraw"));
  Pick("mnunum");
  EXPECT_TRUE(MenuShown("mnucolors") && MenuShown("mnuspeed") && MenuShown("mnudraw"));
}

TEST_F(Drills, NumbersBringsTheTilesBesideTheRow) {
  Pick("mnuadd");
  Pick("mnunum");
  EXPECT_TRUE(RowShown());
  EXPECT_EQ(ShownTiles(), kAll);
  EXPECT_TRUE(Shown("cmb(0)"));
  EXPECT_EQ(CheckedMathsItems(), QStringList{QStringLiteral("mnunum")});
  Pick("mnunum");
  EXPECT_TRUE(CheckedMathsItems().isEmpty());
  EXPECT_EQ(ShownTiles(), kAll);
}

TEST_F(Drills, RowLiesInFrontOfTheTiles) {
  Pick("mnuadd");
  Pick("mnunum");
  for (const char* control : {"cmb(16)", "pic1(11)", "cmb(18)", "picequal", "txtval(20)"}) {
    auto* row = Find<QWidget>(control);
    const QWidget* hit = board->sheet().childAt(row->geometry().center());
    EXPECT_TRUE(hit == row || row->isAncestorOf(hit)) << control;
  }
}

TEST_F(Drills, SignThatCountsIsTheOneSeen) {
  Pick("mnuadd");
  Pick("mnusub");
  auto* plus = Find<QWidget>("pic1(11)");
  EXPECT_EQ(board->sheet().childAt(plus->geometry().center()), plus);
}

TEST_F(Drills, OperandsAndResultOutliveADrillAndItsWipe) {
  Compute("mnuadd", "12", "abc");
  EXPECT_EQ(Result(), QStringLiteral("12"));
  Pick("mnuclear1");
  EXPECT_TRUE(RowShown());
  EXPECT_EQ(CheckedMathsItems(), QStringList{QStringLiteral("mnuadd")});
  EXPECT_EQ(EntryOf("cmb(16)"), QStringLiteral("12"));
  EXPECT_EQ(EntryOf("cmb(18)"), QStringLiteral("abc"));
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(18)")), kRed);
  EXPECT_EQ(Result(), QStringLiteral("12"));
  EXPECT_FALSE(MenuShown("mnudraw"));
  EXPECT_EQ(ShownTiles(), QString());
  Pick("mnuadd");
  Pick("mnumul");
  EXPECT_EQ(EntryOf("cmb(16)"), QStringLiteral("12"));
  EXPECT_EQ(EntryOf("cmb(18)"), QStringLiteral("abc"));
}

TEST_F(Drills, RowStaysWhereItIsThroughWipesAndGroupStarts) {
  Pick("mnuadd");
  Pick("mnunum");
  Type("cmb(16)", "12");
  const char* const row[] = {"cmb(16)", "pic1(11)", "cmb(18)", "picequal", "txtval(20)"};
  QList<QRect> places;
  for (const char* control : row) places.append(Find<QWidget>(control)->geometry());
  ClickTile(1);
  Pick("mnuclear1");
  EXPECT_TRUE(RowShown());
  EXPECT_EQ(Signs(), QStringLiteral("11"));
  EXPECT_EQ(EntryOf("cmb(16)"), QStringLiteral("12"));
  for (int i = 0; i < 5; ++i) EXPECT_EQ(Find<QWidget>(row[i])->geometry(), places[i]) << row[i];
  EXPECT_EQ(CheckedMathsItems(), QStringList{QStringLiteral("mnunum")});
  EXPECT_TRUE(MenuShown("mnudraw"));
}

TEST_F(Drills, PickingADrillClearsTheSheet) {
  ClickTile(2);
  ASSERT_TRUE(InkBetween(100, 1100));
  Pick("mnuadd");
  EXPECT_FALSE(InkBetween(100, 1100));
}

TEST_F(Drills, TabGoesAlongTheRowPastAPictureLeftByTheTables) {
  Pick("mnutbl");
  Pick("mnuadd");
  ASSERT_TRUE(Shown("pict"));
  for (const char* control : {"cmb(16)", "cmb(18)", "picequal", "txtval(20)"}) {
    EXPECT_EQ(board->focusWidget()->objectName(), QString::fromLatin1(control));
    QTest::keyClick(board->focusWidget(), Qt::Key_Tab);
  }
}

}  // namespace
}  // namespace bramlee
