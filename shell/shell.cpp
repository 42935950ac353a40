#include "shell/shell.h"

#include "shell/fbrmhom1.h"
#include "shell/fbrminf1.h"
#include "shell/fbrmsav1.h"
#include "shell/fbrmsta1.h"
#include "shell/fcomsav1.h"
#include "shell/forms.h"
#include "shell/mdibrm.h"

namespace bramlee {

void RegisterShell() {
  RegisterForm(QStringLiteral("MDIbrm"), [] { return new MDIbrm; });
  RegisterForm(QStringLiteral("fbrmsta1"), [] { return new fbrmsta1; });
  RegisterForm(QStringLiteral("fbrmhom1"), [] { return new fbrmhom1; });
  RegisterForm(QStringLiteral("fbrmsav1"), [] { return new fbrmsav1; });
  RegisterForm(QStringLiteral("fbrminf1"), [] { return new fbrminf1; });
  RegisterForm(QStringLiteral("fcomsav1"), [] { return new fcomsav1; });
}

}  // namespace bramlee
