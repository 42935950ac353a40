// What is recorded from a microphone, of a sound server of the tests' own.
#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <optional>

#include "media/sound_engine.h"
#include "media/voice_recorder.h"
#include "tests/files/temp_drives.h"
#include "tests/media/sound_files.h"
#include "tests/media/sound_rig.h"
#include "tests/voice/spoken.h"

namespace bramlee {
namespace {

constexpr int kHangMs = 30000;
const QByteArray kMic = "mic";

class RecordedVoice : public TempDrives {
 protected:
  static void SetUpTestSuite() {
    if (SoundServer::IsPossible()) server_ = std::make_unique<SoundServer>();
  }
  /// The server goes first: a device that leaves a server is freed once too often by the library.
  static void TearDownTestSuite() {
    server_.reset();
    room_.reset();
  }

  void SetUp() override {
    if (!server_) GTEST_SKIP() << "needs pulseaudio and parec";
    if (!HasProgram("espeak-ng")) GTEST_SKIP() << "needs espeak-ng";
    if (!room_) room_ = std::make_unique<RoomWithMicrophone>();
    QObject::connect(&recorder_, &VoiceRecorder::Ended, &recorder_,
                     [this](const Recording& recording) { recorded_ = recording; });
    QObject::connect(&recorder_, &VoiceRecorder::Began, &recorder_, [this] { began_ = true; });
    QObject::connect(&recorder_, &VoiceRecorder::Microphones, &recorder_,
                     [this](const QList<Microphone>& there) { microphones_ = there; });
  }

  bool HasMicrophone() const {
    return std::any_of(microphones_.begin(), microphones_.end(), [](const Microphone& each) {
      return each.id == kMic && each.name == QStringLiteral("Microphone");
    });
  }
  void Begin() {
    recorder_.LookForMicrophones();
    ASSERT_TRUE(QTest::qWaitFor([this] { return HasMicrophone(); }, kHangMs));
    recorder_.Start(kMic);
    ASSERT_TRUE(QTest::qWaitFor([this] { return began_ || recorded_; }, kHangMs));
    ASSERT_TRUE(began_);
  }
  void AwaitEnd() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return recorded_.has_value(); }, kHangMs));
  }

  static inline std::unique_ptr<SoundServer> server_;
  /// One for all but the test that breaks it: the library is careless with devices that go.
  static inline std::unique_ptr<RoomWithMicrophone> room_;
  std::optional<Recording> recorded_;
  bool began_ = false;
  QList<Microphone> microphones_;
  VoiceRecorder recorder_;
};

/// Where the speech lies in the cue, in milliseconds: how far it has to be moved to fit best.
double PlaceOf(const std::vector<std::int16_t>& speech, const std::vector<std::int16_t>& cue) {
  constexpr std::size_t kEvery = 8;
  const auto longest = static_cast<std::ptrdiff_t>(cue.size());
  double best = 0;
  std::ptrdiff_t place = 0;
  for (std::ptrdiff_t at = -longest / 2; at < longest / 2; at += 12) {
    double sum = 0;
    for (std::size_t i = 0; i < speech.size(); i += kEvery) {
      const std::ptrdiff_t in = at + static_cast<std::ptrdiff_t>(i);
      if (in >= 0 && in < longest) sum += 1.0 * speech[i] * cue[static_cast<std::size_t>(in)];
    }
    if (sum > best) {
      best = sum;
      place = at;
    }
  }
  return static_cast<double>(place) / 48;
}

TEST_F(RecordedVoice, IsCutOutOfTheRoomAndMadeReadyToBeASound) {
  std::vector<std::int16_t> speech = SpeechOf("cat");
  Scale(speech, 3000 / LevelOf(speech));
  Begin();
  room_->Say(InRoom(speech, 1200, 6000, 300, Hiss::White));
  AwaitEnd();
  ASSERT_EQ(recorded_->trouble, RecorderTrouble::None);
  ASSERT_EQ(recorded_->fault, VoiceFault::None);
  const SpeechWave& cue = recorded_->cue;
  ASSERT_EQ(cue.rate, 48000);
  const double spokenMs = static_cast<double>(speech.size()) / 48;
  const double begin = PlaceOf(speech, cue.samples);
  const double behind = static_cast<double>(cue.samples.size()) / 48 - begin - spokenMs;
  EXPECT_GE(begin, 10 + 5 - 50);
  EXPECT_LE(begin, 10 + 5 + 50);
  EXPECT_GE(behind, 60 - 50);
  EXPECT_LE(behind, 60 + 50);
  RecordProperty("quiet_before_ms", static_cast<int>(begin));
  RecordProperty("quiet_behind_ms", static_cast<int>(behind));
  std::vector<std::int16_t> heard(cue.samples.begin() + 480, cue.samples.end() - 2880);
  EXPECT_NEAR(20 * std::log10(LevelOf(heard) / 32767), -20, 0.5);
}

TEST_F(RecordedVoice, LeavesCuesSilentMeanwhile) {
  Begin();
  SoundEngine& engine = SoundEngine::Instance();
  std::vector<SoundEnd> ends;
  QObject::connect(&engine, &SoundEngine::Ended, &recorder_,
                   [&](int, SoundEnd end) { ends.push_back(end); });
  WriteBytes(On("c/low.wav"), ToneWave(500, 100));
  engine.Play(On("c/low.wav"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return ends.size() == 1; }, kHangMs));
  EXPECT_EQ(ends[0], SoundEnd::CutOff);
  recorder_.Drop();
  engine.Play(On("c/low.wav"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return ends.size() == 2; }, kHangMs));
  EXPECT_EQ(ends[1], SoundEnd::Played);
  EXPECT_FALSE(recorded_);
}

TEST_F(RecordedVoice, EndsWhenTheMicrophoneIsPulledOut) {
  Begin();
  room_->Say(InRoom(SpeechOf("cat"), 200, 9000, 300, Hiss::White));
  room_->PullMicrophone();
  AwaitEnd();
  EXPECT_EQ(recorded_->trouble, RecorderTrouble::Gone);
  EXPECT_FALSE(recorder_.IsRunning());
  ASSERT_TRUE(QTest::qWaitFor([this] { return !HasMicrophone(); }, kHangMs));
  room_.reset();
}

TEST_F(RecordedVoice, EndsAtOnceByHand) {
  room_->Say({});
  Begin();
  recorder_.Stop();
  AwaitEnd();
  EXPECT_NE(recorded_->fault, VoiceFault::None);  // nobody speaks
  EXPECT_TRUE(recorded_->cue.samples.empty());
}

TEST_F(RecordedVoice, IsRefusedByAMicrophoneThatGivesNothing) {
  room_->Suspend(true);
  recorder_.Start(kMic);
  AwaitEnd();
  room_->Suspend(false);
  EXPECT_EQ(recorded_->trouble, RecorderTrouble::Refused);
  EXPECT_FALSE(began_);
}

TEST_F(RecordedVoice, NeedsAMicrophone) {
  recorder_.Start("of another machine");
  AwaitEnd();
  EXPECT_EQ(recorded_->trouble, RecorderTrouble::NoMicrophone);
}

}  // namespace
}  // namespace bramlee
