// The companion that has a board write words.
#include "companions/words/words.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "board/strip.h"
#include "card/card_file.h"
#include "companions/watch/watch.h"
#include "companions/words/words_panel.h"
#include "files/data_files.h"
#include "strokes/word.h"
#include "tests/board/board_fixture.h"
#include "tests/card/named_card.h"
#include "tests/ui/pressed_by_return.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

class WordsTest : public BoardWith<AddWatching, AddWords> {
 protected:
  static void Type(const Board& board, const QString& text) {
    board.Named<QLineEdit>(Q("words_text"))->setText(text);
  }
  static void Press(const Board& board, const char* button) {
    board.Named<QPushButton>(Q(button))->click();
  }
  static void Write(const Board& board, const char* text) {
    Type(board, QString::fromUtf8(text));
    Press(board, "words_write");
  }
  static QString Said(const Board& board) { return board.Named<QLabel>(Q("words_said"))->text(); }
  static std::size_t LettersOn(Board& board) { return board.pen().Letters().Letters().size(); }
  static std::size_t DotsOn(const Board& board) {
    const QImage picture = board.sheet().Dots().Picture(QRectF(0, 0, 1300, 700), 1, Qt::white);
    std::size_t dots = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x)
        dots += picture.pixelColor(x, y) != QColor(Qt::white);
    }
    return dots;
  }
  void NameCard(const char* name) {
    MakeDataFolder();
    WriteNamedCard(QString::fromUtf8(name));
  }
};

TEST_F(WordsTest, HasAButtonThatOpensAWindowToTypeIn) {
  Board& board = Open("fbrmhinv01");
  auto* button = board.Named<StripButton>(Q("strip_words"));
  EXPECT_EQ(button->toolTip(), Q("Words (W)"));
  EXPECT_FALSE(button->icon().isNull());
  auto* panel = board.findChild<QWidget*>(Q("words_panel"));
  EXPECT_TRUE(panel->isHidden());
  button->click();
  EXPECT_FALSE(panel->isHidden());
  QTest::keyClick(panel, Qt::Key_Escape);
  EXPECT_TRUE(panel->isHidden());
}

TEST_F(WordsTest, HasButtonsThatReturnPresses) {
  const Board& board = Open("fbrmengc02");
  EXPECT_EQ(DeafToReturn(*board.findChild<QWidget*>(Q("words_panel"))), QStringList());
}

TEST_F(WordsTest, WritesAWordOfEachScriptOnEveryBoard) {
  for (const char* form : {"fbrmengc02", "fbrmengs01", "fbrmhinv01", "fbrmtelc01"}) {
    Board& board = Open(form);
    for (const char* text : {"Anna", "राधा", "రవి", "12"}) {
      Write(board, text);
      EXPECT_EQ(LettersOn(board), 1U) << form << text;
      EXPECT_GT(DotsOn(board), 2000U) << form << text;
      EXPECT_EQ(Said(board), QString()) << text;
    }
  }
}

TEST_F(WordsTest, WipesWhatStoodThereAndKeepsTheColour) {
  Board& board = Open("fbrmhinv01");
  Pick(board, "mnucolor(2)");
  const ColourWord colour = board.sheet().ForeColor();
  board.pic_Click(1);
  Write(board, "Ravi");
  ASSERT_EQ(LettersOn(board), 1U);
  EXPECT_EQ(board.pen().Letters().Letters()[0].colour, colour);
  EXPECT_EQ(board.pen().Letters().Letters()[0].letter.Id().tile, 0);
}

TEST_F(WordsTest, BreaksALongTextIntoLines) {
  Board& board = Open("fbrmtelv01");
  Write(board, QString(200, QLatin1Char('m')).toUtf8().constData());
  ASSERT_EQ(LettersOn(board), 1U);
  const PlacedLetter& text = board.pen().Letters().Letters()[0];
  EXPECT_GT(text.letter.Bounds().height, 2 * 1.75 * (kWordBase - kWordHead))
      << "three lines or more";
  EXPECT_EQ(text.letter.PenStrokes().size(), 200 * LayWord("m").letter.PenStrokes().size());
}

