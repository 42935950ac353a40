#include "files/data_files.h"

#include <QSet>
#include <algorithm>
#include <limits>

#include "files/drives.h"
#include "files/environment.h"
#include "files/err_rep_rec.h"
#include "files/student_rec.h"
#include "files/trap.h"

namespace bramlee {

std::int16_t DataFileMissing = 0;

namespace {

constexpr std::int16_t kSlots = 21;

struct TableSlot {
  QString path;
  std::int16_t recordLength = 0;
};

/// One set for the whole program: no two open files have the same channel.
QSet<std::int32_t>& ChannelsInUse() {
  static QSet<std::int32_t> channels;
  return channels;
}

void FillTable(TableSlot (&table)[kSlots]) {
  table[0] = {QStringLiteral("C:\\bramlee\\dba\\biod1v01.dat"), 508};
  table[2] = {QStringLiteral("C:\\bramlee\\dba\\kgexpv01.dat"), 300};
  table[kErrorSlot] = {QStringLiteral("C:\\bramlee\\dba\\errrepv0.dat"), kErrRepRecLen};
  table[kCardSlot] = {QStringLiteral("C:\\bramlee\\dba\\brmstu1.dat"), kStudentRecLen};
}

}  // namespace

std::int16_t POP_FILE_DATA(FileSlot& slot) {
  std::int16_t missing = 1;
  Trap(QStringLiteral("602:27"), [&](ErrInfo&) {
    if (slot.SlotNo < 0 || slot.SlotNo >= kSlots) {
      return TheEnvironment().tell(QStringLiteral("POP_FILE_DATA:ERROR"));
    }
    TableSlot table[kSlots];
    FillTable(table);
    slot.SlotPath = table[slot.SlotNo].path;
    slot.SlotRecLen = table[slot.SlotNo].recordLength;
    missing = FileMissing(slot.SlotPath) ? 1 : 0;
  });
  return missing;
}

std::int32_t FreeChannel() {
  std::int32_t channel = 1;
  while (ChannelsInUse().contains(channel)) ++channel;
  return channel;
}

FileSlot TakeSlot(std::int16_t slotNo) {
  FileSlot slot{.SlotPath = {}, .SlotRecLen = 0, .SlotChannel = 0, .SlotNo = slotNo};
  DataFileMissing = POP_FILE_DATA(slot);
  slot.SlotChannel = FreeChannel();
  return slot;
}

FileSave::FileSave(const QString& path) : file_(SystemPath(path)) {}

void FileSave::Commit() {
  file_.Commit(puts_);
}

RecordFile::RecordFile(const FileSlot& slot)
    : slot_(slot),
      reading_(std::make_unique<FileBytes>(FileBytes::Open(SystemPath(slot.SlotPath)))) {
  ChannelsInUse().insert(slot_.SlotChannel);
}

RecordFile::RecordFile(const FileSlot& slot, FileSave& save) : slot_(slot), save_(&save) {
  ChannelsInUse().insert(slot_.SlotChannel);
}

RecordFile::~RecordFile() {
  ChannelsInUse().remove(slot_.SlotChannel);
}

qint64 RecordFile::OffsetOf(qint64 number) const {
  if (number < 1) throw TrappedError(QStringLiteral("no such record number"));
  return (number - 1) * slot_.SlotRecLen;
}

QByteArray RecordFile::Get(qint64 number) const {
  const qint64 offset = OffsetOf(number);
  if (save_ != nullptr && save_->puts_.contains(offset)) return save_->puts_.value(offset);
  return Old().Read(offset, slot_.SlotRecLen).leftJustified(slot_.SlotRecLen, '\0');
}

void RecordFile::Put(qint64 number, const QByteArray& record) {
  if (save_ == nullptr) throw TrappedError(QStringLiteral("the file is open for reading"));
  save_->puts_.insert(OffsetOf(number), record);
}

std::int32_t RecordFile::Records() const {
  qint64 end = Old().Size();
  if (save_ != nullptr && !save_->puts_.isEmpty()) {
    end = std::max(end, save_->puts_.lastKey() + slot_.SlotRecLen);
  }
  const qint64 records = (end + slot_.SlotRecLen - 1) / slot_.SlotRecLen;
  return static_cast<std::int32_t>(
      std::min<qint64>(records, std::numeric_limits<std::int32_t>::max() - 1));
}

}  // namespace bramlee
