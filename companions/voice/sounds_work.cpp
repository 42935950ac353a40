#include "companions/voice/sounds_work.h"

#include <exception>

namespace bramlee {
namespace {

constexpr int kLookMs = 30;

/// No error leaves the thread.
Copied RunCaught(const SoundsWork::Work& work, const CopyProgress& progress,
                 const std::stop_token& stop) {
  try {
    return work(progress, stop);
  } catch (const std::exception& error) {
    return {.sounds = 0, .error = QString::fromUtf8(error.what())};
  }
}

}  // namespace

SoundsWork::SoundsWork(QObject* parent) : QObject(parent) {
  look_.setInterval(kLookMs);
  connect(&look_, &QTimer::timeout, this, &SoundsWork::Look);
}

void SoundsWork::Start(const Work& work) {
  running_ = true;
  ended_ = false;
  done_ = 0;
  of_ = 0;
  thread_ = std::jthread([this, work](const std::stop_token& stop) {
    const auto progress = [this](int done, int of) {
      done_ = done;
      of_ = of;
    };
    copied_ = RunCaught(work, progress, stop);
    ended_ = true;
  });
  look_.start();
}

void SoundsWork::Look() {
  Q_EMIT Progress(done_, of_);
  if (!ended_) return;
  look_.stop();
  thread_.join();
  running_ = false;
  Q_EMIT Ended(copied_);
}

}  // namespace bramlee
