// The sounds that a board can ask for.
#pragma once

#include <QList>
#include <QString>
#include <optional>

namespace bramlee {

class Board;

/// One of them.
struct BoardSound {
  QString sound;    ///< its name below the folder of sounds: "engc/eng-a"
  QString picture;  ///< resource of its tile; empty for one without, and for a number
  QString name;     ///< for people: "capital A", "105"
  bool operator==(const BoardSound& other) const = default;
};

/// Those of the board's tiles, in their order; behind them, on the board of numbers, the whole
/// numbers of its number box.
QList<BoardSound> SoundsOf(const Board& board);

/// That of a whole number, where the board speaks such.
std::optional<BoardSound> NumberSoundOf(const Board& board, int number);

/// The drive that the board's sounds are played from: its folder in the system. What the set asks
/// of another board loads that one unseen.
QString SoundsDriveOf(const Board& board);

}  // namespace bramlee
