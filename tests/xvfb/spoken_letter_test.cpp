// The program itself, from its start to a letter that is heard while it is written.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include "tests/media/sound_files.h"
#include "tests/media/sound_rig.h"
#include "tests/xvfb/desktop.h"

namespace bramlee {
namespace {

constexpr double kPitch = 500;  ///< Hz
constexpr int kToneMs = 600;
constexpr QPoint kMiddle(683, 384);
/// On the tile of the capital B, whatever the bars above it take.
constexpr QPoint kTileB(136, 145);
/// Where the sheet begins beside the tiles.
constexpr int kSheetLeft = 400;
/// How long a sound may take to be heard on the busiest machine.
constexpr double kHangMs = 10000;

bool IsInstalled(const char* program) {
  return !QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty();
}

class SpokenLetter : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!SoundServer::IsPossible()) GTEST_SKIP() << "needs pulseaudio and parec";
    if (!IsInstalled("ffmpeg")) GTEST_SKIP() << "needs ffmpeg";
    RecordB();
    server_ = std::make_unique<SoundServer>();
    recorder_ = std::make_unique<Recorder48>();
    program_ = std::make_unique<Program>(
        desktop_, QStringLiteral(BRAMLEE_BINARY_DIR "/app/bramlee"), QStringList{},
        QStringList{QStringLiteral("BRAMLEE_DRIVES=") + drives_.path()});
  }

  void RecordB() const {
    const QDir folder(drives_.filePath(QStringLiteral("c/bramlee/aud/engc")));
    ASSERT_TRUE(folder.mkpath(QStringLiteral(".")));
    QFile wave(drives_.filePath(QStringLiteral("tone.wav")));
    ASSERT_TRUE(wave.open(QIODevice::WriteOnly));
    wave.write(ToneWave(kPitch, kToneMs, 200));
    wave.close();
    ASSERT_EQ(
        QProcess::execute(QStringLiteral("ffmpeg"),
                          {QStringLiteral("-loglevel"), QStringLiteral("error"),
                           QStringLiteral("-i"), wave.fileName(), QStringLiteral("-c:a"),
                           QStringLiteral("wmav2"), folder.filePath(QStringLiteral("eng-b.wma"))}),
        0);
  }

  bool HasWindow(const char* title) const {
    QProcess search;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), desktop_.Name());
    search.setProcessEnvironment(environment);
    search.start(QStringLiteral("xdotool"),
                 {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                  QStringLiteral("--name"), QString::fromLatin1(title)});
    return search.waitForFinished() && search.exitCode() == 0;
  }

  /// Through the start and home forms to the capitals.
  void OpenCapitals() const {
    ASSERT_TRUE(Eventually([this] { return HasWindow("Welcome To BRAMLEE"); }));
    QThread::msleep(500);
    desktop_.Click(kMiddle);
    ASSERT_TRUE(Eventually([this] {
      QThread::msleep(500);
      if (HasWindow("English Capital Letters")) return true;
      desktop_.Key(QStringLiteral("space"));  // the first tile of the home form
      return false;
    }));
    QThread::msleep(500);
  }

  /// How much of the sheet is red.
  int Ink() const {
    const QImage screen = desktop_.Screenshot();
    int red = 0;
    for (int y = 0; y < screen.height(); ++y) {
      for (int x = kSheetLeft; x < screen.width(); ++x) {
        if ((screen.pixel(x, y) & 0xFFFFFF) == 0xFF0000) ++red;
      }
    }
    return red;
  }

  /// The ink once the letter is ready.
  int InkAtEnd() const {
    int last = 0;
    Eventually([this, &last] {
      const int before = last;
      QThread::msleep(1000);
      last = Ink();
      return last > 0 && last == before;
    });
    return last;
  }

  Desktop desktop_;
  QTemporaryDir drives_;
  std::unique_ptr<SoundServer> server_;
  std::unique_ptr<Recorder48> recorder_;
  std::unique_ptr<Program> program_;
};

TEST_F(SpokenLetter, IsHeardWhileItIsWritten) {
  OpenCapitals();
  // At the lowest speed there is time to look at the letter even on the busiest machine.
  for (const char* key : {"alt+f", "Right", "s", "Return", "alt+a", "p"}) {
    desktop_.Key(QString::fromLatin1(key));
  }
  QThread::msleep(1000);
  ASSERT_EQ(Ink(), 0);

  const double clicked = NowMs();
  desktop_.Click(kTileB);
  std::optional<double> heard;
  while (!heard && NowMs() < clicked + kHangMs) {
    heard = recorder_->Until(NowMs()).Between(clicked, NowMs()).FirstSoundMs();
  }
  const int inkWhenHeard = Ink();
  ASSERT_TRUE(heard.has_value()) << "nothing was heard";
  desktop_.Key(QStringLiteral("Escape"));  // has the rest written at once
  const int inkAtEnd = InkAtEnd();
  EXPECT_GT(inkAtEnd, 0);
  EXPECT_LT(inkWhenHeard, inkAtEnd) << "the letter was ready before it was heard";

  const Heard whole = recorder_->Until(NowMs()).Between(clicked, NowMs());
  EXPECT_NEAR(*whole.LastSoundMs() - *heard, kToneMs, 60);
  EXPECT_LT(whole.LongestGapMs(), 5);
  EXPECT_NEAR(whole.PitchAt(*heard + 100), kPitch, 60);
  EXPECT_NEAR(whole.PitchAt(*heard + 400), kPitch, 60);
  RecordProperty("heard_ms_after_click", static_cast<int>(*heard - clicked));
}

}  // namespace
}  // namespace bramlee
