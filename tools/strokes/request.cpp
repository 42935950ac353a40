#include "tools/strokes/request.h"

#include <QCommandLineParser>
#include <cmath>

namespace bramlee {
namespace {

/// Below this a coordinate of a few hundred pixels grows so slowly that a letter takes hours, and
/// a little further down not at all: it would never end.
constexpr double kLeastStep = 1e-6;

constexpr double kLeastScale = 0.1;
constexpr double kLargestScale = 8;

struct Options {
  QCommandLineOption given{QStringLiteral("given"),
                           QStringLiteral("The letters as given, as without --book.")};
  QCommandLineOption word{
      QStringLiteral("word"),
      QStringLiteral("A word instead of a tile: letters of the book on one line."),
      QStringLiteral("TEXT")};
  QCommandLineOption headPerLetter{
      QStringLiteral("head-per-letter"),
      QStringLiteral("The head line over each letter of the word, not once over all of it.")};
  QCommandLineOption step{
      QStringLiteral("step"),
      QStringLiteral("Pixels between the dots of a line, degrees between those of an arc. "
                     "Without it 0.01."),
      QStringLiteral("S")};
  QCommandLineOption penStrokes{
      QStringLiteral("pen-strokes"),
      QStringLiteral("The movements of the hand as points, instead of the runs.")};
  QCommandLineOption svg{QStringLiteral("svg"),
                         QStringLiteral("Write the letter to FILE as an SVG picture."),
                         QStringLiteral("FILE")};
  QCommandLineOption png{QStringLiteral("png"),
                         QStringLiteral("Write the letter to FILE as a PNG picture."),
                         QStringLiteral("FILE")};
  QCommandLineOption scale{QStringLiteral("scale"),
                           QStringLiteral("N pixels of the PNG to a pixel of the sheet, 0.1 to 8."),
                           QStringLiteral("N")};
};

/// Reads a command line part by part; each part gives an error, or an empty text.
class Reader {
 public:
  explicit Reader(const QStringList& arguments) {
    parser_.setApplicationDescription(
        QStringLiteral(
            "Tells what the program of a letter does: its strokes with their arguments, one JSON\n"
            "object a line and tile, or as a picture. Without TILE it tells every tile.\n"
            "BOARD is one of: %1")
            .arg(BoardNames()));
    parser_.addPositionalArgument(QStringLiteral("BOARD"), QStringLiteral("The letter set."),
                                  QStringLiteral("[BOARD]"));
    parser_.addPositionalArgument(QStringLiteral("TILE"),
                                  QStringLiteral("The number of a tile, or a range of them: 3-10."),
                                  QStringLiteral("[TILE]"));
    letters_.AddTo(parser_);
    films_.AddTo(parser_);
    parser_.addOptions({options_.given, options_.word, options_.headPerLetter, options_.step,
                        options_.penStrokes, options_.svg, options_.png, options_.scale});
    Tool::AddHelpTo(parser_);
    parsed_ = parser_.parse(arguments);
  }

  Parsed Read() {
    if (!parsed_) return {.request = {}, .text = {}, .error = parser_.errorText()};
    if (const auto text = kTool.TextAsked(parser_)) {
      return {.request = {}, .text = *text, .error = {}};
    }
    for (const auto part : {&Reader::ReadLetters, &Reader::ReadGiven, &Reader::ReadStep,
                            &Reader::ReadPenStrokes, &Reader::ReadPictures, &Reader::ReadFilm}) {
      const QString error = (this->*part)();
      if (!error.isEmpty()) return {.request = {}, .text = {}, .error = error};
    }
    return {.request = request_, .text = {}, .error = {}};
  }

 private:
  QString ReadLetters() {
    if (parser_.isSet(options_.word)) return ReadWord();
    if (!parser_.isSet(options_.headPerLetter)) return letters_.Read(parser_, request_);
    return QStringLiteral("--head-per-letter: goes with --word");
  }

  QString ReadWord() {
    request_.word = parser_.value(options_.word);
    request_.headPerLetter = parser_.isSet(options_.headPerLetter);
    if (request_.word.trimmed().isEmpty()) return QStringLiteral("--word: there is no word");
    if (!parser_.positionalArguments().isEmpty()) {
      return QStringLiteral("--word: goes without BOARD and TILE");
    }
    for (const char* option : {"alt", "book", "given", "place"}) {
      const QString name = QString::fromLatin1(option);
      if (parser_.isSet(name)) return QStringLiteral("--word: goes without --%1").arg(name);
    }
    return {};
  }

  QString ReadGiven() {
    if (!request_.form.book || !parser_.isSet(options_.given)) return {};
    return QStringLiteral("--book: goes without --given");
  }

  QString ReadStep() {
    if (!parser_.isSet(options_.step)) return {};
    const QString text = parser_.value(options_.step);
    const auto step = NumberIn<double>(text);
    if (!step || !std::isfinite(*step) || *step <= 0) {
      return QStringLiteral("--step: \"%1\" is no number greater than 0").arg(text);
    }
    if (*step < kLeastStep) {
      return QStringLiteral("--step: with \"%1\" it would never end, the least is 0.000001")
          .arg(text);
    }
    request_.step = *step;
    return {};
  }

  QString ReadPenStrokes() {
    request_.penStrokes = parser_.isSet(options_.penStrokes);
    if (!request_.penStrokes) return {};
    for (const auto* other : {&options_.step, &options_.svg, &options_.png}) {
      if (!parser_.isSet(*other)) continue;
      return QStringLiteral("--pen-strokes: goes without --%1").arg(other->names().constFirst());
    }
    return {};
  }

  QString ReadPictures() {
    for (const auto& [option, file] :
         {std::pair(&options_.svg, &request_.svg), std::pair(&options_.png, &request_.png)}) {
      if (!parser_.isSet(*option)) continue;
      const QString name = option->names().constFirst();
      *file = parser_.value(*option);
      if (file->isEmpty()) return QStringLiteral("--%1: the file has no name").arg(name);
      if (request_.firstTile == request_.lastTile) continue;
      return QStringLiteral("--%1: a picture shows one letter, name its tile").arg(name);
    }
    return ReadScale();
  }

  QString ReadFilm() {
    QString error = films_.Read(parser_, request_, request_.film);
    if (!error.isEmpty() || !request_.film.IsAsked()) return error;
    for (const auto* other : {&options_.penStrokes, &options_.svg, &options_.png}) {
      if (!parser_.isSet(*other)) continue;
      return QStringLiteral("--%1: goes without moving pictures, steps and cards")
          .arg(other->names().constFirst());
    }
    return {};
  }

  QString ReadScale() {
    if (!parser_.isSet(options_.scale)) return {};
    if (request_.png.isEmpty()) return QStringLiteral("--scale: goes with --png");
    const QString text = parser_.value(options_.scale);
    const auto scale = NumberIn<double>(text);
    if (!scale || !(*scale >= kLeastScale && *scale <= kLargestScale)) {
      return QStringLiteral("--scale: \"%1\" is no number from 0.1 to 8").arg(text);
    }
    request_.scale = *scale;
    return {};
  }

  QCommandLineParser parser_;
  const LetterArguments letters_;
  const FilmOptions films_;
  const Options options_;
  bool parsed_ = false;
  Request request_;
};

}  // namespace

Parsed ParseArguments(const QStringList& arguments) {
  return Reader(arguments).Read();
}

}  // namespace bramlee
