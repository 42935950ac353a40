#include "card/card_file.h"

#include <algorithm>

#include "files/drives.h"
#include "files/environment.h"
#include "files/numbers.h"
#include "files/trap.h"

namespace bramlee {
namespace {

constexpr int kMostKept = 99;  ///< copies of damaged files

const QString kNoNameYet = QStringLiteral("Enter Your Name");

StudentRec DefaultCard() {
  StudentRec rec;
  rec.StudentSerial = 1;
  rec.StudentName.Set(kNoNameYet);
  rec.ClassName.Set(QStringLiteral("BRM"));
  rec.IdCardPath.Set(QStringLiteral("C:\\bramlee\\idcard.jpg"));
  rec.LogoPath.Set(QStringLiteral("C:\\bramlee\\school.jpg"));
  rec.TeacherName.Set(QStringLiteral("Enter Your Class Teacher Name"));
  rec.ItemName.Set(QStringLiteral("I Bought BRM Cd "));
  rec.PocketMoney = 100;
  rec.ItemAmount = 100;
  rec.Balance = 0;
  const QDate today = TheEnvironment().today();
  rec.EnterDay = RoundToInteger(today.day());
  rec.EnterMonth = RoundToInteger(today.month());
  rec.EnterYear = RoundToInteger(today.year());
  rec.RecordCount = 1;
  rec.PricePerItem = 100.0;
  rec.TotalItems = 1;
  return rec;
}

void KeepAside(const QByteArray& bytes) {
  for (int i = 1; i <= kMostKept; ++i) {
    const QString number = i == 1 ? QString() : QString::number(i);
    FileReplacement copy(SystemPath(QStringLiteral("C:\\bramlee\\dba\\brmstu1.bad") + number));
    if (copy.Old().IsThere() && copy.Old().Read(0, kStudentRecLen) == bytes) return;
    if (copy.Old().IsThere()) continue;
    return copy.Commit({
        {0, bytes}
    });
  }
  throw TrappedError(QStringLiteral("too many damaged files"));
}

}  // namespace

ItemTexts TextsOf(const StudentRec& rec) {
  return {QString::number(rec.EnterDay),   QString::number(rec.EnterMonth),
          QString::number(rec.EnterYear),  Trim(rec.ItemName.Text()),
          NumberText(rec.PricePerItem),    QString::number(rec.TotalItems),
          QString::number(rec.ItemAmount), QString::number(rec.PocketMoney),
          QString::number(rec.Balance)};
}

std::int32_t CountedItems(const StudentRec& first, const RecordFile& file) {
  return std::clamp(first.RecordCount, 0, file.Records());
}

CardContents ReadCard(const RecordFile& file) {
  CardContents card;
  card.hasHead = file.Records() > 0;
  card.head = DecodeStudent(file.Get(1));
  const std::int32_t count = CountedItems(card.head, file);
  for (std::int32_t i = 1; i <= count; ++i) card.items.push_back(DecodeStudent(file.Get(i)));
  return card;
}

CardHolder HolderOfCard() {
  CardHolder holder;
  Trap({}, [&holder](ErrInfo&) {
    const RecordFile file(TakeSlot(kCardSlot));
    if (file.Records() == 0) return;
    const StudentRec head = DecodeStudent(file.Get(1));
    const QString name = Trim(head.StudentName.Text());
    if (name == kNoNameYet) return;
    holder = {.name = name, .className = Trim(head.ClassName.Text())};
  });
  return holder;
}

void CheckItem(const RecordFile& file, std::int32_t recNo, const ItemTexts& shown) {
  const bool counted = recNo <= CountedItems(DecodeStudent(file.Get(1)), file);
  if (!counted || TextsOf(DecodeStudent(file.Get(recNo))) != shown) {
    throw ItemChanged(QStringLiteral("item %1 is another one now").arg(recNo));
  }
}

void ProvideCard(CardFailure* failure) {
  const auto provide = [failure](ErrInfo&) {
    const FileSlot slot = TakeSlot(kCardSlot);
    if (!FileMissing(slot.SlotPath)) {
      const FileBytes file = FileBytes::Open(SystemPath(slot.SlotPath));
      if (file.Size() >= kStudentRecLen) return;
      if (file.Size() > 0) KeepAside(file.Read(0, kStudentRecLen));
    }
    WriteDefaultCard(failure);
  };
  Trap(QStringLiteral("601:23"), provide, KeptIn(failure));
}

std::int16_t WriteDefaultCard(CardFailure* failure) {
  const auto write = [](ErrInfo&) {
    const FileSlot slot = TakeSlot(kCardSlot);
    FileSave save(slot.SlotPath);
    RecordFile(slot, save).Put(1, EncodeStudent(DefaultCard()));
    save.Commit();
  };
  return Trap({}, write, KeptIn(failure)) ? 0 : 1;
}

std::int16_t RemoveCardItem(std::int32_t recNo, const ItemTexts* shown, CardFailure* failure) {
  const auto remove = [recNo, shown](ErrInfo&) {
    const FileSlot slot = TakeSlot(kCardSlot);
    FileSave save(slot.SlotPath);
    RecordFile file(slot, save);
    if (file.Records() == 0) throw CardGone(QStringLiteral("the card is gone"));
    if (shown != nullptr) CheckItem(file, recNo, *shown);
    StudentRec first = DecodeStudent(file.Get(1));
    const std::int32_t count = CountedItems(first, file);
    first.RecordCount = RoundToLong(std::min(first.RecordCount, file.Records()) - 1.0);
    file.Put(1, EncodeStudent(first));
    std::int32_t kept = 1;
    for (std::int32_t i = 2; i <= count; ++i) {
      if (i != recNo) file.Put(++kept, file.Get(i));
    }
    save.Commit();
  };
  return Trap({}, remove, KeptIn(failure)) ? 0 : 1;
}

}  // namespace bramlee
