#include "companions/voice/taking.h"

#include <utility>

namespace bramlee {
namespace {

constexpr int kCounts = 3;
constexpr int kCountMs = 600;

}  // namespace

Taking::Taking(QObject* parent) : QObject(parent), recorder_(this), counting_(this) {
  counting_.setInterval(kCountMs);
  connect(&counting_, &QTimer::timeout, this, &Taking::CountDown);
  connect(&recorder_, &VoiceRecorder::Began, this, [this] { Enter(State::Recording); });
  connect(&recorder_, &VoiceRecorder::Level, this, &Taking::Level);
  connect(&recorder_, &VoiceRecorder::Microphones, this, &Taking::Microphones);
  connect(&recorder_, &VoiceRecorder::Ended, this, [this](const Recording& recording) {
    Enter(State::Idle);
    Q_EMIT Ended(recording);
  });
}

void Taking::Enter(State state) {
  state_ = state;
  Q_EMIT Changed();
}

void Taking::Press(const QByteArray& microphone) {
  switch (state_) {
    case State::Idle:
      microphone_ = microphone;
      held_ = true;
      count_ = kCounts;
      counting_.start();
      Enter(State::CountIn);
      break;
    case State::CountIn:
    case State::Opening:
      CallOff();
      break;
    case State::Recording:
      recorder_.Stop();
      break;
  }
}

void Taking::Release() {
  const bool held = std::exchange(held_, false);
  if (held && state_ == State::Recording) recorder_.Stop();
}

void Taking::CallOff() {
  held_ = false;
  counting_.stop();
  recorder_.Drop();
  if (state_ != State::Idle) Enter(State::Idle);
}

void Taking::CountDown() {
  if (--count_ > 0) return Enter(State::CountIn);
  counting_.stop();
  recorder_.Start(microphone_);
  Enter(State::Opening);
}

}  // namespace bramlee
