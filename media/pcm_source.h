// Decoded sound on its way from a decoder to the sound device.
#pragma once

#include <QAudioFormat>
#include <QIODevice>
#include <cstdint>
#include <functional>
#include <vector>

namespace bramlee {

/// The form in which all sound passes through here: 48000 frames a second, two channels, 16 bits.
QAudioFormat PcmFormat();

/// A decoder appends to it and a sound device reads from it, on one and the same thread. Never runs
/// dry before Finish: where the decoder lags behind it returns silence, since a device that gets
/// nothing stops for good. After the last frame it returns a short silence, which pushes the
/// sound's end through the device's own buffer, and then calls `drained` once.
class PcmSource : public QIODevice {
 public:
  explicit PcmSource(std::function<void()> drained);

  /// Takes in frames of PcmFormat.
  void Append(const std::int16_t* samples, std::size_t count);
  /// Nothing more will be appended.
  void Finish() { finished_ = true; }

  /// How fast the frames are used up, 1 as recorded; the pitch follows. Heard as soon as the device
  /// has played what it took before. Ignores a rate that is not greater than 0.
  void SetRate(double rate);
  /// Whether silence takes the sound's place; the sound goes on unheard.
  void SetMute(bool mute) { mute_ = mute; }

  /// Milliseconds (of the recording) that were appended and not yet used up.
  double AheadMs() const;

  bool isSequential() const override { return true; }
  qint64 bytesAvailable() const override;

 protected:
  qint64 readData(char* data, qint64 maxSize) override;
  qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

 private:
  std::size_t Frames() const;
  std::int16_t SampleAt(std::size_t channel) const;
  void DropUsedFrames();

  std::function<void()> drained_;
  std::vector<std::int16_t> samples_;  ///< of both channels in turn
  double at_ = 0;                      ///< the next frame to play, between two of samples_
  double rate_ = 1;
  bool mute_ = false;
  bool finished_ = false;
  int tailFrames_;  ///< silence still to give after the end
};

}  // namespace bramlee
