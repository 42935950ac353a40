// The microphones to record with.
#pragma once

#include <QByteArray>
#include <QComboBox>
#include <QList>

#include "media/voice_recorder.h"

namespace bramlee {

/// "voice_microphone": the usual one, and each that is there. The one that is chosen lasts; where
/// it is not plugged in the usual one is shown until it is again.
class MicrophoneList : public QComboBox {
 public:
  explicit MicrophoneList(QWidget* parent = nullptr);

  /// From now on these are there.
  void Show(const QList<Microphone>& there);
  bool IsEmpty() const { return count() == 0; }
  /// Of the one that is shown; empty for the system's usual one.
  QByteArray Id() const { return currentData().toByteArray(); }
};

}  // namespace bramlee
