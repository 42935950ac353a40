// Where a voice begins and ends in a room that is not quiet.
#include "voice/voice_cutter.h"

#include <gtest/gtest.h>

#include "tests/voice/spoken.h"

namespace bramlee {
namespace {

constexpr int kMicrophone = 48000;
constexpr double kLevel = 3000;  ///< of the speech
constexpr double kAllowedMs = 50;
constexpr double kPlainMs = 45;  ///< for a sound that begins and ends at once

/// The recording as it comes from a device, in pieces of 10 ms, until it is over.
VoiceCutter Heard(const std::vector<std::int16_t>& samples) {
  VoiceCutter cutter(kMicrophone);
  constexpr std::size_t kPiece = kMicrophone / 100;
  for (std::size_t at = 0; at < samples.size(); at += kPiece) {
    const std::size_t count = std::min(kPiece, samples.size() - at);
    if (!cutter.Take(std::span(samples).subspan(at, count))) break;
  }
  return cutter;
}

bool IsOver(VoiceCutter& cutter) {
  return !cutter.Take({});
}

double Ms(std::size_t samples) {
  return static_cast<double>(samples) * 1000 / kMicrophone;
}

std::vector<std::int16_t> Sine(int ms, double height, double hertz = 300) {
  std::vector<std::int16_t> tone(Samples48(ms));
  for (std::size_t i = 0; i < tone.size(); ++i) {
    const double wave =
        height * std::sin(6.283185307 * hertz * static_cast<double>(i) / kMicrophone);
    tone[i] = static_cast<std::int16_t>(std::lround(std::clamp(wave, -32768.0, 32767.0)));
  }
  return tone;
}

void Append(std::vector<std::int16_t>& to, const std::vector<std::int16_t>& more) {
  to.insert(to.end(), more.begin(), more.end());
}

/// Silence, or a rest of that length within a word.
std::vector<std::int16_t> Rest(int ms) {
  return std::vector<std::int16_t>(Samples48(ms));
}

// --- speech

struct Said {
  const char* text;
  const char* voice = "en-gb";
};

class CutSpeech : public ::testing::TestWithParam<Said> {
 protected:
  void SetUp() override {
    if (!HasProgram("espeak-ng")) GTEST_SKIP() << "needs espeak-ng";
    speech = SpeechOf(GetParam().text, GetParam().voice);
    ASSERT_FALSE(speech.empty());
    Scale(speech, kLevel / LevelOf(speech));
  }

  void ExpectCutOut(int beforeMs, Hiss hiss) const {
    VoiceCutter cutter = Heard(InRoom(speech, beforeMs, 1500, kLevel / 10, hiss));
    EXPECT_TRUE(IsOver(cutter)) << "goes on after a second of quiet";
    const VoicePart part = cutter.Cut();
    ASSERT_EQ(part.fault, VoiceFault::None);
    EXPECT_NEAR(Ms(part.begin), beforeMs, kAllowedMs);
    EXPECT_NEAR(Ms(part.end), beforeMs + Ms(speech.size()), kAllowedMs);
  }

