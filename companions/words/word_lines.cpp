#include "companions/words/word_lines.h"

namespace bramlee {
namespace {

/// From line to line, in heights from head to base: room for signs above and below.
constexpr double kLinePitch = 1.9;
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

/// The base of the first line: one alone stands where the board's letters do.
double FirstBase(std::size_t lines, double scale, const WordRoom& room) {
  if (lines == 1) return room.base;
  const double body = (kWordBase - kWordHead) * scale;
  const double free = room.around.bottom - room.around.top - HeightOf(lines, scale);
  return room.around.top + free / 2 + (kHeadBelowTop + 1) * body;
}

}  // namespace

SetText SetWords(std::string_view text, const WordOptions& options, const WordRoom& room,
                 std::uint32_t colour) {
  const double width = room.around.right - room.around.left;
  const double height = room.around.bottom - room.around.top;
  double scale = Scaled(room);
  const WordText words(text);
  const double least = scale * kSmallest;
  const auto fits = [&] {
    const std::size_t lines = words.CountLines(width / scale);
    return lines == 1 ? words.Width() * scale <= width : HeightOf(lines, scale) <= height;
  };
  while (!fits() && scale > least) scale *= kSmaller;
  const std::vector<Word> lines = words.Lay(width / scale, options);
  SetText set;
  for (const Word& line : lines) {
    set.leftOut.insert(set.leftOut.end(), line.leftOut.begin(), line.leftOut.end());
  }
  if (lines.front().letters.empty()) return set;  // then it is the only one
  const double down = FirstBase(lines.size(), scale, room) - kWordBase * scale;
  set.lines = lines.size();
  set.letter = {
      .letter = LinesAsLetter(lines, kLinePitch * (kWordBase - kWordHead)),
      .colour = colour,
      .placing = {.scale = scale, .right = room.around.left, .down = down}
  };
  return set;
}

}  // namespace bramlee
