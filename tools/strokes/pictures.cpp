#include "tools/strokes/pictures.h"

#include <QImageWriter>
#include <QSaveFile>
#include <QXmlStreamWriter>
#include <cmath>

#include "ink/ink.h"
#include "engine/last_point.h"
#include "letters/letter_names.h"
#include "tools/strokes/path_surface.h"

namespace bramlee {
namespace {

/// What a picture shows of the sheet, in sheet pixels: room for all that any set writes, a digit
/// at the fifth place of a number being the furthest.
constexpr QRect kShown(0, 0, 1400, 600);

QColor GroundOf(const Request& request) {
  return ColourOf(request.set->sheet == SheetKind::Capitals ? kCapitalsGround : kGround);
}

void Write(const Request& request, DrawingSurface& surface) {
  ClearLastPoint();
  WriteWholeTile(*request.set, request.firstTile, request.form, surface);
}

QString CannotWrite(const QSaveFile& file) {
  return QStringLiteral("%1: %2").arg(file.fileName(), file.errorString());
}

}  // namespace

QString WriteSvg(const Request& request) {
  QSaveFile file(request.svg);
  if (!file.open(QIODevice::WriteOnly)) return CannotWrite(file);
  PathSurface paths(request.step);
  Write(request, paths);

  QXmlStreamWriter svg(&file);
  const auto attribute = [&svg](const char* name, const QString& value) {
    svg.writeAttribute(QString::fromLatin1(name), value);
  };
  const auto size = [&attribute] {
    attribute("width", QString::number(kShown.width()));
    attribute("height", QString::number(kShown.height()));
  };
  svg.setAutoFormatting(true);
  svg.writeStartDocument();
  svg.writeStartElement(QStringLiteral("svg"));
  svg.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
  size();
  attribute("viewBox", QStringLiteral("0 0 %1 %2").arg(kShown.width()).arg(kShown.height()));
  svg.writeTextElement(QStringLiteral("title"),
                       QString::fromStdString(LetterName(request.set->name, request.firstTile)));
  svg.writeEmptyElement(QStringLiteral("rect"));
  size();
  attribute("fill", GroundOf(request).name());
  svg.writeStartElement(QStringLiteral("g"));
  attribute("fill", QStringLiteral("none"));
  attribute("stroke", ColourOf(kPenColour).name());
  attribute("stroke-width", QString::number(kDrawWidth));
  attribute("stroke-linecap", QStringLiteral("round"));
  attribute("stroke-linejoin", QStringLiteral("round"));
  for (const QString& path : paths.Paths()) {
    svg.writeEmptyElement(QStringLiteral("path"));
    attribute("d", path);
  }
  svg.writeEndDocument();
  return file.commit() ? QString() : CannotWrite(file);
}

QString WritePng(const Request& request) {
  QSaveFile file(request.png);
  if (!file.open(QIODevice::WriteOnly)) return CannotWrite(file);
  Ink ink(request.step);
  ink.SetColour(kPenColour);
  Write(request, ink);

  const QImage picture = ink.Picture(kShown, request.scale, GroundOf(request));
  QImageWriter png(&file, "png");
  if (!png.write(picture)) return QStringLiteral("%1: %2").arg(request.png, png.errorString());
  return file.commit() ? QString() : CannotWrite(file);
}

}  // namespace bramlee
