#include "shell/fbrminf1.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include "shell/form.h"
#include "shell/screen.h"
#include "tests/shell/card_test.h"
#include "tests/shell/faulty_disk.h"
#include "tests/shell/huge_picture.h"
#include "tests/shell/real_boxes.h"

namespace bramlee {
namespace {

class BiodataCard : public CardTest {
 protected:
  /// Whether that picture is the one that the form itself holds.
  static bool ShowsDefault(const char* name) {
    const QString file = name == QByteArray("img") ? QStringLiteral(":/pictures/card/idcard.jpg")
                                                   : QStringLiteral(":/pictures/card/school.jpg");
    const QPixmap own(file);
    EXPECT_FALSE(own.isNull());
    const auto* box = Card()->Named<PictureBox>(QString::fromLatin1(name));
    return box->Picture().toImage() == own.toImage();
  }
};

TEST_F(BiodataCard, OpensWithTheDefaultItem) {
  Open();
  EXPECT_EQ(Row(), Texts({"9", "3", "2025", "I Bought BRM Cd", "100", "1", "100", "100", "0"}));
  EXPECT_EQ(Sums(), Texts({"1", "100", "100", "0"}));
  EXPECT_EQ(Box(0)->text(), QStringLiteral("Enter Your Name"));
  EXPECT_EQ(Box(1)->text(), QStringLiteral("BRM"));
  EXPECT_EQ(Box(2)->text(), QStringLiteral("Enter Your Class Teacher Name"));
  EXPECT_EQ(Box(3)->text(), QStringLiteral("C:\\bramlee\\idcard.jpg Not Found:"));
  EXPECT_EQ(Box(4)->text(), QStringLiteral("C:\\bramlee\\school.jpg Not Found:"));
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("1"));
}

TEST_F(BiodataCard, ShowsHeadListsAndSums) {
  Put(Items(3));
  Open();
  EXPECT_EQ(Box(0)->text(), QStringLiteral("Anna"));
  EXPECT_EQ(Box(1)->text(), QStringLiteral("KG 2"));
  EXPECT_EQ(Box(2)->text(), QStringLiteral("Mrs Rao"));
  EXPECT_EQ(Box(3)->text(), QStringLiteral("C:\\id.png"));
  EXPECT_EQ(Box(4)->text(), QStringLiteral("C:\\logo.png"));
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 2", "Item 3"}));
  EXPECT_EQ(List(4), Texts({"10", "20", "30"}));
  EXPECT_EQ(List(0), Texts({"9", "9", "9"}));
  EXPECT_EQ(Row()[3], QStringLiteral("Item 1"));
  EXPECT_EQ(Sums(), Texts({"6", "60", "300", "240"}));
}

TEST_F(BiodataCard, SumsAreWiderThanTheirFields) {
  PlainRecord record;
  record.count = 3;
  record.items = 2'147'483'647;
  record.amount = -2'147'483'647;
  const QByteArray bytes = record.Bytes();
  Put(bytes + bytes + bytes);
  Open();
  EXPECT_EQ(Sums(), Texts({"6442450941", "-6442450941", "300", "240"}));
}

TEST_F(BiodataCard, WritesPricesAsTheShortestDigits) {
  PlainRecord record;
  record.price = 0.1;
  Put(record.Bytes());
  Open();
  EXPECT_EQ(Row()[4], QStringLiteral("0.1"));
  Save();
  EXPECT_EQ(File(), record.Bytes());
}

TEST_F(BiodataCard, APickInAnyComboMovesAllNine) {
  Put(Items(3));
  Open();
  for (int k = 0; k < 9; ++k) {
    Pick(k, 2);
    EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("3"));
    EXPECT_EQ(Row()[3], QStringLiteral("Item 3"));
    EXPECT_EQ(Row()[4], QStringLiteral("30"));
    for (int j = 0; j < 9; ++j) EXPECT_EQ(Field(j)->currentIndex(), 2);
    Pick(k, 0);
    EXPECT_EQ(Row()[3], QStringLiteral("Item 1"));
  }
}

TEST_F(BiodataCard, TheArrowKeysPick) {
  Put(Items(3));
  Open();
  QTest::keyClick(Field(0), Qt::Key_Down);  // the dates are all alike
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("2"));
  EXPECT_EQ(Row()[3], QStringLiteral("Item 2"));
  EXPECT_EQ(Row()[4], QStringLiteral("20"));
}

TEST_F(BiodataCard, APickFromTheOpenListPicks) {
  Put(Items(3));
  Open();
  Q_EMIT Field(3)->activated(0);
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("1"));
  Field(3)->setCurrentIndex(1);
  Q_EMIT Field(3)->activated(1);
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("2"));
}

