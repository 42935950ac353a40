// Speech and noise for tests: what espeak-ng says, in a room that is not quiet.
#pragma once

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <vector>

#include "voice/speech_wave.h"

namespace bramlee {

inline bool HasProgram(const char* name) {
  return !QStandardPaths::findExecutable(QString::fromLatin1(name)).isEmpty();
}

/// What espeak-ng says, at 48000 samples a second, the silence at both ends left out. Empty when it
/// cannot say it.
inline std::vector<std::int16_t> SpeechOf(const char* text, const char* voice = "en-gb") {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("said.wav"));
  QProcess::execute(QStringLiteral("espeak-ng"),
                    {QStringLiteral("-v"), QString::fromLatin1(voice), QStringLiteral("-s"),
                     QStringLiteral("120"), QStringLiteral("-w"), file, QStringLiteral("--"),
                     QString::fromUtf8(text)});
  QFile wave(file);
  const auto said = wave.open(QIODevice::ReadOnly) ? ReadWave(wave.readAll()) : std::nullopt;
  if (!said) return {};
  const double step = said->rate / 48000.0;
  std::vector<std::int16_t> samples;
  for (double at = 0; at + 1 < static_cast<double>(said->samples.size()); at += step) {
    const auto i = static_cast<std::size_t>(at);
    const double part = at - std::floor(at);
    samples.push_back(static_cast<std::int16_t>(
        std::lround(said->samples[i] * (1 - part) + said->samples[i + 1] * part)));
  }
  // Its voice rests below a tenth of its average.
  double squares = 0;
  for (const std::int16_t sample : samples) squares += 1.0 * sample * sample;
  const double rest = std::sqrt(squares / static_cast<double>(samples.size())) / 10;
  const auto loud = [rest](std::int16_t sample) { return std::abs(int{sample}) > rest; };
  const auto first = std::find_if(samples.begin(), samples.end(), loud);
  const auto last = std::find_if(samples.rbegin(), samples.rend(), loud).base();
  return first < last ? std::vector<std::int16_t>(first, last) : std::vector<std::int16_t>();
}

inline double LevelOf(const std::vector<std::int16_t>& samples) {
  double squares = 0;
  for (const std::int16_t sample : samples) squares += 1.0 * sample * sample;
  return std::sqrt(squares / static_cast<double>(std::max<std::size_t>(samples.size(), 1)));
}

inline void Scale(std::vector<std::int16_t>& samples, double by) {
  for (std::int16_t& sample : samples) sample = static_cast<std::int16_t>(std::lround(sample * by));
}

enum class Hiss { White, Deep };

/// Noise without end: as much at each frequency, or more the deeper. Repeats after ten seconds.
inline const std::vector<double>& EndlessNoise(Hiss hiss) {
  static const auto kMade = [] {
    constexpr std::size_t kCount = 480000;
    std::array<std::vector<double>, 2> made;
    std::minstd_rand random(7);
    std::array<double, 2> squares{};
    double deep = 0;
    for (std::size_t i = 0; i < kCount; ++i) {
      double white = -24;
      for (int j = 0; j < 4; ++j) white += static_cast<double>(random() % 1200) / 100;
      deep = 0.98 * deep + white;
      made[0].push_back(white);
      made[1].push_back(deep + 0.3 * white);
      for (std::size_t j = 0; j < 2; ++j) squares[j] += made[j][i] * made[j][i];
    }
    for (std::size_t j = 0; j < 2; ++j) {
      for (double& value : made[j]) value /= std::sqrt(squares[j] / kCount);
    }
    return made;
  }();
  return kMade[hiss == Hiss::White ? 0 : 1];
}

/// Noise of that level, the same at each call.
inline std::vector<std::int16_t> NoiseOf(std::size_t count, double level, Hiss hiss) {
  const std::vector<double>& noise = EndlessNoise(hiss);
  std::vector<std::int16_t> samples(count);
  for (std::size_t i = 0; i < count; ++i) {
    const double value = std::clamp(noise[i % noise.size()] * level, -32768.0, 32767.0);
    samples[i] = static_cast<std::int16_t>(std::lround(value));
  }
  return samples;
}

inline std::size_t Samples48(int ms) {
  return static_cast<std::size_t>(ms) * 48;
}

/// The speech with that much before and behind it, in noise.
inline std::vector<std::int16_t> InRoom(const std::vector<std::int16_t>& speech, int beforeMs,
                                        int behindMs, double noise, Hiss hiss) {
  std::vector<std::int16_t> room =
      NoiseOf(Samples48(beforeMs) + speech.size() + Samples48(behindMs), noise, hiss);
  for (std::size_t i = 0; i < speech.size(); ++i) {
    std::int16_t& at = room[Samples48(beforeMs) + i];
    at = static_cast<std::int16_t>(std::clamp(at + speech[i], -32768, 32767));
  }
  return room;
}

}  // namespace bramlee
