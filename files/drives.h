// Drives and paths such as "C:\bramlee\dba\brmstu1.dat", which is how the program names files on
// every system. A backslash or a slash parts folders; names match without regard to case, as on
// the file systems that the media come from; ".." never leads out of a drive. The current drive
// and each drive's current folder are the program's own: the process stays where it is.
#pragma once

#include <QString>

namespace bramlee {

/// The system's name of the file or folder that the path names, blanks around it left out. Names
/// that are not there are taken as spelled. Never fails.
QString SystemPath(const QString& path);

/// Whether the trimmed path names no file. A folder, a dangling link, a name with "?" or "*", an
/// empty path and a drive that is not there are missing; what cannot be looked at counts as
/// present. Tag "com1:14".
bool FileMissing(const QString& path);

/// Makes the drive of that letter ("C:") the current one; "" does nothing. Throws TrappedError
/// when it is not there.
void ChDrive(const QString& drive);

/// Makes the folder the current one of its drive, which need not be the current drive. Throws
/// TrappedError when it is not there.
void ChDir(const QString& path);

/// The current folder of the current drive: "C:\".
QString CurDir();

/// Makes one folder. Throws TrappedError when it is there already or cannot be made.
void MkDir(const QString& path);

}  // namespace bramlee
