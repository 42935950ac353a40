#include "voice/speech_wave.h"

#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace bramlee {
namespace {

const double kAverage = kFullScale * std::pow(10, -20.0 / 20);
const double kPeak = kFullScale * std::pow(10, -1.0 / 20);
/// Samples up to this are silence: a hundredth of full scale, half of it in speech not yet
/// levelled.
constexpr int kSilence = 328;
constexpr int kSilenceBefore = kSilence / 2;

// In milliseconds. The decoders of .mp3 and .wma give up to 32 ms of silence of their own before
// a sound, so its own may only be short for a sound to begin within 50 ms; there must be some, as
// other players leave those 32 ms out.
constexpr int kAheadMs = 10;
constexpr int kBehindMs = 60;
constexpr int kKeptAheadMs = 5;  ///< of the silence that is cut off, for a soft beginning and end
constexpr int kKeptBehindMs = 20;
constexpr int kFadeInMs = 3;
constexpr int kFadeOutMs = 10;

/// How often the gain is corrected for what pressing peaks down takes of the average.
constexpr int kPresses = 4;

constexpr qsizetype kRiffHeader = 12;
constexpr qsizetype kChunkHeader = 8;
constexpr qsizetype kFormatLength = 16;

std::uint32_t Number32(const QByteArray& bytes, qsizetype at) {
  return qFromLittleEndian<std::uint32_t>(bytes.constData() + at);
}

std::uint16_t Number16(const QByteArray& bytes, qsizetype at) {
  return qFromLittleEndian<std::uint16_t>(bytes.constData() + at);
}

void Append32(QByteArray& bytes, std::size_t number) {
  const std::uint32_t little = qToLittleEndian(static_cast<std::uint32_t>(number));
  bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

void Append16(QByteArray& bytes, int number) {
  const std::uint16_t little = qToLittleEndian(static_cast<std::uint16_t>(number));
  bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

std::size_t Samples(const SpeechWave& wave, int ms) {
  return static_cast<std::size_t>(wave.rate) * static_cast<std::size_t>(ms) / 1000;
}

/// What is louder than `silence`, from first to last, with a little of what is around it.
std::vector<std::int16_t> Spoken(const SpeechWave& speech, int silence) {
  const auto loud = [silence](std::int16_t sample) { return std::abs(int{sample}) > silence; };
  const auto& all = speech.samples;
  const auto first = std::find_if(all.begin(), all.end(), loud);
  if (first == all.end()) return {};
  const auto last = std::find_if(all.rbegin(), all.rend(), loud).base();
  const auto ahead = static_cast<std::ptrdiff_t>(Samples(speech, kKeptAheadMs));
  const auto behind = static_cast<std::ptrdiff_t>(Samples(speech, kKeptBehindMs));
  return {first - std::min(ahead, first - all.begin()), last + std::min(behind, all.end() - last)};
}

/// What brings the samples to the average.
double AverageGain(const std::vector<std::int16_t>& samples) {
  double squares = 0;
  for (const std::int16_t sample : samples) squares += 1.0 * sample * sample;
  if (squares == 0) return 1;
  return kAverage / std::sqrt(squares / static_cast<double>(samples.size()));
}

double LevelGain(const std::vector<std::int16_t>& samples) {
  double peak = 0;
  for (const std::int16_t sample : samples) peak = std::max(peak, std::abs(1.0 * sample));
  return std::min(AverageGain(samples), kPeak / peak);
}

/// The samples at that gain, with what would rise above half of the highest peak bent below it.
std::vector<std::int16_t> Pressed(const std::vector<std::int16_t>& samples, double gain) {
  constexpr double kBend = 0.5;
  std::vector<std::int16_t> pressed(samples.size());
  for (std::size_t i = 0; i < samples.size(); ++i) {
    double height = std::abs(samples[i] * gain) / kPeak;
    if (height > kBend) height = kBend + (1 - kBend) * std::tanh((height - kBend) / (1 - kBend));
    pressed[i] = static_cast<std::int16_t>(std::lround(std::copysign(height * kPeak, samples[i])));
  }
  return pressed;
}

/// Softens the ends and puts silence around.
SpeechWave InSilence(int rate, std::vector<std::int16_t> spoken) {
  SpeechWave cue{.rate = rate, .samples = {}};
  const double fadeIn = static_cast<double>(Samples(cue, kFadeInMs));
  const double fadeOut = static_cast<double>(Samples(cue, kFadeOutMs));
  for (std::size_t i = 0; i < spoken.size(); ++i) {
    const double begun = static_cast<double>(i + 1) / fadeIn;
    const double left = static_cast<double>(spoken.size() - i) / fadeOut;
    spoken[i] = static_cast<std::int16_t>(std::lround(spoken[i] * std::min({1.0, begun, left})));
  }
  cue.samples.resize(Samples(cue, kAheadMs));
  cue.samples.insert(cue.samples.end(), spoken.begin(), spoken.end());
  cue.samples.insert(cue.samples.end(), Samples(cue, kBehindMs), 0);
  return cue;
}

}  // namespace

std::optional<SpeechWave> ReadWave(const QByteArray& file) {
  if (!file.startsWith("RIFF") || file.mid(8, 4) != "WAVE") return {};
  SpeechWave wave;
  for (qsizetype at = kRiffHeader; at + kChunkHeader <= file.size();) {
    const QByteArray name = file.mid(at, 4);
    const qsizetype length = Number32(file, at + 4);
    at += kChunkHeader;
    if (name == "fmt " && length >= kFormatLength && at + kFormatLength <= file.size()) {
      const bool plain = Number16(file, at) == 1 && Number16(file, at + 2) == 1;
      if (!plain || Number16(file, at + 14) != 16) return {};
      wave.rate = static_cast<int>(Number32(file, at + 4));
    } else if (name == "data") {
      const qsizetype end = std::min(length, file.size() - at);
      for (qsizetype i = 0; i + 2 <= end; i += 2) {
        wave.samples.push_back(static_cast<std::int16_t>(Number16(file, at + i)));
      }
      break;
    }
    at += length + length % 2;
  }
  if (wave.rate <= 0 || wave.samples.empty()) return {};
  return wave;
}

QByteArray WriteWave(const SpeechWave& wave) {
  const std::size_t bytes = wave.samples.size() * 2;
  QByteArray file("RIFF");
  Append32(file, 36 + bytes);
  file += "WAVEfmt ";
  Append32(file, kFormatLength);
  Append16(file, 1);  // plain samples
  Append16(file, 1);  // channels
  Append32(file, static_cast<std::size_t>(wave.rate));
  Append32(file, static_cast<std::size_t>(wave.rate) * 2);
  Append16(file, 2);   // bytes a sample
  Append16(file, 16);  // bits a sample
  file += "data";
  Append32(file, bytes);
  for (const std::int16_t sample : wave.samples) Append16(file, sample);
  return file;
}

SpeechWave MakeCue(const SpeechWave& speech) {
  SpeechWave level{.rate = speech.rate, .samples = Spoken(speech, kSilenceBefore)};
  if (level.samples.empty()) return level;
  const double gain = LevelGain(level.samples);
  for (std::int16_t& sample : level.samples) {
    sample = static_cast<std::int16_t>(std::lround(sample * gain));
  }
  return InSilence(speech.rate, Spoken(level, kSilence));
}

SpeechWave MakeCueOfVoice(const SpeechWave& heard, std::size_t begin, std::size_t end) {
  end = std::min(end, heard.samples.size());
  if (begin >= end) return {.rate = heard.rate, .samples = {}};
  begin -= std::min(begin, Samples(heard, kKeptAheadMs));
  const auto at = [&heard](std::size_t place) {
    return heard.samples.begin() + static_cast<std::ptrdiff_t>(place);
  };
  std::vector<std::int16_t> voice(at(begin), at(end));
  double gain = AverageGain(voice);
  for (int i = 0; i < kPresses; ++i) gain *= AverageGain(Pressed(voice, gain));
  return InSilence(heard.rate, Pressed(voice, gain));
}

}  // namespace bramlee
