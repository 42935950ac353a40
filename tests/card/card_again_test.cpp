// A card that could not be read, or that another program has changed, is read again, and nothing
// that was typed is lost over it.
#include "card/card_file.h"
#include "tests/card/card_test.h"
#include "tests/files/faulty_disk.h"

namespace bramlee {
namespace {

class CardAgain : public CardTest {
 protected:
  void PullOut() const { ASSERT_TRUE(QDir().rename(On("c"), On("pulled out"))); }
  void PlugIn() const { ASSERT_TRUE(QDir().rename(On("pulled out"), On("c"))); }
  static QStringList Head() {
    QStringList head;
    for (int i = 0; i < 5; ++i) head.append(Box(i)->text());
    return head;
  }
  const QString onlyNow{
      QStringLiteral("The card could only be read now. Check it, then press %1 once more")};
  const QString changed{
      QStringLiteral("%1: another program changed the card. Check it, then press %2 once more")};
};

TEST_F(CardAgain, ThatCouldNotBeReadIsReadBeforeItsFirstSave) {
  const QByteArray two = Items(2);
  Put(two);
  PullOut();
  Open();
  EXPECT_EQ(Box(0)->text(), QStringLiteral("MyName"));
  EXPECT_EQ(Said(), QStringLiteral("Not read: the drive C: is not there"));
  New();
  TypeItem("Kite");
  PlugIn();
  Save();
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_EQ(Said(), onlyNow.arg(QStringLiteral("SAVE")));
  EXPECT_EQ(File(), two);
  EXPECT_EQ(Head(), Texts({"Anna", "KG 2", "Mrs Rao", "C:\\id.png", "C:\\logo.png"}));
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 2"}));
  EXPECT_EQ(Row(), Texts({"9", "3", "2025", "Kite", "1", "1", "1", "1", "1"}));
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  EXPECT_EQ(File().mid(4, 100), QByteArray("Anna").leftJustified(100));
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 2", "Kite"}));
  EXPECT_EQ(Said(), QString());
}

TEST_F(CardAgain, AnItemTypedWithoutNewIsANewOne) {
  Put(Items(2));
  PullOut();
  Open();
  for (int k = 0; k < 9; ++k) Type(k, "7");
  PlugIn();
  Save();
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("New"));
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 2", "7"}));
}

TEST_F(CardAgain, WithNothingTypedIsJustShown) {
  Put(Items(2));
  PullOut();
  Open();
  PlugIn();
  Save();
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("1"));
  EXPECT_EQ(Row()[3], QStringLiteral("Item 1"));
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  EXPECT_EQ(File(), Items(2));
}

TEST_F(CardAgain, KeepsTheHeadThatWasTypedAndShowsTheRestFromTheFile) {
  Put(Items(1));
  WriteBytes(On("c/new.png"), "no picture");
  PullOut();
  Open();
  Box(2)->setText(QStringLiteral("Mr Das"));
  Box(4)->setText(QStringLiteral("C:\\new.png"));
  PlugIn();
  Save();
  EXPECT_EQ(Head(), Texts({"Anna", "KG 2", "Mr Das", "C:\\id.png", "C:\\new.png"}));
  EXPECT_EQ(File(), Items(1));
  Save();
  QByteArray expected = Items(1);
  expected.replace(304, 100, QByteArray("Mr Das").leftJustified(100));
  expected.replace(254, 50, QByteArray("C:\\new.png").leftJustified(50));
  EXPECT_EQ(File(), expected);
}

TEST_F(CardAgain, ThatStillCannotBeReadStoresNothingAndKeepsWhatWasTyped) {
  Put(Items(2));
  PullOut();
  Open();
  New();
  TypeItem("Kite");
  Box(0)->setText(QStringLiteral("Ravi"));
  const QStringList row = Row();
  for (int i = 0; i < 3; ++i) {
    Save();
    EXPECT_TRUE(boxes.isEmpty());
    EXPECT_EQ(Said(), QStringLiteral("Not saved: the drive C: is not there"));
    EXPECT_EQ(Row(), row);
    EXPECT_EQ(Box(0)->text(), QStringLiteral("Ravi"));
  }
  EXPECT_FALSE(QFile::exists(On("c")));
  PlugIn();
  EXPECT_EQ(File(), Items(2));
  Save();
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 2", "Kite"}));
  EXPECT_EQ(Box(0)->text(), QStringLiteral("Ravi"));
}

TEST_F(CardAgain, RemovesNothingBeforeItWasRead) {
  Put(Items(2));
  PullOut();
  Open();
  Remove();
  EXPECT_EQ(boxes, Texts({"First Record Cannot be Removed"}));
  EXPECT_EQ(Said(), QStringLiteral("Not removed: the drive C: is not there"));
  New();
  PlugIn();
  Remove();
  EXPECT_EQ(boxes.size(), 1);
  EXPECT_EQ(Said(), onlyNow.arg(QStringLiteral("REMOVE")));
  EXPECT_EQ(File(), Items(2));
}

TEST_F(CardAgain, IsNotReadOnceMoreWhereNothingKeptItFromBeingRead) {
  Put(Items(2));
  Open();
  Type(4, "55");
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
}

