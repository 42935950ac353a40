// Every tile of every set against golden strokes that were worked out independently.
#include <gtest/gtest.h>

#include <QByteArrayList>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "engine/last_point.h"
#include "letters/letter_sets.h"
#include "tests/recorder.h"

namespace bramlee {
namespace {

/// The sets that are checked; a set joins when its letters are written.
constexpr const char* kBoards[] = {
    "engc",  //
    "engs",  //
    "hinv",  //
    "hinc",  //
    "telv",  //
    "telc",  //
    "mat",   //
};

/// How far an argument may lie from the golden one: they are sums of decimal fractions.
constexpr double kTolerance = 1e-6;

QList<QByteArray> LinesOf(const std::string& name) {
  QFile file(QStringLiteral(BRAMLEE_TEST_DATA "/../golden/") + QString::fromStdString(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QList<QByteArray> lines = file.readAll().split('\n');
  lines.removeAll({});
  return lines;
}

/// "board step tile alt place stroke" of a stroke with two right counts, and the second count.
std::map<std::string, int> ReadLastDots() {
  std::map<std::string, int> counts;
  for (const QByteArray& line : LinesOf("last_dots.txt")) {
    if (line.startsWith('#')) continue;
    const QByteArrayList fields = line.split(' ');
    counts[fields.mid(0, 6).join(' ').toStdString()] = fields.at(7).toInt();
  }
  return counts;
}

/// One line of a golden file.
struct GoldenTile {
  std::string board;
  std::string step;
  int tile;
  int alt;
  int place;
  QJsonArray strokes;
  QJsonArray last;

  std::string Name() const {
    std::ostringstream name;
    name << board << " step " << step << " tile " << tile << " alt " << alt << " place " << place;
    return name.str();
  }
  std::string StrokeKey(int stroke) const {
    std::ostringstream key;
    key << board << ' ' << step << ' ' << tile << ' ' << alt << ' ' << place << ' ' << stroke;
    return key.str();
  }
};

GoldenTile Parse(const QByteArray& line) {
  const QJsonObject object = QJsonDocument::fromJson(line).object();
  const auto number = [&](const char* key) { return object.value(QLatin1String(key)).toInt(); };
  return {.board = object.value(QLatin1String("board")).toString().toStdString(),
          .step = QByteArray::number(object.value(QLatin1String("step")).toDouble()).toStdString(),
          .tile = number("tile"),
          .alt = number("alt"),
          .place = number("place"),
          .strokes = object.value(QLatin1String("strokes")).toArray(),
          .last = object.value(QLatin1String("last")).toArray()};
}

std::vector<double> Doubles(const QJsonArray& array) {
  std::vector<double> numbers;
  for (const QJsonValue& value : array) numbers.push_back(value.toDouble());
  return numbers;
}

bool Near(const std::vector<double>& a, const std::vector<double>& b) {
  return std::ranges::equal(a, b, [](double x, double y) { return std::abs(x - y) <= kTolerance; });
}

std::string Told(const std::string& run, const std::vector<double>& arguments, int dots) {
  std::ostringstream text;
  text.precision(12);
  text << run << '(';
  for (const char* comma = ""; const double argument : arguments) {
    text << std::exchange(comma, ", ") << argument;
  }
  text << ") of " << dots << " dots";
  return text.str();
}

/// What one stroke differs in from the golden one; empty when it does not.
std::string StrokeDifference(const QJsonObject& golden, const RecordedRun& run, int otherDots) {
  const std::string name = golden.value(QLatin1String("run")).toString().toStdString();
  const std::vector<double> arguments = Doubles(golden.value(QLatin1String("args")).toArray());
  const int dots = golden.value(QLatin1String("dots")).toInt();
  if (name == PrimitiveName(run.primitive) && Near(arguments, run.arguments) &&
      (run.dots == dots || run.dots == otherDots)) {
    return {};
  }
  return "wrote " + Told(PrimitiveName(run.primitive), run.arguments, run.dots) + ", not " +
         Told(name, arguments, dots);
}

/// What the tile, as written, differs in from the golden one first; empty when it does not.
std::string Difference(const GoldenTile& golden, const std::map<std::string, int>& lastDots) {
  Recorder sheet(std::stod(golden.step));
  ClearLastPoint();
  WriteWholeTile(*FindLetterSet(golden.board), golden.tile,
                 {.alternative = golden.alt != 0, .place = golden.place}, sheet);

  const int written = static_cast<int>(sheet.runs.size());
  const int wanted = static_cast<int>(golden.strokes.size());
  for (int i = 0; i < std::min(written, wanted); ++i) {
    const auto other = lastDots.find(golden.StrokeKey(i + 1));
    const std::string difference =
        StrokeDifference(golden.strokes.at(i).toObject(), sheet.runs[static_cast<std::size_t>(i)],
                         other == lastDots.end() ? -1 : other->second);
    if (!difference.empty()) return "stroke " + std::to_string(i + 1) + ": " + difference;
  }
  if (written != wanted) {
    return std::to_string(written) + " strokes, not " + std::to_string(wanted);
  }
  const std::vector<double> last = {LastX, LastY, LastX2, LastY2};
  if (Near(last, Doubles(golden.last))) return {};
  return "registers at the end: " + Told("last", last, 0) + ", not " +
         Told("last", Doubles(golden.last), 0);
}

class GoldenStrokes : public testing::TestWithParam<std::tuple<const char*, const char*>> {};

TEST_P(GoldenStrokes, AreWritten) {
  const auto [board, stepMark] = GetParam();
  const std::map<std::string, int> lastDots = ReadLastDots();
  ASSERT_FALSE(lastDots.empty());
  const QList<QByteArray> lines = LinesOf(std::string(board) + stepMark + ".jsonl");
  ASSERT_GE(lines.size(), FindLetterSet(board)->tiles);
  for (const QByteArray& line : lines) {
    const GoldenTile golden = Parse(line);
    EXPECT_EQ(golden.board, board);
    EXPECT_EQ(Difference(golden, lastDots), "") << golden.Name();
  }
}

INSTANTIATE_TEST_SUITE_P(Boards, GoldenStrokes,
                         testing::Combine(testing::ValuesIn(kBoards),
                                          testing::Values("", "-step1")),
                         [](const auto& suite) {
                           return std::string(std::get<0>(suite.param)) +
                                  (*std::get<1>(suite.param) == 0 ? "" : "_step1");
                         });

}  // namespace
}  // namespace bramlee
