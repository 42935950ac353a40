#include "tools/strokes/film_options.h"

#include <QColor>
#include <QFileInfo>
#include <algorithm>

#include "tools/letters/paper_argument.h"

namespace bramlee {
namespace {

constexpr double kLeastRate = 0.01;
constexpr double kLargestRate = 100;

std::optional<FilmKind> KindNamed(const QString& name) {
  for (const FilmKind kind : {FilmKind::Svg, FilmKind::Gif, FilmKind::Webm, FilmKind::Mp4}) {
    if (SuffixOf(kind) == name) return kind;
  }
  return std::nullopt;
}

}  // namespace

void FilmOptions::AddTo(QCommandLineParser& parser) const {
  parser.addOptions({animate_, steps_, cards_, output_, size_, rate_, ink_, ground_, numbers_,
                     leftHand_, sound_, paper_, force_});
}

QString FilmOptions::Read(const QCommandLineParser& parser, const LetterRequest& letters,
                          FilmRequest& film) const {
  QString error = ReadKind(parser, film);
  if (!error.isEmpty()) return error;
  if (!film.IsAsked()) {
    for (const auto* other : {&output_, &size_, &rate_, &ink_, &ground_, &numbers_, &leftHand_,
                              &sound_, &paper_, &force_}) {
      if (!parser.isSet(*other)) continue;
      return QStringLiteral("--%1: goes with --animate, --steps or --cards")
          .arg(other->names().constLast());
    }
    return {};
  }
  film.numbers = parser.isSet(numbers_);
  film.hand = parser.isSet(leftHand_) ? Hand::Left : Hand::Right;
  film.replaces = parser.isSet(force_);
  QString output = film.cards ? ReadCards(parser, film) : ReadOutput(parser, letters, film);
  if (!output.isEmpty()) return output;
  const QString look = ReadLook(parser, film);
  return look.isEmpty() ? ReadSound(parser, letters, film) : look;
}

QString FilmOptions::ReadKind(const QCommandLineParser& parser, FilmRequest& film) const {
  const QList<const QCommandLineOption*> kinds{&steps_, &cards_, &animate_};
  const auto isSet = [&parser](const auto* option) { return parser.isSet(*option); };
  if (std::ranges::count_if(kinds, isSet) > 1) {
    return QStringLiteral("one of --animate, --steps and --cards at a time");
  }
  film.cards = parser.isSet(cards_);
  if (parser.isSet(steps_)) film.kind = FilmKind::Steps;
  if (!parser.isSet(animate_)) return {};
  const QString name = parser.value(animate_);
  film.kind = KindNamed(name);
  if (film.kind) return {};
  return QStringLiteral("--animate: no kind \"%1\": svg gif webm mp4").arg(name);
}

QString FilmOptions::ReadCards(const QCommandLineParser& parser, FilmRequest& film) const {
  for (const auto* other : {&size_, &rate_, &ground_, &sound_}) {
    if (!parser.isSet(*other)) continue;
    return QStringLiteral("--%1: goes without --cards").arg(other->names().constFirst());
  }
  film.output = parser.value(output_);
  if (film.output.endsWith(QStringLiteral(".pdf"))) {
    return ReadPaper(parser.value(paper_), film.paperMm);
  }
  return QStringLiteral("--output: name the file of the cards, which ends in .pdf");
}

QString FilmOptions::ReadOutput(const QCommandLineParser& parser, const LetterRequest& letters,
                                FilmRequest& film) const {
  film.output = parser.value(output_);
  if (film.output.isEmpty()) return QStringLiteral("--output: name a file or a folder to write to");
  if (parser.isSet(paper_)) return QStringLiteral("--paper: goes with --cards");
  const bool oneFile = letters.firstTile == letters.lastTile && film.kind != FilmKind::Steps &&
                       !film.output.endsWith(u'/') && !QFileInfo(film.output).isDir();
  const QString end = u'.' + SuffixOf(*film.kind);
  if (!oneFile || film.output.endsWith(end)) return {};
  return QStringLiteral("--output: the name of the file has to end in %1").arg(end);
}

QString FilmOptions::ReadLook(const QCommandLineParser& parser, FilmRequest& film) const {
  if (parser.isSet(size_)) {
    const auto pixels = NumberIn<int>(parser.value(size_));
    if (!pixels || *pixels < kLeastPixels || *pixels > kMostPixels) {
      return QStringLiteral("--size: \"%1\" is no whole number from %2 to %3")
          .arg(parser.value(size_))
          .arg(kLeastPixels)
          .arg(kMostPixels);
    }
    film.pixels = *pixels;
  }
  if (parser.isSet(rate_)) {
    const auto rate = NumberIn<double>(parser.value(rate_));
    if (!rate || !(*rate >= kLeastRate && *rate <= kLargestRate)) {
      return QStringLiteral("--rate: \"%1\" is no number from 0.01 to 100")
          .arg(parser.value(rate_));
    }
    film.rate = *rate;
  }
  film.ink = parser.value(ink_);
  film.ground = parser.value(ground_);
  for (const auto& [option, colour] : {
           std::pair(&ink_, &film.ink), {&ground_, &film.ground}
  }) {
    if (!parser.isSet(*option) || QColor::isValidColor(*colour)) continue;
    if (option == &ground_ && *colour == QLatin1String("none")) continue;
    return QStringLiteral("--%1: \"%2\" is no colour").arg(option->names().constFirst(), *colour);
  }
  return {};
}

QString FilmOptions::ReadSound(const QCommandLineParser& parser, const LetterRequest& letters,
                               FilmRequest& film) const {
  film.soundDrive = parser.value(sound_);
  if (!parser.isSet(sound_)) return {};
  if (letters.set == nullptr) return QStringLiteral("--sound: words have none");
  if (!CanSpeak(*film.kind)) return QStringLiteral("--sound: goes with --animate webm or mp4");
  const bool isDrive =
      film.soundDrive.size() == 2 && film.soundDrive[0].isLetter() && film.soundDrive[1] == u':';
  if (isDrive) return {};
  return QStringLiteral("--sound: \"%1\" is no drive such as C:").arg(film.soundDrive);
}

}  // namespace bramlee
