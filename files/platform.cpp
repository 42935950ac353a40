#include "files/platform.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>
#include <utility>

namespace bramlee {
namespace {

QString DrivesFolder() {
  QString given = qEnvironmentVariable("BRAMLEE_DRIVES");
  if (!given.isEmpty()) return given;
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
         QStringLiteral("/bramlee/drives");
}

}  // namespace

QString DriveFolder(QChar letter) {
#ifdef Q_OS_WIN
  return letter + QStringLiteral(":");
#else
  return InFolder(DrivesFolder(), letter.toLower());
#endif
}

QString InFolder(const QString& folder, const QString& name) {
  QString exact = folder + u'/' + name;
  const QFileInfo spelled(exact);
  if (spelled.exists() || spelled.isSymLink()) return exact;
  QString found;
  QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System);
  while (entries.hasNext()) {
    entries.next();
    const QString entry = entries.fileName();
    if (entry.compare(name, Qt::CaseInsensitive) != 0) continue;
    if (found.isEmpty() || entry < found) found = entry;  // the same one at every look
  }
  return found.isEmpty() ? exact : folder + u'/' + found;
}

Sight LookAt(const QString& systemPath) {
  if (systemPath.contains(QChar::Null)) return Sight::Nothing;
  struct stat seen {};
  if (stat(QFile::encodeName(systemPath).constData(), &seen) == 0) {
    return S_ISDIR(seen.st_mode) ? Sight::Folder : Sight::File;
  }
  const bool nothing = errno == ENOENT || errno == ENOTDIR || errno == ELOOP;
  return nothing ? Sight::Nothing : Sight::Unknown;
}

Descriptor::~Descriptor() {
  if (IsOpen()) close(number_);
}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  std::swap(number_, other.number_);
  return *this;
}

namespace {

/// Behind a file's name, while the new one is written.
const QString kNew = QStringLiteral(".new");

/// What the system's error number means; `refused` where it says no more than that.
FileTrouble TroubleOf(int error, FileTrouble refused) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return FileTrouble::DiskFull;
    case EROFS:
      return FileTrouble::DiskReadOnly;
    case EIO:
      return FileTrouble::DiskFails;
    case ENOENT:
    case ENOTDIR:
      return FileTrouble::FolderMissing;
    case EACCES:
    case EPERM:
      return refused;
    case EISDIR:
      return FileTrouble::FolderInTheWay;
    case ELOOP:
    case ENXIO:
      return FileTrouble::OtherInTheWay;
    default:
      return FileTrouble::Other;
  }
}

QString NameOf(const QString& systemPath) {
  return QFileInfo(systemPath).fileName();
}

[[noreturn]] void Fail(FileTrouble trouble, const QString& file, const char* what) {
  throw FileError(trouble, file, QStringLiteral("%1: %2").arg(file, QString::fromLatin1(what)));
}

/// After a call to the system: throws what its error number says.
void Check(bool done, const char* what, const QString& file = {},
           FileTrouble refused = FileTrouble::Other) {
  if (done) return;
  const int error = errno;
  const std::string told = std::string(what) + ": " + std::generic_category().message(error);
  Fail(TroubleOf(error, refused), file, told.c_str());
}

QString FolderOf(const QString& systemPath) {
  return QFileInfo(systemPath).path();
}

/// The file that a chain of links leads to, be it there or not.
QString EndOfLinks(QString systemPath) {
  for (int i = 0; i < 40; ++i) {
    const QFileInfo file(systemPath);
    if (!file.isSymLink()) return systemPath;
    systemPath = file.symLinkTarget();
  }
  Fail(FileTrouble::OtherInTheWay, NameOf(systemPath), "links that lead round in a circle");
}

