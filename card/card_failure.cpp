#include "card/card_failure.h"

#include <new>
#include <stdexcept>

#include "files/drives.h"
#include "files/platform.h"

namespace bramlee {
namespace {

/// The system reports that a folder of the path is missing, but not which one.
QString WhatIsMissing() {
  const bool drive = LookAt(SystemPath(QStringLiteral("C:\\"))) == Sight::Folder;
  return drive ? QStringLiteral("the folder C:\\bramlee\\dba is not there")
               : QStringLiteral("the drive C: is not there");
}

QString WhyOf(const FileError& error) {
  switch (error.trouble()) {
    case FileTrouble::DiskFull:
      return QStringLiteral("the disk is full");
    case FileTrouble::DiskReadOnly:
      return QStringLiteral("the disk is read-only");
    case FileTrouble::DiskFails:
      return QStringLiteral("the disk does not work");
    case FileTrouble::FolderMissing:
      return WhatIsMissing();
    case FileTrouble::FolderReadOnly:
      return QStringLiteral("the folder C:\\bramlee\\dba is read-only");
    case FileTrouble::FileReadOnly:
      return QStringLiteral("the file %1 is read-only").arg(error.file());
    case FileTrouble::FileUnreadable:
      return QStringLiteral("you may not read the file %1").arg(error.file());
    case FileTrouble::FileHeld:
      return QStringLiteral("another program has the card open");
    case FileTrouble::FolderInTheWay:
      return QStringLiteral("a folder is in the place of %1").arg(error.file());
    case FileTrouble::OtherInTheWay:
      return QStringLiteral("what is in the place of %1 is no file").arg(error.file());
    case FileTrouble::Other:
      break;
  }
  return QStringLiteral("the card's file cannot be used");
}

}  // namespace

CardFailure FailureOf(const std::exception& error) {
  if (const auto* file = dynamic_cast<const FileError*>(&error)) return {.why = WhyOf(*file)};
  if (dynamic_cast<const ItemChanged*>(&error) != nullptr) {
    return {.why = QStringLiteral("another program has changed the card"), .itemChanged = true};
  }
  if (dynamic_cast<const CardGone*>(&error) != nullptr) {
    return {.why = QStringLiteral("the card's file is no longer there")};
  }
  if (dynamic_cast<const std::overflow_error*>(&error) != nullptr) {
    return {.why = QStringLiteral("a number is too large")};
  }
  if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr) {
    return {.why = QStringLiteral("the memory is full")};
  }
  return {.why = QStringLiteral("the card's file cannot be used")};
}

}  // namespace bramlee
