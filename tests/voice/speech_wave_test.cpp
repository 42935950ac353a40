#include "voice/speech_wave.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace bramlee {
namespace {

constexpr int kRate = 22050;
constexpr std::size_t kAhead = kRate * 10 / 1000;
constexpr std::size_t kBehind = kRate * 60 / 1000;

/// A tone of that height between silences.
SpeechWave Tone(int height, int ms, int silenceMs) {
  SpeechWave wave{.rate = kRate, .samples = {}};
  const auto samples = [](int length) { return static_cast<std::size_t>(kRate * length / 1000); };
  wave.samples.resize(samples(silenceMs));
  for (std::size_t i = 0; i < samples(ms); ++i) {
    wave.samples.push_back(static_cast<std::int16_t>(
        std::lround(height * std::sin(2 * 3.14159265 * 440 * static_cast<double>(i) / kRate))));
  }
  wave.samples.resize(wave.samples.size() + samples(silenceMs));
  return wave;
}

double Level(const SpeechWave& wave) {
  double squares = 0;
  for (std::size_t i = kAhead; i < wave.samples.size() - kBehind; ++i) {
    squares += 1.0 * wave.samples[i] * wave.samples[i];
  }
  return std::sqrt(squares / static_cast<double>(wave.samples.size() - kAhead - kBehind));
}

TEST(MakeCueOf, SpeechLeavesAShortSilenceAroundIt) {
  const SpeechWave cue = MakeCue(Tone(5000, 300, 200));
  const auto loud = [](std::int16_t sample) { return std::abs(int{sample}) > 300; };
  const auto first = std::find_if(cue.samples.begin(), cue.samples.end(), loud);
  const auto last = std::find_if(cue.samples.rbegin(), cue.samples.rend(), loud);
  EXPECT_NEAR(static_cast<double>(first - cue.samples.begin()) / kRate, 0.015, 0.002);
  EXPECT_NEAR(static_cast<double>(last - cue.samples.rbegin()) / kRate, 0.08, 0.002);
  EXPECT_NEAR(static_cast<double>(cue.samples.size()) / kRate, 0.395, 0.002);
}

TEST(MakeCueOf, SoftAndLoudSpeechIsEvenlyLoud) {
  for (const int height : {400, 3000, 32000}) {
    EXPECT_NEAR(Level(MakeCue(Tone(height, 300, 50))), 3276.7, 10) << height;
  }
}

TEST(MakeCueOf, OneHighPeakStaysBelowTheLimit) {
  SpeechWave wave = Tone(600, 300, 0);
  wave.samples[wave.samples.size() / 2] = 30000;
  const SpeechWave cue = MakeCue(wave);
  const auto peak = *std::max_element(cue.samples.begin(), cue.samples.end());
  EXPECT_LE(peak, 29205);
  EXPECT_GT(peak, 29000);
}

TEST(MakeCueOf, EndsAreSoft) {
  SpeechWave wave{.rate = kRate, .samples = std::vector<std::int16_t>(kRate, 20000)};
  const SpeechWave cue = MakeCue(wave);
  EXPECT_LT(cue.samples[kAhead], 100);
  EXPECT_LT(cue.samples[cue.samples.size() - kBehind - 1], 50);
  EXPECT_GT(cue.samples[kAhead + kRate / 100], 3000);
}

TEST(MakeCueOf, SilenceGivesNoSamples) {
  EXPECT_TRUE(MakeCue(Tone(100, 300, 50)).samples.empty());
  EXPECT_TRUE(MakeCue({.rate = kRate, .samples = {}}).samples.empty());
}

TEST(MakeCueOfVoice, KeepsThePartThatIsAskedForInSilence) {
  const SpeechWave heard = Tone(5000, 300, 200);
  const SpeechWave cue =
      MakeCueOfVoice(heard, heard.samples.size() * 200 / 700, heard.samples.size() * 500 / 700);
  const auto loud = [](std::int16_t sample) { return std::abs(int{sample}) > 300; };
  const auto first = std::find_if(cue.samples.begin(), cue.samples.end(), loud);
  const auto last = std::find_if(cue.samples.rbegin(), cue.samples.rend(), loud);
  EXPECT_NEAR(static_cast<double>(first - cue.samples.begin()) / kRate, 0.015, 0.002);
  EXPECT_NEAR(static_cast<double>(last - cue.samples.rbegin()) / kRate, 0.06, 0.002);
}

TEST(MakeCueOfVoice, HighPeaksLeaveItAsLoudAsTheOthers) {
  SpeechWave voice = Tone(600, 300, 0);
  for (std::size_t i = 0; i < voice.samples.size(); i += 700) voice.samples[i] = 12000;
  const SpeechWave cue = MakeCueOfVoice(voice, 0, voice.samples.size());
  EXPECT_NEAR(20 * std::log10(Level(cue) / 3276.7), 0, 0.5);
  EXPECT_LE(*std::max_element(cue.samples.begin(), cue.samples.end()), 29205);
}

TEST(MakeCueOfVoice, APlainVoiceIsLevelledLikeTheSynthesisers) {
  const SpeechWave tone = Tone(5000, 300, 0);
  EXPECT_NEAR(Level(MakeCueOfVoice(tone, 0, tone.samples.size())), Level(MakeCue(tone)), 40);
}

TEST(MakeCueOfVoice, APartThatIsNoneGivesNoSamples) {
  const SpeechWave tone = Tone(5000, 300, 0);
  EXPECT_TRUE(MakeCueOfVoice(tone, 100, 100).samples.empty());
  EXPECT_TRUE(MakeCueOfVoice(tone, tone.samples.size(), tone.samples.size() + 9).samples.empty());
}

TEST(WaveFile, IsReadAsItWasWritten) {
  const SpeechWave wave = Tone(5000, 20, 5);
  const auto read = ReadWave(WriteWave(wave));
  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(read->rate, kRate);
  EXPECT_EQ(read->samples, wave.samples);
}

TEST(WaveFile, FurtherPartsAreIgnored) {
  QByteArray file = WriteWave(Tone(5000, 20, 0));
  file.insert(36, QByteArray("LIST\3\0\0\0abc\0", 12));
  EXPECT_TRUE(ReadWave(file).has_value());
}

TEST(WaveFile, CutAnywhereIsReadAsFarAsItGoesOrNotAtAll) {
  const QByteArray file = WriteWave(Tone(5000, 5, 0));
  for (qsizetype length = 0; length < file.size(); ++length) {
    const auto read = ReadWave(file.left(length));
    const qsizetype samples = std::max<qsizetype>(0, (length - 44) / 2);
    ASSERT_EQ(read.has_value(), samples > 0) << length;
    ASSERT_EQ(read ? read->samples.size() : 0, static_cast<std::size_t>(samples));
  }
}

TEST(WaveFile, OtherKindsAreRefused) {
  EXPECT_FALSE(ReadWave("no wave at all, not even near it, nothing of the kind").has_value());
  QByteArray stereo = WriteWave(Tone(5000, 20, 0));
  stereo[22] = 2;
  EXPECT_FALSE(ReadWave(stereo).has_value());
  QByteArray eightBits = WriteWave(Tone(5000, 20, 0));
  eightBits[34] = 8;
  EXPECT_FALSE(ReadWave(eightBits).has_value());
}

}  // namespace
}  // namespace bramlee
