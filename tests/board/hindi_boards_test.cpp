// What only the Hindi boards have: alternative forms, sets, the line of lettering.
#include <cmath>

#include "board/board.h"
#include "board/cues.h"
#include "tests/board/board_fixture.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

class HindiVowels : public BoardTest {};
class HindiConsonants : public BoardTest {};

std::vector<int> Shown(const Board& board, int last) {
  std::vector<int> shown;
  for (int i = 1; i <= last; ++i) {
    if (!board.Tile(i)->isHidden()) shown.push_back(i);
  }
  return shown;
}

std::vector<int> Range(int first, int last) {
  std::vector<int> range;
  for (int i = first; i <= last; ++i) range.push_back(i);
  return range;
}

bool LineIsShown(const Board& board) {
  return !board.Tile(0)->isHidden();
}

/// The AltFlag that a click on the tile gives to its letter.
int AltFlagOf(Board& board, int tile) {
  StrokeRec rec = FillStrokeRec(SheetKind::Wide, static_cast<std::int16_t>(tile));
  board.record().prepare(board, rec);
  return rec.AltFlag;
}

const std::vector<int> kVowelForms{1, 2, 7, 8, 9, 28};

TEST_F(HindiVowels, AlternativesShowTheSixTilesWithASecondForm) {
  Board& board = Open("fbrmhinv01");
  EXPECT_EQ(Shown(board, 36), Range(1, 28));
  Pick(board, "mnudrawalt");
  EXPECT_TRUE(board.Checked(Q("mnudrawalt")));
  EXPECT_EQ(board.TextOf(Q("txtalt")), Q("1"));
  EXPECT_EQ(Shown(board, 36), kVowelForms);
}

TEST_F(HindiVowels, PickedTwiceAlternativesAreOffAgain) {
  Board& board = Open("fbrmhinv01");
  Pick(board, "mnudrawalt");
  Pick(board, "mnudrawalt");
  EXPECT_FALSE(board.Checked(Q("mnudrawalt")));
  EXPECT_EQ(board.TextOf(Q("txtalt")), Q("0"));
  EXPECT_EQ(Shown(board, 36), Range(1, 28));
}

TEST_F(HindiVowels, AlternativesWipeTheSheetFirst) {
  Board& board = Open("fbrmhinv01");
  Pick(board, "mnurulled(1)");
  Pick(board, "mnudrawalt");
  EXPECT_TRUE(IsBlank(board, 600, 475));
  EXPECT_EQ(Marked(board, "mnurulled", 5), std::vector<int>{1});
}

TEST_F(HindiVowels, AWipeKeepsTheModeAndItsTiles) {
  Board& board = Open("fbrmhinv01");
  Pick(board, "mnudrawalt");
  Pick(board, "mnuclear1");
  EXPECT_TRUE(board.Checked(Q("mnudrawalt")));
  EXPECT_EQ(board.TextOf(Q("txtalt")), Q("1"));
  EXPECT_EQ(Shown(board, 36), kVowelForms);
}

TEST_F(HindiVowels, EachClickAsksForTheFormOfTheMode) {
  Board& board = Open("fbrmhinv01");
  for (const int tile : {1, 10, 28}) EXPECT_EQ(AltFlagOf(board, tile), 0) << tile;
  Pick(board, "mnudrawalt");
  for (const int tile : {1, 10, 28}) EXPECT_EQ(AltFlagOf(board, tile), 1) << tile;
}

TEST_F(HindiVowels, TilesTenAndElevenWriteNothingInTheAlternativeMode) {
  Board& board = Open("fbrmhinv01");
  Pick(board, "mnudrawalt");
  const QImage before = board.sheet().grab().toImage();
  board.pic_Click(10);
  board.pic_Click(11);
  EXPECT_EQ(board.sheet().grab().toImage(), before);
  EXPECT_TRUE(boxes.isEmpty());
  Pick(board, "mnudrawalt");
  board.pic_Click(10);
  EXPECT_EQ(ColourAt(board, 760, 325), kRed);  // the bar
}

TEST_F(HindiVowels, Tile28WritesAShortBarInTheAlternativeMode) {
  Board& board = Open("fbrmhinv01");
  board.pic_Click(28);
  EXPECT_EQ(ColourAt(board, 960, 484), kRed);  // the loop's top
  Pick(board, "mnudrawalt");
  board.pic_Click(28);
  EXPECT_EQ(ColourAt(board, 962, 490), kRed);
  EXPECT_TRUE(IsBlank(board, 954, 497));
}

