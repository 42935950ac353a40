// bramlee-sheets as its users run it: the documents it makes, what it refuses, and what it leaves.
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <csignal>

#include "tests/paper/pdf_reading.h"
#include "tests/tools/run_tool.h"

namespace bramlee {
namespace {

class Sheets : public testing::Test {
 protected:
  QString File() const { return folder_.filePath(QStringLiteral("sheet.pdf")); }
  QStringList Files() const {
    return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
  }

  /// Runs it with these arguments and -o File().
  ToolRun Run(const char* arguments) const {
    return RunTool(QStringLiteral("bramlee-sheets"),
                   QString::fromUtf8(arguments).split(u' ', Qt::SkipEmptyParts) +
                       QStringList{QStringLiteral("-o"), File()});
  }
  int PagesOf(const char* arguments) const {
    const ToolRun run = Run(arguments);
    EXPECT_EQ(run.status, 0) << run.error.constData();
    return InfoOfPdf(File(), QStringLiteral("Pages")).toInt();
  }
  void ExpectError(const char* arguments, const char* error, int status = 2) const {
    const ToolRun run = Run(arguments);
    EXPECT_EQ(run.status, status) << arguments;
    EXPECT_EQ(run.out, "") << arguments;
    EXPECT_EQ(run.error.toStdString(), std::string("bramlee-sheets: ") + error + "\n");
    EXPECT_EQ(Files(), QStringList()) << arguments;
  }

  QTemporaryDir folder_;
};

TEST_F(Sheets, MakesTheCapitals) {
  SKIP_WITHOUT_PDF_TOOLS();
  const ToolRun run =
      Run("engc 1-26 --rows model,dotted,dotted,blank --size 20 --ruling english --paper a4");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out + run.error, "");
  EXPECT_EQ(InfoOfPdf(File(), QStringLiteral("Title")), QStringLiteral("English capital letters"));
  const QString text = TextOfPdf(File());
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    EXPECT_TRUE(text.contains(QStringLiteral("capital %1").arg(QLatin1Char(letter)))) << letter;
  }
  EXPECT_EQ(Files(), QStringList{QStringLiteral("sheet.pdf")});
}

TEST_F(Sheets, MakesAllLettersOfASetWithoutTiles) {
  SKIP_WITHOUT_PDF_TOOLS();
  Run("engs --rows grey --size 10");
  EXPECT_TRUE(TextOfPdf(File()).contains(QStringLiteral("small z")));
  EXPECT_FALSE(BytesOf(File()).isEmpty());
}

TEST_F(Sheets, SaysTheLanguageOfTheLetters) {
  Run("hinc 1");
  EXPECT_TRUE(BytesOf(File()).contains("/Lang (hi)"));
  Run("telv 1");
  EXPECT_TRUE(BytesOf(File()).contains("/Lang (te)"));
}

TEST_F(Sheets, HasLettersOfTheBookUnlessGivenOnesAreAskedFor) {
  SKIP_WITHOUT_PDF_TOOLS();
  // Tile 19 of the capitals is S, which the book makes of two round bows.
  Run("engc 19");
  const QImage book = PageOfPdf(File(), 1, 100);
  Run("engc 19 --book");
  EXPECT_EQ(PageOfPdf(File(), 1, 100), book);
  Run("engc 19 --given");
  EXPECT_NE(PageOfPdf(File(), 1, 100), book);
}

TEST_F(Sheets, MakesWordsNumbersAndSums) {
  SKIP_WITHOUT_PDF_TOOLS();
  EXPECT_EQ(PagesOf("--word Amina"), 1);
  EXPECT_TRUE(TextOfPdf(File()).contains(QStringLiteral("Amina")));
  EXPECT_GT(PagesOf("--numbers 1-20"), 1);
  EXPECT_EQ(PagesOf("--sums add:10"), 2);
  EXPECT_TRUE(TextOfPdf(File(), 2).contains(QStringLiteral("Answers")));
  EXPECT_EQ(PagesOf("--sums add:10 --count 50"), 6);
}

