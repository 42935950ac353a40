// bramlee-sounds as its users run it: what it makes, keeps and refuses.
#include <signal.h>

#include <QThread>

#include "files/drives.h"
#include "tests/tools/decoded.h"
#include "tests/tools/sounds_maker.h"
#include "voice/own_sounds.h"

namespace bramlee {
namespace {

using SweepOfTheSoundsMaker = SoundsMaker;

TEST_F(SweepOfTheSoundsMaker, EveryLettersFilePlaysAtOnceAndEvenlyLoud) {
  ASSERT_EQ(Make("--quiet --sets engc,engs,hinv,hinc,telv,telc,mat").status, 0);
  const QStringList files = Files();
  EXPECT_EQ(files.size(), 3 * 320);
  for (const QString& file : files) {
    const DecodedSound sound(drive.filePath(QStringLiteral("bramlee/aud/") + file));
    SCOPED_TRACE(file.toStdString());
    EXPECT_GE(sound.BeginMs(), 0);
    EXPECT_LE(sound.BeginMs(), 50);
    EXPECT_GE(sound.SpokenMs(), 150);
    EXPECT_LE(sound.SpokenMs(), 7000);
    EXPECT_GE(sound.LevelDb(), -24);
    EXPECT_LE(sound.LevelDb(), -17);
  }
}

TEST_F(SoundsMaker, MakesNumbersInTheFormatThatIsAskedFor) {
  ASSERT_EQ(Make("--quiet --sets matc --numbers 98-101").status, 0);
  EXPECT_EQ(
      Files(),
      (QStringList{QStringLiteral("mat/matc/mat-100.wma"), QStringLiteral("mat/matc/mat-101.wma"),
                   QStringLiteral("mat/matc/mat-98.wma"), QStringLiteral("mat/matc/mat-99.wma")}));
  for (const QString& file : Files()) {
    const DecodedSound number(drive.filePath(QStringLiteral("bramlee/aud/") + file));
    SCOPED_TRACE(file.toStdString());
    EXPECT_GE(number.BeginMs(), 0);
    EXPECT_LE(number.BeginMs(), 50);
    EXPECT_GE(number.SpokenMs(), 300);
    EXPECT_GE(number.LevelDb(), -24);
    EXPECT_LE(number.LevelDb(), -17);
  }
  ASSERT_EQ(Make("--quiet --sets matc --numbers 9999 --number-formats wav,mp3").status, 0);
  EXPECT_EQ(Files().size(), 6);
  const DecodedSound sound(At("mat/matc/mat-9999.wav"));
  EXPECT_GT(sound.SpokenMs(), 2000);
}

TEST_F(SoundsMaker, NeverReplacesAVoiceThatWasRecordedInTheProgram) {
  ASSERT_EQ(Make("--quiet --sets mat --formats wma,wav").status, 0);
  const SpeechWave voice{.rate = 48000, .samples = std::vector<std::int16_t>(9000, 3000)};
  const OwnSounds own(drive.path());
  ASSERT_EQ(own.Keep(QStringLiteral("mat/mat-3"), voice).toStdString(), "");
  const QByteArray wma = Bytes("mat/mat-3.wma");
  ASSERT_EQ(Make("--quiet --sets mat --formats wma,mp3,wav --overwrite").status, 0);
  EXPECT_EQ(Bytes("mat/mat-3.wma"), wma);
  EXPECT_EQ(Bytes("mat/mat-3.wav"), WriteWave(voice));
  ASSERT_EQ(own.GiveBack(QStringLiteral("mat/mat-3")).toStdString(), "");
  EXPECT_NE(Bytes("mat/mat-3.wma"), wma);
  EXPECT_GT(Bytes("mat/mat-3.wma").size(), 1000);
}

TEST_F(SoundsMaker, KeepsRecordingsOfOnesOwn) {
  Put("engc/eng-a.wav", "my own voice");
  Put("engc/eng-b.wav", "");
  ASSERT_EQ(Make("--quiet --sets engc --formats wav").status, 0);
  EXPECT_EQ(Bytes("engc/eng-a.wav"), "my own voice");
  EXPECT_TRUE(Bytes("engc/eng-b.wav").startsWith("RIFF")) << "an empty file is nobody's";
  EXPECT_EQ(Files().size(), 26);
  ASSERT_EQ(Make("--quiet --sets engc --formats wav --overwrite").status, 0);
  EXPECT_TRUE(Bytes("engc/eng-a.wav").startsWith("RIFF"));
  EXPECT_EQ(Files().size(), 26);
}

TEST_F(SoundsMaker, MatchesNamesWithoutRegardToCase) {
  ASSERT_TRUE(QDir().mkpath(drive.filePath(QStringLiteral("BRAMLEE/Aud/ENGC"))));
  QFile own(drive.filePath(QStringLiteral("BRAMLEE/Aud/ENGC/Eng-A.WAV")));
  ASSERT_TRUE(own.open(QIODevice::WriteOnly));
  own.write("my own voice");
  own.close();
  ASSERT_EQ(Make("--quiet --sets engc --formats wav").status, 0);
  EXPECT_FALSE(QFileInfo::exists(drive.filePath(QStringLiteral("bramlee"))));
  const QStringList files = QFileInfo(own).dir().entryList(QDir::Files);
  EXPECT_EQ(files.size(), 26);
  EXPECT_FALSE(files.contains(QStringLiteral("eng-a.wav")));
  EXPECT_EQ(own.size(), 12);
}

TEST_F(SoundsMaker, WritesWhereTheProgramLooksWhenNamesDifferInCaseOnly) {
  const QTemporaryDir drives;
  for (const char* folder :
       {"BRAMLEE/AUD", "Bramlee/aud", "BRAMLEE/Aud", "BRAMLEE/AUD/MAT", "BRAMLEE/AUD/Mat"}) {
    ASSERT_TRUE(QDir().mkpath(drives.filePath(QStringLiteral("c/") + QString::fromLatin1(folder))));
  }
  const QString c = drives.filePath(QStringLiteral("c"));
  for (const char* file : {"MAT-1.wav", "Mat-1.wav"}) {
    QFile empty(c + QStringLiteral("/BRAMLEE/AUD/MAT/") + QString::fromLatin1(file));
    ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
  }
  const ToolRun run =
      Sounds({QStringLiteral("--quiet"), QStringLiteral("--sets"), QStringLiteral("mat"),
              QStringLiteral("--formats"), QStringLiteral("wav"), c});
  ASSERT_EQ(run.status, 0) << run.error.toStdString();
  qputenv("BRAMLEE_DRIVES", QFile::encodeName(drives.path()));
  for (int tile = 1; tile <= 17; ++tile) {
    const QString sound = SystemPath(QStringLiteral("C:\\bramlee\\aud\\mat\\mat-%1.wav").arg(tile));
    EXPECT_GT(QFileInfo(sound).size(), 0) << sound.toStdString();
  }
  qunsetenv("BRAMLEE_DRIVES");
}

TEST_F(SoundsMaker, LeavesWholeFilesWhenStoppedAndGoesOnNextTime) {
  QProcess maker;
  maker.start(QStringLiteral(BRAMLEE_BINARY_DIR "/tools/bramlee-sounds"),
              {QStringLiteral("--quiet"), QStringLiteral("--sets"), QStringLiteral("matc"),
               QStringLiteral("--numbers"), QStringLiteral("0-150"),
               QStringLiteral("--number-formats"), QStringLiteral("wav"), drive.path()});
  ASSERT_TRUE(maker.waitForStarted());
  while (!QFileInfo::exists(At("mat/matc/mat-3.wav")) && maker.state() == QProcess::Running) {
    maker.waitForFinished(5);
  }
  maker.kill();
  maker.waitForFinished();
  QThread::msleep(300);  // the speech it had begun
  const QDir made(At("mat/matc"));
  const QStringList before = made.entryList(QDir::Files);
  EXPECT_FALSE(before.isEmpty());
  for (const QString& file : before) {
    EXPECT_GT(DecodedSound(made.filePath(file)).SpokenMs(), 100) << file.toStdString();
  }
  ASSERT_EQ(Make("--quiet --sets matc --numbers 0-150 --number-formats wav").status, 0);
  EXPECT_EQ(Files().size(), 151) << "nor is anything else left";
  EXPECT_EQ(QDir(At("")).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList{QStringLiteral("mat")});
}

TEST_F(SoundsMaker, DoesTheWorkOnceWhenTwoRun) {
  QProcess first;
  first.start(QStringLiteral(BRAMLEE_BINARY_DIR "/tools/bramlee-sounds"),
              {QStringLiteral("--quiet"), QStringLiteral("--sets"), QStringLiteral("matc"),
               QStringLiteral("--numbers"), QStringLiteral("0-99"), drive.path()});
  ASSERT_TRUE(first.waitForStarted());
  while (!QFileInfo::exists(At(".bramlee-sounds.lock")) && first.state() == QProcess::Running) {
    first.waitForFinished(1);
  }
  const ToolRun second = Make("--quiet --sets matc --numbers 0-99");
  EXPECT_EQ(second.status, 1);
  EXPECT_EQ(second.error, "bramlee-sounds: another maker is at work there\n");
  ASSERT_TRUE(first.waitForFinished(-1));
  EXPECT_EQ(first.exitCode(), 0);
  EXPECT_EQ(Files().size(), 100);
}

TEST_F(SoundsMaker, PrintsItsProgress) {
  const ToolRun run = Make("--sets mat --formats wav");
  EXPECT_EQ(run.status, 0);
  EXPECT_TRUE(run.error.endsWith("bramlee-sounds: 17 of 17\n")) << run.error.toStdString();
  EXPECT_EQ(Make("--quiet --sets mat --formats wav").error, "");
}

TEST_F(SoundsMaker, ReportsInOneLineWhatItCannotMake) {
  Put("mat", "a file where a folder is wanted");
  const ToolRun run = Make("--quiet --sets mat --formats wav");
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(run.ErrorIsOneLine()) << run.error.toStdString();
}

TEST_F(SoundsMaker, SpeaksOwnTables) {
  const QTemporaryDir tables;
  QFile table(tables.filePath(QStringLiteral("mat.tsv")));
  ASSERT_TRUE(table.open(QIODevice::WriteOnly));
  table.write("voice\ten-gb\nspeed\t120\n11\t+\tand\n");
  table.close();
  const QByteArray arguments =
      "--quiet --sets mat --formats wav --tables " + tables.path().toUtf8();
  ASSERT_EQ(Make(arguments.constData()).status, 0);
  EXPECT_EQ(Files(), QStringList{QStringLiteral("mat/mat-11.wav")});
}

TEST_F(SoundsMaker, MakesTheOtherSoundsWhenAVoiceIsMissing) {
  const QTemporaryDir tables;
  QFile table(tables.filePath(QStringLiteral("mat.tsv")));
  ASSERT_TRUE(table.open(QIODevice::WriteOnly));
  table.write("voice\tklingon-x\nspeed\t120\n11\t+\tplus\nvoice\ten-gb\n12\t-\tminus\n");
  table.close();
  const QByteArray arguments = "--quiet --sets mat --tables " + tables.path().toUtf8();
  const ToolRun run = Make(arguments.constData());
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(run.error.contains("3 could not be made")) << run.error.toStdString();
  EXPECT_EQ(Files().size(), 3);
}

TEST(SoundsMakerArguments, AreRefusedInOneLineWhenWrong) {
  const QString here = QDir::tempPath();
  for (const QStringList& arguments : {
           QStringList{                            },
           QStringList{                                                     here,                         here},
           QStringList{                                                    QStringLiteral("--sets"), QStringLiteral("engc,greek"), here},
           QStringList{                                                QStringLiteral("--sets"),      QString(), here},
           QStringList{QStringLiteral("--formats"),                             QStringLiteral("ogg"), here},
           QStringList{                                                           QStringLiteral("--numbers"),                         QStringLiteral("5-1"), here},
           QStringList{                                                                            QStringLiteral("--numbers"),QStringLiteral("0-10000"), here},
           QStringList{                               QStringLiteral("--numbers"),   QStringLiteral("-3"), here},
           QStringList{QStringLiteral("--jobs"),                             QStringLiteral("0"), here},
           QStringList{                       QStringLiteral("--tables"),                         QStringLiteral("/nonexistent"), here},
           QStringList{                                                                            QStringLiteral("--no-such-option"),here},
           QStringList{                             QStringLiteral("/nonexistent/drive")   },
           QStringList{QStringLiteral("--phonemes"),                             here},
  }) {
    const ToolRun run = Sounds(arguments);
    EXPECT_EQ(run.status, 2) << arguments.join(u' ').toStdString();
    EXPECT_TRUE(run.ErrorIsOneLine()) << run.error.toStdString();
    EXPECT_EQ(run.out, "");
  }
}

TEST(SoundsMakerArguments, PrintHelpAndVersion) {
  const ToolRun help = Sounds({QStringLiteral("--help")});
  EXPECT_EQ(help.status, 0);
  for (const char* option : {"--sets", "--formats", "--numbers", "--number-formats", "--tables",
                             "--jobs", "--overwrite", "--phonemes", "--quiet", "DRIVE"}) {
    EXPECT_TRUE(help.out.contains(option)) << option;
  }
  EXPECT_EQ(Sounds({QStringLiteral("--version")}).out, "bramlee-sounds 1.0.0\n");
}

}  // namespace
}  // namespace bramlee
