// The switch between given letters and those of the book.
#include "companions/book/book.h"

#include "board/book_letters.h"
#include "letters/letter_names.h"
#include "tests/companions/traced_board.h"
#include "ui/choices.h"
#include "ui/form_ids.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

constexpr int kTha = 17;  ///< stands otherwise in the book
using Runs = std::vector<Run>;
constexpr int kKa = 1;  ///< does not

class BookSwitch : public TracedBoard {
 protected:
  static void SetUpTestSuite() {
    TracedBoard::SetUpTestSuite();
    AddOnce<AddBookSwitch>();
  }
  void TearDown() override {
    Choices::Instance().Choose(Q("book/on"), false);
    Choices::Instance().Choose(Q("trace/given"), false);
    TracedBoard::TearDown();
  }
  static Runs RunsOf(Board& board, int tile) {
    board.pic_Click(tile);
    const auto runs = board.pen().Letters().Letters().back().letter.Runs();
    return {runs.begin(), runs.end()};
  }
  /// At the step of the boards that Open() opens.
  static Runs Recorded(const LetterId& id) {
    const Letter letter = RecordTile(id, 1);
    return {letter.Runs().begin(), letter.Runs().end()};
  }
  static QImage Picture(const Board& board, int tile) {
    return board.Tile(tile)->Picture().toImage();
  }
};

TEST_F(BookSwitch, LettersAreWrittenAsGivenAtFirst) {
  Board& board = Open(kHindiConsonantsForm);
  EXPECT_FALSE(Button(board, "strip_book")->isChecked());
  EXPECT_EQ(RunsOf(board, kTha), Recorded({.set = "hinc", .tile = kTha, .form = {}}));
}

TEST_F(BookSwitch, SwitchedOnTilesWriteTheLettersOfTheBook) {
  Board& board = Open(kHindiConsonantsForm);
  const Runs given = RunsOf(board, kTha);
  const Runs ka = RunsOf(board, kKa);
  Press(board, "strip_book");
  EXPECT_NE(RunsOf(board, kTha), given);
  EXPECT_EQ(RunsOf(board, kTha), Recorded({.set = "hinc", .tile = kTha, .form = {.book = true}}));
  EXPECT_EQ(RunsOf(board, kKa), ka);
  Press(board, "strip_book");
  EXPECT_EQ(RunsOf(board, kTha), given);
}

TEST_F(BookSwitch, LettersWithTheFootStrokeAreThoseOfTheBookToo) {
  Board& board = Open(kHindiConsonantsForm);
  Press(board, "strip_book");
  board.Named<PictureBox>(Q("pic1", 3))->click();
  for (const int tile : {75, 91, 111}) {
    EXPECT_EQ(RunsOf(board, tile), Recorded({.set = "hinc", .tile = tile, .form = {.book = true}}))
        << tile;
  }
}

TEST_F(BookSwitch, TilesShowWhatTheyWrite) {
  Board& board = Open(kHindiConsonantsForm);
  const QImage given = Picture(board, kTha);
  const QImage ka = Picture(board, kKa);
  Press(board, "strip_book");
  EXPECT_NE(Picture(board, kTha), given);
  EXPECT_FALSE(Picture(board, kTha).isNull());
  EXPECT_EQ(Picture(board, kKa), ka);
  Press(board, "strip_book");
  EXPECT_EQ(Picture(board, kTha), given);
}

TEST_F(BookSwitch, EveryTileThatStandsOtherwiseInTheBookHasItsPictureAndName) {
  for (const char* form : {kCapitalsForm, kSmallLettersForm, kHindiVowelsForm, kHindiConsonantsForm,
                           kTeluguVowelsForm, kTeluguConsonantsForm}) {
    Board& board = Open(form);
    Press(board, "strip_book");
    for (int tile = 1; tile <= board.letters().tiles; ++tile) {
      const bool book = HasBookForm(board.letters(), tile);
      if (book) {
        EXPECT_FALSE(Picture(board, tile).isNull()) << form << tile;
      }
      EXPECT_EQ(board.Tile(tile)->accessibleName().toStdString(),
                LetterName(board.letters().name, tile, book));
    }
    Press(board, "strip_book");
    UnloadForm(&board);
  }
}

TEST_F(BookSwitch, AllBoardsFollowAndItLasts) {
  Board& first = Open(kHindiConsonantsForm);
  Press(first, "strip_book");
  Board& second = Open(kTeluguConsonantsForm);
  EXPECT_TRUE(Button(second, "strip_book")->isChecked());
  EXPECT_TRUE(second.WritesBookLetters());
  Press(second, "strip_book");
  EXPECT_FALSE(Button(first, "strip_book")->isChecked());
  EXPECT_FALSE(first.WritesBookLetters());
}

TEST_F(BookSwitch, ChartsFollow) {
  auto* chart = LoadForm(kTeluguConsonantsChart);
  auto* picture = chart->Named<PictureBox>(Q("pic", 1));
  const QImage given = picture->Picture().toImage();
  ASSERT_FALSE(given.isNull());
  Board& board = Open(kTeluguConsonantsForm);
  Press(board, "strip_book");
  EXPECT_NE(picture->Picture().toImage(), given);
  EXPECT_FALSE(picture->Picture().isNull());
  Press(board, "strip_book");
  EXPECT_EQ(picture->Picture().toImage(), given);
}

TEST_F(BookSwitch, TracingLaysTheLettersOfTheBookUnlessGivenOnesAreWanted) {
  Board& board = OpenTracing(kHindiConsonantsForm);
  EXPECT_EQ(RunsOf(board, kTha), Recorded({.set = "hinc", .tile = kTha, .form = {.book = true}}));
  Press(board, "strip_given");
  EXPECT_EQ(RunsOf(board, kTha), Recorded({.set = "hinc", .tile = kTha, .form = {}}));
  Press(board, "strip_given");
  Press(board, "strip_trace");
  EXPECT_EQ(RunsOf(board, kTha), Recorded({.set = "hinc", .tile = kTha, .form = {}}));
}

TEST_F(BookSwitch, DrawAllWritesTheLettersOfTheBook) {
  Board& board = Open(kTeluguVowelsForm);
  Press(board, "strip_book");
  Pick(board, "mnudall");
  const auto letters = board.pen().Letters().Letters();
  ASSERT_FALSE(letters.empty());
  for (const PlacedLetter& placed : letters) {
    const LetterId& id = placed.letter.Id();
    if (!placed.ruling) {
      EXPECT_TRUE(id.form.book) << id.tile;
    }
  }
}

}  // namespace
}  // namespace bramlee
