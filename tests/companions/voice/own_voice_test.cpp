// The window for one's own voice, on a machine without a microphone.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <set>

#include "board/cues.h"
#include "board/strip.h"
#include "companions/voice/board_sounds.h"
#include "companions/voice/sound_list.h"
#include "companions/voice/stick_place.h"
#include "companions/voice/take_lines.h"
#include "companions/voice/voice.h"
#include "files/sound_sets.h"
#include "maths/maths.h"
#include "tests/board/board_fixture.h"
#include "tests/ui/pressed_by_return.h"
#include "ui/choices.h"
#include "ui/form_ids.h"
#include "voice/speech_wave.h"

namespace bramlee {
namespace {

class OwnVoices : public BoardWith<AddOwnVoice> {
 protected:
  void SetUp() override {
    BoardTest::SetUp();
    RegisterMaths();
    QDir().mkpath(On("c/bramlee/aud/engc"));
  }

  QDialog& Ask(Board& board) const {
    board.Named<StripButton>(Q("strip_voice"))->click();
    auto* dialog = board.findChild<QDialog*>(Q("voice"));
    EXPECT_NE(dialog, nullptr);
    return *dialog;
  }
  template <class Widget>
  static Widget& In(const QDialog& dialog, const char* name) {
    return *dialog.findChild<Widget*>(Q(name));
  }
  static std::string Said(const QDialog& dialog) {
    return In<QLabel>(dialog, "voice_said").text().toStdString();
  }
  static QStringList Marks(const QDialog& dialog, int count) {
    const auto& list = In<SoundList>(dialog, "voice_sounds");
    QStringList marks;
    for (int row = 0; row < count; ++row) marks.append(list.item(row)->text());
    return marks;
  }
};

TEST_F(OwnVoices, HaveAButtonOnTheStripThatRestsWhileALetterIsWritten) {
  Board& board = Open(kCapitalsForm);
  EXPECT_EQ(board.Named<StripButton>(Q("strip_voice"))->toolTip(), Q("Own voice (V)"));
  EXPECT_TRUE(RestsWhileALetterIsWritten(board, "strip_voice"));
}

TEST_F(OwnVoices, ListEachSoundThatABoardAsksFor) {
  const struct {
    const char* form;
    int sounds;
  } kBoards[] = {
      {kCapitalsForm,         26      },
      {kSmallLettersForm,     26      },
      {kHindiVowelsForm,      29      },
      {kHindiConsonantsForm,  111     },
      {kTeluguVowelsForm,     36      },
      {kTeluguConsonantsForm, 75      },
      {kMathsForm,            17 + 101},
  };
  for (const auto& [form, count] : kBoards) {
    SCOPED_TRACE(form);
    Board& board = Open(form);
    std::set<QString> listed;
    for (const BoardSound& sound : SoundsOf(board)) {
      EXPECT_FALSE(sound.name.isEmpty());
      listed.insert(On("c/bramlee/aud/") + sound.sound + Q(".wma"));
    }
    EXPECT_EQ(listed.size(), static_cast<std::size_t>(count));
    const auto expectAsked = [&](int letter) {
      QString path;
      ASSERT_EQ(CuePath(static_cast<std::int16_t>(letter), board.record().cueBoardNo, path), 0);
      EXPECT_TRUE(listed.contains(SystemPath(path))) << path.toStdString();
    };
    for (int tile = 1; tile <= board.letters().tiles; ++tile) expectAsked(tile);
    if (board.objectName() == QLatin1String(kHindiVowelsForm))
      expectAsked(0);  // the line of lettering
    if (board.letters().digits == 0) continue;
    board.SetText(Q("txtaud"), Q("1"));
    for (int number = 0; number <= 100; ++number) expectAsked(number);
  }
}

TEST_F(OwnVoices, AnyNumberCanBeListed) {
  Board& board = Open(kMathsForm);
  const QDialog& dialog = Ask(board);
  auto& list = In<SoundList>(dialog, "voice_sounds");
  In<QSpinBox>(dialog, "voice_number").setValue(-1234);
  for (int i = 0; i < 2; ++i) In<QPushButton>(dialog, "voice_addnumber").click();
  EXPECT_EQ(list.count(), 17 + 101 + 1);
  EXPECT_EQ(list.Chosen().sound, Q("mat/matc/mat--1234"));
  board.SetText(Q("txtaud"), Q("1"));
  QString path;
  EXPECT_EQ(CuePath(-1234, 7, path), 0);
  EXPECT_EQ(path, Q("C:\\bramlee\\aud\\mat\\matc\\mat--1234.wma"));
}

TEST_F(OwnVoices, MarkEachSoundByWhoSpeaksIt) {
  WriteBytes(On("c/bramlee/aud/engc/eng-a.wma"), "maker");
  WriteBytes(On("c/bramlee/aud/engc/eng-b.wav"), "own");
  QDir().mkpath(On("c/bramlee/aud/own/voice/engc"));
  WriteBytes(On("c/bramlee/aud/own/voice/engc/eng-b.wav"), "own");
  const QDialog& dialog = Ask(Open(kCapitalsForm));
  EXPECT_EQ(Marks(dialog, 3), QStringList({Q("maker's"), Q("own voice"), Q("missing")}));
  EXPECT_EQ(In<QLabel>(dialog, "voice_own").text(), Q("1 of 26 in your own voice"));
  auto& list = In<SoundList>(dialog, "voice_sounds");
  EXPECT_EQ(list.item(1)->data(Qt::AccessibleTextRole).toString(), Q("capital B: own voice"));
  EXPECT_FALSE(In<QPushButton>(dialog, "voice_giveback").isEnabled());
  list.setCurrentRow(1);
  EXPECT_TRUE(In<QPushButton>(dialog, "voice_giveback").isEnabled());
  EXPECT_TRUE(In<QPushButton>(dialog, "voice_hear").isEnabled());
  list.setCurrentRow(2);
  EXPECT_FALSE(In<QPushButton>(dialog, "voice_hear").isEnabled());
}

TEST_F(OwnVoices, AreGivenBack) {
  for (const char* format : {"wma", "mp3", "wav"}) {
    const QString name = Q("/engc/eng-a.") + Q(format);
    WriteBytes(On("c/bramlee/aud") + name, "own");
    QDir().mkpath(On("c/bramlee/aud/own/kept/engc"));
    WriteBytes(On("c/bramlee/aud/own/kept") + name, "maker");
  }
  QDir().mkpath(On("c/bramlee/aud/own/voice/engc"));
  WriteBytes(On("c/bramlee/aud/own/voice/engc/eng-a.wav"), "own");
  const QDialog& dialog = Ask(Open(kCapitalsForm));
  EXPECT_EQ(Marks(dialog, 1), QStringList{Q("own voice")});
  In<QPushButton>(dialog, "voice_giveback").click();
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return Marks(dialog, 1) == QStringList{Q("maker's")}; }, 30000));
  EXPECT_EQ(Said(dialog), "The maker's voice is back.");
  EXPECT_EQ(BytesOf(On("c/bramlee/aud/engc/eng-a.wma")), "maker");
}

