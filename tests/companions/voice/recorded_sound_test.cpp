// A voice on its way from the microphone to the board, with a sound server of the tests' own.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include "board/strip.h"
#include "companions/voice/sound_list.h"
#include "companions/voice/take_light.h"
#include "companions/voice/voice.h"
#include "tests/board/board_fixture.h"
#include "tests/media/sound_rig.h"
#include "tests/voice/spoken.h"
#include "ui/form_ids.h"

namespace bramlee {
namespace {

constexpr int kHangMs = 30000;

class RecordedSound : public BoardTest {
 protected:
  static void SetUpTestSuite() {
    AddOnce<AddOwnVoice>();
    if (!SoundServer::IsPossible()) return;
    server_ = std::make_unique<SoundServer>();
    room_ = std::make_unique<RoomWithMicrophone>();
  }
  /// The server goes first: a device that leaves a server is freed once too often by the library.
  static void TearDownTestSuite() {
    server_.reset();
    room_.reset();
  }

  void SetUp() override {
    BoardTest::SetUp();
    if (!server_) GTEST_SKIP() << "needs pulseaudio and parec";
    if (!HasProgram("ffmpeg") || !HasProgram("espeak-ng"))
      GTEST_SKIP() << "needs ffmpeg, espeak-ng";
    QDir().mkpath(On("c/bramlee/aud/engc"));
    WriteBytes(On("c/bramlee/aud/engc/eng-a.wma"), "maker");
    board_ = &Open(kCapitalsForm);
    OpenWindow();
  }

  void OpenWindow() {
    ASSERT_TRUE(Await([this] { return dialog_ == nullptr; }))
        << "the last one goes when it is closed";
    board_->Named<StripButton>(Q("strip_voice"))->click();
    dialog_ = board_->findChild<QDialog*>(Q("voice"));
    ASSERT_NE(dialog_, nullptr);
    ASSERT_TRUE(Await([this] { return Button("voice_record").isEnabled(); }));
  }

  template <class Condition>
  static bool Await(Condition condition) {
    return QTest::qWaitFor(condition, kHangMs);
  }
  QPushButton& Button(const char* name) const { return *dialog_->findChild<QPushButton*>(Q(name)); }
  SoundList& List() const { return *dialog_->findChild<SoundList*>(Q("voice_sounds")); }
  bool IsLit() const { return dialog_->findChild<TakeLight*>(Q("voice_light"))->IsLit(); }
  QString Said() const { return dialog_->findChild<QLabel*>(Q("voice_said"))->text(); }

  static inline std::unique_ptr<SoundServer> server_;
  static inline std::unique_ptr<RoomWithMicrophone> room_;
  Board* board_ = nullptr;
  QPointer<QDialog> dialog_;
};

TEST_F(RecordedSound, IsKeptInAllFormatsAndLeadsToTheNext) {
  QTest::mouseClick(&Button("voice_record"), Qt::LeftButton);
  EXPECT_FALSE(IsLit()) << "the microphone is open before the count-in has ended";
  ASSERT_TRUE(Await([this] { return IsLit(); }));
  std::vector<std::int16_t> speech = SpeechOf("A");
  Scale(speech, 3000 / LevelOf(speech));
  room_->Say(InRoom(speech, 600, 4000, 300, Hiss::White));
  ASSERT_TRUE(Await([this] { return Button("voice_keep").isEnabled(); })) << Said().toStdString();
  EXPECT_FALSE(IsLit());
  EXPECT_EQ(BytesOf(On("c/bramlee/aud/engc/eng-a.wma")), "maker");
  Button("voice_keep").click();
  ASSERT_TRUE(Await([this] { return List().item(0)->text() == Q("own voice"); }))
      << Said().toStdString();
  EXPECT_EQ(List().currentRow(), 1);
  for (const char* format : {"wma", "mp3", "wav"}) {
    EXPECT_GT(QFileInfo(On("c/bramlee/aud/engc/eng-a.") + Q(format)).size(), 1000) << format;
  }
  const auto cue = ReadWave(BytesOf(On("c/bramlee/aud/engc/eng-a.wav")));
  ASSERT_TRUE(cue.has_value());
  EXPECT_NEAR(20 * std::log10(LevelOf(cue->samples) / 32767), -20, 1.5);
}

TEST_F(RecordedSound, EndsWhenAHeldButtonIsLetGo) {
  room_->Say({});
  QTest::mousePress(&Button("voice_record"), Qt::LeftButton);
  ASSERT_TRUE(Await([this] { return IsLit(); }));
  QTest::mouseRelease(&Button("voice_record"), Qt::LeftButton);
  ASSERT_TRUE(Await([this] { return !IsLit(); }));
  EXPECT_FALSE(Said().isEmpty());
  EXPECT_FALSE(Button("voice_keep").isEnabled());
}

TEST_F(RecordedSound, FindsTheChosenMicrophoneInTheNextWindowToo) {
  const auto microphones = [this] { return dialog_->findChild<QComboBox*>(Q("voice_microphone")); };
  const int row = microphones()->findText(Q("Microphone"));
  ASSERT_GT(row, 0);
  EXPECT_EQ(microphones()->currentIndex(), 0) << "the usual one, until another one is chosen";
  microphones()->setFocus();
  QTest::keyClick(microphones(), Qt::Key_M);
  ASSERT_EQ(microphones()->currentIndex(), row);
  const QByteArray id = microphones()->currentData().toByteArray();
  EXPECT_EQ(id, "mic");
  QTest::keyClick(dialog_, Qt::Key_Escape);
  OpenWindow();
  EXPECT_EQ(microphones()->currentData().toByteArray(), id);
}

TEST_F(RecordedSound, IsCalledOffByEscape) {
  QTest::mouseClick(&Button("voice_record"), Qt::LeftButton);
  QTest::keyClick(dialog_, Qt::Key_Escape);
  EXPECT_EQ(Button("voice_record").text(), Q("&Record"));
  EXPECT_TRUE(dialog_->isVisible());
  QTest::keyClick(dialog_, Qt::Key_Escape);
  EXPECT_FALSE(dialog_->isVisible());
}

}  // namespace
}  // namespace bramlee