TEST_F(Sheets, ChoosesOtherSumsForAnotherSeed) {
  SKIP_WITHOUT_PDF_TOOLS();
  Run("--sums add:10");
  const QImage first = PageOfPdf(File(), 1, 50);
  Run("--sums add:10 --seed 1");
  EXPECT_EQ(PageOfPdf(File(), 1, 50), first);
  Run("--sums add:10 --seed 2");
  EXPECT_NE(PageOfPdf(File(), 1, 50), first);
}

TEST_F(Sheets, HasThePaperThatIsAskedFor) {
  SKIP_WITHOUT_PDF_TOOLS();
  const auto sizeOf = [this](const char* arguments) {
    Run(arguments);
    return InfoOfPdf(File(), QStringLiteral("Page size"));
  };
  EXPECT_TRUE(sizeOf("engc 1").contains(QStringLiteral("(A4)")));
  EXPECT_TRUE(sizeOf("engc 1 --paper letter").contains(QStringLiteral("(letter)")));
  EXPECT_TRUE(sizeOf("engc 1 --landscape").startsWith(QStringLiteral("842 x 595")));
  EXPECT_TRUE(sizeOf("engc 1 --paper 148x210").startsWith(QStringLiteral("420 x 595")));
}

TEST_F(Sheets, HasWhatTheHeadingIsToSay) {
  SKIP_WITHOUT_PDF_TOOLS();
  Run("engc 1 --name Amina --class LKG --date Monday --author Rao --title Letters");
  EXPECT_TRUE(TextOfPdf(File()).simplified().startsWith(
      QStringLiteral("Name Amina Class LKG Date Monday")));
  EXPECT_EQ(InfoOfPdf(File(), QStringLiteral("Author")), QStringLiteral("Rao"));
  EXPECT_EQ(InfoOfPdf(File(), QStringLiteral("Title")), QStringLiteral("Letters"));
  Run("engc 1 --no-heading");
  EXPECT_FALSE(TextOfPdf(File()).contains(QStringLiteral("Name")));
}

TEST_F(Sheets, OfATileWithoutStrokesSaysSoAndMakesTheOthers) {
  const ToolRun run = Run("hinv 13-15");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "bramlee-sheets: picture has no strokes\n");
}

TEST_F(Sheets, RefuseWhatCannotBePrinted) {
  ExpectError("greek 1", "no board \"greek\": engc engs hinv hinc telv telc mat");
  ExpectError("engc 27", "no tile \"27\": engc has tiles 1 to 26");
  ExpectError("engc 5-2", "no tile \"5-2\": engc has tiles 1 to 26");
  ExpectError("hinv 14", "picture has no strokes");
  ExpectError("engc --size 200",
              "a row of letters 200 mm high takes 313.9 mm, the page has room for 261.5 mm");
  ExpectError("engc 1 --paper 100x30",
              "a row of letters 20 mm high takes 38.8 mm, the page has room for 0 mm");
  ExpectError("--sums add:1", "there are no such sums");
}

TEST_F(Sheets, RefuseArgumentsThatSayNothing) {
  ExpectError("", "nothing is named to print: a set, --word, --numbers, --sums or --book");
  ExpectError("engc 1 --word A", "one of a set, --word, --numbers and --sums at a time");
  ExpectError("engc 1 --book --given", "--book: goes without --given");
  ExpectError("engc 1 --seed 2", "--seed: goes with --sums");
  ExpectError("engc 1 --rows model,striped",
              "--rows: no row \"striped\": model built-up dotted grey hollow blank");
  ExpectError("engc 1 --ruling wavy",
              "--ruling: no ruling \"wavy\": english hindi telugu boxes none");
  ExpectError("engc 1 --size 2", "--size: \"2\" is no number of millimetres from 5 to 300");
  ExpectError("engc 1 --paper a9", "--paper: no paper \"a9\": a4 letter, or as 148x210");
  ExpectError("engc 1 --hand both", "--hand: no hand \"both\": left right");
  ExpectError("--numbers 20-1", "--numbers: \"20-1\" is no range of numbers such as 1-20");
  ExpectError("--sums root:10",
              "--sums: \"root:10\" is no kind with a number such as add:10; kinds are add subtract "
              "multiply divide percent");
  ExpectError("--sums add:10 --count 0", "--count: \"0\" is no number from 1 to 1000");
  ExpectError("--sums add:10 --seed x", "--seed: \"x\" is no number");
  const ToolRun nowhere = RunTool(QStringLiteral("bramlee-sheets"), {QStringLiteral("engc")});
  EXPECT_EQ(nowhere.status, 2);
  EXPECT_EQ(nowhere.error, "bramlee-sheets: no file is named: -o FILE\n");
}

