#include "film/flash_cards.h"

#include <QPainter>
#include <algorithm>
#include <iterator>
#include <utility>

#include "paper/print_text.h"
#include "paper/vector_letter.h"

namespace bramlee {
namespace {

constexpr int kColumns = 2;
constexpr int kRows = kCardsOnAPage / kColumns;

// All in millimetres.
constexpr double kInset = 4;  ///< within a card
constexpr double kGap = 3;    ///< between the parts of a card
constexpr double kStepsHeight = 17;
constexpr double kSignSize = 11;  ///< of the printed sign
constexpr double kNameSize = 4;
constexpr double kStepNumberSize = 2.6;
constexpr double kStepNumberPart = 0.2;  ///< of a low step's height
constexpr double kFineLine = 0.2;

const QColor kCutLine(0xB0, 0xB0, 0xB0);
const QColor kPale(0xC8, 0xC8, 0xC8);
const QColor kText(0x26, 0x32, 0x38);

/// From here on the painter's unit is a sheet pixel, and the film's view lies in the middle of that
/// room, as wide.
void EnterView(QPainter& painter, const LetterFilm& film, const QRectF& room) {
  const Box& view = film.View();
  const double scale = room.width() / view.width;
  painter.translate(room.left(), room.center().y() - scale * view.height / 2);
  painter.scale(scale, scale);
  painter.translate(-view.x, -view.y);
}

void PaintWhole(QPainter& painter, const LetterFilm& film, const QRectF& square) {
  painter.save();
  EnterView(painter, film, square);
  PaintLetter(painter, film.Shown(), {.ink = film.Look().ink});
  if (!film.Numbers().empty()) PaintSigns(painter, film.Numbers(), {.ink = kText});
  painter.restore();
}

/// The strokes before in pale, the newest in ink.
void PaintStep(QPainter& painter, const LetterFilm& film, std::size_t stroke, const QRectF& room) {
  painter.save();
  EnterView(painter, film, room);
  PaintLetter(painter, film.Shown(), {.ink = kPale, .upTo = stroke});
  PaintLetter(painter, film.Shown(), {.ink = film.Look().ink, .from = stroke, .upTo = stroke + 1});
  painter.restore();
  const double size = std::min(kStepNumberSize, kStepNumberPart * room.height());
  PaintText(painter, {room.left(), room.top() + size}, QString::number(stroke + 1), size, kText);
}

/// Steps in rows, each as wide and high as that.
struct StepGrid {
  int columns = 1;
  double width = 0;
  double height = 0;
};

/// As many rows as make the steps largest.
StepGrid GridOf(const LetterFilm& film, const QSizeF& room) {
  const auto steps = static_cast<int>(film.Shown().PenStrokes().size());
  const double flatness = film.View().height / film.View().width;
  StepGrid best;
  for (int rows = 1; rows <= steps; ++rows) {
    const int columns = (steps + rows - 1) / rows;
    const double width = std::min(room.width() / columns, room.height() / rows / flatness);
    if (width > best.width) {
      best = {.columns = columns, .width = width, .height = width * flatness};
    }
  }
  return best;
}

void PaintSteps(QPainter& painter, const LetterFilm& film, const QRectF& place) {
  const auto steps = static_cast<int>(film.Shown().PenStrokes().size());
  const StepGrid grid = GridOf(film, place.size());
  const int rows = (steps + grid.columns - 1) / grid.columns;
  const double top = place.center().y() - rows * grid.height / 2;
  for (int i = 0; i < steps; ++i) {
    const int row = i / grid.columns;
    const int column = i % grid.columns;
    PaintStep(
        painter, film, static_cast<std::size_t>(i),
        {place.left() + column * grid.width, top + row * grid.height, grid.width, grid.height});
  }
}

/// The text as large as it fits the width.
void PaintFitting(QPainter& painter, const QPointF& baseLine, const QString& text, double size,
                  double width) {
  if (text.isEmpty() || !CanBeShown(text)) return;
  const double asWide = TextWidthMm(text, size);
  PaintText(painter, baseLine, text, size * std::min(1.0, width / asWide), kText);
}

void PaintPictureRoom(QPainter& painter, const QRectF& room) {
  QPen dashes(kCutLine, kFineLine);
  dashes.setStyle(Qt::DashLine);
  painter.setPen(dashes);
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(room, kGap / 2, kGap / 2);
}

}  // namespace

FlashCards::FlashCards(std::vector<LetterFilm> letters, const PageFormat& page) : page_(page) {
  for (LetterFilm& film : letters) {
    if (film.HasStrokes()) {
      letters_.push_back(std::move(film));
    } else {
      notes_ << QStringLiteral("%1 has no strokes").arg(film.Name());
    }
  }
}

int FlashCards::Count() const {
  const auto letters = static_cast<int>(letters_.size());
  return std::max(1, (letters + kCardsOnAPage - 1) / kCardsOnAPage);
}

QSizeF FlashCards::CardMm() const {
  return {(SizeMm().width() - 2 * kMarginMm) / kColumns,
          (SizeMm().height() - 2 * kMarginMm) / kRows};
}

void FlashCards::Paint(QPainter& painter, int page) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(kMarginMm, kMarginMm);
  PaintCutLines(painter);
  for (int i = 0; i < kCardsOnAPage; ++i) {
    const int letter = page * kCardsOnAPage + i;
    if (letter >= std::ssize(letters_)) break;
    painter.save();
    const int row = i / kColumns;
    painter.translate(i % kColumns * CardMm().width(), row * CardMm().height());
    PaintCard(painter, letters_[static_cast<std::size_t>(letter)]);
    painter.restore();
  }
  painter.restore();
}

void FlashCards::PaintCutLines(QPainter& painter) const {
  const QSizeF card = CardMm();
  painter.setPen(QPen(kCutLine, kFineLine));
  for (int column = 0; column <= kColumns; ++column) {
    const double x = column * card.width();
    painter.drawLine(QPointF(x, 0), QPointF(x, kRows * card.height()));
  }
  for (int row = 0; row <= kRows; ++row) {
    const double y = row * card.height();
    painter.drawLine(QPointF(0, y), QPointF(kColumns * card.width(), y));
  }
}

void FlashCards::PaintCard(QPainter& painter, const LetterFilm& film) const {
  const QRectF card = QRectF({}, CardMm()).marginsRemoved({kInset, kInset, kInset, kInset});
  const double side = card.height() - kStepsHeight - kGap;
  PaintWhole(painter, film, {card.left(), card.top(), side, side});
  PaintSteps(painter, film,
             {card.left(), card.bottom() - kStepsHeight, card.width(), kStepsHeight});
  const double left = card.left() + side + kGap;
  const double width = card.right() - left;
  const double signLine = card.top() + kSignSize * 1.1;
  const double nameLine = signLine + kNameSize * 1.6;
  PaintFitting(painter, {left, signLine}, film.Sign(), kSignSize, width);
  if (film.Name() != film.Sign()) {
    PaintFitting(painter, {left, nameLine}, film.Name(), kNameSize, width);
  }
  const double top = nameLine + kGap;
  PaintPictureRoom(painter, {left, top, width, card.top() + side - top});
}

}  // namespace bramlee
