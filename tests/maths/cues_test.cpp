// What the maths board speaks. Nothing lies on drive Q:, so that each cue that
// is asked for is named in a message.
#include "board/cues.h"

#include "tests/maths/maths_fixture.h"

namespace bramlee {
namespace {

class MathsCues : public MathsTest {
 protected:
  static QString CueOf(int tile) {
    return QStringLiteral(R"(Q:\bramlee\aud\mat\mat-%1.wma Not Found: )").arg(tile);
  }
};

TEST_F(MathsCues, DrawAllClicksAllTilesInOrderAndSpeaks) {
  Pick("mnuaud");
  ASSERT_EQ(TextOf("txtaud"), QStringLiteral("1"));
  Pick("mnudall");
  EXPECT_FALSE(Checked("mnuaud"));
  QStringList cues;
  for (int tile = 2; tile <= 17; ++tile) cues.append(CueOf(tile));  // the first is silent
  EXPECT_EQ(messages, cues);
}

TEST_F(MathsCues, TileSpeaksUnlessItsFlagSilencesIt) {
  ClickTile(2);
  EXPECT_EQ(messages, QStringList{CueOf(2)}) << "with Play off";
  EXPECT_EQ(CueBoardNo, 7);
  Pick("mnuaud");
  EXPECT_EQ(TextOf("txtaud"), QStringLiteral("1"));
  messages.clear();
  ClickTile(3);
  EXPECT_TRUE(messages.isEmpty()) << "right after Play was switched on";
  ClickTile(4);
  EXPECT_EQ(messages, QStringList{CueOf(4)});
  Find<QLineEdit>("txtaud")->setText(QStringLiteral("1"));
  Pick("mnuaud");
  EXPECT_EQ(TextOf("txtaud"), QStringLiteral("0"));
}

TEST_F(MathsCues, CueFollowsTheFormat) {
  Pick("mnuaud");
  Pick("mnufor(2)");
  ClickTile(2);
  ClickTile(10);
  EXPECT_EQ(messages, QStringList{QStringLiteral(R"(Q:\bramlee\aud\mat\mat-10.mp3 Not Found: )")});
}

TEST_F(MathsCues, UnknownTileWritesNothing) {
  for (const int tile : {0, 18}) {
    messages.clear();
    board->pic_Click(tile);
    EXPECT_EQ(messages, QStringList{CueOf(tile)}) << "only its cue is asked for";
    EXPECT_FALSE(InkBetween(0, 1250));
  }
}

TEST_F(MathsCues, WithPlayOnTheWholeNumberIsSpokenOnce) {
  Pick("mnuaud");
  TypeAndEnter("cmb(0)", "27");
  EXPECT_EQ(messages,
            QStringList{QStringLiteral(R"(Q:\bramlee\aud\mat\matc\mat-27.wma Not Found: )")});
  EXPECT_EQ(CueBoardNo, 7);
}

TEST_F(MathsCues, DigitsThatWipeAreAsSilentAsTheOthers) {
  Pick("mnuaud");
  TypeAndEnter("cmb(0)", "2159");
  EXPECT_EQ(messages,
            QStringList{QStringLiteral(R"(Q:\bramlee\aud\mat\matc\mat-2159.wma Not Found: )")});
}

TEST_F(MathsCues, EnterOfTheNumberPadSpeaksAsReturnDoes) {
  Pick("mnuaud");
  Type("cmb(0)", "27");
  QTest::keyClick(Find<QComboBox>("cmb(0)")->lineEdit(), Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(messages,
            QStringList{QStringLiteral(R"(Q:\bramlee\aud\mat\matc\mat-27.wma Not Found: )")});
}

TEST_F(MathsCues, PickedNumberIsSpokenOnce) {
  Pick("mnuaud");
  PickEntry("cmb(0)", "27");
  EXPECT_EQ(messages,
            QStringList{QStringLiteral(R"(Q:\bramlee\aud\mat\matc\mat-27.wma Not Found: )")});
}

TEST_F(MathsCues, DigitAfterANumberComesFromTheFolderOfTiles) {
  Pick("mnuaud");
  TypeAndEnter("cmb(0)", "27");
  messages.clear();
  ClickTile(3);
  EXPECT_EQ(messages, QStringList{CueOf(3)});
}

TEST_F(MathsCues, LongNumberIsSpokenThoughNotWritten) {
  Pick("mnuaud");
  TypeAndEnter("cmb(0)", "12345");
  EXPECT_EQ(messages,
            QStringList{QStringLiteral(R"(Q:\bramlee\aud\mat\matc\mat-12345.wma Not Found: )")});
  EXPECT_FALSE(InkBetween(0, 1250));
}

TEST_F(MathsCues, SpokenNumberIsRoundedTiesToEven) {
  Pick("mnuaud");
  TypeAndEnter("cmb(0)", "2.5");
  TypeAndEnter("cmb(0)", "-5");
  EXPECT_EQ(messages,
            (QStringList{QStringLiteral(R"(Q:\bramlee\aud\mat\matc\mat-2.wma Not Found: )"),
                         QStringLiteral(R"(Q:\bramlee\aud\mat\matc\mat--5.wma Not Found: )")}));
}

TEST_F(MathsCues, WithPlayOffNothingIsSpoken) {
  TypeAndEnter("cmb(0)", "27");
  EXPECT_TRUE(messages.isEmpty());
}

TEST_F(MathsCues, NumberTooLargeForACueEndsTheHandlerQuietly) {
  Pick("mnuaud");
  TypeAndEnter("cmb(0)", "2e9");
  EXPECT_TRUE(messages.isEmpty());
  EXPECT_FALSE(InkBetween(0, 1250));
  EXPECT_EQ(TextOf("txtaud"), QStringLiteral("1"));
}

TEST_F(MathsCues, DigitWithoutAPlaceIsSpokenThoughNotWritten) {
  Find<QLineEdit>("txtalt3")->setText(QStringLiteral("3"));
  Find<QLineEdit>("txtaltno")->setText(QStringLiteral("6"));
  ClickTile(2);
  EXPECT_EQ(messages, QStringList{CueOf(2)});
  EXPECT_FALSE(InkBetween(0, 1250));
}

}  // namespace
}  // namespace bramlee
