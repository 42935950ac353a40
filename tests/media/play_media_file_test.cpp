#include "media/play_media_file.h"

#include <QCoreApplication>
#include <QEvent>

#include "media/media.h"
#include "media/windows_media_player.h"
#include "tests/files/temp_drives.h"
#include "tests/files/trap_log.h"
#include "tests/media/sound_files.h"
#include "ui/form.h"

namespace bramlee {
namespace {

const QString kPlayerForm = QStringLiteral("f1207vid");

class PlayMediaFileOf : public TempDrives {
 protected:
  PlayMediaFileOf() { RegisterMedia(); }

  static WindowsMediaPlayer* Player() {
    const Form* form = LoadedForm(kPlayerForm);
    return form == nullptr ? nullptr
                           : form->Named<WindowsMediaPlayer>(QStringLiteral("WindowsMediaPlayer1"));
  }
};

TEST_F(PlayMediaFileOf, AFileLoadsThePlayerUnseenAndIsPassedToIt) {
  WriteBytes(On("c/a.wav"), ToneWave(440, 300));
  PlayMediaFile(QStringLiteral("C:\\a.wav"));
  ASSERT_NE(Player(), nullptr);
  EXPECT_FALSE(LoadedForm(kPlayerForm)->isVisible());
  EXPECT_EQ(Player()->URL(), QStringLiteral("C:\\a.wav"));
  EXPECT_TRUE(Player()->Playing());
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(PlayMediaFileOf, TheAddressIsTrimmed) {
  WriteBytes(On("c/a.wav"), ToneWave(440, 300));
  PlayMediaFile(QStringLiteral("  C:\\a.wav  "));
  EXPECT_EQ(Player()->URL(), QStringLiteral("C:\\a.wav"));
}

TEST_F(PlayMediaFileOf, AMissingFileShowsAMessageAndIsPassedOnAsWell) {
  PlayMediaFile(QStringLiteral(" C:\\no.wav "));
  EXPECT_EQ(boxes, QStringList{QStringLiteral("File Not Found: ( C:\\no.wav )")});
  EXPECT_EQ(Player()->URL(), QStringLiteral("C:\\no.wav"));
  EXPECT_TRUE(Player()->Playing());
}

TEST_F(PlayMediaFileOf, AMissingFileThatCannotBeToldLogsItsTag) {
  const TrapLog log;
  environment.tell = [](const QString&) { throw std::bad_alloc(); };
  PlayMediaFile(QStringLiteral("C:\\no.wav"));
  EXPECT_EQ(TrapLog::Tags(), Tags({"1207:220"}));
}

TEST_F(PlayMediaFileOf, AMissingFileIsNotReported) {
  MakeDataFolder();
  PlayMediaFile(QStringLiteral("C:\\no.wav"));
  EXPECT_TRUE(QDir(On("c/bramlee/dba")).isEmpty());
  EXPECT_EQ(LoadedForm(QStringLiteral("fcomsav1")), nullptr);
}

TEST_F(PlayMediaFileOf, TheCountdownMayUnloadTheFormWhileTheBoxStands) {
  LoadForm(kPlayerForm);
  environment.tell = [](const QString&) {
    UnloadForm(LoadedForm(kPlayerForm));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  };
  PlayMediaFile(QStringLiteral("C:\\no.wav"));
  ASSERT_NE(Player(), nullptr);
  EXPECT_EQ(Player()->URL(), QStringLiteral("C:\\no.wav"));
}

TEST_F(PlayMediaFileOf, ARateStaysFromFileToFileButNotFromFormToForm) {
  WriteBytes(On("c/a.wav"), ToneWave(440, 300));
  PlayMediaFile(QStringLiteral("C:\\a.wav"));
  Player()->SetRate(0.5);
  PlayMediaFile(QStringLiteral("C:\\a.wav"));
  EXPECT_EQ(Player()->Rate(), 0.5);
  UnloadForm(LoadedForm(kPlayerForm));
  PlayMediaFile(QStringLiteral("C:\\a.wav"));
  EXPECT_EQ(Player()->Rate(), 1);
}

}  // namespace
}  // namespace bramlee
