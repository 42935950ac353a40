// bramlee-trace as its users run it: what it says of a pen and what it refuses.
#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

#include "strokes/letter.h"
#include "tests/tools/run_tool.h"

namespace bramlee {
namespace {

/// L: one stroke from (1025, 150) down to 350 and on to the right as far as 1175.
constexpr char kL[] = "engc 12";
/// T's first stroke, the bar, and its second, the stem.
constexpr char kT[] = "engc 20";

ToolRun Trace(const char* arguments, const QByteArray& input = {}) {
  return RunTool(QStringLiteral("bramlee-trace"),
                 QString::fromUtf8(arguments).split(u' ', Qt::SkipEmptyParts), input);
}

/// The events of one touch.
QByteArray Touch(const std::vector<Point>& way) {
  QByteArray events;
  const char* name = "down";
  for (const Point& place : way) {
    events += QByteArray("{\"") + name + "\": [" + QByteArray::number(place.x, 'g', 10) + ", " +
              QByteArray::number(place.y, 'g', 10) + "]}\n";
    name = "move";
  }
  return events + "{\"up\": true}\n";
}

const std::vector<Point> kWholeL = {
    {1025, 150},
    {1025, 350},
    {1175, 350}
};
const std::vector<Point> kAway = {
    {100, 100},
    {200, 100}
};

QByteArray Judgement(const char* verdict, const char* progress, int misses, const char* help,
                     int stroke = 1) {
  return "{\"stroke\": " + QByteArray::number(stroke) + ", \"verdict\": \"" + verdict +
         "\", \"progress\": " + progress + ", \"misses\": " + QByteArray::number(misses) +
         ", \"help\": \"" + help + "\"}\n";
}

QByteArray End(const char* finished, int helped) {
  return QByteArray("{\"finished\": ") + finished + ", \"helped\": " + QByteArray::number(helped) +
         "}\n";
}

void ExpectOutput(const ToolRun& run, const QByteArray& out) {
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
  EXPECT_EQ(run.out.toStdString(), out.toStdString());
}

TEST(Trace, SaysDoneOfAStrokeThatIsTraced) {
  ExpectOutput(Trace(kL, Touch(kWholeL)), Judgement("done", "1", 0, "none") + End("true", 0));
}

TEST(Trace, SaysHowFarAStrokeIsWrittenThatMayGoOn) {
  const QByteArray half = Touch({
      {1025, 150},
      {1025, 325}
  });
  ExpectOutput(Trace(kL, half), Judgement("resume", "0.497", 0, "none") + End("false", 0));
  const QByteArray rest = Touch({
      {1025, 325},
      {1025, 350},
      {1175, 350}
  });
  ExpectOutput(Trace(kL, half + rest), Judgement("resume", "0.497", 0, "none") +
                                           Judgement("done", "1", 0, "none") + End("true", 0));
}

TEST(Trace, SaysWhatIsWrongAndWhichHelpIsDue) {
  std::vector<Point> backwards(kWholeL.rbegin(), kWholeL.rend());
  std::vector<Point> scribble{kWholeL.front()};
  for (int i = 0; i < 20; ++i) scribble.push_back({1025.0 + (i % 2) * 50, 200});
  const std::vector<Point> leaves = {
      {1025, 150},
      {1150, 150}
  };
  ExpectOutput(
      Trace(kL, Touch(kAway) + Touch(backwards) + Touch(scribble) + Touch(leaves) + Touch(kWholeL)),
      Judgement("elsewhere", "0", 1, "pulse") + Judgement("reversed", "0", 2, "show") +
          Judgement("scribble", "0", 3, "wider") + Judgement("astray", "0", 4, "written") +
          End("true", 1));
}

TEST(Trace, CountsStrokesFromOneAndHelpedOnes) {
  const Letter& t = LetterOf({.set = "engc", .tile = 20, .form = {}});
  ASSERT_EQ(t.Shape().strokes.size(), 2U);
  const QByteArray away = Touch(kAway);
  ExpectOutput(Trace(kT, away + away + away + away + Touch(t.Shape().strokes[1].points)),
               Judgement("elsewhere", "0", 1, "pulse") + Judgement("elsewhere", "0", 2, "show") +
                   Judgement("elsewhere", "0", 3, "wider") +
                   Judgement("elsewhere", "0", 4, "written") +
                   Judgement("done", "1", 0, "none", 2) + End("true", 1));
}

TEST(Trace, LetsThePenStrayAsFarAsAFingerMisses) {
  const QByteArray beside = Touch({
      {1075, 150},
      {1075, 350},
      {1175, 350}
  });
  ExpectOutput(Trace(kL, beside), Judgement("elsewhere", "0", 1, "pulse") + End("false", 0));
  ExpectOutput(Trace("engc 12 --least-radius 70", beside),
               Judgement("done", "1", 0, "none") + End("true", 0));
}

TEST(Trace, SaysNothingOfWhatComesAfterTheLastStroke) {
  ExpectOutput(Trace(kL, Touch(kWholeL) + Touch(kAway)),
               Judgement("done", "1", 0, "none") + End("true", 0));
}

TEST(Trace, OfNoInputEndsWithStatusZero) {
  ExpectOutput(Trace(kL), End("false", 0));
}

TEST(Trace, OfAPenThatIsStillDownSaysTheEndAlone) {
  ExpectOutput(Trace(kL, "{\"down\": [1025, 150]}\n{\"move\": [1025, 350]}\n"), End("false", 0));
}

TEST(Trace, OfATileThatWritesNothingIsFinished) {
  ExpectOutput(Trace("hinv 14", Touch(kAway)), End("true", 0));
}

TEST(Trace, ReadsALastLineWithoutAnEnd) {
  ExpectOutput(Trace(kL, Touch(kWholeL).chopped(1)),
               Judgement("done", "1", 0, "none") + End("true", 0));
}

TEST(Trace, ReadsLinesThatEndAsOnOtherSystems) {
  ExpectOutput(Trace(kL, Touch(kWholeL).replace("\n", "\r\n")),
               Judgement("done", "1", 0, "none") + End("true", 0));
}

TEST(Trace, SaysEachVerdictAtOnce) {
  QProcess process;
  process.start(QStringLiteral(BRAMLEE_BINARY_DIR "/tools/bramlee-trace"),
                {QStringLiteral("engc"), QStringLiteral("12")});
  process.write(Touch(kAway));
  ASSERT_TRUE(process.waitForReadyRead(-1));  // its input is still open
  EXPECT_EQ(process.readLine(), Judgement("elsewhere", "0", 1, "pulse"));
  process.closeWriteChannel();
  EXPECT_TRUE(process.waitForFinished(-1));
}

TEST(Trace, IsOfTheFormThatIsAskedFor) {
  const auto finishes = [](const char* arguments, const TileForm& form, const char* set, int tile) {
    QByteArray touches;
    for (const StrokePath& stroke :
         LetterOf({.set = set, .tile = tile, .form = form}).Shape().strokes) {
      touches += Touch(stroke.points);
    }
    return Trace(arguments, touches).out.endsWith(End("true", 0));
  };
  const TileForm alternative{.alternative = true};
  const TileForm third{.place = 3};
  const TileForm book{.book = true};
  EXPECT_TRUE(finishes("hinc 3 --alt", alternative, "hinc", 3));
  EXPECT_FALSE(finishes("hinc 3", alternative, "hinc", 3));
  EXPECT_TRUE(finishes("mat 8 --place 3", third, "mat", 8));
  EXPECT_FALSE(finishes("mat 8", third, "mat", 8));
  EXPECT_TRUE(finishes("engs 17 --book", book, "engs", 17));
  EXPECT_FALSE(finishes("engs 17", book, "engs", 17));
}

TEST(Trace, IsAsExactAsTheLevelThatIsAskedFor) {
  const auto verdict = [](const char* arguments) {
    const QByteArray touch = Touch({
        {225, 325},
        {252, 365},
        {252, 475}
    });  // 18 units beside the line, a unit being 1.5 pixels
    const QByteArray line = Trace(arguments, touch).out.split('\n').constFirst();
    return QJsonDocument::fromJson(line)[QLatin1String("verdict")].toString().toStdString();
  };
  EXPECT_EQ(verdict("mat 1 --alt --level strict"), "astray");
  EXPECT_EQ(verdict("mat 1 --alt --level normal"), "astray");
  EXPECT_EQ(verdict("mat 1 --alt"), "astray");
  EXPECT_EQ(verdict("mat 1 --alt --level gentle"), "done");
  EXPECT_EQ(verdict("mat 1 --alt --level toddler"), "done");
}

TEST(Trace, JudgesBothHandsAlike) {
  const QByteArray touch = Touch(kWholeL);
  EXPECT_EQ(Trace("engc 12 --hand left", touch).out, Trace(kL, touch).out);
  EXPECT_EQ(Trace("engc 12 --hand right", touch).out, Trace(kL, touch).out);
}

class BadLine : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(
    Lines, BadLine,
    testing::Values("", " ", "x", "{}", "[]", "1", "null", "{\"down\": [1, 2]", "{\"down\": []}",
                    "{\"down\": [1]}", "{\"down\": [1, 2, 3]}", "{\"down\": [1, \"2\"]}",
                    "{\"down\": [1, null]}", "{\"down\": [NaN, 2]}", "{\"down\": [1e999, 2]}",
                    "{\"down\": {\"x\": 1, \"y\": 2}}", "{\"down\": true}", "{\"down\": 1}",
                    "{\"Down\": [1, 2]}", "{\"push\": [1, 2]}", "{\"up\": false}", "{\"up\": 1}",
                    "{\"up\": [1, 2]}", "{\"up\": null}", "{\"down\": [1, 2], \"up\": true}",
                    "{\"down\": [1, 2]} {\"up\": true}", "{\"down\": [1, 2]}x", "\xff\xfe",
                    "{\"up\": true}", "{\"move\": [1, 2]}"));

TEST_P(BadLine, IsRefusedInOneLineWithStatusTwo) {
  const ToolRun run = Trace(kL, Touch(kAway) + GetParam() + '\n' + Touch(kWholeL));
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.out, Judgement("elsewhere", "0", 1, "pulse"));
  EXPECT_TRUE(run.ErrorIsOneLine()) << run.error.constData();
  EXPECT_TRUE(run.error.startsWith("bramlee-trace: line 4: ")) << run.error.constData();
}

TEST(BadLines, OfAPenThatIsDownAlreadyAreRefused) {
  const ToolRun run = Trace(kL, "{\"down\": [1025, 150]}\n{\"down\": [1025, 150]}\n");
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.error, "bramlee-trace: line 2: the pen is down already\n");
}