/// Takes the file for this program alone. False when another one holds it. A file system that
/// has no locks holds nothing.
bool TakeLock(int file) {
  if (flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
  struct flock whole {};
  whole.l_type = F_WRLCK;
  whole.l_whence = SEEK_SET;
  return fcntl(file, F_OFD_SETLK, &whole) == 0 || (errno != EAGAIN && errno != EACCES);
}

bool IsStillNamed(int file, const QByteArray& name) {
  struct stat opened {};
  struct stat named {};
  return fstat(file, &opened) == 0 && stat(name.constData(), &named) == 0 &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

/// Takes away what a killed save left in the new file's place; its other names keep their bytes.
/// Only who has locked the file of a name may give that name away, so no save under way loses it.
void ClearTheWay(const QString& place) {
  const QByteArray name = QFile::encodeName(place);
  const Descriptor left(open(name.constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (!left.IsOpen() && errno == ENOENT) return;
  Check(left.IsOpen(), "this is in the way", NameOf(place), FileTrouble::FileReadOnly);
  if (!TakeLock(left.number())) Fail(FileTrouble::FileHeld, {}, "another program saves");
  if (!IsStillNamed(left.number(), name)) return;
  Check(unlink(name.constData()) == 0, "this cannot be taken away", {},
        FileTrouble::FolderReadOnly);
}

/// Makes the file that the new bytes go to and locks it.
Descriptor OpenAside(const QString& place) {
  const QByteArray name = QFile::encodeName(place);
  constexpr int kFresh = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
  for (int i = 0; i < 3; ++i) {
    ClearTheWay(place);
    Descriptor file(open(name.constData(), kFresh, 0666));
    if (!file.IsOpen() && errno == EEXIST) continue;  // another save was faster
    Check(file.IsOpen(), "the folder takes no file", {}, FileTrouble::FolderReadOnly);
    if (!TakeLock(file.number())) break;
    if (IsStillNamed(file.number(), name)) return file;  // else it was taken for a killed save's
  }
  Fail(FileTrouble::FileHeld, {}, "other programs save");
}

void WriteAll(int file, qint64 offset, QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const auto written = pwrite(file, bytes.data(), static_cast<std::size_t>(bytes.size()), offset);
    if (written < 0 && errno == EINTR) continue;
    Check(written > 0, "the disk takes no more");
    offset += written;
    bytes = bytes.sliced(written);
  }
}

void CopyAll(const FileBytes& from, int to) {
  constexpr qint64 kChunk = 1 << 16;
  for (qint64 at = 0; at < from.Size(); at += kChunk) {
    WriteAll(to, at, from.Read(at, kChunk));
  }
}

/// Gives the new file the old one's owner, as far as the system allows.
void CopyMode(int from, int to) {
  struct stat old {};
  Check(fstat(from, &old) == 0, "the old file cannot be looked at");
  struct stat now {};
  Check(fstat(to, &now) == 0, "the new file cannot be looked at");
  const bool sameOwner = old.st_uid == now.st_uid && old.st_gid == now.st_gid;
  if (!sameOwner && fchown(to, old.st_uid, old.st_gid) != 0) errno = 0;  // not ours to give away
  if (old.st_mode != now.st_mode) Check(fchmod(to, old.st_mode & 07777) == 0, "the mode");
}

/// Waits until the disk has it. Takes it as done on a file system that cannot say.
void Sync(int file) {
  Check(fsync(file) == 0 || errno == EINVAL || errno == ENOTSUP, "the disk fails");
}

/// After a file has got its name: it stands already, so what fails here is no failure.
void SyncFolderOf(const QString& systemPath) {
  const Descriptor folder(open(QFile::encodeName(FolderOf(systemPath)).constData(),
                               O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.IsOpen()) fsync(folder.number());
}

}  // namespace

FileBytes FileBytes::Open(const QString& systemPath) {
  return {systemPath, O_RDONLY};
}

namespace {

/// For what cannot be opened. A file that is not there is none, if its folder is there.
void CheckAbsent(const QString& systemPath, FileTrouble refused) {
  const int error = errno;
  if (error == ENOENT && LookAt(FolderOf(systemPath)) == Sight::Folder) return;
  errno = error;
  Check(false, "the file cannot be opened", NameOf(systemPath), refused);
}

}  // namespace

// A pipe in the file's place must not make the program wait: hence O_NONBLOCK.
FileBytes::FileBytes(const QString& systemPath, int flags)
    : file_(open(QFile::encodeName(systemPath).constData(), flags | O_NONBLOCK | O_CLOEXEC)) {
  if (!file_.IsOpen()) {
    const bool reads = flags == O_RDONLY;
    CheckAbsent(systemPath, reads ? FileTrouble::FileUnreadable : FileTrouble::FileReadOnly);
    return;
  }
  struct stat seen {};
  Check(fstat(file_.number(), &seen) == 0, "the file cannot be looked at");
  if (!S_ISREG(seen.st_mode)) {
    Fail(S_ISDIR(seen.st_mode) ? FileTrouble::FolderInTheWay : FileTrouble::OtherInTheWay,
         NameOf(systemPath), "this is no ordinary file");
  }
  size_ = seen.st_size;
}

QByteArray FileBytes::Read(qint64 offset, qint64 count) const {
  QByteArray bytes(std::clamp<qint64>(size_ - offset, 0, count), '\0');
  qint64 done = 0;
  while (done < bytes.size()) {
    const auto got = pread(file_.number(), bytes.data() + done,
                           static_cast<std::size_t>(bytes.size() - done), offset + done);
    if (got < 0 && errno == EINTR) continue;
    if (got == 0) errno = EIO;  // it has become shorter meanwhile
    Check(got > 0, "the file cannot be read");
    done += got;
  }
  return bytes;
}

FileReplacement::Aside::Aside(const QString& target)
    : name_(QFile::encodeName(target + kNew)), file_(OpenAside(target + kNew)) {}

FileReplacement::Aside::~Aside() {
  if (file_.IsOpen() && IsStillNamed(file_.number(), name_)) unlink(name_.constData());
}

void FileReplacement::Aside::MoveTo(const QString& target) {
  // Where a file system has no locks another program may have put its own there.
  if (!IsStillNamed(file_.number(), name_)) Fail(FileTrouble::FileHeld, {}, "another saves");
  Check(std::rename(name_.constData(), QFile::encodeName(target).constData()) == 0,
        "the new file does not take the old one's place", {}, FileTrouble::FolderReadOnly);
  file_ = Descriptor();
}

FileReplacement::FileReplacement(const QString& systemPath)
    : target_(EndOfLinks(systemPath)), aside_(target_), old_(target_, O_RDWR) {
  if (old_.IsThere() && !TakeLock(old_.file_.number())) {
    Fail(FileTrouble::FileHeld, NameOf(target_), "another program holds the file");
  }
}

void FileReplacement::Commit(const QMap<qint64, QByteArray>& pieces) {
  const int file = aside_.file();
  if (old_.IsThere()) CopyMode(old_.file_.number(), file);
  CopyAll(old_, file);
  for (auto piece = pieces.cbegin(); piece != pieces.cend(); ++piece) {
    WriteAll(file, piece.key(), piece.value());
  }
  Sync(file);
  aside_.MoveTo(target_);
  SyncFolderOf(target_);
}

void WriteFile(const QString& systemPath, const QByteArray& bytes) {
  constexpr int kAnew = O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
  const Descriptor file(open(QFile::encodeName(systemPath).constData(), kAnew, 0666));
  Check(file.IsOpen(), "the file cannot be written", NameOf(systemPath),
        FileTrouble::FolderReadOnly);
  WriteAll(file.number(), 0, bytes);
  Sync(file.number());
}

void SyncFile(const QString& systemPath) {
  const Descriptor file(open(QFile::encodeName(systemPath).constData(), O_RDONLY | O_CLOEXEC));
  Check(file.IsOpen(), "the file cannot be opened", NameOf(systemPath),
        FileTrouble::FileUnreadable);
  Sync(file.number());
}

void MoveFile(const QString& from, const QString& to) {
  const bool moved =
      std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
  Check(moved, "the file does not get its name", NameOf(to), FileTrouble::FolderReadOnly);
  SyncFolderOf(to);
}

void RemoveFile(const QString& systemPath) {
  const bool gone = unlink(QFile::encodeName(systemPath).constData()) == 0 || errno == ENOENT;
  Check(gone, "the file cannot be taken away", NameOf(systemPath), FileTrouble::FolderReadOnly);
}

}  // namespace bramlee
