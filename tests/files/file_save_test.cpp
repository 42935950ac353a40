// Saves: whole or not at all, whatever the disk and other programs do.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <optional>

#include "tests/files/faulty_disk.h"
#include "tests/files/record_file_test.h"

namespace bramlee {
namespace {

TEST_F(FileSaveTest, IsSeenByItsOwnFilesBeforeItTakesEffect) {
  PutBack("aaabbb");
  const FileSlot slot = Slot();
  FileSave save(slot.SlotPath);
  {
    RecordFile file(slot, save);
    file.Put(1, "xxx");
  }
  RecordFile again(slot, save);
  EXPECT_EQ(again.Get(1), "xxx");
  EXPECT_EQ(again.Get(2), "bbb");
  again.Put(4, "ddd");
  EXPECT_EQ(again.Records(), 4);
  EXPECT_EQ(Now(), "aaabbb");
  save.Commit();
  EXPECT_EQ(Now(), QByteArray("xxxbbb\0\0\0ddd", 12));
}

TEST_F(FileSaveTest, LeavesNothingBehindWithoutACommit) {
  {
    const FileSlot slot = Slot();
    FileSave save(slot.SlotPath);
    RecordFile(slot, save).Put(1, "xxx");
  }
  EXPECT_TRUE(Folder().isEmpty());
  PutBack("aaa");
  { const FileSave save(Slot().SlotPath); }
  EXPECT_EQ(Now(), "aaa");
  EXPECT_EQ(Folder().size(), 1);
}

TEST_F(FileSaveTest, KeepsTheBytesBehindTheLastWholeRecord) {
  PutBack("aaabbbcccdddeeef");
  Save();
  EXPECT_EQ(Now(), "aaabbbcccdddeeef");
  PutBack("aaab");
  Save();
  EXPECT_EQ(Now(), Saved("aaab"));
}

TEST_F(FileSaveTest, CopiesAFileOfManyPieces) {
  QByteArray bytes;
  for (int i = 0; i < 300'000; ++i) bytes += static_cast<char>('a' + i % 23);
  PutBack(bytes);
  Save();
  EXPECT_EQ(Now(), Saved(bytes));
}

TEST_F(FileSaveTest, KeepsTheFilesMode) {
  for (const mode_t mode : {0600U, 0640U, 0666U, 0755U}) {
    PutBack("aaa");
    const QByteArray name = QFile::encodeName(Place());
    ASSERT_EQ(chmod(name.constData(), mode), 0);
    Save();
    struct stat seen {};
    ASSERT_EQ(stat(name.constData(), &seen), 0);
    EXPECT_EQ(seen.st_mode & 07777, mode);
  }
}

TEST_F(FileSaveTest, KeepsTheFilesOwner) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser saves for others";
  PutBack("aaa");
  const QByteArray name = QFile::encodeName(Place());
  ASSERT_EQ(chown(name.constData(), 1234, 2345), 0);
  Save();
  struct stat seen {};
  ASSERT_EQ(stat(name.constData(), &seen), 0);
  EXPECT_EQ(seen.st_uid, 1234U);
  EXPECT_EQ(seen.st_gid, 2345U);
}

TEST_F(FileSaveTest, ThroughALinkReplacesWhatItLeadsTo) {
  QDir().mkpath(On("stick"));
  WriteBytes(On("stick/real.dat"), "aaa");
  ASSERT_TRUE(QFile::link(On("stick/real.dat"), On("stick/half")));
  ASSERT_TRUE(QFile::link(QStringLiteral("../../../stick/half"), Place()));
  Save();
  EXPECT_TRUE(QFileInfo(Place()).isSymLink());
  EXPECT_EQ(BytesOf(On("stick/real.dat")), Saved("aaa"));
  EXPECT_EQ(Folder(), QStringList(QStringLiteral("x.dat")));
}

TEST_F(FileSaveTest, ThroughALinkMakesWhatItLeadsTo) {
  QDir().mkpath(On("stick"));
  ASSERT_TRUE(QFile::link(On("stick/real.dat"), Place()));
  Save();
  EXPECT_TRUE(QFileInfo(Place()).isSymLink());
  EXPECT_EQ(BytesOf(On("stick/real.dat")), Saved({}));
}

TEST_F(FileSaveTest, ThroughLinksInACircleFails) {
  ASSERT_TRUE(QFile::link(Place(), Place()));
  EXPECT_THROW(Save(), TrappedError);
}

TEST_F(FileSaveTest, FailsOnAFileHeldByAnotherProgram) {
  PutBack("aaa");
  const int held = open(QFile::encodeName(Place()).constData(), O_RDWR);
  ASSERT_EQ(flock(held, LOCK_EX), 0);
  EXPECT_EQ(FailureOf(Save)->trouble, FileTrouble::FileHeld);
  ASSERT_EQ(flock(held, LOCK_UN), 0);
  struct flock whole {};
  whole.l_type = F_WRLCK;
  ASSERT_EQ(fcntl(held, F_OFD_SETLK, &whole), 0);
  EXPECT_EQ(FailureOf(Save)->trouble, FileTrouble::FileHeld);
  close(held);
  EXPECT_EQ(Now(), "aaa");
  EXPECT_EQ(Folder().size(), 1);
  Save();
  EXPECT_EQ(Now(), Saved("aaa"));
}

TEST_F(FileSaveTest, FailsWhileAnotherOneIsUnderWay) {
  PutBack("aaa");
  {
    const FileSave other(Slot().SlotPath);
    EXPECT_EQ(FailureOf(Save)->trouble, FileTrouble::FileHeld);
    EXPECT_EQ(Folder().size(), 2);  // and the other's new file stays
  }
  Save();
  EXPECT_EQ(Now(), Saved("aaa"));
}

TEST_F(FileSaveTest, KeepsTheBytesOfAFileThatIsLinkedToTheNewOnesName) {
  PutBack("aaa");
  WriteBytes(On("c/letter"), "written by hand");
  ASSERT_EQ(link(QFile::encodeName(On("c/letter")).constData(),
                 QFile::encodeName(Place() + QStringLiteral(".new")).constData()),
            0);
  Save();
  EXPECT_EQ(Now(), Saved("aaa"));
  EXPECT_EQ(BytesOf(On("c/letter")), "written by hand");
  EXPECT_EQ(Folder().size(), 1);
}

TEST_F(FileSaveTest, GoesOnFromAFileThatHasTheNewOnesNameToo) {
  PutBack("aaa");
  ASSERT_EQ(link(QFile::encodeName(Place()).constData(),
                 QFile::encodeName(Place() + QStringLiteral(".new")).constData()),
            0);
  Save();
  EXPECT_EQ(Now(), Saved("aaa"));
}

TEST_F(FileSaveTest, NamesWhatIsInTheWayOfTheNewFile) {
  PutBack("aaa");
  const QString place = Place() + QStringLiteral(".new");
  const QString name = QStringLiteral("x.dat.new");
  QDir().mkpath(place);
  EXPECT_EQ(FailureOf(Save), (Failure{.trouble = FileTrouble::FolderInTheWay, .file = name}));
  QDir().rmdir(place);
  WriteBytes(On("c/letter"), "written by hand");
  ASSERT_TRUE(QFile::link(On("c/letter"), place));
  EXPECT_EQ(FailureOf(Save), (Failure{.trouble = FileTrouble::OtherInTheWay, .file = name}));
  EXPECT_EQ(BytesOf(On("c/letter")), "written by hand");
  EXPECT_EQ(Now(), "aaa");
}

TEST_F(FileSaveTest, KeepsTheOldFileWhenAnotherTakesTheNewOnesPlace) {
  PutBack("aaa");
  const QString place = Place() + QStringLiteral(".new");
  {
    const FileSlot slot = Slot();
    FileSave save(slot.SlotPath);
    RecordFile(slot, save).Put(1, "xxx");
    ASSERT_TRUE(QFile::remove(place));
    WriteBytes(place, "another's");
    EXPECT_EQ(FailureOf([&] { save.Commit(); }),
              (Failure{.trouble = FileTrouble::FileHeld, .file = {}}));
  }
  EXPECT_EQ(Now(), "aaa");
  EXPECT_EQ(BytesOf(place), "another's");
}

TEST_F(FileSaveTest, NamesTheTroubleThatTheSystemReports) {
  struct Told {
    int error;
    FileTrouble trouble;
  };
  PutBack("aaa");
  const auto calls = WithDisk({}, Save);
  const auto write = std::find(calls.begin(), calls.end(), "pwrite") - calls.begin();
  for (const Told& told : {
           Told{ENOSPC, FileTrouble::DiskFull    },
           Told{EDQUOT, FileTrouble::DiskFull    },
           Told{EFBIG,  FileTrouble::DiskFull    },
           Told{EROFS,  FileTrouble::DiskReadOnly},
           Told{EIO,    FileTrouble::DiskFails   },
           Told{ENOMEM, FileTrouble::Other       }
  }) {
    PutBack("aaa");
    std::optional<Failure> seen;
    WithDisk({.at = static_cast<int>(write) + 1, .error = told.error},
             [&] { seen = FailureOf(Save); });
    EXPECT_EQ(seen, (Failure{.trouble = told.trouble, .file = {}})) << told.error;
  }
}

TEST_F(FileSaveTest, NamesAMissingFolderAndWhatIsNoFile) {
  const auto read = [] { RecordFile{Slot()}; };
  QDir().mkpath(Place());
  const Failure folder{.trouble = FileTrouble::FolderInTheWay, .file = QStringLiteral("x.dat")};
  EXPECT_EQ(FailureOf(Save), folder);
  EXPECT_EQ(FailureOf(read), folder);
  QDir().rmdir(Place());
  ASSERT_EQ(mkfifo(QFile::encodeName(Place()).constData(), 0644), 0);
  const Failure pipe{.trouble = FileTrouble::OtherInTheWay, .file = QStringLiteral("x.dat")};
  EXPECT_EQ(FailureOf(Save), pipe);
  EXPECT_EQ(FailureOf(read), pipe);
  QDir(On("c/bramlee")).removeRecursively();
  EXPECT_EQ(FailureOf(Save)->trouble, FileTrouble::FolderMissing);
  EXPECT_EQ(FailureOf(read)->trouble, FileTrouble::FolderMissing);
}

TEST_F(FileSaveTest, NeverWritesIntoAFileThatIsLinkedToItsNameMeanwhile) {
  WriteBytes(On("c/letter"), "written by hand");
  const QByteArray letter = QFile::encodeName(On("c/letter"));
  const QByteArray name = QFile::encodeName(Place() + QStringLiteral(".new"));
  const int calls = static_cast<int>(WithDisk({}, Save).size());
  for (int n = 1; n <= calls; ++n) {
    PutBack("aaa");
    unlink(name.constData());
    const auto linkIt = [&](int call) {
      if (call == n && link(letter.constData(), name.constData()) != 0) errno = 0;
    };
    std::optional<Failure> failure;
    WithDisk({.meanwhile = linkIt}, [&] { failure = FailureOf(Save); });
    EXPECT_EQ(Now(), failure ? "aaa" : Saved("aaa")) << "call " << n;
    EXPECT_EQ(BytesOf(On("c/letter")), "written by hand") << "call " << n;
  }
}

/// A program that adds one to the number in the file.
class CountingProgram {
 public:
  explicit CountingProgram(const FileSlot& slot) : slot_(slot) {}