TEST_F(WordsTest, KeepsALongTextBelowTheTilesThatStandAboveTheSheet) {
  for (const char* form : {"fbrmhinv01", "fbrmtelv01"}) {
    Board& board = Open(form);
    Write(board, QString(200, QLatin1Char('m')).toUtf8().constData());
    ASSERT_EQ(LettersOn(board), 1U);
    const PlacedLetter& text = board.pen().Letters().Letters()[0];
    const double top = text.letter.Bounds().y * text.placing.scale + text.placing.down;
    EXPECT_GE(top, board.record().gridExtent.top) << form;
  }
}

TEST_F(WordsTest, OpensItsWindowOverTheTilesOfABoardWithTheSheetBelow) {
  for (const char* form : {"fbrmengc02", "fbrmhinv01", "fbrmtelv01"}) {
    Board& board = Open(form);
    board.show();
    board.resize(1024, 700);
    board.Named<StripButton>(Q("strip_words"))->click();
    const auto* panel = board.findChild<QWidget*>(Q("words_panel"));
    const bool upper = panel->geometry().center().y() < board.geometry().center().y();
    EXPECT_EQ(upper, form != std::string("fbrmengc02")) << form;
  }
}

TEST_F(WordsTest, GoesBackAndBeginsAgainThroughAllLines) {
  Board& board = Open("fbrmtelv01");
  Write(board, QString(60, QLatin1Char('m')).toUtf8().constData());
  const std::size_t dots = DotsOn(board);
  while (board.pen().StrokeBack()) {
  }
  EXPECT_EQ(board.pen().Stands(), (Player::Where{.letter = 0, .stroke = 0, .begun = false}));
  EXPECT_EQ(DotsOn(board), 0U);
  board.pen().GoOn();
  EXPECT_EQ(DotsOn(board), dots);
  std::size_t least = dots;
  board.pen().SetFrameCall([&] { least = std::min(least, DotsOn(board)); });
  board.pen().Again();
  board.pen().SetFrameCall(nullptr);
  EXPECT_LT(least, dots / 4);
  EXPECT_EQ(DotsOn(board), dots);
}

TEST_F(WordsTest, KeepsWithinANarrowWindow) {
  Board& board = Open("fbrmengc02");
  board.show();
  board.resize(900, 700);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&board));
  ASSERT_TRUE(QTest::qWaitFor([&] { return board.sheet().parentWidget()->width() <= 900; }));
  Write(board, "Lakshminarayana");
  const PlacedLetter& word = board.pen().Letters().Letters()[0];
  const Box& box = word.letter.Bounds();
  const double right = (box.x + box.width) * word.placing.scale + word.placing.right;
  const QWidget* view = board.sheet().parentWidget();
  EXPECT_LT(right + board.sheet().x(), view->width());
  EXPECT_GE(word.placing.right + board.sheet().x(), 0);
}

TEST_F(WordsTest, NamesWhatIsLeftOutAndWritesTheRest) {
  Board& board = Open("fbrmengc02");
  Write(board, "Zoé é \U0001F600");
  EXPECT_EQ(LettersOn(board), 1U);
  EXPECT_TRUE(Said(board).contains(QString::fromUtf8("é"), Qt::CaseInsensitive))
      << Said(board).toStdString();
  EXPECT_EQ(Said(board).count(Q("U+00E9")), 1);
  EXPECT_TRUE(Said(board).contains(Q("U+1F600")));
  Write(board, "Zo");
  EXPECT_EQ(Said(board), QString());
}

TEST_F(WordsTest, LeavesTheSheetAloneWhenNothingCanBeWritten) {
  Board& board = Open("fbrmengc02");
  board.pic_Click(1);
  const std::size_t dots = DotsOn(board);
  Write(board, "\u0645\u05E9");
  EXPECT_EQ(DotsOn(board), dots);
  EXPECT_TRUE(Said(board).contains(Q("U+0645")));
  Type(board, Q("   "));
  EXPECT_FALSE(board.Named<QPushButton>(Q("words_write"))->isEnabled());
}

TEST_F(WordsTest, WritesTheNameOnTheCard) {
  Board& board = Open("fbrmhinc01");
  NameCard("Kavya");
  Press(board, "words_my_name");
  EXPECT_EQ(board.Named<QLineEdit>(Q("words_text"))->text(), Q("Kavya"));
  EXPECT_EQ(LettersOn(board), 1U);
}