TEST_F(BiodataCard, APickInAListThatIsOpenOnTheScreenPicks) {
  Put(Items(3));
  Open();
  Field(4)->showPopup();
  QTest::keyClick(Field(4)->view(), Qt::Key_Down);
  QTest::keyClick(Field(4)->view(), Qt::Key_Return);
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("2"));
  EXPECT_EQ(Row()[3], QStringLiteral("Item 2"));
  Field(8)->showPopup();  // the balances are all alike
  QTest::keyClick(Field(8)->view(), Qt::Key_End);
  QTest::keyClick(Field(8)->view(), Qt::Key_Return);
  EXPECT_EQ(Row()[3], QStringLiteral("Item 3"));
  // The entry on show picked again, after other text was typed.
  Type(4, "77");
  Field(4)->showPopup();
  QTest::keyClick(Field(4)->view(), Qt::Key_Return);
  EXPECT_EQ(Row()[4], QStringLiteral("30"));
}

TEST_F(BiodataCard, TheWheelPicksNothing) {
  Put(Items(3));
  Open();
  QWheelEvent turn(QPointF(5, 5), Field(4)->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(Field(4), &turn);
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("1"));
  EXPECT_EQ(Field(4)->currentIndex(), 0);
}

TEST_F(BiodataCard, ATypedTextThatEqualsAnEntryIsNoPick) {
  Put(Items(3));
  Open();
  for (const int key : {int{Qt::Key_Tab}, int{Qt::Key_Return}, int{Qt::Key_Enter}}) {
    Field(4)->setFocus();
    Field(4)->lineEdit()->selectAll();
    QTest::keyClicks(Field(4), QStringLiteral("30"));
    QTest::keyClick(Field(4), static_cast<Qt::Key>(key));
    EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("1"));
    EXPECT_EQ(Field(4)->count(), 3);
    EXPECT_EQ(Field(4)->currentText(), QStringLiteral("30"));
    EXPECT_EQ(Row()[3], QStringLiteral("Item 1"));
  }
}

TEST_F(BiodataCard, ATypedTextIsStoredInTheItemThatItWasTypedInto) {
  Put(Items(3));
  Open();
  QApplication::setActiveWindow(Card());
  Field(4)->lineEdit()->selectAll();
  QTest::mouseClick(Field(4)->lineEdit(), Qt::LeftButton);
  Field(4)->lineEdit()->selectAll();
  QTest::keyClicks(Field(4)->lineEdit(), QStringLiteral("30"));
  QTest::mouseClick(Box(0), Qt::LeftButton);
  QTest::mouseClick(Sign(13), Qt::LeftButton);
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  QByteArray expected = Items(3);
  expected.replace(526, 8, QByteArray("\0\0\0\0\0\0\x3e\x40", 8));  // 30.0
  EXPECT_EQ(File(), expected);
}

TEST_F(BiodataCard, ATypedTextIsNotCompleted) {
  Open();
  Field(4)->setFocus();
  Field(4)->lineEdit()->selectAll();
  QTest::keyClicks(Field(4), QStringLiteral("1"));  // the list has "100"
  QTest::keyClick(Field(4), Qt::Key_Tab);
  EXPECT_EQ(Field(4)->currentText(), QStringLiteral("1"));
}

TEST_F(BiodataCard, APickAfterTypingBringsTheEntryBack) {
  Put(Items(2));
  Open();
  Type(4, "77");
  Pick(3, 0);
  EXPECT_EQ(Row()[4], QStringLiteral("10"));
}

TEST_F(BiodataCard, NewMakesRoomForAnItem) {
  Put(Items(2));
  Open();
  SetToday(QDate(2026, 12, 31));
  New();
  EXPECT_EQ(Row(),
            Texts({"31", "12", "2026", "Item Name...", "?...", "?...", "?...", "?...", "?..."}));
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("New"));
  EXPECT_EQ(Field(0)->count(), 2);
}

TEST_F(BiodataCard, APickLeavesNewWithoutAQuestion) {
  Put(Items(2));
  Open();
  New();
  Pick(6, 0);
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("1"));
  EXPECT_EQ(Row()[3], QStringLiteral("Item 1"));
  EXPECT_TRUE(boxes.isEmpty() && questions.isEmpty());
}

TEST_F(BiodataCard, SavesANewItemAsACopyOfRecordOneWithTheNewCount) {
  const QByteArray two = Items(2);
  Put(two);
  Open();
  New();
  TypeItem("Item Name...");  // stored as typed
  Box(0)->setText(QStringLiteral("  Anna Maria "));
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  PlainRecord first;
  first.name = "Anna Maria";
  first.item = "Item 1";
  first.count = 3;
  first.serial = 101;
  first.reserved = QByteArray(62, 'b');
  PlainRecord third = first;
  third.item = "Item Name...";
  third.price = third.items = third.amount = third.money = third.balance = 1;
  EXPECT_EQ(File(), first.Bytes() + two.mid(600) + third.Bytes());
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 2", "Item Name..."}));
  EXPECT_EQ(Sums(), Texts({"5", "41", "201", "161"}));
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("3"));
  EXPECT_EQ(Row()[3], QStringLiteral("Item Name..."));
}

