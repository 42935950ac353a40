#include "tools/strokes/films.h"

#include <QDir>
#include <QFileInfo>
#include <cstdio>
#include <thread>
#include <utility>
#include <vector>

#include "files/drives.h"
#include "files/sound_sets.h"
#include "film/file_names.h"
#include "film/film_export.h"
#include "ink/colours.h"
#include "strokes/letter.h"

namespace bramlee {
namespace {

FilmLook LookOf(const Request& request) {
  const FilmRequest& film = request.film;
  FilmLook look{
      .pixels = film.pixels,
      .ink = film.ink.isEmpty() ? ColourOf(kPenColour) : QColor(film.ink),
      .ground = ColourOf(request.set->sheet == SheetKind::Capitals ? kCapitalsGround : kGround),
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

QString Replacing(const QStringList& there) {
  if (there.size() == 1) {
    return QStringLiteral("%1 is there already: --force replaces it").arg(there.constFirst());
  }
  return QStringLiteral("%1 of the files are there already, %2 among them: --force replaces them")
      .arg(there.size())
      .arg(there.constFirst());
}

}  // namespace

QString WriteFilms(const Request& request) {
  const Target target = TargetOf(request);
  const FilmLook look = LookOf(request);
  std::vector<ExportedLetter> letters;
  for (int tile = request.firstTile; tile <= request.lastTile; ++tile) {
    const LetterId id = request.Tile(tile);
    ExportedLetter letter{.film = LetterFilm(RecordTile(id, request.step), look),
                          .name = target.file.isEmpty() ? FileNameOf(id) : target.file,
                          .sound = {}};
    if (!request.film.soundDrive.isEmpty() && letter.film.HasStrokes()) {
      const QString error = FindSound(id, request.film.soundDrive, letter.sound);
      if (!error.isEmpty()) return error;
    }
    letters.push_back(std::move(letter));
  }
  FilmExport films(target.folder, *request.film.kind, std::move(letters));
  const QStringList there = films.Replaced();
  if (!there.isEmpty() && !request.film.replaces) return Replacing(there);
  const Exported exported = films.Run(static_cast<int>(std::thread::hardware_concurrency()));
  if (!exported.error.isEmpty()) return exported.error;
  for (const QString& left : exported.left) {
    std::fprintf(stderr, "bramlee-strokes: left out: %s\n", qPrintable(left));
  }
  return {};
}

}  // namespace bramlee
