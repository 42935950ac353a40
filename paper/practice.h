// What is practised on a sheet: a letter, a number, a word.
#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <string_view>

#include "strokes/letter.h"
#include "strokes/writing_lines.h"

namespace bramlee {

/// What is written as one, and where the lines of the book run through it.
struct Practice {
  Letter letter{};
  WritingLines lines{};    ///< in the letter's sheet pixels
  std::string_view set{};  ///< the letter set that the lines are of
  QString caption{};       ///< printed small above the rows; empty for none
  /// UTF-8, of a word: one that is too long for a row is made smaller and then broken into lines.
  std::string word{};
  /// What could not be written of a word, a line each for people.
  QStringList notes{};
};

/// The letter of a tile with its name as caption. One without strokes has no runs.
Practice PracticeOf(const LetterId& id);

/// A word or several, of any script that words can be laid in; the caption is the text. Without
/// runs when nothing of it can be written.
Practice WordPractice(const QString& text);

/// A number, in the digits of the book. A negative one has no runs.
Practice NumberPractice(int number);

}  // namespace bramlee
