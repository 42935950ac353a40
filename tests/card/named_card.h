// A biodata card with a name on it.
#pragma once

#include "card/card_file.h"
#include "files/data_files.h"

namespace bramlee {

/// Writes the first card of the drive in use, whose data folder is there.
inline void WriteNamedCard(const QString& name) {
  StudentRec rec;
  rec.StudentName.Set(name);
  const FileSlot slot = TakeSlot(kCardSlot);
  FileSave save(slot.SlotPath);
  RecordFile(slot, save).Put(1, EncodeStudent(rec));
  save.Commit();
}

}  // namespace bramlee
