// The part of the voice recorder that lives on its own thread.
#pragma once

#include <QAudioSource>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <memory>

#include "media/voice_recorder.h"

namespace bramlee {

class RecorderWorker : public QObject {
  Q_OBJECT
 public:
  RecorderWorker();
  ~RecorderWorker() override;
  RecorderWorker(const RecorderWorker&) = delete;
  RecorderWorker& operator=(const RecorderWorker&) = delete;

  /// Says which microphones there are, from now on.
  void Look();
  void Start(int number, const QByteArray& microphone);
  void Stop(int number);
  /// Closes the microphone, if that recording has it.
  void Drop(int number);

 Q_SIGNALS:
  void Microphones(const QList<bramlee::Microphone>& there);
  void Began(int number);
  void Level(int number, double peak);
  void Ended(int number, const bramlee::Recording& recording);

 private:
  void SayMicrophones();
  void Take();
  void Watch();
  void Finish();
  void Fail(RecorderTrouble trouble);
  void End(const Recording& recording);

  int number_ = 0;
  QByteArray microphone_;
  std::unique_ptr<QAudioSource> source_;
  QIODevice* heard_ = nullptr;  ///< the source's
  std::unique_ptr<VoiceCutter> cutter_;
  QElapsedTimer sinceHeard_;
  bool began_ = false;

  QTimer look_;
  QTimer watch_;
  QList<Microphone> told_;
  bool toldAny_ = false;
};

}  // namespace bramlee
