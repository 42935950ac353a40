// One's own voice in the place of the maker's.
#include "voice/own_sounds.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <thread>

#include "files/file_group.h"
#include "tests/files/faulty_disk.h"
#include "tests/files/temp_drives.h"
#include "tests/voice/spoken.h"
#include "voice/sound_formats.h"
#include "voice/stick.h"

namespace bramlee {
namespace {

const QString kA = QStringLiteral("engc/eng-a");
const QString kB = QStringLiteral("engc/eng-b");
const QString kAtWork =
    QStringLiteral("The sounds' maker is at work: try again when it has ended.");

SpeechWave Cue(int samples = 9000) {
  SpeechWave cue{.rate = 48000, .samples = {}};
  for (int i = 0; i < samples; ++i) {
    cue.samples.push_back(static_cast<std::int16_t>(std::lround(3000 * std::sin(i * 0.05))));
  }
  return cue;
}

/// A program of that name that stands first in the path as long as this lives.
class StandIn {
 public:
  StandIn(const char* name, const QByteArray& script) : path_(qgetenv("PATH")) {
    const QString file = folder_.filePath(QString::fromLatin1(name));
    WriteBytes(file, "#!/bin/sh\n" + script);
    chmod(QFile::encodeName(file).constData(), 0755);
    qputenv("PATH", QFile::encodeName(folder_.path()) + ":" + path_);
  }
  ~StandIn() { qputenv("PATH", path_); }
  StandIn(const StandIn&) = delete;
  StandIn& operator=(const StandIn&) = delete;

