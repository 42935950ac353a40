#include "companions/worksheet/worksheet_desk.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QUrl>

namespace bramlee {
namespace {

bool AskPrinter(QPrinter& printer, QWidget* over) {
  QPrintDialog dialog(&printer, over);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  return dialog.exec() == QDialog::Accepted;
}

QString AskFile(const QString& proposed, QWidget* over) {
  QFileDialog dialog(over, QStringLiteral("Save as PDF"), proposed,
                     QStringLiteral("PDF files (*.pdf)"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  // Whether to replace a file is asked in the program's own words, and once.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void ShowFolder(const QString& folder) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

}  // namespace

WorksheetDesk& TheWorksheetDesk() {
  static WorksheetDesk desk{.printers = QPrinterInfo::availablePrinterNames,
                            .askPrinter = AskPrinter,
                            .askFile = AskFile,
                            .showFolder = ShowFolder};
  return desk;
}

}  // namespace bramlee
