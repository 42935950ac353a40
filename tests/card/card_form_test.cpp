// What the card shows, and how a pick leads to another item.
#include "card/card_form.h"

#include <QAbstractItemView>
#include <QTest>
#include <QWheelEvent>

#include "tests/card/card_test.h"
#include "tests/card/huge_picture.h"
#include "ui/form.h"

namespace bramlee {
namespace {

/// Whether that picture is the one that the form itself holds.
bool ShowsDefault(const char* name) {
  const QString file = name == QByteArray("img") ? QStringLiteral(":/pictures/card/idcard.jpg")
                                                 : QStringLiteral(":/pictures/card/school.jpg");
  const QPixmap own(file);
  EXPECT_FALSE(own.isNull());
  const auto* box =
      LoadedForm(QStringLiteral("fbrminf1"))->Named<PictureBox>(QString::fromLatin1(name));
  return box->Picture().toImage() == own.toImage();
}

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

TEST_F(BiodataCard, ReadASecondTimeListsEachItemOnce) {
  Put(Items(3));
  Open();
  StudentRec rec;
  ASSERT_EQ(Card()->LoadCard(rec), 0);
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 2", "Item 3"}));
  EXPECT_EQ(List(8), Texts({"80", "80", "80"}));
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

TEST_F(BiodataCard, IsNeverThereTwice) {
  Put(Items(2));
  Open();
  QList<qsizetype> cards;
  environment.tell = [&](const QString&) { cards.append(LoadedForms().size()); };
  CardForm* before = Card();
  Save();
  EXPECT_EQ(cards, QList<qsizetype>{1});
  EXPECT_EQ(LoadedForms().size(), 1);
  EXPECT_NE(Card(), before);
  EXPECT_TRUE(before->objectName().isEmpty());
  EXPECT_FALSE(before->isVisible());
  EXPECT_TRUE(Card()->isVisible());
}

TEST_F(BiodataCard, ClosedWhileAMessageIsShownStaysClosed) {
  Put(Items(2));
  Open();
  environment.tell = [](const QString&) { UnloadForm(Card()); };
  Save();
  EXPECT_EQ(Card(), nullptr);
}

}  // namespace
}  // namespace bramlee