TEST_F(WordsTest, OffersNoPrintOnABoardWithoutWorksheets) {
  Board& board = Open("fbrmhinc01");
  board.Named<StripButton>(Q("strip_words"))->click();
  EXPECT_TRUE(board.Named<QPushButton>(Q("words_print"))->isHidden());
  EXPECT_FALSE(board.Named<QPushButton>(Q("words_write"))->isHidden());
}

TEST_F(WordsTest, SaysWhenTheCardHasNoName) {
  Board& board = Open("fbrmhinc01");
  Press(board, "words_my_name");
  EXPECT_EQ(Said(board), Q("The card has no name on it yet."));
  MakeDataFolder();
  ProvideCard();
  ASSERT_FALSE(FileMissing(Q("C:\\bramlee\\dba\\brmstu1.dat")));
  ASSERT_EQ(HolderOfCard().name, QString());
  Press(board, "words_my_name");
  EXPECT_EQ(Said(board), Q("The card has no name on it yet."));
  EXPECT_EQ(LettersOn(board), 0U);
}

TEST_F(WordsTest, AsksForANameWhoseLettersTheCardCannotHold) {
  Board& board = Open("fbrmhinc01");
  NameCard("राधा");
  Press(board, "words_my_name");
  EXPECT_EQ(Said(board), Q("The card cannot hold the letters of the name: type it."));
  EXPECT_EQ(LettersOn(board), 0U);
  NameCard("Zoë");
  Press(board, "words_my_name");
  EXPECT_EQ(LettersOn(board), 1U);
  EXPECT_TRUE(Said(board).contains(Q("U+00EB"))) << "written without it, and said";
}

TEST_F(WordsTest, DrawsTheHeadLineOverEachLetterWhereChosen) {
  Board& board = Open("fbrmhinv01");
  Write(board, "कमल");
  const auto strokes = [&] {
    return board.pen().Letters().Letters()[0].letter.PenStrokes().size();
  };
  const std::size_t once = strokes();
  Choices::Instance().Choose(Q(kPerLetterChoice), true);
  Write(board, "कमल");
  EXPECT_EQ(strokes(), once + 2);
  Choices::Instance().Choose(Q(kPerLetterChoice), false);
}

TEST_F(WordsTest, TakesTypingButNoSecondWordWhileOneIsWritten) {
  Board& board = Open("fbrmengs01");
  int frames = 0;
  board.pen().SetFrameCall([&] {
    if (++frames != 3) return;
    Type(board, Q("next"));
    EXPECT_FALSE(board.Named<QPushButton>(Q("words_write"))->isEnabled());
    Q_EMIT board.Named<QLineEdit>(Q("words_text"))->returnPressed();
  });
  board.SetText(Q("txtspd"), Q("0.03"));
  Write(board, "first");
  board.pen().SetFrameCall(nullptr);
  ASSERT_GT(frames, 3);
  EXPECT_EQ(LettersOn(board), 1U);
  EXPECT_TRUE(board.Named<QPushButton>(Q("words_write"))->isEnabled());
  EXPECT_EQ(board.Named<QLineEdit>(Q("words_text"))->text(), Q("next"));
}

TEST_F(WordsTest, IsStepped) {
  Board& board = Open("fbrmengs01");
  Write(board, "ab");
  const std::size_t dots = DotsOn(board);
  EXPECT_TRUE(board.pen().StrokeBack());
  EXPECT_LT(DotsOn(board), dots);
  board.pen().StrokeOn();
  EXPECT_EQ(DotsOn(board), dots);
  board.pen().Again();
  EXPECT_EQ(DotsOn(board), dots);
}

TEST(LeftOutTest, IsNamedOnceAndNotAtLength) {
  EXPECT_EQ(NamesOf({}), QString());
  std::vector<LeftOut> many;
  for (const char* text : {"б", "б", "в", "г", "д", "е", "ж", "з"})
    many.push_back({.text = text, .at = 0});
  const QString said = NamesOf(many);
  EXPECT_EQ(said.count(Q("U+")), 6);
  EXPECT_TRUE(said.endsWith(Q("1 more")));
}

}  // namespace
}  // namespace bramlee
