// Tables with a line a character.
#pragma once

#include <algorithm>
#include <iterator>

namespace bramlee {

/// The table's record of that `code`; null where there is none, and for code 0, which stands for no
/// character.
template <class Table>
auto RecordOfCode(const Table& table, char32_t code) -> decltype(&table[0]) {
  const auto found =
      std::ranges::find_if(table, [code](const auto& each) { return each.code == code; });
  return found == std::end(table) || code == 0 ? nullptr : &*found;
}

}  // namespace bramlee
