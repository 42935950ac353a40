// The table of data files, and random-access files of fixed-length records numbered from 1. A
// file is opened, read or written and closed inside one event handler; no file is held between
// events. docs/records.md says what the records hold.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <cstdint>
#include <memory>

#include "files/platform.h"

namespace bramlee {

inline constexpr std::int16_t kErrorSlot = 12;  ///< the error report
inline constexpr std::int16_t kCardSlot = 18;   ///< the biodata card

/// The record through which a routine asks for a file.
struct FileSlot {
  QString SlotPath;              ///< out: full path
  std::int16_t SlotRecLen = 0;   ///< out: record length
  std::int32_t SlotChannel = 0;  ///< the channel that FreeChannel gave
  std::int16_t SlotNo = 0;       ///< in
};

/// Fills path and record length from the table. Returns 1 when the file is missing, else 0. A slot
/// that the table does not fill has an empty path, which is missing. A number outside the table
/// shows "POP_FILE_DATA:ERROR" and returns 1. Tag "602:27".
std::int16_t POP_FILE_DATA(FileSlot& slot);

/// What POP_FILE_DATA returned last. One for the whole program, whichever file was asked for.
extern std::int16_t DataFileMissing;

/// The lowest channel number, from 1, that no open file has.
std::int32_t FreeChannel();

/// Asks for that slot's file and takes a free channel for it.
FileSlot TakeSlot(std::int16_t slotNo);

/// One save: what is put into a file while this stands takes effect as a whole at Commit, or not
/// at all. Nothing is written before, so a file that was not there is never there and empty.
class FileSave {
 public:
  /// Keeps other programs from saving the file until this goes. Throws TrappedError when the
  /// file cannot be replaced (see FileReplacement).
  explicit FileSave(const QString& path);

  /// Once only. Throws TrappedError, and the file is as it was.
  void Commit();

 private:
  friend class RecordFile;
  FileReplacement file_;
  QMap<qint64, QByteArray> puts_;  ///< by their offsets
};

/// An open file of fixed-length records.
class RecordFile {
 public:
  /// Opens for reading. A missing file is an empty one. Throws TrappedError when its folder is
  /// missing or the file cannot be opened.
  explicit RecordFile(const FileSlot& slot);
  /// Opens for reading and writing as part of that save, which must be of the same file.
  RecordFile(const FileSlot& slot, FileSave& save);
  ~RecordFile();
  RecordFile(const RecordFile&) = delete;
  RecordFile& operator=(const RecordFile&) = delete;

  /// The record of that number; what lies past the file's end is zeros. Throws TrappedError for
  /// a number below 1 and for a file that cannot be read.
  QByteArray Get(qint64 number) const;
  /// Throws TrappedError for a number below 1 and for a file opened for reading.
  void Put(qint64 number, const QByteArray& record);
  /// How many records the file holds, an incomplete last one included. What was put counts.
  std::int32_t Records() const;

 private:
  qint64 OffsetOf(qint64 number) const;
  const FileBytes& Old() const { return save_ != nullptr ? save_->file_.Old() : *reading_; }

  FileSlot slot_;
  FileSave* save_ = nullptr;
  std::unique_ptr<FileBytes> reading_;
};

}  // namespace bramlee