class BadTraceArguments : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(
    Lines, BadTraceArguments,
    testing::Values("", "engc", "engx 1", "engc 0", "engc 27", "engc x", "engc 1 2", "engc 1 --alt",
                    "engc 1 --place 1", "mat 11 --place 1", "mat 1 --place 6", "mat 1 --place",
                    "engc 1 --level", "engc 1 --level kind", "engc 1 --level Normal",
                    "engc 1 --hand", "engc 1 --hand both", "engc 1 --least-radius far",
                    "engc 1 --least-radius -1", "engc 1 --least-radius 201",
                    "engc 1 --least-radius nan", "engc 1 --step 1", "engc 1 -x"));

TEST_P(BadTraceArguments, AreRefusedInOneLineWithStatusTwo) {
  const ToolRun run = Trace(GetParam(), Touch(kWholeL));
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_TRUE(run.ErrorIsOneLine()) << run.error.constData();
  EXPECT_TRUE(run.error.startsWith("bramlee-trace: ")) << run.error.constData();
}

TEST(BadTraceArguments, NameWhatWouldBeRight) {
  EXPECT_EQ(Trace("engc 1 --level kind").error,
            "bramlee-trace: --level: no level \"kind\": strict normal gentle toddler\n");
  EXPECT_EQ(Trace("engc").error, "bramlee-trace: no tile is named\n");
  EXPECT_EQ(Trace("engc 1-2").error, "bramlee-trace: one tile at a time\n");
}

