// The book of all letters: every set, a contents page in front, page numbers below.
#pragma once

#include <string_view>
#include <vector>

#include "paper/printed_pages.h"
#include "paper/sheet_style.h"

namespace bramlee {

struct LetterBook {
  std::vector<std::string_view> sets{};  ///< empty for all
  bool given = false;                    ///< the letters as given instead of as in the book
  SheetStyle style{};
  PageFormat page{};
};

/// Lays the book out; letters without strokes are left out and noted. Errors: UnknownSet,
/// NothingToPrint, RowTooHigh.
LaidOut LayOut(const LetterBook& book);

/// What a set is called in the book: "Hindi vowels"; empty for one that there is not.
QString TitleOfSet(std::string_view letterSet);

/// The language of a set as DocumentInfo has it.
QString LanguageOfSet(std::string_view letterSet);

}  // namespace bramlee
