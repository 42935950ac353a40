// Numbers in English words.
#pragma once

#include <QString>

namespace bramlee {

inline constexpr int kLargestSpelled = 9999;

/// 0 to 9999 in words: "one hundred and five". In words since the voice reads the figures 1905 as a
/// year. Empty for any other number.
QString NumberWords(int number);

}  // namespace bramlee
