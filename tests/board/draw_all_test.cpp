// Draw All on the boards: its order, its wipes and its silence.
#include <algorithm>
#include <stdexcept>

#include "tests/board/writing_fixture.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

TEST_F(BoardWriting, AfterDrawAllTheNextCueIsOfTheFirstFormat) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnuaud");
  Pick(board, "mnufor(2)");
  board.pic_Click(2);
  Pick(board, "mnudall");
  board.SetChecked(Q("mnuaud"), true);  // Play alone, as a pick would take the format along
  board.pic_Click(2);
  EXPECT_EQ(boxes, (QStringList{Q(R"(C:\bramlee\aud\engc\eng-b.mp3 Not Found: )"),
                                Q(R"(C:\bramlee\aud\engc\eng-b.wma Not Found: )")}));
}

TEST_F(BoardWriting, AfterDrawAllTheSheetHoldsTheLastGroupOnly) {
  Board& board = Open("fbrmengc02");
  Pick(board, "mnuaud");
  Pick(board, "mnufor(2)");
  Pick(board, "mnudall");
  EXPECT_EQ(ColourAt(board, 500, 300), kRed);  // the stem of Y
  EXPECT_EQ(ColourAt(board, 700, 150), kRed);  // the top of Z
  EXPECT_TRUE(IsBlank(board, 1025, 155));
  EXPECT_FALSE(board.Checked(Q("mnuaud")));
  EXPECT_TRUE(Marked(board, "mnufor", 4).empty());
  EXPECT_TRUE(boxes.isEmpty());  // no cue was asked for
}

TEST_F(BoardWriting, DrawAllOfTheEnglishBoardsWipesTwiceAtGroupStarts) {
  for (BoardRecord record : {kCapitalsBoard, kSmallLettersBoard}) {
    Log().clear();
    Board& board = Open(Noting(record));
    Log().clear();
    Pick(board, "mnudall");
    EXPECT_EQ(Log(),
              "load load 1 2 3 4 load load 5 6 7 8 load load 9 10 11 12 load load 13 14 15 16 "
              "load load 17 18 19 20 load load 21 22 23 24 load load 25 26");
  }
}

TEST_F(BoardWriting, DrawAllOfHindiVowelsRunsAllTilesInEitherMode) {
  Board& board = Open(Noting(kHindiVowelsBoard));
  const std::string expected =
      "load load 1 2 3 4 load load 5 6 7 load load 8 9 10 11 load load 12 13 load load 14 15 16 17 "
      "load load 18 19 20 load load 21 22 23 24 load load 25 26 27 28";
  Log().clear();
  Pick(board, "mnudall");
  EXPECT_EQ(Log(), expected);
  Pick(board, "mnudrawalt");
  Log().clear();
  Pick(board, "mnudall");
  EXPECT_EQ(Log(), expected);
}

TEST_F(BoardWriting, DrawAllOfTeluguVowelsGoesInReadingOrder) {
  Board& board = Open(Noting(kTeluguVowelsBoard));
  Log().clear();
  Pick(board, "mnudall");
  EXPECT_EQ(
      Log(),
      "load load 1 2 3 4 load load 5 6 load load 7 8 load load 9 10 11 load load 12 13 14 "
      "load load 31 32 "
      "load load 15 16 load load 17 load load 18 load load 19 20 load load 21 22 load load 23 "
      "24 25 load load 26 27 28 load load 29 30 "
      "load load 33 load load 34 load load 35 load load 36");
}

TEST_F(BoardWriting, DrawAllOfTeluguConsonantsGoesByNumberAndNeverWipesAfter71) {
  Board& board = Open(Noting(kTeluguConsonantsBoard));
  const std::vector<int> starts{1,  5,  6,  9,  12, 13, 15, 16, 17, 18, 22, 23, 26, 29, 30, 34,
                                35, 36, 39, 40, 44, 45, 49, 52, 56, 57, 61, 62, 63, 66, 67, 71};
  std::string expected;
  for (int tile = 1; tile <= 75; ++tile) {
    if (std::find(starts.begin(), starts.end(), tile) != starts.end()) expected += " load load";
    expected += " " + std::to_string(tile);
  }
  Log().clear();
  Pick(board, "mnudall");
  EXPECT_EQ(" " + Log(), expected);
}

TEST_F(BoardWriting, DrawAllOfHindiConsonantsRunsTheSetInUseAndOnlyItsTilesWipe) {
  Board& board = Open(Noting(kHindiConsonantsBoard));
  const std::vector<int> starts{1, 5, 6, 10, 11, 15, 16, 20, 21, 25, 26, 30, 34};
  for (int set = 1; set <= 3; ++set) {
    std::string expected;
    for (int letter = 1; letter <= 37; ++letter) {
      if (std::find(starts.begin(), starts.end(), letter) != starts.end()) expected += " load";
      expected += " " + std::to_string(letter + 37 * (set - 1));
    }
    board.Named<PictureBox>(Q("pic1", set))->click();
    Log().clear();
    Pick(board, "mnudall");
    EXPECT_EQ(" " + Log(), expected);
  }
  Pick(board, "mnudrawalt");
  Log().clear();
  Pick(board, "mnudall");
  EXPECT_EQ(Log(), "load");
}

TEST_F(BoardWriting, DrawAllEndsWithSoundOffOnEveryBoard) {
  for (const BoardRecord* record :
       {&kCapitalsBoard, &kSmallLettersBoard, &kHindiVowelsBoard, &kHindiConsonantsBoard,
        &kTeluguVowelsBoard, &kTeluguConsonantsBoard}) {
    BoardRecord noting = *record;
    noting.cue = [](Board& board, const StrokeRec&) {
      if (board.Checked(Q("mnuaud"))) Note("cue");
    };
    noting.write = [](Board&, StrokeRec&) {};
    Board& board = Open(noting);
    Pick(board, "mnuaud");
    Pick(board, "mnudall");
    EXPECT_FALSE(board.Checked(Q("mnuaud")));
    EXPECT_EQ(Log(), "") << record->form;
    UnloadForm(&board);
  }
}

TEST_F(BoardWriting, AHandlerThatFailsShowsNothingAndDrawAllGoesOn) {
  BoardRecord record = Noting(kCapitalsBoard);
  record.write = [](Board&, StrokeRec& rec) {
    if (rec.LetterNo == 2) throw std::runtime_error("no ink");
    Note(std::to_string(rec.LetterNo));
  };
  Board& board = Open(record);
  Log().clear();
  EXPECT_NO_THROW(Pick(board, "mnudall"));
  EXPECT_EQ(Log().substr(0, 19), "load load 1 3 4 loa");
  EXPECT_TRUE(boxes.isEmpty());
}

}  // namespace
}  // namespace bramlee
