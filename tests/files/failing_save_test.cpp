// Saves on a disk that fails, and in programs that are killed.
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <optional>

#include "tests/files/faulty_disk.h"
#include "tests/files/record_file_test.h"

namespace bramlee {
namespace {

const QByteArray kNothingYet;

/// How a run ended.
constexpr int kDone = 100;
constexpr int kNoFileError = 101;

/// Runs as an ordinary user, to whom folders and files can be shut. kDone, or its FileTrouble.
int ByAnOrdinaryUser(const std::function<void()>& run) {
  const pid_t child = fork();
  if (child == 0) {
    if (geteuid() == 0 && setuid(65534) != 0) _exit(kNoFileError);
    const std::optional<Failure> failure = FailureOf(run);
    _exit(failure ? static_cast<int>(failure->trouble) : kDone);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFEXITED(status));
  return WEXITSTATUS(status);
}

int Told(FileTrouble trouble) {
  return static_cast<int>(trouble);
}

TEST_F(FileSaveTest, FailsInAReadOnlyFolderAndOnAReadOnlyFile) {
  PutBack("aaa");
  const QByteArray folder = QFile::encodeName(On("c/bramlee/dba"));
  const QByteArray file = QFile::encodeName(Place());
  ASSERT_EQ(chmod(QFile::encodeName(On("")).constData(), 0755), 0);
  ASSERT_EQ(chmod(file.constData(), 0666), 0);
  ASSERT_EQ(chmod(folder.constData(), 0555), 0);
  EXPECT_EQ(ByAnOrdinaryUser(Save), Told(FileTrouble::FolderReadOnly));
  ASSERT_EQ(chmod(folder.constData(), 0777), 0);
  ASSERT_EQ(chmod(file.constData(), 0444), 0);
  const auto read = [] { RecordFile(Slot()).Get(1); };
  EXPECT_EQ(ByAnOrdinaryUser(Save), Told(FileTrouble::FileReadOnly));
  EXPECT_EQ(ByAnOrdinaryUser(read), kDone);
  ASSERT_EQ(chmod(file.constData(), 0000), 0);
  EXPECT_EQ(ByAnOrdinaryUser(read), Told(FileTrouble::FileUnreadable));
  EXPECT_EQ(Now(), "aaa");
  EXPECT_EQ(Folder().size(), 1);
  ASSERT_EQ(chmod(file.constData(), 0666), 0);
  EXPECT_EQ(ByAnOrdinaryUser(Save), kDone);
  EXPECT_EQ(Now(), Saved("aaa"));
}

TEST_F(FileSaveTest, FailsWhenTheSystemTakesNoMoreBytes) {
  PutBack("aaa");
  for (const char* open : {"", "c/bramlee/dba", "c/bramlee/dba/x.dat"}) {
    ASSERT_EQ(chmod(QFile::encodeName(On(open)).constData(), 0777), 0);
  }
  const auto save = [] {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit five{.rlim_cur = 5, .rlim_max = 5};
    setrlimit(RLIMIT_FSIZE, &five);
    Save();
  };
  EXPECT_EQ(ByAnOrdinaryUser(save), Told(FileTrouble::DiskFull));
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

}  // namespace
}  // namespace bramlee
