// The pictures that bramlee-strokes writes, looked at pixel by pixel.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <cmath>
#include <string>

#include "letters/letter_names.h"
#include "strokes/word.h"
#include "tests/letters/written.h"
#include "tests/tools/run_tool.h"

namespace bramlee {
namespace {

constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kCapitalsGround = 0xFFC0FFFF;
constexpr QRgb kOtherGround = 0xFFE0E0E0;

struct Tile {
  const char* board;
  int tile;
  TileForm form = {};

  /// "mat 6 --place 5".
  QString Asked() const {
    QString asked = QStringLiteral("%1 %2").arg(QString::fromLatin1(board)).arg(tile);
    if (form.alternative) asked += QStringLiteral(" --alt");
    if (form.place != 0) asked += QStringLiteral(" --place %1").arg(form.place);
    return asked;
  }
};

/// Pictures of one letter in a folder that goes with them.
class Pictures {
 public:
  Pictures() : path_(folder_.path() + u'/') {}

  ToolRun Draw(const QString& asked, const QString& more = {}) const {
    return Strokes(QStringLiteral("%1 --png %2a.png --svg %2a.svg %3")
                       .arg(asked, path_, more)
                       .toUtf8()
                       .constData());
  }
  QImage Png() const { return QImage(path_ + QStringLiteral("a.png")); }
  QByteArray Svg() const {
    QFile file(path_ + QStringLiteral("a.svg"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  QString Path() const { return path_; }

 private:
  QTemporaryDir folder_;
  QString path_;
};

void PrintTo(const Tile& tile, std::ostream* out) {
  *out << tile.Asked().toStdString();
}

class LetterPicture : public testing::TestWithParam<Tile> {};
INSTANTIATE_TEST_SUITE_P(
    Tiles, LetterPicture,
    testing::Values(Tile{"engc", 1}, Tile{"engc", 24}, Tile{"engs", 7}, Tile{"hinv", 28},
                    Tile{"hinc", 111}, Tile{"telv", 6}, Tile{"telv", 35}, Tile{"telc", 19},
                    Tile{"telc", 45}, Tile{"telc", 60}, Tile{"mat", 17},
                    Tile{"mat", 9, {.alternative = true}}, Tile{"mat", 6, {.place = 5}}),
    [](const auto& tile) {
      return QString(tile.param.Asked()).replace(u' ', u'_').remove(u'-').toStdString();
    });

TEST_P(LetterPicture, HasInkWhereTheStrokesAre) {
  const Pictures pictures;
  const ToolRun run = pictures.Draw(GetParam().Asked());
  ASSERT_EQ(run.status, 0) << run.error.constData();
  EXPECT_EQ(run.out, "");
  const QImage png = pictures.Png();
  const Recorder letter = Written(GetParam().board, GetParam().tile, GetParam().form);
  ASSERT_FALSE(letter.dots.empty());
  for (const Dot dot : letter.dots) {
    const QPoint pixel(static_cast<int>(dot.x), static_cast<int>(dot.y));
    ASSERT_TRUE(png.rect().contains(pixel)) << pixel.x() << ' ' << pixel.y();
    ASSERT_EQ(png.pixel(pixel), kRed) << pixel.x() << ' ' << pixel.y();
  }
}

TEST_P(LetterPicture, HasNoInkElsewhere) {
  const Pictures pictures;
  ASSERT_EQ(pictures.Draw(GetParam().Asked()).status, 0);
  QImage png = pictures.Png();
  const Recorder letter = Written(GetParam().board, GetParam().tile, GetParam().form, 0.1);
  const bool capitals = std::string_view(GetParam().board) == "engc";
  const QRgb ground = capitals ? kCapitalsGround : kOtherGround;
  QPainter eraser(&png);
  eraser.setPen(Qt::NoPen);
  eraser.setBrush(QColor(ground));
  for (const Dot dot : letter.dots) {
    eraser.drawEllipse(QPointF(static_cast<double>(dot.x), static_cast<double>(dot.y)), 7, 7);
  }
  eraser.end();
  QImage empty(png.size(), png.format());
  empty.fill(ground);
  EXPECT_EQ(png, empty);
}

/// The paths of an SVG picture.
QStringList PathsOf(const QByteArray& svg) {
  QStringList paths;
  QXmlStreamReader xml(svg);
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1StringView("path")) {
      paths.append(xml.attributes().value(QLatin1StringView("d")).toString());
    }
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return paths;
}

/// A path of M and L with their points.
QPainterPath Read(const QString& text) {
  static const QRegularExpression kPoint(QStringLiteral("([ML])(-?[0-9.]+) (-?[0-9.]+)"));
  QPainterPath path;
  qsizetype read = 0;
  for (const QRegularExpressionMatch& match : kPoint.globalMatch(text)) {
    const QPointF point(match.captured(2).toDouble(), match.captured(3).toDouble());
    match.captured(1) == QLatin1StringView("M") ? path.moveTo(point) : path.lineTo(point);
    read += match.capturedLength();
  }
  EXPECT_EQ(read, text.size()) << text.toStdString();
  return path;
}

int Levels(QRgb a, QRgb b) {
  return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                   std::abs(qBlue(a) - qBlue(b))});
}

TEST_P(LetterPicture, IsTheSameAsSvg) {
  const Pictures pictures;
  ASSERT_EQ(pictures.Draw(GetParam().Asked(), QStringLiteral("--scale 2")).status, 0);
  const QImage png = pictures.Png();
  const QStringList paths = PathsOf(pictures.Svg());
  const Runs runs = Written(GetParam().board, GetParam().tile, GetParam().form).runs;
  EXPECT_EQ(static_cast<std::size_t>(paths.size()), runs.size());

  QImage drawn(png.size(), QImage::Format_RGB32);
  drawn.fill(png.pixel(0, 0));
  QPainter painter(&drawn);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(2, 2);
  painter.setPen(QPen(QColor(kRed), 10, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  QPainterPath letter;  // drawn as one, so that no rim is painted twice
  for (const QString& path : paths) letter.addPath(Read(path));
  painter.drawPath(letter);
  painter.end();

  // QPainter's own edges are up to half a pixel's ink off; what matters is that it is few pixels.
  int furthest = 0;
  double sum = 0;
  for (int y = 0; y < png.height(); ++y) {
    for (int x = 0; x < png.width(); ++x) {
      const int levels = Levels(png.pixel(x, y), drawn.pixel(x, y));
      furthest = std::max(furthest, levels);
      sum += levels;
    }
  }
  EXPECT_LE(furthest, 128);
  EXPECT_LE(sum / (png.width() * png.height()), 0.1);
}

TEST(Picture, ShowsTheSheetAtItsScale) {
  const Pictures pictures;
  ASSERT_EQ(pictures.Draw(QStringLiteral("engc 1")).status, 0);
  EXPECT_EQ(pictures.Png().size(), QSize(1400, 600));
  EXPECT_EQ(pictures.Png().pixel(0, 0), kCapitalsGround);
  ASSERT_EQ(pictures.Draw(QStringLiteral("engs 1"), QStringLiteral("--scale 2")).status, 0);
  EXPECT_EQ(pictures.Png().size(), QSize(2800, 1200));
  EXPECT_EQ(pictures.Png().pixel(0, 0), kOtherGround);
  ASSERT_EQ(pictures.Draw(QStringLiteral("mat 1"), QStringLiteral("--scale 0.5")).status, 0);
  EXPECT_EQ(pictures.Png().size(), QSize(700, 300));
}

TEST(Picture, HasItsLetterAsTitle) {
  const Pictures pictures;
  ASSERT_EQ(pictures.Draw(QStringLiteral("telc 1")).status, 0);
  EXPECT_TRUE(pictures.Svg().contains(
      QByteArray::fromStdString("<title>" + LetterName("telc", 1) + "</title>")));
}

TEST(Picture, ShowsDotsApartWhereTheSheetDoes) {
  const Pictures pictures;
  ASSERT_EQ(pictures.Draw(QStringLiteral("engc 12"), QStringLiteral("--step 20")).status, 0);
  const QStringList paths = PathsOf(pictures.Svg());
  ASSERT_EQ(paths.size(), 2);
  EXPECT_EQ(paths.at(0).count(u'M'), 11);
  EXPECT_EQ(pictures.Png().pixel(1025, 170), kRed);
  EXPECT_EQ(pictures.Png().pixel(1025, 180), kCapitalsGround);
}

TEST(Picture, OfATileThatWritesNothingIsAnEmptySheet) {
  const Pictures pictures;
  ASSERT_EQ(pictures.Draw(QStringLiteral("hinv 14")).status, 0);
  EXPECT_TRUE(PathsOf(pictures.Svg()).isEmpty());
  EXPECT_EQ(pictures.Png().pixel(700, 300), kOtherGround);
}

TEST(Picture, OfAWordShowsItWithRoomAround) {
  const Pictures pictures;
  ASSERT_EQ(pictures.Draw(QStringLiteral("--word ill")).status, 0);
  const QImage png = pictures.Png();
  const Box ink = LayWord("ill").letter.Bounds();
  EXPECT_NEAR(png.width(), ink.width + 80, 2);
  EXPECT_NEAR(png.height(), ink.height + 80, 2);
  EXPECT_EQ(png.pixel(20, 20), kOtherGround);
  EXPECT_EQ(png.pixel(png.width() - 40, png.height() / 2), kRed) << "the last l";
}

TEST(Picture, ThatCannotBeWrittenEndsWithStatusOne) {
  const Pictures pictures;
  for (const char* option : {"--svg", "--png"}) {
    const QString asked =
        QStringLiteral("engc 1 %1 %2none/a").arg(QString::fromLatin1(option), pictures.Path());
    const ToolRun run = Strokes(asked.toUtf8().constData());
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.ErrorIsOneLine()) << run.error.constData();
  }
}

}  // namespace
}  // namespace bramlee
