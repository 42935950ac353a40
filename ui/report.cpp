#include "ui/report.h"

#include "files/data_files.h"
#include "files/err_rep_rec.h"
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

/// The number of the next report. A count that the file cannot have is not followed: the report
/// then goes behind what is there.
std::int32_t NextReport(std::int32_t count, std::int32_t records) {
  if (count < 0 || count > records) return records + 1;
  return count == 0 ? 1 : count + 1;
}

void Append(const QString& text) {
  const FileSlot slot = TakeSlot(kErrorSlot);
  FileSave save(slot.SlotPath);
  RecordFile file(slot, save);
  ErrRepRec rec = DecodeErrRep(file.Get(1));
  const std::int32_t n = NextReport(rec.ErrCount, file.Records());
  rec.ErrCount = n;
  file.Put(1, EncodeErrRep(rec));
  // Each report is record 1 with other texts, so record 1's serial is carried into all others.
  rec.ErrSerial.Set(QStringLiteral("S.No:%1:").arg(n) + Trim(rec.ErrSerial.Text()));
  rec.ErrMessage.Set(Trim(text));
  rec.ErrStamp.Set({});
  file.Put(n, EncodeErrRep(rec));
  save.Commit();
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

void AppendErrorReport(ErrInfo& err) {
  Trap(
      err.ErrTag, [&](ErrInfo&) { Append(err.ErrText); },
      [](ErrInfo&) { MsgBox(QStringLiteral("ErrorReportNotResponding")); });
}

}  // namespace bramlee
