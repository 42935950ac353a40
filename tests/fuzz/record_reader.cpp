#include "tests/fuzz/record_reader.h"

#include <QFile>
#include <algorithm>

#include "card/card_file.h"
#include "files/drives.h"
#include "files/err_rep_rec.h"
#include "files/error_report.h"
#include "files/trap.h"

namespace bramlee {
namespace {

QString Place(std::int16_t slotNo) {
  return SystemPath(TakeSlot(slotNo).SlotPath);
}

void Put(std::int16_t slotNo, const QByteArray& bytes) {
  QFile file(Place(slotNo));
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
    throw TrappedError(QStringLiteral("no data folder"));
  }
}

QByteArray Now(std::int16_t slotNo) {
  QFile file(Place(slotNo));
  if (!file.open(QIODevice::ReadOnly)) throw TrappedError(QStringLiteral("the file is gone"));
  return file.readAll();
}

void Require(bool holds, const char* what) {
  if (!holds) throw TrappedError(QString::fromLatin1(what));
}

qint64 Whole(qint64 length, qint64 recordLength) {
  return (length + recordLength - 1) / recordLength * recordLength;
}

/// Looking at the card changes nothing and goes no further than the file.
void Look(const QByteArray& bytes) {
  const RecordFile file(TakeSlot(kCardSlot));
  const CardContents card = ReadCard(file);
  Require(static_cast<qint64>(card.items.size()) * kStudentRecLen <=
              Whole(bytes.size(), kStudentRecLen),
          "more items than the file holds");
  for (std::int32_t i = 1; i <= file.Records() + 1; ++i) {
    const QByteArray record = file.Get(i);
    Require(record.size() == kStudentRecLen, "a record of another length");
    const StudentRec rec = DecodeStudent(record);
    Require(EncodeStudent(rec) == record, "a record that does not come back");
    Require(rec.StudentName.Text().size() <= 100, "a text longer than its field");
  }
  Require(Now(kCardSlot) == bytes, "looking has changed the file");
}

/// A card too short for a record gives way to the default one and is kept beside it.
void ProvideItAnew(const QByteArray& bytes) {
  QFile copy(SystemPath(QStringLiteral("C:\\bramlee\\dba\\brmstu1.bad")));
  copy.remove();
  Put(kCardSlot, bytes);
  ProvideCard();
  const bool isShort = bytes.size() < kStudentRecLen;
  Require(isShort ? Now(kCardSlot).size() == kStudentRecLen : Now(kCardSlot) == bytes,
          "there is no card, or another one");
  const bool isKept = copy.open(QIODevice::ReadOnly) && copy.readAll() == bytes;
  Require(isKept == (isShort && !bytes.isEmpty()), "a damaged card is not kept");
}

void TryAsCard(const QByteArray& bytes, std::int32_t recNo) {
  Put(kCardSlot, bytes);
  Look(bytes);
  if (RemoveCardItem(recNo) != 0) {
    Require(Now(kCardSlot) == bytes, "a failed save has changed the file");
  } else {
    Require(Now(kCardSlot).size() == std::max<qint64>(bytes.size(), kStudentRecLen) ||
                Now(kCardSlot).size() == Whole(bytes.size(), kStudentRecLen),
            "a removal has made the file grow");
    Look(Now(kCardSlot));
  }
  ProvideItAnew(bytes);
}

void TryAsErrorReport(const QByteArray& bytes) {
  Put(kErrorSlot, bytes);
  ErrInfo err{.ErrTag = {}, .ErrText = QStringLiteral("Error:Unload all")};
  AppendErrorReport(err);
  const QByteArray now = Now(kErrorSlot);
  Require(now.contains("Error:Unload all"), "the report is not there");
  Require(now.size() <= Whole(bytes.size(), kErrRepRecLen) + kErrRepRecLen,
          "a report has made the file grow by more than itself");
  Require(DecodeErrRep(now.left(kErrRepRecLen)).ErrCount >= 1, "the report is not counted");
}

}  // namespace

QString TryAsDataFiles(const QByteArray& input) {
  try {
    const std::int32_t recNo = input.isEmpty() ? 0 : input[0];
    TryAsCard(input.mid(1), recNo);
    TryAsErrorReport(input.mid(1));
    return {};
  } catch (const std::exception& failure) {
    return QString::fromUtf8(failure.what());
  }
}

}  // namespace bramlee
