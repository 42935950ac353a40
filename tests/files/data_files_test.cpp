#include "files/data_files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "files/trap.h"
#include "tests/files/faulty_disk.h"
#include "tests/files/temp_drives.h"
#include "tests/files/trap_log.h"
#include "tests/ui/real_boxes.h"

namespace bramlee {
namespace {

const QByteArray kNothingYet;

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

TEST_F(RecordFileTest, ReadsZerosPastTheEnd) {
  PutBack("aaab");
  const RecordFile file(Slot());
  EXPECT_EQ(file.Get(1), "aaa");
  EXPECT_EQ(file.Get(2), QByteArray("b\0\0", 3));
  EXPECT_EQ(file.Get(3), QByteArray("\0\0\0", 3));
  EXPECT_EQ(file.Get(2'000'000'000), QByteArray("\0\0\0", 3));
  EXPECT_EQ(file.Records(), 2);
}

TEST_F(RecordFileTest, ReadsAMissingFileAsEmptyAndDoesNotMakeIt) {
  const RecordFile file(Slot());
  EXPECT_EQ(file.Get(1), QByteArray("\0\0\0", 3));
  EXPECT_EQ(file.Records(), 0);
  EXPECT_TRUE(Folder().isEmpty());
}

TEST_F(RecordFileTest, HasNoRecordBelowOne) {
  const FileSlot slot = Slot();
  FileSave save(slot.SlotPath);
  RecordFile file(slot, save);
  for (const int number : {0, -1, -2'147'483'647}) {
    EXPECT_THROW(file.Get(number), TrappedError);
    EXPECT_THROW(file.Put(number, "xxx"), TrappedError);
  }
}

TEST_F(RecordFileTest, OpenedForReadingTakesNoRecord) {
  PutBack("aaa");
  RecordFile file(Slot());
  EXPECT_THROW(file.Put(1, "xxx"), TrappedError);
  EXPECT_EQ(Now(), "aaa");
}

TEST_F(RecordFileTest, FailsWithoutItsFolder) {
  QDir(On("c/bramlee")).removeRecursively();
  EXPECT_THROW(RecordFile{Slot()}, TrappedError);
  EXPECT_THROW(Save(), TrappedError);
}

TEST_F(RecordFileTest, FailsOnWhatIsNoOrdinaryFile) {
  QDir().mkpath(Place());
  EXPECT_THROW(RecordFile{Slot()}, TrappedError);
  EXPECT_THROW(Save(), TrappedError);
  QDir().rmdir(Place());
  ASSERT_EQ(mkfifo(QFile::encodeName(Place()).constData(), 0644), 0);
  EXPECT_THROW(RecordFile{Slot()}, TrappedError);
  EXPECT_THROW(Save(), TrappedError);
  EXPECT_EQ(Folder(), QStringList());  // a pipe is neither file nor folder, nothing else is left
}

TEST_F(RecordFileTest, TakesTheLowestFreeChannel) {
  const RecordFile one(Slot());
  EXPECT_EQ(FreeChannel(), 2);
  {
    const RecordFile two(Slot());
    EXPECT_EQ(FreeChannel(), 3);
  }
  EXPECT_EQ(FreeChannel(), 2);
}

class FileSaveTest : public RecordFileTest {};

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
  EXPECT_THROW(Save(), TrappedError);
  ASSERT_EQ(flock(held, LOCK_UN), 0);
  struct flock whole {};
  whole.l_type = F_WRLCK;
  ASSERT_EQ(fcntl(held, F_OFD_SETLK, &whole), 0);
  EXPECT_THROW(Save(), TrappedError);
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
    EXPECT_THROW(Save(), TrappedError);
  }
  Save();
  EXPECT_EQ(Now(), Saved("aaa"));
}

/// Runs as an ordinary user, to whom folders and files can be shut. Whether it came to its end
/// without a failure.
bool DoneByAnOrdinaryUser(const std::function<void()>& run) {
  const pid_t child = fork();
  if (child == 0) {
    if (geteuid() == 0 && setuid(65534) != 0) _exit(2);
    _exit(Trap({}, [&](ErrInfo&) { run(); }) ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) < 2);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST_F(FileSaveTest, FailsInAReadOnlyFolderAndOnAReadOnlyFile) {
  PutBack("aaa");
  const QByteArray folder = QFile::encodeName(On("c/bramlee/dba"));
  const QByteArray file = QFile::encodeName(Place());
  ASSERT_EQ(chmod(QFile::encodeName(On("")).constData(), 0755), 0);
  ASSERT_EQ(chmod(file.constData(), 0666), 0);
  ASSERT_EQ(chmod(folder.constData(), 0555), 0);
  EXPECT_FALSE(DoneByAnOrdinaryUser(Save));
  ASSERT_EQ(chmod(folder.constData(), 0777), 0);
  ASSERT_EQ(chmod(file.constData(), 0444), 0);
  EXPECT_FALSE(DoneByAnOrdinaryUser(Save));
  EXPECT_TRUE(DoneByAnOrdinaryUser([] { RecordFile(Slot()).Get(1); }));
  EXPECT_EQ(Now(), "aaa");
  EXPECT_EQ(Folder().size(), 1);
  ASSERT_EQ(chmod(file.constData(), 0666), 0);
  EXPECT_TRUE(DoneByAnOrdinaryUser(Save));
  EXPECT_EQ(Now(), Saved("aaa"));
}

TEST_F(FileSaveTest, FailsWhenTheSystemTakesNoMoreBytes) {
  PutBack("aaa");
  EXPECT_FALSE(DoneByAnOrdinaryUser([] {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit five{.rlim_cur = 5, .rlim_max = 5};
    setrlimit(RLIMIT_FSIZE, &five);
    Save();
  }));
  EXPECT_EQ(Now(), "aaa");
  EXPECT_EQ(Folder().size(), 1);
}

TEST_F(FileSaveTest, ReachesTheDiskBeforeItTakesTheOldFilesPlace) {
  PutBack("aaa");
  const auto calls = WithDisk({}, Save);
  const auto at = [&](const char* name) {
    return std::find(calls.begin(), calls.end(), name) - calls.begin();
  };
  const auto lastWrite = std::find(calls.rbegin(), calls.rend(), "pwrite").base() - calls.begin();
  EXPECT_LE(lastWrite, at("fsync"));
  EXPECT_LT(at("fsync"), at("rename"));
  // Then the folder, which holds the name.
  EXPECT_NE(std::find(calls.begin() + at("rename"), calls.end(), "fsync"), calls.end());
}

TEST_F(FileSaveTest, TakesEffectWholeOrNotAtAllWhereverItFails) {
  for (const QByteArray& old : {kNothingYet, QByteArray("aaa"), QByteArray("aaabbbcccdddeeef")}) {
    PutBack(old);
    const int calls = static_cast<int>(WithDisk({}, Save).size());
    ASSERT_GT(calls, 8);
    int failures = 0;
    for (int n = 1; n <= calls; ++n) {
      for (const int error : {EIO, ENOSPC, EACCES}) {
        PutBack(old);
        bool done = false;
        WithDisk({.at = n, .error = error}, [&] { done = Trap({}, [](ErrInfo&) { Save(); }); });
        EXPECT_EQ(Now(), done ? Saved(old) : old) << "call " << n << " error " << error;
        EXPECT_EQ(Now().isNull(), !done && old.isNull()) << "call " << n << " error " << error;
        if (!done) ++failures;
        Save();
        EXPECT_EQ(Now(), Saved(old)) << "the save after call " << n << " error " << error;
      }
    }
    EXPECT_GT(failures, 10);
  }
}

TEST_F(FileSaveTest, TakesEffectWholeOrNotAtAllWhereverTheProgramIsKilled) {
  for (const QByteArray& old : {kNothingYet, QByteArray("aaa"), QByteArray("aaabbbcccdddeeef")}) {
    PutBack(old);
    const int calls = static_cast<int>(WithDisk({}, Save).size());
    int before = 0;
    int after = 0;
    for (int n = 1; n <= calls; ++n) {
      for (const bool killAfter : {false, true}) {
        PutBack(old);
        ASSERT_TRUE(DiesWithDisk({.at = n, .kill = !killAfter, .killAfter = killAfter}, Save));
        const QByteArray now = Now();
        EXPECT_TRUE(now == Saved(old) || (now == old && now.isNull() == old.isNull()))
            << "call " << n;
        ++(now == old ? before : after);
        Save();
        EXPECT_EQ(Now(), Saved(old)) << "the save after call " << n;
        EXPECT_EQ(Folder().size(), 1);
      }
    }
    EXPECT_GT(before, 0);
    EXPECT_EQ(after > 0, Saved(old) != old);
  }
}

TEST_F(FileSaveTest, SurvivesCallsInterruptedAndHalfDone) {
  PutBack("aaabbbccc");
  WithDisk({.interrupt = true, .byHalves = true}, Save);
  EXPECT_EQ(Now(), Saved("aaabbbccc"));
}

class FileTable : public TempDrives {
 protected:
  static FileSlot Asked(std::int16_t slotNo, std::int16_t* result) {
    FileSlot slot{
        .SlotPath = QStringLiteral("?"), .SlotRecLen = -1, .SlotChannel = 7, .SlotNo = slotNo};
    *result = POP_FILE_DATA(slot);
    return slot;
  }
};

struct Row {
  std::int16_t slot;
  const char* path;
  std::int16_t length;
};

constexpr Row kFilled[] = {
    {0,  "C:\\bramlee\\dba\\biod1v01.dat", 508},
    {2,  "C:\\bramlee\\dba\\kgexpv01.dat", 300},
    {12, "C:\\bramlee\\dba\\errrepv0.dat", 150},
    {18, "C:\\bramlee\\dba\\brmstu1.dat",  600},
};

TEST_F(FileTable, NamesFourFiles) {
  MakeDataFolder();
  for (const Row& row : kFilled) {
    const QString path = QString::fromLatin1(row.path);
    std::int16_t result = 0;
    FileSlot slot = Asked(row.slot, &result);
    EXPECT_EQ(slot.SlotPath, path);
    EXPECT_EQ(slot.SlotRecLen, row.length);
    EXPECT_EQ(slot.SlotChannel, 7);
    EXPECT_EQ(result, 1);
    WriteBytes(SystemPath(path), "x");
    Asked(row.slot, &result);
    EXPECT_EQ(result, 0);
  }
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(FileTable, GivesAnEmptyPathForAnUnfilledSlot) {
  for (std::int16_t no = 0; no < 21; ++no) {
    if (no == 0 || no == 2 || no == 12 || no == 18) continue;
    std::int16_t result = 0;
    const FileSlot slot = Asked(no, &result);
    EXPECT_EQ(slot.SlotPath, QString());
    EXPECT_EQ(slot.SlotRecLen, 0);
    EXPECT_EQ(result, 1);
  }
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(FileTable, EndsAtSlotTwenty) {
  const TrapLog log;
  for (const std::int16_t no : {std::int16_t{21}, std::int16_t{22}, std::int16_t{32767},
                                std::int16_t{-1}, std::int16_t{-32768}}) {
    std::int16_t result = 0;
    Asked(no, &result);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(boxes, QStringList(QStringLiteral("POP_FILE_DATA:ERROR")));
    boxes.clear();
  }
  EXPECT_TRUE(TrapLog::Lines().isEmpty());  // nothing is thrown
}

TEST_F(FileTable, LogsItsTagWhenItCannotTell) {
  const TrapLog log;
  TheEnvironment().tell = [](const QString&) { throw std::bad_alloc(); };
  std::int16_t result = 0;
  Asked(21, &result);
  EXPECT_EQ(result, 1);
  EXPECT_EQ(TrapLog::Tags(), Tags({"602:27"}));
}

TEST_F(FileTable, TellsOfAWrongSlotInARealBox) {
  const auto seen = WithRealBoxes([] {
    std::int16_t result = 0;
    Asked(21, &result);
  });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, QStringLiteral("POP_FILE_DATA:ERROR"));
  EXPECT_EQ(seen[0].spoken, seen[0].text);
  EXPECT_TRUE(seen[0].plain);
}

TEST_F(FileTable, TellsWhetherTheSlotsFileIsMissing) {
  MakeDataFolder();
  EXPECT_EQ(TakeSlot(kCardSlot).SlotChannel, 1);
  EXPECT_EQ(DataFileMissing, 1);
  WriteBytes(On("c/bramlee/dba/brmstu1.dat"), "x");
  TakeSlot(kCardSlot);
  EXPECT_EQ(DataFileMissing, 0);
}

}  // namespace
}  // namespace bramlee
