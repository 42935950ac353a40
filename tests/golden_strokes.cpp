#include "tests/golden_strokes.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <cmath>
#include <sstream>
#include <utility>

namespace bramlee {
namespace {

/// How far an argument may lie from the golden one: they are sums of decimal fractions.
constexpr double kTolerance = 1e-6;

std::vector<double> Doubles(const QJsonValue& array) {
  std::vector<double> numbers;
  const QJsonArray values = array.toArray();
  for (const QJsonValue& value : values) numbers.push_back(value.toDouble());
  return numbers;
}

bool Near(const std::vector<double>& a, const std::vector<double>& b) {
  return std::ranges::equal(a, b, [](double x, double y) { return std::abs(x - y) <= kTolerance; });
}

std::string Listed(const std::vector<double>& numbers) {
  std::ostringstream text;
  text.precision(12);
  for (const char* comma = ""; const double number : numbers) {
    text << std::exchange(comma, ", ") << number;
  }
  return '(' + text.str() + ')';
}

std::string Described(const ToldStroke& stroke) {
  return stroke.run + Listed(stroke.arguments) + " of " + std::to_string(stroke.dots) + " dots";
}

std::string StrokeKey(const ToldTile& tile, int stroke) {
  std::ostringstream key;
  key << tile.board << ' ' << tile.step << ' ' << tile.tile << ' ' << tile.alt << ' ' << tile.place
      << ' ' << stroke;
  return key.str();
}

}  // namespace

std::string ToldTile::Name() const {
  std::ostringstream name;
  name << board << " step " << step << " tile " << tile << " alt " << alt << " place " << place;
  return name.str();
}

QByteArrayList GoldenLines(const std::string& file) {
  QFile golden(QStringLiteral(BRAMLEE_TEST_DATA "/../golden/") + QString::fromStdString(file));
  if (!golden.open(QIODevice::ReadOnly)) return {};
  QByteArrayList lines = golden.readAll().split('\n');
  lines.removeAll({});
  return lines;
}

ToldTile ParseTile(const QByteArray& line) {
  const QJsonObject object = QJsonDocument::fromJson(line).object();
  const auto value = [&](const char* key) { return object.value(QLatin1String(key)); };
  ToldTile tile{.board = value("board").toString().toStdString(),
                .step = QByteArray::number(value("step").toDouble()).toStdString(),
                .tile = value("tile").toInt(),
                .alt = value("alt").toInt(),
                .place = value("place").toInt(),
                .strokes = {},
                .last = Doubles(value("last"))};
  const QJsonArray strokes = value("strokes").toArray();
  for (const QJsonValue& stroke : strokes) {
    tile.strokes.push_back({.run = stroke[QLatin1String("run")].toString().toStdString(),
                            .arguments = Doubles(stroke[QLatin1String("args")]),
                            .dots = stroke[QLatin1String("dots")].toInt()});
  }
  return tile;
}

LastDots::LastDots() {
  for (const QByteArray& line : GoldenLines("last_dots.txt")) {
    if (line.startsWith('#')) continue;
    const QByteArrayList fields = line.split(' ');
    counts_[fields.mid(0, 6).join(' ').toStdString()] = fields.at(7).toInt();
  }
}

int LastDots::Of(const ToldTile& tile, int stroke) const {
  const auto found = counts_.find(StrokeKey(tile, stroke));
  return found == counts_.end() ? -1 : found->second;
}

std::string Difference(const ToldTile& golden, const ToldTile& told, const LastDots& lastDots) {
  if (told.Name() != golden.Name()) return told.Name() + ", not " + golden.Name();
  const std::size_t both = std::min(told.strokes.size(), golden.strokes.size());
  for (std::size_t i = 0; i < both; ++i) {
    const ToldStroke& wanted = golden.strokes[i];
    const ToldStroke& stroke = told.strokes[i];
    const int number = static_cast<int>(i) + 1;
    const bool dotsMatch = stroke.dots == wanted.dots || stroke.dots == lastDots.Of(golden, number);
    if (stroke.run == wanted.run && Near(stroke.arguments, wanted.arguments) && dotsMatch) continue;
    return "stroke " + std::to_string(number) + ": " + Described(stroke) + ", not " +
           Described(wanted);
  }
  if (told.strokes.size() != golden.strokes.size()) {
    return std::to_string(told.strokes.size()) + " strokes, not " +
           std::to_string(golden.strokes.size());
  }
  if (Near(told.last, golden.last)) return {};
  return "registers at the end: " + Listed(told.last) + ", not " + Listed(golden.last);
}

}  // namespace bramlee