TEST(TraceHelp, ListsSetsAndOptionsAndReturns0) {
  const ToolRun run = Trace("--help");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
  for (const char* word : {"SET", "TILE", "engc engs hinv hinc telv telc mat",
                           "strict normal gentle toddler", "{\"down\": [x, y]}"}) {
    EXPECT_TRUE(run.out.contains(word)) << word;
  }
  EXPECT_EQ(Trace("-h").out, run.out);
}

TEST(TraceVersion, IsOneLine) {
  const ToolRun run = Trace("--version");
  EXPECT_EQ(run.status, 0);
  EXPECT_TRUE(run.out.startsWith("bramlee-trace "));
  EXPECT_EQ(run.out.count('\n'), 1);
}

TEST(TraceManPage, NamesEveryOptionOfTheHelp) {
  const QByteArray page = ManPage(QStringLiteral("bramlee-trace.1"));
  const QByteArrayList options = OptionsOf(Trace("--help").out);
  for (const QByteArray& option : options) EXPECT_TRUE(page.contains(option)) << option.constData();
  EXPECT_EQ(options.size(), 8);
}

TEST(TraceOutput, ThatCannotBeWrittenEndsWithStatusOne) {
  QProcess process;
  process.setStandardOutputFile(QStringLiteral("/dev/full"));
  process.start(QStringLiteral(BRAMLEE_BINARY_DIR "/tools/bramlee-trace"),
                {QStringLiteral("engc"), QStringLiteral("12")});
  process.closeWriteChannel();
  ASSERT_TRUE(process.waitForFinished(-1));
  EXPECT_EQ(process.exitCode(), 1);
  EXPECT_EQ(process.readAllStandardError(), "bramlee-trace: the output cannot be written\n");
}

}  // namespace
}  // namespace bramlee