TEST_F(CardAgain, WhoseDefaultCouldNotBeWrittenIsProvidedBeforeItsFirstSave) {
  QDir().mkpath(On("c/bramlee/dba/brmstu1.dat.new"));
  Open();
  EXPECT_EQ(Said(), QStringLiteral("Not read: a folder is in the place of brmstu1.dat.new"));
  New();
  TypeItem("Kite");
  Save();
  EXPECT_EQ(Said(), QStringLiteral("Not saved: a folder is in the place of brmstu1.dat.new"));
  QDir().rmdir(On("c/bramlee/dba/brmstu1.dat.new"));
  Save();
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_EQ(Said(), onlyNow.arg(QStringLiteral("SAVE")));
  EXPECT_EQ(Head().first(3), Texts({"Enter Your Name", "BRM", "Enter Your Class Teacher Name"}));
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  EXPECT_EQ(List(3), Texts({"I Bought BRM Cd", "Kite"}));
}

TEST_F(CardAgain, KeepsItsHeadWhicheverCallOfItsReadingFails) {
  const QByteArray two = Items(2);
  Put(two);
  const int calls = static_cast<int>(WithDisk({}, [] { Open(); }).size());
  ASSERT_GT(calls, 4);
  int unread = 0;
  for (int n = 1; n <= calls; ++n) {
    UnloadAll();
    Put(two);
    boxes.clear();
    WithDisk({.at = n, .error = EIO}, [] { Open(); });
    New();
    TypeItem("Kite");
    Save();
    if (boxes.isEmpty()) ++unread;
    if (boxes.isEmpty()) Save();
    EXPECT_EQ(boxes, Texts({"Saved Successfully"})) << "call " << n;
    EXPECT_EQ(File().mid(4, 100), QByteArray("Anna").leftJustified(100)) << "call " << n;
    EXPECT_EQ(List(3), Texts({"Item 1", "Item 2", "Kite"})) << "call " << n;
  }
  EXPECT_GT(unread, 0);
}

TEST_F(CardAgain, KeepsItsHeadWhicheverCallOfItsSecondReadingFails) {
  const auto opened = [this] {
    UnloadAll();
    Put(Items(2));
    PullOut();
    Open();
    PlugIn();
    New();
    TypeItem("Kite");
    boxes.clear();
  };
  opened();
  const int calls = static_cast<int>(WithDisk({}, [] { Save(); }).size());
  for (int n = 1; n <= calls; ++n) {
    opened();
    WithDisk({.at = n, .error = EIO}, [] { Save(); });
    EXPECT_TRUE(boxes.isEmpty()) << "call " << n;
    EXPECT_EQ(File(), Items(2)) << "call " << n;
    EXPECT_EQ(Row()[3], QStringLiteral("Kite")) << "call " << n;
  }
}

TEST_F(CardAgain, AnEditOfAnItemThatAnotherProgramRemovedIsKeptAsANewItem) {
  Put(Items(3));
  Open();
  Pick(0, 2);
  Type(4, "77");
  Box(0)->setText(QStringLiteral("Anna Maria"));
  ASSERT_EQ(RemoveCardItem(3), 0);
  const QByteArray removed = File();
  Save();
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_EQ(Said(), changed.arg(QStringLiteral("Not saved"), QStringLiteral("SAVE")));
  EXPECT_EQ(File(), removed);
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 2"}));
  EXPECT_EQ(Row(), Texts({"9", "3", "2025", "Item 3", "77", "2", "20", "100", "80"}));
  EXPECT_EQ(Box(0)->text(), QStringLiteral("Anna Maria"));
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  EXPECT_EQ(List(4), Texts({"10", "20", "77"}));
  EXPECT_EQ(Box(0)->text(), QStringLiteral("Anna Maria"));
}

TEST_F(CardAgain, AnEditIsNotStoredInTheItemThatHasMovedIntoItsPlace) {
  Put(Items(3));
  Open();
  Pick(0, 1);
  Type(4, "77");
  ASSERT_EQ(RemoveCardItem(2), 0);
  const QByteArray removed = File();
  Save();
  EXPECT_EQ(File(), removed);
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 3"}));
  EXPECT_EQ(Row()[4], QStringLiteral("77"));
  Save();
  EXPECT_EQ(List(4), Texts({"10", "30", "77"}));
}

TEST_F(CardAgain, AnItemThatAnotherProgramRemovedDoesNotComeBackUntyped) {
  Put(Items(3));
  Open();
  Pick(0, 2);
  ASSERT_EQ(RemoveCardItem(3), 0);
  Save();
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("1"));
  EXPECT_EQ(Row()[3], QStringLiteral("Item 1"));
}

TEST_F(CardAgain, OnlyTheItemOnShowIsRemoved) {
  Put(Items(4));
  Open();
  Pick(0, 1);
  ASSERT_EQ(RemoveCardItem(2), 0);
  const QByteArray removed = File();
  Remove();
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_EQ(Said(), changed.arg(QStringLiteral("Not removed"), QStringLiteral("REMOVE")));
  EXPECT_EQ(File(), removed);
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 3", "Item 4"}));
  Pick(0, 2);
  ASSERT_EQ(RemoveCardItem(3), 0);
  Remove();
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 3"}));
}

TEST_F(CardAgain, ANewItemGoesBehindWhatAnotherProgramAdded) {
  Put(Items(2));
  Open();
  New();
  TypeItem("Kite");
  Put(Items(3));
  Save();
  EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 2", "Item 3", "Kite"}));
}

}  // namespace
}  // namespace bramlee
