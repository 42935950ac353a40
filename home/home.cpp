#include "home/home.h"

#include "files/environment.h"
#include "home/frame_form.h"
#include "home/home_form.h"
#include "home/loading_notice.h"
#include "home/report_notice.h"
#include "home/start_form.h"
#include "ui/form_ids.h"
#include "ui/forms.h"

namespace bramlee {

namespace {

std::optional<QString> ChosenDrive() {
  const Form* home = LoadForm(kHomeForm);
  if (home == nullptr) return std::nullopt;  // all forms are being unloaded
  return home->TextOf(QStringLiteral("txtdrv"));
}

}  // namespace

void RegisterHome(std::span<const HomeSubject> subjects) {
  RegisterForm(kFrameForm, [] { return new FrameForm; });
  RegisterForm(kStartForm, [] { return new StartForm; });
  RegisterForm(kHomeForm, [subjects] { return new HomeForm(subjects); });
  RegisterForm(kLoadingNotice, [] { return new LoadingNotice; });
  RegisterForm(kReportNotice, [] { return new ReportNotice; });
  TheEnvironment().mediaDrive = ChosenDrive;
}

}  // namespace bramlee
