// What the card says, and what it asks before anything typed is lost.
#include "tests/card/card_test.h"
#include "tests/ui/real_boxes.h"

namespace bramlee {
namespace {

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

TEST_F(BiodataCard, ShowsItsMessagesInRealBoxes) {
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

}  // namespace
}  // namespace bramlee