 private:
  QTemporaryDir folder_;
  QByteArray path_;
};

class OwnSoundsTest : public TempDrives {
 protected:
  void SetUp() override {
    if (!HasProgram("ffmpeg")) GTEST_SKIP() << "needs ffmpeg";
    QDir().mkpath(On("c/bramlee/aud/engc"));
    PutMakers();
  }
  void PutMakers() const {
    for (const char* format : kSoundFormats)
      WriteBytes(Aud(kA, format), QByteArray("maker ") + format);
  }
  QString Aud(const QString& sound, const char* format) const {
    return On("c/bramlee/aud/") + sound + u'.' + QString::fromLatin1(format);
  }
  bool IsMakers() const {
    return std::all_of(std::begin(kSoundFormats), std::end(kSoundFormats),
                       [this](const char* format) {
                         return QFileInfo::exists(Aud(kA, format)) &&
                                BytesOf(Aud(kA, format)) == QByteArray("maker ") + format;
                       });
  }
  /// The board's files of a sound in all formats, none of them the maker's.
  bool IsOwn(const QString& sound) const {
    return std::all_of(std::begin(kSoundFormats), std::end(kSoundFormats), [&](const char* format) {
      return QFileInfo(Aud(sound, format)).size() > 100;
    });
  }
  bool HasWork() const { return QFileInfo::exists(On("c/bramlee/aud/own/.work")); }
  OwnSounds Own() const { return OwnSounds(On("c")); }
};

TEST_F(OwnSoundsTest, AreKeptInAllFormatsAndGivenBack) {
  const OwnSounds own = Own();
  EXPECT_EQ(own.Of(kA), VoiceOf::Maker);
  EXPECT_EQ(own.Of(kB), VoiceOf::Nobody);
  EXPECT_EQ(own.Keep(kA, Cue()).toStdString(), "");
  EXPECT_EQ(own.Of(kA), VoiceOf::Own);
  EXPECT_TRUE(IsOwn(kA));
  EXPECT_EQ(BytesOf(Aud(kA, "wav")), WriteWave(Cue()));
  EXPECT_EQ(own.Recorded(), QStringList{kA});
  EXPECT_EQ(own.GiveBack(kA).toStdString(), "");
  EXPECT_EQ(own.Of(kA), VoiceOf::Maker);
  EXPECT_TRUE(IsMakers());
  EXPECT_TRUE(own.Recorded().isEmpty());
  EXPECT_FALSE(HasWork());
}

TEST_F(OwnSoundsTest, TheMakersFileIsKeptAsideOnce) {
  const OwnSounds own = Own();
  EXPECT_EQ(own.Keep(kA, Cue()), QString());
  EXPECT_EQ(own.Keep(kA, Cue(12000)), QString());
  EXPECT_EQ(BytesOf(Aud(kA, "wav")), WriteWave(Cue(12000)));
  EXPECT_EQ(own.GiveBack(kA), QString());
  EXPECT_TRUE(IsMakers());
  EXPECT_EQ(own.GiveBack(kA).toStdString(), "There is no recording of it.");
}

TEST_F(OwnSoundsTest, GivenBackWhereTheMakerMadeNoneLeavesNone) {
  const OwnSounds own = Own();
  EXPECT_EQ(own.Keep(kB, Cue()), QString());
  EXPECT_EQ(own.Keep(kB, Cue(12000)), QString());
  EXPECT_EQ(own.Of(kB), VoiceOf::Own);
  EXPECT_EQ(own.GiveBack(kB), QString());
  EXPECT_EQ(own.Of(kB), VoiceOf::Nobody);
}

TEST_F(OwnSoundsTest, AreMadeOnADriveThatHasNoFoldersYet) {
  QDir().mkpath(On("d"));
  const OwnSounds own(On("d"));
  EXPECT_EQ(own.Keep(QStringLiteral("hin/hinc/hinc-3"), Cue()), QString());
  EXPECT_TRUE(QFileInfo::exists(On("d/bramlee/aud/hin/hinc/hinc-3.wma")));
}

TEST_F(OwnSoundsTest, NamesAreFoundWithoutRegardToCase) {
  QDir().mkpath(On("d/Bramlee/AUD/Engc"));
  WriteBytes(On("d/Bramlee/AUD/Engc/ENG-A.WMA"), "maker");
  const OwnSounds own(On("d"));
  EXPECT_EQ(own.Of(kA), VoiceOf::Maker);
  EXPECT_EQ(own.Keep(kA, Cue()), QString());
  EXPECT_GT(QFileInfo(On("d/Bramlee/AUD/Engc/ENG-A.WMA")).size(), 100);
  EXPECT_FALSE(QFileInfo::exists(On("d/Bramlee/AUD/Engc/eng-a.wma")));
  EXPECT_EQ(own.GiveBack(kA), QString());
  EXPECT_EQ(BytesOf(On("d/Bramlee/AUD/Engc/ENG-A.WMA")), "maker");
  EXPECT_EQ(own.Of(kA), VoiceOf::Maker);
}

// --- what goes wrong

TEST_F(OwnSoundsTest, ADriveThatIsNotThereIsNamed) {
  const OwnSounds own(On("e"));
  EXPECT_EQ(own.Of(kA), VoiceOf::Nobody);
  EXPECT_EQ(own.Keep(kA, Cue()).toStdString(), "The drive is not there.");
  EXPECT_FALSE(QFileInfo::exists(On("e")));
}

TEST_F(OwnSoundsTest, ADiskThatIsFullInTheMiddleOfConversionChangesNothing) {
  const StandIn full("ffmpeg",
                     "for last; do :; done; echo part >\"$last\"\n"
                     "echo \"$last: No space left on device\" >&2; exit 1\n");
  EXPECT_EQ(Own().Keep(kA, Cue()).toStdString(), "The disk is full.");
  EXPECT_TRUE(IsMakers());
  EXPECT_EQ(Own().Of(kA), VoiceOf::Maker);
  EXPECT_FALSE(HasWork());
}

TEST_F(OwnSoundsTest, AnEncoderThatMakesOneFormatOnlyChangesNothing) {
  const StandIn half("ffmpeg", "for last; do :; done; echo part >\"$last\"\n");
  EXPECT_EQ(Own().Keep(kA, Cue()).toStdString(), "ffmpeg made no sound.");
  EXPECT_TRUE(IsMakers());
}

TEST_F(OwnSoundsTest, WithoutFfmpegTheLineSaysWhatToInstall) {
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", QFile::encodeName(On("c")));
  const QString said = Own().Keep(kA, Cue());
  qputenv("PATH", path);
  EXPECT_EQ(said.toStdString(), "ffmpeg is missing: install the package ffmpeg.");
  EXPECT_TRUE(IsMakers());
}

TEST_F(OwnSoundsTest, AFolderInAFilesPlaceChangesNothing) {
  QFile::remove(Aud(kA, "mp3"));
  QDir().mkpath(Aud(kA, "mp3"));
  EXPECT_EQ(Own().Keep(kA, Cue()).toStdString(), "What is in the place of eng-a.mp3 is no file.");
  EXPECT_EQ(BytesOf(Aud(kA, "wma")), "maker wma");
  EXPECT_EQ(Own().Recorded(), QStringList());
}

TEST_F(OwnSoundsTest, WaitWhileTheMakerIsAtWork) {
  const SoundsLock maker(On("c/bramlee/aud"));
  ASSERT_TRUE(maker.Holds());
  EXPECT_EQ(Own().Keep(kA, Cue()), kAtWork);
  EXPECT_TRUE(IsMakers());
}

TEST_F(OwnSoundsTest, OfTwoWindowsAreKeptOneAfterTheOther) {
  std::vector<QString> said(4);
  {
    std::vector<std::jthread> windows;
    for (std::size_t i = 0; i < said.size(); ++i) {
      windows.emplace_back([&, i] {
        do {  // on a busy machine another one's turn may take longer than a window waits
          said[i] = Own().Keep(i % 2 == 0 ? kA : kB, Cue(8000 + static_cast<int>(i)));
        } while (said[i] == kAtWork);
      });
    }
  }
  for (const QString& each : said) EXPECT_EQ(each.toStdString(), "");
  EXPECT_TRUE(IsOwn(kA));
  EXPECT_TRUE(IsOwn(kB));
  EXPECT_EQ(Own().GiveBack(kA), QString());
  EXPECT_TRUE(IsMakers());
}

/// What it says as an ordinary user, to whom folders can be shut.
std::string SaidToAnOrdinaryUser(const std::function<QString()>& run) {
  int ends[2];
  if (pipe(ends) != 0) return "no pipe";
  const pid_t child = fork();
  if (child == 0) {
    if (geteuid() == 0 && setuid(65534) != 0) _exit(1);
    const QByteArray said = run().toUtf8();
    if (write(ends[1], said.constData(), static_cast<std::size_t>(said.size())) < 0) _exit(1);
    _exit(0);
  }
  close(ends[1]);
  std::string said(200, '\0');
  const auto length = read(ends[0], said.data(), said.size());
  close(ends[0]);
  waitpid(child, nullptr, 0);
  said.resize(static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
  return said;
}

TEST_F(OwnSoundsTest, AReadOnlyFolderIsNamed) {
  for (const char* folder : {"", "c", "c/bramlee"}) {
    ASSERT_EQ(chmod(QFile::encodeName(On(folder)).constData(), 0755), 0);
  }
  ASSERT_EQ(chmod(QFile::encodeName(On("c/bramlee/aud")).constData(), 0555), 0);
  const auto keep = [this] { return Own().Keep(kA, Cue()); };
  EXPECT_EQ(SaidToAnOrdinaryUser(keep), "The folder of sounds is read-only.");
  ASSERT_EQ(chmod(QFile::encodeName(On("c/bramlee/aud")).constData(), 0777), 0);
  ASSERT_EQ(chmod(QFile::encodeName(On("c/bramlee/aud/engc")).constData(), 0555), 0);
  EXPECT_EQ(SaidToAnOrdinaryUser(keep), "The folder of sounds is read-only.");
  EXPECT_TRUE(IsMakers());
}

TEST_F(OwnSoundsTest, AreOldOrNewWhereverTheProgramIsKilled) {
  // In the place of the encoder, whose calls are its own.
  const StandIn quick("ffmpeg",
                      "for last; do case $last in *.wma|*.mp3) head -c 500 /dev/zero >\"$last\";; "
                      "esac; done\n");
  const auto keep = [this] { Own().Keep(kA, Cue(300)); };
  const int calls = static_cast<int>(WithDisk({}, keep).size());
  ASSERT_GT(calls, 60);
  int oldOnes = 0;
  int newOnes = 0;
  for (int n = 1; n <= calls; n += 7) {
    SCOPED_TRACE(n);
    QDir(On("c/bramlee/aud/own")).removeRecursively();
    PutMakers();
    ASSERT_TRUE(DiesWithDisk({.at = n, .kill = true}, keep));
    for (const char* format : kSoundFormats)
      EXPECT_GT(QFileInfo(Aud(kA, format)).size(), 0) << format;
    EXPECT_EQ(Own().Finish().toStdString(), "");
    EXPECT_FALSE(HasWork());
    if (IsMakers())
      ++oldOnes;
    else if (IsOwn(kA))
      ++newOnes;
    else
      ADD_FAILURE() << "some files are old, some are new";
    EXPECT_EQ(Own().Of(kA), IsMakers() ? VoiceOf::Maker : VoiceOf::Own);
    if (IsMakers()) continue;
    EXPECT_EQ(Own().GiveBack(kA), QString());
    EXPECT_TRUE(IsMakers());
  }
  EXPECT_GT(oldOnes, 0);
  EXPECT_GT(newOnes, 0);
}

// --- a stick

TEST_F(OwnSoundsTest, GoToAnotherSchoolOnAStick) {
  const QTemporaryDir stick;
  const OwnSounds here = Own();
  const OwnSounds there(On("d"));
  QDir().mkpath(On("d"));
  int steps = 0;
  const auto count = [&](int, int) { ++steps; };
  EXPECT_EQ(CopyToStick(here, stick.path(), count, {}).error.toStdString(),
            "Nothing is recorded yet.");
  EXPECT_EQ(here.Keep(kA, Cue()), QString());
  EXPECT_EQ(here.Keep(QStringLiteral("mat/matc/mat-100"), Cue(7000)), QString());
  EXPECT_EQ(CopyToStick(here, stick.path(), count, {}).sounds, 2);
  EXPECT_TRUE(
      QFileInfo::exists(stick.filePath(QStringLiteral("bramlee-own-voice/engc/eng-a.wav"))));
  WriteBytes(stick.filePath(QStringLiteral("bramlee-own-voice/engc/eng-c.wav")), "no sound");
  WriteBytes(stick.filePath(QStringLiteral("bramlee-own-voice/engc/notes.wav")), WriteWave(Cue()));
  for (const char* place : {"", "bramlee-own-voice"}) {
    const Copied taken =
        TakeFromStick(there, stick.filePath(QString::fromLatin1(place)), count, {});
    EXPECT_EQ(taken.error.toStdString(), "");
    EXPECT_EQ(taken.sounds, 2);
  }
  EXPECT_EQ(steps, 6);
  EXPECT_EQ(there.Recorded(), here.Recorded());
  EXPECT_EQ(BytesOf(On("d/bramlee/aud/engc/eng-a.wav")), WriteWave(Cue()));
}

TEST_F(OwnSoundsTest, AStickThatIsNotThereIsNamed) {
  const auto nothing = [](int, int) {};
  EXPECT_EQ(Own().Keep(kA, Cue()), QString());
  EXPECT_EQ(CopyToStick(Own(), On("nowhere"), nothing, {}).error.toStdString(),
            "There is no such folder.");
  EXPECT_EQ(TakeFromStick(Own(), On("nowhere"), nothing, {}).error.toStdString(),
            "There are no recordings in that folder.");
}

}  // namespace
}  // namespace bramlee
