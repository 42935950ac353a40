// What the worksheets' dialog does with the pages: prints them, saves them as a file.
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTabWidget>

#include "companions/worksheet/heading_pane.h"
#include "companions/worksheet/long_work.h"
#include "companions/worksheet/matter_pane.h"
#include "companions/worksheet/page_preview.h"
#include "companions/worksheet/worksheet_desk.h"
#include "companions/worksheet/worksheet_dialog.h"
#include "ui/choices.h"
#include "ui/message_box.h"

namespace bramlee {
namespace {

const QString kPage = QStringLiteral("Page");
const QString kFolder = QStringLiteral("worksheet/folder");
const QString kNothingSaved = QStringLiteral("Cancelled. Nothing was saved.");

/// The folder that a worksheet was saved in last, as long as it is there.
QString UsualFolder() {
  QString kept = Choices::Instance().Of(kFolder, QString()).toString();
  if (!kept.isEmpty() && QDir(kept).exists()) return kept;
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QDir(documents).exists() ? documents : QDir::homePath();
}

/// A title without what some file systems do not take.
QString FileNameOf(const QString& title) {
  static const QRegularExpression kNotTaken(QStringLiteral(R"([/\\:*?"<>|])"));
  return QString(title).remove(kNotTaken) + QStringLiteral(".pdf");
}

bool PrintsToFile(const QPrinter& printer) {
  return !printer.outputFileName().isEmpty();
}

void SetUp(QPrinter& printer, const PrintedPages& pages, const QString& title) {
  const QSizeF size = pages.SizeMm();
  const bool landscape = size.width() > size.height();
  printer.setDocName(title);
  printer.setPageSize(QPageSize(landscape ? size.transposed() : size, QPageSize::Millimeter));
  printer.setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
  printer.setFromTo(1, pages.Count());
}

/// A printer is quiet about what goes wrong once it has the pages; but one that is there no longer
/// has not printed them.
bool IsGone(const QPrinter& printer) {
  if (printer.printerState() == QPrinter::Error) return true;
  return !PrintsToFile(printer) && !TheWorksheetDesk().printers().contains(printer.printerName());
}

}  // namespace

void WorksheetDialog::reject() {
  if (work_->IsRunning()) return work_->Cancel();
  QDialog::reject();
}

void WorksheetDialog::SetBusy(bool busy) {
  said_->setHidden(busy);
  for (QWidget* each :
       QList<QWidget*>{tabs_, preview_, back_, on_, folder_, print_, pdf_, close_}) {
    each->setDisabled(busy);
  }
}

PaperError WorksheetDialog::RunLong(
    const QString& unit, const std::function<PaperError(const PageProgress& progress)>& work) {
  QWidget* focus = focusWidget();
  SetBusy(true);
  const PaperError error = work_->Run(unit, work);
  SetBusy(false);
  FollowPreview();
  if (focus != nullptr) focus->setFocus();
  return error;
}

void WorksheetDialog::PrintWords(const QString& words) {
  WorksheetRecord record = Record();
  beforeWords_ = record;
  printedWords_ = words;
  record.matter = WorksheetMatter::TypedWords;
  record.words = words;
  matter_->Show(record);
  Refresh();
  if (print_->isEnabled()) Print();
}

void WorksheetDialog::Print() {
  const std::shared_ptr<const PrintedPages> pages = made_.pages;
  if (TheWorksheetDesk().printers().isEmpty()) {
    const bool asPdf =
        AskBox(QStringLiteral("This computer knows no printer. Save the worksheet as "
                              "a PDF file instead?"),
               QStringLiteral("Save as PDF"), QStringLiteral("Not now"));
    if (asPdf) SaveAsPdf();
    return;
  }
  QPrinter printer(QPrinter::HighResolution);
  SetUp(printer, *pages, InfoOf(source_, Record()).title);
  if (!TheWorksheetDesk().askPrinter(printer, this)) return;
  const bool all = printer.printRange() == QPrinter::AllPages || printer.fromPage() == 0;
  const int first = all ? 0 : printer.fromPage() - 1;
  const int last = all ? pages->Count() - 1 : std::min(printer.toPage(), pages->Count()) - 1;
  const PaperError error = RunLong(kPage, [&](const PageProgress& progress) {
    return PrintPages(*pages, printer, first, last, progress);
  });
  SayPrinted(error, printer);
}

void WorksheetDialog::SayPrinted(const PaperError& error, const QPrinter& printer) {
  const bool toFile = PrintsToFile(printer);
  if (error.kind == PaperError::Kind::Cancelled) {
    if (!toFile) {
      return Say(QStringLiteral("Cancelled. Pages that the printer had by then may still come."));
    }
    QFile::remove(printer.outputFileName());
    return Say(kNothingSaved);
  }
  if (!error.IsNone() || IsGone(printer)) {
    const QString text = error.IsNone() ? QStringLiteral("The printer is gone.") : error.text;
    Say(text);
    return MsgBox(text + QStringLiteral("\nNothing is lost: print once more, or save as PDF."));
  }
  if (toFile) return SaySaved(printer.outputFileName());
  Say(QStringLiteral("Sent to the printer."));
}

void WorksheetDialog::SaveAsPdf() {
  const QString name = FileNameOf(InfoOf(source_, Record()).title);
  const QString file = TheWorksheetDesk().askFile(QDir(UsualFolder()).filePath(name), this);
  if (file.isEmpty()) return;
  const QString question = QStringLiteral("%1 is there already. Replace it?");
  if (QFileInfo::exists(file) && !AskBox(question.arg(QFileInfo(file).fileName()),
                                         QStringLiteral("Replace"), QStringLiteral("Keep it"))) {
    return;
  }
  SaveTo(file);
}

void WorksheetDialog::SaveTo(const QString& file) {
  const std::shared_ptr<const PrintedPages> pages = made_.pages;
  const DocumentInfo info = InfoOf(source_, Record());
  const PaperError error = RunLong(
      kPage, [&](const PageProgress& progress) { return WritePdf(*pages, info, file, progress); });
  if (error.kind == PaperError::Kind::Cancelled) {
    return Say(kNothingSaved);
  }
  if (!error.IsNone()) {
    Say(error.text);
    return MsgBox(error.text);
  }
  Choices::Instance().Choose(kFolder, QFileInfo(file).absolutePath());
  SaySaved(file);
}

void WorksheetDialog::SaySaved(const QString& file) {
  savedFile_ = file;
  folder_->show();
  Say(QStringLiteral("Saved: ") + QDir::toNativeSeparators(file));
}

void WorksheetDialog::ShowFolder() {
  TheWorksheetDesk().showFolder(QFileInfo(savedFile_).absolutePath());
}

}  // namespace bramlee
