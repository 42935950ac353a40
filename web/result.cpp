#include "web/result.h"

namespace bramlee {

Result& PresentResult() {
  static Result result;
  return result;
}

Result& NewResult() {
  Result& result = PresentResult();
  result.numbers.clear();
  result.text.clear();
  return result;
}

std::string Quoted(std::string_view text) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string quoted = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20) {
      quoted += "\\u00";
      quoted += {kDigits[byte >> 4], kDigits[byte & 0xF]};
      continue;
    }
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + '"';
}

}  // namespace bramlee
