#include "card/card_file.h"

#include <cmath>
#include <limits>
#include <random>

#include "tests/card/card_test.h"
#include "tests/files/faulty_disk.h"
#include "tests/files/trap_log.h"
#include "tests/ui/failing_event.h"

namespace bramlee {
namespace {

/// The default card, at its offsets.
QByteArray DefaultRecord() {
  PlainRecord record;
  record.name = "Enter Your Name";
  record.className = "BRM";
  record.idCard = "C:\\bramlee\\idcard.jpg";
  record.logo = "C:\\bramlee\\school.jpg";
  record.teacher = "Enter Your Class Teacher Name";
  record.item = "I Bought BRM Cd ";
  record.money = 100;
  record.amount = 100;
  record.balance = 0;
  record.price = 100;
  record.items = 1;
  return record.Bytes();
}

class CardFile : public CardTest {
 protected:
  QStringList Folder() const {
    return QDir(On("c/bramlee/dba")).entryList(QDir::Files, QDir::Name);
  }
  QByteArray Now() const { return QFile::exists(Place()) ? File() : QByteArray(); }
};

TEST_F(CardFile, OfANewInstallationIsOneDefaultRecord) {
  Open();
  EXPECT_EQ(File(), DefaultRecord());
  EXPECT_EQ(File().size(), 600);
  EXPECT_EQ(Folder(), Texts({"brmstu1.dat"}));
}

TEST_F(CardFile, SaysWhoseCardItIs) {
  PlainRecord record;
  record.name = "  Anna Rao ";
  record.className = " KG 2";
  Put(record.Bytes());
  EXPECT_EQ(HolderOfCard().name, QStringLiteral("Anna Rao"));
  EXPECT_EQ(HolderOfCard().className, QStringLiteral("KG 2"));
}

TEST_F(CardFile, IsNobodysUntilANameIsEnteredAndWhereItCannotBeRead) {
  const auto isNobodys = [] {
    const CardHolder holder = HolderOfCard();
    return holder.name.isEmpty() && holder.className.isEmpty();
  };
  EXPECT_TRUE(isNobodys());
  EXPECT_FALSE(QFile::exists(Place()));
  Put(DefaultRecord());
  EXPECT_TRUE(isNobodys());
  Put("damaged");
  EXPECT_TRUE(HolderOfCard().className.isEmpty());
  QFile::remove(Place());
  QDir().mkpath(Place());
  EXPECT_TRUE(isNobodys());
}

TEST_F(CardFile, IsNotMadeWithoutItsFolder) {
  QDir(On("c/bramlee")).removeRecursively();
  Open();
  EXPECT_FALSE(QFile::exists(On("c/bramlee")));
  EXPECT_EQ(Box(0)->text(), QStringLiteral("MyName"));
  EXPECT_EQ(Box(1)->text(), QStringLiteral("BRM"));
  EXPECT_EQ(Box(2)->text(), QStringLiteral("Teacher Name"));
  EXPECT_EQ(Box(3)->text(), QStringLiteral("C:\\bramlee\\xxxxxxxx.jpg"));
  EXPECT_EQ(Box(4)->text(), QStringLiteral("C:\\bramlee\\xxxxxxxx.jpg"));
  EXPECT_EQ(Field(3)->count(), 0);
  Save();
  EXPECT_EQ(boxes, Texts({"Enter Numeric"}));
  for (int k = 0; k < 9; ++k) Type(k, "1");
  boxes.clear();
  Save();
  EXPECT_TRUE(boxes.isEmpty());  // a success shows no message
}

TEST_F(CardFile, ShorterThanARecordIsKeptAsideAndReplaced) {
  for (int length = 1; length < 600; length += 13) {
    for (const QString& name : Folder()) QFile::remove(On("c/bramlee/dba/") + name);
    const QByteArray cut = Items(1).left(length);
    Put(cut);
    ProvideCard();
    EXPECT_EQ(File(), DefaultRecord()) << length;
    EXPECT_EQ(Folder(), Texts({"brmstu1.bad", "brmstu1.dat"}));
    EXPECT_EQ(BytesOf(On("c/bramlee/dba/brmstu1.bad")), cut);
  }
  Put({});
  ProvideCard();
  EXPECT_EQ(File(), DefaultRecord());
  EXPECT_EQ(Folder(), Texts({"brmstu1.bad", "brmstu1.dat"}));  // no byte, no copy
}

TEST_F(CardFile, KeepsEveryDamagedFileOnce) {
  for (const char* bytes : {"one", "two", "one", "two", "three"}) {
    Put(bytes);
    ProvideCard();
  }
  EXPECT_EQ(Folder(), Texts({"brmstu1.bad", "brmstu1.bad2", "brmstu1.bad3", "brmstu1.dat"}));
  EXPECT_EQ(BytesOf(On("c/bramlee/dba/brmstu1.bad2")), "two");
}

TEST_F(CardFile, ThatIsDamagedIsNeverLostOnTheWay) {
  const auto clean = [this] {
    for (const QString& name : QDir(On("c/bramlee/dba")).entryList(QDir::Files)) {
      QFile::remove(On("c/bramlee/dba/") + name);
    }
    Put("damaged");
  };
  clean();
  const auto provide = [] { ProvideCard(); };
  const int calls = static_cast<int>(WithDisk({}, provide).size());
  for (int n = 1; n <= calls; ++n) {
    for (const bool kill : {true, false}) {
      clean();
      const DiskPlan plan{.at = n, .error = kill ? 0 : 28, .kill = kill};
      if (kill) {
        ASSERT_TRUE(DiesWithDisk(plan, provide));
      } else {
        WithDisk(plan, provide);
      }
      const QString copy = On("c/bramlee/dba/brmstu1.bad");
      const bool isKept = QFile::exists(copy) && BytesOf(copy) == "damaged";
      EXPECT_TRUE(Now() == "damaged" || (Now() == DefaultRecord() && isKept)) << "call " << n;
      ProvideCard();
      EXPECT_EQ(Now(), DefaultRecord());
      EXPECT_EQ(Folder(), Texts({"brmstu1.bad", "brmstu1.dat"}));
    }
  }
}

TEST_F(CardFile, DefaultIsWrittenWholeOrNotAtAll) {
  const auto write = [] { WriteDefaultCard(); };
  const int calls = static_cast<int>(WithDisk({}, write).size());
  for (int n = 1; n <= calls; ++n) {
    QFile::remove(Place());
    ASSERT_TRUE(DiesWithDisk({.at = n, .kill = true}, write));
    EXPECT_TRUE(!QFile::exists(Place()) || File() == DefaultRecord()) << "call " << n;
    QFile::remove(Place());
    std::int16_t status = 0;
    WithDisk({.at = n, .error = 28}, [&] { status = WriteDefaultCard(); });
    EXPECT_EQ(QFile::exists(Place()), status == 0) << "call " << n;
  }
}

TEST_F(CardFile, RemovesARecordByMovingTheOthersDown) {
  const QByteArray four = Items(4);
  PlainRecord first;
  for (std::int32_t recNo = 2; recNo <= 4; ++recNo) {
    Put(four);
    ASSERT_EQ(RemoveCardItem(recNo), 0);
    QByteArray expected = four;
    expected[522] = 3;
    for (int j = recNo; j < 4; ++j) expected.replace((j - 1) * 600, 600, four.mid(j * 600, 600));
    EXPECT_EQ(File(), expected) << recNo;
    EXPECT_EQ(File().size(), 2400);
    EXPECT_EQ(File().mid(1800), four.mid(1800));  // the old last one stays behind the count
  }
}

TEST_F(CardFile, DropsNothingOutForANumberBeyondItsEnd) {
  Put(Items(3));
  ASSERT_EQ(RemoveCardItem(4), 0);
  QByteArray expected = Items(3);
  expected[522] = 2;
  EXPECT_EQ(File(), expected);
}

QByteArray WithCount(QByteArray bytes, std::int32_t count) {
  char coded[4];
  qToLittleEndian(count, coded);
  return bytes.replace(522, 4, coded, 4);
}

TEST_F(CardFile, DoesNotFollowACountThatItCannotHave) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  for (const std::int32_t count : {kMost, kLeast, -1, 0, 4, 1'000'000}) {
    const QByteArray damaged = WithCount(Items(3), count);
    Put(damaged);
    Open();
    EXPECT_EQ(File(), damaged);  // looking changes nothing
    EXPECT_EQ(Field(0)->count(), count > 0 ? 3 : 0);
    EXPECT_EQ(Box(0)->text(), QStringLiteral("Anna"));
    UnloadAll();
    EXPECT_EQ(RemoveCardItem(9), count == kLeast ? 1 : 0);  // it can fall no further
    EXPECT_EQ(File(), count == kLeast ? damaged : WithCount(Items(3), count > 0 ? 2 : count - 1));
  }
}

TEST_F(CardFile, BringsNothingBackThatWasRemovedUnderACountBeyondItsEnd) {
  Put(WithCount(Items(3), 1'000'000));
  Open();
  Pick(0, 1);
  Remove();
  EXPECT_EQ(boxes, Texts({"Removed Successfully"}));
  EXPECT_EQ(List(3), Texts({"Item 1", "Item 3"}));
  EXPECT_EQ(Sums(), Texts({"4", "40", "200", "160"}));
  Pick(0, 1);
  Remove();
  EXPECT_EQ(List(3), Texts({"Item 1"}));
  EXPECT_EQ(File().size(), 1800);
}

TEST_F(CardFile, ReturnsWhetherItWasChanged) {
  EXPECT_EQ(WriteDefaultCard(), 0);
  EXPECT_EQ(RemoveCardItem(2), 0);
  QFile::remove(Place());
  EXPECT_EQ(RemoveCardItem(2), 1);  // there is no card
  QDir(On("c/bramlee")).removeRecursively();
  EXPECT_EQ(WriteDefaultCard(), 1);
  EXPECT_EQ(RemoveCardItem(2), 1);
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(CardFile, GetsANewItemBehindItsEndWhateverItsCount) {
  for (const std::int32_t count : {std::numeric_limits<std::int32_t>::max(), 4, 1'000'000}) {
    Put(WithCount(Items(3), count));
    Open();
    New();
    TypeItem("New one");
    Save();
    EXPECT_EQ(File().size(), 2400);
    EXPECT_EQ(Field(3)->count(), 4);
    EXPECT_EQ(Row()[3], QStringLiteral("New one"));
    UnloadAll();
  }
}

TEST_F(CardFile, CutAnywhereIsShownAsFarAsItGoes) {
  for (int length = 600; length <= 1800; length += 37) {
    const QByteArray cut = Items(3).left(length);
    Put(cut);
    Open();
    EXPECT_EQ(File(), cut);
    EXPECT_EQ(Field(0)->count(), (length + 599) / 600);
    Save();
    EXPECT_EQ(File().left(600).mid(404, 100), cut.mid(404, 100));
    EXPECT_EQ(File().size(), length);
    UnloadAll();
  }
}

TEST_F(CardFile, OfGarbageIsShownAndLeftAlone) {
  std::mt19937 random(7);  // NOLINT: the same garbage at every run
  for (int i = 0; i < 40; ++i) {
    QByteArray garbage(600 + static_cast<int>(random() % 3000), '\0');
    for (char& byte : garbage) byte = static_cast<char>(random());
    Put(garbage);
    Open();
    EXPECT_EQ(File(), garbage);
    EXPECT_LE(Field(0)->count(), 6);
    New();
    TypeItem("New one");
    Save();
    EXPECT_LE(File().size(), 4200);
    Remove();
    EXPECT_LE(File().size(), 4200);
    UnloadAll();
  }
}

TEST_F(CardFile, ShowsWhatIsNoNumberAndAsksForOne) {
  PlainRecord record;
  record.price = std::numeric_limits<double>::quiet_NaN();
  Put(record.Bytes());
  Open();
  EXPECT_EQ(Row()[4], QStringLiteral("nan"));
  Save();
  EXPECT_EQ(boxes, Texts({"Enter Numeric"}));
  EXPECT_EQ(File(), record.Bytes());
}

TEST_F(CardFile, ThatHasVanishedIsNotMadeAnewByASave) {
  Put(Items(2));
  Open();
  QFile::remove(Place());
  Save();
  Remove();
  Pick(0, 1);
  Save();
  Remove();
  EXPECT_FALSE(QFile::exists(Place()));
  EXPECT_EQ(boxes, Texts({"First Record Cannot be Removed"}));
}

TEST_F(BiodataCard, ItsRoutinesLogTheirTags) {
  SKIP_WHERE_LEAKS_COUNT();
  Put(Items(2));
  const TrapLog log;
  {
    const FailingEvent noFlag("fbrminf1", QEvent::DynamicPropertyChange);
    Open();
  }
  EXPECT_EQ(TrapLog::Tags(), Tags({"601:23"}));  // the layout
  TrapLog::Lines().clear();
  std::int32_t recNo = 1;
  Type(5, "3000000000");
  EXPECT_EQ(Card()->SaveCard(recNo, false), 1);
  EXPECT_EQ(TrapLog::Tags(), Tags({"601:23"}));  // the head, with its item
  TrapLog::Lines().clear();
  recNo = 2;
  EXPECT_EQ(Card()->SaveCard(recNo, false), 1);
  EXPECT_EQ(TrapLog::Tags(), Tags({"601:23"}));  // another item
  TrapLog::Lines().clear();
  environment.tell = [](const QString&) { throw std::bad_alloc(); };
  Remove();
  EXPECT_EQ(TrapLog::Tags(), Tags({"601:23"}));  // the click
  TrapLog::Lines().clear();
  Put("damaged");
  QDir().mkpath(On("c/bramlee/dba/brmstu1.bad.new"));
  ProvideCard();
  EXPECT_EQ(TrapLog::Tags(), Tags({"601:23"}));
}

}  // namespace
}  // namespace bramlee
