// Sounds in a voice of one's own, in the place of those that the sounds' maker made.
#pragma once

#include <QLockFile>
#include <QString>
#include <QStringList>
#include <cstdint>

#include "voice/speech_wave.h"

namespace bramlee {

/// Who speaks a sound.
enum class VoiceOf : std::uint8_t { Nobody, Maker, Own };

/// Keeps all other writers of the sounds away while it stands: the sounds' maker and other windows.
class SoundsLock {
 public:
  /// Of that folder of sounds, which has to be there. Waits so long for another one to end.
  explicit SoundsLock(const QString& root, int waitMs = 0);
  bool Holds() const { return held_; }
  /// Whether another one has it, if this one does not.
  bool IsHeldByAnother() const { return lock_.error() == QLockFile::LockFailedError; }

 private:
  QLockFile lock_;
  bool held_;
};

/// The sounds of a drive, by their names below the folder of sounds without what they end in:
/// "engc/eng-a". Names match without regard to case.
///
/// In the folder "own" among the sounds, "voice" holds the recordings, which the boards' files are
/// made of, and "kept" the maker's files that these have the place of. All files of a sound change
/// together or not at all, wherever the program is stopped; what it left is taken up by the next
/// change, and by Finish.
///
/// Errors are lines for people; an empty one is none.
class OwnSounds {
 public:
  /// `drive` is the drive's folder in the system. Looks at nothing.
  explicit OwnSounds(QString drive);

  /// A recording counts as long as a file of it is where the boards look.
  VoiceOf Of(const QString& sound) const;
  /// Whether there is a recording of it.
  bool IsRecorded(const QString& sound) const;
  /// Whole path of a file to hear it by, .wav if there is one; empty when there is none.
  QString FileOf(const QString& sound) const;
  /// The names of all recordings.
  QStringList Recorded() const;
  /// The recording itself.
  QString RecordingOf(const QString& sound) const;

  /// Has the cue spoken for that sound from now on, in all formats.
  QString Keep(const QString& sound, const SpeechWave& cue) const;
  /// Brings the maker's files back; those that he did not make go.
  QString GiveBack(const QString& sound) const;
  /// Takes up what a stopped program left. Nothing to do is no error, nor is another one at work.
  QString Finish() const;

 private:
  QString Root() const;
  QString InOwn(const QString& part, const QString& file) const;

  QString drive_;
};

}  // namespace bramlee
