#include "card/card.h"

#include "card/card_form.h"
#include "ui/form_ids.h"
#include "ui/forms.h"

namespace bramlee {

void RegisterCard() {
  RegisterForm(kCardForm, [] { return new CardForm; });
}

}  // namespace bramlee
