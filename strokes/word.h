// Words: letters laid side by side, their signs joined to them, as one thing to write.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "strokes/letter.h"

namespace bramlee {

/// The lines that every word is laid between, in sheet pixels: where a head line runs and capitals
/// end, and where letters stand. They are those of the Hindi and Telugu boards.
inline constexpr double kWordHead = 325;
inline constexpr double kWordBase = 475;

/// How the head line of Hindi is drawn.
enum class HeadLine : std::uint8_t {
  Once,       ///< over each whole word, after its letters
  PerLetter,  ///< over each letter, after its strokes
};

struct WordOptions {
  HeadLine headLine = HeadLine::Once;
  double step = kUsualStep;  ///< the step that the word is to be written at
};

/// A letter of a word with all signs that belong to it.
struct WordLetter {
  std::string text;             ///< UTF-8
  std::size_t firstStroke = 0;  ///< its pen strokes in Word::letter, a head line drawn once apart
  std::size_t strokes = 0;
  double left = 0;   ///< its room in the word, in sheet pixels
  double right = 0;  ///< the same
};

/// A character that is not in the word, for want of strokes or because it cannot stand there.
struct LeftOut {
  std::string text;    ///< UTF-8; U+FFFD for bytes that are no UTF-8
  std::size_t at = 0;  ///< its first byte in the text
  bool operator==(const LeftOut&) const = default;
};

/// A word, or several with blanks between them, on one line.
struct Word {
  /// All that is written, in writing order: a letter of no set, to be placed on a page, written,
  /// traced and numbered as any other. Its own sheet is the line: 0 is where its room begins. Its
  /// text is that of its letters, with one blank between words.
  Letter letter;
  std::vector<WordLetter> letters;
  double width = 0;  ///< the room that it takes, with the margins of its outer letters
  std::vector<LeftOut> leftOut;
  bool goesOn =
      false;  ///< of a line: whether it ends within a word, which the next one goes on with
};

/// Lays out a text of Latin, Hindi and Telugu letters, digits and signs on one line, however long.
/// Letters are those of the book. What cannot be written is left out and named; the rest is laid as
/// if it were not there. The same text gives the same word.
Word LayWord(std::string_view text, const WordOptions& options = {});

/// The same on as many lines as it takes: broken at blanks, and within a word between two letters
/// where it alone is wider than `width` (sheet pixels). A letter wider than that has a line of its
/// own. A line without strokes is left out, but its left-out characters go with the next one, or
/// the last. At least one line.
std::vector<Word> LayLines(std::string_view text, double width, const WordOptions& options = {});

struct WordPiece;

/// A text read once, to be laid on lines of several widths.
class WordText {
 public:
  explicit WordText(std::string_view text);

  /// How many lines Lay() gives at that width.
  std::size_t CountLines(double width) const;
  /// The room that it takes on one line.
  double Width() const;
  /// As LayLines.
  std::vector<Word> Lay(double width, const WordOptions& options = {}) const;

 private:
  std::shared_ptr<const std::vector<WordPiece>> pieces_;  ///< never null
};

/// Lines as one letter, each `pitch` sheet pixels below the one before: all that is written, in
/// writing order. The first one's own sheet is that of the whole. Without lines it has no runs.
Letter LinesAsLetter(std::span<const Word> lines, double pitch);

}  // namespace bramlee
