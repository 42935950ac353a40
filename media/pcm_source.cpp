#include "media/pcm_source.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace bramlee {
namespace {

constexpr int kFramesPerSecond = 48000;
constexpr std::size_t kChannels = 2;
constexpr int kFrameBytes = kChannels * sizeof(std::int16_t);
/// Longer than any device's buffer, which is 250 ms by default.
constexpr int kTailFrames = kFramesPerSecond * 4 / 10;
/// Drops used frames a second at a time.
constexpr double kDropFrames = kFramesPerSecond;

}  // namespace

QAudioFormat PcmFormat() {
  QAudioFormat format;
  format.setSampleRate(kFramesPerSecond);
  format.setChannelCount(kChannels);
  format.setSampleFormat(QAudioFormat::Int16);
  return format;
}

PcmSource::PcmSource(std::function<void()> drained)
    : drained_(std::move(drained)), tailFrames_(kTailFrames) {
  open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

void PcmSource::Append(const std::int16_t* samples, std::size_t count) {
  samples_.insert(samples_.end(), samples, samples + count);
}

void PcmSource::SetRate(double rate) {
  if (rate > 0) rate_ = rate;
}

std::size_t PcmSource::Frames() const {
  return samples_.size() / kChannels;
}

double PcmSource::AheadMs() const {
  return std::max(0.0, static_cast<double>(Frames()) - at_) * 1000 / kFramesPerSecond;
}

qint64 PcmSource::bytesAvailable() const {
  return tailFrames_ > 0 ? qint64{kTailFrames} * kFrameBytes : 0;
}

/// The sample of that channel at at_, on the straight line between its neighbours.
std::int16_t PcmSource::SampleAt(std::size_t channel) const {
  const auto frame = static_cast<std::size_t>(at_);
  const double here = samples_[frame * kChannels + channel];
  if (frame + 1 >= Frames()) return static_cast<std::int16_t>(here);
  const double next = samples_[(frame + 1) * kChannels + channel];
  return static_cast<std::int16_t>(std::lround(here + (next - here) * (at_ - std::floor(at_))));
}

void PcmSource::DropUsedFrames() {
  const double used = std::min(std::floor(at_), static_cast<double>(Frames()));
  if (used < kDropFrames) return;
  samples_.erase(samples_.begin(),
                 samples_.begin() + static_cast<std::ptrdiff_t>(used) * std::ptrdiff_t{kChannels});
  at_ -= used;
}

qint64 PcmSource::readData(char* data, qint64 maxSize) {
  auto* out = reinterpret_cast<std::int16_t*>(data);
  const qint64 frames = maxSize / kFrameBytes;
  qint64 given = 0;
  for (; given < frames; ++given) {
    const bool sounding = at_ < static_cast<double>(Frames());
    if (!sounding && finished_ && tailFrames_-- <= 0) break;
    for (std::size_t channel = 0; channel < kChannels; ++channel) {
      *out++ = sounding && !mute_ ? SampleAt(channel) : std::int16_t{0};
    }
    if (sounding) at_ += rate_;
  }
  DropUsedFrames();
  if (given == 0 && drained_) std::exchange(drained_, {})();
  return given * kFrameBytes;
}

}  // namespace bramlee
