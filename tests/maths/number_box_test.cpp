// Typed and picked numbers: what is written where, and when.
#include <QWheelEvent>

#include "tests/maths/maths_fixture.h"

namespace bramlee {
namespace {

// Points on the digits' strokes, in sheet pixels, at the column 100 + offset of each.
constexpr int kStemOf1 = 225;  ///< the 1 at its tile's own place
constexpr int kStemOf5 = 175;  ///< the 5 at its tile's own place
constexpr int kMiddle = 350;   ///< a height that both stems pass
constexpr int kColumn2 = 350;
constexpr int kColumn3 = 600;
constexpr int kColumn4 = 850;
constexpr int kColumn5 = 1100;

class NumberBox : public MathsTest {
 protected:
  bool HasRedText() const {
    const QImage picture = Find<QWidget>("cmb(0)")->grab().toImage();
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const QColor dot = picture.pixelColor(x, y);
        if (dot.red() > 200 && dot.green() < 60 && dot.blue() < 60) return true;
      }
    }
    return false;
  }
};

TEST_F(NumberBox, ListsZeroToAHundredAndStartsEmpty) {
  auto* box = Find<QComboBox>("cmb(0)");
  ASSERT_EQ(box->count(), 101);
  EXPECT_EQ(box->itemText(0), QStringLiteral("0"));
  EXPECT_EQ(box->itemText(100), QStringLiteral("100"));
  EXPECT_EQ(box->currentText(), QString());
}

TEST_F(NumberBox, LiesOverThePlusWhichStaysFreeForAClick) {
  const TwipsRect place = Place("cmb(0)");
  EXPECT_EQ(place.width, 3.5 * 900);
  EXPECT_EQ(place.top, Place("pic(11)").top);
  MoveTo(Find<QWidget>("cmb(0)"), 300, place.top);
  Pick("mnunum");
  EXPECT_EQ(Place("cmb(0)").left, Place("pic(11)").left);
  for (const int tile : {11, 12, 13}) {
    const QRect sign = board->Tile(tile)->geometry();
    EXPECT_EQ(board->sheet().childAt(sign.center()), board->Tile(tile)) << tile;
  }
  EXPECT_TRUE(Find<QWidget>("cmb(0)")->isAncestorOf(
      board->sheet().childAt(Find<QWidget>("cmb(0)")->geometry().center())));
}

TEST_F(NumberBox, TextThatIsNoNumberTurnsRed) {
  for (const char* text : {"abc", "", "  ", "nan", "inf", "1 2"}) {
    TypeAndEnter("cmb(0)", text);
    EXPECT_EQ(ForeColorOf(Find<QWidget>("cmb(0)")), 0xFFU) << text;
    EXPECT_EQ(TextOf("txtaud"), QStringLiteral("0")) << text;
  }
  TypeAndEnter("cmb(0)", "abc");
  EXPECT_TRUE(HasRedText());
  EXPECT_EQ(BackColorOf(Find<QWidget>("cmb(0)")), 0xFFFFFFU);
  EXPECT_TRUE(messages.isEmpty());
  EXPECT_FALSE(InkBetween(100, 1100));
  TypeAndEnter("cmb(0)", "22");
  EXPECT_EQ(ForeColorOf(Find<QWidget>("cmb(0)")), 0U);
  EXPECT_FALSE(HasRedText());
}

TEST_F(NumberBox, RedOutlivesAWipe) {
  TypeAndEnter("cmb(0)", "abc");
  Pick("mnuclear1");
  EXPECT_EQ(EntryOf("cmb(0)"), QStringLiteral("abc"));
  EXPECT_EQ(ForeColorOf(Find<QWidget>("cmb(0)")), 0xFFU);
}

TEST_F(NumberBox, WritesEachDigitInItsPlace) {
  TypeAndEnter("cmb(0)", "2347");
  EXPECT_TRUE(InkBetween(110, kColumn2 - 10));
  EXPECT_TRUE(InkBetween(kColumn2 + 10, kColumn3 - 10));
  EXPECT_TRUE(InkBetween(kColumn3 + 10, kColumn4 - 10));
  EXPECT_TRUE(InkBetween(kColumn4 + 10, kColumn5 - 10));
  EXPECT_EQ(TextOf("txtalt3"), QStringLiteral("3"));
  EXPECT_EQ(TextOf("txtaltno"), QStringLiteral("4"));
  EXPECT_EQ(TextOf("txtaud"), QStringLiteral("0"));
}

