// A word or a name from the board's line to type in to the printer.
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>

#include "companions/words/words.h"
#include "tests/card/named_card.h"
#include "tests/companions/worksheet/opened_worksheet.h"

namespace bramlee {
namespace {

constexpr int kHangMs = 30000;

class PrintedWords : public OpenedWorksheet {
 protected:
  static void SetUpTestSuite() {
    OpenedWorksheet::SetUpTestSuite();
    AddOnce<AddWords>();
  }

  void OpenWords() {
    board = &Open(kSmallLettersForm);
    board->Present();
    board->Named<StripButton>(Q("strip_words"))->click();
  }
  void PressPrint() {
    board->Named<QPushButton>(Q("words_print"))->click();
    dialog = board->findChild<WorksheetDialog*>(Q("worksheet"));
  }
  QString PrintCaption() const { return board->Named<QPushButton>(Q("words_print"))->text(); }
  QString SaidOfWords() const { return board->Named<QLabel>(Q("words_said"))->text(); }
};

TEST_F(PrintedWords, TheNameOnTheCardIsAtThePrinterAfterTwoClicks) {
  MakeDataFolder();
  WriteNamedCard(Q("Kavya"));
  QString title;
  setUp = [&](QPrinter& printer) { title = printer.docName(); };
  OpenWords();
  EXPECT_EQ(PrintCaption(), Q("&Print my name..."));
  PressPrint();
  EXPECT_EQ(title, Q("Words: Kavya"));
  EXPECT_TRUE(BytesOf(printed).startsWith("%PDF-"));
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(The<QComboBox>("matter")->currentIndex(), kWords);
  EXPECT_EQ(The<QLineEdit>("words")->text(), Q("Kavya"));
  EXPECT_EQ(Said(), Q("Saved: ") + printed);
}

TEST_F(PrintedWords, WhatTheLineSaysGoesBeforeTheCard) {
  MakeDataFolder();
  WriteNamedCard(Q("Kavya"));
  OpenWords();
  board->Named<QLineEdit>(Q("words_text"))->setText(Q("cat"));
  EXPECT_EQ(PrintCaption(), Q("&Print..."));
  PressPrint();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(The<QLineEdit>("words")->text(), Q("cat"));
}

TEST_F(PrintedWords, WithoutANameNothingOpensAndTheLineBelowSaysWhy) {
  OpenWords();
  PressPrint();
  EXPECT_EQ(dialog, nullptr);
  EXPECT_EQ(SaidOfWords(), Q("The card has no name on it yet."));
}

TEST_F(PrintedWords, WhoWantsNoPrinterHasTheWorksheetBeforeHim) {
  wantsPrinter = false;
  OpenWords();
  board->Named<QLineEdit>(Q("words_text"))->setText(Q("cat"));
  PressPrint();
  ASSERT_NE(dialog, nullptr);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(Pages(), 1);
  EXPECT_FALSE(QFileInfo::exists(printed));
}

TEST_F(PrintedWords, TheWordsAreInFrontAgainOnceTheWorksheetIsClosed) {
  OpenWords();
  auto* words = board->findChild<QWidget*>(Q("words_panel"));
  ASSERT_TRUE(QTest::qWaitForWindowActive(words, kHangMs));
  board->Named<QLineEdit>(Q("words_text"))->setText(Q("cat"));
  PressPrint();
  ASSERT_NE(dialog, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog, kHangMs));
  QTest::keyClick(dialog, Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitForWindowActive(words, kHangMs));
}

TEST_F(PrintedWords, TheNextWorksheetIsTheOneBefore) {
  OpenWords();
  board->Named<QLineEdit>(Q("words_text"))->setText(Q("cat"));
  PressPrint();
  CloseDialog();
  OpenDialog();
  EXPECT_EQ(The<QComboBox>("matter")->currentIndex(), kLetters);
  EXPECT_EQ(The<QLineEdit>("words")->text(), QString());
  CloseDialog();
  PressPrint();
  The<QLineEdit>("words")->setText(Q("cat, dog"));
  CloseDialog();
  OpenDialog();
  EXPECT_EQ(The<QComboBox>("matter")->currentIndex(), kWords) << "which was chosen there by hand";
  EXPECT_EQ(The<QLineEdit>("words")->text(), Q("cat, dog"));
}

TEST_F(PrintedWords, TheWindowHasKeysThatNoMenuOfABoardHas) {
  board = &Open(kMathsForm);
  QStringList keys;
  for (const QAction* menu : board->menuBar()->actions())
    keys.append(QKeySequence::mnemonic(menu->text()).toString());
  ASSERT_TRUE(keys.contains(Q("Alt+M")));
  const auto* panel = board->findChild<QWidget*>(Q("words_panel"));
  for (const QAbstractButton* button : panel->findChildren<QAbstractButton*>()) {
    const QString key = QKeySequence::mnemonic(button->text()).toString();
    EXPECT_FALSE(key.isEmpty()) << button->objectName().toStdString();
    EXPECT_FALSE(keys.contains(key)) << key.toStdString();
  }
}

TEST_F(PrintedWords, AWordWithoutAnyStrokeIsNotPrinted) {
  OpenWords();
  board->Named<QLineEdit>(Q("words_text"))->setText(QString(QChar(0x5E9)));
  PressPrint();
  ASSERT_NE(dialog, nullptr);
  EXPECT_FALSE(Button("print")->isEnabled());
  EXPECT_FALSE(QFileInfo::exists(printed));
}

}  // namespace
}  // namespace bramlee
