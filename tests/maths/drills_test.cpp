// The five drills by their menu items, combos and the equals picture.
#include <QScrollBar>

#include "shell/forms.h"
#include "tests/maths/maths_fixture.h"

namespace bramlee {
namespace {

constexpr ColourWord kPaleYellow = 0x80FFFF;
constexpr ColourWord kRed = 0xFF;

class Drills : public MathsTest {
 protected:
  /// The row of that drill, its operands typed, its equals picture clicked.
  QString Reckon(const char* drill, const char* a, const char* b) {
    if (!Checked(drill)) Pick(drill);
    Type("cmb(16)", a);
    Type("cmb(18)", b);
    messages.clear();
    Click("picequal");
    return Result();
  }

  /// The sign pictures that can be seen, as "11 12".
  QString Signs() const {
    QStringList shown;
    for (int i = 11; i <= 15; ++i) {
      if (!board->Named<QWidget>(Indexed("pic1", i))->isHidden()) shown.append(QString::number(i));
    }
    return shown.join(u' ');
  }

  bool RowShown() const {
    return Shown("cmb(16)") && Shown("cmb(18)") && Shown("picequal") && Shown("txtval(20)");
  }

  bool RowHidden() const {
    return !Shown("cmb(16)") && !Shown("cmb(18)") && !Shown("picequal") && !Shown("txtval(20)");
  }

  /// The colour in which a combo's ground is painted.
  ColourWord PaintedGround(const char* combo) const {
    const QImage picture = Find<QWidget>(combo)->grab().toImage();
    return WordOf(picture.pixelColor(picture.width() / 2, 6));
  }

