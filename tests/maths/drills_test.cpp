// What the drills compute, by their menu items, combos and the equals picture.
#include <QScrollBar>

#include "tests/maths/drills_fixture.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

TEST_F(Drills, EachSignComputesItsOwnWay) {
  EXPECT_EQ(Compute("mnuadd", "12", "30"), QStringLiteral("42"));
  Pick("mnuadd");
  EXPECT_EQ(Compute("mnusub", "12", "30"), QStringLiteral("-18"));
  Pick("mnusub");
  EXPECT_EQ(Compute("mnumul", "12", "30"), QStringLiteral("360"));
  Pick("mnumul");
  EXPECT_EQ(Compute("mnudiv", "7", "2"), QStringLiteral("3.5"));
  Pick("mnudiv");
  EXPECT_EQ(Compute("mnuper", "50", "200"), QStringLiteral("100"));
  EXPECT_TRUE(messages.isEmpty());
}

TEST_F(Drills, ResultsStandInTheirShortestForm) {
  EXPECT_EQ(Compute("mnuadd", "0.1", "0.2"), QStringLiteral("0.30000000000000004"));
  EXPECT_EQ(Compute("mnuadd", "1000000", "0"), QStringLiteral("1000000"));
  EXPECT_EQ(Compute("mnuadd", "1e14", "0"), QStringLiteral("100000000000000"));
  Pick("mnuadd");
  EXPECT_EQ(Compute("mnumul", "0", "-5"), QStringLiteral("0"));
  EXPECT_EQ(Compute("mnumul", "0.00001", "1"), QStringLiteral("0.00001"));
  Pick("mnumul");
  EXPECT_EQ(Compute("mnudiv", "1", "3"), QStringLiteral("0.3333333333333333"));
  EXPECT_EQ(Compute("mnudiv", "0", "5"), QStringLiteral("0"));
}

TEST_F(Drills, DividingByZeroShowsInfinity) {
  Compute("mnudiv", "7", "2");
  EXPECT_EQ(Compute("mnudiv", "5", "0"), QStringLiteral("3.5"));
  EXPECT_EQ(messages, QStringList{QStringLiteral("Infinity")});
}

TEST_F(Drills, ZeroDividedByZeroChangesNothing) {
  Compute("mnudiv", "7", "2");
  EXPECT_EQ(Compute("mnudiv", "0", "0"), QStringLiteral("3.5"));
  EXPECT_TRUE(messages.isEmpty());
}

TEST_F(Drills, TooLargeAResultChangesNothing) {
  Compute("mnumul", "6", "7");
  EXPECT_EQ(Compute("mnumul", "1e308", "10"), QStringLiteral("42"));
  EXPECT_TRUE(messages.isEmpty());
}

TEST_F(Drills, SecondOperandThatIsNoNumberCountsAsZero) {
  EXPECT_EQ(Compute("mnuadd", "5", "abc"), QStringLiteral("5"));
  EXPECT_EQ(messages, QStringList{QStringLiteral("Enter Number")});
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(18)")), kRed);
  EXPECT_EQ(PaintedGround("cmb(18)"), kRed);
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(16)")), kPaleYellow);
  EXPECT_EQ(PaintedGround("cmb(16)"), kPaleYellow);
  EXPECT_EQ(ForeColorOf(Find<QWidget>("cmb(18)")), 0U);
  EXPECT_EQ(Compute("mnuadd", "5", "6"), QStringLiteral("11"));
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(18)")), kPaleYellow);
}

TEST_F(Drills, FirstOperandThatIsNoNumberMakesTheSecondZeroToo) {
  EXPECT_EQ(Compute("mnuadd", "abc", "xyz"), QStringLiteral("0"));
  EXPECT_EQ(messages, QStringList{QStringLiteral("Enter Number")});
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(16)")), kRed);
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(18)")), kPaleYellow);
  EXPECT_EQ(Compute("mnuadd", "abc", "5"), QStringLiteral("0"));
  EXPECT_EQ(Compute("mnuadd", "6", "5"), QStringLiteral("11"));
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(16)")), kPaleYellow);
}

TEST_F(Drills, NoNumberInADivisionKeepsTheResultAfterTheMessage) {
  Compute("mnudiv", "7", "2");
  EXPECT_EQ(Compute("mnudiv", "abc", "5"), QStringLiteral("3.5"));
  EXPECT_EQ(messages, QStringList{QStringLiteral("Enter Number")});
  EXPECT_EQ(Compute("mnudiv", "7", "abc"), QStringLiteral("3.5"));
  EXPECT_EQ(messages, (QStringList{QStringLiteral("Enter Number"), QStringLiteral("Infinity")}));
}

TEST_F(Drills, BlanksAndWordsAreNoNumbers) {
  for (const char* text : {"", "   ", "nan", "inf", "-inf", "infinity", "0x10", "1,5", "1e999"}) {
    Compute("mnuadd", "1", "1");
    EXPECT_EQ(Compute("mnuadd", text, "5"), QStringLiteral("0")) << text;
    EXPECT_EQ(messages.size(), 1) << text;
  }
  for (const char* text : {" 7 ", "+7", "7.", "07", "70e-1"}) {
    EXPECT_EQ(Compute("mnuadd", text, "5"), QStringLiteral("12")) << text;
    EXPECT_TRUE(messages.isEmpty()) << text;
  }
}