TEST_F(BiodataCard, ANewItemIsOneEntryMoreInEachList) {
  Put(Items(2));
  Open();
  New();
  const char* typed[] = {"1", "2", "2003", "Kite", "4.25", "5", "6", "7", "-8"};
  for (int k = 0; k < 9; ++k) Type(k, typed[k]);
  Save();
  for (int k = 0; k < 9; ++k) {
    ASSERT_EQ(Field(k)->count(), 3) << k;
    EXPECT_EQ(Field(k)->itemText(2), QString::fromLatin1(typed[k]));
    EXPECT_EQ(Field(k)->currentText(), QString::fromLatin1(typed[k]));
  }
  EXPECT_EQ(Sums(), Texts({"9", "46", "207", "152"}));
}

TEST_F(BiodataCard, SavesTheFirstItemWithTheHead) {
  const QByteArray two = Items(2);
  Put(two);
  Open();
  Box(1)->setText(QStringLiteral("KG 1"));
  Type(3, "Book");
  Type(4, "12.5");
  Save();
  PlainRecord first;
  first.className = "KG 1";
  first.item = "Book";
  first.price = 12.5;
  first.count = 2;
  first.serial = 101;
  first.reserved = QByteArray(62, 'b');
  EXPECT_EQ(File(), first.Bytes() + two.mid(600));
}

TEST_F(BiodataCard, SavesAnotherItemWithItsOldHeadAndTheHeadInRecordOne) {
  const QByteArray three = Items(3);
  Put(three);
  Open();
  Pick(0, 1);
  Box(2)->setText(QStringLiteral("Mr Das"));
  Type(8, "-5");
  Save();
  QByteArray expected = three;
  expected.replace(304, 100, QByteArray("Mr Das").leftJustified(100));
  expected.replace(600 + 512, 4, QByteArray("\xfb\xff\xff\xff", 4));
  EXPECT_EQ(File(), expected);
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("2"));
  EXPECT_EQ(Row()[8], QStringLiteral("-5"));
}

TEST_F(BiodataCard, DatesAreTestedAsNumbersOnly) {
  Open();
  for (const int k : {0, 1, 2}) Type(k, "99");
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  EXPECT_EQ(Row().mid(0, 3), Texts({"99", "99", "99"}));
}

TEST_F(BiodataCard, NumbersAreRoundedToEven) {
  Open();
  Type(5, "2.5");
  Type(6, "3.5");
  Type(7, "-2.5");
  Type(8, " +1e2 ");
  Type(0, "4.5");
  Save();
  EXPECT_EQ(Row(), Texts({"4", "3", "2025", "I Bought BRM Cd", "100", "2", "4", "-2", "100"}));
}

TEST_F(BiodataCard, StopsAtTheFirstFieldThatIsNoNumber) {
  Put(Items(1));
  Open();
  Type(2, "nan");
  Type(6, "?...");
  SetBackColor(Field(6), 0x00FF00);
  Save();
  EXPECT_EQ(boxes, Texts({"Enter Numeric"}));
  EXPECT_EQ(BackColorOf(Field(0)), 0xFFFFFFU);
  EXPECT_EQ(BackColorOf(Field(2)), 255U);
  EXPECT_EQ(BackColorOf(Field(6)), 0x00FF00U);  // not reached
  Type(2, "2025");
  Save();
  EXPECT_EQ(BackColorOf(Field(2)), 0xFFFFFFU);
  EXPECT_EQ(BackColorOf(Field(6)), 255U);
  Type(6, "1");
  Type(1, "x");
  Save();
  EXPECT_EQ(BackColorOf(Field(1)), 255U);
  EXPECT_EQ(BackColorOf(Field(6)), 255U);  // red from before
  EXPECT_EQ(File(), Items(1));
}

TEST_F(BiodataCard, TakesOnlyWhatIsANumber) {
  for (int k = 0; k < 9; ++k) {
    for (const char* text : {"", "nan", "inf", "1,5", "?...", "1 2"}) {
      Put(Items(1));
      Open();
      Type(k, text);
      Save();
      EXPECT_EQ(boxes, Texts({k == 3 ? "Saved Successfully" : "Enter Numeric"})) << k << text;
      boxes.clear();
      UnloadAll();
    }
  }
}

TEST_F(BiodataCard, ANumberTooLargeForItsFieldStoresNothing) {
  const QByteArray two = Items(2);
  const char* tooLarge[] = {"32768",      "40000",       "-32769",      nullptr,       nullptr,
                            "2147483648", "-2147483649", "99999999999", "2147483647.5"};
  for (int k = 0; k < 9; ++k) {
    if (tooLarge[k] == nullptr) continue;
    for (const bool isNew : {false, true}) {
      Put(two);
      Open();
      if (isNew) New();
      if (isNew) TypeItem("x");
      Type(k, tooLarge[k]);
      Save();
      EXPECT_TRUE(boxes.isEmpty());
      EXPECT_EQ(File(), two);
      EXPECT_EQ(Field(k)->currentText(), QString::fromLatin1(tooLarge[k]));
      Type(k, "1");
      Save();
      EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
      EXPECT_EQ(Field(0)->count(), isNew ? 3 : 2);
      boxes.clear();
      UnloadAll();
    }
  }
}

