// The worksheets' dialog: how it opens, what it shows, and that what was chosen lasts.
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QSpinBox>
#include <QTabWidget>

#include "tests/companions/worksheet/opened_worksheet.h"
#include "tests/ui/pressed_by_return.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

class WorksheetDialogTest : public OpenedWorksheet {
 protected:
  /// How much of the page in view is dark, of a thousand parts.
  double Ink() const {
    const QImage page = Page();
    int dark = 0;
    for (int y = 0; y < page.height(); ++y) {
      for (int x = 0; x < page.width(); ++x) dark += qGray(page.pixel(x, y)) < 100 ? 1 : 0;
    }
    return 1000.0 * dark / (page.width() * page.height());
  }
};

TEST_F(WorksheetDialogTest, OpensOnEveryBoardWithAPageOfItsFirstLetter) {
  for (const char* form : {kCapitalsForm, kSmallLettersForm, kHindiVowelsForm, kHindiConsonantsForm,
                           kTeluguVowelsForm, kTeluguConsonantsForm, kMathsForm}) {
    OpenOn(form);
    EXPECT_TRUE(dialog->isVisible()) << form;
    EXPECT_TRUE(dialog->isModal()) << form;
    EXPECT_EQ(Pages(), 1) << form;
    EXPECT_GT(Ink(), 1) << form;
    EXPECT_TRUE(Button("tile(1)")->isChecked()) << form;
    EXPECT_TRUE(Button("print")->isEnabled()) << form;
    CloseDialog();
  }
}

