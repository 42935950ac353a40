// What the scripts lay their letters with: ink, and how a letter stands with its signs.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "strokes/letter.h"
#include "strokes/placing.h"
#include "strokes/utf8.h"

namespace bramlee {

/// Pen strokes on the sheet of a word, in writing order.
class WordInk {
 public:
  /// Adds a letter's strokes, so placed, but for the runs of these indices; a stroke that loses a
  /// run in its middle becomes two.
  void Add(const Letter& letter, const Placing& placing, std::span<const std::size_t> without = {});
  /// Adds one stroke. Without runs it adds none.
  void AddStroke(std::span<const Run> runs);
  /// Adds other ink, moved to the right.
  void Append(const WordInk& other, double right);

  std::size_t Strokes() const { return strokes_.size(); }
  /// Around its dots, to a pixel; all zeros without any.
  Box Bounds() const;
  /// All of it as one letter that says that text. Each of its letters counts as large as from head
  /// to base, with however many signs.
  Letter AsLetter(double step, std::string text) const;

 private:
  std::vector<Run> runs_;
  std::vector<PenStroke> strokes_;
};

/// From here to there across a sheet.
struct Reach {
  double from = 0;
  double to = 0;
};

/// A letter with its signs, laid from x = 0 on.
struct Cluster {
  std::size_t characters = 0;  ///< how many of the text it takes; 0: they are none of this script
  WordInk ink{};               ///< empty when none of them can be written
  double width = 0;            ///< its room
  std::vector<Reach> head{};   ///< where a head line runs over it
  std::vector<TextCharacter> leftOut{};
};

// Each reads the first letter of the characters, at least one, with all signs that follow it.
Cluster ReadLatin(std::span<const TextCharacter> text);
Cluster ReadHindi(std::span<const TextCharacter> text);
Cluster ReadTelugu(std::span<const TextCharacter> text);

/// A character that writes nothing itself and says how its neighbours join, or which way text runs.
constexpr bool IsJoiner(char32_t code) {
  return (code >= 0x200B && code <= 0x200F) || code == 0x2060 || code == 0xFEFF;
}
inline constexpr char32_t kNonJoiner = 0x200C;
inline constexpr char32_t kJoiner = 0x200D;

/// A level line to the right.
Run LineRightRun(double fromX, double y, double toX);
/// A circle's arc, degrees as ArcStroke's.
Run ArcRun(double from, double to, int sweepDir, Point centre, double radius);

}  // namespace bramlee
