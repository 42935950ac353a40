// The dialog in which a teacher puts a worksheet together, prints it or saves it.
#pragma once

#include <QDialog>
#include <QTimer>
#include <optional>

#include "companions/worksheet/worksheet_pages.h"
#include "paper/pdf_file.h"

class QLabel;
class QPrinter;
class QPushButton;
class QTabWidget;

namespace bramlee {

class Board;
class HeadingPane;
class LongWork;
class MatterPane;
class PagePreview;
class PaperPane;
class RowsEditor;

/// `worksheet`: tabs to choose in, the pages beside them, and below what can be done. Opens with
/// what was chosen last and keeps what is chosen when it is hidden. Modal to all the program, since
/// a pen that writes meanwhile would stand still while pages are painted. Deletes itself when
/// closed. docs/forms.md lists its controls.
class WorksheetDialog : public QDialog {
  Q_OBJECT
 public:
  /// For that board, which is its parent.
  explicit WorksheetDialog(Board& board);

  /// Takes these words, with commas between, as if they had been typed, and prints them as if that
  /// had been pressed. The next time the choice is the one before again.
  void PrintWords(const QString& words);

  /// Esc and the window's close button: ends long work that goes on, else the dialog.
  void reject() override;

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  QTabWidget* MakeTabs();
  QWidget* MakePreview();
  QWidget* MakeActions();
  void ShowRecord();

  WorksheetRecord Record() const;
  /// Lays out what is chosen now, and shows it or why it cannot be.
  void Refresh();
  void FollowPreview();
  void Say(const QString& text);
  /// Whether that is the case shows on everything that can be chosen or done.
  void SetBusy(bool busy);
  /// Has long work run, counted in that unit, while nothing else can be done but to cancel it.
  PaperError RunLong(const QString& unit,
                     const std::function<PaperError(const PageProgress& progress)>& work);
  /// Lays out, or says why not.
  LaidOut MakePages(const WorksheetRecord& record);

  void Print();
  void SayPrinted(const PaperError& error, const QPrinter& printer);
  void SaveAsPdf();
  void SaveTo(const QString& file);
  /// Says where the file is, and offers its folder.
  void SaySaved(const QString& file);
  void ShowFolder();

  const WorksheetSource source_;
  MatterPane* matter_;
  RowsEditor* rows_;
  PaperPane* paper_;
  HeadingPane* heading_;
  QTabWidget* tabs_;
  PagePreview* preview_ = nullptr;
  QPushButton* back_ = nullptr;
  QPushButton* on_ = nullptr;
  QLabel* page_ = nullptr;
  QLabel* said_ = nullptr;
  LongWork* work_ = nullptr;
  QPushButton* folder_ = nullptr;
  QPushButton* print_ = nullptr;
  QPushButton* pdf_ = nullptr;
  QPushButton* close_ = nullptr;
  QTimer refresh_{this};
  LaidOut made_;
  std::optional<WorksheetRecord> beforeWords_;  ///< what was chosen when PrintWords came
  QString printedWords_;
  QString savedFile_;  ///< the last one of this dialog
};

}  // namespace bramlee