TEST_F(NumberBox, OneStandsInItsOwnPlaceSinceItWipes) {
  TypeAndEnter("cmb(0)", "1234");
  EXPECT_TRUE(InkAt(kStemOf1, kMiddle));
  EXPECT_TRUE(InkBetween(kColumn2 + 10, kColumn3 - 10));
  EXPECT_TRUE(InkBetween(kColumn3 + 10, kColumn4 - 10));
  EXPECT_TRUE(InkBetween(kColumn4 + 10, kColumn5 - 10));
}

TEST_F(NumberBox, FifteenShowsTheFiveAlone) {
  TypeAndEnter("cmb(0)", "15");
  EXPECT_TRUE(InkAt(kStemOf5, kMiddle));
  EXPECT_FALSE(InkAt(kStemOf1, 450)) << "the 1 was wiped by the 5";
  EXPECT_FALSE(InkBetween(kColumn2 - 10, 1100));
  EXPECT_EQ(TextOf("txtalt3"), QStringLiteral("0"));
  EXPECT_EQ(TextOf("txtaltno"), QStringLiteral("0"));
}

TEST_F(NumberBox, AWipeBetweenTheDigitsTakesTheFirstOnes) {
  TypeAndEnter("cmb(0)", "2512");
  EXPECT_TRUE(InkAt(kStemOf1, kMiddle));
  EXPECT_FALSE(InkBetween(kColumn2 - 10, kColumn4 - 10));
  EXPECT_TRUE(InkBetween(kColumn4 + 10, kColumn5 - 10));
}

TEST_F(NumberBox, NextTileThatDoesNotWipeWritesAtTheLastPlace) {
  TypeAndEnter("cmb(0)", "2347");
  Pick("mnuclear1");
  EXPECT_EQ(TextOf("txtalt3"), QStringLiteral("0"));
  TypeAndEnter("cmb(0)", "222");
  EXPECT_EQ(TextOf("txtaltno"), QStringLiteral("3"));
  ASSERT_FALSE(InkBetween(kColumn4, 1100));
  ClickTile(4);  // by itself in column 4
  EXPECT_FALSE(InkBetween(kColumn4, 1100));
  ClickTile(1);
  EXPECT_TRUE(InkAt(kStemOf1, kMiddle));
  EXPECT_FALSE(InkBetween(kColumn2, 1100));
  ClickTile(4);
  EXPECT_TRUE(InkBetween(kColumn4, 1100));
}

TEST_F(NumberBox, SignsAreWrittenWhereTheyAlwaysAre) {
  TypeAndEnter("cmb(0)", "2");
  Find<QLineEdit>("txtaltno")->setText(QStringLiteral("9"));
  ClickTile(12);
  EXPECT_TRUE(InkAt(975, 400));
}

TEST_F(NumberBox, PlacesAreOneToFive) {
  board->sheet().setMinimumWidth(1350);
  QCoreApplication::processEvents();
  Find<QLineEdit>("txtalt3")->setText(QStringLiteral("3"));
  Find<QLineEdit>("txtaltno")->setText(QStringLiteral("5"));
  ClickTile(2);
  EXPECT_TRUE(InkBetween(kColumn5 + 10, 1250));
  EXPECT_FALSE(InkBetween(0, kColumn5));
}

TEST_F(NumberBox, PlaceOutsideEndsTheClickAfterTheCue) {
  for (const char* place : {"0", "6", "-1", "32767"}) {
    Find<QLineEdit>("txtalt3")->setText(QStringLiteral("3"));
    Find<QLineEdit>("txtaltno")->setText(QString::fromLatin1(place));
    Find<QLineEdit>("txtaud")->setText(QStringLiteral("1"));
    ClickTile(2);
    EXPECT_EQ(TextOf("txtaud"), QStringLiteral("0")) << place;
    EXPECT_FALSE(InkBetween(0, 1250)) << place;
    EXPECT_TRUE(messages.isEmpty()) << place;
  }
}

TEST_F(NumberBox, MoreThanFourCharactersAreNotWritten) {
  TypeAndEnter("cmb(0)", "23467");
  EXPECT_FALSE(InkBetween(0, 1250));
  EXPECT_EQ(TextOf("txtaud"), QStringLiteral("1")) << "so the next tile is silent";
  EXPECT_EQ(ForeColorOf(Find<QWidget>("cmb(0)")), 0U);
  ClickTile(2);
  EXPECT_TRUE(messages.isEmpty());
  EXPECT_EQ(TextOf("txtaud"), QStringLiteral("0"));
}