  const QString kAll = QStringLiteral("1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17");
};

TEST_F(Drills, ListsAndTextsAtTheStart) {
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

TEST_F(Drills, MenuReadsAsItShould) {
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
       {"mnunum", "mnuadd", "mnutbl", "mnusub", "mnumul", "mnunum", "mnudiv", "mnuper"}) {
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

TEST_F(Drills, EachSignReckonsItsOwnWay) {
  EXPECT_EQ(Reckon("mnuadd", "12", "30"), QStringLiteral("42"));
  Pick("mnuadd");
  EXPECT_EQ(Reckon("mnusub", "12", "30"), QStringLiteral("-18"));
  Pick("mnusub");
  EXPECT_EQ(Reckon("mnumul", "12", "30"), QStringLiteral("360"));
  Pick("mnumul");
  EXPECT_EQ(Reckon("mnudiv", "7", "2"), QStringLiteral("3.5"));
  Pick("mnudiv");
  EXPECT_EQ(Reckon("mnuper", "50", "200"), QStringLiteral("100"));
  EXPECT_TRUE(messages.isEmpty());
}

TEST_F(Drills, ResultsStandInTheirShortestForm) {
  EXPECT_EQ(Reckon("mnuadd", "0.1", "0.2"), QStringLiteral("0.30000000000000004"));
  EXPECT_EQ(Reckon("mnuadd", "1000000", "0"), QStringLiteral("1000000"));
  EXPECT_EQ(Reckon("mnuadd", "1e14", "0"), QStringLiteral("100000000000000"));
  Pick("mnuadd");
  EXPECT_EQ(Reckon("mnumul", "0", "-5"), QStringLiteral("0"));
  EXPECT_EQ(Reckon("mnumul", "0.00001", "1"), QStringLiteral("0.00001"));
  Pick("mnumul");
  EXPECT_EQ(Reckon("mnudiv", "1", "3"), QStringLiteral("0.3333333333333333"));
  EXPECT_EQ(Reckon("mnudiv", "0", "5"), QStringLiteral("0"));
}

TEST_F(Drills, DividingByNothingIsInfinity) {
  Reckon("mnudiv", "7", "2");
  EXPECT_EQ(Reckon("mnudiv", "5", "0"), QStringLiteral("3.5"));
  EXPECT_EQ(messages, QStringList{QStringLiteral("Infinity")});
}

TEST_F(Drills, NothingDividedByNothingIsSilent) {
  Reckon("mnudiv", "7", "2");
  EXPECT_EQ(Reckon("mnudiv", "0", "0"), QStringLiteral("3.5"));
  EXPECT_TRUE(messages.isEmpty());
}

TEST_F(Drills, TooLargeAResultIsSilent) {
  Reckon("mnumul", "6", "7");
  EXPECT_EQ(Reckon("mnumul", "1e308", "10"), QStringLiteral("42"));
  EXPECT_TRUE(messages.isEmpty());
}

TEST_F(Drills, SecondOperandThatIsNoNumberCountsAsNothing) {
  EXPECT_EQ(Reckon("mnuadd", "5", "abc"), QStringLiteral("5"));
  EXPECT_EQ(messages, QStringList{QStringLiteral("Enter Number")});
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(18)")), kRed);
  EXPECT_EQ(PaintedGround("cmb(18)"), kRed);
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(16)")), kPaleYellow);
  EXPECT_EQ(PaintedGround("cmb(16)"), kPaleYellow);
  EXPECT_EQ(ForeColorOf(Find<QWidget>("cmb(18)")), 0U);
  EXPECT_EQ(Reckon("mnuadd", "5", "6"), QStringLiteral("11"));
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(18)")), kPaleYellow);
}

TEST_F(Drills, FirstOperandThatIsNoNumberTakesTheSecondWithIt) {
  EXPECT_EQ(Reckon("mnuadd", "abc", "xyz"), QStringLiteral("0"));
  EXPECT_EQ(messages, QStringList{QStringLiteral("Enter Number")});
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(16)")), kRed);
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(18)")), kPaleYellow);
  EXPECT_EQ(Reckon("mnuadd", "abc", "5"), QStringLiteral("0"));
  EXPECT_EQ(Reckon("mnuadd", "6", "5"), QStringLiteral("11"));
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(16)")), kPaleYellow);
}

TEST_F(Drills, NoNumberInDivisionsIsSilentAfterTheMessage) {
  Reckon("mnudiv", "7", "2");
  EXPECT_EQ(Reckon("mnudiv", "abc", "5"), QStringLiteral("3.5"));
  EXPECT_EQ(messages, QStringList{QStringLiteral("Enter Number")});
  EXPECT_EQ(Reckon("mnudiv", "7", "abc"), QStringLiteral("3.5"));
  EXPECT_EQ(messages, (QStringList{QStringLiteral("Enter Number"), QStringLiteral("Infinity")}));
}

TEST_F(Drills, BlanksAndWordsForNumbersAreNone) {
  for (const char* text : {"", "   ", "nan", "inf", "-inf", "infinity", "0x10", "1,5", "1e999"}) {
    Reckon("mnuadd", "1", "1");
    EXPECT_EQ(Reckon("mnuadd", text, "5"), QStringLiteral("0")) << text;
    EXPECT_EQ(messages.size(), 1) << text;
  }
  for (const char* text : {" 7 ", "+7", "7.", "07", "70e-1"}) {
    EXPECT_EQ(Reckon("mnuadd", text, "5"), QStringLiteral("12")) << text;
    EXPECT_TRUE(messages.isEmpty()) << text;
  }
}

TEST_F(Drills, FirstSignStaysWhenAnotherDrillIsPickedNext) {
  Pick("mnuadd");
  EXPECT_EQ(Reckon("mnusub", "9", "4"), QStringLiteral("13"));
  EXPECT_EQ(Signs(), QStringLiteral("11 12"));
  EXPECT_EQ(CheckedMathsItems(), QStringList{QStringLiteral("mnusub")});
}

TEST_F(Drills, SignThatCountsIsTheOneSeen) {
  Pick("mnuadd");
  Pick("mnusub");
  auto* plus = Find<QWidget>("pic1(11)");
  EXPECT_EQ(board->sheet().childAt(plus->geometry().center()), plus);
}

TEST_F(Drills, LeavingADrillHidesItsOwnSignAlone) {
  Pick("mnuadd");
  Pick("mnusub");
  Pick("mnusub");
  EXPECT_TRUE(RowHidden());
  EXPECT_EQ(Signs(), QStringLiteral("11"));
  EXPECT_EQ(ShownTiles(), kAll);
  EXPECT_EQ(Reckon("mnudiv", "9", "3"), QStringLiteral("12"));
}

TEST_F(Drills, LeavingTheFirstDrillLetsTheSecondCount) {
  Pick("mnuadd");
  Pick("mnuadd");
  EXPECT_EQ(Reckon("mnusub", "9", "4"), QStringLiteral("5"));
}

TEST_F(Drills, WithNoSignNothingHappens) {
  Pick("mnutbl");
  Type("cmb(16)", "abc");
  messages.clear();
  Find<PictureBox>("picequal")->click();
  EXPECT_TRUE(messages.isEmpty());
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(16)")), kPaleYellow);
  EXPECT_EQ(Result(), QStringLiteral("0"));
}

TEST_F(Drills, WithNoSignNotEvenAColourChanges) {
  Reckon("mnuadd", "abc", "5");
  Pick("mnuadd");
  Type("cmb(16)", "7");
  messages.clear();
  Find<PictureBox>("picequal")->click();
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(16)")), kRed);
  EXPECT_EQ(Result(), QStringLiteral("0"));
  EXPECT_TRUE(messages.isEmpty());
}

TEST_F(Drills, PicksInTheOperandsReckonNothing) {
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

TEST_F(Drills, OperandsAndResultOutliveADrillAndItsWipe) {
  Reckon("mnuadd", "12", "abc");
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

TEST_F(Drills, TabGoesAlongTheRowPastAPictureLeftByTheTables) {
  Pick("mnutbl");
  Pick("mnuadd");
  ASSERT_TRUE(Shown("pict"));
  for (const char* control : {"cmb(16)", "cmb(18)", "picequal", "txtval(20)"}) {
    EXPECT_EQ(board->focusWidget()->objectName(), QString::fromLatin1(control));
    QTest::keyClick(board->focusWidget(), Qt::Key_Tab);
  }
}

TEST_F(Drills, ResultCanOnlyBeRead) {
  Reckon("mnuadd", "1", "2");
  QTest::keyClicks(Find<QWidget>("txtval(20)"), QStringLiteral("9"));
  EXPECT_EQ(Result(), QStringLiteral("3"));
  EXPECT_EQ(Find<QPlainTextEdit>("txtval(20)")->toPlainText(), QStringLiteral("3"));
}

TEST_F(Drills, BoardMayGoDuringTheMessage) {
  Pick("mnuadd");
  Type("cmb(16)", "abc");
  const MessageBoxes mine = ReplaceMessageBoxes({.show =
                                                     [this](const QString& text, const QString&) {
                                                       messages.append(text);
                                                       UnloadForm(board);
                                                     },
                                                 .ask = {}});
  Click("picequal");
  ReplaceMessageBoxes(mine);
  EXPECT_EQ(messages, QStringList{QStringLiteral("Enter Number")});
  EXPECT_EQ(LoadedForm(QStringLiteral("fbrmmat01")), nullptr);
}

TEST_F(Drills, ResultsAreLargeEnoughForArmsLength) {
  EXPECT_GE(Find<QWidget>("cmb(16)")->font().pixelSize(), 28);
  Reckon("mnuadd", "1", "2");
  EXPECT_GE(Find<QWidget>("txtval(20)")->font().pixelSize(), 28);
  // The longest result there is can be seen whole.
  Reckon("mnuadd", "-0.1", "-0.2");
  EXPECT_EQ(Result(), QStringLiteral("-0.30000000000000004"));
  EXPECT_FALSE(Find<QPlainTextEdit>("txtval(20)")->horizontalScrollBar()->isVisible());
}

}  // namespace
}  // namespace bramlee
