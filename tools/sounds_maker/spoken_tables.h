// What is spoken for each tile: text files that a teacher can change, one a set.
#pragma once

#include <QList>
#include <QString>

#include "files/sound_sets.h"

namespace bramlee {

/// One sound.
struct Spoken {
  QString file;   ///< below the folder of sounds, without extension: "engc/eng-a"
  QString shows;  ///< what the tile shows
  QString voice;  ///< espeak-ng's name of the voice
  int speed;      ///< words a minute
  QString text;   ///< what is spoken; phonemes stand in [[ ]]
};

/// Reads the set's table in that folder. For a line that cannot be read, `error` gets the file, the
/// line's number and what is wrong, and the list is empty; `error` stays empty when there is none.
QList<Spoken> ReadSpokenTable(const SoundSet& set, const QString& folder, QString& error);

/// The whole numbers from `first` to `last`, 0 to 9999.
QList<Spoken> SpokenNumbers(int first, int last);

}  // namespace bramlee
