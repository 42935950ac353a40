// Numbers in JSON.
#pragma once

#include <charconv>
#include <iterator>
#include <string>

namespace bramlee {

/// The shortest text that reads back as the same number.
inline std::string ShortestText(double number) {
  char text[32];
  return {text, std::to_chars(std::begin(text), std::end(text), number).ptr};
}

}  // namespace bramlee