  std::vector<std::int16_t> speech;
};

TEST_P(CutSpeech, IsCutOutOfNoiseTwentyDecibelsBelowIt) {
  for (const int beforeMs : {300, 1500}) {
    for (const Hiss hiss : {Hiss::White, Hiss::Deep}) {
      SCOPED_TRACE(testing::Message()
                   << beforeMs << " ms, " << (hiss == Hiss::White ? "white" : "deep"));
      ExpectCutOut(beforeMs, hiss);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Words, CutSpeech,
                         ::testing::Values(Said{"B"}, Said{"F"}, Said{"H"}, Said{"K"}, Said{"M"},
                                           Said{"P"}, Said{"S"}, Said{"T"}, Said{"X"}, Said{"cat"},
                                           Said{"stop"}, Said{"book"}, Said{"six"},
                                           Said{"[[k#'V:]]", "hi"}, Said{"[[t.'V:]]", "hi"},
                                           Said{"క", "te"}, Said{"ప", "te"}));

TEST(CutOut, AWordWithARestInsideStaysWhole) {
  if (!HasProgram("espeak-ng")) GTEST_SKIP() << "needs espeak-ng";
  std::vector<std::int16_t> word = SpeechOf("up");
  Append(word, Rest(300));
  Append(word, SpeechOf("pea"));
  Scale(word, kLevel / LevelOf(word));
  for (const Hiss hiss : {Hiss::White, Hiss::Deep}) {
    const VoicePart part = Heard(InRoom(word, 500, 1500, kLevel / 10, hiss)).Cut();
    ASSERT_EQ(part.fault, VoiceFault::None);
    EXPECT_NEAR(Ms(part.begin), 500, kAllowedMs);
    EXPECT_NEAR(Ms(part.end), 500 + Ms(word.size()), kAllowedMs);
  }
}

// --- sounds of known length

TEST(CutOut, APlosiveBehindARestOf300MsBelongsToTheWord) {
  std::vector<std::int16_t> word = Sine(250, 6000);
  Append(word, Rest(300));
  Append(word, NoiseOf(Samples48(20), 3000, Hiss::White));
  const VoicePart part = Heard(InRoom(word, 500, 2500, 300, Hiss::White)).Cut();
  ASSERT_EQ(part.fault, VoiceFault::None);
  EXPECT_NEAR(Ms(part.begin), 500, kPlainMs);
  EXPECT_NEAR(Ms(part.end), 500 + 570, kPlainMs);
}

TEST(CutOut, AClickFarFromTheVoiceIsNoneOfIt) {
  std::vector<std::int16_t> word = Sine(10, 9000, 2000);
  Append(word, Rest(600));
  Append(word, Sine(300, 6000));
  Append(word, Rest(500));
  Append(word, Sine(10, 9000, 2000));
  const VoicePart part = Heard(InRoom(word, 300, 2500, 100, Hiss::White)).Cut();
  ASSERT_EQ(part.fault, VoiceFault::None);
  EXPECT_NEAR(Ms(part.begin), 910, kPlainMs);
  EXPECT_NEAR(Ms(part.end), 1210, kPlainMs);
}

TEST(CutOut, ASoftBeginningIsKept) {
  std::vector<std::int16_t> word = NoiseOf(Samples48(120), 250, Hiss::White);
  Append(word, Sine(300, 6000));
  const VoicePart part = Heard(InRoom(word, 600, 2500, 150, Hiss::White)).Cut();
  ASSERT_EQ(part.fault, VoiceFault::None);
  EXPECT_NEAR(Ms(part.begin), 600, kPlainMs);
}

TEST(CutOut, AMicrophoneThatWakesUpInTheMiddleMakesNoBeginning) {
  std::vector<std::int16_t> heard = Rest(800);
  Append(heard, InRoom(Sine(300, 6000), 700, 2500, 60, Hiss::White));
  const VoicePart part = Heard(heard).Cut();
  ASSERT_EQ(part.fault, VoiceFault::None);
  EXPECT_NEAR(Ms(part.begin), 1500, kPlainMs);
}

TEST(CutOut, AVoiceIsFoundBetweenPlainSilences) {
  const VoicePart part = Heard(InRoom(Sine(300, 6000), 400, 2500, 0, Hiss::White)).Cut();
  ASSERT_EQ(part.fault, VoiceFault::None);
  EXPECT_NEAR(Ms(part.begin), 400, kPlainMs);
  EXPECT_NEAR(Ms(part.end), 700, kPlainMs);
}

TEST(CutOut, AHumAndACurrentAreNoVoice) {
  std::vector<std::int16_t> heard = InRoom(Sine(300, 6000), 500, 2500, 30, Hiss::White);
  const std::vector<std::int16_t> hum = Sine(3300, 2000, 50);
  for (std::size_t i = 0; i < hum.size(); ++i)
    heard[i] = static_cast<std::int16_t>(heard[i] + hum[i] + 4000);
  const VoiceCutter cutter = Heard(heard);
  const VoicePart part = cutter.Cut();
  ASSERT_EQ(part.fault, VoiceFault::None);
  EXPECT_NEAR(Ms(part.begin), 500, kAllowedMs);
  EXPECT_NEAR(Ms(part.end), 800, kAllowedMs);
}

// --- the end of a recording

TEST(Recording, EndsASecondAfterTheVoice) {
  const VoiceCutter cutter = Heard(InRoom(Sine(400, 6000), 500, 5000, 60, Hiss::White));
  EXPECT_NEAR(Ms(cutter.Samples().size()), 500 + 400 + kQuietEndMs, 100);
}

TEST(Recording, GoesOnThroughARestInsideTheWord) {
  std::vector<std::int16_t> word = Sine(200, 6000);
  Append(word, Rest(900));
  Append(word, Sine(200, 6000));
  const VoicePart part = Heard(InRoom(word, 500, 3000, 60, Hiss::White)).Cut();
  EXPECT_NEAR(Ms(part.end), 500 + 1300, kPlainMs);
}

TEST(Recording, ThatBeginsInTheMiddleOfTheVoiceEndsAllTheSame) {
  VoiceCutter cutter = Heard(InRoom(Sine(900, 6000), 0, 3000, 60, Hiss::White));
  EXPECT_TRUE(IsOver(cutter));
  EXPECT_NEAR(Ms(cutter.Cut().end), 900, kPlainMs);
}

TEST(Recording, EndedByHandRightBehindTheVoiceHasAllOfIt) {
  VoiceCutter cutter = Heard(InRoom(Sine(600, 6000), 0, 0, 0, Hiss::White));
  EXPECT_FALSE(IsOver(cutter));
  const VoicePart part = cutter.Cut();
  EXPECT_EQ(part.fault, VoiceFault::None);
  EXPECT_EQ(part.begin, 0U);
  EXPECT_EQ(part.end, cutter.Samples().size());
}

TEST(Recording, OfTenMinutesOfNoiseStopsAndTakesNoMoreRoom) {
  const std::vector<std::int16_t> second = NoiseOf(Samples48(1000), 500, Hiss::Deep);
  VoiceCutter cutter(kMicrophone);
  for (int i = 0; i < 600; ++i) cutter.Take(second);
  EXPECT_NEAR(Ms(cutter.Samples().size()), kUnheardMs, 100);
  EXPECT_EQ(cutter.Cut().fault, VoiceFault::Unheard);
}

TEST(Recording, OfSomethingThatNeverEndsStops) {
  VoiceCutter cutter(kMicrophone);
  std::vector<std::int16_t> beat = Sine(300, 6000);
  Append(beat, NoiseOf(Samples48(400), 50, Hiss::White));
  for (int i = 0; i < 100; ++i) cutter.Take(beat);
  EXPECT_NEAR(Ms(cutter.Samples().size()), kLongestMs, 100);
  EXPECT_EQ(cutter.Cut().fault, VoiceFault::Endless);
}

// --- faults

VoiceFault FaultOf(const std::vector<std::int16_t>& heard) {
  return Heard(heard).Cut().fault;
}

TEST(Faults, AreNamed) {
  EXPECT_EQ(FaultOf({}), VoiceFault::Dead);
  EXPECT_EQ(FaultOf(Rest(3000)), VoiceFault::Dead);
  EXPECT_EQ(FaultOf(NoiseOf(Samples48(9000), 100, Hiss::White)), VoiceFault::Unheard);
  EXPECT_EQ(FaultOf(InRoom(Sine(400, 800), 500, 9000, 600, Hiss::White)), VoiceFault::TooQuiet);
  EXPECT_EQ(FaultOf(InRoom(Sine(400, 60), 500, 2500, 1, Hiss::White)), VoiceFault::TooQuiet);
  EXPECT_EQ(FaultOf(InRoom(Sine(400, 60000), 500, 2500, 60, Hiss::White)), VoiceFault::TooLoud);
  EXPECT_EQ(FaultOf(InRoom(Sine(400, 30000), 500, 2500, 60, Hiss::White)), VoiceFault::None);
}

TEST(Faults, ASingleCrackAtTheLimitIsNone) {
  std::vector<std::int16_t> heard = InRoom(Sine(400, 6000), 500, 2500, 60, Hiss::White);
  heard[Samples48(600)] = 32767;
  heard[Samples48(600) + 1] = 32767;
  EXPECT_EQ(FaultOf(heard), VoiceFault::None);
}

}  // namespace
}  // namespace bramlee
