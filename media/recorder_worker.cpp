#include "media/recorder_worker.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

namespace bramlee {
namespace {

constexpr int kRate = 48000;
/// How often it is asked which microphones there are.
constexpr int kLookMs = 1000;
constexpr int kWatchMs = 250;
/// A microphone that gives nothing more for so long is gone.
constexpr int kSilentMs = 1500;

constexpr double kLowestDb = -96;

/// As the cutter takes it, or the microphone's own form where it has no such.
QAudioFormat FormatOf(const QAudioDevice& device) {
  QAudioFormat format;
  format.setSampleRate(kRate);
  format.setChannelCount(1);
  format.setSampleFormat(QAudioFormat::Int16);
  return device.isFormatSupported(format) ? format : device.preferredFormat();
}

/// The first channel of what a device gave.
std::vector<std::int16_t> SamplesOf(const QByteArray& bytes, const QAudioFormat& format) {
  const int frame = std::max(1, format.bytesPerFrame());
  std::vector<std::int16_t> samples;
  samples.reserve(static_cast<std::size_t>(bytes.size() / frame));
  for (qsizetype at = 0; at + frame <= bytes.size(); at += frame) {
    const double value = double{format.normalizedSampleValue(bytes.constData() + at)};
    samples.push_back(static_cast<std::int16_t>(std::lround(std::clamp(value, -1.0, 1.0) * 32767)));
  }
  return samples;
}

double PeakOf(const std::vector<std::int16_t>& samples) {
  int peak = 0;
  for (const std::int16_t sample : samples) peak = std::max(peak, std::abs(int{sample}));
  return peak == 0 ? kLowestDb : 20 * std::log10(peak / 32768.0);
}

QAudioDevice DeviceOf(const QByteArray& id) {
  if (id.isEmpty()) return QMediaDevices::defaultAudioInput();
  const QList<QAudioDevice> devices = QMediaDevices::audioInputs();
  const auto found = std::find_if(devices.begin(), devices.end(),
                                  [&id](const QAudioDevice& device) { return device.id() == id; });
  return found == devices.end() ? QAudioDevice() : *found;
}

}  // namespace

RecorderWorker::RecorderWorker() : look_(this), watch_(this) {
  connect(&look_, &QTimer::timeout, this, &RecorderWorker::SayMicrophones);
  connect(&watch_, &QTimer::timeout, this, &RecorderWorker::Watch);
}

/// What the microphone still gives while it closes would find half of this gone.
RecorderWorker::~RecorderWorker() {
  if (heard_ != nullptr) heard_->disconnect(this);
  source_.reset();
}

void RecorderWorker::Look() {
  look_.start(kLookMs);
  SayMicrophones();
}

void RecorderWorker::SayMicrophones() {
  QList<Microphone> there;
  for (const QAudioDevice& device : QMediaDevices::audioInputs()) {
    there.append({device.id(), device.description()});
  }
  if (std::exchange(toldAny_, true) && there == told_) return;
  told_ = there;
  Q_EMIT Microphones(there);
}

void RecorderWorker::Start(int number, const QByteArray& microphone) {
  number_ = number;
  began_ = false;
  const QAudioDevice device = DeviceOf(microphone);
  if (device.isNull()) return Fail(RecorderTrouble::NoMicrophone);
  microphone_ = device.id();
  const QAudioFormat format = FormatOf(device);
  if (!format.isValid()) return Fail(RecorderTrouble::Refused);
  cutter_ = std::make_unique<VoiceCutter>(format.sampleRate());
  source_ = std::make_unique<QAudioSource>(device, format);
  heard_ = source_->start();
  if (heard_ == nullptr || source_->error() != QAudio::NoError) {
    return Fail(RecorderTrouble::Refused);
  }
  connect(heard_, &QIODevice::readyRead, this, &RecorderWorker::Take);
  sinceHeard_.start();
  watch_.start(kWatchMs);
}

void RecorderWorker::Take() {
  if (!source_) return;
  const std::vector<std::int16_t> samples = SamplesOf(heard_->readAll(), source_->format());
  if (samples.empty()) return;
  sinceHeard_.restart();
  if (!std::exchange(began_, true)) Q_EMIT Began(number_);
  Q_EMIT Level(number_, PeakOf(samples));
  if (!cutter_->Take(samples)) Finish();
}

/// A microphone that is pulled out may say nothing of it.
void RecorderWorker::Watch() {
  if (!source_) return;
  if (source_->bytesAvailable() > 0) Take();
  if (!source_) return;
  const bool silent = began_ && sinceHeard_.elapsed() > kSilentMs;
  const QAudio::Error error = source_->error();
  const bool broken = error == QAudio::IOError || error == QAudio::FatalError;
  if (!silent && !broken && !DeviceOf(microphone_).isNull()) return;
  Fail(began_ ? RecorderTrouble::Gone : RecorderTrouble::Refused);
}

void RecorderWorker::Stop(int number) {
  if (number != number_ || !source_) return;
  Take();
  if (number == number_ && source_) Finish();
}

void RecorderWorker::Drop(int number) {
  if (number != number_ || number == 0) return;
  watch_.stop();
  number_ = 0;
  heard_ = nullptr;
  if (source_) {
    source_->stop();
    source_.release()->deleteLater();
  }
  cutter_.reset();
}

void RecorderWorker::Finish() {
  const VoicePart part = cutter_->Cut();
  Recording recording{.trouble = RecorderTrouble::None, .fault = part.fault, .cue = {}};
  if (part.fault == VoiceFault::None) {
    recording.cue = MakeCueOfVoice({.rate = cutter_->Rate(), .samples = cutter_->Samples()},
                                   part.begin, part.end);
  }
  End(recording);
}

void RecorderWorker::Fail(RecorderTrouble trouble) {
  End({.trouble = trouble, .fault = VoiceFault::None, .cue = {}});
}

void RecorderWorker::End(const Recording& recording) {
  const int number = number_;
  Drop(number);
  Q_EMIT Ended(number, recording);
}

}  // namespace bramlee
