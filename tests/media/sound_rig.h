// Hears what a program plays: a sound server of its own, whose device is nowhere, and a recorder
// of what that device is given.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <cstdint>
#include <optional>
#include <vector>

namespace bramlee {

/// Milliseconds of a clock that only goes forward; all times here are of this clock.
double NowMs();

/// What was recorded in a stretch of time.
struct Heard {
  double beginMs;                     ///< when its first sample was given to the device
  std::vector<std::int16_t> samples;  ///< one channel, 48000 a second

  double EndMs() const;
  /// The stretch from `from` to `to`.
  Heard Between(double from, double to) const;
  /// When the first and the last sample that is no silence were given, if there is one.
  std::optional<double> FirstSoundMs() const;
  std::optional<double> LastSoundMs() const;
  /// The longest silence between the first and the last sound.
  double LongestGapMs() const;
  /// The pitch of a tone (Hz) at that time, by its zero crossings over 20 ms.
  double PitchAt(double ms) const;
  /// The mean square's root.
  double Level() const;
};

/// A sound server. This process and those it starts find it by PULSE_SERVER, which is set before
/// anything asks for a device; they must not have asked before.
class SoundServer {
 public:
  SoundServer();
  ~SoundServer();
  SoundServer(const SoundServer&) = delete;
  SoundServer& operator=(const SoundServer&) = delete;

  /// Whether the programs that this needs are installed.
  static bool IsPossible();

  /// Starts it (again). Throws std::runtime_error when it does not come up.
  void Start();
  /// Ends it from one moment to the next.
  void Kill();

  /// Loads a module of its, with these arguments. Returns its number. Throws std::runtime_error.
  static QString Load(const QStringList& module);
  /// Does nothing once the server has ended.
  static void Unload(const QString& number);

 private:
  QTemporaryDir folder_;
  QProcess server_;
};

/// A room with a microphone: what is played there is what the microphone "mic" hears. The sounds of
/// the program are not heard in it. Needs a sound server.
class RoomWithMicrophone {
 public:
  RoomWithMicrophone();
  ~RoomWithMicrophone();
  RoomWithMicrophone(const RoomWithMicrophone&) = delete;
  RoomWithMicrophone& operator=(const RoomWithMicrophone&) = delete;

  /// Begins to play samples of one channel, 48000 a second.
  void Say(const std::vector<std::int16_t>& samples);
  void PullMicrophone();
  /// Whether the microphone gives nothing, though it is there.
  static void Suspend(bool on);

 private:
  QTemporaryDir folder_;
  QString room_;
  QString microphone_;
  QProcess speaker_;
};

/// Records from its making on. Throws std::runtime_error when nothing comes in.
class Recorder48 {
 public:
  Recorder48();
  ~Recorder48();
  Recorder48(const Recorder48&) = delete;
  Recorder48& operator=(const Recorder48&) = delete;

  /// What was recorded up to `untilMs`, which is waited for.
  Heard Until(double untilMs) const;

 private:
  QTemporaryDir folder_;
  QProcess recorder_;
  QString file_;
  double beginMs_ = 0;
};

}  // namespace bramlee
