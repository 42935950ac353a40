#include "companions/worksheet/worksheet_record.h"

#include <QStringList>
#include <algorithm>
#include <iterator>

#include "paper/usual_paper.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

constexpr const char* kMatters[] = {"letters", "words", "numbers", "sums", "book"};
constexpr char kNoOwnRuling[] = "script";
constexpr char kA4[] = "a4";
constexpr char kLetter[] = "letter";

QString Key(const char* name) {
  return QStringLiteral("worksheet/") + QString::fromLatin1(name);
}

QString Key(const char* name, std::string_view letterSet) {
  return Key(name) + u'/' + QString::fromLatin1(QByteArrayView(letterSet));
}

/// One word by which a choice is kept, empty where it never was.
QString Word(const QString& key) {
  return Choices::Instance().Of(key, QString()).toString();
}

void Keep(const QString& key, const QVariant& value) {
  Choices::Instance().Choose(key, value);
}

void TakeFlag(const char* name, bool& flag) {
  flag = Choices::Instance().Of(Key(name), flag).toBool();
}

/// A kept number within its bounds.
void TakeNumber(const char* name, int& number, int least, int most) {
  bool isNumber = false;
  const int kept = Word(Key(name)).toInt(&isNumber);
  if (isNumber && kept >= least && kept <= most) number = kept;
}

/// "3 5 8", and "none" for an empty list, since an empty word is as good as none at all.
QString WordsOf(const QStringList& words) {
  return words.isEmpty() ? QStringLiteral("none") : words.join(u' ');
}

std::optional<QStringList> WordsFrom(const QString& kept) {
  if (kept.isEmpty()) return {};
  if (kept == QStringLiteral("none")) return QStringList();
  return kept.split(u' ', Qt::SkipEmptyParts);
}

std::optional<QList<int>> TilesFrom(const QString& kept) {
  const auto words = WordsFrom(kept);
  if (!words) return {};
  QList<int> tiles;
  for (const QString& word : *words) tiles.append(word.toInt());
  return tiles;
}

QString WordsOf(const QList<int>& tiles) {
  QStringList words;
  for (const int tile : tiles) words.append(QString::number(tile));
  return WordsOf(words);
}

void TakeRows(std::vector<RowKind>& rows) {
  const auto words = WordsFrom(Word(Key("rows")));
  if (!words) return;
  rows.clear();
  for (const QString& word : *words) {
    if (const auto kind = RowKindNamed(word)) rows.push_back(*kind);
  }
}

QString WordsOf(const std::vector<RowKind>& rows) {
  QStringList words;
  for (const RowKind kind : rows) words.append(QString::fromLatin1(NameOf(kind)));
  return WordsOf(words);
}

void TakeSize(double& bodyMm) {
  const double kept = Word(Key("size")).toDouble();
  if (std::ranges::find(kBodySizesMm, kept) != std::end(kBodySizesMm)) bodyMm = kept;
}

void TakePaper(QSizeF& paperMm) {
  const QString kept = Word(Key("paper"));
  paperMm = kept.isEmpty() ? UsualPaperMm() : kept == QLatin1String(kLetter) ? kLetterMm : kA4Mm;
}

}  // namespace

WorksheetRecord KeptWorksheet(std::string_view letterSet) {
  WorksheetRecord record;
  const auto matter = std::ranges::find(kMatters, Word(Key("matter")).toStdString(),
                                        [](const char* name) { return std::string(name); });
  if (matter != std::end(kMatters)) {
    record.matter = static_cast<WorksheetMatter>(matter - std::begin(kMatters));
  }
  record.tiles = TilesFrom(Word(Key("letters", letterSet)));
  record.words = Word(Key("words"));
  TakeNumber("firstNumber", record.firstNumber, 1, kLastPractisedNumber);
  TakeNumber("lastNumber", record.lastNumber, record.firstNumber, kLastPractisedNumber);
  record.sums.kind = SumKindNamed(Word(Key("sums"))).value_or(record.sums.kind);
  TakeNumber("sumsLargest", record.sums.largest, kLeastLargest, kMostLargest);
  TakeNumber("sumsCount", record.sums.count, 1, kMostSums);
  TakeFlag("answers", record.sums.answers);
  TakeFlag("given", record.given);
  TakeRows(record.style.rows);
  TakeSize(record.style.bodyMm);
  record.style.ruling = RulingNamed(Word(Key("ruling", letterSet)));
  record.style.hand = Choices::Instance().Of(QString::fromLatin1(kLeftHandChoice), false).toBool()
                          ? Hand::Left
                          : Hand::Right;
  TakePaper(record.page.paperMm);
  TakeFlag("landscape", record.page.landscape);
  TakeFlag("nameLine", record.heading.shown);
  record.heading.name = Word(Key("name"));
  record.heading.schoolClass = Word(Key("class"));
  TakeFlag("fromCard", record.fromCard);
  TakeFlag("today", record.today);
  return record;
}

void KeepWorksheet(std::string_view letterSet, const WorksheetRecord& record) {
  Keep(Key("matter"), QString::fromLatin1(kMatters[static_cast<std::size_t>(record.matter)]));
  if (record.tiles) Keep(Key("letters", letterSet), WordsOf(*record.tiles));
  Keep(Key("words"), record.words);
  Keep(Key("firstNumber"), record.firstNumber);
  Keep(Key("lastNumber"), record.lastNumber);
  Keep(Key("sums"), QString::fromLatin1(NameOf(record.sums.kind)));
  Keep(Key("sumsLargest"), record.sums.largest);
  Keep(Key("sumsCount"), record.sums.count);
  Keep(Key("answers"), record.sums.answers);
  Keep(Key("given"), record.given);
  Keep(Key("rows"), WordsOf(record.style.rows));
  Keep(Key("size"), record.style.bodyMm);
  Keep(Key("ruling", letterSet),
       QString::fromLatin1(record.style.ruling ? NameOf(*record.style.ruling) : kNoOwnRuling));
  Keep(QString::fromLatin1(kLeftHandChoice), record.style.hand == Hand::Left);
  Keep(Key("paper"), QString::fromLatin1(record.page.paperMm == kLetterMm ? kLetter : kA4));
  Keep(Key("landscape"), record.page.landscape);
  Keep(Key("nameLine"), record.heading.shown);
  Keep(Key("name"), record.heading.name);
  Keep(Key("class"), record.heading.schoolClass);
  Keep(Key("fromCard"), record.fromCard);
  Keep(Key("today"), record.today);
}

}  // namespace bramlee
