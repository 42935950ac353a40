// The card against a plain model of its records: long random walks through NEW, picks, SAVE and
// REMOVE.
#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <random>
#include <vector>

#include "tests/card/card_test.h"

namespace bramlee {
namespace {

constexpr int kMostItems = 9;
constexpr int kRemove = 5;  ///< of six kinds of steps

/// What the file holds after the same clicks, kept by the plainest means.
struct Model {
  std::vector<PlainRecord> records;  ///< also those behind the count

  int count() const { return records[0].count; }

  void SaveNew(PlainRecord item) {
    const int recNo = count() + 1;
    PlainRecord head = records[0];
    head.count = recNo;
    records[0].count = recNo;
    if (recNo == 1) {
      CopyItem(item, records[0]);
      return;
    }
    CopyItem(item, head);
    if (recNo > static_cast<int>(records.size())) records.emplace_back();
    records[static_cast<std::size_t>(recNo) - 1] = head;
  }
  void SaveOld(int recNo, const PlainRecord& item) {
    CopyItem(item, records[static_cast<std::size_t>(recNo) - 1]);
  }
  void Remove(int recNo) {
    const int n = count();
    records[0].count = n - 1;
    for (int i = recNo; i < n; ++i) {
      records[static_cast<std::size_t>(i) - 1] = records[static_cast<std::size_t>(i)];
    }
  }
  QByteArray Bytes() const {
    QByteArray bytes;
    for (const PlainRecord& record : records) bytes += record.Bytes();
    return bytes;
  }

 private:
  static void CopyItem(const PlainRecord& from, PlainRecord& to) {
    to.item = from.item;
    to.price = from.price;
    to.items = from.items;
    to.amount = from.amount;
    to.money = from.money;
    to.balance = from.balance;
    to.day = from.day;
    to.month = from.month;
    to.year = from.year;
  }
};

/// What a user does at random.
struct RandomUse {
  unsigned seed;
  int steps;
};

class CardModel : public CardTest, public ::testing::WithParamInterface<RandomUse> {
 protected:
  CardModel() : random_(GetParam().seed) {}

  int Any(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

  /// Types an item of random numbers.
  PlainRecord TypeAnItem() {
    PlainRecord item;
    item.day = Any(32);
    item.month = Any(13);
    item.year = 1900 + Any(200);
    item.item = "Item " + QByteArray::number(Any(1000));
    item.price = Any(100'000) / 100.0;
    item.items = Any(100);
    item.amount = Any(1'000'000);
    item.money = Any(2'000'000) - 1'000'000;
    item.balance = Any(2'000'000) - 1'000'000;
    const auto type = [](int k, auto number) { Type(k, qPrintable(QString::number(number))); };
    type(0, item.day);
    type(1, item.month);
    type(2, item.year);
    Type(3, item.item.constData());
    type(4, item.price);
    type(5, item.items);
    type(6, item.amount);
    type(7, item.money);
    type(8, item.balance);
    return item;
  }
  void TypeTheName(Model& model) {
    const QByteArray name = "Child " + QByteArray::number(Any(1000));
    Box(0)->setText(QString::fromLatin1(name));
    model.records[0].name = name;
  }
  void Step(Model& model);

 private:
  std::mt19937 random_;
};

void CardModel::Step(Model& model) {
  const int recNo = Card()->CardRecNo() == QStringLiteral("New") ? model.count() + 1
                                                                 : Card()->CardRecNo().toInt();
  const bool isNew = Card()->CardRecNo() == QStringLiteral("New");
  // A short list sees all kinds of records come and go.
  switch (model.count() < kMostItems ? Any(6) : kRemove) {
    case 0:
    case 1:
      return New();
    case 2:
      if (model.count() > 0) Pick(Any(9), Any(model.count()));
      return;
    case 3:
    case 4: {
      // With nothing counted there is no item to change, but a new one can be made.
      if (!isNew && model.count() == 0) return New();
      TypeTheName(model);
      const PlainRecord item = TypeAnItem();
      if (isNew) {
        model.SaveNew(item);
      } else {
        model.SaveOld(recNo, item);
      }
      Save();
      EXPECT_EQ(boxes, Texts({"Saved Successfully"}));
      EXPECT_EQ(Card()->CardRecNo().toInt(), recNo);
      return;
    }
    case kRemove:
    default:
      if (recNo == 1 && model.count() == kMostItems) return Pick(0, 1 + Any(kMostItems - 1));
      if (recNo != 1) model.Remove(recNo);
      Remove();
      EXPECT_EQ(boxes,
                Texts({recNo == 1 ? "First Record Cannot be Removed" : "Removed Successfully"}));
  }
}

TEST_P(CardModel, AgreesWithTheCard) {
  Model model;
  model.records.emplace_back();
  Put(model.Bytes());
  Open();
  for (int step = 0; step < GetParam().steps && !HasFailure(); ++step) {
    SCOPED_TRACE(step);
    boxes.clear();
    Step(model);
    // Cards that have gone are destroyed when events are served.
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(File(), model.Bytes());
    ASSERT_EQ(Field(0)->count(), model.count());
    qint64 sum = 0;
    for (int i = 0; i < model.count(); ++i) {
      const PlainRecord& record = model.records[static_cast<std::size_t>(i)];
      ASSERT_EQ(Field(3)->itemText(i), QString::fromLatin1(record.item));
      sum += record.balance;
    }
    ASSERT_EQ(Box(8)->text(), QString::number(sum));
  }
}

INSTANTIATE_TEST_SUITE_P(ForAWhile, CardModel, ::testing::Values(RandomUse{1, 80}));
INSTANTIATE_TEST_SUITE_P(SweepOfLongUse, CardModel, ::testing::Values(RandomUse{2, 1000}));

}  // namespace
}  // namespace bramlee
