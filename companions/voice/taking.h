// A take: the count-in, and what is recorded behind it.
#pragma once

#include <QObject>
#include <QTimer>
#include <cstdint>

#include "media/voice_recorder.h"

namespace bramlee {

/// From the press of a button to a recorded voice. A press counts in and then records until the
/// voice has ended by itself; another press ends it. A button that is held down through all of it
/// ends it when it is let go. No microphone is open before the count-in has ended.
class Taking : public QObject {
  Q_OBJECT
 public:
  enum class State : std::uint8_t { Idle, CountIn, Opening, Recording };

  explicit Taking(QObject* parent = nullptr);

  /// The button goes down. During the count-in a press calls all off.
  void Press(const QByteArray& microphone);
  /// The button comes up.
  void Release();
  /// Calls all off; nothing is kept of it.
  void CallOff();

  State Now() const { return state_; }
  /// What is counted in the count-in: 3, 2, 1.
  int Count() const { return count_; }

  void LookForMicrophones() { recorder_.LookForMicrophones(); }

 Q_SIGNALS:
  /// State or count are others now.
  void Changed();
  /// As VoiceRecorder has them.
  void Level(double peak);
  void Microphones(const QList<bramlee::Microphone>& there);
  void Ended(const bramlee::Recording& recording);

 private:
  void CountDown();
  void Enter(State state);

  VoiceRecorder recorder_;
  QTimer counting_;
  QByteArray microphone_;
  State state_ = State::Idle;
  int count_ = 0;
  bool held_ = false;  ///< the button, since the take began
};

}  // namespace bramlee
