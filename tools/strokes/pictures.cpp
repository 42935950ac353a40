#include "tools/strokes/pictures.h"

#include <QImageWriter>
#include <QSaveFile>
#include <QXmlStreamWriter>
#include <cmath>
#include <utility>
#include <vector>

#include "engine/primitives.h"
#include "ink/ink.h"
#include "letters/letter_names.h"
#include "strokes/letter.h"
#include "strokes/run_lines.h"
#include "tools/strokes/asked_letters.h"

namespace bramlee {
namespace {

/// What a picture shows of the sheet, in sheet pixels: room for all that any set writes, a digit
/// at the fifth place of a number being the furthest.
constexpr QRect kShownOfATile(0, 0, 1400, 600);
/// Around a word.
constexpr int kMargin = 40;

QRect ShownOf(const Request& request, const Letter& letter) {
  if (request.word.isEmpty()) return kShownOfATile;
  const Box& box = letter.Bounds();
  return QRectF(box.x, box.y, box.width, box.height)
      .toAlignedRect()
      .adjusted(-kMargin, -kMargin, kMargin, kMargin);
}

/// Dots this far apart read as one line: a pen 10 wide leaves notches of a sixth of a pixel between
/// them. Points an arc's pixel apart are off by a fifth of a pixel on the smallest circle, of
/// radius 2.
LineRule SvgLines(const Request& request) {
  return {.step = request.step, .spacing = 1, .joined = 2.5};
}

Letter LetterAsked(const Request& request) {
  return LettersAsked(request).front();
}

QString TitleOf(const Request& request) {
  if (!request.word.isEmpty()) return request.word;
  return QString::fromStdString(
      LetterName(request.set->name, request.firstTile, request.form.book));
}

QString PointText(char command, const Point& point) {
  const auto number = [](double value) { return QString::number(std::round(value * 1000) / 1000); };
  return QLatin1Char(command) + number(point.x) + u' ' + number(point.y);
}

/// The run in the form of an SVG path's `d`.
QString PathText(const std::vector<Lines>& pieces) {
  QString text;
  for (const Lines& piece : pieces) {
    char command = 'M';
    for (const Point& point : piece) text += PointText(std::exchange(command, 'L'), point);
  }
  return text;
}

QString CannotWrite(const QSaveFile& file) {
  return QStringLiteral("%1: %2").arg(file.fileName(), file.errorString());
}

}  // namespace

QString WriteSvg(const Request& request) {
  QSaveFile file(request.svg);
  if (!file.open(QIODevice::WriteOnly)) return CannotWrite(file);
  QXmlStreamWriter svg(&file);
  const auto attribute = [&svg](const char* name, const QString& value) {
    svg.writeAttribute(QString::fromLatin1(name), value);
  };
  const Letter letter = LetterAsked(request);
  const QRect shown = ShownOf(request, letter);
  const auto size = [&attribute, &shown] {
    attribute("width", QString::number(shown.width()));
    attribute("height", QString::number(shown.height()));
  };
  svg.setAutoFormatting(true);
  svg.writeStartDocument();
  svg.writeStartElement(QStringLiteral("svg"));
  svg.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
  size();
  attribute("viewBox", QStringLiteral("%1 %2 %3 %4")
                           .arg(shown.x())
                           .arg(shown.y())
                           .arg(shown.width())
                           .arg(shown.height()));
  svg.writeTextElement(QStringLiteral("title"), TitleOf(request));
  svg.writeEmptyElement(QStringLiteral("rect"));
  if (!shown.topLeft().isNull()) {
    attribute("x", QString::number(shown.x()));
    attribute("y", QString::number(shown.y()));
  }
  size();
  attribute("fill", GroundOf(request).name());
  svg.writeStartElement(QStringLiteral("g"));
  attribute("fill", QStringLiteral("none"));
  attribute("stroke", ColourOf(kPenColour).name());
  attribute("stroke-width", QString::number(kDrawWidth));
  attribute("stroke-linecap", QStringLiteral("round"));
  attribute("stroke-linejoin", QStringLiteral("round"));
  for (const Run& run : letter.Runs()) {
    const std::vector<Lines> pieces = LinesOf(run, SvgLines(request));
    if (pieces.empty()) continue;
    svg.writeEmptyElement(QStringLiteral("path"));
    attribute("d", PathText(pieces));
  }
  svg.writeEndDocument();
  return file.commit() ? QString() : CannotWrite(file);
}

QString WritePng(const Request& request) {
  QSaveFile file(request.png);
  if (!file.open(QIODevice::WriteOnly)) return CannotWrite(file);
  Ink ink(request.step);
  ink.SetPen(kPenColour);
  const Letter letter = LetterAsked(request);
  for (const Run& run : letter.Runs()) WriteRun(ink, run);

  const QImage picture = ink.Picture(ShownOf(request, letter), request.scale, GroundOf(request));
  QImageWriter png(&file, "png");
  if (!png.write(picture)) return QStringLiteral("%1: %2").arg(request.png, png.errorString());
  return file.commit() ? QString() : CannotWrite(file);
}

}  // namespace bramlee
