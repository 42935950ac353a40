#include "engine/stroke_rec.h"

namespace bramlee {
namespace {

/// The figures from which a sheet's cells are laid out.
struct CellSizes {
  double rowH;
  double col1;
  double cellW;
  double cellH;
  double row1;
};

constexpr double kUnit = 50;

constexpr CellSizes SizesOf(SheetKind kind) {
  switch (kind) {
    case SheetKind::Capitals:
      return {.rowH = 100, .col1 = 400, .cellW = 200, .cellH = 200, .row1 = 50};
    case SheetKind::SmallLetters:
      return {.rowH = 150.0 / 2, .col1 = 400, .cellW = 200, .cellH = 200, .row1 = 50};
    case SheetKind::Wide:
      break;
  }
  return {.rowH = kUnit * 3 / 2,
          .col1 = kUnit + kUnit,
          .cellW = kUnit * 5,
          .cellH = kUnit * 3 / 2,
          .row1 = kUnit * 5};
}

}  // namespace

StrokeRec FillStrokeRec(SheetKind kind, std::int16_t letterNo) {
  const CellSizes sizes = SizesOf(kind);
  StrokeRec r;
  r.LetterNo = letterNo;
  r.Unit = kUnit;
  r.RowH = sizes.rowH;
  r.CellW = sizes.cellW;
  r.CellH = sizes.cellH;

  r.Col1 = sizes.col1;
  r.Col2 = r.Col1 + r.CellW;
  r.Col3 = r.Col2 + r.CellW;
  r.Col4 = r.Col3 + r.CellW;
  r.Col5 = r.Col4 + r.CellW;
  r.Row1 = sizes.row1;
  r.Row2 = r.Row1 + r.RowH;
  r.Row3 = r.Row2 + r.RowH;
  r.Row4 = r.Row3 + r.RowH;
  r.Row5 = r.Row4 + r.RowH;

  r.X1 = r.Col1, r.X2 = r.Col2, r.X3 = r.Col3, r.X4 = r.Col4;
  r.Y1 = r.Row1, r.Y2 = r.Row2, r.Y3 = r.Row3, r.Y4 = r.Row4;
  if (kind == SheetKind::Capitals) return r;  // no capital needs the fifth anchors

  r.X5 = r.Col5;
  r.Y5 = r.Row5;
  r.Rad = r.RowH;
  if (kind == SheetKind::Wide) {
    r.R1 = r.RowH;
    r.R2 = r.Unit / 10;
    r.R3 = r.RowH / 4;
  }
  return r;
}

double ColumnOf(const StrokeRec& rec, int column) {
  if (!IsColumn(column)) return 0;
  const double columns[] = {rec.Col1, rec.Col2, rec.Col3, rec.Col4, rec.Col5};
  return columns[column - 1];
}

}  // namespace bramlee
