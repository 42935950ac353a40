#include "media/sound_engine.h"

#include <QCoreApplication>
#include <utility>

#include "media/sound_worker.h"

namespace bramlee {
namespace {

/// How long the end of the program waits for a sound server that no longer answers.
constexpr unsigned long kEndMs = 2000;

SoundEngine*& TheEngine() {
  static SoundEngine* engine = nullptr;
  return engine;
}

}  // namespace

SoundEngine& SoundEngine::Instance() {
  if (TheEngine() == nullptr) {
    TheEngine() = new SoundEngine;
    qAddPostRoutine(&SoundEngine::End);
  }
  return *TheEngine();
}

SoundEngine::SoundEngine() : worker_(new SoundWorker) {
  qRegisterMetaType<SoundEnd>();
  thread_.setObjectName(QStringLiteral("sound"));
  worker_->moveToThread(&thread_);
  connect(&thread_, &QThread::finished, worker_, &QObject::deleteLater);
  connect(worker_, &SoundWorker::Ended, this, &SoundEngine::Ended);
  thread_.start();
}

/// A thread that hangs in a call to the sound server is left to the end of the process.
void SoundEngine::End() {
  SoundEngine* engine = std::exchange(TheEngine(), nullptr);
  engine->Stop();
  engine->thread_.quit();
  if (engine->thread_.wait(kEndMs)) delete engine;
}

int SoundEngine::Play(const QString& file) {
  const int number = ++latest_;
  QMetaObject::invokeMethod(
      worker_,
      [this, number, file] {
        // Of several that were asked for meanwhile only the last one plays.
        if (number == latest_ && hushed_ == 0) {
          worker_->Play(number, {file});
        } else {
          Q_EMIT worker_->Ended(number, SoundEnd::CutOff);
        }
      },
      Qt::QueuedConnection);
  return number;
}

void SoundEngine::Stop() {
  ++latest_;
  QMetaObject::invokeMethod(
      worker_, [this] { worker_->Stop(); }, Qt::QueuedConnection);
}

void SoundEngine::Hush(bool on) {
  hushed_ += on ? 1 : -1;
  if (on) Stop();
}

void SoundEngine::SetRate(double rate) {
  QMetaObject::invokeMethod(
      worker_, [this, rate] { worker_->SetRate(rate); }, Qt::QueuedConnection);
}

void SoundEngine::SetMute(bool mute) {
  QMetaObject::invokeMethod(
      worker_, [this, mute] { worker_->SetMute(mute); }, Qt::QueuedConnection);
}

void SoundEngine::WarmUp() {
  if (std::exchange(warm_, true)) return;
  QMetaObject::invokeMethod(
      worker_, [this] { worker_->WarmUp(); }, Qt::QueuedConnection);
}

}  // namespace bramlee
