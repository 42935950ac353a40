#include "tools/sheets/sheets_request.h"

#include <QCommandLineParser>
#include <cmath>

#include "tools/letters/letter_arguments.h"
#include "tools/letters/paper_argument.h"
#include "tools/sheets/sheets_options.h"

namespace bramlee {
namespace {

constexpr double kBookMm = 14;
constexpr double kLeastMm = 5;
constexpr double kMostMm = 300;
constexpr int kMostNumber = 9999;
constexpr int kMostSums = 1000;

/// Two numbers on either side of a sign, or the same one twice without it.
std::optional<std::pair<int, int>> RangeIn(const QString& text) {
  const QStringList ends = text.split(u'-');
  const auto first = NumberIn<int>(ends.constFirst());
  const auto last = NumberIn<int>(ends.constLast());
  if (!first || !last || ends.size() > 2 || *first > *last) return std::nullopt;
  return std::pair(*first, *last);
}

/// Reads a command line part by part; each part gives an error, or an empty text.
class Reader {
 public:
  explicit Reader(const QStringList& arguments) {
    parser_.setApplicationDescription(
        QStringLiteral(
            "Makes sheets of letters to look at, to trace and to write, as a PDF. Letters are "
            "those of the\nbook unless --given is there. --book without SET makes the book of all "
            "letters.\nSET is one of: %1")
            .arg(BoardNames()));
    parser_.addPositionalArgument(QStringLiteral("SET"), QStringLiteral("The letter set."),
                                  QStringLiteral("[SET]"));
    parser_.addPositionalArgument(
        QStringLiteral("TILES"),
        QStringLiteral("The number of a tile, or a range such as 1-26; all when not given."),
        QStringLiteral("[TILES]"));
    letters_.AddTo(parser_);
    options_.AddTo(parser_);
    Tool::AddHelpTo(parser_);
    parsed_ = parser_.parse(arguments);
  }

  SheetsRequest Read() {
    if (!parsed_) return Error(parser_.errorText());
    if (const auto text = kTool.TextAsked(parser_)) return Text(*text);
    for (const auto part : {&Reader::ReadFile, &Reader::ReadForms, &Reader::ReadPaper,
                            &Reader::ReadStyle, &Reader::ReadHeading, &Reader::ReadWhat}) {
      const QString error = (this->*part)();
      if (!error.isEmpty()) return Error(error);
    }
    request_.info.author = parser_.value(options_.author);
    if (parser_.isSet(options_.title)) request_.info.title = parser_.value(options_.title);
    return request_;
  }

 private:
  static SheetsRequest Error(const QString& error) {
    SheetsRequest request;
    request.error = error;
    return request;
  }
  static SheetsRequest Text(const QString& text) {
    SheetsRequest request;
    request.text = text;
    return request;
  }

  bool IsSet(const QCommandLineOption& option) const { return parser_.isSet(option); }

  QString ReadFile() {
    request_.file = parser_.value(options_.output);
    return request_.file.isEmpty() ? QStringLiteral("no file is named: -o FILE") : QString();
  }

  QString ReadForms() {
    given_ = IsSet(options_.given);
    book_ = parser_.isSet(QStringLiteral("book"));
    if (given_ && book_ && !parser_.positionalArguments().isEmpty()) {
      return QStringLiteral("--book: goes without --given");
    }
    return {};
  }

  QString ReadPaper() {
    page_.landscape = IsSet(options_.landscape);
    return bramlee::ReadPaper(parser_.value(options_.paper), page_.paperMm);
  }

  QString ReadStyle() {
    style_.rows.clear();
    for (const QString& name : parser_.value(options_.rows).split(u',')) {
      const auto kind = RowKindNamed(name);
      if (!kind) {
        return QStringLiteral("--rows: no row \"%1\": model built-up dotted grey hollow blank")
            .arg(name);
      }
      style_.rows.push_back(*kind);
    }
    if (IsSet(options_.ruling)) {
      const QString name = parser_.value(options_.ruling);
      style_.ruling = RulingNamed(name);
      if (!style_.ruling) {
        return QStringLiteral("--ruling: no ruling \"%1\": english hindi telugu boxes none")
            .arg(name);
      }
    }
    const QString hand = parser_.value(options_.hand);
    if (hand != QLatin1String("left") && hand != QLatin1String("right")) {
      return QStringLiteral("--hand: no hand \"%1\": left right").arg(hand);
    }
    style_.hand = hand == QLatin1String("left") ? Hand::Left : Hand::Right;
    return ReadSize();
  }

  QString ReadSize() {
    if (!IsSet(options_.size)) return {};
    const QString text = parser_.value(options_.size);
    size_ = NumberIn<double>(text);
    if (size_ && *size_ >= kLeastMm && *size_ <= kMostMm) return {};
    return QStringLiteral("--size: \"%1\" is no number of millimetres from 5 to 300").arg(text);
  }

  QString ReadHeading() {
    heading_ = {.shown = !IsSet(options_.noHeading),
                .name = parser_.value(options_.name),
                .schoolClass = parser_.value(options_.schoolClass),
                .date = parser_.value(options_.date)};
    return {};
  }

