#include "files/data_files.h"

#include <sys/stat.h>

#include "files/trap.h"
#include "tests/files/record_file_test.h"
#include "tests/files/trap_log.h"
#include "tests/ui/real_boxes.h"

namespace bramlee {
namespace {

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

TEST_F(FileTable, LogsItsTagWhenItsMessageFails) {
  const TrapLog log;
  environment.tell = [](const QString&) { throw std::bad_alloc(); };
  std::int16_t result = 0;
  Asked(21, &result);
  EXPECT_EQ(result, 1);
  EXPECT_EQ(TrapLog::Tags(), Tags({"602:27"}));
}

TEST_F(FileTable, ShowsARealBoxForAWrongSlot) {
  const auto seen = WithRealBoxes([] {
    std::int16_t result = 0;
    Asked(21, &result);
  });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, QStringLiteral("POP_FILE_DATA:ERROR"));
  EXPECT_EQ(seen[0].spoken, seen[0].text);
  EXPECT_TRUE(seen[0].plain);
}

TEST_F(FileTable, ReturnsWhetherTheSlotsFileIsMissing) {
  MakeDataFolder();
  EXPECT_EQ(TakeSlot(kCardSlot).SlotChannel, 1);
  EXPECT_EQ(DataFileMissing, 1);
  WriteBytes(On("c/bramlee/dba/brmstu1.dat"), "x");
  TakeSlot(kCardSlot);
  EXPECT_EQ(DataFileMissing, 0);
}

}  // namespace
}  // namespace bramlee