TEST_F(Sheets, SayWhyTheFileCannotBeWritten) {
  const QString file = folder_.filePath(QStringLiteral("no/sheet.pdf"));
  const ToolRun run =
      RunTool(QStringLiteral("bramlee-sheets"),
              {QStringLiteral("engc"), QStringLiteral("1"), QStringLiteral("-o"), file});
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(run.ErrorIsOneLine());
  EXPECT_TRUE(run.error.startsWith("bramlee-sheets: " + file.toUtf8() + ": ")) << run.error.data();
}

TEST_F(Sheets, LeaveTheEarlierFileWhenTheDiskIsFull) {
  Run("engc 1");
  const QByteArray before = BytesOf(File());
  // The shell's limit on a file's size stands for a full disk: a write beyond it fails.
  QProcess process;
  process.start(QStringLiteral("sh"),
                {QStringLiteral("-c"), QStringLiteral("trap '' XFSZ; ulimit -f 8; exec \"$@\""),
                 QStringLiteral("sh"), QStringLiteral(BRAMLEE_BINARY_DIR "/tools/bramlee-sheets"),
                 QStringLiteral("engc"), QStringLiteral("-o"), File()});
  ASSERT_TRUE(process.waitForFinished(-1));
  EXPECT_EQ(process.exitCode(), 1);
  EXPECT_EQ(process.readAllStandardError().count('\n'), 1);
  EXPECT_EQ(BytesOf(File()), before);
  EXPECT_EQ(Files(), QStringList{QStringLiteral("sheet.pdf")});
}

TEST_F(Sheets, StoppedInTheMiddleLeaveNothing) {
  QProcess process;
  process.start(QStringLiteral(BRAMLEE_BINARY_DIR "/tools/bramlee-sheets"),
                {QStringLiteral("--book"), QStringLiteral("-o"), File()});
  process.setReadChannel(QProcess::StandardError);
  QByteArray error;
  while (!error.contains("page 10 of ") && process.waitForReadyRead(-1)) error += process.readAll();
  ASSERT_EQ(::kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
  ASSERT_TRUE(process.waitForFinished(-1));
  EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(process.exitCode(), 1);
  EXPECT_TRUE(process.readAllStandardError().endsWith("bramlee-sheets: cancelled\n"));
  EXPECT_EQ(Files(), QStringList());
}

TEST_F(Sheets, MakeTheBookOfAllLettersAndTellHowFarTheyAre) {
  SKIP_WITHOUT_PDF_TOOLS();
  const ToolRun run = Run("--book --rows blank --size 5");
  EXPECT_EQ(run.status, 0);
  const QString pages = InfoOfPdf(File(), QStringLiteral("Pages"));
  EXPECT_TRUE(run.error.endsWith("page " + pages.toUtf8() + " of " + pages.toUtf8() + "\n"))
      << run.error.constData();
  EXPECT_TRUE(TextOfPdf(File(), 1).contains(QStringLiteral("Telugu consonants")));
}

TEST(SheetsManPage, NamesEveryOptionOfTheHelp) {
  const QByteArray page = ManPage(QStringLiteral("bramlee-sheets.1"));
  const ToolRun help = RunTool(QStringLiteral("bramlee-sheets"), {QStringLiteral("--help")});
  EXPECT_EQ(help.status, 0);
  const QByteArrayList options = OptionsOf(help.out);
  for (const QByteArray& option : options) EXPECT_TRUE(page.contains(option)) << option.constData();
  EXPECT_EQ(options.size(), 24);
}

TEST(SheetsVersion, IsOneLine) {
  const ToolRun run = RunTool(QStringLiteral("bramlee-sheets"), {QStringLiteral("--version")});
  EXPECT_EQ(run.status, 0);
  EXPECT_TRUE(run.out.startsWith("bramlee-sheets "));
  EXPECT_EQ(run.out.count('\n'), 1);
}

}  // namespace
}  // namespace bramlee
