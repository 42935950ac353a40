#include "film/file_names.h"

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

/// And reads well between the dashes of a name.
bool EveryFileSystemTakes(const QString& sign) {
  static const QString kRefused = QStringLiteral("\\/:*?\"<>|%-");
  return !sign.isEmpty() && std::ranges::none_of(sign, [](QChar each) {
    return each <= u' ' || kRefused.contains(each);
  });
}

QString SignPart(const LetterId& id) {
  QString sign = QString::fromStdString(PrintedLetter(id.set, id.tile, id.form.book));
  if (EveryFileSystemTakes(sign)) return sign;
  return QString::fromStdString(LetterName(id.set, id.tile, id.form.book)).replace(u' ', u'-');
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

QString StepName(const QString& letter, int step, int steps) {
  const int digits = steps > 9 ? 2 : 1;
  return QStringLiteral("%1-%2").arg(letter).arg(step, digits, 10, QChar(u'0'));
}

}  // namespace bramlee