TEST_F(BiodataCard, TellsByItsStatusWhetherItWasSavedOrLoaded) {
  Put(Items(2));
  Open();
  StudentRec rec;
  EXPECT_EQ(Card()->LoadCard(rec), 0);
  EXPECT_EQ(Trim(rec.ItemName.Text()), QStringLiteral("Item 2"));  // the last one read
  std::int32_t recNo = 2;
  EXPECT_EQ(Card()->SaveCard(recNo, false), 0);
  recNo = 7;  // a new item's number is the file's to give
  EXPECT_EQ(Card()->SaveCard(recNo, true), 0);
  EXPECT_EQ(recNo, 3);
  const QByteArray three = File();
  recNo = 4;
  EXPECT_EQ(Card()->SaveCard(recNo, false), 1);
  recNo = 0;
  EXPECT_EQ(Card()->SaveCard(recNo, false), 1);
  Type(5, "3000000000");
  recNo = 1;
  EXPECT_EQ(Card()->SaveCard(recNo, false), 1);
  EXPECT_EQ(Card()->SaveCardHeader(1, false, rec), 1);
  EXPECT_EQ(File(), three);
  QDir(On("c/bramlee")).removeRecursively();
  EXPECT_EQ(Card()->LoadCard(rec), 1);
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(BiodataCard, LeavesAFileHeldByAnotherProgramAlone) {
  const QByteArray two = Items(2);
  Put(two);
  Open();
  const int held = open(QFile::encodeName(Place()).constData(), O_RDWR);
  ASSERT_EQ(flock(held, LOCK_EX), 0);
  Pick(0, 1);
  Remove();
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("2"));
  New();
  TypeItem("Kite");
  Save();
  EXPECT_TRUE(boxes.isEmpty());  // no success is told
  EXPECT_EQ(File(), two);
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("New"));
  EXPECT_EQ(Row()[3], QStringLiteral("Kite"));
  close(held);
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 2", "Kite"}));
}

TEST_F(BiodataCard, KeepsItsOldPathWhenTheNewOneIsNotFound) {
  Put(Items(1));
  Open();
  Box(3)->setText(QStringLiteral("C:\\gone.jpg"));
  QString shown;
  ColourWord ground = 0;
  ColourWord other = 0;
  ReplaceMessageBoxes({.show =
                           [&](const QString& text, const QString&) {
                             boxes.append(text);
                             shown = Box(3)->text();
                             ground = BackColorOf(Box(3));
                             other = BackColorOf(Box(4));
                           },
                       .ask = {}});
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  EXPECT_EQ(shown, QStringLiteral("C:\\gone.jpg Not Found:"));
  EXPECT_EQ(ground, 255U);
  EXPECT_EQ(other, 0xFFFFFFU);
  EXPECT_EQ(File(), Items(1));
  EXPECT_EQ(Box(3)->text(), QStringLiteral("C:\\id.png"));  // loaded again
}

TEST_F(BiodataCard, AddsNotFoundToWhatEndsInItAlready) {
  QFile::remove(On("c/logo.png"));
  Put(Items(1));
  Open();
  EXPECT_EQ(Box(4)->text(), QStringLiteral("C:\\logo.png Not Found:"));
  StudentRec rec;
  ASSERT_EQ(Card()->SaveCardHeader(2, false, rec), 0);
  EXPECT_EQ(Box(4)->text(), QStringLiteral("C:\\logo.png Not Found: Not Found:"));
  EXPECT_EQ(BackColorOf(Box(4)), 255U);
  EXPECT_EQ(BackColorOf(Box(3)), 0xFFFFFFU);
  Save();
  EXPECT_EQ(File(), Items(1));
}

TEST_F(BiodataCard, StoresAPathThatIsFound) {
  Put(Items(1));
  WriteBytes(On("c/new.jpg"), "no picture");
  Open();
  Box(4)->setText(QStringLiteral(" C:\\new.jpg "));
  Save();
  EXPECT_EQ(File().mid(254, 50), QByteArray("C:\\new.jpg").leftJustified(50));
  EXPECT_EQ(Box(4)->text(), QStringLiteral("C:\\new.jpg"));
}

TEST_F(BiodataCard, ShowsItsPictures) {
  Put(Items(1));
  Open();
  EXPECT_EQ(Card()->Named<PictureBox>(QStringLiteral("img"))->Picture().size(), QSize(20, 10));
  EXPECT_EQ(Card()->Named<PictureBox>(QStringLiteral("pic"))->Picture().size(), QSize(10, 20));
}

TEST_F(BiodataCard, KeepsTheDefaultPictureWhenThereIsNoOther) {
  WriteBytes(On("c/id.png"), "no picture");
  QFile::remove(On("c/logo.png"));
  Put(Items(2));
  Open();
  EXPECT_TRUE(ShowsDefault("img"));
  EXPECT_TRUE(ShowsDefault("pic"));
  EXPECT_EQ(Box(3)->text(), QStringLiteral("C:\\id.png"));
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 2"}));
}

