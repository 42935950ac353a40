#include "companions/worksheet/worksheet_pages.h"

#include <algorithm>

#include "board/board.h"
#include "letters/letter_names.h"
#include "paper/letter_book.h"
#include "strokes/letter.h"

namespace bramlee {
namespace {

bool HasStrokes(std::string_view set, int tile) {
  return !LetterOf({.set = set, .tile = tile, .form = {}}).Runs().empty();
}

LetterId LetterOfTile(const WorksheetSource& source, const WorksheetRecord& record, int tile) {
  return {
      .set = source.set,
      .tile = tile,
      .form = {.alternative = source.alternative, .place = 0, .book = !record.given}
  };
}

std::vector<Practice> Practices(const WorksheetSource& source, const WorksheetRecord& record) {
  std::vector<Practice> practices;
  if (record.matter == WorksheetMatter::Letters) {
    for (const int tile : record.tiles.value_or(QList<int>())) {
      practices.push_back(PracticeOf(LetterOfTile(source, record, tile)));
    }
  } else if (record.matter == WorksheetMatter::TypedWords) {
    for (const QString& word : WordsOf(record.words)) practices.push_back(WordPractice(word));
  } else {
    for (int number = record.firstNumber; number <= record.lastNumber; ++number) {
      practices.push_back(NumberPractice(number));
    }
  }
  return practices;
}

/// Whether the shapes of the book's letters and of the given ones are worked out.
bool& Prepared(bool given) {
  static bool book = false;
  static bool asGiven = false;
  return given ? asGiven : book;
}

std::vector<LetterId> AllLetters(bool given) {
  std::vector<LetterId> letters;
  for (const LetterSet& set : LetterSets()) {
    for (int tile = 1; tile <= set.tiles; ++tile) {
      letters.push_back({.set = set.name, .tile = tile, .form = {.book = !given}});
    }
  }
  return letters;
}

LaidOut LayOutSums(const WorksheetRecord& record) {
  return LayOut(SumSheet{.sums = ChooseSums(record.sums.kind, record.sums.largest,
                                            record.sums.count, record.sums.seed),
                         .answers = record.sums.answers,
                         .page = record.page,
                         .heading = record.heading});
}

/// The letters by their signs; empty when they are many, since a title is short.
QString PrintedLetters(const WorksheetSource& source, const WorksheetRecord& record) {
  constexpr int kMost = 6;
  const QList<int> tiles = record.tiles.value_or(QList<int>());
  if (tiles.size() > kMost) return {};
  QStringList printed;
  for (const int tile : tiles) {
    const std::string sign = PrintedLetter(source.set, tile, !record.given);
    if (!sign.empty()) printed.append(QString::fromStdString(sign));
  }
  return printed.join(QStringLiteral(", "));
}

QString TitleOf(const WorksheetSource& source, const WorksheetRecord& record) {
  switch (record.matter) {
    case WorksheetMatter::TypedWords:
      return QStringLiteral("Words: ") + WordsOf(record.words).join(QStringLiteral(", ")).left(60);
    case WorksheetMatter::Numbers:
      return QStringLiteral("Numbers %1 to %2").arg(record.firstNumber).arg(record.lastNumber);
    case WorksheetMatter::Sums:
      return QStringLiteral("Sums");
    case WorksheetMatter::Book:
      return QStringLiteral("All letters");
    case WorksheetMatter::Letters:
      break;
  }
  const QString printed = PrintedLetters(source, record);
  return printed.isEmpty() ? source.title : source.title + QStringLiteral(": ") + printed;
}

/// Of what is printed first.
QString LanguageOf(const WorksheetSource& source, const WorksheetRecord& record) {
  const QStringList words = WordsOf(record.words);
  const bool hasWords = record.matter == WorksheetMatter::TypedWords && !words.isEmpty();
  if (hasWords) return LanguageOfSet(WordPractice(words.constFirst()).set);
  return LanguageOfSet(record.matter == WorksheetMatter::Letters ? source.set : "mat");
}

}  // namespace

QStringList WordsOf(const QString& text) {
  QStringList words;
  for (const QString& word : text.split(u',')) {
    if (!word.trimmed().isEmpty()) words.append(word.simplified());
  }
  return words;
}

WorksheetSource SourceOf(Board& board) {
  const LetterSet& letters = board.letters();
  WorksheetSource source{.set = letters.name,
                         .title = QString::fromUtf8(board.record().title),
                         .tiles = {},
                         .alternative = board.record().showTiles != nullptr &&
                                        board.FlagOf(QStringLiteral("txtalt")) != 0};
  QList<int> all;
  for (int tile = 1; tile <= letters.tiles; ++tile) {
    if (!HasStrokes(letters.name, tile)) continue;
    all.append(tile);
    if (!board.Tile(tile)->isHidden()) source.tiles.append(tile);
  }
  if (source.tiles.isEmpty()) source.tiles = all;
  source.atFirst = source.tiles.first();
  const auto written = board.pen().Letters().Letters();
  const std::size_t last = board.pen().LastLetter();
  if (last < written.size() && source.tiles.contains(written[last].letter.Id().tile)) {
    source.atFirst = written[last].letter.Id().tile;
  }
  return source;
}

OfferedTile OfferOf(const WorksheetSource& source, int tile, bool given) {
  const bool book = !given && HasBookForm(*FindLetterSet(source.set), tile);
  return {.number = tile,
          .picture = TilePicture(source.set, tile, book),
          .name = QString::fromStdString(LetterName(source.set, tile, book))};
}

QList<int> TilesAtFirst(const WorksheetSource& source, const WorksheetRecord& record) {
  QList<int> tiles;
  const QList<int> kept = record.tiles.value_or(QList<int>());
  std::ranges::copy_if(source.tiles, std::back_inserter(tiles),
                       [&](int tile) { return kept.contains(tile); });
  return tiles.isEmpty() ? QList<int>{source.atFirst} : tiles;
}

bool IsBookPrepared(bool given) {
  return Prepared(given);
}

PaperError PrepareBook(bool given, const PageProgress& progress) {
  constexpr std::size_t kAtOnce = 10;  ///< some 30 ms: the windows live in between
  const std::vector<LetterId> letters = AllLetters(given);
  for (std::size_t i = 0; i < letters.size(); ++i) {
    if (i % kAtOnce == 0 && !progress(static_cast<int>(i), static_cast<int>(letters.size()))) {
      return {.kind = PaperError::Kind::Cancelled, .text = QStringLiteral("Cancelled.")};
    }
    LetterOf(letters[i]).Shape();  // is kept with the letter
  }
  Prepared(given) = true;
  return {};
}

LaidOut LayOut(const WorksheetSource& source, const WorksheetRecord& record) {
  switch (record.matter) {
    case WorksheetMatter::Sums:
      return LayOutSums(record);
    case WorksheetMatter::Book:
      return LayOut(LetterBook{
          .sets = {}, .given = record.given, .style = record.style, .page = record.page});
    case WorksheetMatter::Letters:
    case WorksheetMatter::TypedWords:
    case WorksheetMatter::Numbers:
      break;
  }
  return LayOut(Worksheet{.practices = Practices(source, record),
                          .style = record.style,
                          .page = record.page,
                          .heading = record.heading});
}

DocumentInfo InfoOf(const WorksheetSource& source, const WorksheetRecord& record) {
  return {.title = TitleOf(source, record),
          .author = QStringLiteral("BRAM LEE"),
          .language = LanguageOf(source, record)};
}

}  // namespace bramlee
