#include "board/strip_pictures.h"

#include <QImage>
#include <QPixmap>
#include <cmath>
#include <numbers>

#include "board/strip.h"
#include "ink/ink.h"

namespace bramlee {
namespace {

constexpr double kField = 100;
const QColor kPictureColour(0x37, 0x47, 0x4F);

void WriteStroke(Ink& ink, const StripStroke& stroke) {
  constexpr double kDotsApart = 0.25;
  ink.BeginRun({}, {});
  for (std::size_t i = 1; i < stroke.size(); ++i) {
    const QPointF way = stroke[i] - stroke[i - 1];
    const int dots = std::max(1, static_cast<int>(std::hypot(way.x(), way.y()) / kDotsApart));
    for (int dot = 0; dot <= dots; ++dot) {
      const QPointF place = stroke[i - 1] + way * dot / dots;
      ink.PSet(static_cast<float>(place.x()), static_cast<float>(place.y()));
    }
  }
  ink.EndRun();
}

/// The ink alone, on nothing: how dark a pixel is says how much of it is ink.
QPixmap InkAlone(const Ink& ink, double ratio) {
  const double scale = kStripPicturePixels / kField * ratio;
  const QImage black = ink.Picture(QRectF(0, 0, kField, kField), scale, Qt::white);
  QImage alone(black.size(), QImage::Format_ARGB32);
  for (int y = 0; y < black.height(); ++y) {
    for (int x = 0; x < black.width(); ++x) {
      QColor colour = kPictureColour;
      colour.setAlpha(255 - qRed(black.pixel(x, y)));
      alone.setPixelColor(x, y, colour);
    }
  }
  alone.setDevicePixelRatio(ratio);
  return QPixmap::fromImage(alone);
}

}  // namespace

StripStroke StripArc(QPointF centre, double radius, double from, double to) {
  constexpr double kDegreesApart = 3;
  const int parts = std::max(1, static_cast<int>(std::abs(to - from) / kDegreesApart));
  StripStroke arc;
  for (int i = 0; i <= parts; ++i) {
    const double angle = (from + (to - from) * i / parts) * std::numbers::pi / 180;
    arc.push_back(centre + radius * QPointF(std::cos(angle), -std::sin(angle)));
  }
  return arc;
}

QIcon StripPicture(const std::vector<StripStroke>& strokes) {
  Ink ink;
  ink.SetPen(0);
  for (const StripStroke& stroke : strokes) WriteStroke(ink, stroke);
  QIcon picture;
  for (const double ratio : {1.0, 1.5, 2.0, 3.0}) picture.addPixmap(InkAlone(ink, ratio));
  return picture;
}

}  // namespace bramlee
