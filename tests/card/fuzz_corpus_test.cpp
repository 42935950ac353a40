#include "tests/files/temp_drives.h"
#include "tests/fuzz/record_reader.h"

namespace bramlee {
namespace {

class FuzzCorpus : public TempDrives {
 protected:
  FuzzCorpus() { MakeDataFolder(); }
};

TEST_F(FuzzCorpus, LeavesNoDataFileWorse) {
  const QDir corpus(QStringLiteral(BRAMLEE_TEST_DATA "/../fuzz/corpus"));
  const QStringList names = corpus.entryList(QDir::Files);
  ASSERT_GE(names.size(), 10);
  for (const QString& name : names) {
    EXPECT_EQ(TryAsDataFiles(BytesOf(corpus.filePath(name))), QString()) << name.toStdString();
  }
}

TEST_F(FuzzCorpus, ReportsAMissingDataFolder) {
  QDir(On("c/bramlee")).removeRecursively();
  EXPECT_EQ(TryAsDataFiles("x"), QStringLiteral("no data folder"));
}

}  // namespace
}  // namespace bramlee
