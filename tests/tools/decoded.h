// A sound file as the player decodes it.
#pragma once

#include <QAudioBuffer>
#include <QAudioDecoder>
#include <QEventLoop>
#include <QUrl>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace bramlee {

/// Decoded in full by its making. One that cannot be decoded has no sound at all.
class DecodedSound {
 public:
  explicit DecodedSound(const QString& file) {
    QAudioFormat format;
    format.setSampleRate(kSamplesMs * 1000);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    QAudioDecoder decoder;
    decoder.setAudioFormat(format);
    decoder.setSource(QUrl::fromLocalFile(file));
    QEventLoop loop;
    QObject::connect(&decoder, &QAudioDecoder::bufferReady, &loop, [&] {
      while (decoder.bufferAvailable()) {
        const QAudioBuffer buffer = decoder.read();
        const auto* samples = buffer.constData<std::int16_t>();
        samples_.insert(samples_.end(), samples, samples + buffer.sampleCount());
      }
    });
    QObject::connect(&decoder, &QAudioDecoder::finished, &loop, &QEventLoop::quit,
                     Qt::QueuedConnection);
    QObject::connect(&decoder, qOverload<QAudioDecoder::Error>(&QAudioDecoder::error), &loop,
                     &QEventLoop::quit, Qt::QueuedConnection);
    decoder.start();
    loop.exec();
    decoder.stop();
    FindSpeech();
  }

  /// Milliseconds before the speech begins, -1 for no speech.
  double BeginMs() const { return spoken_ == 0 ? -1 : Ms(begin_); }
  double SpokenMs() const { return Ms(spoken_); }

  /// The speech's level below full scale.
  double LevelDb() const {
    double squares = 0;
    for (std::size_t i = begin_; i < begin_ + spoken_; ++i)
      squares += 1.0 * samples_[i] * samples_[i];
    return 10 * std::log10(squares / static_cast<double>(spoken_) / 32767 / 32767);
  }

 private:
  static constexpr int kSamplesMs = 48;
  static constexpr int kSilence = 330;  ///< a hundredth of full scale

  static double Ms(std::size_t samples) { return static_cast<double>(samples) / kSamplesMs; }

  void FindSpeech() {
    const auto loud = [](std::int16_t sample) { return std::abs(int{sample}) > kSilence; };
    std::size_t end = samples_.size();
    while (begin_ < end && !loud(samples_[begin_])) ++begin_;
    while (end > begin_ && !loud(samples_[end - 1])) --end;
    spoken_ = end - begin_;
  }

  std::vector<std::int16_t> samples_;
  std::size_t begin_ = 0;
  std::size_t spoken_ = 0;
};

}  // namespace bramlee
