#include "paper/practice.h"

#include "letters/letter_names.h"
#include "strokes/word.h"

namespace bramlee {
namespace {

/// The sheet of words is that of the Indian sets, whose body lies between head and base line.
WritingLines LinesOfWords() {
  constexpr double kBody = kWordBase - kWordHead;
  return {.top = kWordHead - kBody / 2,
          .middle = kWordHead,
          .base = kWordBase,
          .foot = kWordBase + kBody / 2,
          .bodyTop = kWordHead};
}

}  // namespace

Practice PracticeOf(const LetterId& id) {
  return {.letter = LetterOf(id),
          .lines = WritingLinesOf(id.set),
          .caption = QString::fromStdString(LetterName(id.set, id.tile, id.form.book)),
          .word = {}};
}

Practice WordPractice(const QString& text) {
  const std::string word = text.simplified().toStdString();
  return {.letter = LayWord(word).letter,
          .lines = LinesOfWords(),
          .caption = text.simplified(),
          .word = word};
}

Practice NumberPractice(int number) {
  return number < 0 ? Practice() : WordPractice(QString::number(number));
}

}  // namespace bramlee
