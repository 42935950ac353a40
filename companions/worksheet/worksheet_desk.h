// What the worksheets' dialog takes from the desk that it stands on: printers and the system's own
// dialogs.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QPrinter;
class QWidget;

namespace bramlee {

/// Tests put there what they need.
struct WorksheetDesk {
  /// The names of all printers that the system knows.
  std::function<QStringList()> printers;
  /// Has the user set the printer up, in the system's dialog; false when none is wanted.
  std::function<bool(QPrinter& printer, QWidget* over)> askPrinter;
  /// Has the user name a PDF file to write, a proposal in front; empty when none is wanted. Says
  /// nothing about one that is there already.
  std::function<QString(const QString& proposed, QWidget* over)> askFile;
  /// Shows a folder in the system's own window.
  std::function<void(const QString& folder)> showFolder;
};

/// One for the whole program, at first the system's.
WorksheetDesk& TheWorksheetDesk();

}  // namespace bramlee
