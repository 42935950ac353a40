#include "film/frames.h"

#include <QPainter>
#include <algorithm>

#include "ink/stroke_signs.h"

namespace bramlee {
namespace {

/// Without a ground, white ink on black tells how much of a pixel the ink covers.
const QColor kCovered(Qt::white);
const QColor kUncovered(Qt::black);

QRectF AreaOf(const Box& view) {
  return {view.x, view.y, view.width, view.height};
}

/// Ink of that colour, as much of it as the picture is white.
QImage InkAlone(const QImage& covered, const QColor& ink) {
  QImage picture(covered.size(), QImage::Format_ARGB32);
  for (int y = 0; y < picture.height(); ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(covered.constScanLine(y));
    auto* to = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (int x = 0; x < picture.width(); ++x) {
      to[x] = qRgba(ink.red(), ink.green(), ink.blue(), qGreen(from[x]));
    }
  }
  return picture;
}

}  // namespace

Frames::Frames(const LetterFilm& film)
    : film_(film),
      ink_(film.Shown().Step()),
      player_(page_, static_cast<DrawingSurface&>(ink_)),
      area_(AreaOf(film.View())),
      ground_(film.Look().ground.value_or(kUncovered)) {
  const QColor pen = film.Look().ground ? film.Look().ink : kCovered;
  page_.Add({.letter = film.Shown(), .colour = WordOf(pen), .placing = {}});
}

QImage Frames::At(double second) {
  if (second >= film_.Times().seconds) {
    player_.RunToEnd();
  } else {
    written_ += player_.Write(film_.Times().DotsBy(second) - written_);
  }
  return Taken(SignsToCome());
}

QImage Frames::AfterStrokes(std::size_t strokes) {
  while (player_.StrokesWritten() < strokes && !player_.AtEnd()) player_.WriteStroke();
  return Taken({.first = std::max<std::size_t>(strokes, 1) - 1, .last = strokes});
}

QImage Frames::Taken(const Signs& signs) {
  if (!ink_.Cover(area_, film_.Scale())) return {};
  if (dots_.isNull()) {
    dots_ = QImage(ink_.CoveredSize(), QImage::Format_RGB32);
    if (dots_.isNull()) return {};
  }
  const QRect changed = ink_.TakeDirty();
  FillPart(dots_, changed, ground_);
  ink_.Compose(dots_, changed);
  QImage picture = film_.Look().ground ? dots_ : InkAlone(dots_, film_.Look().ink);
  if (!film_.Numbers().empty()) PaintSigns(picture, signs);
  return picture;
}

/// As a board shows them: all of them once the letter stands.
Frames::Signs Frames::SignsToCome() {
  const Player::Where stands = player_.Stands();
  const std::size_t next = stands.stroke + static_cast<std::size_t>(stands.begun);
  return {.first = player_.AtEnd() ? 0 : next, .last = film_.Numbers().size()};
}

void Frames::PaintSigns(QImage& picture, const Signs& signs) const {
  if (!film_.Look().ground) picture.convertTo(QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(film_.Scale(), film_.Scale());
  painter.translate(-area_.topLeft());
  for (std::size_t i = signs.first; i < signs.last; ++i) {
    PaintNumber(painter, static_cast<int>(i + 1), film_.Numbers()[i], {});
  }
  painter.end();
  if (!film_.Look().ground) picture.convertTo(QImage::Format_ARGB32);
}

}  // namespace bramlee
