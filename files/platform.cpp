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
#include <utility>

#include "files/trap.h"

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

[[noreturn]] void Fail(const QString& what) {
  throw TrappedError(what);
}

void Check(bool done, const char* what) {
  if (!done) Fail(QString::fromLatin1(what));
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
  Fail(QStringLiteral("links that lead round in a circle"));
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

/// Opens the file that the new bytes go to and locks it. What a killed save left there is used
/// again.
Descriptor OpenAside(const QByteArray& name) {
  for (int i = 0; i < 3; ++i) {
    Descriptor file(open(name.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0666));
    Check(file.IsOpen(), "the folder takes no file");
    Check(TakeLock(file.number()), "another program saves");
    if (IsStillNamed(file.number(), name)) return file;  // else that save has just ended
  }
  Fail(QStringLiteral("other programs save"));
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

/// The new file belongs to whom the old one belonged to, as far as the system allows.
void CopyMode(int from, int to) {
  struct stat old {};
  Check(fstat(from, &old) == 0, "the old file cannot be looked at");
  struct stat now {};
  Check(fstat(to, &now) == 0, "the new file cannot be looked at");
  const bool sameOwner = old.st_uid == now.st_uid && old.st_gid == now.st_gid;
  if (!sameOwner && fchown(to, old.st_uid, old.st_gid) != 0) errno = 0;  // not ours to give away
  if (old.st_mode != now.st_mode) Check(fchmod(to, old.st_mode & 07777) == 0, "the mode");
}

/// Waits until the disk has it. A file system that cannot tell is believed.
void Sync(int file) {
  Check(fsync(file) == 0 || errno == EINVAL || errno == ENOTSUP, "the disk fails");
}

}  // namespace

FileBytes FileBytes::Open(const QString& systemPath) {
  return {systemPath, O_RDONLY};
}

// A pipe in the file's place must not make the program wait: hence O_NONBLOCK.
FileBytes::FileBytes(const QString& systemPath, int flags)
    : file_(open(QFile::encodeName(systemPath).constData(), flags | O_NONBLOCK | O_CLOEXEC)) {
  if (!file_.IsOpen()) {
    const bool absent = errno == ENOENT && LookAt(FolderOf(systemPath)) == Sight::Folder;
    Check(absent, "the file cannot be opened");
    return;
  }
  struct stat seen {};
  Check(fstat(file_.number(), &seen) == 0 && S_ISREG(seen.st_mode), "this is no ordinary file");
  size_ = seen.st_size;
}

QByteArray FileBytes::Read(qint64 offset, qint64 count) const {
  QByteArray bytes(std::clamp<qint64>(size_ - offset, 0, count), '\0');
  qint64 done = 0;
  while (done < bytes.size()) {
    const auto got = pread(file_.number(), bytes.data() + done,
                           static_cast<std::size_t>(bytes.size() - done), offset + done);
    if (got < 0 && errno == EINTR) continue;
    Check(got > 0, "the file cannot be read");
    done += got;
  }
  return bytes;
}

FileReplacement::Aside::Aside(const QString& target)
    : name_(QFile::encodeName(target + QStringLiteral(".new"))), file_(OpenAside(name_)) {}

FileReplacement::Aside::~Aside() {
  if (file_.IsOpen()) unlink(name_.constData());
}

void FileReplacement::Aside::MoveTo(const QString& target) {
  Check(std::rename(name_.constData(), QFile::encodeName(target).constData()) == 0,
        "the new file does not take the old one's place");
  file_ = Descriptor();
}

FileReplacement::FileReplacement(const QString& systemPath)
    : target_(EndOfLinks(systemPath)), aside_(target_), old_(target_, O_RDWR) {
  Check(!old_.IsThere() || TakeLock(old_.file_.number()), "another program holds the file");
}

void FileReplacement::Commit(const QMap<qint64, QByteArray>& pieces) {
  const int file = aside_.file();
  Check(ftruncate(file, 0) == 0, "what an earlier save left cannot be emptied");
  if (old_.IsThere()) CopyMode(old_.file_.number(), file);
  CopyAll(old_, file);
  for (auto piece = pieces.cbegin(); piece != pieces.cend(); ++piece) {
    WriteAll(file, piece.key(), piece.value());
  }
  Sync(file);
  aside_.MoveTo(target_);
  const Descriptor folder(
      open(QFile::encodeName(FolderOf(target_)).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.IsOpen()) fsync(folder.number());  // the new file stands already: no way back
}

}  // namespace bramlee
