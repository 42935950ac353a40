// Tiles, buttons and signs.
#include <array>

#include "assets/letter_path.h"
#include "assets/pictures.h"
#include "ink/colours.h"
#include "letters/letter_names.h"
#include "letters/letter_sets.h"
#include "strokes/set_looks.h"

namespace bramlee {
namespace {

/// A tile of 60 by 55 logical pixels, four picture pixels to each.
constexpr QSize kTile(240, 220);

Subject SubjectOf(const SetLook& look, QSize tile, int columns) {
  return {.letterSet = look.set,
          .tile = tile,
          .ink = ColourOf(look.tileInk),
          .ground = ColourOf(look.tileGround),
          .columns = columns};
}

const Subject kSubjects[] = {
    SubjectOf(kCapitalsLook, {324, 164}, 7), SubjectOf(kSmallLettersLook, kTile, 7),
    SubjectOf(kHindiVowelsLook, kTile, 7),   SubjectOf(kHindiConsonantsLook, kTile, 10),
    SubjectOf(kTeluguVowelsLook, kTile, 9),  SubjectOf(kTeluguConsonantsLook, kTile, 13),
    SubjectOf(kNumbersLook, kTile, 6),
};

/// The scripts whose letters also stand in print in a corner: strokes alone do not tell all of
/// them apart.
bool HasPrintedCorner(std::string_view letterSet) {
  return letterSet.starts_with("hin") || letterSet.starts_with("tel");
}

/// What one tile writes, the second sign apart: two tiles of the maths board write two signs,
/// each in a column of its own.
struct Signs {
  QPainterPath first;
  QPainterPath second;  ///< empty for all other tiles
};

Signs SignsOf(const QPainterPath& path) {
  constexpr double kColumn = 250;
  const QRectF bounds = path.boundingRect();
  if (bounds.width() <= kColumn) return {.first = path, .second = {}};
  Signs signs;
  for (const QPolygonF& run : path.toSubpathPolygons()) {
    const bool first = run.boundingRect().center().x() < bounds.left() + kColumn * 0.7;
    (first ? signs.first : signs.second).addPolygon(run);
  }
  return signs;
}

/// The tile's strokes, two signs close together: so there is room to draw them large.
QPainterPath TilePath(const Subject& subject, int tile) {
  const QPainterPath path = LetterPath(subject.letterSet, tile, subject.book);
  if (subject.letterSet != "mat") return path;
  const Signs signs = SignsOf(path);
  if (signs.second.isEmpty()) return path;
  constexpr double kApart = 45;  // sheet pixels
  const double right = signs.first.boundingRect().right();
  QPainterPath close = signs.first;
  close.addPath(signs.second.translated(right + kApart - signs.second.boundingRect().left(), 0));
  return close;
}

/// A picture of one ground that is drawn as if it had `size` pixels, whatever it has.
class Card {
 public:
  Card(QSize size, const QColor& ground, double larger)
      : image_(Blank(size * larger, ground)), painter_(&image_), whole_(QPointF(), QSizeF(size)) {
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.scale(larger, larger);
  }
  QPainter& Painter() { return painter_; }
  const QRectF& Whole() const { return whole_; }
  /// What was drawn. Ends the drawing.
  QImage Drawn() {
    painter_.end();
    return image_;
  }

 private:
  QImage image_;
  QPainter painter_;
  QRectF whole_;
};

}  // namespace

std::span<const Subject> Subjects() {
  return kSubjects;
}

QImage Blank(QSize size, const QColor& ground) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(ground);
  return image;
}

void DrawLetter(QPainter& painter, const Subject& subject, int tile, const QRectF& place,
                double width) {
  const QPainterPath path = TilePath(subject, tile);
  if (path.isEmpty()) return;
  const QRectF bounds = path.boundingRect();
  const QRectF room = place.adjusted(width / 2, width / 2, -width / 2, -width / 2);
  // Small marks are not blown up beyond recognition: no letter is drawn larger than twice what
  // a letter of full height would be.
  constexpr double kFullHeight = 150;
  const double scale =
      std::min({room.width() / std::max(bounds.width(), 1.0),
                room.height() / std::max(bounds.height(), 1.0), 1.4 * room.height() / kFullHeight});
  // Nor is a letter drawn with a much broader pen than on the sheet: its loops would fill up.
  constexpr double kBroadest = 16;  // sheet pixels; the pen itself is 10
  const double pen = std::clamp(kBroadest * scale, width * 0.42, width);
  painter.save();
  painter.translate(room.center());
  painter.scale(scale, scale);
  painter.translate(-bounds.center());
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(subject.ink, pen / scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(path);
  painter.restore();
}

QImage TilePicture(const Subject& subject, int tile, double larger) {
  Card card(subject.tile, subject.ground, larger);
  const QRectF& whole = card.Whole();
  const double height = whole.height();
  const bool corner = HasPrintedCorner(subject.letterSet);
  QRectF place = whole.adjusted(height * 0.12, height * 0.1, -height * 0.12, -height * 0.1);
  if (corner) place.setTop(height * 0.28);
  DrawLetter(card.Painter(), subject, tile, place, height * 0.075);
  if (corner) DrawCornerSign(card.Painter(), subject, tile, whole);
  return card.Drawn();
}

QImage LetteringPicture(double larger) {
  // 238 by 45 pixels on the sheet as designed.
  Card card({952, 180}, Qt::white, larger);
  DrawPrinted(card.Painter(), QString::fromUtf8(kHindiLettering),
              card.Whole().adjusted(16, 0, -16, 0), Qt::AlignHCenter, QColor(0x1565C0));
  return card.Drawn();
}

QImage SetButtonPicture(int set, double larger) {
  const Subject& subject = kSubjects[3];
  Card card({320, 220}, subject.ground, larger);
  DrawLetter(card.Painter(), subject, FirstHindiTileOf(set),
             card.Whole().adjusted(90, 25, -20, -25), 15);
  DrawPrinted(card.Painter(), QString::number(set), card.Whole().adjusted(14, 0, -200, 0),
              Qt::AlignLeft, kPrintColour);
  return card.Drawn();
}

QImage SignPicture(int tile, double larger) {
  const Subject& subject = kSubjects[6];
  Card card(subject.tile, subject.ground, larger);
  const QPainterPath path = SignsOf(LetterPath(subject.letterSet, tile, subject.book)).first;
  const QRectF place = card.Whole().adjusted(50, 40, -50, -40);
  const QRectF bounds = path.boundingRect();
  const double scale = std::min(place.width() / std::max(bounds.width(), 1.0),
                                place.height() / std::max(bounds.height(), 1.0));
  QPainter& painter = card.Painter();
  painter.translate(place.center());
  painter.scale(scale, scale);
  painter.translate(-bounds.center());
  painter.setPen(QPen(subject.ink, 20 / scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(path);
  return card.Drawn();
}

QImage TableButtonPicture(double larger) {
  const Subject& subject = kSubjects[6];
  Card card({320, 220}, subject.ground, larger);
  constexpr std::array kRows = {"2 x 1 = 2", "2 x 2 = 4", "2 x 3 = 6"};
  QRectF row(0, 12, 320, 68);
  for (const char* text : kRows) {
    DrawPrinted(card.Painter(), QString::fromLatin1(text), row, Qt::AlignHCenter, subject.ink);
    row.translate(0, 64);
  }
  return card.Drawn();
}

}  // namespace bramlee