TEST_F(BiodataCard, LoadsOnBesideAPictureThatClaimsToBeHuge) {
  WriteBytes(On("c/id.png"), PngThatClaims(20'000, 20'000));
  Put(Items(2));
  Open();
  EXPECT_TRUE(ShowsDefault("img"));
  EXPECT_EQ(Card()->Named<PictureBox>(QStringLiteral("pic"))->Picture().size(), QSize(10, 20));
  EXPECT_EQ(Box(3)->text(), QStringLiteral("C:\\id.png"));
  EXPECT_EQ(Sums(), Texts({"4", "40", "200", "160"}));
}

TEST_F(BiodataCard, KeepsItsPicturesWhenAFileVanishesAtTheLastMoment) {
  Put(Items(1));
  Open();
  // What cannot be looked at counts as a file, and then there is none.
  Box(3)->setText(QStringLiteral("C:\\") + QString(300, u'a'));
  Box(4)->setText(Box(3)->text());
  Card()->mnuref_Click();
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_EQ(Card()->Named<PictureBox>(QStringLiteral("img"))->Picture().size(), QSize(20, 10));
  EXPECT_EQ(Card()->Named<PictureBox>(QStringLiteral("pic"))->Picture().size(), QSize(10, 20));
}

TEST_F(BiodataCard, RefreshShowsThePicturesTheOtherWayRound) {
  Put(Items(1));
  Open();
  Card()->mnuref_Click();
  EXPECT_EQ(Card()->Named<PictureBox>(QStringLiteral("pic"))->Picture().size(), QSize(20, 10));
  EXPECT_EQ(Card()->Named<PictureBox>(QStringLiteral("img"))->Picture().size(), QSize(10, 20));
  Box(4)->setText(QStringLiteral("C:\\gone"));
  Card()->mnuref_Click();
  EXPECT_EQ(boxes, Texts({"School-Logo Not Found"}));
  Box(3)->setText(QStringLiteral("C:\\gone"));
  Card()->mnuref_Click();
  EXPECT_EQ(boxes, Texts({"School-Logo Not Found", "ID-Card Not Found"}));
}

TEST_F(BiodataCard, DoesNotRemoveTheFirstItem) {
  Put(Items(2));
  Open();
  Remove();
  EXPECT_EQ(boxes, Texts({"First Record Cannot be Removed"}));
  EXPECT_EQ(File(), Items(2));
}

TEST_F(BiodataCard, RemovesTheItemOnShowWithoutANumericTest) {
  const QByteArray three = Items(3);
  Put(three);
  Open();
  Pick(2, 1);
  Type(4, "no number");
  Remove();
  EXPECT_EQ(boxes, Texts({"Removed Successfully"}));
  QByteArray expected = three.left(600) + three.mid(1200) + three.mid(1200);
  expected[522] = 2;
  EXPECT_EQ(File(), expected);
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 3"}));
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("1"));
}

TEST_F(BiodataCard, RemoveOfANewItemHidesTheLastOne) {
  Put(Items(3));
  Open();
  New();
  Remove();
  EXPECT_EQ(boxes, Texts({"Removed Successfully"}));
  QByteArray expected = Items(3);
  expected[522] = 2;
  EXPECT_EQ(File(), expected);
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 2"}));
}

TEST_F(BiodataCard, WithNoItemCountedShowsItsHeadAndTakesANewItemIntoRecordOne) {
  QByteArray none = Items(2);
  none[522] = 0;
  Put(none);
  Open();
  EXPECT_EQ(Box(0)->text(), QStringLiteral("Anna"));
  EXPECT_EQ(Field(0)->count(), 0);
  EXPECT_EQ(Row(), Texts({"", "", "", "", "", "", "", "", ""}));
  New();
  Remove();
  EXPECT_EQ(boxes, Texts({"First Record Cannot be Removed"}));
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("New"));
  TypeItem("First of all");
  Save();
  PlainRecord first;
  first.item = "First of all";
  first.price = first.items = first.amount = first.money = first.balance = 1;
  first.serial = 101;
  first.reserved = QByteArray(62, 'b');
  EXPECT_EQ(File(), first.Bytes() + none.mid(600));
  EXPECT_EQ(List(3), Texts({"First of all"}));
}

TEST_F(BiodataCard, AsksBeforeACharacterIsLost) {
  Put(Items(1));
  Open();
  Box(0)->setText(QStringLiteral("\u0905\u0928\u0928\u094d"));
  Type(3, "\u20ac 5");  // the code page has this one
  answer = false;
  Save();
  ASSERT_EQ(questions.size(), 1);
  EXPECT_TRUE(questions[0].contains(QStringLiteral("Name")));
  EXPECT_TRUE(questions[0].contains(QStringLiteral("\u0905")));
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_EQ(File(), Items(1));
  EXPECT_EQ(Box(0)->text(), QStringLiteral("\u0905\u0928\u0928\u094d"));
  answer = true;
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  EXPECT_EQ(File().mid(4, 100), QByteArray("????").leftJustified(100));
  EXPECT_EQ(File().mid(404, 100), QByteArray("\x80 5").leftJustified(100));
}

