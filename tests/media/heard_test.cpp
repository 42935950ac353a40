// What is heard of the player, recorded from a sound server of the tests' own.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>

#include "media/media.h"
#include "media/play_media_file.h"
#include "media/windows_media_player.h"
#include "tests/files/temp_drives.h"
#include "tests/media/sound_files.h"
#include "tests/media/sound_rig.h"
#include "ui/form.h"

namespace bramlee {
namespace {

constexpr double kLow = 500;    ///< Hz
constexpr double kHigh = 1500;  ///< Hz
constexpr double kOffPitch = 60;
/// The bench measures how soon a sound is heard; here it may come as late as on a machine that does
/// many things at once.
constexpr double kHangMs = 20000;
/// After this much silence a sound is over.
constexpr double kOverMs = 300;

class HeardPlayer : public TempDrives {
 protected:
  static void SetUpTestSuite() {
    if (SoundServer::IsPossible()) server_ = std::make_unique<SoundServer>();
  }
  static void TearDownTestSuite() { server_.reset(); }

  void SetUp() override {
    if (!server_) GTEST_SKIP() << "needs pulseaudio and parec";
    recorder_ = std::make_unique<Recorder48>();
    RegisterMedia();
    WriteBytes(On("c/low.wav"), ToneWave(kLow, 600));
    WriteBytes(On("c/high.wav"), ToneWave(kHigh, 600));
  }

  static WindowsMediaPlayer* Player() {
    return LoadForm(QStringLiteral("f1207vid"))
        ->Named<WindowsMediaPlayer>(QStringLiteral("WindowsMediaPlayer1"));
  }

  /// Plays the file and holds the thread, as a letter's strokes do, until the sound is over.
  /// Returns what was heard from the call on.
  Heard PlayAndWrite(const char* file) const {
    const double begin = NowMs();
    PlayMediaFile(QString::fromLatin1(file));
    while (NowMs() < begin + kHangMs) {
      QThread::msleep(50);
      Heard heard = HeardFrom(begin);
      if (heard.LastSoundMs() && heard.EndMs() - *heard.LastSoundMs() > kOverMs) return heard;
    }
    return HeardFrom(begin);
  }

  /// Plays the file and holds the thread until it has been heard for a while. Returns whether it
  /// was.
  bool PlayUntilHeard(const char* file) const {
    const double begin = NowMs();
    PlayMediaFile(QString::fromLatin1(file));
    while (NowMs() < begin + kHangMs) {
      QThread::msleep(50);
      const std::optional<double> first = HeardFrom(begin).FirstSoundMs();
      if (first && NowMs() - *first > kOverMs) return true;
    }
    return false;
  }

  /// Plays the file and holds the thread for that long.
  Heard PlayFor(const char* file, unsigned long ms) const {
    const double begin = NowMs();
    PlayMediaFile(QString::fromLatin1(file));
    QThread::msleep(ms);
    return HeardFrom(begin);
  }

  Heard HeardFrom(double begin) const {
    const double now = NowMs();
    return recorder_->Until(now).Between(begin, now);
  }

  /// `blurMs` is what an encoder may add to the end.
  static void ExpectWholeTone(const Heard& heard, double pitch, double ms, double blurMs = 15) {
    ASSERT_TRUE(heard.FirstSoundMs().has_value()) << "nothing was heard";
    const double first = *heard.FirstSoundMs();
    EXPECT_NEAR(*heard.LastSoundMs() - first, ms, blurMs);
    EXPECT_LT(heard.LongestGapMs(), 5);
    EXPECT_NEAR(heard.PitchAt(first + 30), pitch, kOffPitch);
    EXPECT_NEAR(heard.PitchAt(first + ms - 60), pitch, kOffPitch);
  }

