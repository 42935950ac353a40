// What a tile is called: for screen readers, and in print for the corner of its picture.
#pragma once

#include <string>
#include <string_view>

namespace bramlee {

/// The letter in print, UTF-8: "A", "क", a half form, a vowel sign. Empty for a tile that has no
/// printed letter of its own or that is not in the set. `book`: as the tile stands in the book.
std::string PrintedLetter(std::string_view letterSet, int tile, bool book = false);

/// The tile's name as a teacher says it, UTF-8: "capital A", "half ka (क्‍)". Empty for a
/// tile outside the set. `book`: as the tile stands in the book.
std::string LetterName(std::string_view letterSet, int tile, bool book = false);

/// The line of lettering that a tile of the Hindi vowels shows, UTF-8: syllables, a blank between
/// two.
inline constexpr char kHindiLettering[] = "का कि की कु कू के";

/// Whether the tile writes nothing and shows the line of lettering instead.
bool ShowsLettering(std::string_view letterSet, int tile);

}  // namespace bramlee
