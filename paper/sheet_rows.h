// Rows of letters set on pages.
#pragma once

#include <QString>
#include <vector>

#include "paper/figure.h"
#include "paper/paper_error.h"
#include "paper/rulings.h"

namespace bramlee {

/// The part of a page that rows may stand in, in millimetres.
struct RowsArea {
  double left = 0;
  double top = 0;
  double width = 0;
  double bottom = 0;
};

/// A row that stands on a page.
struct PlacedRow {
  std::size_t figure = 0;
  RowKind kind = RowKind::Blank;
  double base = 0;  ///< its base line
  int cells = 1;
  std::size_t part = 0;  ///< strokes built up: which of the rows that they take, from 0
  RowReach reach{};
};

struct PlacedCaption {
  QString text;
  double base = 0;
};

struct RowsPage {
  std::vector<PlacedRow> rows;
  std::vector<PlacedCaption> captions;
};

/// All rows of some practices on pages: one value, worked out once.
class SheetRows {
 public:
  /// Error() says when a row does not fit.
  SheetRows(const std::vector<Practice>& practices, const SheetStyle& style, const RowsArea& area);

  const PaperError& Error() const { return error_; }
  const QStringList& Notes() const { return notes_; }
  const std::vector<RowsPage>& Pages() const { return pages_; }
  const std::vector<Figure>& Figures() const { return figures_; }
  Ruling RulingFor(const Figure& figure) const;

  void Paint(QPainter& painter, std::size_t page) const;

 private:
  void AddFigures(const Practice& practice);
  void AddCaption(const Figure& figure);
  RowReach ReachOfRow(const Figure& figure, RowKind kind) const;
  double RowGap() const;
  int CellsOf(const Figure& figure) const;
  std::vector<PlacedRow> RowsOf(std::size_t figure) const;
  void Place(std::size_t figure);
  void PaintRow(QPainter& painter, const PlacedRow& row) const;

  SheetStyle style_;
  RowsArea area_;
  std::vector<Figure> figures_;
  std::vector<RowsPage> pages_;
  double next_ = 0;  ///< where the next row may begin on the last page
  QStringList notes_;
  PaperError error_;
};

}  // namespace bramlee