  void Open() {
    if (FailureOf([this] { save_.emplace(slot_.SlotPath); })) save_.reset();
  }
  void Commit() {
    if (!save_) return;
    RecordFile file(slot_, *save_);
    const char number = static_cast<char>(file.Get(1)[0] + 1);
    file.Put(1, QByteArray(3, number));
    if (!FailureOf([this] { save_->Commit(); })) ++done;
    save_.reset();
  }
  int done = 0;

 private:
  FileSlot slot_;
  std::optional<FileSave> save_;
};

TEST_F(FileSaveTest, LosesNothingThatAnotherProgramSavesMeanwhile) {
  for (const bool left : {false, true}) {
    int calls = 40;
    for (int from = 1; from <= calls; ++from) {
      for (int to = from; to <= calls; ++to) {
        PutBack(QByteArray(3, '\0'));
        if (left) WriteBytes(Place() + QStringLiteral(".new"), "of a killed save");
        CountingProgram one(Slot());
        CountingProgram other(Slot());
        const auto meanwhile = [&](int call) {
          if (call == from) other.Open();
          if (call == to) other.Commit();
        };
        calls = static_cast<int>(WithDisk({.meanwhile = meanwhile}, [&] {
                                   one.Open();
                                   one.Commit();
                                 }).size());
        other.Commit();
        EXPECT_EQ(Now()[0], one.done + other.done) << from << " to " << to << " of " << calls;
        EXPECT_GT(one.done + other.done, 0) << from << " to " << to << " of " << calls;
      }
    }
  }
}

}  // namespace
}  // namespace bramlee
