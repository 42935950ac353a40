#include "companions/voice/board_sounds.h"

#include <QFile>

#include "board/board.h"
#include "board/cues.h"
#include "files/drives.h"
#include "files/sound_sets.h"
#include "ui/picture_box.h"

namespace bramlee {
namespace {

/// The last number that the number box offers; others can be typed.
constexpr int kLastNumber = 100;

bool SpeaksNumbers(const Board& board) {
  return board.letters().digits > 0;
}

BoardSound OfNumber(int number) {
  const QString digits = QString::number(number);
  return {.sound = FilesOf(kNumberSounds) + digits, .picture = {}, .name = digits};
}

}  // namespace

QList<BoardSound> SoundsOf(const Board& board) {
  const BoardRecord& record = board.record();
  const SoundSet& set = kSoundSets[record.cueBoardNo - 1];
  const bool book = board.WritesBookLetters();
  QList<BoardSound> sounds;
  for (int tile = record.firstTile; tile <= board.letters().tiles; ++tile) {
    const bool otherwise = book && HasBookForm(board.letters(), tile);
    QString picture = TilePicture(record.letterSet, tile, otherwise);
    const bool spare = tile < 1 && !QFile::exists(picture);  // nobody can click it
    if (spare) continue;
    if (!QFile::exists(picture)) picture.clear();
    sounds.append({.sound = FilesOf(set) + LetterPartOfSound(set, tile),
                   .picture = picture,
                   .name = board.Tile(tile)->accessibleName()});
  }
  if (!SpeaksNumbers(board)) return sounds;
  for (int number = 0; number <= kLastNumber; ++number) sounds.append(OfNumber(number));
  return sounds;
}

std::optional<BoardSound> NumberSoundOf(const Board& board, int number) {
  if (!SpeaksNumbers(board)) return {};
  return OfNumber(number);
}

QString SoundsDriveOf(const Board& board) {
  return SystemPath(CueDrive(board.record().cueBoardNo) + u'\\');
}

}  // namespace bramlee
