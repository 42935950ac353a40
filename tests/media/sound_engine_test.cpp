#include "media/sound_engine.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QThread>
#include <map>
#include <vector>

#include "tests/media/sound_files.h"

namespace bramlee {
namespace {

/// Long beyond any decoder: only a hang takes it.
constexpr int kHangMs = 60000;

class SoundEngineWithoutDevice : public ::testing::Test {
 protected:
  SoundEngineWithoutDevice() {
    connection_ = QObject::connect(&SoundEngine::Instance(), &SoundEngine::Ended,
                                   [this](int number, SoundEnd end) {
                                     ends[number] = end;
                                     ++told[number];
                                   });
  }
  ~SoundEngineWithoutDevice() override { QObject::disconnect(connection_); }
  SoundEngineWithoutDevice(const SoundEngineWithoutDevice&) = delete;
  SoundEngineWithoutDevice& operator=(const SoundEngineWithoutDevice&) = delete;

  QString Made(const char* name, const QByteArray& bytes) const {
    QFile file(folder.filePath(QString::fromLatin1(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }

  /// Plays the file and waits for its end.
  SoundEnd EndOf(const QString& file) {
    const int number = SoundEngine::Instance().Play(file);
    WaitFor(number);
    return ends[number];
  }

  void WaitFor(int number) {
    QElapsedTimer clock;
    clock.start();
    while (!ends.contains(number) && clock.elapsed() < kHangMs) {
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }
    ASSERT_TRUE(ends.contains(number)) << "it hangs";
  }

  QTemporaryDir folder;
  std::map<int, SoundEnd> ends;
  std::map<int, int> told;

 private:
  QMetaObject::Connection connection_;
};

TEST_F(SoundEngineWithoutDevice, ReportsThatThereIsNone) {
  EXPECT_EQ(EndOf(Made("a.wav", ToneWave(440, 300))), SoundEnd::NoDevice);
}

TEST_F(SoundEngineWithoutDevice, FilesThatAreNoSoundEndSilently) {
  EXPECT_EQ(EndOf(folder.filePath(QStringLiteral("missing.wav"))), SoundEnd::NoSound);
  EXPECT_EQ(EndOf(Made("empty.wav", "")), SoundEnd::NoSound);
  EXPECT_EQ(EndOf(folder.path()), SoundEnd::NoSound);
  QByteArray bytes;
  for (unsigned i = 0; i < 20000; ++i) bytes.append(static_cast<char>(i * i * 31 % 251));
  EXPECT_EQ(EndOf(Made("random.wav", bytes)), SoundEnd::NoSound);
  EXPECT_EQ(EndOf(Made("random.mp3", bytes)), SoundEnd::NoSound);
  EXPECT_EQ(EndOf(Made("random.wma", bytes)), SoundEnd::NoSound);
  EXPECT_EQ(EndOf(Made("track.cda", QByteArray("RIFF$\0\0\0CDDAfmt ", 16))), SoundEnd::NoSound);
}

TEST_F(SoundEngineWithoutDevice, APipeHangsNothing) {
  const QString pipe = folder.filePath(QStringLiteral("p.wav"));
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  EXPECT_EQ(EndOf(pipe), SoundEnd::NoSound);
  EXPECT_EQ(EndOf(Made("a.wav", ToneWave(440, 300))), SoundEnd::NoDevice);
}

TEST_F(SoundEngineWithoutDevice, ATruncatedFilePlaysWhatItHas) {
  const QByteArray whole = ToneWave(440, 1000);
  EXPECT_EQ(EndOf(Made("half.wav", whole.left(whole.size() / 2))), SoundEnd::NoDevice);
  EXPECT_EQ(EndOf(Made("head.wav", whole.left(20))), SoundEnd::NoSound);
}

TEST_F(SoundEngineWithoutDevice, AGoodFileAfterABadOneIsTaken) {
  EXPECT_EQ(EndOf(Made("bad.wav", "this is not a sound")), SoundEnd::NoSound);
  EXPECT_EQ(EndOf(Made("good.wav", ToneWave(440, 300))), SoundEnd::NoDevice);
}

TEST_F(SoundEngineWithoutDevice, EachOfManySoundsEndsOnce) {
  const QString file = Made("a.wav", ToneWave(440, 300));
  std::vector<int> numbers(50);
  for (int& number : numbers) number = SoundEngine::Instance().Play(file);
  WaitFor(numbers.back());
  for (const int number : numbers) {
    WaitFor(number);
    EXPECT_EQ(told[number], 1);
  }
  EXPECT_EQ(ends[numbers.back()], SoundEnd::NoDevice);
}

TEST_F(SoundEngineWithoutDevice, StoppingEndsWhatWasAskedFor) {
  const int number = SoundEngine::Instance().Play(Made("a.wav", ToneWave(440, 300)));
  SoundEngine::Instance().Stop();
  WaitFor(number);
  EXPECT_EQ(ends[number], SoundEnd::CutOff);
}

TEST_F(SoundEngineWithoutDevice, WarmingUpIsHarmless) {
  SoundEngine::Instance().WarmUp();
  SoundEngine::Instance().WarmUp();
  EXPECT_EQ(EndOf(Made("a.wav", ToneWave(440, 300))), SoundEnd::NoDevice);
}

TEST_F(SoundEngineWithoutDevice, ALongFileIsCutOffLikeAShortOne) {
  EXPECT_EQ(EndOf(Made("long.wav", ToneWave(440, 120000))), SoundEnd::NoDevice);
  EXPECT_EQ(EndOf(Made("a.wav", ToneWave(440, 300))), SoundEnd::NoDevice);
}

}  // namespace
}  // namespace bramlee