  QString ReadWhat() {
    const bool hasSet = !parser_.positionalArguments().isEmpty();
    const int kinds = (hasSet ? 1 : 0) + (IsSet(options_.word) ? 1 : 0) +
                      (IsSet(options_.numbers) ? 1 : 0) + (IsSet(options_.sums) ? 1 : 0);
    if (kinds > 1) {
      return QStringLiteral("one of a set, --word, --numbers and --sums at a time");
    }
    for (const auto* option : {&options_.count, &options_.seed}) {
      if (!IsSet(*option) || IsSet(options_.sums)) continue;
      return QStringLiteral("--%1: goes with --sums").arg(option->names().constFirst());
    }
    if (hasSet) return ReadLetters();
    if (IsSet(options_.word)) return ReadWord();
    if (IsSet(options_.numbers)) return ReadNumbers();
    if (IsSet(options_.sums)) return ReadSums();
    if (book_) return ReadBook();
    return QStringLiteral("nothing is named to print: a set, --word, --numbers, --sums or --book");
  }

  Worksheet SheetOf(std::vector<Practice> practices) {
    style_.bodyMm = size_.value_or(style_.bodyMm);
    return {.practices = std::move(practices), .style = style_, .page = page_, .heading = heading_};
  }

  QString ReadLetters() {
    LetterRequest letters;
    QString error = letters_.Read(parser_, letters);
    if (letters.set == nullptr || !error.isEmpty()) return error;
    letters.form.book = !given_;
    std::vector<Practice> practices;
    for (int tile = letters.firstTile; tile <= letters.lastTile; ++tile) {
      practices.push_back(PracticeOf(letters.Tile(tile)));
    }
    request_.info.title = TitleOfSet(letters.set->name);
    request_.info.language = LanguageOfSet(letters.set->name);
    request_.document = SheetOf(std::move(practices));
    return {};
  }

  QString ReadWord() {
    const Practice word = WordPractice(parser_.value(options_.word));
    request_.info.title = word.caption;
    request_.info.language = LanguageOfSet(word.set);
    request_.document = SheetOf({word});
    return {};
  }

  QString ReadNumbers() {
    const QString text = parser_.value(options_.numbers);
    const auto range = RangeIn(text);
    if (!range || range->first < 0 || range->second > kMostNumber) {
      return QStringLiteral("--numbers: \"%1\" is no range of numbers such as 1-20").arg(text);
    }
    std::vector<Practice> practices;
    for (int number = range->first; number <= range->second; ++number) {
      practices.push_back(NumberPractice(number));
    }
    request_.info.title = QStringLiteral("Numbers");
    request_.document = SheetOf(std::move(practices));
    return {};
  }

  QString ReadSums() {
    const QStringList parts = parser_.value(options_.sums).split(u':');
    const auto kind = SumKindNamed(parts.constFirst());
    const auto largest = NumberIn<int>(parts.constLast());
    if (parts.size() != 2 || !kind || !largest) {
      return QStringLiteral(
                 "--sums: \"%1\" is no kind with a number such as add:10; kinds are add subtract "
                 "multiply divide percent")
          .arg(parser_.value(options_.sums));
    }
    const auto seed = NumberIn<std::uint32_t>(parser_.value(options_.seed));
    if (!seed)
      return QStringLiteral("--seed: \"%1\" is no number").arg(parser_.value(options_.seed));
    SumSheet sheet{.sums = ChooseSums(*kind, *largest, kMostSums, *seed),
                   .digitMm = size_.value_or(10),
                   .page = page_,
                   .heading = heading_};
    int count = SumsOnAPage(sheet);
    if (IsSet(options_.count)) {
      const auto wanted = NumberIn<int>(parser_.value(options_.count));
      if (!wanted || *wanted < 1 || *wanted > kMostSums) {
        return QStringLiteral("--count: \"%1\" is no number from 1 to 1000")
            .arg(parser_.value(options_.count));
      }
      count = *wanted;
    }
    if (count > 0) sheet.sums = ChooseSums(*kind, *largest, count, *seed);
    request_.info.title = QStringLiteral("Sums");
    request_.document = std::move(sheet);
    return {};
  }

  QString ReadBook() {
    style_.bodyMm = size_.value_or(kBookMm);
    request_.info.title = QStringLiteral("Letters to write");
    request_.document = LetterBook{.sets = {}, .given = given_, .style = style_, .page = page_};
    return {};
  }

  QCommandLineParser parser_;
  const LetterArguments letters_;
  const SheetsOptions options_;
  bool parsed_ = false;
  bool given_ = false;
  bool book_ = false;
  std::optional<double> size_;
  PageFormat page_;
  SheetStyle style_;
  Heading heading_;
  SheetsRequest request_;
};

}  // namespace

SheetsRequest ReadSheetsRequest(const QStringList& arguments) {
  return Reader(arguments).Read();
}

}  // namespace bramlee
