// Records a voice from a microphone.
#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QThread>
#include <QTimer>
#include <cstdint>

#include "voice/speech_wave.h"
#include "voice/voice_cutter.h"

namespace bramlee {

class RecorderWorker;

/// A microphone that is there.
struct Microphone {
  QByteArray id;  ///< the system's name of it
  QString name;   ///< for people
  bool operator==(const Microphone& other) const = default;
};

/// Why nothing was recorded at all.
enum class RecorderTrouble : std::uint8_t {
  None,
  NoMicrophone,  ///< there is none, or that one is not there
  Refused,       ///< it cannot be opened: another program has it, or this one may not
  Gone,          ///< it went while it recorded
};

/// What came of a recording.
struct Recording {
  RecorderTrouble trouble = RecorderTrouble::None;
  VoiceFault fault = VoiceFault::None;
  SpeechWave cue;  ///< the voice, ready to be a sound of a board; empty with a trouble or fault
};

/// Records one voice at a time, on a thread of its own, whatever the windows do meanwhile. Between
/// Start and Ended, and at no other time, a microphone is open; no cue is heard then. All calls
/// return at once.
class VoiceRecorder : public QObject {
  Q_OBJECT
 public:
  explicit VoiceRecorder(QObject* parent = nullptr);
  /// Closes the microphone.
  ~VoiceRecorder() override;

  /// From now on Microphones() says which there are, at first and whenever they become others.
  void LookForMicrophones();

  /// Opens that microphone; an empty id is the system's usual one. Nothing while it records.
  void Start(const QByteArray& microphone);
  /// The voice has ended: Ended() comes with what was recorded.
  void Stop();
  /// Closes the microphone and forgets what it heard; Ended() does not come.
  void Drop();
  bool IsRunning() const { return number_ != 0; }

 Q_SIGNALS:
  void Microphones(const QList<bramlee::Microphone>& there);
  /// The microphone is open and heard.
  void Began();
  /// The highest peak of the last moment, in decibels below full scale.
  void Level(double peak);
  /// Comes once for each Start that is not dropped: a second of quiet after the voice, at Stop, or
  /// when there is nothing to be had.
  void Ended(const bramlee::Recording& recording);

 private:
  void End(int number, const Recording& recording);
  void SetRunning(int number);

  QThread* thread_;
  RecorderWorker* worker_;  ///< lives on thread_
  int number_ = 0;          ///< of what is recorded, 0 for nothing
  int last_ = 0;
  QTimer opening_;  ///< runs until the microphone is heard
};

}  // namespace bramlee
