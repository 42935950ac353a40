#include "tools/strokes/films.h"

#include <QDir>
#include <QFileInfo>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "files/drives.h"
#include "files/sound_sets.h"
#include "film/file_names.h"
#include "film/film_export.h"
#include "film/flash_cards.h"
#include "paper/letter_book.h"
#include "paper/pdf_file.h"
#include "tools/letters/stop_asked.h"
#include "tools/strokes/asked_letters.h"

namespace bramlee {
namespace {

FilmLook LookOf(const Request& request) {
  const FilmRequest& film = request.film;
  FilmLook look{.pixels = film.pixels,
                .ink = film.ink.isEmpty() ? ColourOf(kPenColour) : QColor(film.ink),
                .ground = GroundOf(request),
                .numbers = film.numbers || film.kind == FilmKind::Steps,
                .hand = film.hand,
                .rate = film.rate};
  if (film.ground == QLatin1String("none")) {
    look.ground.reset();
  } else if (!film.ground.isEmpty()) {
    look.ground = QColor(film.ground);
  }
  return look;
}

std::vector<LetterFilm> FilmsOf(const Request& request) {
  const FilmLook look = LookOf(request);
  std::vector<LetterFilm> films;
  for (Letter& letter : LettersAsked(request)) films.emplace_back(std::move(letter), look);
  return films;
}

/// The letter's sound on that drive, in the first format that is there; an error of one line else.
QString FindSound(const LetterId& id, const QString& drive, QString& path) {
  for (const SoundSet& set : kSoundSets) {
    if (id.set != set.name) continue;
    const QString name = drive + QLatin1String(kSoundFolder) + QLatin1String(set.prefix) +
                         LetterPartOfSound(set, id.tile);
    for (const char* format : {".wma", ".mp3", ".wav"}) {
      if (FileMissing(name + QLatin1String(format))) continue;
      path = SystemPath(name + QLatin1String(format));
      return {};
    }
    return QStringLiteral("--sound: there is no %1.wma, .mp3 or .wav").arg(name);
  }
  return {};
}

/// Where the files go. A folder that is not there is made.
struct Target {
  QString folder;
  QString file;  ///< the one name, without what it ends in; empty for names by the letters
};

Target TargetOf(const Request& request) {
  const QString& output = request.film.output;
  const bool isFolder = request.firstTile != request.lastTile ||
                        request.film.kind == FilmKind::Steps || output.endsWith(u'/') ||
                        QFileInfo(output).isDir();
  const QFileInfo path(output);
  if (!isFolder) return {.folder = path.path(), .file = path.completeBaseName()};
  QDir().mkpath(output);
  return {.folder = output, .file = {}};
}

QString NameOf(const LetterFilm& film) {
  const Letter& letter = film.Shown();
  return letter.Text().empty() ? FileNameOf(letter.Id()) : WordFileName(film.Name(), 1);
}

QString Replacing(const QStringList& there) {
  if (there.size() == 1) {
    return QStringLiteral("%1 is there already: --force replaces it").arg(there.constFirst());
  }
  return QStringLiteral("%1 of the files are there already, %2 among them: --force replaces them")
      .arg(there.size())
      .arg(there.constFirst());
}

/// Follows an export from beside it: says at each tenth of long work how far it is, and passes on
/// that the user wants it to stop.
class Follower {
 public:
  Follower(const FilmExport& films, std::stop_source& stop, bool says)
      : films_(films), stop_(stop), says_(says) {}

 private:
  void Follow(const std::stop_token& done) {
    constexpr std::chrono::milliseconds kLook(50);
    constexpr int kParts = 10;
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any end;
    for (int said = 0; !done.stop_requested();) {
      end.wait_for(lock, done, kLook, [] { return false; });
      if (IsStopAsked()) stop_.request_stop();
      const int part = films_.FramesDone() * kParts / std::max(1, films_.Frames());
      if (!says_ || part == std::exchange(said, part)) continue;
      kTool.Say(QStringLiteral("picture %1 of %2").arg(films_.FramesDone()).arg(films_.Frames()));
    }
  }

  const FilmExport& films_;
  std::stop_source& stop_;
  bool says_;
  std::jthread thread_{[this](const std::stop_token& done) { Follow(done); }};
};

/// An error of one line, or nothing.
QString RunToEnd(FilmExport& films, bool isLong) {
  std::stop_source stop;
  const Follower follower(films, stop, isLong);
  const Exported exported =
      films.Run(static_cast<int>(std::thread::hardware_concurrency()), stop.get_token());
  // Ctrl-C ends ffmpeg too, which then may fail before the export sees the stop.
  const bool failed = exported.cancelled || !exported.error.isEmpty();
  if (failed && IsStopAsked()) return QStringLiteral("cancelled");
  if (failed) return exported.error;
  for (const QString& left : exported.left) kTool.Say(QStringLiteral("left out: ") + left);
  return {};
}

}  // namespace

QString WriteFilms(const Request& request) {
  const Target target = TargetOf(request);
  std::vector<ExportedLetter> letters;
  for (LetterFilm& film : FilmsOf(request)) {
    QString sound;
    if (!request.film.soundDrive.isEmpty() && film.HasStrokes()) {
      const QString error = FindSound(film.Shown().Id(), request.film.soundDrive, sound);
      if (!error.isEmpty()) return error;
    }
    QString name = target.file.isEmpty() ? NameOf(film) : target.file;
    letters.push_back(
        {.film = std::move(film), .name = std::move(name), .sound = std::move(sound)});
  }
  const bool isLong = letters.size() > 1 && NeedsFfmpeg(*request.film.kind);
  FilmExport films(target.folder, *request.film.kind, std::move(letters));
  const QStringList there = films.Replaced();
  if (!there.isEmpty() && !request.film.replaces) return Replacing(there);
  return RunToEnd(films, isLong);
}

QString WriteCards(const Request& request) {
  const QString& file = request.film.output;
  const FlashCards cards(FilmsOf(request), {.paperMm = request.film.paperMm});
  if (cards.Letters() == 0) return cards.Notes().join(u' ');
  if (QFileInfo::exists(file) && !request.film.replaces) {
    return Replacing({QFileInfo(file).fileName()});
  }
  const DocumentInfo info = request.set == nullptr
                                ? DocumentInfo{.title = request.word}
                                : DocumentInfo{.title = TitleOfSet(request.set->name),
                                               .author = {},
                                               .language = LanguageOfSet(request.set->name)};
  const PaperError error =
      WritePdf(cards, info, file, [](int /*done*/, int /*of*/) { return !IsStopAsked(); });
  if (!error.IsNone()) return error.text;
  for (const QString& note : cards.Notes()) kTool.Say(QStringLiteral("left out: ") + note);
  return {};
}

}  // namespace bramlee
