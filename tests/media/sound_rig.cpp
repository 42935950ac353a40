#include "tests/media/sound_rig.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <stdexcept>

namespace bramlee {
namespace {

constexpr double kSamplesMs = 48;  ///< a millisecond's samples
constexpr int kSilence = 300;      ///< samples up to this are no tone of the tests
constexpr int kPatienceMs = 20000;

bool IsLoud(std::int16_t sample) {
  return std::abs(int{sample}) > kSilence;
}

template <class Condition>
bool WaitUntil(Condition condition) {
  QElapsedTimer clock;
  clock.start();
  while (!condition()) {
    if (clock.elapsed() > kPatienceMs) return false;
    QThread::msleep(1);
  }
  return true;
}

}  // namespace

double NowMs() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double Heard::EndMs() const {
  return beginMs + static_cast<double>(samples.size()) / kSamplesMs;
}

Heard Heard::Between(double from, double to) const {
  const auto place = [this](double ms) {
    const double at = (ms - beginMs) * kSamplesMs;
    return static_cast<std::ptrdiff_t>(std::clamp(at, 0.0, static_cast<double>(samples.size())));
  };
  return {
      .beginMs = std::max(from, beginMs),
      .samples = {samples.begin() + place(from), samples.begin() + place(to)}
  };
}

std::optional<double> Heard::FirstSoundMs() const {
  const auto first = std::find_if(samples.begin(), samples.end(), IsLoud);
  if (first == samples.end()) return {};
  return beginMs + static_cast<double>(first - samples.begin()) / kSamplesMs;
}

std::optional<double> Heard::LastSoundMs() const {
  const auto last = std::find_if(samples.rbegin(), samples.rend(), IsLoud);
  if (last == samples.rend()) return {};
  return EndMs() - static_cast<double>(last - samples.rbegin()) / kSamplesMs;
}

double Heard::LongestGapMs() const {
  double longest = 0;
  auto sound = std::find_if(samples.begin(), samples.end(), IsLoud);
  while (sound != samples.end()) {
    const auto next = std::find_if(sound + 1, samples.end(), IsLoud);
    if (next == samples.end()) break;
    longest = std::max(longest, static_cast<double>(next - sound) / kSamplesMs);
    sound = next;
  }
  return longest;
}

double Heard::PitchAt(double ms) const {
  constexpr double kWindowMs = 20;
  const Heard window = Between(ms, ms + kWindowMs);
  int crossings = 0;
  for (std::size_t i = 1; i < window.samples.size(); ++i) {
    if ((window.samples[i - 1] < 0) != (window.samples[i] < 0)) ++crossings;
  }
  return crossings / 2.0 / kWindowMs * 1000;
}

double Heard::Level() const {
  double squares = 0;
  for (const std::int16_t sample : samples) squares += 1.0 * sample * sample;
  return samples.empty() ? 0 : std::sqrt(squares / static_cast<double>(samples.size()));
}

SoundServer::SoundServer() {
  const QByteArray folder = QFile::encodeName(folder_.path());
  qputenv("PULSE_SERVER", "unix:" + folder + "/native");
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"}) {
    environment.insert(QString::fromLatin1(name), folder_.path());
  }
  environment.remove(QStringLiteral("DISPLAY"));
  server_.setProcessEnvironment(environment);
  server_.setProcessChannelMode(QProcess::MergedChannels);
  server_.setStandardOutputFile(QProcess::nullDevice());
  Start();
}

SoundServer::~SoundServer() {
  Kill();
}

bool SoundServer::IsPossible() {
  return !QStandardPaths::findExecutable(QStringLiteral("pulseaudio")).isEmpty() &&
         !QStandardPaths::findExecutable(QStringLiteral("parec")).isEmpty();
}

void SoundServer::Start() {
  const QString socket = folder_.filePath(QStringLiteral("native"));
  QFile::remove(socket);
  server_.start(
      QStringLiteral("pulseaudio"),
      {QStringLiteral("-n"), QStringLiteral("--daemonize=no"), QStringLiteral("--use-pid-file=no"),
       QStringLiteral("--exit-idle-time=-1"), QStringLiteral("-L"),
       QStringLiteral("module-native-protocol-unix auth-anonymous=1 socket=") + socket,
       QStringLiteral("-L"),
       QStringLiteral("module-null-sink sink_name=nowhere rate=48000 norewinds=1")});
  const auto isUp = [&] {
    return QProcess::execute(QStringLiteral("sh"),
                             {QStringLiteral("-c"),
                              QStringLiteral("pactl get-default-sink 2>&1 | grep -q nowhere")}) ==
           0;
  };
  if (!server_.waitForStarted() || !WaitUntil(isUp)) {
    throw std::runtime_error("the sound server does not come up");
  }
}

