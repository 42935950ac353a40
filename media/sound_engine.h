// Plays sound files so that they start at once and go on while the window's thread is busy.
#pragma once

#include <QObject>
#include <QString>
#include <QThread>
#include <atomic>
#include <cstdint>

namespace bramlee {

class SoundWorker;

/// How a sound file came to its end.
enum class SoundEnd : std::uint8_t {
  Played,    ///< to its last frame
  CutOff,    ///< by the next one or by Stop
  NoSound,   ///< nothing in it could be decoded, or it is no plain, readable file
  NoDevice,  ///< there is nothing to hear it with
};

/// Plays one sound file at a time, on a thread of its own: a letter's strokes hold the window's
/// thread for as long as they last. All calls return at once and none fails; a file that cannot be
/// played stays silent. No media code is loaded before the first call of Play or WarmUp.
class SoundEngine : public QObject {
  Q_OBJECT
 public:
  /// The program's one engine. It ends with the application object.
  static SoundEngine& Instance();

  /// Plays the file of that system path from its start; cuts off what was playing. Returns the
  /// number with which Ended reports its end.
  int Play(const QString& file);
  /// Cuts off what is playing.
  void Stop();
  /// Cuts off what is playing, and what is asked for from now on, until that is taken back; they
  /// nest.
  void Hush(bool on);
  /// For this sound and those to come, see PcmSource.
  void SetRate(double rate);
  void SetMute(bool mute);

  /// Decodes one short silent file of each usual format, so that the first cue need not wait for
  /// decoders to be found and loaded. Done once; a cue that is asked for meanwhile goes first.
  void WarmUp();

 Q_SIGNALS:
  /// Emitted once for each Play, on the receiver's thread.
  void Ended(int number, bramlee::SoundEnd end);

 private:
  SoundEngine();
  static void End();

  QThread thread_;
  SoundWorker* worker_;  ///< lives on thread_
  std::atomic<int> latest_ = 0;
  std::atomic<int> hushed_ = 0;
  bool warm_ = false;
};

}  // namespace bramlee
