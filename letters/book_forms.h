// Book forms: the letters as primers print them. The usual tables write some letters wrongly,
// incompletely, several in one tile, or in another order than the one that is taught; such a letter
// has a book form beside it. Which tiles have one, and its routine, stands in one table a set.
#pragma once

#include <span>

#include "letters/pen.h"

namespace bramlee {

/// One form of a tile as it stands in the book.
struct BookForm {
  int tile;
  LetterRoutine write;       ///< all that the tile shows, a foot stroke included
  bool alternative = false;  ///< stands for the tile's alternative form, not for its usual one
};

/// Writes the book form of the record's tile: the one for the form that the record asks for, or
/// else the usual one. A tile that the table does not have writes nothing.
void WriteFrom(std::span<const BookForm> book, StrokeRec& rec, DrawingSurface& sheet);

/// As a set's program, for forms whose routines lay all their anchors themselves.
template <std::span<const BookForm> (*kBook)()>
void WriteFromBook(StrokeRec& rec, DrawingSurface& sheet) {
  WriteFrom(kBook(), rec, sheet);
}

// The tables, each in the source named after it: engc and engs in latin_book.cpp, mat in
// mat_book.cpp, hinv in hinv_book.cpp, hinc in hinc_book.cpp, telv in telv_book.cpp, telc in
// telc_book.cpp.
std::span<const BookForm> CapitalsInTheBook();
std::span<const BookForm> SmallLettersInTheBook();
std::span<const BookForm> NumbersInTheBook();
std::span<const BookForm> HindiVowelsInTheBook();
std::span<const BookForm> HindiConsonantsInTheBook();
std::span<const BookForm> TeluguVowelsInTheBook();
std::span<const BookForm> TeluguConsonantsInTheBook();

}  // namespace bramlee
