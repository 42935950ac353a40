// Numbers in JSON.
#pragma once

#include <charconv>
#include <cmath>
#include <iterator>
#include <string>

namespace bramlee {

/// The shortest text that reads back as the same number.
inline std::string ShortestText(double number) {
  char text[32];
  return {text, std::to_chars(std::begin(text), std::end(text), number).ptr};
}

/// The same of the number rounded to a thousandth.
inline std::string ToThousandth(double number) {
  return ShortestText(std::round(number * 1000) / 1000 + 0.0);  // no -0
}

}  // namespace bramlee