TEST_F(BiodataCard, AsksBeforeAPathIsCut) {
  Put(Items(1));
  const QString longName = QString(50, u'p') + QStringLiteral(".jpg");
  WriteBytes(On("c/") + longName, "x");
  Open();
  Box(4)->setText(QStringLiteral("C:\\") + longName);
  New();
  TypeItem("x");
  answer = false;
  Save();
  ASSERT_EQ(questions.size(), 1);
  EXPECT_TRUE(questions[0].contains(QStringLiteral("School Logo")));
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("New"));
  EXPECT_EQ(File(), Items(1));
  answer = true;
  Save();
  EXPECT_EQ(File().mid(254, 50), QByteArray("C:\\") + QByteArray(47, 'p'));
  // Fifty bytes fit, and a path that names no file is not stored.
  questions.clear();
  WriteBytes(On("c/") + QString(47, u'q'), "x");
  Box(4)->setText(QStringLiteral("C:\\") + QString(47, u'q'));
  Box(3)->setText(QStringLiteral("C:\\") + QString(90, u'r'));
  Save();
  EXPECT_TRUE(questions.isEmpty());
  EXPECT_EQ(File().mid(254, 50), QByteArray("C:\\") + QByteArray(47, 'q'));
}

TEST_F(BiodataCard, AsksBeforeACharacterOfAPathIsLost) {
  Put(Items(1));
  const QString name = QStringLiteral("\u0905.png");
  WriteBytes(On("c/") + name, "x");
  Open();
  Box(3)->setText(QStringLiteral("C:\\") + name);
  answer = false;
  Save();
  ASSERT_EQ(questions.size(), 1);
  EXPECT_TRUE(questions[0].contains(QStringLiteral("ID-Card")));
  EXPECT_EQ(File(), Items(1));
  EXPECT_EQ(Box(3)->text(), QStringLiteral("C:\\") + name);
  answer = true;
  Save();
  EXPECT_EQ(File().mid(204, 50), QByteArray("C:\\?.png").leftJustified(50));
  EXPECT_EQ(Box(3)->text(), QStringLiteral("C:\\?.png Not Found:"));
}

TEST_F(BiodataCard, TheQuestionHasAWayBackAsItsDefault) {
  Put(Items(1));
  Open();
  Box(2)->setText(QStringLiteral("\u0c15"));
  auto seen = WithRealBoxes(Save);
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_TRUE(seen[0].plain);
  EXPECT_EQ(File(), Items(1));
  seen = WithRealBoxes(Save, QStringLiteral("Save all the same"));
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_EQ(seen[1].text, QStringLiteral("Saved Successfully"));
  EXPECT_EQ(File().mid(304, 100), QByteArray("?").leftJustified(100));
}

TEST_F(BiodataCard, TellsItsMessagesInRealBoxes) {
  Put(Items(2));
  Open();
  auto seen = WithRealBoxes(Remove);
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, QStringLiteral("First Record Cannot be Removed"));
  New();
  seen = WithRealBoxes(Save);
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, QStringLiteral("Enter Numeric"));
  EXPECT_EQ(seen[0].spoken, seen[0].text);
  Pick(0, 1);
  seen = WithRealBoxes(Save);
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, QStringLiteral("Saved Successfully"));
  seen = WithRealBoxes(Remove);
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, QStringLiteral("Removed Successfully"));
  QFile::remove(On("c/logo.png"));
  seen = WithRealBoxes([] { Card()->mnuref_Click(); });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, QStringLiteral("School-Logo Not Found"));
  QFile::remove(On("c/id.png"));
  seen = WithRealBoxes([] { Card()->mnuref_Click(); });
  ASSERT_EQ(seen.size(), 1U);  // it stops at the first one
  EXPECT_EQ(seen[0].text, QStringLiteral("ID-Card Not Found"));
  EXPECT_EQ(seen[0].spoken, seen[0].text);
}

TEST_F(BiodataCard, ALongNameIsStoredCut) {
  Open();
  Box(0)->setText(QString(120, u'n'));
  EXPECT_EQ(Box(0)->text().size(), 100);  // the box shows what will be kept
  StudentRec rec;
  Card()->SaveCardHeader(1, false, rec);
  EXPECT_EQ(rec.StudentName.Text(), QString(100, u'n'));
}

TEST_F(BiodataCard, ShowsAPathPlain) {
  Put(Items(1));
  Open();
  Box(3)->setText(QStringLiteral("<b>x</b>"));
  StudentRec rec;
  Card()->SaveCardHeader(2, false, rec);
  EXPECT_EQ(Box(3)->text(), QStringLiteral("<b>x</b> Not Found:"));
}

TEST_F(BiodataCard, IsNeverThereTwice) {
  Put(Items(2));
  Open();
  QList<qsizetype> cards;
  ReplaceMessageBoxes(
      {.show = [&](const QString&, const QString&) { cards.append(LoadedForms().size()); },
       .ask = {}});
  fbrminf1* before = Card();
  Save();
  EXPECT_EQ(cards, QList<qsizetype>{1});
  EXPECT_EQ(LoadedForms().size(), 1);
  EXPECT_NE(Card(), before);
  EXPECT_TRUE(before->objectName().isEmpty());
  EXPECT_FALSE(before->isVisible());
  EXPECT_TRUE(Card()->isVisible());
}

