// Telugu vowels and vowel signs as in the book.
#include "letters/book_forms.h"

namespace bramlee {

std::span<const BookForm> TeluguVowelsInTheBook() {
  return {};
}

}  // namespace bramlee
