// Numbers in English words.
#pragma once

#include <QString>

namespace bramlee {

inline constexpr int kLargestSpelled = 9999;

/// 0 to 9999 in words: "one hundred and five". Spelled out since the voice would say 1905 like a
/// year. Empty for any other number.
QString NumberWords(int number);

}  // namespace bramlee
