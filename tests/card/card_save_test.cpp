// NEW, SAVE and REMOVE, and the bytes that they leave in the file.
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "tests/card/card_test.h"
#include "tests/files/faulty_disk.h"

namespace bramlee {
namespace {

TEST_F(BiodataCard, NewMakesRoomForAnItem) {
  Put(Items(2));
  Open();
  environment.today = [] { return QDate(2026, 12, 31); };
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

TEST_F(BiodataCard, ReturnsWhetherItWasSavedOrLoaded) {
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
  EXPECT_TRUE(boxes.isEmpty());  // a success shows no message
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
  environment.tell = [&](const QString& text) {
    boxes.append(text);
    shown = Box(3)->text();
    ground = BackColorOf(Box(3));
    other = BackColorOf(Box(4));
  };
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

TEST_F(BiodataCard, PathsAreWhiteAgainOnceTheyAreFound) {
  Put(Items(1));
  Open();
  StudentRec rec;
  for (const int i : {3, 4}) Box(i)->setText(QStringLiteral("C:\\gone"));
  ASSERT_EQ(Card()->SaveCardHeader(2, false, rec), 0);
  for (const int i : {3, 4}) EXPECT_EQ(BackColorOf(Box(i)), 255U) << i;
  for (const int i : {3, 4}) Box(i)->setText(QStringLiteral("C:\\id.png"));
  ASSERT_EQ(Card()->SaveCardHeader(2, false, rec), 0);
  for (const int i : {3, 4}) EXPECT_EQ(BackColorOf(Box(i)), 0xFFFFFFU) << i;
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

class KilledCard : public BiodataCard {
 protected:
  static std::vector<std::function<void()>> HandlersThatWrite() {
    return {
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
  }

  /// Kills the program in a save and a removal, and fails its disk, at each so manieth call to the
  /// disk, the last one among them.
  void ExpectWholeOrNotAtAll(const std::function<void()>& handler, int every) {
    const QByteArray three = Items(3);
    int calls = 0;
    for (int round = 1; round <= 2; ++round) {  // the first one reads what is read once a process
      UnloadAll();
      Put(three);
      Open();
      calls = static_cast<int>(WithDisk({}, handler).size());
    }
    const QByteArray after = File();
    ASSERT_NE(after, three);
    ASSERT_GT(calls, 15);
    int saved = 0;
    int tried = 0;
    for (int n = calls; n >= 1; n -= every, ++tried) {
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
    EXPECT_LT(saved, tried);
    UnloadAll();
  }
};

TEST_F(KilledCard, SavesAndRemovesWholeOrNotAtAll) {
  for (const auto& handler : HandlersThatWrite()) ExpectWholeOrNotAtAll(handler, 5);
}

TEST_F(KilledCard, SweepOfAllMomentsAtWhichItIsKilled) {
  for (const auto& handler : HandlersThatWrite()) ExpectWholeOrNotAtAll(handler, 1);
}

}  // namespace
}  // namespace bramlee
