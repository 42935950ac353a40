#include "companions/words/word_lines.h"

#include <utility>

namespace bramlee {
namespace {

/// From line to line, in heights from head to base: room for signs above and below.
constexpr double kLinePitch = 1.75;
/// How far below a line's top its head is, the same.
constexpr double kHeadBelowTop = 0.4;

/// Each size is so much smaller than the one tried before, down to one that a pen still draws
/// apart.
constexpr double kSmaller = 0.95;
constexpr double kSmallest = 0.05;

double Scaled(const WordRoom& room) {
  return (room.base - room.head) / (kWordBase - kWordHead);
}

double HeightOf(std::size_t lines, double scale) {
  return static_cast<double>(lines) * kLinePitch * (kWordBase - kWordHead) * scale;
}

/// The base of each line: one stands where the board's letters do.
double BaseOf(std::size_t line, std::size_t lines, double scale, const WordRoom& room) {
  if (lines == 1) return room.base;
  const double body = (kWordBase - kWordHead) * scale;
  const double free = room.around.bottom - room.around.top - HeightOf(lines, scale);
  return room.around.top + free / 2 +
         (static_cast<double>(line) * kLinePitch + kHeadBelowTop + 1) * body;
}

}  // namespace

SetText SetWords(std::string_view text, const WordOptions& options, const WordRoom& room,
                 std::uint32_t colour) {
  const double width = room.around.right - room.around.left;
  const double height = room.around.bottom - room.around.top;
  double scale = Scaled(room);
  std::vector<Word> lines = LayLines(text, width / scale, options);
  const double least = scale * kSmallest;
  const auto fits = [&] {
    return lines.size() == 1 ? lines[0].width * scale <= width
                             : HeightOf(lines.size(), scale) <= height;
  };
  while (!fits() && scale > least) {
    scale *= kSmaller;
    lines = LayLines(text, width / scale, options);
  }
  SetText set;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    Word& line = lines[i];
    set.leftOut.insert(set.leftOut.end(), line.leftOut.begin(), line.leftOut.end());
    if (line.letters.empty()) continue;
    const double down = BaseOf(i, lines.size(), scale, room) - kWordBase * scale;
    set.lines.push_back({
        .letter = std::move(line.letter),
        .colour = colour,
        .placing = {.scale = scale, .right = room.around.left, .down = down}
    });
  }
  return set;
}

}  // namespace bramlee