  /// One for all, since this process looks for one once.
  static inline std::unique_ptr<SoundServer> server_;
  std::unique_ptr<Recorder48> recorder_;
};

TEST_F(HeardPlayer, PlaysWholeWhileTheThreadIsHeld) {
  ExpectWholeTone(PlayAndWrite("C:\\low.wav"), kLow, 600);
}

TEST_F(HeardPlayer, PlaysEachFormatWhole) {
  if (QStandardPaths::findExecutable(QStringLiteral("ffmpeg")).isEmpty()) GTEST_SKIP();
  // The silence is for encoders that lose a sound's last instant.
  WriteBytes(On("c/padded.wav"), ToneWave(kLow, 600, 200));
  for (const char* format : {"mp3", "wma"}) {
    const QString target = On("c/tone.") + QString::fromLatin1(format);
    QStringList arguments{QStringLiteral("-loglevel"), QStringLiteral("error"),
                          QStringLiteral("-i"), On("c/padded.wav")};
    if (target.endsWith(QStringLiteral("wma"))) {
      arguments << QStringLiteral("-c:a") << QStringLiteral("wmav2");
    }
    ASSERT_EQ(QProcess::execute(QStringLiteral("ffmpeg"), arguments << target), 0);
    const QByteArray path = QByteArray("C:\\tone.") + format;
    ExpectWholeTone(PlayAndWrite(path.constData()), kLow, 600, 40);
  }
}

TEST_F(HeardPlayer, PlaysTheSameFileAgain) {
  for (int i = 0; i < 6; ++i) {
    SCOPED_TRACE(i);
    ExpectWholeTone(PlayAndWrite("C:\\low.wav"), kLow, 600);
  }
}

TEST_F(HeardPlayer, DoesNotBeginAgainWhenPlayIsCalledWhilePlaying) {
  WriteBytes(On("c/long.wav"), ToneWave(kLow, 2000));
  const double begin = NowMs();
  ASSERT_TRUE(PlayUntilHeard("C:\\long.wav"));
  Player()->Play();
  QThread::msleep(4000);
  ExpectWholeTone(HeardFrom(begin), kLow, 2000);
}

TEST_F(HeardPlayer, CutsOffWhatIsPlaying) {
  WriteBytes(On("c/long.wav"), ToneWave(kLow, 8000));
  ASSERT_TRUE(PlayUntilHeard("C:\\long.wav"));
  const Heard heard = PlayAndWrite("C:\\high.wav");
  ASSERT_TRUE(heard.LastSoundMs().has_value());
  const double end = *heard.LastSoundMs();
  EXPECT_NEAR(heard.PitchAt(end - 60), kHigh, kOffPitch);
  EXPECT_NEAR(heard.PitchAt(end - 500), kHigh, kOffPitch);
}

TEST_F(HeardPlayer, PlaysTheLastOfManyThatAreAskedForAtOnce) {
  for (int i = 0; i < 20; ++i) PlayMediaFile(QStringLiteral("C:\\low.wav"));
  const Heard heard = PlayAndWrite("C:\\high.wav");
  ASSERT_TRUE(heard.LastSoundMs().has_value());
  EXPECT_NEAR(heard.PitchAt(*heard.LastSoundMs() - 60), kHigh, kOffPitch);
}

TEST_F(HeardPlayer, FollowsTheRate) {
  Player()->SetRate(2);
  ExpectWholeTone(PlayAndWrite("C:\\low.wav"), 2 * kLow, 300);
  Player()->SetRate(0.5);
  ExpectWholeTone(PlayAndWrite("C:\\low.wav"), kLow / 2, 1200);
}

TEST_F(HeardPlayer, IsSilentWhileMuted) {
  Player()->SetMute(true);
  EXPECT_EQ(PlayFor("C:\\low.wav", 1500).FirstSoundMs(), std::nullopt);
  Player()->SetMute(false);
  ExpectWholeTone(PlayAndWrite("C:\\low.wav"), kLow, 600);
}

TEST_F(HeardPlayer, FallsSilentWhenMutedMeanwhile) {
  WriteBytes(On("c/long.wav"), ToneWave(kLow, 8000));
  ASSERT_TRUE(PlayUntilHeard("C:\\long.wav"));
  Player()->SetMute(true);
  const double begin = NowMs();
  const Heard heard = recorder_->Until(begin + 3000);
  EXPECT_EQ(heard.Between(begin + 1500, begin + 3000).FirstSoundMs(), std::nullopt);
  EXPECT_NE(heard.Between(begin - 500, begin).FirstSoundMs(), std::nullopt);
}

TEST_F(HeardPlayer, FallsSilentWhenItsFormUnloads) {
  WriteBytes(On("c/long.wav"), ToneWave(kLow, 8000));
  ASSERT_TRUE(PlayUntilHeard("C:\\long.wav"));
  UnloadForm(LoadedForm(QStringLiteral("f1207vid")));
  const double begin = NowMs();
  const Heard after = recorder_->Until(begin + 3000).Between(begin + 1000, begin + 3000);
  EXPECT_EQ(after.FirstSoundMs(), std::nullopt);
  ExpectWholeTone(PlayAndWrite("C:\\high.wav"), kHigh, 600);
}

TEST_F(HeardPlayer, PlaysAGoodFileAfterABadOne) {
  WriteBytes(On("c/bad.wav"), "this is not a sound");
  WriteBytes(On("c/empty.wma"), "");
  for (const char* bad : {"C:\\bad.wav", "C:\\empty.wma", "C:\\missing.mp3"}) {
    SCOPED_TRACE(bad);
    EXPECT_EQ(PlayFor(bad, 500).FirstSoundMs(), std::nullopt);
    ExpectWholeTone(PlayAndWrite("C:\\low.wav"), kLow, 600);
  }
}

TEST_F(HeardPlayer, PlaysWhatATruncatedFileHas) {
  const QByteArray whole = ToneWave(kLow, 600);
  WriteBytes(On("c/half.wav"), whole.left(44 + (whole.size() - 44) / 2));
  ExpectWholeTone(PlayAndWrite("C:\\half.wav"), kLow, 300);
}

TEST_F(HeardPlayer, ShowsAClipAndItsSound) {
  if (QStandardPaths::findExecutable(QStringLiteral("ffmpeg")).isEmpty()) GTEST_SKIP();
  const QStringList arguments{QStringLiteral("-loglevel"),
                              QStringLiteral("error"),
                              QStringLiteral("-f"),
                              QStringLiteral("lavfi"),
                              QStringLiteral("-i"),
                              QStringLiteral("testsrc=d=2:s=160x120"),
                              QStringLiteral("-f"),
                              QStringLiteral("lavfi"),
                              QStringLiteral("-i"),
                              QStringLiteral("sine=f=500:d=2"),
                              On("c/clip.avi")};
  ASSERT_EQ(QProcess::execute(QStringLiteral("ffmpeg"), arguments), 0);
  WriteBytes(On("c/bad.avi"), "this is no clip");
  PlayMediaFile(QStringLiteral("C:\\bad.avi"));
  const double begin = NowMs();
  while (Player()->Playing() && NowMs() < begin + kHangMs) QCoreApplication::processEvents();
  EXPECT_FALSE(Player()->Playing());
  PlayMediaFile(QStringLiteral("C:\\clip.avi"));
  EXPECT_TRUE(Player()->Playing());
  Heard heard = HeardFrom(begin);
  while (NowMs() < begin + kHangMs &&
         !(heard.FirstSoundMs() && heard.EndMs() - *heard.FirstSoundMs() > 1000)) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    heard = HeardFrom(begin);
  }
  ASSERT_TRUE(heard.FirstSoundMs().has_value());
  EXPECT_NEAR(heard.PitchAt(*heard.FirstSoundMs() + 500), kLow, kOffPitch);
}

TEST_F(HeardPlayer, TakesManyCuesInQuickTurns) {
  WriteBytes(On("c/long.wav"), ToneWave(kHigh, 20000));
  WriteBytes(On("c/bad.wav"), "this is not a sound");
  const char* files[] = {"C:\\long.wav", "C:\\bad.wav", "C:\\low.wav", "C:\\high.wav"};
  unsigned long turn = 1;
  for (int i = 0; i < 120; ++i) {
    turn = turn * 1103515245 + 12345;
    PlayMediaFile(QString::fromLatin1(files[turn / 65536 % 4]));
    QThread::msleep(turn / 1048576 % 90);
    if (i % 10 == 9) UnloadForm(LoadedForm(QStringLiteral("f1207vid")));
  }
  QThread::msleep(500);
  ExpectWholeTone(PlayAndWrite("C:\\low.wav"), kLow, 600);
}

TEST_F(HeardPlayer, OutlivesItsSoundServer) {
  PlayFor("C:\\low.wav", 300);
  server_->Kill();
  for (int i = 0; i < 3; ++i) PlayMediaFile(QStringLiteral("C:\\high.wav"));
  QThread::msleep(300);
  server_->Start();
  recorder_ = std::make_unique<Recorder48>();
  // It finds the new one in its own time.
  const double begin = NowMs();
  bool heard = false;
  while (!heard && NowMs() < begin + 30000) {
    QCoreApplication::processEvents();
    heard = PlayFor("C:\\low.wav", 500).FirstSoundMs().has_value();
  }
  EXPECT_TRUE(heard);
}

}  // namespace
}  // namespace bramlee
