// bramlee-sheets: makes sheets of letters to write, as a PDF.
#include <QGuiApplication>
#include <QLoggingCategory>

#include "paper/pdf_file.h"
#include "tools/letters/stop_asked.h"
#include "tools/sheets/sheets_request.h"

namespace bramlee {
namespace {

/// How often a long document tells how far it is, in pages.
constexpr int kPagesATime = 10;

LaidOut LayOutDocument(const SheetsRequest& request) {
  if (const auto* sheet = std::get_if<Worksheet>(&request.document)) return LayOut(*sheet);
  if (const auto* sums = std::get_if<SumSheet>(&request.document)) return LayOut(*sums);
  const auto* book = std::get_if<LetterBook>(&request.document);
  return book == nullptr ? LaidOut() : LayOut(*book);
}

ExitStatus Write(const SheetsRequest& request) {
  const LaidOut made = LayOutDocument(request);
  if (!made.error.IsNone()) return kTool.Fail(kBadArguments, made.error.text);
  for (const QString& note : made.pages->Notes()) kTool.Say(note);
  const bool isLong = std::holds_alternative<LetterBook>(request.document);
  const PaperError error =
      WritePdf(*made.pages, request.info, request.file, [isLong](int done, int of) {
        const bool isDue = done > 0 && (done % kPagesATime == 0 || done == of);
        if (isLong && isDue) kTool.Say(QStringLiteral("page %1 of %2").arg(done).arg(of));
        return !IsStopAsked();
      });
  return error.IsNone() ? kDone : kTool.Fail(kFailed, error.text);
}

ExitStatus Answer(const QStringList& arguments) {
  const SheetsRequest request = ReadSheetsRequest(arguments);
  if (!request.error.isEmpty()) return kTool.Fail(kBadArguments, request.error);
  if (!request.text.isEmpty()) return kTool.Print(request.text.toStdString());
  return Write(request);
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  bramlee::CatchStop();
  qputenv("QT_QPA_PLATFORM", "offscreen");  // text needs fonts, and no window system
  // What Qt says of the session's folders is of no use to whoever makes a sheet.
  QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  const QGuiApplication app(argc, argv);
  return bramlee::Answer(QGuiApplication::arguments());
}
