// Hindi consonants as in the book.
#include "letters/book_forms.h"

namespace bramlee {

std::span<const BookForm> HindiConsonantsInTheBook() {
  return {};
}

}  // namespace bramlee
