// The hidden player's form as its tests share it.
#pragma once

#include "media/media.h"
#include "media/player_form.h"
#include "tests/files/temp_drives.h"
#include "ui/screen.h"
#include "ui/screen_rec.h"

namespace bramlee {

inline const QString kForm = QStringLiteral("f1207vid");

inline QString Name(const char* latin) {
  return QString::fromLatin1(latin);
}

class PlayerFormTest : public TempDrives {
 protected:
  PlayerFormTest() {
    environment.screen = ScreenSize{.width = 15360, .height = 11520};
    RegisterMedia();
    form = dynamic_cast<PlayerForm*>(LoadForm(kForm));
    player = form->Named<WindowsMediaPlayer>(Name("WindowsMediaPlayer1"));
  }
  PlayerFormTest(const PlayerFormTest&) = delete;
  PlayerFormTest& operator=(const PlayerFormTest&) = delete;

  QString Text(const char* name) const { return form->TextOf(Name(name)); }
  template <class Control>
  Control* Find(const char* name) const {
    return form->findChild<Control*>(Name(name));
  }
  static bool Loaded() { return LoadedForm(kForm) != nullptr; }
  void Tick(int times) {
    for (int i = 0; i < times; ++i) form->Timerete_Timer();
  }

  PlayerForm* form;
  WindowsMediaPlayer* player;
};

}  // namespace bramlee