TEST_F(NumberBox, CharactersThatAreNoDigitsKeepTheirPlaceFree) {
  TypeAndEnter("cmb(0)", "-2.3");
  EXPECT_FALSE(InkBetween(100, kColumn2 - 10));
  EXPECT_TRUE(InkBetween(kColumn2 + 10, kColumn3 - 10));
  EXPECT_FALSE(InkBetween(kColumn3 - 10, kColumn4 - 10));
  EXPECT_TRUE(InkBetween(kColumn4 + 10, kColumn5 - 10));
  Pick("mnuclear1");
  TypeAndEnter("cmb(0)", "2e3");
  EXPECT_TRUE(InkBetween(110, kColumn2 - 10));
  EXPECT_FALSE(InkBetween(kColumn2 - 10, kColumn3 - 10));
  EXPECT_TRUE(InkBetween(kColumn3 + 10, kColumn4 - 10));
}

TEST_F(NumberBox, LastPlaceIsThatOfTheLastDigit) {
  TypeAndEnter("cmb(0)", "22. ");
  EXPECT_EQ(TextOf("txtaltno"), QStringLiteral("2"));
}

TEST_F(NumberBox, ZeroIsTheTenthTile) {
  TypeAndEnter("cmb(0)", "0");
  EXPECT_TRUE(InkAt(225, 330)) << "the top of the 0 in column 1";
}

TEST_F(NumberBox, AlternativeFormsEndWithTheFirstDigit) {
  Find<QLineEdit>("txtalt")->setText(QStringLiteral("1"));
  TypeAndEnter("cmb(0)", "22");
  EXPECT_EQ(TextOf("txtalt"), QStringLiteral("0"));
  EXPECT_EQ(TextOf("txtalt3"), QStringLiteral("3"));
}

TEST_F(NumberBox, PickFromTheListRunsOnce) {
  Find<QLineEdit>("txtalt")->setText(QStringLiteral("1"));
  PickEntry("cmb(0)", "23");
  EXPECT_EQ(EntryOf("cmb(0)"), QStringLiteral("23"));
  EXPECT_EQ(TextOf("txtaltno"), QStringLiteral("2"));
  // Picked again, it runs again.
  Pick("mnuclear1");
  ASSERT_EQ(TextOf("txtaltno"), QStringLiteral("0"));
  PickEntry("cmb(0)", "23");
  EXPECT_EQ(TextOf("txtaltno"), QStringLiteral("2"));
}

TEST_F(NumberBox, TypingLeavingAndTheWheelRunNothing) {
  Type("cmb(0)", "23");
  EXPECT_EQ(TextOf("txtaltno"), QStringLiteral("0"));
  QTest::keyClick(Find<QComboBox>("cmb(0)")->lineEdit(), Qt::Key_Tab);
  EXPECT_EQ(TextOf("txtaltno"), QStringLiteral("0"));
  EXPECT_EQ(EntryOf("cmb(0)"), QStringLiteral("23"));
  auto* box = Find<QComboBox>("cmb(0)");
  QWheelEvent wheel(box->rect().center(), box->mapToGlobal(box->rect().center()), {}, {0, -120},
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(box, &wheel);
  EXPECT_EQ(EntryOf("cmb(0)"), QStringLiteral("23"));
  EXPECT_EQ(TextOf("txtaltno"), QStringLiteral("0"));
  EXPECT_FALSE(InkBetween(0, 1250));
}

TEST_F(NumberBox, HeldReturnWritesOnce) {
  TypeAndEnter("cmb(0)", "23");
  Pick("mnuclear1");
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
  QCoreApplication::sendEvent(Find<QComboBox>("cmb(0)")->lineEdit(), &held);
  EXPECT_EQ(TextOf("txtaltno"), QStringLiteral("0"));
  EXPECT_FALSE(InkBetween(0, 1250));
}

TEST_F(NumberBox, ReturnAddsNothingToTheList) {
  TypeAndEnter("cmb(0)", "234");
  EXPECT_EQ(Find<QComboBox>("cmb(0)")->count(), 101);
}

}  // namespace
}  // namespace bramlee
