#include "letters/book_forms.h"

namespace bramlee {

void WriteFrom(std::span<const BookForm> book, StrokeRec& rec, DrawingSurface& sheet) {
  const BookForm* found = nullptr;
  for (const BookForm& form : book) {
    if (form.tile != rec.LetterNo) continue;
    if (!form.alternative || rec.AltFlag != 0) found = &form;
  }
  if (found == nullptr) return;
  Pen pen{rec, sheet};
  found->write(rec, pen);
}

}  // namespace bramlee
