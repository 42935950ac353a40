#include "strokes/utf8.h"

#include <cstdint>

namespace bramlee {
namespace {

constexpr char32_t kLastCode = 0x10FFFF;

constexpr bool IsSurrogate(char32_t code) {
  return code >= 0xD800 && code <= 0xDFFF;
}

/// How the first byte of a character tells its length and the least code of that length.
struct Lead {
  std::uint8_t mask;
  std::uint8_t bits;
  std::size_t bytes;
  char32_t least;
};
constexpr Lead kLeads[] = {
    {0x80, 0x00, 1, 0      },
    {0xE0, 0xC0, 2, 0x80   },
    {0xF0, 0xE0, 3, 0x800  },
    {0xF8, 0xF0, 4, 0x10000},
};

TextCharacter CharacterAt(std::string_view text, std::size_t at) {
  const TextCharacter none{.code = kNoCharacter, .at = at, .bytes = 1};
  const auto first = static_cast<std::uint8_t>(text[at]);
  for (const Lead& lead : kLeads) {
    if ((first & lead.mask) != lead.bits) continue;
    if (at + lead.bytes > text.size()) return none;
    char32_t code = first & static_cast<std::uint8_t>(~lead.mask);
    for (std::size_t i = 1; i < lead.bytes; ++i) {
      const auto next = static_cast<std::uint8_t>(text[at + i]);
      if ((next & 0xC0) != 0x80) return none;
      code = code << 6 | (next & 0x3F);
    }
    if (code < lead.least || code > kLastCode || IsSurrogate(code)) return none;
    return {.code = code, .at = at, .bytes = lead.bytes};
  }
  return none;
}

}  // namespace

std::vector<TextCharacter> CharactersOf(std::string_view text) {
  std::vector<TextCharacter> characters;
  for (std::size_t at = 0; at < text.size(); at += characters.back().bytes) {
    characters.push_back(CharacterAt(text, at));
  }
  return characters;
}

std::string Utf8Of(char32_t code) {
  if (code > kLastCode || IsSurrogate(code)) return Utf8Of(kNoCharacter);
  const auto tail = [code](int shift) { return static_cast<char>(0x80 | (code >> shift & 0x3F)); };
  if (code < 0x80) return {static_cast<char>(code)};
  if (code < 0x800) return {static_cast<char>(0xC0 | code >> 6), tail(0)};
  if (code < 0x10000) return {static_cast<char>(0xE0 | code >> 12), tail(6), tail(0)};
  return {static_cast<char>(0xF0 | code >> 18), tail(12), tail(6), tail(0)};
}

}  // namespace bramlee
