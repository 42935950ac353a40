// What is spoken for each tile: text files that a teacher can change, one a set.
#pragma once

#include <QList>
#include <QString>

namespace bramlee {

/// One sound.
struct Spoken {
  QString file;   ///< below the media folder, without extension: "engc/eng-a"
  QString shows;  ///< what the tile shows
  QString voice;  ///< espeak-ng's name of the voice
  int speed;      ///< words a minute
  QString text;   ///< what is spoken; phonemes stand in [[ ]]
};

/// A set of sounds: its table's name, and where its files go.
struct SoundSet {
  const char* name;    ///< "engc"; the table is name.tsv
  const char* prefix;  ///< folder and beginning of the files' names: "engc/eng-"
};
inline constexpr SoundSet kSoundSets[] = {
    {"engc", "engc/eng-"     },
    {"engs", "engs/eng-"     },
    {"hinv", "hin/hinv/hinv-"},
    {"hinc", "hin/hinc/hinc-"},
    {"telv", "tel/telv/telv-"},
    {"telc", "tel/telc/telc-"},
    {"mat",  "mat/mat-"      },
};

/// Reads the set's table in that folder. In a line that cannot be understood, `error` gets the
/// file, the line's number and what is wrong with it, and the list is empty; `error` stays empty
/// when all is well.
QList<Spoken> ReadSpokenTable(const SoundSet& set, const QString& folder, QString& error);

/// The whole numbers from `first` to `last`, 0 to 9999, for the files "mat/matc/mat-N".
QList<Spoken> SpokenNumbers(int first, int last);

}  // namespace bramlee