TEST_F(BiodataCard, GoneWhileTheMessageWasReadStaysGone) {
  Put(Items(2));
  Open();
  ReplaceMessageBoxes(
      {.show = [](const QString&, const QString&) { UnloadForm(Card()); }, .ask = {}});
  Save();
  EXPECT_EQ(Card(), nullptr);
}

TEST_F(BiodataCard, HasTheFileMenuAlone) {
  Open();
  QStringList seen;
  for (const QAction* item : Card()->menuBar()->actions()) {
    if (item->isVisible()) seen.append(item->text());
  }
  EXPECT_EQ(seen, Texts({"&File"}));
  EXPECT_EQ(Card()->Named<QAction>(QStringLiteral("mnufile(1)"))->text(), QStringLiteral("&Back"));
  EXPECT_EQ(Card()->Named<QAction>(QStringLiteral("mnufile(2)"))->text(), QStringLiteral("&Exit"));
  EXPECT_EQ(Card()->Named<QMenu>(QStringLiteral("mnubio1"))->title(), QStringLiteral("&BioData"));
  EXPECT_EQ(Card()->Named<QAction>(QStringLiteral("mnubio(1)"))->text(), QStringLiteral("&New"));
  EXPECT_EQ(Card()->Named<QAction>(QStringLiteral("mnubio(2)"))->text(), QStringLiteral("&Save"));
  EXPECT_EQ(Card()->Named<QAction>(QStringLiteral("mnuref"))->text(), QStringLiteral("&Refresh"));
  Card()->mnubio_Click(2);
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(BiodataCard, BackUnloadsIt) {
  Open();
  Card()->Named<QAction>(QStringLiteral("mnufile(1)"))->trigger();
  EXPECT_EQ(Card(), nullptr);
}

TEST_F(BiodataCard, ExitUnloadsAllAndEnds) {
  Open();
  bool ended = false;
  ReplaceEndProgram([&] { ended = true; });
  Card()->Named<QAction>(QStringLiteral("mnufile(2)"))->trigger();
  ReplaceEndProgram({});
  EXPECT_TRUE(ended);
  EXPECT_TRUE(LoadedForms().isEmpty());
}

TEST_F(BiodataCard, BearsItsTextsAndToolTips) {
  Open();
  const char* captions[] = {" Name:",       "Class:",     "Class Teacher:", "ID-Card:",
                            "School Logo:", "EnterDate:", "Item Name",      "Price / Item",
                            "Total Items",  "Total Amt.", "P.Money",        "Balance",
                            "NEW",          "SAVE",       "REMOVE"};
  for (int i = 0; i < 15; ++i) EXPECT_EQ(Sign(i)->text(), QString::fromLatin1(captions[i]));
  const char* tips[] = {"DD",
                        "MM",
                        "YYYY",
                        "Item Name",
                        "Price Per Item",
                        "Total Intems ",
                        "Amount For Total Items",
                        "Pocket Money",
                        "Balance"};
  for (int k = 0; k < 9; ++k) EXPECT_EQ(Field(k)->toolTip(), QString::fromLatin1(tips[k]));
  EXPECT_EQ(Sign(12)->toolTip(), QStringLiteral("New Date"));
  EXPECT_EQ(Sign(13)->toolTip(), QStringLiteral("Save Date"));
  EXPECT_EQ(Sign(14)->toolTip(), QStringLiteral("Remove Date"));
}

TEST_F(BiodataCard, TabGoesThroughFieldsAndButtonsInOrder) {
  Open();
  QStringList expected;
  for (int i = 0; i < 5; ++i) expected.append(Indexed("txt", i));
  for (int k = 0; k < 9; ++k) expected.append(Indexed("cmb", k));
  for (int i = 12; i < 15; ++i) expected.append(Indexed("lbl", i));
  QApplication::setActiveWindow(Card());
  Box(0)->setFocus();
  for (const QString& name : expected) {
    const QWidget* now = Card()->focusWidget();
    if (now->objectName().isEmpty() || qobject_cast<const Combo*>(now->parentWidget()) != nullptr) {
      now = now->parentWidget();
    }
    EXPECT_EQ(now->objectName(), name);
    QTest::keyClick(Card()->focusWidget(), Qt::Key_Tab);
  }
}

TEST_F(BiodataCard, SpaceAndReturnPressTheButtons) {
  Put(Items(2));
  Open();
  QTest::keyClick(Sign(12), Qt::Key_Space);
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("New"));
  QTest::keyClick(Sign(13), Qt::Key_Return);
  EXPECT_EQ(boxes, Texts({"Enter Numeric"}));
  Pick(0, 1);
  QTest::mouseClick(Sign(14), Qt::LeftButton);
  EXPECT_EQ(boxes.last(), QStringLiteral("Removed Successfully"));
  QTest::mouseClick(Sign(14), Qt::RightButton);
  EXPECT_EQ(boxes.size(), 2);
}

