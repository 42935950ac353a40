#include "ui/report.h"

#include "files/error_report.h"
#include "files/numbers.h"
#include "ui/form.h"
#include "ui/form_ids.h"
#include "ui/forms.h"
#include "ui/message_box.h"

namespace bramlee {
namespace {

/// The report under way, if any: one for the whole program, as what goes wrong on the way must not
/// start another one.
struct Report {
  bool underWay = false;
  bool failed = false;
};

Report& Current() {
  static Report report;
  return report;
}

/// By its id: the notice stands in home/. Without it a report ends in a box.
void ShowNotice(const QString& text) {
  ShowForm(kReportNotice);
  Form* notice = LoadedForm(kReportNotice);
  if (notice == nullptr || Current().failed) throw TrappedError(QStringLiteral("no notice"));
  notice->Named<Label>(QStringLiteral("lbl1"))->setText(Trim(text));
  notice->setAccessibleName(Trim(text));  // the focus is on nothing that would be read out
}

void TellThatReportFailed() {
  if (Form* notice = LoadedForm(kReportNotice)) UnloadForm(notice);
  MsgBox(QStringLiteral("Message Box Routine: Error"));
}

}  // namespace

void ReportError(ErrInfo& err) {
  if (Current().underWay) {
    Current().failed = true;
    return;
  }
  Current() = {.underWay = true, .failed = false};
  Trap(
      err.ErrTag,
      [&](ErrInfo&) {
        ShowNotice(err.ErrText);
        AppendErrorReport(err);
      },
      [](ErrInfo&) { TellThatReportFailed(); });
  Current() = {};
}

}  // namespace bramlee