TEST_F(OwnVoices, TakeUpWhatAStoppedProgramLeft) {
  QDir().mkpath(On("c/bramlee/aud/own/.work"));
  WriteBytes(On("c/bramlee/aud/own/.work/new.wma"), "new");
  WriteBytes(On("c/bramlee/aud/own/.work/on"), "new.wma\t\tengc/eng-a.wma\nend");
  const QDialog& dialog = Ask(Open(kCapitalsForm));
  EXPECT_EQ(Marks(dialog, 1), QStringList{Q("maker's")});
  EXPECT_EQ(BytesOf(On("c/bramlee/aud/engc/eng-a.wma")), "new");
  EXPECT_FALSE(QFileInfo::exists(On("c/bramlee/aud/own/.work")));
}

TEST_F(OwnVoices, SayThatThereIsNoMicrophone) {
  const QDialog& dialog = Ask(Open(kCapitalsForm));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !Said(dialog).empty(); }, 30000));
  EXPECT_EQ(Said(dialog), "There is no microphone: plug one in.");
  EXPECT_FALSE(In<QPushButton>(dialog, "voice_record").isEnabled());
}

TEST_F(OwnVoices, SayThatTheDriveIsNotThere) {
  drive = Q("E:");
  const QDialog& dialog = Ask(Open(kCapitalsForm));
  EXPECT_EQ(Said(dialog), "The drive of the sounds is not there.");
  EXPECT_FALSE(In<QPushButton>(dialog, "voice_record").isEnabled());
  EXPECT_FALSE(In<QPushButton>(dialog, "voice_fromstick").isEnabled());
}

TEST_F(OwnVoices, FollowWhatAnotherWindowDid) {
  QDialog& dialog = Ask(Open(kCapitalsForm));
  EXPECT_EQ(Marks(dialog, 1), QStringList{Q("missing")});
  WriteBytes(On("c/bramlee/aud/engc/eng-a.wma"), "maker");
  QEvent activated(QEvent::WindowActivate);
  QCoreApplication::sendEvent(&dialog, &activated);
  EXPECT_EQ(Marks(dialog, 1), QStringList{Q("maker's")});
}

TEST_F(OwnVoices, HaveLargeTargetsWithNames) {
  const QDialog& dialog = Ask(Open(kMathsForm));
  for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
    EXPECT_GE(button->minimumHeight(), 44) << button->objectName().toStdString();
    EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
  }
}

TEST_F(OwnVoices, HaveButtonsThatReturnPresses) {
  EXPECT_EQ(DeafToReturn(Ask(Open(kMathsForm))), QStringList());
}

