#include "files/drives.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QStandardPaths>

#include "files/trap.h"
#include "tests/files/temp_drives.h"
#include "tests/files/trap_log.h"

namespace bramlee {
namespace {

const QString kCard = QStringLiteral("C:\\bramlee\\dba\\brmstu1.dat");

class Drives : public TempDrives {};
class FileMissingOf : public TempDrives {};

TEST_F(Drives, StandForFoldersOfLowerCaseNames) {
  EXPECT_EQ(SystemPath(kCard), On("c/bramlee/dba/brmstu1.dat"));
  EXPECT_EQ(SystemPath(QStringLiteral("D:\\x")), On("d/x"));
  EXPECT_EQ(SystemPath(QStringLiteral("z:/x")), On("z/x"));
}

TEST_F(Drives, LieInTheUsersDataLocationWithoutAGivenFolder) {
  qunsetenv("BRAMLEE_DRIVES");
  EXPECT_EQ(SystemPath(QStringLiteral("C:\\x")),
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                QStringLiteral("/bramlee/drives/c/x"));
}

TEST_F(Drives, MayBeLinks) {
  QDir().mkpath(On("stick/Aud"));
  WriteBytes(On("stick/Aud/a.wav"), "x");
  ASSERT_TRUE(QFile::link(On("stick"), On("d")));
  EXPECT_FALSE(FileMissing(QStringLiteral("D:\\aud\\A.WAV")));
}

TEST_F(Drives, MatchNamesWithoutRegardToCase) {
  QDir().mkpath(On("c/BramLee/DBA"));
  WriteBytes(On("c/BramLee/DBA/BRMSTU1.dat"), "x");
  EXPECT_EQ(SystemPath(kCard), On("c/BramLee/DBA/BRMSTU1.dat"));
  EXPECT_FALSE(FileMissing(kCard));
}

TEST_F(Drives, PreferTheNameAsSpelled) {
  WriteBytes(On("c/A.TXT"), "1");
  WriteBytes(On("c/a.txt"), "2");
  WriteBytes(On("c/A.txt"), "3");
  EXPECT_EQ(SystemPath(QStringLiteral("C:\\a.txt")), On("c/a.txt"));
  EXPECT_EQ(SystemPath(QStringLiteral("C:\\A.txt")), On("c/A.txt"));
  EXPECT_EQ(SystemPath(QStringLiteral("C:\\a.TXT")), On("c/A.TXT"));
}

TEST_F(Drives, AreNotLeftUpwards) {
  WriteBytes(On("secret"), "x");
  WriteBytes(On("c/file"), "x");
  EXPECT_EQ(SystemPath(QStringLiteral("C:\\..\\secret")), On("c/secret"));
  EXPECT_EQ(SystemPath(QStringLiteral("C:\\a\\..\\..\\..\\secret")), On("c/secret"));
  EXPECT_TRUE(FileMissing(QStringLiteral("C:\\..\\secret")));
  EXPECT_TRUE(FileMissing(QStringLiteral("C:..\\secret")));
  EXPECT_FALSE(FileMissing(QStringLiteral("C:\\x\\.\\..\\file")));
}

TEST_F(Drives, KeepACurrentFolderEach) {
  QDir().mkpath(On("c/bramlee"));
  QDir().mkpath(On("d/media"));
  ChDir(QStringLiteral("C:\\bramlee"));
  ChDir(QStringLiteral("D:\\media"));
  EXPECT_EQ(CurDir(), QStringLiteral("C:\\bramlee"));
  EXPECT_EQ(SystemPath(QStringLiteral("x")), On("c/bramlee/x"));
  EXPECT_EQ(SystemPath(QStringLiteral("D:x")), On("d/media/x"));
  EXPECT_EQ(SystemPath(QStringLiteral("\\x")), On("c/x"));
  ChDrive(QStringLiteral("D:"));
  EXPECT_EQ(CurDir(), QStringLiteral("D:\\media"));
  EXPECT_EQ(SystemPath(QStringLiteral("x")), On("d/media/x"));
  ChDir(QStringLiteral("D:\\"));
}

TEST_F(Drives, LeaveTheProcessWhereItIs) {
  const QString before = QDir::currentPath();
  QDir().mkpath(On("c/bramlee"));
  ChDir(QStringLiteral("C:\\bramlee"));
  EXPECT_EQ(QDir::currentPath(), before);
}

TEST_F(Drives, ThatAreNotThereCannotBeTheCurrentOne) {
  EXPECT_THROW(ChDrive(QStringLiteral("Q:")), TrappedError);
  EXPECT_THROW(ChDrive(QStringLiteral("5")), TrappedError);
  EXPECT_THROW(ChDir(QStringLiteral("C:\\nowhere")), TrappedError);
  WriteBytes(On("c/file"), "x");
  EXPECT_THROW(ChDir(QStringLiteral("C:\\file")), TrappedError);
  EXPECT_NO_THROW(ChDrive(QString()));
  EXPECT_EQ(CurDir(), QStringLiteral("C:\\"));
}

TEST_F(Drives, MakeOneFolder) {
  MkDir(QStringLiteral("C:/bramlee"));
  EXPECT_TRUE(QFileInfo(On("c/bramlee")).isDir());
  EXPECT_THROW(MkDir(QStringLiteral("C:/bramlee")), TrappedError);
  EXPECT_THROW(MkDir(QStringLiteral("C:/BRAMLEE")), TrappedError);
  EXPECT_THROW(MkDir(QStringLiteral("C:/a/b")), TrappedError);
  EXPECT_THROW(MkDir(QStringLiteral("Q:/a")), TrappedError);
}

TEST_F(FileMissingOf, AFileIsFalse) {
  WriteBytes(On("c/a.jpg"), {});
  EXPECT_FALSE(FileMissing(QStringLiteral("C:\\a.jpg")));
  EXPECT_FALSE(FileMissing(QStringLiteral("  C:\\a.jpg   ")));
}

TEST_F(FileMissingOf, WhatIsNoFileIsTrue) {
  QDir().mkpath(On("c/folder"));
  ASSERT_TRUE(QFile::link(On("c/gone"), On("c/dangling")));
  ASSERT_TRUE(QFile::link(On("c/round"), On("c/round")));
  WriteBytes(On("c/a.jpg"), "x");
  for (const char* path :
       {"", "   ", "C:", "C:\\", "C:\\folder", "C:\\folder\\", "C:\\dangling", "C:\\round",
        "C:\\gone.jpg", "C:\\?.jpg", "C:\\*", "C:\\*.jpg", "Q:\\a.jpg", "C:\\a.jpg\\b", "a\\b"}) {
    EXPECT_TRUE(FileMissing(QString::fromLatin1(path))) << path;
  }
  EXPECT_TRUE(FileMissing(QStringLiteral("C:\\a.jpg") + QChar(u'\0') + QStringLiteral("b")));
}

TEST_F(FileMissingOf, ANameTooLongToLookAtIsFalse) {
  const TrapLog log;
  EXPECT_FALSE(FileMissing(QStringLiteral("C:\\") + QString(300, u'a')));
  EXPECT_FALSE(FileMissing(QStringLiteral("C:\\") + QStringLiteral("a\\").repeated(3000)));
  EXPECT_TRUE(TrapLog::Lines().isEmpty());  // nothing is thrown
}

TEST_F(FileMissingOf, ANameThatTakesMoreMemoryThanThereIsIsFalseAndLogsTheTag) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizer's memory has no limit";
#endif
  const TrapLog log;
  const QString path = QStringLiteral(" ") + QString(1 << 24, u'a');
  const pid_t child = fork();
  if (child == 0) {
    const rlimit none{.rlim_cur = 0, .rlim_max = 0};
    setrlimit(RLIMIT_AS, &none);
    const bool missing = FileMissing(path);
    _exit(!missing && TrapLog::Tags() == Tags({"com1:14"}) ? 0 : 1);
  }
  int status = -1;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
}

TEST_F(FileMissingOf, AFolderWithoutPermissionIsFalse) {
  QDir().mkpath(On("c/shut"));
  WriteBytes(On("c/shut/a.jpg"), "x");
  ASSERT_EQ(chmod(QFile::encodeName(On("c/shut")).constData(), 0), 0);
  ASSERT_EQ(chmod(QFile::encodeName(On("")).constData(), 0755), 0);
  // Nothing is shut to the superuser, so an ordinary user looks.
  const bool isSuperuser = geteuid() == 0;
  ASSERT_EQ(seteuid(isSuperuser ? 65534 : geteuid()), 0);
  const bool missing = FileMissing(QStringLiteral("C:\\shut\\a.jpg"));
  const bool other = FileMissing(QStringLiteral("C:\\shut\\other.jpg"));
  ASSERT_EQ(seteuid(isSuperuser ? 0 : geteuid()), 0);
  ASSERT_EQ(chmod(QFile::encodeName(On("c/shut")).constData(), 0755), 0);
  EXPECT_FALSE(missing);
  EXPECT_FALSE(other);
}

}  // namespace
}  // namespace bramlee
