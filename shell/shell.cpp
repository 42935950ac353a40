#include "shell/shell.h"

#include "shell/fcomsav1.h"
#include "shell/forms.h"

namespace bramlee {

void RegisterShell() {
  RegisterForm(QStringLiteral("fcomsav1"), [] { return new fcomsav1; });
}

}  // namespace bramlee
