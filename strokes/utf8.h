// Reads UTF-8 text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace bramlee {

/// What stands for bytes that are no UTF-8.
inline constexpr char32_t kNoCharacter = 0xFFFD;

/// A character of a text.
struct TextCharacter {
  char32_t code = 0;
  std::size_t at = 0;     ///< its first byte in the text
  std::size_t bytes = 0;  ///< how many it takes there
};

/// The characters of the text, in its order. A byte that begins no character, or whose character is
/// cut short, too long or a surrogate, is kNoCharacter.
std::vector<TextCharacter> CharactersOf(std::string_view text);

/// The character in UTF-8; kNoCharacter for a code that is none.
std::string Utf8Of(char32_t code);

}  // namespace bramlee