void SoundServer::Kill() {
  server_.kill();
  server_.waitForFinished();
}

QString SoundServer::Load(const QStringList& module) {
  QProcess pactl;
  pactl.start(QStringLiteral("pactl"), QStringList{QStringLiteral("load-module")} + module);
  if (!pactl.waitForFinished() || pactl.exitCode() != 0) {
    throw std::runtime_error("the sound server does not take a module");
  }
  return QString::fromLatin1(pactl.readAllStandardOutput()).trimmed();
}

void SoundServer::Unload(const QString& number) {
  QProcess pactl;
  pactl.start(QStringLiteral("pactl"), {QStringLiteral("unload-module"), number});
  pactl.waitForFinished();
}

RoomWithMicrophone::RoomWithMicrophone()
    : room_(SoundServer::Load({QStringLiteral("module-null-sink"), QStringLiteral("sink_name=room"),
                               QStringLiteral("rate=48000"), QStringLiteral("channels=1"),
                               QStringLiteral("norewinds=1")})),
      microphone_(SoundServer::Load(
          {QStringLiteral("module-remap-source"), QStringLiteral("master=room.monitor"),
           QStringLiteral("source_name=mic"),
           QStringLiteral("source_properties=device.description=Microphone")})) {
  QProcess::execute(QStringLiteral("pactl"),
                    {QStringLiteral("set-default-sink"), QStringLiteral("nowhere")});
  QProcess::execute(QStringLiteral("pactl"),
                    {QStringLiteral("set-default-source"), QStringLiteral("mic")});
}

RoomWithMicrophone::~RoomWithMicrophone() {
  speaker_.kill();
  speaker_.waitForFinished();
  PullMicrophone();
  SoundServer::Unload(room_);
}

void RoomWithMicrophone::Say(const std::vector<std::int16_t>& samples) {
  const QString path = folder_.filePath(QStringLiteral("said.raw"));
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("nothing can be said");
  file.write(QByteArray(reinterpret_cast<const char*>(samples.data()),
                        static_cast<qsizetype>(samples.size() * sizeof samples[0])));
  file.close();
  speaker_.kill();
  speaker_.waitForFinished();
  speaker_.start(QStringLiteral("pacat"),
                 {QStringLiteral("--playback"), QStringLiteral("--device=room"),
                  QStringLiteral("--raw"), QStringLiteral("--rate=48000"),
                  QStringLiteral("--channels=1"), QStringLiteral("--format=s16le"), path});
}

void RoomWithMicrophone::PullMicrophone() {
  if (!microphone_.isEmpty()) SoundServer::Unload(microphone_);
  microphone_.clear();
}

void RoomWithMicrophone::Suspend(bool on) {
  QProcess::execute(QStringLiteral("pactl"),
                    {QStringLiteral("suspend-source"), QStringLiteral("mic"),
                     on ? QStringLiteral("1") : QStringLiteral("0")});
}

Recorder48::Recorder48() : file_(folder_.filePath(QStringLiteral("heard.raw"))) {
  recorder_.setStandardOutputFile(file_);
  recorder_.setStandardErrorFile(QProcess::nullDevice());
  recorder_.start(QStringLiteral("parec"),
                  {QStringLiteral("--device=nowhere.monitor"), QStringLiteral("--raw"),
                   QStringLiteral("--rate=48000"), QStringLiteral("--channels=1"),
                   QStringLiteral("--format=s16le"), QStringLiteral("--latency-msec=5"),
                   QStringLiteral("--process-time-msec=5")});
  if (!recorder_.waitForStarted() || !WaitUntil([&] { return QFileInfo(file_).size() > 0; })) {
    throw std::runtime_error("nothing is recorded");
  }
  beginMs_ = NowMs() - static_cast<double>(QFileInfo(file_).size()) / 2 / kSamplesMs;
}

Recorder48::~Recorder48() {
  recorder_.kill();
  recorder_.waitForFinished();
}

Heard Recorder48::Until(double untilMs) const {
  const double wanted = (untilMs - beginMs_) * kSamplesMs * 2;
  WaitUntil([&] { return static_cast<double>(QFileInfo(file_).size()) >= wanted; });
  QFile file(file_);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("the recording is gone");
  const QByteArray bytes = file.readAll();
  Heard heard{.beginMs = beginMs_,
              .samples = std::vector<std::int16_t>(static_cast<std::size_t>(bytes.size()) / 2)};
  std::memcpy(heard.samples.data(), bytes.constData(), heard.samples.size() * 2);
  return heard;
}

}  // namespace bramlee
