#include "media/media.h"

#include "media/f1207vid.h"
#include "media/sound_engine.h"
#include "shell/forms.h"

namespace bramlee {

void RegisterMedia() {
  RegisterForm(QStringLiteral("f1207vid"), [] { return new f1207vid; });
}

void WarmUpPlayer() {
  SoundEngine::Instance().WarmUp();
}

}  // namespace bramlee
