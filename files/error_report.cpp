#include "files/error_report.h"

#include "files/data_files.h"
#include "files/environment.h"
#include "files/err_rep_rec.h"
#include "files/numbers.h"

namespace bramlee {
namespace {

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

void AppendErrorReport(ErrInfo& err) {
  Trap(
      err.ErrTag, [&](ErrInfo&) { Append(err.ErrText); },
      [](ErrInfo&) { TheEnvironment().tell(QStringLiteral("ErrorReportNotResponding")); });
}

}  // namespace bramlee
