// Digits and signs as in the book.
#include "letters/book_forms.h"

namespace bramlee {

std::span<const BookForm> NumbersInTheBook() {
  return {};
}

}  // namespace bramlee
