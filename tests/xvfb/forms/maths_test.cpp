// Typed numbers, drills and tables by hand.
#include "maths/result_box.h"
#include "tests/xvfb/forms/at_the_start.h"

namespace bramlee {
namespace {

constexpr ColourWord kRed = 0xFF;
constexpr int kTiles = 17;

struct Drill {
  const char* item;
  int sign;
  const char* result;  ///< of 7 and 2
};
constexpr Drill kDrills[] = {
    {"mnuadd", 11, "9"   },
    {"mnusub", 12, "5"   },
    {"mnumul", 13, "14"  },
    {"mnudiv", 14, "3.5" },
    {"mnuper", 15, "0.14"},
};

class Maths : public AtTheStart {
 protected:
  Maths() : board_(Opened()) {
    board_.Pick("mnuspd(6)");
    board_.Expected().SetStep(1);
  }

  ColourWord TextColour(const char* control) const {
    return Ask([&] { return ForeColorOf(Control(control)); });
  }
  ColourWord Ground(const char* control) const {
    return Ask([&] { return BackColorOf(Control(control)); });
  }
  const QWidget* Control(const char* name) const {
    return board_.Get()->Named<QWidget>(QString::fromLatin1(name));
  }
  bool SheetMenusShown() const {
    return Ask([&] {
      const auto shown = [&](const char* menu) {
        return board_.Get()->Named<QMenu>(QString::fromLatin1(menu))->menuAction()->isVisible();
      };
      return shown("mnucolors") && shown("mnudraw");
    });
  }
  void PressReturn() const { TheDesktop().Key(QStringLiteral("Return")); }
  void UntilResult(const std::string& text) const {
    Until(QStringLiteral("the result ") + QString::fromStdString(text),
          [&] { return board_.Text("txtval(20)") == text; });
  }

  OpenBoard board_;

 private:
  static OpenBoard Opened() {
    GoHome().Click("pic(7)");
    return OpenBoard("fbrmmat01");
  }
};

TEST_F(Maths, WritesTheNumberThatIsTyped) {
  board_.Type("cmb(0)", QStringLiteral("1234"));
  PressReturn();
  // The 1 begins its group: it wipes the sheet and stands where its own tile writes it.
  board_.ExpectTile(1);
  for (int place = 2; place <= 4; ++place) board_.ExpectTile(place, {.place = place});
  EXPECT_GT(board_.SeeSheet(), kSomeInk);
}

TEST_F(Maths, WritesTheNumberThatIsPicked) {
  board_.PickFromList("cmb(0)", 3);
  board_.ExpectTile(3, {.place = 1});
  EXPECT_GT(board_.SeeSheet(), kSomeInk);
}

TEST_F(Maths, TurnsRedWhatIsNoNumber) {
  board_.Type("cmb(0)", QStringLiteral("abc"));
  PressReturn();
  Until(QStringLiteral("the text red"), [&] { return TextColour("cmb(0)") == kRed; });
  board_.SeeSheet();
}

TEST_F(Maths, ShowsADrillsRowInPlaceOfTheTilesAndComputes) {
  const QList<int> tiles = board_.Shown("pic", kTiles);
  for (const Drill& drill : kDrills) {
    board_.Pick(drill.item);
    EXPECT_EQ(board_.Marks(), drill.item);
    EXPECT_EQ(board_.Shown("pic", kTiles), QList<int>{});
    EXPECT_EQ(board_.Shown("pic1", kTiles), QList<int>{drill.sign});
    EXPECT_FALSE(board_.Shows("cmb(0)"));
    EXPECT_FALSE(SheetMenusShown());
    board_.Type("cmb(16)", QStringLiteral("7"));
    board_.Type("cmb(18)", QStringLiteral("2"));
    board_.Click("picequal");
    UntilResult(drill.result);
    board_.Pick(drill.item);
    EXPECT_EQ(board_.Marks(), "");
    EXPECT_EQ(board_.Shown("pic", kTiles), tiles);
    EXPECT_FALSE(board_.Shows("cmb(16)"));
  }
  board_.Pick("mnunum");
  EXPECT_EQ(board_.Marks(), "mnunum");
  EXPECT_TRUE(SheetMenusShown());
}

TEST_F(Maths, ComputesByTheFirstSignWhenAnotherDrillIsPickedStraightAway) {
  board_.Pick("mnusub");
  board_.Pick("mnuadd");
  EXPECT_EQ(board_.Shown("pic1", kTiles), (QList<int>{11, 12}));
  board_.PickFromList("cmb(16)", 8);
  board_.PickFromList("cmb(18)", 3);
  board_.Click("picequal");
  UntilResult("13");
}

TEST_F(Maths, ShowsAMessageForWhatCannotBeComputed) {
  board_.Pick("mnudiv");
  board_.Type("cmb(16)", QStringLiteral("5"));
  board_.Click("picequal");
  EXPECT_EQ(ReadBox(), "Infinity");
  EXPECT_EQ(board_.Text("txtval(20)"), "0");
  board_.Type("cmb(16)", QStringLiteral("abc"));
  board_.Type("cmb(18)", QStringLiteral("2"));
  board_.Click("picequal");
  EXPECT_EQ(ReadBox(), "Enter Number");
  EXPECT_EQ(Ground("cmb(16)"), kRed);
}

TEST_F(Maths, ShowsATableOfTwentyRows) {
  board_.Pick("mnutbl");
  EXPECT_EQ(board_.Marks(), "mnutbl");
  EXPECT_EQ(board_.Shown("pic", kTiles), QList<int>{});
  board_.Type("cmb(16)", QStringLiteral("7"));
  board_.Click("pict");
  std::string table;
  for (int i = 1; i <= 20; ++i) {
    table += "7 X " + std::to_string(i) + " = " + std::to_string(7 * i) + '\n';
  }
  UntilResult(table);
  board_.Pick("mnutbl");
  EXPECT_EQ(board_.Marks(), "");
  EXPECT_FALSE(board_.Shows("txtval(20)"));
  EXPECT_TRUE(board_.Shows("pic(1)"));
}

}  // namespace
}  // namespace bramlee
