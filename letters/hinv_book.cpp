// Hindi vowels and vowel signs as in the book.
#include "letters/book_forms.h"

namespace bramlee {

std::span<const BookForm> HindiVowelsInTheBook() {
  return {};
}

}  // namespace bramlee
