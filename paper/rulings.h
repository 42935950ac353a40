// The lines of a writing book on paper.
#pragma once

#include "paper/figure.h"

class QPainter;

namespace bramlee {

/// How far a row's lines reach from its base line, in millimetres.
struct RowReach {
  double above = 0;
  double below = 0;
};

/// The reach of the lines alone; boxes go by what stands in them, so that they have none.
RowReach ReachOf(Ruling ruling, const Figure& figure);

/// A row on the page, in millimetres.
struct RuledRow {
  double left = 0;
  double width = 0;
  double base = 0;
  int cells = 1;
  RowReach reach{};  ///< of the row's boxes
};

/// Paints the lines of a figure's row across the page; boxes have an edge between two cells.
void PaintRuling(QPainter& painter, Ruling ruling, const Figure& figure, const RuledRow& row);

}  // namespace bramlee