TEST_F(HindiVowels, TileFourteenShowsTheLineAndWritesNothing) {
  Board& board = Open("fbrmhinv01");
  EXPECT_TRUE(board.Tile(14)->Picture().isNull());
  EXPECT_FALSE(board.Tile(14)->isHidden());
  board.Tile(14)->click();
  EXPECT_TRUE(LineIsShown(board));
  EXPECT_EQ(board.Tile(0)->geometry(), QRect(108, 340, 238, 45));
  EXPECT_TRUE(boxes.isEmpty());
  board.Tile(0)->hide();
  EXPECT_TRUE(IsBlank(board, 200, 360));
}

TEST_F(HindiVowels, TheLineIsNamedBeforeItIsShown) {
  const Board& board = Open("fbrmhinv01");
  EXPECT_EQ(board.Tile(0)->accessibleName().toStdString(), "Line of lettering (का कि की कु कू के)");
}

TEST_F(HindiVowels, TheLineStaysThroughWipesAndGoesAtTileEighteenAlone) {
  Board& board = Open("fbrmhinv01");
  board.Tile(14)->click();
  for (const int tile : {15, 16, 17}) board.Tile(tile)->click();
  EXPECT_TRUE(LineIsShown(board));
  EXPECT_EQ(ColourAt(board, 475, 400), kRed);  // the stem of tile 15 beside it
  Pick(board, "mnuclear1");
  EXPECT_TRUE(LineIsShown(board));
  EXPECT_EQ(board.Tile(0)->geometry(), QRect(108, 340, 238, 45));
  Pick(board, "mnudrawalt");
  Pick(board, "mnudrawalt");
  for (const int tile : {1, 5, 8, 12, 14, 19, 20, 21, 25}) board.pic_Click(tile);
  EXPECT_TRUE(LineIsShown(board));
  board.pic_Click(18);
  EXPECT_FALSE(LineIsShown(board));
}

TEST_F(HindiVowels, TileEighteenTakesTheLineAwayAfterItsOwnWipe) {
  BoardRecord record = kHindiVowelsBoard;
  static bool shownAtWipe;
  record.layOut = [](Board& board) { shownAtWipe = LineIsShown(board); };
  Board& board = Open(record);
  board.pic_Click(14);
  shownAtWipe = false;
  board.pic_Click(18);
  EXPECT_TRUE(shownAtWipe);
  EXPECT_FALSE(LineIsShown(board));
}

TEST_F(HindiVowels, TheLineGoesWithTheForm) {
  Board& board = Open("fbrmhinv01");
  board.pic_Click(14);
  Pick(board, "mnuclose");
  EXPECT_FALSE(LineIsShown(Open("fbrmhinv01")));
}

TEST_F(HindiVowels, AClickOnTheLineShowsTheMessageAfterItsCueAndWipesNothing) {
  Board& board = Open("fbrmhinv01");
  board.pic_Click(15);
  board.pic_Click(14);
  board.pic_Click(16);
  Pick(board, "mnuaud");
  CueBoardNo = 99;
  boxes.clear();
  board.Tile(0)->click();
  EXPECT_EQ(CueBoardNo, 3);
  EXPECT_EQ(boxes, (QStringList{Q(R"(C:\bramlee\aud\hin\hinv\hinv-0.wma Not Found: )"),
                                Q("My Dad is Calling.He brings me  Dolls")}));
  EXPECT_TRUE(LineIsShown(board));
  EXPECT_EQ(ColourAt(board, 650, 400), kRed);  // the stem of tile 16
}

TEST_F(HindiVowels, DrawAllInTheAlternativeModeShowsTheLineInItsTurn) {
  BoardRecord record = kHindiVowelsBoard;
  static bool shownAfterFourteen;
  record.cue = [](Board& board, const StrokeRec& rec) {
    if (rec.LetterNo == 15) shownAfterFourteen = LineIsShown(board);
  };
  Board& board = Open(record);
  Pick(board, "mnudrawalt");
  shownAfterFourteen = false;
  Pick(board, "mnudall");
  EXPECT_TRUE(shownAfterFourteen);
  EXPECT_FALSE(LineIsShown(board));
  EXPECT_EQ(Shown(board, 36), kVowelForms);
}

