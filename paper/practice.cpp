#include "paper/practice.h"

#include "letters/letter_names.h"
#include "strokes/word.h"

namespace bramlee {
namespace {

/// Where the lines of another sheet run when its body is made as high as that of words.
WritingLines OnSheetOfWords(const WritingLines& lines) {
  const double scale = (kWordBase - kWordHead) / lines.BodyHeight();
  const auto placed = [&](double y) { return kWordBase + (y - lines.base) * scale; };
  return {.top = placed(lines.top),
          .middle = placed(lines.middle),
          .base = placed(lines.base),
          .foot = placed(lines.foot),
          .bodyTop = placed(lines.bodyTop)};
}

/// The set whose lines a text is written on: that of its first letter.
std::string_view SetOfText(const QString& text) {
  for (const QChar sign : text) {
    if (sign.script() == QChar::Script_Devanagari) return "hinc";
    if (sign.script() == QChar::Script_Telugu) return "telc";
    if (sign.isLetter()) return "engs";
  }
  return "mat";
}

}  // namespace

Practice PracticeOf(const LetterId& id) {
  return {.letter = LetterOf(id),
          .lines = WritingLinesOf(id.set),
          .set = id.set,
          .caption = QString::fromStdString(LetterName(id.set, id.tile, id.form.book)),
          .word = {},
          .notes = {}};
}

Practice WordPractice(const QString& text) {
  const std::string_view set = SetOfText(text);
  Practice practice{.letter = {},
                    .lines = OnSheetOfWords(WritingLinesOf(set)),
                    .set = set,
                    .caption = text.simplified(),
                    .word = text.simplified().toStdString(),
                    .notes = {}};
  const Word word = LayWord(practice.word);
  practice.letter = word.letter;
  for (const LeftOut& each : word.leftOut) {
    practice.notes.append(QStringLiteral("%1 has no strokes and is left out of \"%2\"")
                              .arg(QString::fromStdString(each.text), practice.caption));
  }
  return practice;
}

Practice NumberPractice(int number) {
  return number < 0 ? Practice() : WordPractice(QString::number(number));
}

}  // namespace bramlee
