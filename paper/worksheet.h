// A worksheet: rows of letters to look at, to trace and to write.
#pragma once

#include <QString>
#include <vector>

#include "paper/practice.h"
#include "paper/printed_pages.h"
#include "paper/sheet_style.h"

namespace bramlee {

/// The line on top of a page. What is empty is left to be filled in by hand.
struct Heading {
  bool shown = true;
  QString name{};
  QString schoolClass{};
  QString date{};
};

/// All of a worksheet, as data.
struct Worksheet {
  std::vector<Practice> practices{};
  SheetStyle style{};
  PageFormat page{};
  Heading heading{};
};

/// Lays the rows out on pages: as many letters a row as fit, the rows of a letter together where a
/// page can hold them. Strokes built up that are more than the cells of a row go on in the next.
/// What is too wide for a row is made smaller. Errors: NothingToPrint, RowTooHigh.
LaidOut LayOut(const Worksheet& sheet);

}  // namespace bramlee
