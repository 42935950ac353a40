#include "media/sound_worker.h"

#include <QAudioBuffer>
#include <QAudioDevice>
#include <QMediaDevices>
#include <QUrl>
#include <utility>

#include "media/sound_file.h"

namespace bramlee {
namespace {

/// Decoded before the device starts, so that it does not run dry at once.
constexpr double kStartMs = 100;
/// Decoded ahead at most: a sound of an hour takes no more room than a short one.
constexpr double kMostAheadMs = 10000;
/// How often a decoder that had to wait is asked again.
constexpr int kTakeUpMs = 1000;
/// The number of the warming up, which no cue has.
constexpr int kWarmUp = -1;

}  // namespace

SoundWorker::SoundWorker() : takeUp_(this) {
  takeUp_.setSingleShot(true);
  connect(&takeUp_, &QTimer::timeout, this, [this] {
    if (decoder_) TakeDecoded();
  });
}

void SoundWorker::Play(int number, const QStringList& files) {
  Stop();
  number_ = number;
  files_ = files;
  decodedAny_ = false;
  // The device is inside a read when it has used up everything.
  pcm_ = std::make_unique<PcmSource>([this, number] {
    QMetaObject::invokeMethod(
        this,
        [this, number] {
          if (number == number_) End(SoundEnd::Played);
        },
        Qt::QueuedConnection);
  });
  pcm_->SetRate(rate_);
  pcm_->SetMute(mute_);
  NextFile();
}

void SoundWorker::WarmUp() {
  if (number_ != 0) return;
  // In real files, since the library reads a resource inside the program in another way.
  warmUpFiles_ = std::make_unique<QTemporaryDir>();
  QStringList files;
  for (const char* name : {"warm.wav", "warm.mp3", "warm.wma"}) {
    files.append(warmUpFiles_->filePath(QString::fromLatin1(name)));
    QFile::copy(QStringLiteral(":/warm_up/") + QString::fromLatin1(name), files.last());
  }
  Play(kWarmUp, files);
}

void SoundWorker::Stop() {
  if (number_ != 0) End(SoundEnd::CutOff);
}

void SoundWorker::SetRate(double rate) {
  rate_ = rate;
  if (pcm_) pcm_->SetRate(rate);
}

void SoundWorker::SetMute(bool mute) {
  mute_ = mute;
  if (pcm_) pcm_->SetMute(mute);
}

void SoundWorker::NextFile() {
  while (!files_.isEmpty() && !IsPlayableFile(files_.first())) files_.removeFirst();
  if (files_.isEmpty()) {
    pcm_->Finish();
    if (!decodedAny_) return End(SoundEnd::NoSound);
    return StartSink();
  }
  decoder_ = std::make_unique<QAudioDecoder>();
  ++decoderNo_;
  const auto told = [this](void (SoundWorker::*what)()) {
    // It emits from its own threads, so its signals may come after it was deleted.
    return [this, what, decoderNo = decoderNo_] {
      if (decoder_ && decoderNo == decoderNo_) (this->*what)();
    };
  };
  const auto listen = [&](auto signal, void (SoundWorker::*what)()) {
    connect(decoder_.get(), signal, this, told(what), Qt::QueuedConnection);
  };
  listen(&QAudioDecoder::bufferReady, &SoundWorker::TakeDecoded);
  listen(&QAudioDecoder::finished, &SoundWorker::DecoderEnded);
  listen(qOverload<QAudioDecoder::Error>(&QAudioDecoder::error), &SoundWorker::DecoderEnded);
  decoder_->setAudioFormat(PcmFormat());
  decoder_->setSource(QUrl::fromLocalFile(files_.takeFirst()));
  decoder_->start();
}

void SoundWorker::TakeDecoded() {
  while (decoder_->bufferAvailable()) {
    if (pcm_->AheadMs() > kMostAheadMs) {
      takeUp_.start(kTakeUpMs);
      return;
    }
    const QAudioBuffer buffer = decoder_->read();
    if (!buffer.isValid() || buffer.format() != PcmFormat()) continue;
    pcm_->Append(buffer.constData<std::int16_t>(), static_cast<std::size_t>(buffer.sampleCount()));
    decodedAny_ = true;
  }
  if (pcm_->AheadMs() >= kStartMs) StartSink();
}

/// At a good end and at an error alike: what is decoded so far is played.
void SoundWorker::DecoderEnded() {
  LetGoOfDecoder();
  NextFile();
}

void SoundWorker::StartSink() {
  if (sink_) return;
  const QAudioDevice device = QMediaDevices::defaultAudioOutput();
  if (device.isNull()) return End(SoundEnd::NoDevice);
  sink_ = std::make_unique<QAudioSink>(device, PcmFormat());
  sink_->start(pcm_.get());
  if (sink_->error() != QAudio::NoError) End(SoundEnd::NoDevice);
}

/// Stops it first: its own threads would go on emitting to it while it is destroyed.
void SoundWorker::LetGoOfDecoder() {
  if (!decoder_) return;
  decoder_->disconnect(this);
  decoder_->stop();
  decoder_.reset();
}

/// The event loop deletes the sink later, with the source that it reads from: a sink's destructor
/// serves waiting events first, and the next cue may be among them.
void SoundWorker::LetGo() {
  LetGoOfDecoder();
  if (sink_) {
    sink_->stop();
    pcm_.release()->setParent(sink_.get());
    sink_.release()->deleteLater();
  }
  pcm_.reset();
  warmUpFiles_.reset();
}

void SoundWorker::End(SoundEnd end) {
  LetGo();
  Q_EMIT Ended(std::exchange(number_, 0), end);
}

}  // namespace bramlee
