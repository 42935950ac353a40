// Several files that change together, whatever happens on the way.
#include "files/file_group.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cerrno>

#include "tests/files/faulty_disk.h"
#include "tests/files/temp_drives.h"

namespace bramlee {
namespace {

class FileGroupTest : public ::testing::Test {
 protected:
  FileGroupTest() { SetBack(); }

  QString At(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }
  QString Root() const { return At("root"); }
  QString Place() const { return At("root/.work"); }

  /// Two files that stand, one that does not.
  void SetBack() const {
    QDir(Root()).removeRecursively();
    QDir().mkpath(Root());
    WriteBytes(At("root/a.wma"), "old a");
    WriteBytes(At("root/b.wma"), "old b");
  }

  /// a becomes another, b goes, c comes.
  void Change() const {
    FileGroup group(Root(), Place());
    WriteFile(group.PlaceFor(QStringLiteral("new a")), "new a");
    WriteFile(group.PlaceFor(QStringLiteral("new c")), "new c");
    group.Put(QStringLiteral("new a"), At("root/a.wma"));
    group.Remove(At("root/b.wma"));
    group.Put(QStringLiteral("new c"), At("root/c.wma"));
    group.Commit();
  }
  void Finish() const { FileGroup::Finish(Root(), Place()); }

  std::string Of(const char* name) const {
    return QFileInfo::exists(At(name)) ? BytesOf(At(name)).toStdString() : "none";
  }
  std::string All() const {
    return Of("root/a.wma") + ", " + Of("root/b.wma") + ", " + Of("root/c.wma");
  }
  bool IsTidy() const { return !QFileInfo::exists(Place()); }

  static constexpr char kOld[] = "old a, old b, none";
  static constexpr char kNew[] = "new a, none, new c";

 private:
  QTemporaryDir folder_;
};

TEST_F(FileGroupTest, ChangesAllAndLeavesNothingBehind) {
  Change();
  EXPECT_EQ(All(), kNew);
  EXPECT_TRUE(IsTidy());
}

TEST_F(FileGroupTest, ChangesNothingWithoutACommit) {
  {
    FileGroup group(Root(), Place());
    WriteFile(group.PlaceFor(QStringLiteral("x")), "x");
    group.Put(QStringLiteral("x"), At("root/a.wma"));
  }
  EXPECT_EQ(All(), kOld);
  EXPECT_TRUE(IsTidy());
}

TEST_F(FileGroupTest, IsAtAnyMomentOldOrNewAndFinishedAsAWholeWhereverItIsKilled) {
  const int calls = static_cast<int>(WithDisk({}, [this] { Change(); }).size());
  ASSERT_GT(calls, 20);
  int oldOnes = 0;
  int newOnes = 0;
  for (int n = 1; n <= calls; ++n) {
    SCOPED_TRACE(n);
    SetBack();
    ASSERT_TRUE(DiesWithDisk({.at = n, .kill = true}, [this] { Change(); }));
    const std::string a = Of("root/a.wma");
    EXPECT_TRUE(a == "old a" || a == "new a") << a;
    Finish();
    EXPECT_TRUE(IsTidy());
    if (All() == kOld)
      ++oldOnes;
    else if (All() == kNew)
      ++newOnes;
    else
      ADD_FAILURE() << All();
  }
  EXPECT_GT(oldOnes, 0);
  EXPECT_GT(newOnes, 0);
}

TEST_F(FileGroupTest, IsFinishedAlsoWhenTheFinishIsKilled) {
  for (int n = 1; n <= 70; n += 7) {
    for (int m = 1; m <= 40; m += 11) {
      SetBack();
      if (!DiesWithDisk({.at = n, .kill = true}, [this] { Change(); })) return;
      DiesWithDisk({.at = m, .kill = true}, [this] { Finish(); });
      Finish();
      EXPECT_TRUE(All() == kOld || All() == kNew) << n << ", " << m << ": " << All();
      EXPECT_TRUE(IsTidy());
    }
  }
}

TEST_F(FileGroupTest, TakesAllBackWhereverTheDiskFails) {
  const int calls = static_cast<int>(WithDisk({}, [this] { Change(); }).size());
  int failures = 0;
  for (int n = 1; n <= calls; ++n) {
    const int error = n % 2 == 0 ? EIO : ENOSPC;
    SCOPED_TRACE(testing::Message() << n << ": " << error);
    SetBack();
    bool failed = false;
    WithDisk({.at = n, .error = error}, [&] {
      try {
        Change();
      } catch (const FileError&) {
        failed = true;
      }
    });
    failures += failed ? 1 : 0;
    Finish();
    const std::string all = All();
    EXPECT_TRUE(all == kOld || (!failed && all == kNew)) << all;
    EXPECT_TRUE(IsTidy());
  }
  EXPECT_GT(failures, calls / 3);
}

TEST_F(FileGroupTest, RefusesAFolderInAFilesPlace) {
  QDir().mkpath(At("root/c.wma"));
  EXPECT_THROW(Change(), FileError);
  EXPECT_EQ(Of("root/a.wma"), "old a");
  EXPECT_EQ(Of("root/b.wma"), "old b");
  EXPECT_TRUE(IsTidy());
}

TEST_F(FileGroupTest, APlanThatIsCutOffChangesNothing) {
  QDir().mkpath(Place());
  WriteBytes(Place() + QStringLiteral("/on"), "new a\told-0\ta.wma\n");
  WriteBytes(Place() + QStringLiteral("/new a"), "new a");
  Finish();
  EXPECT_EQ(All(), kOld);
  EXPECT_TRUE(IsTidy());
}

}  // namespace
}  // namespace bramlee
