// Text as characters.
#include "strokes/utf8.h"

#include <gtest/gtest.h>

namespace bramlee {
namespace {

std::vector<char32_t> CodesOf(std::string_view text) {
  std::vector<char32_t> codes;
  for (const TextCharacter& each : CharactersOf(text)) codes.push_back(each.code);
  return codes;
}

TEST(Utf8Test, ReadsCharactersOfEveryLength) {
  EXPECT_EQ(CodesOf("aéक\U0001F600"), (std::vector<char32_t>{U'a', 0xE9, 0x915, 0x1F600}));
  const auto characters = CharactersOf("éक");
  EXPECT_EQ(characters[1].at, 2U);
  EXPECT_EQ(characters[1].bytes, 3U);
}

TEST(Utf8Test, WritesBackWhatItRead) {
  for (const char32_t code :
       {U'A', U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xFFFF', U'\x10000', U'\x10FFFF'}) {
    EXPECT_EQ(CodesOf(Utf8Of(code)), (std::vector<char32_t>{code}));
  }
  EXPECT_EQ(Utf8Of(0xD800), Utf8Of(kNoCharacter));
  EXPECT_EQ(Utf8Of(0x110000), Utf8Of(kNoCharacter));
}

TEST(Utf8Test, TakesEachWrongByteAsOneCharacter) {
  using Codes = std::vector<char32_t>;
  EXPECT_EQ(CodesOf("\x80z"), (Codes{kNoCharacter, U'z'}));
  EXPECT_EQ(CodesOf("\xE0\xA4"), (Codes{kNoCharacter, kNoCharacter}));
  EXPECT_EQ(CodesOf("\xC0\xAF"), (Codes{kNoCharacter, kNoCharacter})) << "longer than need be";
  EXPECT_EQ(CodesOf("\xED\xA0\x80").size(), 3U) << "a surrogate";
  EXPECT_EQ(CodesOf("\xF5\x80\x80\x80").size(), 4U) << "beyond the last";
}

}  // namespace
}  // namespace bramlee
