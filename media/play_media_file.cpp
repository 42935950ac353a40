#include "media/play_media_file.h"

#include "files/drives.h"
#include "files/numbers.h"
#include "files/trap.h"
#include "media/windows_media_player.h"
#include "ui/form.h"
#include "ui/form_ids.h"
#include "ui/forms.h"
#include "ui/message_box.h"

namespace bramlee {

void PlayMediaFile(const QString& path) {
  Trap(QStringLiteral("1207:220"), [&path](ErrInfo& err) {
    err.ErrText = QStringLiteral("File Not Found: ( %1 )").arg(Trim(path));
    if (FileMissing(path)) MsgBox(err.ErrText);
    // Named only now: while the box stood, the countdown may have unloaded the form.
    const Form* form = LoadForm(kPlayerForm);
    if (form == nullptr) return;  // all forms are being unloaded
    auto* player = form->Named<WindowsMediaPlayer>(QStringLiteral("WindowsMediaPlayer1"));
    player->SetURL(Trim(path));
    player->Play();
  });
}

}  // namespace bramlee