TEST_F(WorksheetDialogTest, OpensByCtrlPAndOnceOnly) {
  board = &Open(kCapitalsForm);
  board->Present();
  ASSERT_TRUE(QTest::qWaitForWindowActive(board));
  QTest::keyClick(board, Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(board->findChildren<WorksheetDialog*>().size(), 1);
  board->Named<StripButton>(Q("strip_sheets"))->click();
  EXPECT_EQ(board->findChildren<WorksheetDialog*>().size(), 1);
}

TEST_F(WorksheetDialogTest, HasButtonsThatReturnPresses) {
  EXPECT_EQ(DeafToReturn(OpenOn(kCapitalsForm)), QStringList());
}

TEST_F(WorksheetDialogTest, WaitsUntilALetterThatIsWrittenStands) {
  board = &Open(kCapitalsForm);
  board->SetText(Q("txtspd"), Q("0.01"));
  int frame = 0;
  board->pen().SetFrameCall([&] {
    if (++frame == 3) board->pen().Pause();
    if (frame == 5) board->Named<StripButton>(Q("strip_sheets"))->click();
    EXPECT_EQ(board->findChild<WorksheetDialog*>(), nullptr);
  });
  board->pic_Click(2);
  EXPECT_GT(frame, 6);
  board->pen().SetFrameCall({});
  EXPECT_FALSE(board->pen().IsPaused());
  EXPECT_TRUE(QTest::qWaitFor([&] { return board->findChild<WorksheetDialog*>() != nullptr; }));
}

TEST_F(WorksheetDialogTest, OffersTheLetterThatWasWrittenLast) {
  board = &Open(kCapitalsForm);
  board->pic_Click(2);
  board->pic_Click(4);
  OpenDialog();
  EXPECT_TRUE(Button("tile(4)")->isChecked());
  EXPECT_FALSE(Button("tile(2)")->isChecked());
}

TEST_F(WorksheetDialogTest, OneLetterASelectionOrAllMakePages) {
  OpenOn(kCapitalsForm);
  const QImage a = Page();
  ClickTile(1);
  ClickTile(2);
  EXPECT_EQ(Pages(), 1);
  EXPECT_NE(Page(), a);
  Click("all");
  EXPECT_EQ(The<QLabel>("chosen")->text(), Q("26 of 26 letters chosen"));
  const int all = Pages();
  EXPECT_GE(all, 5);
  Click("none");
  EXPECT_EQ(Pages(), 0);
  for (int tile = 1; tile <= 26; ++tile) ClickTile(tile);
  EXPECT_EQ(Pages(), all);
}

TEST_F(WorksheetDialogTest, WithoutALetterSaysWhatToDoAndOffersNothing) {
  OpenOn(kCapitalsForm);
  Click("none");
  EXPECT_EQ(Said(), Q("Choose a letter first: click its picture."));
  EXPECT_EQ(The<QLabel>("page")->text(), Q("No page"));
  for (const char* name : {"print", "pdf", "pageback", "pageon"}) {
    EXPECT_FALSE(Button(name)->isEnabled()) << name;
  }
  ClickTile(3);
  EXPECT_EQ(Said(), QString());
  EXPECT_TRUE(Button("print")->isEnabled());
  EXPECT_TRUE(Button("pdf")->isEnabled());
}

TEST_F(WorksheetDialogTest, WithoutARowSaysWhatToDo) {
  OpenOn(kCapitalsForm);
  auto* rows = The<QListWidget>("rows");
  while (rows->count() > 0) {
    rows->setCurrentRow(0);
    Click("removerow");
  }
  EXPECT_EQ(Said(), Q("Add a row first, on the tab Rows."));
  EXPECT_FALSE(Button("pdf")->isEnabled());
  Click("addrow");
  EXPECT_TRUE(Button("pdf")->isEnabled());
}

TEST_F(WorksheetDialogTest, EachPartOfTheChoiceIsSeenInThePreview) {
  OpenOn(kCapitalsForm);
  QImage before = Page();
  const auto differs = [&](const char* what) {
    const QImage now = Page();
    EXPECT_NE(now, before) << what;
    before = now;
  };
  Pick("size", 2);
  differs("size");
  Pick("ruling", The<QComboBox>("ruling")->findData(Q("boxes")));
  differs("ruling");
  Pick("orientation", 1);
  EXPECT_GT(Preview().PlaceOfPage().width(), Preview().PlaceOfPage().height());
  differs("orientation");
  Click("addrow");
  differs("row");
  Click("left");
  differs("left hand");
  The<QLineEdit>("name")->setText(Q("Anna"));
  Settle();
  differs("name");
  Click("heading");
  differs("heading");
}

TEST_F(WorksheetDialogTest, ThePageHasTheShapeOfItsPaper) {
  OpenOn(kCapitalsForm);
  const auto shape = [&] {
    const QRectF page = Preview().PlaceOfPage();
    return page.height() / page.width();
  };
  Pick("paper", 0);
  EXPECT_NEAR(shape(), 297.0 / 210, 0.01);
  Pick("paper", 1);
  EXPECT_NEAR(shape(), 279.4 / 215.9, 0.01);
}

TEST_F(WorksheetDialogTest, NameAndClassCanBeTheCards) {
  MakeDataFolder();
  OpenOn(kCapitalsForm);
  const QImage empty = Page();
  Click("card");
  EXPECT_EQ(Page(), empty);  // there is no card
  EXPECT_FALSE(The<QLineEdit>("name")->isEnabled());
  EXPECT_FALSE(The<QLineEdit>("class")->isEnabled());
  WriteBytes(On("c/bramlee/dba/brmstu1.dat"),
             QByteArray(4, '\0') + "Anna Rao" + QByteArray(588, ' '));
  Click("card");
  Click("card");
  EXPECT_NE(Page(), empty);
}

TEST_F(WorksheetDialogTest, PagesTurnByButtonsKeysAndWheel) {
  OpenOn(kCapitalsForm);
  Click("all");
  const auto shown = [&] { return The<QLabel>("page")->text(); };
  const QString of = Q(" of %1").arg(Pages());
  EXPECT_EQ(shown(), Q("Page 1") + of);
  EXPECT_FALSE(Button("pageback")->isEnabled());
  const QImage first = Page();
  Click("pageon");
  EXPECT_EQ(shown(), Q("Page 2") + of);
  EXPECT_NE(Page(), first);
  Click("pageback");
  EXPECT_EQ(Page(), first);
  QTest::keyClick(&Preview(), Qt::Key_End);
  EXPECT_EQ(shown(), Q("Page %1").arg(Pages()) + of);
  EXPECT_FALSE(Button("pageon")->isEnabled());
  QTest::keyClick(&Preview(), Qt::Key_PageUp);
  EXPECT_EQ(shown(), Q("Page %1").arg(Pages() - 1) + of);
}

TEST_F(WorksheetDialogTest, WhatWasChosenLasts) {
  OpenOn(kCapitalsForm);
  ClickTile(1);
  ClickTile(5);
  ClickTile(7);
  The<QListWidget>("rows")->setCurrentRow(1);
  Click("removerow");
  Pick("size", 3);
  Pick("ruling", 4);
  Pick("paper", 1);
  Pick("orientation", 1);
  Click("given");
  Click("left");
  Click("today");
  The<QLineEdit>("class")->setText(Q("KG 2"));
  Settle();
  const QImage page = Page();
  CloseDialog();
  board->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

  OpenOn(kCapitalsForm);
  EXPECT_TRUE(Button("tile(5)")->isChecked());
  EXPECT_TRUE(Button("tile(7)")->isChecked());
  EXPECT_FALSE(Button("tile(1)")->isChecked());
  EXPECT_EQ(The<QListWidget>("rows")->count(), 3);
  EXPECT_EQ(The<QComboBox>("size")->currentIndex(), 3);
  EXPECT_EQ(The<QComboBox>("ruling")->currentIndex(), 4);
  EXPECT_EQ(The<QComboBox>("paper")->currentIndex(), 1);
  EXPECT_EQ(The<QComboBox>("orientation")->currentIndex(), 1);
  for (const char* box : {"given", "left", "today"}) EXPECT_TRUE(Button(box)->isChecked()) << box;
  EXPECT_EQ(The<QLineEdit>("class")->text(), Q("KG 2"));
  EXPECT_TRUE(Choices::Instance().Of(QString::fromLatin1(kLeftHandChoice), false).toBool());
  EXPECT_EQ(Page(), page);
}

TEST_F(WorksheetDialogTest, LettersAndRulingAreKeptForEachBoard) {
  OpenOn(kCapitalsForm);
  ClickTile(3);
  Pick("ruling", 4);
  Pick("size", 3);
  CloseDialog();
  OpenOn(kTeluguVowelsForm);
  EXPECT_FALSE(Button("tile(3)")->isChecked());
  EXPECT_EQ(The<QComboBox>("ruling")->currentIndex(), 0);
  EXPECT_EQ(The<QComboBox>("size")->currentIndex(), 3);
}

TEST_F(WorksheetDialogTest, WhatIsKeptInNoKnownFormIsAsAtFirst) {
  for (const char* key : {"matter", "letters/engc", "firstNumber", "sums", "sumsCount", "rows",
                          "size", "ruling/engc", "paper"}) {
    Choices::Instance().Choose(Q("worksheet/") + Q(key), Q("7 nonsense -1"));
  }
  OpenOn(kCapitalsForm);
  EXPECT_EQ(The<QComboBox>("matter")->currentIndex(), 0);
  EXPECT_EQ(The<QSpinBox>("first")->value(), 1);
  EXPECT_EQ(The<QSpinBox>("count")->value(), 20);
  EXPECT_EQ(The<QComboBox>("ruling")->currentIndex(), 0);
  EXPECT_EQ(The<QComboBox>("size")->currentIndex(), 1);
}

TEST_F(WorksheetDialogTest, ThePaperIsAtFirstThatOfTheCountry) {
  const QLocale before;
  const auto paperIn = [&](QLocale::Territory country) {
    QLocale::setDefault(QLocale(QLocale::English, country));
    OpenOn(kCapitalsForm);
    const QString paper = The<QComboBox>("paper")->currentText();
    dialog->deleteLater();  // unclosed, it keeps nothing
    QCoreApplication::sendPostedEvents(dialog, QEvent::DeferredDelete);
    return paper;
  };
  EXPECT_EQ(paperIn(QLocale::India), Q("A4"));
  EXPECT_EQ(paperIn(QLocale::UnitedStates), Q("Letter"));
  EXPECT_EQ(paperIn(QLocale::Canada), Q("Letter"));
  EXPECT_EQ(paperIn(QLocale::UnitedKingdom), Q("A4"));
  QLocale::setDefault(before);
}

TEST_F(WorksheetDialogTest, FitsASmallScreen) {
  OpenOn(kTeluguConsonantsForm);
  EXPECT_LE(dialog->minimumSizeHint().width(), 780);
  EXPECT_LE(dialog->minimumSizeHint().height(), 540);
  const QSize room = dialog->screen()->availableSize();
  EXPECT_LE(dialog->width(), room.width());
  EXPECT_LE(dialog->height(), room.height());
  dialog->resize(780, 540);
  QCoreApplication::processEvents();
  for (QAbstractButton* button : {Button("print"), Button("pdf"), Button("close")}) {
    const QRect place(button->mapTo(dialog, QPoint()), button->size());
    EXPECT_TRUE(dialog->rect().contains(place)) << button->objectName().toStdString();
  }
}

TEST_F(WorksheetDialogTest, EveryControlHasANameForAScreenReader) {
  OpenOn(kMathsForm);
  int controls = 0;
  for (const QWidget* each : dialog->findChildren<QWidget*>()) {
    if (!each->objectName().startsWith(Q("worksheet_"))) continue;
    if (qobject_cast<const QLabel*>(each) != nullptr) continue;  // read by its text
    EXPECT_FALSE(each->accessibleName().isEmpty()) << each->objectName().toStdString();
    ++controls;
  }
  EXPECT_GT(controls, 40);
}

TEST_F(WorksheetDialogTest, TabReachesEveryPartWithoutTheMouse) {
  OpenOn(kCapitalsForm);
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
  QSet<QString> reached;
  for (int i = 0; i < 80; ++i) {
    QTest::keyClick(dialog->focusWidget() != nullptr ? dialog->focusWidget() : dialog, Qt::Key_Tab);
    if (dialog->focusWidget() != nullptr) reached.insert(dialog->focusWidget()->objectName());
  }
  for (const char* name :
       {"worksheet_matter", "worksheet_all", "worksheet_tile(26)", "worksheet_given",
        "worksheet_preview", "worksheet_print", "worksheet_pdf", "worksheet_close"}) {
    EXPECT_TRUE(reached.contains(Q(name))) << name;
  }
}

}  // namespace
}  // namespace bramlee
