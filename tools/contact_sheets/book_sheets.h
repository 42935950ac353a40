// Contact sheets of the book: a row a letter, as given, as in the book, and its printed sign in two
// fonts.
#pragma once

#include <QImage>

#include "letters/letter_sets.h"

namespace bramlee {

/// Draws the sheets of a set into the folder; returns whether they could be written.
bool DrawBookSheets(const LetterSet& set, const QString& folder);

/// Writes a set's sheet of that number into the folder; says so on the standard error when it
/// cannot.
bool SaveSheet(const QImage& sheet, const QString& folder, const LetterSet& set,
               std::size_t number);

}  // namespace bramlee
