// A data file of a test's own, and what saving it fails with.
#pragma once

#include <algorithm>
#include <functional>
#include <optional>

#include "files/data_files.h"
#include "tests/files/temp_drives.h"

namespace bramlee {

/// The records are three bytes of one letter each.
class RecordFileTest : public TempDrives {
 protected:
  RecordFileTest() { MakeDataFolder(); }

  static FileSlot Slot() {
    return {.SlotPath = QStringLiteral("C:\\bramlee\\dba\\x.dat"),
            .SlotRecLen = 3,
            .SlotChannel = FreeChannel(),
            .SlotNo = 0};
  }
  QString Place() const { return On("c/bramlee/dba/x.dat"); }

  /// Puts record 2 and 4 in one save.
  static void Save() {
    const FileSlot slot = Slot();
    FileSave save(slot.SlotPath);
    RecordFile file(slot, save);
    file.Put(2, "bbb");
    file.Put(4, "ddd");
    save.Commit();
  }
  /// What a save leaves of those bytes.
  static QByteArray Saved(QByteArray bytes) {
    bytes = bytes.leftJustified(std::max<qsizetype>(bytes.size(), 12), '\0');
    return bytes.replace(3, 3, "bbb").replace(9, 3, "ddd");
  }
  void PutBack(const QByteArray& bytes) const {
    QFile::remove(Place());
    if (!bytes.isNull()) WriteBytes(Place(), bytes);
  }
  /// The bytes of the file, null when it is not there.
  QByteArray Now() const { return QFile::exists(Place()) ? BytesOf(Place()) : QByteArray(); }
  QStringList Folder() const {
    return QDir(On("c/bramlee/dba")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
  }
};

/// What the save fails with, and the name of the file that it names.
struct Failure {
  FileTrouble trouble;
  QString file;
  bool operator==(const Failure& other) const = default;
};

inline std::optional<Failure> FailureOf(const std::function<void()>& run) {
  try {
    run();
  } catch (const FileError& error) {
    return Failure{.trouble = error.trouble(), .file = error.file()};
  }
  return {};
}

class FileSaveTest : public RecordFileTest {};

}  // namespace bramlee