TEST_F(HindiConsonants, ASetButtonShowsTheTilesOfItsSetOnAnEmptySheet) {
  Board& board = Open("fbrmhinc01");
  EXPECT_EQ(board.TextOf(Q("txtsetno")), Q("1"));
  EXPECT_EQ(Shown(board, 111), Range(1, 37));
  Pick(board, "mnugrid");
  Pick(board, "mnurulled(1)");
  for (const int set : {2, 3, 1}) {
    board.Named<PictureBox>(Q("pic1", set))->click();
    EXPECT_EQ(board.TextOf(Q("txtsetno")), QString::number(set));
    EXPECT_EQ(Shown(board, 111), Range(1 + 37 * (set - 1), 37 * set));
    EXPECT_TRUE(IsBlank(board, 600, 475));
    EXPECT_TRUE(board.Checked(Q("mnugrid")));
    EXPECT_EQ(Marked(board, "mnurulled", 5), std::vector<int>{1});
  }
}

TEST_F(HindiConsonants, AlternativesShowTheTilesOfTheSetWithASecondForm) {
  const std::vector<int> forms[] = {
      {3,   7, 18, 35},
      {53, 64},
      {}
  };
  for (int set = 1; set <= 3; ++set) {
    Board& board = Open("fbrmhinc01");
    board.Named<PictureBox>(Q("pic1", set))->click();
    Pick(board, "mnudrawalt");
    EXPECT_EQ(Shown(board, 111), forms[set - 1]) << set;
    Pick(board, "mnuclear1");
    EXPECT_EQ(Shown(board, 111), forms[set - 1]) << set;
    EXPECT_TRUE(board.Checked(Q("mnudrawalt")));
    EXPECT_EQ(board.TextOf(Q("txtalt")), Q("1"));
    EXPECT_EQ(board.TextOf(Q("txtsetno")), QString::number(set));
    Pick(board, "mnudrawalt");
    EXPECT_EQ(Shown(board, 111), Range(1 + 37 * (set - 1), 37 * set)) << set;
    EXPECT_EQ(board.TextOf(Q("txtalt")), Q("0"));
    UnloadForm(&board);
  }
}

TEST_F(HindiConsonants, AnotherSetInTheAlternativeModeShowsItsSecondForms) {
  Board& board = Open("fbrmhinc01");
  Pick(board, "mnudrawalt");
  board.Named<PictureBox>(Q("pic1(2)"))->click();
  EXPECT_EQ(Shown(board, 111), (std::vector<int>{53, 64}));
}

TEST_F(HindiConsonants, OnlyTheTilesWithTwoFormsFollowTheMode) {
  Board& board = Open("fbrmhinc01");
  Pick(board, "mnudrawalt");
  const std::vector<int> ofTwoForms{3, 7, 18, 35, 53, 64};
  for (int tile = 1; tile <= 111; ++tile) {
    const bool two = std::find(ofTwoForms.begin(), ofTwoForms.end(), tile) != ofTwoForms.end();
    EXPECT_EQ(AltFlagOf(board, tile), two ? 1 : 0) << tile;
  }
}

TEST_F(HindiConsonants, TheFootStrokeHangsOnTheSetNotOnTheTile) {
  Board& board = Open("fbrmhinc01");
  // Tile 75's foot stroke runs from (225, 486.25) down to the right at 45 degrees.
  board.pic_Click(75);
  EXPECT_TRUE(IsBlank(board, 240, 501));
  board.Named<PictureBox>(Q("pic1(3)"))->click();
  board.pic_Click(75);
  EXPECT_EQ(ColourAt(board, 240, 501), kRed);
  board.Named<PictureBox>(Q("pic1(2)"))->click();
  board.pic_Click(38);
  EXPECT_TRUE(IsBlank(board, 240, 501));
}

TEST_F(HindiConsonants, AnUnknownTileGetsNoFootStroke) {
  Board& board = Open("fbrmhinc01");
  board.Named<PictureBox>(Q("pic1(3)"))->click();
  const QImage before = board.sheet().grab().toImage();
  board.pic_Click(112);
  EXPECT_EQ(board.sheet().grab().toImage(), before);
  EXPECT_EQ(boxes.size(), 1);
}

TEST_F(HindiConsonants, TheClickedTileKeepsTheFocusThroughItsWipe) {
  Board& board = Open("fbrmhinc01");
  board.show();
  board.Named<PictureBox>(Q("pic1(3)"))->click();
  board.Tile(79)->setFocus();
  board.Tile(79)->click();  // a group start
  EXPECT_EQ(board.focusWidget(), board.Tile(79));
}

}  // namespace
}  // namespace bramlee
