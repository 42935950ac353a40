#include "strokes/writing_lines.h"

#include "letters/letter_sets.h"

namespace bramlee {

WritingLines WritingLinesOf(std::string_view letterSet) {
  const LetterSet* set = FindLetterSet(letterSet);
  if (set == nullptr) return {};
  const StrokeRec sheet = FillStrokeRec(set->sheet, 1);
  const bool hasMiddleInBody = set->sheet == SheetKind::Capitals || set->digits > 0;
  const double top = hasMiddleInBody ? sheet.Row2 : sheet.Row1;
  return {.top = top,
          .middle = hasMiddleInBody ? sheet.Row3 : sheet.Row2,
          .base = sheet.Row4,
          .foot = sheet.Row5,
          .bodyTop = set->sheet == SheetKind::SmallLetters ? top : sheet.Row2};
}

}  // namespace bramlee
