#include "companions/export/export_letters.h"

#include <algorithm>
#include <utility>

#include "board/board.h"
#include "board/cues.h"
#include "engine/last_point.h"
#include "files/drives.h"
#include "film/file_names.h"
#include "strokes/letter.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

/// A letter and the colour that the board has for it.
struct Found {
  Letter letter;
  ColourWord colour = 0;
};

bool IsWord(const Letter& letter) {
  return !letter.Text().empty();
}

bool IsExported(const PlacedLetter& placed) {
  return !placed.ruling && (IsWord(placed.letter) || !placed.letter.Id().set.empty());
}

/// Whether files show the same of both.
bool AreSame(const Letter& one, const Letter& other) {
  return one.Text() == other.Text() && FileNameOf(one.Id()) == FileNameOf(other.Id());
}

std::vector<Found> OnTheSheet(Board& board) {
  std::vector<Found> found;
  for (const PlacedLetter& placed : board.pen().Letters().Letters()) {
    if (!IsExported(placed)) continue;
    std::erase_if(found, [&](const Found& each) { return AreSame(each.letter, placed.letter); });
    found.push_back({.letter = placed.letter, .colour = placed.colour});
  }
  return found;
}

std::vector<Found> OfTheBoard(const Board& board) {
  const KeepLastPoint kept;
  const LetterSet& set = board.letters();
  const bool alternatives =
      board.record().showTiles != nullptr && board.FlagOf(QStringLiteral("txtalt")) != 0;
  std::vector<Found> found;
  for (int tile = 1; tile <= set.tiles; ++tile) {
    const TileForm form{.alternative = alternatives && HasSecondForm(set, tile),
                        .book = board.WritesBookLetters()};
    found.push_back(
        {.letter = RecordTile({.set = set.name, .tile = tile, .form = form}, board.sheet().Step()),
         .colour = board.sheet().ForeColor()});
  }
  return found;
}

std::vector<Found> Chosen(Board& board, Which which) {
  if (which == Which::WholeBoard) return OfTheBoard(board);
  std::vector<Found> found = OnTheSheet(board);
  if (which == Which::ThisLetter && found.size() > 1) found.erase(found.begin(), found.end() - 1);
  return found;
}

FilmLook LookOf(Board& board, const ExportChoices& choices, ColourWord colour) {
  FilmLook look{.pixels = choices.pixels,
                .ink = ColourNamed(choices.ink).value_or(ColourOf(colour)),
                .ground = ColourNamed(choices.ground).value_or(ColourOf(board.record().backColor)),
                .numbers = choices.numbers || choices.kind == FilmKind::Steps,
                .rate = board.pen().Rate()};
  if (choices.ground == QLatin1String(kNoGround)) look.ground.reset();
  const bool left = Choices::Instance().Of(QString::fromLatin1(kLeftHandChoice), false).toBool();
  if (left) look.hand = Hand::Left;
  return look;
}

/// The file that the board plays for the letter; empty where there is none.
QString SoundOf(const Board& board, const LetterId& id) {
  QString path;
  const int failed = CuePath(static_cast<std::int16_t>(id.tile), board.record().cueBoardNo, path);
  return failed != 0 || FileMissing(path) ? QString() : SystemPath(path);
}

}  // namespace

bool HasLetters(Board& board, Which which) {
  if (which == Which::WholeBoard) return true;
  return std::ranges::any_of(board.pen().Letters().Letters(), IsExported);
}

std::vector<ExportedLetter> LettersToExport(Board& board, const ExportChoices& choices) {
  const bool speaks = choices.sound && choices.kind && CanSpeak(*choices.kind);
  int words = 0;
  std::vector<ExportedLetter> letters;
  for (Found& found : Chosen(board, choices.which)) {
    const LetterId id = found.letter.Id();
    const bool isWord = IsWord(found.letter);
    LetterFilm film(std::move(found.letter), LookOf(board, choices, found.colour));
    QString name = isWord ? WordFileName(film.Name(), ++words) : FileNameOf(id);
    letters.push_back({.film = std::move(film),
                       .name = std::move(name),
                       .sound = speaks && !isWord ? SoundOf(board, id) : QString()});
  }
  return letters;
}

}  // namespace bramlee
