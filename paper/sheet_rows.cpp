#include "paper/sheet_rows.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "paper/print_ink.h"
#include "paper/print_text.h"
#include "strokes/word.h"

namespace bramlee {
namespace {

// In millimetres.
constexpr double kLeastCellGap = 4;   ///< between the letters of a row
constexpr double kLeastRowGap = 1.5;  ///< between two rows of a letter
constexpr double kGroupGap = 6;       ///< between the rows of two letters
constexpr double kCaption = 3.5;      ///< size of a caption
constexpr double kCaptionRoom = 5;    ///< from its upper edge to the row below
constexpr double kBoxPadding = 2;     ///< between ink and box

// As parts of the body's height.
constexpr double kCellGap = 0.3;  ///< between the letters of a row
constexpr double kRowGap = 0.15;  ///< between two rows of a letter

/// A word too long for a row is made so much smaller at most before it is broken into lines.
constexpr double kSmallestWord = 0.5;

/// What a page holds is compared with so much to spare: sums of the same lengths may differ.
constexpr double kRounding = 1e-6;

QString Mm(double length) {
  return QString::number(std::round(length * 10) / 10);
}

}  // namespace

SheetRows::SheetRows(const std::vector<Practice>& practices, const SheetStyle& style,
                     const RowsArea& area)
    : style_(style), area_(area) {
  for (const Practice& practice : practices) AddFigures(practice);
  for (std::size_t i = 0; i < figures_.size() && error_.IsNone(); ++i) Place(i);
}

/// One figure, or for a word that is too long one a line; made smaller where it is too wide.
void SheetRows::AddFigures(const Practice& practice) {
  Figure figure(practice, style_.bodyMm, style_.hand);
  const double room = area_.width - kLeastCellGap;
  const double smaller = room / (2 * figure.HalfWidthMm());
  if (smaller >= 1) return figures_.push_back(std::move(figure));
  if (practice.word.empty() || smaller >= kSmallestWord) {
    return figures_.emplace_back(practice, style_.bodyMm * smaller, style_.hand), void();
  }
  const double body = style_.bodyMm * kSmallestWord;
  const double pixels = room / (figure.Scale() * kSmallestWord);
  Practice line = practice;
  for (const Word& word : LayLines(practice.word, pixels)) {
    line.letter = word.letter;
    Figure part(line, body, style_.hand);
    const double tooWide = std::max(1.0, 2 * part.HalfWidthMm() / room);
    figures_.push_back(tooWide > 1 ? Figure(line, body / tooWide, style_.hand) : std::move(part));
    line.caption.clear();
  }
}

Ruling SheetRows::RulingFor(const Figure& figure) const {
  return style_.ruling.value_or(RulingOf(figure.Shown().set));
}

int SheetRows::CellsOf(const Figure& figure) const {
  const double cell = 2 * figure.HalfWidthMm() + std::max(kLeastCellGap, kCellGap * style_.bodyMm);
  return std::max(1, static_cast<int>(area_.width / cell + kRounding));
}

/// All rows of a letter have the same height, but for the numbers of a model, which take what they
/// need.
RowReach SheetRows::ReachOfRow(const Figure& figure, RowKind kind) const {
  const bool model = kind == RowKind::Model || style_.hand == Hand::Left;
  const Ruling ruling = RulingFor(figure);
  RowReach reach = ReachOf(ruling, figure);
  reach.above = std::max(reach.above, figure.AboveMm(model));
  reach.below = std::max(reach.below, figure.BelowMm(model));
  if (ruling == Ruling::Boxes) reach.above += kBoxPadding, reach.below += kBoxPadding;
  return reach;
}

double SheetRows::RowGap() const {
  return std::max(kLeastRowGap, kRowGap * style_.bodyMm);
}

/// The rows of one figure, not yet on a page.
std::vector<PlacedRow> SheetRows::RowsOf(std::size_t index) const {
  std::vector<PlacedRow> rows;
  const Figure& figure = figures_[index];
  const int cells = CellsOf(figure);
  for (const RowKind kind : style_.rows) {
    const std::size_t own =
        static_cast<std::size_t>(std::max(1, style_.hand == Hand::Left ? cells - 1 : cells));
    const std::size_t parts =
        kind == RowKind::BuiltUp ? (figure.Strokes() + own - 1) / own : std::size_t{1};
    for (std::size_t part = 0; part < parts; ++part) {
      rows.push_back({.figure = index,
                      .kind = kind,
                      .base = 0,
                      .cells = cells,
                      .part = part,
                      .reach = ReachOfRow(figure, kind)});
    }
  }
  return rows;
}

/// On the last page if all its rows fit there, else on a new one, and on more where a page holds
/// only some of them.
void SheetRows::Place(std::size_t index) {
  const Figure& figure = figures_[index];
  std::vector<PlacedRow> rows = RowsOf(index);
  const bool hasCaption = !figure.Shown().caption.isEmpty();
  const double head = hasCaption ? kCaptionRoom : 0;
  double height = head - RowGap();
  for (const PlacedRow& row : rows) height += row.reach.above + row.reach.below + RowGap();
  const double bottom = area_.bottom + kRounding;
  if (pages_.empty() || next_ + height > bottom) pages_.emplace_back(), next_ = area_.top;
  bool first = true;
  for (PlacedRow& row : rows) {
    const double rowHeight = row.reach.above + row.reach.below;
    const double needed = (first ? head : 0) + rowHeight;
    if (area_.top + needed > bottom) {
      error_ = {.kind = PaperError::Kind::RowTooHigh,
                .text = QStringLiteral("a row of letters %1 mm high takes %2 mm, the page has room "
                                       "for %3 mm")
                            .arg(Mm(style_.bodyMm), Mm(needed),
                                 Mm(std::max(0.0, area_.bottom - area_.top)))};
      return;
    }
    if (next_ + needed > bottom) pages_.emplace_back(), next_ = area_.top;
    if (first && hasCaption) AddCaption(figure);
    if (first) next_ += head;
    first = false;
    row.base = next_ + row.reach.above;
    next_ += rowHeight + RowGap();
    pages_.back().rows.push_back(row);
  }
  next_ += kGroupGap - RowGap();
}

void SheetRows::AddCaption(const Figure& figure) {
  const QString& text = figure.Shown().caption;
  if (!CanBeShown(text)) {
    notes_.append(QStringLiteral("no font shows the caption \"%1\"").arg(text));
    return;
  }
  pages_.back().captions.push_back({.text = text, .base = next_ + kCaption});
}

void SheetRows::PaintRow(QPainter& painter, const PlacedRow& row) const {
  const Figure& figure = figures_[row.figure];
  PaintRuling(painter, RulingFor(figure), figure,
              {.left = area_.left,
               .width = area_.width,
               .base = row.base,
               .cells = row.cells,
               .reach = row.reach});
  const bool endsInModel = style_.hand == Hand::Left && row.kind != RowKind::Model && row.cells > 1;
  const int own = endsInModel ? row.cells - 1 : row.cells;
  for (int i = 0; i < row.cells; ++i) {
    const double middle = area_.left + area_.width * (i + 0.5) / row.cells;
    const std::size_t strokes =
        row.part * static_cast<std::size_t>(own) + static_cast<std::size_t>(i) + 1;
    const bool isBuilt = row.kind == RowKind::BuiltUp && strokes > figure.Strokes();
    if (i == own) {
      figure.Paint(painter, RowKind::Model, middle, row.base);
    } else if (!isBuilt) {
      figure.Paint(painter, row.kind, middle, row.base, strokes);
    }
  }
}

void SheetRows::Paint(QPainter& painter, std::size_t page) const {
  for (const PlacedRow& row : pages_[page].rows) PaintRow(painter, row);
  for (const PlacedCaption& caption : pages_[page].captions) {
    PaintText(painter, {area_.left, caption.base}, caption.text, kCaption, kCaptionInk);
  }
}

}  // namespace bramlee
