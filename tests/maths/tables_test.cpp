// The multiplication tables by their menu item and picture.
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include "tests/maths/maths_fixture.h"

namespace bramlee {
namespace {

class Tables : public MathsTest {
 protected:
  QStringList RowsOf(const char* number) {
    Type("cmb(16)", number);
    Click("pict");
    return Result().split(QStringLiteral("\r\n"));
  }

  bool TableShown() const { return Shown("pict") && Shown("cmb(16)") && Shown("txtval(20)"); }
};

TEST_F(Tables, ReplaceTheTiles) {
  Pick("mnutbl");
  EXPECT_TRUE(TableShown());
  EXPECT_FALSE(Shown("cmb(18)") || Shown("picequal") || Shown("pic1(11)"));
  EXPECT_EQ(ShownTiles(), QString());
  EXPECT_FALSE(Shown("cmb(0)"));
  EXPECT_FALSE(MenuShown("mnucolors") || MenuShown("mnuspeed") || MenuShown("mnudraw"));
  EXPECT_EQ(CheckedMathsItems(), QStringList{QStringLiteral("mnutbl")});
  for (const char* control : {"cmb(16)", "pict", "txtval(20)"}) {
    EXPECT_EQ(Place(control).top, Place("pic(1)").top) << control;
  }
}

TEST_F(Tables, StandAlongTheTopWhereverTheyStoodBefore) {
  for (const char* control : {"cmb(16)", "pict", "txtval(20)"}) {
    MoveTo(Find<QWidget>(control), 4000, 3000);
  }
  Pick("mnutbl");
  for (const char* control : {"cmb(16)", "pict", "txtval(20)"}) {
    EXPECT_EQ(Place(control).top, Place("pic(1)").top) << control;
    EXPECT_EQ(Place(control).left, 4000) << control;
  }
}

TEST_F(Tables, SecondPickBringsTheTilesBack) {
  Pick("mnutbl");
  Pick("mnutbl");
  EXPECT_FALSE(Shown("pict") || Shown("cmb(16)") || Shown("txtval(20)"));
  EXPECT_TRUE(Shown("pic(1)") && Shown("pic(17)") && Shown("cmb(0)"));
  EXPECT_TRUE(CheckedMathsItems().isEmpty());
  EXPECT_FALSE(MenuShown("mnudraw"));
}

TEST_F(Tables, DefaultIsTheTableOfZero) {
  Pick("mnutbl");
  Click("pict");
  const QStringList rows = Result().split(QStringLiteral("\r\n"));
  ASSERT_EQ(rows.size(), 21);
  EXPECT_EQ(rows[0], QStringLiteral("0 X 1 = 0"));
  EXPECT_EQ(rows[19], QStringLiteral("0 X 20 = 0"));
  EXPECT_EQ(rows[20], QString());
}

TEST_F(Tables, FollowATypedNumber) {
  Pick("mnutbl");
  EXPECT_EQ(RowsOf("7")[19], QStringLiteral("7 X 20 = 140"));
  EXPECT_EQ(RowsOf("100")[19], QStringLiteral("100 X 20 = 2000"));
  EXPECT_EQ(RowsOf("2.5")[1], QStringLiteral("2.5 X 2 = 5"));
  EXPECT_EQ(RowsOf("0.1")[2], QStringLiteral("0.1 X 3 = 0.3"));
  EXPECT_EQ(RowsOf("007")[0], QStringLiteral("7 X 1 = 7"));
  EXPECT_EQ(RowsOf(" 8 ")[0], QStringLiteral("8 X 1 = 8"));
}

TEST_F(Tables, TextThatIsNoNumberCountsAsZeroAndShowsNoMessage) {
  Pick("mnutbl");
  messages.clear();
  EXPECT_EQ(RowsOf("abc")[4], QStringLiteral("0 X 5 = 0"));
  for (const char* text : {"nan", "inf", "7abc", ""}) {
    EXPECT_EQ(RowsOf(text)[4], QStringLiteral("0 X 5 = 0")) << text;
  }
  EXPECT_TRUE(messages.isEmpty());
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(16)")), 0x80FFFFU);
}

TEST_F(Tables, BoxGrowsAndStaysHigh) {
  Pick("mnutbl");
  EXPECT_LT(Place("txtval(20)").height, 2000);
  Click("pict");
  EXPECT_EQ(Place("txtval(20)").height, 7600);
  Pick("mnutbl");
  Pick("mnuadd");
  EXPECT_EQ(Place("txtval(20)").height, 7600);
  EXPECT_EQ(Result().count(u'\n'), 20);
  Type("cmb(18)", "5");
  Click("picequal");
  EXPECT_EQ(Result().toStdString(), "5");
  EXPECT_EQ(Place("txtval(20)").height, 7600);
}

TEST_F(Tables, ProductTooLargeLeavesALowBoxWithTheOldText) {
  Pick("mnutbl");
  RowsOf("7");
  EXPECT_EQ(RowsOf("1e308")[0], QStringLiteral("7 X 1 = 7"));
  EXPECT_EQ(Place("txtval(20)").height, 2000);
}

TEST_F(Tables, AllRowsCanBeSeenAtOnce) {
  Pick("mnutbl");
  RowsOf("100");
  auto* box = Find<QPlainTextEdit>("txtval(20)");
  const QTextBlock last = box->document()->findBlockByNumber(19);
  ASSERT_EQ(last.text(), QStringLiteral("100 X 20 = 2000"));
  EXPECT_LE(box->cursorRect(QTextCursor(last)).bottom(), box->viewport()->height());
  QCoreApplication::processEvents();  // bars come up with the next layout
  EXPECT_FALSE(box->horizontalScrollBar()->isVisible());
  EXPECT_FALSE(box->verticalScrollBar()->isVisible()) << "there is nothing to scroll to";
  EXPECT_EQ(box->verticalScrollBar()->maximum(), 0);
  EXPECT_GE(box->font().pixelSize(), 16);
}

TEST_F(Tables, KeepTheRestOfADrillThatWasOn) {
  Pick("mnusub");
  Pick("mnutbl");
  EXPECT_TRUE(TableShown());
  EXPECT_TRUE(Shown("pic1(12)") && Shown("cmb(18)") && Shown("picequal"));
  EXPECT_EQ(CheckedMathsItems(), QStringList{QStringLiteral("mnutbl")});
  EXPECT_EQ(Place("cmb(16)").top, Place("pic(1)").top);
  EXPECT_EQ(Place("cmb(18)").top, Place("pic(6)").top);
  // pict lies free of what stays.
  const QRect pict = Find<QWidget>("pict")->geometry();
  for (const char* control : {"cmb(16)", "pic1(12)", "cmb(18)", "picequal", "txtval(20)"}) {
    EXPECT_FALSE(pict.intersects(Find<QWidget>(control)->geometry())) << control;
  }
}

TEST_F(Tables, KeepPictureAndHeightWhenADrillIsPicked) {
  Pick("mnutbl");
  Click("pict");
  Pick("mnuadd");
  EXPECT_TRUE(Shown("pict"));
  EXPECT_EQ(Place("txtval(20)").height, 7600);
  EXPECT_EQ(Place("txtval(20)").top, Place("pic(6)").top);
  EXPECT_EQ(Place("pict").top, Place("pic(1)").top);
}

TEST_F(Tables, OutliveAWipe) {
  Pick("mnutbl");
  RowsOf("7");
  const QString table = Result();
  Pick("mnuclear1");
  EXPECT_EQ(Result(), table);
  EXPECT_TRUE(TableShown());
  EXPECT_TRUE(Checked("mnutbl"));
  EXPECT_EQ(Place("txtval(20)").height, 7600);
  EXPECT_EQ(EntryOf("cmb(16)"), QStringLiteral("7"));
}

TEST_F(Tables, TabGoesFromTheNumberToThePictureAndOnPastADrillsRest) {
  Pick("mnuadd");
  Pick("mnutbl");
  ASSERT_TRUE(Shown("cmb(18)"));
  for (const char* control : {"cmb(16)", "pict", "txtval(20)"}) {
    EXPECT_EQ(board->focusWidget()->objectName(), QString::fromLatin1(control));
    QTest::keyClick(board->focusWidget(), Qt::Key_Tab);
  }
}

TEST_F(Tables, AreMadeFromTheKeyboardAlone) {
  Pick("mnutbl");
  QTest::keyClicks(board->focusWidget(), QStringLiteral("9"));
  QTest::keyClick(board->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(board->focusWidget(), Find<QWidget>("pict"));
  QTest::keyClick(board->focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(Result().endsWith(QStringLiteral("9 X 20 = 180\r\n")));
}

}  // namespace
}  // namespace bramlee