/// A desk without a single stick, whose user picks the folder `picks`.
class OwnVoicesOnSticks : public OwnVoices {
 protected:
  OwnVoicesOnSticks() : search_(TheStickSearch()) {
    TheStickSearch() = {.sticks = [this] { return sticks; },
                        .pick =
                            [this](QWidget*, const QString&, const QString& first) {
                              offered.append(first);
                              return picks;
                            }};
    Choices::Instance().Choose(Q("voice/stick"), usual);
  }
  ~OwnVoicesOnSticks() override { TheStickSearch() = search_; }
  void SetUp() override {
    OwnVoices::SetUp();
    QDir().mkpath(On("c/bramlee/aud/own/voice/engc"));
    for (const char* file : {"engc/eng-a.wav", "own/voice/engc/eng-a.wav"})
      WriteBytes(On("c/bramlee/aud/") + Q(file), WriteWave(kWave));
  }

  /// The window once it has looked for microphones, of which there are none: what it says of that
  /// is said.
  QDialog& AskAndAwait() {
    QDialog& dialog = Ask(Open(kCapitalsForm));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Said(dialog).empty(); }, 30000));
    return dialog;
  }
  /// Copies in the window and waits for the end of that. Returns what is said of it.
  static std::string Copy(const QDialog& dialog, const char* button) {
    In<QPushButton>(dialog, button).click();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return !In<QProgressBar>(dialog, "voice_progress").isVisible(); }, 30000));
    return Said(dialog);
  }

  const QString usual = Q("/media");
  const SpeechWave kWave{.rate = 48000, .samples = std::vector<std::int16_t>(4800, 1000)};
  QTemporaryDir folder;
  QStringList sticks;
  QString picks = folder.path();
  QStringList offered;

 private:
  StickSearch search_;
};

TEST_F(OwnVoicesOnSticks, AreOfferedTheFolderOfTheLastCopyThatSucceeded) {
  const QDialog& dialog = AskAndAwait();
  EXPECT_EQ(Copy(dialog, "voice_tostick"), "1 recording copied to " + picks.toStdString() + ".");
  EXPECT_EQ(Copy(dialog, "voice_fromstick"), "1 recording taken from " + picks.toStdString() + ".");
  Copy(dialog, "voice_tostick");
  EXPECT_EQ(offered, QStringList({usual, picks, picks}));
  Choices::Instance().Choose(Q("voice/stick"), usual);
  Copy(dialog, "voice_fromstick");
  Copy(dialog, "voice_fromstick");
  EXPECT_EQ(offered.mid(3), QStringList({usual, picks}));
}

TEST_F(OwnVoicesOnSticks, AreNotOfferedAFolderThatFailedOrHeldNone) {
  const QDialog& dialog = AskAndAwait();
  const QString good = picks;
  Copy(dialog, "voice_tostick");
  picks = folder.filePath(Q("missing"));
  EXPECT_EQ(Copy(dialog, "voice_tostick"), "There is no such folder.");
  EXPECT_EQ(Copy(dialog, "voice_fromstick"), "There are no recordings in that folder.");
  QDir().mkpath(picks + Q("/engc"));
  WriteBytes(picks + Q("/engc/eng-a.wav"), "no wave");
  EXPECT_EQ(Copy(dialog, "voice_fromstick"),
            "0 recordings taken from " + picks.toStdString() + ".");
  Copy(dialog, "voice_fromstick");
  EXPECT_EQ(offered, QStringList({usual, good, good, good, good}));
}

TEST_F(OwnVoicesOnSticks, AreOfferedAFolderNoMoreOnceItFails) {
  const QDialog& dialog = AskAndAwait();
  Copy(dialog, "voice_tostick");
  QDir(picks).removeRecursively();
  Copy(dialog, "voice_tostick");
  Copy(dialog, "voice_tostick");
  EXPECT_EQ(offered, QStringList({usual, picks, usual}));
}

TEST_F(OwnVoicesOnSticks, TakeTheOneStickThatIsThereAndOfferTheOldFolderAfterwards) {
  const QDialog& dialog = AskAndAwait();
  sticks = QStringList(folder.path());
  Copy(dialog, "voice_tostick");
  EXPECT_EQ(offered, QStringList());
  sticks.clear();
  Copy(dialog, "voice_tostick");
  EXPECT_EQ(offered, QStringList(usual));
}

TEST(TakeLines, SayForEachFaultWhatItIs) {
  std::set<QString> lines;
  for (int fault = 0; fault <= static_cast<int>(VoiceFault::Endless); ++fault) {
    lines.insert(LineOf({.trouble = RecorderTrouble::None, .fault = VoiceFault(fault), .cue = {}}));
  }
  for (int trouble = 1; trouble <= static_cast<int>(RecorderTrouble::Gone); ++trouble) {
    lines.insert(
        LineOf({.trouble = RecorderTrouble(trouble), .fault = VoiceFault::None, .cue = {}}));
  }
  EXPECT_EQ(lines.size(), 6U + 3);
  EXPECT_FALSE(lines.contains(QString()));
}

}  // namespace
}  // namespace bramlee
