// bramlee-strokes as its users run it: what it prints and what it refuses.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <map>

#include "letters/letter_sets.h"
#include "strokes/letter.h"
#include "strokes/word.h"
#include "tests/golden_strokes.h"
#include "tests/tools/run_tool.h"

namespace bramlee {
namespace {

QByteArrayList LinesOf(const ToolRun& run) {
  QByteArrayList lines = run.out.split('\n');
  EXPECT_EQ(lines.takeLast(), QByteArray());  // the last line ends like the others
  return lines;
}

TEST(Strokes, ArePrintedAsOneObjectALine) {
  const ToolRun run = Strokes("engc 12");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
  EXPECT_EQ(run.out,
            "{\"board\":\"engc\",\"tile\":12,\"alt\":0,\"step\":0.01,\"strokes\":["
            "{\"run\":\"LineDown\",\"args\":[1025,150,350],\"dots\":20001},"
            "{\"run\":\"LineRight\",\"args\":[1025,350,1175],\"dots\":15001}],"
            "\"last\":[0,0,0,0]}\n");
}

TEST(Strokes, NamePlaceAndForm) {
  const ToolRun run = Strokes("mat 1 --alt --place 5 --step 1");
  EXPECT_EQ(run.out,
            "{\"board\":\"mat\",\"tile\":1,\"alt\":1,\"place\":5,\"step\":1,\"strokes\":["
            "{\"run\":\"LineDown\",\"args\":[1225,325,475],\"dots\":151}],\"last\":[0,0,0,0]}\n");
}

/// The report of a line without what it says of the book.
QByteArray WithoutBook(QByteArray line) {
  return line.replace("\"book\":0,", "").replace("\"book\":1,", "");
}

TEST(Strokes, OfTheBookAreThoseOfItsLetters) {
  const QByteArray book = Strokes("hinc 17 --book --step 1").out;
  EXPECT_TRUE(book.startsWith(
      "{\"board\":\"hinc\",\"tile\":17,\"alt\":0,\"book\":1,\"step\":1,\"strokes\":["))
      << book.left(80).constData();
  EXPECT_NE(WithoutBook(book), Strokes("hinc 17 --step 1").out);
  const Letter& letter = LetterOf({.set = "hinc", .tile = 17, .form = {.book = true}});
  EXPECT_EQ(ParseTile(book).strokes.size(), letter.Runs().size());
}

TEST(Strokes, OfTheBookAreTheGivenOnesWhereItHasNoOthers) {
  EXPECT_EQ(WithoutBook(Strokes("hinc 1 --book").out), Strokes("hinc 1").out);
  EXPECT_TRUE(Strokes("hinc 1 --book --step 1").out.contains("\"book\":0,"));
}

TEST(Strokes, AreTheGivenOnesUnlessTheBookIsAskedFor) {
  EXPECT_EQ(Strokes("hinc 17 --given").out, Strokes("hinc 17").out);
}

TEST(Strokes, OfATileThatWritesNothingAreAnEmptyList) {
  const ToolRun run = Strokes("hinv 14");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out,
            "{\"board\":\"hinv\",\"tile\":14,\"alt\":0,\"step\":0.01,\"strokes\":[],"
            "\"last\":[0,0,0,0]}\n");
}

TEST(Strokes, ArePrintedInTheShortestNumbersThatReadTheSame) {
  for (const QByteArray& line : LinesOf(Strokes("telc --step 0.1"))) {
    const QByteArray last = line.mid(line.indexOf("\"last\":[") + 8).chopped(2);
    for (const QByteArray& number : last.split(',')) {
      const double value = number.toDouble();
      for (int digits = 1; digits < 17; ++digits) {
        const QByteArray shorter = QByteArray::number(value, 'g', digits);
        if (shorter.toDouble() != value) continue;
        EXPECT_LE(number.size(), shorter.size()) << number.constData();
        break;
      }
    }
  }
}

class StrokesOf : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(Boards, StrokesOf,
                         testing::Values("engc", "engs", "hinv", "hinc", "telv", "telc", "mat"),
                         [](const auto& board) { return std::string(board.param); });

/// All lines that a board can be asked for at a step.
QByteArrayList EveryLine(const LetterSet& set, const QString& step) {
  const QString board = QString::fromStdString(std::string(set.name));
  const auto ask = [&](const QStringList& more) {
    return LinesOf(RunTool(QStringLiteral("bramlee-strokes"),
                           QStringList{board, QStringLiteral("--step"), step} + more));
  };
  QByteArrayList lines = ask({});
  for (const bool alt : {false, true}) {
    const QStringList form = alt ? QStringList{QStringLiteral("--alt")} : QStringList{};
    if (alt && set.secondForms.empty()) continue;
    if (alt) lines += ask(form);
    for (int place = 1; place <= 5 && set.digits != 0; ++place) {
      lines += ask(form + QStringList{QStringLiteral("--place"), QString::number(place)});
    }
  }
  return lines;
}

void ExpectGolden(const char* board, const char* step, const char* stepMark) {
  const LastDots lastDots;
  const QByteArrayList golden = GoldenLines(std::string(board) + stepMark + ".jsonl");
  QByteArrayList told = EveryLine(*FindLetterSet(board), QString::fromLatin1(step));
  ASSERT_FALSE(golden.isEmpty());
  ASSERT_EQ(told.size(), golden.size());
  std::map<std::string, ToldTile> byName;
  for (const QByteArray& line : told) {
    EXPECT_TRUE(QJsonDocument::fromJson(line).isObject()) << line.constData();
    const ToldTile tile = ParseTile(line);
    byName[tile.Name()] = tile;
  }
  for (const QByteArray& line : golden) {
    const ToldTile tile = ParseTile(line);
    EXPECT_EQ(Difference(tile, byName[tile.Name()], lastDots), "") << tile.Name();
  }
}

TEST_P(StrokesOf, AreTheGoldenOnesAtStepOne) {
  ExpectGolden(GetParam(), "1", "-step1");
}

TEST_P(StrokesOf, AreTheGoldenOnesAtTheDefaultStep) {
  ExpectGolden(GetParam(), "0.01", "");
}

TEST_P(StrokesOf, StartFromZeroRegistersForEachTile) {
  const QByteArray board(GetParam());
  const QByteArrayList all = LinesOf(Strokes(board + " --step 1"));
  ASSERT_EQ(all.size(), FindLetterSet(GetParam())->tiles);
  for (const int tile : {1, 7, static_cast<int>(all.size())}) {
    const QByteArray asked = board + ' ' + QByteArray::number(tile) + " --step 1";
    EXPECT_EQ(Strokes(asked).out, all.at(tile - 1) + '\n');
  }
}

TEST(Strokes, ArePrintedAtTheDefaultStepWhenNoneIsAskedFor) {
  EXPECT_EQ(Strokes("engs 1").out, Strokes("engs 1 --step 0.01").out);
}

TEST(Strokes, OfAPlaceAreThoseOfTheDigits) {
  EXPECT_EQ(LinesOf(Strokes("mat --place 2 --step 1")).size(), 10);
  EXPECT_EQ(LinesOf(Strokes("mat --step 1")).size(), 17);
}

TEST(Strokes, PlotOneDotAtAStepBeyondTheSheet) {
  const ToldTile tile = ParseTile(Strokes("engc 12 --step 1e300").out);
  ASSERT_EQ(tile.strokes.size(), 2U);
  for (const ToldStroke& stroke : tile.strokes) EXPECT_EQ(stroke.dots, 1);
}

TEST(PenStrokes, ArePrintedAsOneObject) {
  const ToolRun run = Strokes("mat 1 --alt --place 5 --pen-strokes");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
  EXPECT_TRUE(
      run.out.startsWith("{\"set\": \"mat\", \"tile\": 1, \"box\": [1225, 325, 0, 150], "
                         "\"strokes\": [{\"points\": [[1225, 325], [1225, 326], "))
      << run.out.left(200).constData();
  EXPECT_TRUE(run.out.endsWith("[1225, 475]], \"length\": 150, \"closed\": false}]}\n"))
      << run.out.right(100).constData();
}

TEST(PenStrokes, OfATileThatWritesNothingAreAnEmptyList) {
  EXPECT_EQ(Strokes("hinv 14 --pen-strokes").out,
            "{\"set\": \"hinv\", \"tile\": 14, \"box\": [0, 0, 0, 0], \"strokes\": []}\n");
}

TEST(PenStrokes, AreMovementsOfTheHandInWritingOrder) {
  const QJsonObject b = QJsonDocument::fromJson(Strokes("engc 2 --pen-strokes").out).object();
  const QJsonArray strokes = b.value(QLatin1String("strokes")).toArray();
  const Letter& letter = LetterOf({.set = "engc", .tile = 2, .form = {}});
  ASSERT_EQ(strokes.size(), static_cast<int>(letter.PenStrokes().size()));
  ASSERT_LT(letter.PenStrokes().size(), letter.Runs().size());
  for (int i = 0; i < strokes.size(); ++i) {
    const StrokePath& path = letter.Shape().strokes.at(static_cast<std::size_t>(i));
    const QJsonArray points = strokes.at(i)[QLatin1String("points")].toArray();
    ASSERT_EQ(points.size(), static_cast<int>(path.points.size()));
    EXPECT_NEAR(points.last()[0].toDouble(), path.points.back().x, 1e-3);
    EXPECT_NEAR(points.last()[1].toDouble(), path.points.back().y, 1e-3);
    EXPECT_NEAR(strokes.at(i)[QLatin1String("length")].toDouble(), path.length, 1e-3);
    EXPECT_EQ(strokes.at(i)[QLatin1String("closed")].toBool(), path.closed);
  }
}

TEST(PenStrokes, OfTheBookAreThoseOfItsLetters) {
  const Letter& letter = LetterOf({.set = "hinc", .tile = 17, .form = {.book = true}});
  const auto strokes = QJsonDocument::fromJson(Strokes("hinc 17 --book --pen-strokes").out)
                           .object()
                           .value(QLatin1String("strokes"))
                           .toArray();
  EXPECT_EQ(strokes.size(), static_cast<int>(letter.PenStrokes().size()));
  EXPECT_NE(Strokes("hinc 17 --book --pen-strokes").out, Strokes("hinc 17 --pen-strokes").out);
}

TEST(PenStrokes, ArePrintedForEveryTileWhenNoneIsNamed) {
  EXPECT_EQ(LinesOf(Strokes("engc --pen-strokes")).size(), 26);
  EXPECT_EQ(LinesOf(Strokes("mat --place 2 --pen-strokes")).size(), 10);
}

class BadArguments : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(
    Lines, BadArguments,
    testing::Values("", "engx", "ENGC", "engc 0", "engc 27", "engc -1", "engc 1.5", "engc 1x",
                    "engc one", "engc 99999999999", "engc 1 2", "engc --alt", "engs --alt",
                    "telv --alt", "telc 1 --alt", "engc 1 --place 1", "hinc --place 2",
                    "mat 11 --place 1", "mat 1 --place 0", "mat 1 --place 6", "mat 1 --place x",
                    "mat 1 --place 2.5", "mat 1 --place", "engc --step 0", "engc --step -1",
                    "engc --step -0", "engc --step x", "engc --step 1x", "engc --step",
                    "engc --step nan", "engc --step inf", "engc --step 1e999", "engc --step 1e-9",
                    "engc --step 1e-300", "engc --step 0x1", "engc --bogus", "engc --book --given",
                    "engc -x", "--step 1", "engc --svg a.svg", "engc --png a.png",
                    "mat --place 1 --png a.png", "engc 1 --svg", "engc 1 --scale 2",
                    "engc 1 --svg a.svg --scale 2", "engc 1 --png a.png --scale 0",
                    "engc 1 --png a.png --scale -2", "engc 1 --png a.png --scale 99",
                    "engc 1 --png a.png --scale x", "engc 1 --png a.png --scale nan",
                    "engc 2 --pen-strokes --step 1", "engc 2 --pen-strokes --svg a.svg",
                    "engc 2 --pen-strokes --png a.png"));

TEST_P(BadArguments, AreRefusedInOneLineWithStatusTwo) {
  const ToolRun run = Strokes(GetParam());
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_TRUE(run.ErrorIsOneLine()) << run.error.constData();
  EXPECT_TRUE(run.error.startsWith("bramlee-strokes: ")) << run.error.constData();
  EXPECT_FALSE(QFile::exists(QStringLiteral("a.svg")));
  EXPECT_FALSE(QFile::exists(QStringLiteral("a.png")));
}

TEST(BadArguments, WithALineBreakAreStillRefusedInOneLine) {
  const ToolRun run =
      RunTool(QStringLiteral("bramlee-strokes"), {QStringLiteral("eng\nc"), QStringLiteral("1")});
  EXPECT_EQ(run.status, 2);
  EXPECT_TRUE(run.ErrorIsOneLine()) << run.error.constData();
}

TEST(BadArguments, NameWhatWouldBeRight) {
  EXPECT_EQ(Strokes("engx").error,
            "bramlee-strokes: no board \"engx\": engc engs hinv hinc telv telc mat\n");
  EXPECT_EQ(Strokes("telc 76").error, "bramlee-strokes: no tile \"76\": telc has tiles 1 to 75\n");
  EXPECT_EQ(Strokes("mat 3 --place 9").error,
            "bramlee-strokes: --place: \"9\" is no place from 1 to 5\n");
  EXPECT_EQ(Strokes("mat 3 --step 0").error,
            "bramlee-strokes: --step: \"0\" is no number greater than 0\n");
}

TEST(Help, ListsBoardsAndOptionsAndReturns0) {
  const ToolRun run = Strokes("--help");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
  for (const char* word : {"BOARD", "TILE", "--alt", "--place", "--step", "--pen-strokes", "--svg",
                           "--png", "--scale", "engc engs hinv hinc telv telc mat"}) {
    EXPECT_TRUE(run.out.contains(word)) << word;
  }
  EXPECT_EQ(Strokes("-h").out, run.out);
}

TEST(Version, IsOneLine) {
  const ToolRun run = Strokes("--version");
  EXPECT_EQ(run.status, 0);
  EXPECT_TRUE(run.out.startsWith("bramlee-strokes "));
  EXPECT_EQ(run.out.count('\n'), 1);
}

TEST(StrokesManPage, NamesEveryOptionOfTheHelp) {
  const QByteArray page = ManPage(QStringLiteral("bramlee-strokes.1"));
  const QByteArrayList options = OptionsOf(Strokes("--help").out);
  for (const QByteArray& option : options) EXPECT_TRUE(page.contains(option)) << option.constData();
  EXPECT_EQ(options.size(), 26);
}

TEST(Output, ThatCannotBeWrittenEndsWithStatusOne) {
  QProcess process;
  process.setStandardOutputFile(QStringLiteral("/dev/full"));
  process.start(QStringLiteral(BRAMLEE_BINARY_DIR "/tools/bramlee-strokes"),
                {QStringLiteral("engc"), QStringLiteral("1")});
  ASSERT_TRUE(process.waitForFinished(-1));
  EXPECT_EQ(process.exitCode(), 1);
  EXPECT_EQ(process.readAllStandardError(), "bramlee-strokes: the output cannot be written\n");
}

ToolRun WordOf(const QStringList& arguments) {
  return RunTool(QStringLiteral("bramlee-strokes"),
                 QStringList{QStringLiteral("--word")} + arguments);
}

TEST(StrokesOfAWord, ArePrintedAsOneObjectWithItsLetters) {
  const QString text = QStringLiteral("A \"क\u093F\"");
  const ToolRun run = WordOf({text, QStringLiteral("--step"), QStringLiteral("1")});
  EXPECT_EQ(run.status, 0);
  const QJsonObject word = QJsonDocument::fromJson(LinesOf(run).value(0)).object();
  EXPECT_EQ(word.value(u"word").toString(), text);
  const QJsonArray letters = word.value(u"letters").toArray();
  ASSERT_EQ(letters.size(), 2);
  EXPECT_EQ(letters[1].toObject().value(u"text").toString(), QStringLiteral("क\u093F"));
  EXPECT_EQ(letters[1].toObject().value(u"right").toDouble(), word.value(u"width").toDouble());
  const Word laid = LayWord(text.toStdString());
  EXPECT_EQ(static_cast<std::size_t>(word.value(u"strokes").toArray().size()),
            laid.letter.Runs().size());
  EXPECT_EQ(word.value(u"leftOut").toArray().size(), 2) << "the quotation marks";
}

TEST(StrokesOfAWord, AreGivenAsPenStrokesToo) {
  const ToolRun run = WordOf({QStringLiteral("ab"), QStringLiteral("--pen-strokes")});
  const QJsonObject word = QJsonDocument::fromJson(LinesOf(run).value(0)).object();
  EXPECT_EQ(word.value(u"word").toString(), QStringLiteral("ab"));
  EXPECT_EQ(static_cast<std::size_t>(word.value(u"strokes").toArray().size()),
            LayWord("ab").letter.PenStrokes().size());
}

TEST(StrokesOfAWord, HaveAHeadLineALetterWhereAsked) {
  const QString text = QStringLiteral("कल");
  const auto runs = [](const ToolRun& run) { return run.out.count("\"run\""); };
  EXPECT_EQ(runs(WordOf({text, QStringLiteral("--head-per-letter")})), runs(WordOf({text})) + 1);
}

TEST(StrokesOfAWord, NameWhatIsLeftOut) {
  const ToolRun some = WordOf({QStringLiteral("Zoé")});
  EXPECT_EQ(some.status, 0);
  EXPECT_EQ(some.error, "bramlee-strokes: left out: é\n");
  const ToolRun none = WordOf({QStringLiteral("é")});
  EXPECT_EQ(none.status, 2);
  EXPECT_EQ(none.out, "");
  EXPECT_TRUE(none.ErrorIsOneLine());
}

TEST(StrokesOfAWord, GoWithoutATileAndItsForms) {
  for (const char* arguments : {"engc", "engc 1", "--alt", "--book", "--given", "--place 1"}) {
    const ToolRun run =
        WordOf(QStringList{QStringLiteral("a")} + QString::fromLatin1(arguments).split(u' '));
    EXPECT_EQ(run.status, 2) << arguments;
    EXPECT_TRUE(run.ErrorIsOneLine()) << arguments;
  }
  EXPECT_EQ(Strokes("engc 1 --head-per-letter").status, 2);
  EXPECT_EQ(WordOf({QStringLiteral("  ")}).status, 2);
}

}  // namespace
}  // namespace bramlee
