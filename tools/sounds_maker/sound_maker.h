// Makes sound files: speaks, trims and levels, encodes, puts in place.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

#include "tools/sounds_maker/spoken_tables.h"

namespace bramlee {

/// One sound and the files wanted of it.
struct SoundJob {
  Spoken spoken;
  QStringList targets;  ///< full paths; the extension (.wma, .mp3, .wav) is the format
};

/// The phonemes of what is spoken, as the synthesiser names them; empty when it cannot say it.
QString PhonemesOf(const Spoken& spoken);

/// Makes files in a folder of its own and then moves them to their places, so that a file there is
/// always whole.
class SoundMaker {
 public:
  /// `workFolder` lies on the file system of the targets and belongs to the maker alone.
  /// `overwrite` replaces files that are there; without it they are kept.
  SoundMaker(QString workFolder, bool overwrite);

  /// Makes all on that many threads and calls `progress`, from any of them but one at a time, with
  /// the number of sounds done so far. Returns the targets that could not be made.
  QStringList Make(const QList<SoundJob>& jobs, int threads,
                   const std::function<void(qsizetype)>& progress) const;

 private:
  QStringList MakeBatch(const QList<SoundJob>& jobs, const QString& stem) const;
  bool Speak(const Spoken& spoken, const QString& wave) const;
  bool PutInPlace(const QString& made, const QString& target) const;

  QString workFolder_;
  bool overwrite_;
};

}  // namespace bramlee
