#include "media/voice_recorder.h"

#include <utility>

#include "media/recorder_worker.h"
#include "media/sound_engine.h"

namespace bramlee {
namespace {

/// How long the end waits for a sound server that no longer answers.
constexpr unsigned long kEndMs = 2000;
/// A microphone that gives nothing for so long after it was asked is not to be had; the call that
/// opens it may hang.
constexpr int kOpeningMs = 5000;

}  // namespace

VoiceRecorder::VoiceRecorder(QObject* parent)
    : QObject(parent), thread_(new QThread), worker_(new RecorderWorker), opening_(this) {
  qRegisterMetaType<Recording>();
  qRegisterMetaType<QList<Microphone>>();
  thread_->setObjectName(QStringLiteral("microphone"));
  worker_->moveToThread(thread_);
  connect(thread_, &QThread::finished, worker_, &QObject::deleteLater);
  connect(worker_, &RecorderWorker::Microphones, this, &VoiceRecorder::Microphones);
  connect(worker_, &RecorderWorker::Began, this, [this](int number) {
    if (number != number_) return;
    opening_.stop();
    Q_EMIT Began();
  });
  connect(worker_, &RecorderWorker::Level, this, [this](int number, double peak) {
    if (number == number_) Q_EMIT Level(peak);
  });
  connect(worker_, &RecorderWorker::Ended, this, &VoiceRecorder::End);
  opening_.setSingleShot(true);
  opening_.setInterval(kOpeningMs);
  connect(&opening_, &QTimer::timeout, this, [this] {
    Drop();
    Q_EMIT Ended({.trouble = RecorderTrouble::Refused, .fault = VoiceFault::None, .cue = {}});
  });
  thread_->start();
}

/// A thread that hangs in a call to the sound server is left to the end of the process.
VoiceRecorder::~VoiceRecorder() {
  Drop();
  thread_->quit();
  if (thread_->wait(kEndMs)) delete thread_;
}

void VoiceRecorder::LookForMicrophones() {
  QMetaObject::invokeMethod(
      worker_, [worker = worker_] { worker->Look(); }, Qt::QueuedConnection);
}

/// Cues are heard again once nothing is recorded.
void VoiceRecorder::SetRunning(int number) {
  const bool before = IsRunning();
  number_ = number;
  if (IsRunning() == before) return;
  SoundEngine::Instance().Hush(IsRunning());
  if (!IsRunning()) opening_.stop();
}

void VoiceRecorder::Start(const QByteArray& microphone) {
  if (IsRunning()) return;
  SetRunning(++last_);
  opening_.start();
  QMetaObject::invokeMethod(
      worker_,
      [worker = worker_, number = number_, microphone] { worker->Start(number, microphone); },
      Qt::QueuedConnection);
}

void VoiceRecorder::Stop() {
  QMetaObject::invokeMethod(
      worker_, [worker = worker_, number = number_] { worker->Stop(number); },
      Qt::QueuedConnection);
}

void VoiceRecorder::Drop() {
  if (!IsRunning()) return;
  QMetaObject::invokeMethod(
      worker_, [worker = worker_, number = number_] { worker->Drop(number); },
      Qt::QueuedConnection);
  SetRunning(0);
}

void VoiceRecorder::End(int number, const Recording& recording) {
  if (number != number_) return;
  SetRunning(0);
  Q_EMIT Ended(recording);
}

}  // namespace bramlee
