#include "files/cp1252.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace bramlee {
namespace {

/// The characters of the bytes 0x80 to 0x9F; all other bytes are the characters of their number.
constexpr char16_t kFrom80[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98
};

std::optional<char> ByteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
    return static_cast<char>(character);
  }
  const auto* found = std::find(std::begin(kFrom80), std::end(kFrom80), character);
  if (found == std::end(kFrom80)) return std::nullopt;
  return static_cast<char>(0x80 + (found - std::begin(kFrom80)));
}

}  // namespace

QByteArray ToCp1252(const QString& text) {
  QByteArray bytes;
  for (const char32_t character : text.toStdU32String()) bytes += ByteOf(character).value_or('?');
  return bytes;
}

QString FromCp1252(QByteArrayView bytes) {
  QString text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    const char16_t number = static_cast<unsigned char>(byte);
    text += QChar(number >= 0x80 && number < 0xA0 ? kFrom80[number - 0x80] : number);
  }
  return text;
}

bool FitsCp1252(const QString& text) {
  const std::u32string characters = text.toStdU32String();
  return std::all_of(characters.begin(), characters.end(),
                     [](char32_t character) { return ByteOf(character).has_value(); });
}

}  // namespace bramlee
