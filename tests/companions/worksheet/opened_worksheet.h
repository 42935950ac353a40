// The worksheets' dialog over a board, its controls by their names, and a desk that only remembers.
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPrinter>
#include <QTest>

#include "board/strip.h"
#include "companions/watch/watch.h"
#include "companions/worksheet/page_preview.h"
#include "companions/worksheet/worksheet.h"
#include "companions/worksheet/worksheet_desk.h"
#include "companions/worksheet/worksheet_dialog.h"
#include "maths/maths.h"
#include "tests/board/board_fixture.h"
#include "ui/form_ids.h"

namespace bramlee {

/// What a worksheet can be about, as the dialog lists it.
enum Matter { kLetters, kWords, kNumbers, kSums, kBook };

/// A desk with one printer that prints to the file `printed`; a user who names `file` and looks at
/// `folders`.
class OpenedWorksheet : public BoardWith<AddWatching, AddWorksheets> {
 protected:
  OpenedWorksheet() : file(On("c/sheet.pdf")), printed(On("c/printed.pdf")), desk_(TheDesk()) {
    TheDesk().printers = [this] { return printers; };
    TheDesk().askPrinter = [this](QPrinter& printer, QWidget*) {
      if (setUp) setUp(printer);
      printer.setOutputFileName(printed);
      return wantsPrinter;
    };
    TheDesk().askFile = [this](const QString& proposed, QWidget*) {
      proposals.append(proposed);
      return file;
    };
    TheDesk().showFolder = [this](const QString& folder) { folders.append(folder); };
  }
  ~OpenedWorksheet() override { TheDesk() = desk_; }
  void SetUp() override {
    BoardTest::SetUp();
    RegisterMaths();
  }

  static WorksheetDesk& TheDesk() { return TheWorksheetDesk(); }

  /// Opens the board and, by its button, the dialog.
  WorksheetDialog& OpenOn(const char* form) {
    board = &Open(form);
    board->Present();
    return OpenDialog();
  }
  WorksheetDialog& OpenDialog() {
    board->Named<StripButton>(Q("strip_sheets"))->click();
    dialog = board->findChild<WorksheetDialog*>(Q("worksheet"));
    if (dialog == nullptr) throw std::runtime_error("no dialog opens");
    Settle();
    return *dialog;
  }
  /// Closes the dialog and has it deleted.
  void CloseDialog() {
    dialog->close();
    QCoreApplication::sendPostedEvents(dialog, QEvent::DeferredDelete);
    dialog = nullptr;
  }

  /// The control whose name is "worksheet_" and that.
  template <class Control>
  Control* The(const char* name) const {
    auto* control = dialog->findChild<Control*>(Q("worksheet_") + Q(name));
    if (control == nullptr) throw std::runtime_error(name);
    return control;
  }
  QAbstractButton* Button(const char* name) const { return The<QAbstractButton>(name); }
  /// Clicks it and lets what follows from it come.
  void Click(const char* name) const {
    Button(name)->click();
    Settle();
  }
  void ClickTile(int tile) const { Click(Q("tile", tile).toLatin1().constData()); }
  void Pick(const char* choice, int index) const {
    The<QComboBox>(choice)->setCurrentIndex(index);
    Settle();
  }
  void Settle() const {
    while (The<QTimer>("refresh")->isActive()) QCoreApplication::processEvents();
  }

  PagePreview& Preview() const { return *The<PagePreview>("preview"); }
  int Pages() const { return Preview().Pages(); }
  QString Said() const { return The<QLabel>("said")->text(); }
  /// What the page in view looks like.
  QImage Page() const { return Preview().grab(Preview().PlaceOfPage().toRect()).toImage(); }

  Board* board = nullptr;
  WorksheetDialog* dialog = nullptr;

  QStringList printers = {Q("Lily")};
  std::function<void(QPrinter&)> setUp;
  bool wantsPrinter = true;
  QString file;
  QString printed;
  QStringList proposals;
  QStringList folders;

 private:
  WorksheetDesk desk_;
};

}  // namespace bramlee