TEST_F(Drills, FirstSignStaysWhenAnotherDrillIsPickedNext) {
  Pick("mnuadd");
  EXPECT_EQ(Compute("mnusub", "9", "4"), QStringLiteral("13"));
  EXPECT_EQ(Signs(), QStringLiteral("11 12"));
  EXPECT_EQ(CheckedMathsItems(), QStringList{QStringLiteral("mnusub")});
}

TEST_F(Drills, LeavingADrillHidesItsOwnSignAlone) {
  Pick("mnuadd");
  Pick("mnusub");
  Pick("mnusub");
  EXPECT_TRUE(RowHidden());
  EXPECT_EQ(Signs(), QStringLiteral("11"));
  EXPECT_EQ(ShownTiles(), kAll);
  EXPECT_EQ(Compute("mnudiv", "9", "3"), QStringLiteral("12"));
}

TEST_F(Drills, LeavingTheFirstDrillLetsTheSecondCount) {
  Pick("mnuadd");
  Pick("mnuadd");
  EXPECT_EQ(Compute("mnusub", "9", "4"), QStringLiteral("5"));
}

TEST_F(Drills, WithoutASignNothingHappens) {
  Pick("mnutbl");
  Type("cmb(16)", "abc");
  messages.clear();
  Find<PictureBox>("picequal")->click();
  EXPECT_TRUE(messages.isEmpty());
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(16)")), kPaleYellow);
  EXPECT_EQ(Result(), QStringLiteral("0"));
}

TEST_F(Drills, WithoutASignNoColourChanges) {
  Compute("mnuadd", "abc", "5");
  Pick("mnuadd");
  Type("cmb(16)", "7");
  messages.clear();
  Find<PictureBox>("picequal")->click();
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(16)")), kRed);
  EXPECT_EQ(Result(), QStringLiteral("0"));
  EXPECT_TRUE(messages.isEmpty());
}

TEST_F(Drills, PicksInTheOperandsComputeNothing) {
  Pick("mnuadd");
  PickEntry("cmb(16)", "20");
  PickEntry("cmb(18)", "30");
  TypeAndEnter("cmb(18)", "40");
  EXPECT_EQ(EntryOf("cmb(16)"), QStringLiteral("20"));
  EXPECT_EQ(Result(), QStringLiteral("0"));
  EXPECT_TRUE(messages.isEmpty());
  EXPECT_EQ(Find<QComboBox>("cmb(18)")->count(), 19);
  Click("picequal");
  EXPECT_EQ(Result(), QStringLiteral("60"));
}

TEST_F(Drills, AreDoneFromTheKeyboardAlone) {
  Pick("mnuadd");
  const auto type = [this](const char* keys) {
    QTest::keyClicks(board->focusWidget(), QString::fromLatin1(keys));
  };
  const auto press = [this](Qt::Key key) { QTest::keyClick(board->focusWidget(), key); };
  type("12");  // over the 0, without a click into the box
  press(Qt::Key_Tab);
  type("30");
  press(Qt::Key_Tab);
  EXPECT_EQ(board->focusWidget(), Find<QWidget>("picequal"));
  press(Qt::Key_Return);
  EXPECT_EQ(Result(), QStringLiteral("42"));
  press(Qt::Key_Backtab);
  type("31");
  press(Qt::Key_Tab);
  press(Qt::Key_Space);
  EXPECT_EQ(Result(), QStringLiteral("43"));
  press(Qt::Key_Tab);
  EXPECT_EQ(board->focusWidget(), Find<QWidget>("txtval(20)"));
}

TEST_F(Drills, ResultCanOnlyBeRead) {
  Compute("mnuadd", "1", "2");
  QTest::keyClicks(Find<QWidget>("txtval(20)"), QStringLiteral("9"));
  EXPECT_EQ(Result(), QStringLiteral("3"));
  EXPECT_EQ(Find<QPlainTextEdit>("txtval(20)")->toPlainText(), QStringLiteral("3"));
}

TEST_F(Drills, BoardMayCloseDuringTheMessage) {
  Pick("mnuadd");
  Type("cmb(16)", "abc");
  environment.tell = [this](const QString& text) {
    messages.append(text);
    UnloadForm(board);
  };
  Click("picequal");
  EXPECT_EQ(messages, QStringList{QStringLiteral("Enter Number")});
  EXPECT_EQ(LoadedForm(QStringLiteral("fbrmmat01")), nullptr);
}

TEST_F(Drills, ResultsAreLargeEnoughForArmsLength) {
  EXPECT_GE(Find<QWidget>("cmb(16)")->font().pixelSize(), 28);
  Compute("mnuadd", "1", "2");
  EXPECT_GE(Find<QWidget>("txtval(20)")->font().pixelSize(), 28);
  // The longest result there is can be seen whole.
  Compute("mnuadd", "-0.1", "-0.2");
  EXPECT_EQ(Result(), QStringLiteral("-0.30000000000000004"));
  QCoreApplication::processEvents();  // bars come up with the next layout
  EXPECT_FALSE(Find<QPlainTextEdit>("txtval(20)")->horizontalScrollBar()->isVisible());
  EXPECT_EQ(Find<QPlainTextEdit>("txtval(20)")->verticalScrollBar()->maximum(), 0);
}

}  // namespace
}  // namespace bramlee
