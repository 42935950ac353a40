#include "media/media.h"

#include "media/player_form.h"
#include "media/sound_engine.h"
#include "ui/form_ids.h"
#include "ui/forms.h"

namespace bramlee {

void RegisterMedia() {
  RegisterForm(kPlayerForm, [] { return new PlayerForm; });
}

void WarmUpPlayer() {
  SoundEngine::Instance().WarmUp();
}

}  // namespace bramlee
