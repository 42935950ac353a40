#include "film/file_names.h"

#include <QTextBoundaryFinder>
#include <algorithm>

#include "letters/letter_names.h"

namespace bramlee {
namespace {

QString SetPart(const LetterId& id) {
  QString set = QString::fromUtf8(id.set.data(), static_cast<qsizetype>(id.set.size()));
  if (id.set != "hinc") return set;
  switch (HindiSetOf(id.tile)) {
    case kHindiHalfSet:
      return set + QStringLiteral("-half");
    case kHindiFootSet:
      return set + QStringLiteral("-with-foot");
    default:
      return set;
  }
}

int NumberIn(const LetterId& id) {
  return id.set == "hinc" ? HindiLetterOf(id.tile) : id.tile;
}

/// By some file system; or it reads badly between the dashes of a name.
bool IsRefused(QChar sign) {
  static const QString kRefused = QStringLiteral("\\/:*?\"<>|%-");
  return sign <= u' ' || kRefused.contains(sign);
}

bool EveryFileSystemTakes(const QString& sign) {
  return !sign.isEmpty() && std::ranges::none_of(sign, IsRefused);
}

QString SignPart(const LetterId& id) {
  QString sign = QString::fromStdString(PrintedLetter(id.set, id.tile, id.form.book));
  if (EveryFileSystemTakes(sign)) return sign;
  return QString::fromStdString(LetterName(id.set, id.tile, id.form.book)).replace(u' ', u'-');
}

/// Names have up to 255 bytes, of which a sign may take three; what follows a word has room too.
constexpr qsizetype kLongestWord = 64;

/// Not through the middle of a letter with its signs.
QString CutTo(const QString& text, qsizetype length) {
  if (text.size() <= length) return text;
  QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
  letters.setPosition(length);
  return text.left(letters.isAtBoundary() ? length : letters.toPreviousBoundary());
}

}  // namespace

QString FileNameOf(const LetterId& id) {
  QString name = QStringLiteral("%1-%2-").arg(SetPart(id)).arg(NumberIn(id), 2, 10, QChar(u'0'));
  name += SignPart(id);
  if (id.form.alternative) name += QStringLiteral("-alt");
  const LetterSet* set = FindLetterSet(id.set);
  const bool otherwise = set != nullptr && HasBookForm(*set, id.tile, id.form);
  if (id.form.book && otherwise) name += QStringLiteral("-book");
  if (id.form.place != 0) name += QStringLiteral("-place-%1").arg(id.form.place);
  return name;
}

QString WordFileName(const QString& word, int number) {
  QString text = word;
  std::ranges::replace_if(text, IsRefused, u' ');
  text = CutTo(text.simplified(), kLongestWord).simplified().replace(u' ', u'-');
  const QString name = QStringLiteral("word-%1").arg(number, 2, 10, QChar(u'0'));
  return text.isEmpty() ? name : name + u'-' + text;
}

QString StepName(const QString& letter, int step, int steps) {
  const int digits = steps > 9 ? 2 : 1;
  return QStringLiteral("%1-%2").arg(letter).arg(step, digits, 10, QChar(u'0'));
}

}  // namespace bramlee
