// What the program needs of the operating system beyond Qt. The only files that know which one
// it is.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include "files/trap.h"

namespace bramlee {

/// The folder that is the root of the drive of that letter; it need not be there. On a system
/// with drive letters the drive itself, elsewhere an entry of the folder of drives (a folder or
/// a link named "c", "d", ...), which is `bramlee/drives` in the user's data location, or the
/// folder that the environment variable BRAMLEE_DRIVES names.
QString DriveFolder(QChar letter);

/// The name in that folder that reads like `name` without regard to case, as a whole path; the
/// same spelling goes first. Without one, the path as `name` spells it. Never fails.
QString InFolder(const QString& folder, const QString& name);

/// What stands at a path of the system.
enum class Sight {
  Nothing,  ///< no such name, or a link that leads to none
  File,     ///< something that is no folder
  Folder,
  Unknown,  ///< it cannot be looked at: no permission, too long a name, a failing disk
};
/// Links are followed.
Sight LookAt(const QString& systemPath);

/// What keeps a file from being read or replaced.
enum class FileTrouble {
  Other,           ///< none of these: the error's text is all that is known
  DiskFull,        ///< or the user's share of it
  DiskReadOnly,    ///< the whole of it
  DiskFails,       ///< it reads or writes no more
  FolderMissing,   ///< that the file should be in
  FolderReadOnly,  ///< that one
  FileReadOnly,
  FileUnreadable,  ///< this user may not look into it
  FileHeld,        ///< by another program that saves it
  FolderInTheWay,  ///< a folder of the file's name
  OtherInTheWay,   ///< a pipe, a link or the like of that name
};

/// A file that could not be read or replaced.
class FileError : public TrappedError {
 public:
  FileError(FileTrouble trouble, const QString& file, const QString& what)
      : TrappedError(what), trouble_(trouble), file_(file) {}
  FileTrouble trouble() const { return trouble_; }
  /// The name in its folder of the file that it is about; empty where it is about none alone.
  QString file() const { return file_; }

 private:
  FileTrouble trouble_;
  QString file_;
};

/// A handle of the system, closed with its owner.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  ~Descriptor();
  Descriptor(Descriptor&& other) noexcept : number_(other.number_) { other.number_ = -1; }
  Descriptor& operator=(Descriptor&& other) noexcept;
  int number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }

 private:
  int number_;
};

/// An ordinary file's bytes.
class FileBytes {
 public:
  /// Opens the file for reading. A name that is not there is an empty file, which is not made;
  /// its folder has to be there. Throws FileError for what cannot be opened and for what is no
  /// ordinary file.
  static FileBytes Open(const QString& systemPath);

  bool IsThere() const { return file_.IsOpen(); }
  qint64 Size() const { return size_; }
  /// At most `count` bytes from `offset` on, fewer at the end. Throws FileError.
  QByteArray Read(qint64 offset, qint64 count) const;

 private:
  friend class FileReplacement;
  FileBytes(const QString& systemPath, int flags);

  Descriptor file_;
  qint64 size_ = 0;
};

/// One file that is about to be replaced as a whole. While this stands no other program of ours
/// can replace it. A link stays a link, what it leads to is replaced.
class FileReplacement {
 public:
  /// Throws FileError, with nothing changed, when the folder is missing or read-only, when the
  /// file is no ordinary file, is read-only or is held by another program, and when anything but
  /// a file has the name that the new one takes meanwhile, "<file>.new".
  explicit FileReplacement(const QString& systemPath);

  /// The file as it was. A name that was not there is an empty file.
  const FileBytes& Old() const { return old_; }

  /// Puts a new file in the old one's place: its bytes with `pieces` laid over them, by their
  /// offsets; a gap is filled with zeros. The file's mode is kept. Whenever the machine stops,
  /// the name stands for the old file or for the whole new one. Once only. Throws FileError, and
  /// the old file stands.
  void Commit(const QMap<qint64, QByteArray>& pieces);

 private:
  /// The new file while it stands beside the old one; goes with its owner.
  class Aside {
   public:
    explicit Aside(const QString& target);
    ~Aside();
    int file() const { return file_.number(); }
    /// Gives it that name; it stays then.
    void MoveTo(const QString& target);

   private:
    QByteArray name_;
    Descriptor file_;
  };

  QString target_;
  Aside aside_;
  FileBytes old_;
};

/// Writes a file, in the place of what has that name, and waits until the disk has it. Throws
/// FileError; a part of it may stand there then.
void WriteFile(const QString& systemPath, const QByteArray& bytes);

/// Waits until the disk has all of a file that another program wrote. Throws FileError.
void SyncFile(const QString& systemPath);

/// Gives a file another name on the same file system, in one step in the place of a file that has
/// it already, and waits until the disk has it. Throws FileError, and nothing is changed.
void MoveFile(const QString& from, const QString& to);

/// Takes a file away; one that is not there is no failure. Throws FileError.
void RemoveFile(const QString& systemPath);

}  // namespace bramlee
