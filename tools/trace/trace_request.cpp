#include "tools/trace/trace_request.h"

#include <QCommandLineParser>
#include <optional>

#include "tools/letters/letter_arguments.h"

namespace bramlee {
namespace {

/// In sheet pixels: about as large as a letter.
constexpr int kMostRadius = 200;

QString LevelNames() {
  QStringList names;
  for (const TraceLevel level : kTraceLevels) names.append(QString::fromLatin1(NameOf(level)));
  return names.join(u' ');
}

class Reader {
 public:
  explicit Reader(const QStringList& arguments) {
    parser_.setApplicationDescription(
        QStringLiteral(
            "Judges a pen that traces a letter. Reads what the pen does from the standard "
            "input, one JSON\nobject a line, in sheet pixels: {\"down\": [x, y]}, "
            "{\"move\": [x, y]}, {\"up\": true}. Prints a\nline for each touch of the "
            "pen, and one at the end.\nSET is one of: %1")
            .arg(BoardNames()));
    parser_.addPositionalArgument(QStringLiteral("SET"), QStringLiteral("The letter set."));
    parser_.addPositionalArgument(QStringLiteral("TILE"), QStringLiteral("The number of a tile."));
    letters_.AddTo(parser_);
    parser_.addOptions({level_, leastRadius_, hand_});
    Tool::AddHelpTo(parser_);
    parsed_ = parser_.parse(arguments);
  }

  TraceRequest Read() {
    if (!parsed_) return Error(parser_.errorText());
    if (const auto text = kTool.TextAsked(parser_)) return Text(*text);
    LetterRequest letters;
    const QString error = letters_.Read(parser_, letters);
    if (!error.isEmpty()) return Error(error);
    if (parser_.positionalArguments().size() < 2) return Error(QStringLiteral("no tile is named"));
    if (letters.firstTile != letters.lastTile) return Error(QStringLiteral("one tile at a time"));
    const QString levelText = parser_.value(level_);
    const std::optional<TraceLevel> level = TraceLevelNamed(levelText.toStdString());
    if (!level) {
      return Error(QStringLiteral("--level: no level \"%1\": %2").arg(levelText, LevelNames()));
    }
    const QString radiusText = parser_.value(leastRadius_);
    bool isNumber = false;
    const double leastRadius = radiusText.toDouble(&isNumber);
    if (!isNumber || !(leastRadius >= 0 && leastRadius <= kMostRadius)) {
      return Error(QStringLiteral("--least-radius: \"%1\" is no number from 0 to %2")
                       .arg(radiusText)
                       .arg(kMostRadius));
    }
    const QString hand = parser_.value(hand_);
    if (hand != QLatin1String("left") && hand != QLatin1String("right")) {
      return Error(QStringLiteral("--hand: no hand \"%1\": left right").arg(hand));
    }
    return {.letter = letters.Tile(letters.firstTile),
            .level = *level,
            .leastRadius = leastRadius,
            .text = {},
            .error = {}};
  }

 private:
  static TraceRequest Error(const QString& error) {
    return {.letter = {}, .level = {}, .leastRadius = 0, .text = {}, .error = error};
  }
  static TraceRequest Text(const QString& text) {
    return {.letter = {}, .level = {}, .leastRadius = 0, .text = text, .error = {}};
  }

  QCommandLineParser parser_;
  const LetterArguments letters_;
  const QCommandLineOption level_{QStringLiteral("level"),
                                  QStringLiteral("How near to keep: %1.").arg(LevelNames()),
                                  QStringLiteral("LEVEL"), QStringLiteral("normal")};
  const QCommandLineOption leastRadius_{
      QStringLiteral("least-radius"),
      QStringLiteral(
          "How far the pen may stray at least, whatever the level and the letter's size: "
          "what a finger misses by on that screen, in sheet pixels."),
      QStringLiteral("PIXELS"), QStringLiteral("0")};
  const QCommandLineOption hand_{
      QStringLiteral("hand"),
      QStringLiteral("The hand that holds the pen, left or right. Both are judged alike."),
      QStringLiteral("HAND"), QStringLiteral("right")};
  bool parsed_ = false;
};

}  // namespace

TraceRequest ReadTraceRequest(const QStringList& arguments) {
  return Reader(arguments).Read();
}

}  // namespace bramlee
