// English letters as in the book.
#include "letters/book_forms.h"

namespace bramlee {

std::span<const BookForm> CapitalsInTheBook() {
  return {};
}

std::span<const BookForm> SmallLettersInTheBook() {
  return {};
}

}  // namespace bramlee
