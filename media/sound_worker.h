// The part of the sound engine that lives on its own thread.
#pragma once

#include <QAudioDecoder>
#include <QAudioSink>
#include <QObject>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <memory>

#include "media/pcm_source.h"
#include "media/sound_engine.h"

namespace bramlee {

/// Decodes with one QAudioDecoder a file and plays with one QAudioSink a cue: a sink that was
/// stopped and started again stays silent at times.
class SoundWorker : public QObject {
  Q_OBJECT
 public:
  SoundWorker();

  /// Plays the files one after the other under one number; cuts off what was playing. Skips files
  /// that cannot be played.
  void Play(int number, const QStringList& files);
  /// Plays the short silent files, unless something is playing.
  void WarmUp();
  /// Cuts off what is playing, if anything is.
  void Stop();
  /// For this sound and those to come, see PcmSource.
  void SetRate(double rate);
  void SetMute(bool mute);

 Q_SIGNALS:
  /// Emitted once for each Play and WarmUp.
  void Ended(int number, bramlee::SoundEnd end);

 private:
  void NextFile();
  void TakeDecoded();
  void DecoderEnded();
  void StartSink();
  void LetGoOfDecoder();
  void LetGo();
  void End(SoundEnd end);

  int number_ = 0;  ///< of what is playing, 0 for nothing, kWarmUp for the silent files
  QStringList files_;
  std::unique_ptr<QTemporaryDir> warmUpFiles_;
  std::unique_ptr<PcmSource> pcm_;
  std::unique_ptr<QAudioDecoder> decoder_;
  int decoderNo_ = 0;  ///< counts the decoders
  QTimer takeUp_;      ///< of a decoder that had to wait
  std::unique_ptr<QAudioSink> sink_;
  bool decodedAny_ = false;
  double rate_ = 1;
  bool mute_ = false;
};

}  // namespace bramlee
