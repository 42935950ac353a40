// The moving pictures and steps that bramlee-strokes writes.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <csignal>

#include "tests/paper/pdf_reading.h"
#include "tests/tools/run_tool.h"

namespace bramlee {
namespace {

class StrokesFilms : public testing::Test {
 protected:
  /// Runs the tool; a "@" in the arguments stands for the test's folder.
  ToolRun Run(const char* arguments) const {
    return Strokes(QByteArray(arguments).replace("@", folder.path().toUtf8()).constData());
  }
  QStringList There() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }
  QByteArray BytesOf(const char* name) const {
    QFile file(folder.filePath(QString::fromUtf8(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir folder;
};

TEST_F(StrokesFilms, WriteAnSvgThatParses) {
  const ToolRun run = Run("engc 1 --animate svg --size 300 --ink blue --ground none -o @/a.svg");
  EXPECT_EQ(run.status, 0) << run.error.constData();
  EXPECT_EQ(run.out, "");
  QXmlStreamReader svg(BytesOf("a.svg"));
  ASSERT_TRUE(svg.readNextStartElement());
  EXPECT_EQ(svg.attributes().value(QStringLiteral("width")), QStringLiteral("300"));
  while (!svg.atEnd()) svg.readNext();
  EXPECT_FALSE(svg.hasError()) << svg.errorString().toStdString();
  EXPECT_TRUE(BytesOf("a.svg").contains("stroke=\"#0000ff\""));
  EXPECT_FALSE(BytesOf("a.svg").contains("<rect"));
}

TEST_F(StrokesFilms, WriteARangeAndAWholeSetIntoAFolder) {
  EXPECT_EQ(Run("hinc 3-5 --animate svg -o @").status, 0);
  EXPECT_EQ(There(), QStringList({QStringLiteral("hinc-03-ग.svg"), QStringLiteral("hinc-04-घ.svg"),
                                  QStringLiteral("hinc-05-ङ.svg")}));
  const ToolRun run = Run("hinv --animate svg -o @/new");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "bramlee-strokes: left out: picture has no strokes\n");
  EXPECT_EQ(QDir(folder.filePath(QStringLiteral("new"))).entryList(QDir::Files).size(), 27);
}

TEST_F(StrokesFilms, WriteStepsWithTheirNumbers) {
  EXPECT_EQ(Run("hinc 3 --steps --size 200 -o @").status, 0);
  EXPECT_EQ(There(),
            QStringList({QStringLiteral("hinc-03-ग-1.png"), QStringLiteral("hinc-03-ग-2.png"),
                         QStringLiteral("hinc-03-ग-3.png")}));
  EXPECT_EQ(QImage::fromData(BytesOf("hinc-03-ग-3.png")).size(), QSize(200, 200));
}

TEST_F(StrokesFilms, ReplaceFilesOnlyWhenTheyAreToldTo) {
  EXPECT_EQ(Run("engc 1 --animate svg -o @/a.svg").status, 0);
  const ToolRun again = Run("engc 2 --animate svg -o @/a.svg");
  EXPECT_EQ(again.status, 1);
  EXPECT_EQ(again.error, "bramlee-strokes: a.svg is there already: --force replaces it\n");
  EXPECT_TRUE(BytesOf("a.svg").contains("capital A"));
  EXPECT_EQ(Run("engc 2 --animate svg -o @/a.svg --force").status, 0);
  EXPECT_TRUE(BytesOf("a.svg").contains("capital B"));
  EXPECT_EQ(There().size(), 1);
}

TEST_F(StrokesFilms, WriteAWord) {
  EXPECT_EQ(Run("--word Ram --animate svg -o @/ram.svg").status, 0);
  EXPECT_TRUE(BytesOf("ram.svg").contains("<title>Ram</title>"));
  const ToolRun run = Run("--word राम字 --animate svg --head-per-letter -o @/new/");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "bramlee-strokes: left out: 字\n");
  EXPECT_EQ(QDir(folder.filePath(QStringLiteral("new"))).entryList(QDir::Files),
            QStringList{QStringLiteral("word-01-राम.svg")});
  EXPECT_EQ(Run("--word I --steps --size 100 -o @").status, 0);
  EXPECT_EQ(QImage::fromData(BytesOf("word-01-I-1.png")).size(), QSize(100, 100));
  EXPECT_EQ(Run("--word 字 --animate svg -o @/a.svg").status, 2);
}

TEST_F(StrokesFilms, WriteFlashCards) {
  SKIP_WITHOUT_PDF_TOOLS();
  const ToolRun run = Run("hinv 13-21 --cards --ink blue --numbers --paper letter -o @/a.pdf");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "bramlee-strokes: left out: picture has no strokes\n");
  const QString file = folder.filePath(QStringLiteral("a.pdf"));
  EXPECT_EQ(InfoOfPdf(file, QStringLiteral("Pages")), QStringLiteral("1"));
  EXPECT_EQ(InfoOfPdf(file, QStringLiteral("Title")), QStringLiteral("Hindi vowels"));
  EXPECT_TRUE(InfoOfPdf(file, QStringLiteral("Page size")).contains(QStringLiteral("(letter)")));
  EXPECT_TRUE(BytesOf("a.pdf").contains("/Lang (hi)"));
  const ToolRun again = Run("--word Anna --cards -o @/a.pdf");
  EXPECT_EQ(again.error, "bramlee-strokes: a.pdf is there already: --force replaces it\n");
  EXPECT_EQ(Run("--word Anna --cards -o @/a.pdf --force").status, 0);
  EXPECT_EQ(TextOfPdf(file).count(QStringLiteral("Anna")), 1);
  EXPECT_TRUE(InfoOfPdf(file, QStringLiteral("Page size")).contains(QStringLiteral("(A4)")));
  EXPECT_EQ(There(), QStringList{QStringLiteral("a.pdf")});
}

TEST_F(StrokesFilms, SayWhyCardsCannotBeWritten) {
  EXPECT_EQ(Run("hinv 14 --cards -o @/a.pdf").error, "bramlee-strokes: picture has no strokes\n");
  const ToolRun run = Run("engc 1 --cards -o @/no/a.pdf");
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(run.ErrorIsOneLine()) << run.error.constData();
  EXPECT_TRUE(There().isEmpty());
}

TEST_F(StrokesFilms, StoppedInTheMiddleLeaveNothing) {
  if (QStandardPaths::findExecutable(QStringLiteral("ffmpeg")).isEmpty()) GTEST_SKIP();
  QProcess process;
  process.start(QStringLiteral(BRAMLEE_BINARY_DIR "/tools/bramlee-strokes"),
                {QStringLiteral("engc"), QStringLiteral("--animate"), QStringLiteral("gif"),
                 QStringLiteral("-o"), folder.path()});
  process.setReadChannel(QProcess::StandardError);
  QByteArray error;
  while (!error.contains("picture ") && process.waitForReadyRead(-1)) error += process.readAll();
  ASSERT_EQ(::kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
  ASSERT_TRUE(process.waitForFinished(-1));
  EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(process.exitCode(), 1);
  EXPECT_TRUE(process.readAllStandardError().endsWith("bramlee-strokes: cancelled\n"));
  EXPECT_TRUE(There().isEmpty());
}

TEST_F(StrokesFilms, SayWhatIsMissing) {
  EXPECT_EQ(Run("hinv 14 --animate svg -o @/a.svg").error,
            "bramlee-strokes: picture has no strokes\n");
  const ToolRun sound = Run("engc 1 --animate webm --sound Q: -o @/a.webm");
  EXPECT_EQ(sound.status, 1);
  EXPECT_EQ(
      sound.error,
      "bramlee-strokes: --sound: there is no Q:\\bramlee\\aud\\engc\\eng-a.wma, .mp3 or .wav\n");
  EXPECT_EQ(Run("engc 1 --animate svg -o @/no/such/a.svg").status, 1);
  EXPECT_TRUE(There().isEmpty());
}

struct Bad {
  const char* arguments;
  const char* error;
};

class StrokesBadFilms : public testing::TestWithParam<Bad> {};
INSTANTIATE_TEST_SUITE_P(
    Lines, StrokesBadFilms,
    testing::Values(
        Bad{"--animate flv -o a", "--animate: no kind \"flv\": svg gif webm mp4"},
        Bad{"--animate svg", "--output: name a file or a folder to write to"},
        Bad{"--animate svg -o a.gif", "--output: the name of the file has to end in .svg"},
        Bad{"--animate svg --steps -o a.svg", "one of --animate, --steps and --cards at a time"},
        Bad{"--size 10", "--size: goes with --animate, --steps or --cards"},
        Bad{"-o a.svg", "--output: goes with --animate, --steps or --cards"},
        Bad{"--animate svg -o a.svg --size 0", "--size: \"0\" is no whole number from 16 to 4096"},
        Bad{"--animate svg -o a.svg --size 100000",
            "--size: \"100000\" is no whole number from 16 to 4096"},
        Bad{"--animate svg -o a.svg --rate 0", "--rate: \"0\" is no number from 0.01 to 100"},
        Bad{"--animate svg -o a.svg --rate nan", "--rate: \"nan\" is no number from 0.01 to 100"},
        Bad{"--animate svg -o a.svg --ink none", "--ink: \"none\" is no colour"},
        Bad{"--animate svg -o a.svg --ground sky", "--ground: \"sky\" is no colour"},
        Bad{"--animate gif -o a.gif --sound C:", "--sound: goes with --animate webm or mp4"},
        Bad{"--animate mp4 -o a.mp4 --sound C", "--sound: \"C\" is no drive such as C:"},
        Bad{"--animate svg -o a.svg --png a.png",
            "--png: goes without moving pictures, steps and cards"},
        Bad{"--paper letter", "--paper: goes with --animate, --steps or --cards"},
        Bad{"--animate svg -o a.svg --paper letter", "--paper: goes with --cards"},
        Bad{"--cards -o a", "--output: name the file of the cards, which ends in .pdf"},
        Bad{"--cards", "--output: name the file of the cards, which ends in .pdf"},
        Bad{"--cards -o a.pdf --paper a9", "--paper: no paper \"a9\": a4 letter, or as 148x210"},
        Bad{"--cards -o a.pdf --size 100", "--size: goes without --cards"},
        Bad{"--cards -o a.pdf --ground red", "--ground: goes without --cards"}));

TEST_P(StrokesBadFilms, EndWithStatusTwoAndOneLine) {
  const ToolRun run = Strokes((QByteArray("engc 1 ") + GetParam().arguments).constData());
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.error.toStdString(), std::string("bramlee-strokes: ") + GetParam().error + "\n");
}

TEST(StrokesWords, HaveNoSounds) {
  const ToolRun run = Strokes("--word Ram --animate webm --sound C: -o a.webm");
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.error, "bramlee-strokes: --sound: words have none\n");
}

TEST(StrokesRange, HasALineATile) {
  EXPECT_EQ(Strokes("engc 2-4 --step 1").out.count('\n'), 3);
  for (const char* range : {"0-3", "3-27", "4-3", "1-2-3", "1-", "-", "a-b"}) {
    const ToolRun run = Strokes((QByteArray("engc ") + range).constData());
    EXPECT_EQ(run.status, 2) << range;
  }
}

}  // namespace
}  // namespace bramlee
