// What a worksheet can be about, besides letters of the board.
#include <QCheckBox>
#include <QSpinBox>
#include <QStackedWidget>

#include "letters/letter_names.h"
#include "tests/companions/worksheet/opened_worksheet.h"

namespace bramlee {
namespace {

class WorksheetMatterTest : public OpenedWorksheet {
 protected:
  QStringList TilesOffered() const {
    QStringList names;
    for (const auto* tile : dialog->findChildren<PictureBox*>()) names.append(tile->objectName());
    return names;
  }
};

TEST_F(WorksheetMatterTest, OffersTheTilesThatTheBoardShows) {
  OpenOn(kHindiConsonantsForm);
  EXPECT_EQ(TilesOffered().size(), 37);
  EXPECT_EQ(TilesOffered().first(), Q("worksheet_tile(1)"));
  CloseDialog();
  board->Named<PictureBox>(Q("pic1", 2))->click();
  OpenDialog();
  EXPECT_EQ(TilesOffered().size(), 37);
  EXPECT_EQ(TilesOffered().first(), Q("worksheet_tile(38)"));
}

TEST_F(WorksheetMatterTest, ATileWithoutStrokesIsNotOffered) {
  OpenOn(kHindiVowelsForm);
  EXPECT_FALSE(TilesOffered().contains(Q("worksheet_tile(14)")));
  EXPECT_TRUE(TilesOffered().contains(Q("worksheet_tile(15)")));
}

TEST_F(WorksheetMatterTest, TheMathsBoardOffersItsTilesWhileADrillHidesThem) {
  board = &Open(kMathsForm);
  board->Present();
  OpenDialog();
  const QStringList tiles = TilesOffered();
  EXPECT_EQ(tiles.size(), 17);
  CloseDialog();
  bramlee::Pick(*board, "mnuadd");
  OpenDialog();
  EXPECT_EQ(TilesOffered(), tiles);
}

TEST_F(WorksheetMatterTest, AlternativeFormsAreThoseOfTheBoard) {
  OpenOn(kHindiVowelsForm);
  ClickTile(1);
  const QList<int> twoForms(board->letters().secondForms.begin(),
                            board->letters().secondForms.end());
  ASSERT_FALSE(twoForms.isEmpty());
  const QByteArray tile = Q("tile", twoForms.first()).toLatin1();
  Click(tile.constData());
  const QImage usual = Page();
  CloseDialog();
  bramlee::Pick(*board, "mnudrawalt");
  OpenDialog();
  EXPECT_EQ(TilesOffered().size(), twoForms.size());
  EXPECT_TRUE(Button(tile.constData())->isChecked());
  EXPECT_NE(Page(), usual);
}

TEST_F(WorksheetMatterTest, LettersStandAsInTheBookUnlessGivenOnesAreWanted) {
  constexpr int kTha = 17;  // stands otherwise in the book
  OpenOn(kHindiConsonantsForm);
  ClickTile(1);
  ClickTile(kTha);
  auto* tile = The<PictureBox>("tile(17)");
  const QImage book = Page();
  const QImage bookTile = tile->Picture().toImage();
  Click("given");
  EXPECT_NE(Page(), book);
  EXPECT_NE(tile->Picture().toImage(), bookTile);
  EXPECT_TRUE(tile->isChecked());
  EXPECT_EQ(tile->accessibleName().toStdString(), LetterName("hinc", kTha, false));
  Click("given");
  EXPECT_EQ(Page(), book);
  EXPECT_EQ(tile->Picture().toImage(), bookTile);
}

TEST_F(WorksheetMatterTest, GivenLettersAreOfferedOnlyWhereTheBookHasOthers) {
  OpenOn(kTeluguConsonantsForm);
  EXPECT_TRUE(Button("given")->isVisible());
  Pick("matter", kSums);
  EXPECT_FALSE(Button("given")->isVisible());
  Pick("matter", kNumbers);
  EXPECT_FALSE(Button("given")->isVisible());
}

TEST_F(WorksheetMatterTest, CtrlAChoosesAllLetters) {
  OpenOn(kCapitalsForm);
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
  QWidget* tile = The<PictureBox>("tile(3)");
  tile->setFocus();
  QTest::keyClick(tile, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(The<QLabel>("chosen")->text(), Q("26 of 26 letters chosen"));
  Settle();
  EXPECT_GT(Pages(), 1);
}

TEST_F(WorksheetMatterTest, TilesAreChosenByKeys) {
  OpenOn(kCapitalsForm);
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
  QWidget* tile = The<PictureBox>("tile(1)");
  tile->setFocus();
  QTest::keyClick(tile, Qt::Key_Space);
  EXPECT_FALSE(Button("tile(1)")->isChecked());
  QTest::keyClick(tile, Qt::Key_Right);
  ASSERT_EQ(dialog->focusWidget(), The<PictureBox>("tile(2)"));
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(Button("tile(2)")->isChecked());
  EXPECT_TRUE(dialog->isVisible());  // Return on a tile is no Return on the dialog
}

TEST_F(WorksheetMatterTest, TilesAreLargeEnoughForAFinger) {
  OpenOn(kTeluguConsonantsForm);
  for (const auto* tile : dialog->findChildren<PictureBox*>()) {
    EXPECT_GE(tile->width(), 44);
    EXPECT_GE(tile->height(), 44);
  }
}

TEST_F(WorksheetMatterTest, WordsOfEachScriptMakePages) {
  OpenOn(kCapitalsForm);
  Pick("matter", kWords);
  EXPECT_EQ(Said(), Q("Type a word or a name first."));
  EXPECT_FALSE(Button("print")->isEnabled());
  QImage before = Page();
  for (const char* word : {"Anna", "कमल", "అమల"}) {
    The<QLineEdit>("words")->setText(QString::fromUtf8(word));
    Settle();
    EXPECT_EQ(Pages(), 1) << word;
    EXPECT_NE(Page(), before) << word;
    before = Page();
  }
  The<QLineEdit>("words")->setText(Q("Anna, Peter , ,Ravi"));
  Settle();
  EXPECT_GT(Pages(), 1);
  EXPECT_FALSE(Button("given")->isVisible());
}

TEST_F(WorksheetMatterTest, NumbersAreOnPagesFromTheFirstToTheLast) {
  OpenOn(kCapitalsForm);
  Pick("matter", kNumbers);
  const int all = Pages();
  EXPECT_GT(all, 3);
  const QImage from1 = Page();
  The<QSpinBox>("first")->setValue(19);
  Settle();
  EXPECT_LT(Pages(), all);
  EXPECT_NE(Page(), from1);
}

TEST_F(WorksheetMatterTest, NumbersInTheWrongOrderAreTurnedRound) {
  OpenOn(kCapitalsForm);
  Pick("matter", kNumbers);
  The<QSpinBox>("first")->setValue(3);
  The<QSpinBox>("last")->setValue(7);
  Settle();
  const QImage right = Page();
  const int pages = Pages();
  The<QSpinBox>("first")->setValue(7);
  The<QSpinBox>("last")->setValue(3);
  Settle();
  EXPECT_EQ(Pages(), pages);
  EXPECT_EQ(Page(), right);
}

TEST_F(WorksheetMatterTest, SumsHaveTheirResultsOnPagesOfTheirOwn) {
  OpenOn(kMathsForm);
  Pick("matter", kSums);
  ASSERT_TRUE(Button("answers")->isChecked());
  const int with = Pages();
  EXPECT_GE(with, 2);
  Click("answers");
  EXPECT_LT(Pages(), with);
}

TEST_F(WorksheetMatterTest, EachKindOfSumsAndOtherSumsLookOtherwise) {
  OpenOn(kMathsForm);
  Pick("matter", kSums);
  QImage before = Page();
  for (int kind = 1; kind < The<QComboBox>("sums")->count(); ++kind) {
    Pick("sums", kind);
    EXPECT_NE(Page(), before) << kind;
    before = Page();
  }
  Click("other");
  EXPECT_NE(Page(), before);
}

TEST_F(WorksheetMatterTest, SumsHaveNoRows) {
  OpenOn(kMathsForm);
  EXPECT_TRUE(The<QWidget>("rows")->isEnabled());
  Pick("matter", kSums);
  EXPECT_FALSE(The<QWidget>("rows")->isEnabled());
}

TEST_F(WorksheetMatterTest, TheBookOfAllLettersHasManyPages) {
  OpenOn(kCapitalsForm);
  Pick("matter", kBook);
  EXPECT_GT(Pages(), 60);
  EXPECT_TRUE(Button("pdf")->isEnabled());
}

}  // namespace
}  // namespace bramlee