TEST_F(BiodataCard, ReadsWellToAScreenReader) {
  Open();
  QAccessibleInterface* button = QAccessible::queryAccessibleInterface(Sign(13));
  EXPECT_EQ(button->role(), QAccessible::Button);
  EXPECT_EQ(button->text(QAccessible::Name), QStringLiteral("SAVE"));
  ASSERT_TRUE(button->actionInterface() != nullptr);
  Type(0, "x");
  button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(boxes, Texts({"Enter Numeric"}));
  for (int i = 0; i < 9; ++i) EXPECT_FALSE(Box(i)->accessibleName().isEmpty());
  for (int k = 0; k < 9; ++k) EXPECT_FALSE(Field(k)->accessibleName().isEmpty());
}

TEST_F(BiodataCard, ItsMenuIsWorkedFromTheKeyboard) {
  Open();
  QApplication::setActiveWindow(Card());
  QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(Card()->menuBar());
  QStringList names;
  for (int i = 0; i < bar->childCount(); ++i) {
    if (!bar->child(i)->state().invisible) names.append(bar->child(i)->text(QAccessible::Name));
  }
  EXPECT_EQ(names, Texts({"File"}));
  auto* file = Card()->Named<QMenu>(QStringLiteral("mnufile1"));
  QAccessibleInterface* items = QAccessible::queryAccessibleInterface(file);
  ASSERT_EQ(items->childCount(), 2);
  EXPECT_EQ(items->child(0)->text(QAccessible::Name), QStringLiteral("Back"));
  EXPECT_EQ(items->child(1)->text(QAccessible::Name), QStringLiteral("Exit"));
  QTest::keyClick(Card(), Qt::Key_F, Qt::AltModifier);
  ASSERT_TRUE(file->isVisible());
  QTest::keyClick(file, Qt::Key_B);
  EXPECT_EQ(Card(), nullptr);
}

TEST_F(BiodataCard, FitsIntoItself) {
  for (const QSize& screen : {QSize(1024, 768), QSize(1366, 768), QSize(1920, 1080)}) {
    SetScreen(ScreenSize{.width = 15.0 * screen.width(), .height = 15.0 * screen.height()});
    Open();
    EXPECT_NEAR(Card()->Outer().width, 0.7 * 0.999 * 15 * screen.width(), 10);
    EXPECT_NEAR(Card()->Outer().height, 0.8 * 0.999 * 15 * screen.height(), 10);
    const QRect room = Card()->client()->rect().adjusted(0, 0, 0, -36);  // of the title bar
    QList<QWidget*> controls;
    for (auto* control :
         Card()->client()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      EXPECT_TRUE(room.contains(control->geometry())) << control->objectName().toStdString();
      if (!control->objectName().startsWith(QStringLiteral("pan"))) controls.append(control);
    }
    EXPECT_EQ(controls.size(), 9 + 9 + 15 + 2 + 1);
    for (qsizetype i = 0; i < controls.size(); ++i) {
      for (qsizetype j = 0; j < i; ++j) {
        EXPECT_FALSE(controls[i]->geometry().intersects(controls[j]->geometry()))
            << controls[i]->objectName().toStdString() << controls[j]->objectName().toStdString();
      }
    }
    for (int i = 0; i < 12; ++i) {
      EXPECT_GE(Sign(i)->width(), Sign(i)->fontMetrics().horizontalAdvance(Sign(i)->text())) << i;
    }
    UnloadAll();
  }
  SetScreen({});
}

TEST_F(BiodataCard, SavesAndRemovesWholeOrNotAtAllWhereverTheProgramIsKilled) {
  const QByteArray three = Items(3);
  const std::function<void()> handlers[] = {
      [] {
        New();
        TypeItem("New one");
        Save();
      },
      [] {
        Pick(0, 1);
        Type(3, "Changed");
        Save();
      },
      [] {
        Pick(0, 1);
        Remove();
      },
  };
  for (const auto& handler : handlers) {
    Put(three);
    Open();
    const int calls = static_cast<int>(WithDisk({}, handler).size());
    const QByteArray after = File();
    ASSERT_NE(after, three);
    ASSERT_GT(calls, 15);
    int saved = 0;
    for (int n = 1; n <= calls; ++n) {
      UnloadAll();
      Put(three);
      Open();
      ASSERT_TRUE(DiesWithDisk({.at = n, .kill = true}, handler));
      EXPECT_TRUE(File() == three || File() == after) << "call " << n;
      if (File() == after) ++saved;
      boxes.clear();
      Put(three);
      WithDisk({.at = n, .error = 28}, handler);
      EXPECT_EQ(File(), boxes.isEmpty() ? three : after) << "call " << n;
    }
    EXPECT_GT(saved, 0);
    EXPECT_LT(saved, calls);
    UnloadAll();
  }
}

}  // namespace
}  // namespace bramlee
