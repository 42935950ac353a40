#include "board/strip_pictures.h"

#include <QApplication>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <utility>

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
QPixmap InkAlone(const std::vector<StripStroke>& strokes, int pixels) {
  Ink ink;
  ink.SetPen(0);
  for (const StripStroke& stroke : strokes) WriteStroke(ink, stroke);
  const QImage black = ink.Picture(QRectF(0, 0, kField, kField), pixels / kField, Qt::white);
  QImage alone(black.size(), QImage::Format_ARGB32);
  for (int y = 0; y < black.height(); ++y) {
    for (int x = 0; x < black.width(); ++x) {
      QColor colour = kPictureColour;
      colour.setAlpha(255 - qRed(black.pixel(x, y)));
      alone.setPixelColor(x, y, colour);
    }
  }
  return QPixmap::fromImage(alone);
}

/// Writes a picture when it is first shown, in the size in which it is: a board has some fifteen,
/// and most of its time to open would go into sizes that this screen does not need.
class PenIcon : public QIconEngine {
 public:
  explicit PenIcon(std::vector<StripStroke> strokes) : strokes_(std::move(strokes)) {}

  QIconEngine* clone() const override { return new PenIcon(*this); }
  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
    const double ratio = painter->device()->devicePixelRatio();
    painter->drawPixmap(place, pixmap(place.size() * ratio, mode, state));
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
    const int pixels = std::min(size.width(), size.height());
    QPixmap& written = written_[pixels];
    if (written.isNull()) written = InkAlone(strokes_, pixels);
    if (mode == QIcon::Normal) return written;
    QStyleOption option;
    option.palette = QGuiApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, written, &option);
  }

 private:
  std::vector<StripStroke> strokes_;
  std::map<int, QPixmap> written_;  ///< by their pixels each way
};

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
  return QIcon(new PenIcon(strokes));
}

}  // namespace bramlee
