#include "files/drives.h"

#include <QDir>
#include <QHash>
#include <QStringList>

#include "files/numbers.h"
#include "files/platform.h"
#include "files/trap.h"

namespace bramlee {
namespace {

struct DriveTable {
  QChar current = u'c';
  QHash<QChar, QStringList> folders;  ///< each drive's current folder, from its root
};

/// One for the whole program, as a process has one current folder.
DriveTable& Drives() {
  static DriveTable table;
  return table;
}

/// A path taken apart.
struct DrivePath {
  QChar drive;
  QStringList names;  ///< from the drive's root
};

bool IsDriveLetter(QChar letter) {
  return letter >= u'a' && letter <= u'z';
}

DrivePath TakeApart(const QString& path) {
  QString rest = Trim(path).replace(u'\\', u'/');
  DrivePath parts{.drive = Drives().current, .names = {}};
  if (rest.size() >= 2 && rest[1] == u':' && IsDriveLetter(rest[0].toLower())) {
    parts.drive = rest[0].toLower();
    rest.remove(0, 2);
  }
  if (!rest.startsWith(u'/')) parts.names = Drives().folders.value(parts.drive);
  for (const QString& name : rest.split(u'/', Qt::SkipEmptyParts)) {
    if (name == QStringLiteral(".")) continue;
    if (name != QStringLiteral("..")) {
      parts.names.append(name);
    } else if (!parts.names.isEmpty()) {
      parts.names.removeLast();
    }
  }
  return parts;
}

QString SystemPath(const DrivePath& parts) {
  QString system = DriveFolder(parts.drive);
  for (const QString& name : parts.names) system = InFolder(system, name);
  return system;
}

}  // namespace

QString SystemPath(const QString& path) {
  return SystemPath(TakeApart(path));
}

bool FileMissing(const QString& path) {
  bool missing = false;
  Trap(QStringLiteral("com1:14"), [&](ErrInfo&) {
    const bool pattern = path.contains(u'?') || path.contains(u'*');
    const Sight sight = pattern ? Sight::Nothing : LookAt(SystemPath(path));
    missing = sight == Sight::Nothing || sight == Sight::Folder;
  });
  return missing;
}

void ChDrive(const QString& drive) {
  if (Trim(drive).isEmpty()) return;
  const QChar letter = Trim(drive)[0].toLower();
  if (!IsDriveLetter(letter) || LookAt(DriveFolder(letter)) != Sight::Folder) {
    throw TrappedError(QStringLiteral("no such drive"));
  }
  Drives().current = letter;
}

void ChDir(const QString& path) {
  const DrivePath parts = TakeApart(path);
  if (LookAt(SystemPath(parts)) != Sight::Folder) {
    throw TrappedError(QStringLiteral("no such folder"));
  }
  Drives().folders[parts.drive] = parts.names;
}

QString CurDir() {
  const QChar drive = Drives().current;
  return drive.toUpper() + QStringLiteral(":\\") + Drives().folders.value(drive).join(u'\\');
}

void MkDir(const QString& path) {
  if (!QDir().mkdir(SystemPath(path))) throw TrappedError(QStringLiteral("cannot make a folder"));
}

}  // namespace bramlee
