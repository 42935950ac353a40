#include "companions/worksheet/worksheet.h"

#include <QApplication>
#include <QPointer>

#include "board/board.h"
#include "board/strip.h"
#include "board/strip_pictures.h"
#include "companions/worksheet/worksheet_dialog.h"
#include "files/trap.h"
#include "ui/held_input.h"

namespace bramlee {
namespace {

/// A sheet of paper with a letter between two lines, and rows to fill below.
QIcon WorksheetPicture() {
  return StripPicture({
      {{22, 10},  {78, 10}, {78, 90}, {22, 90}, {22, 10}},
      {{36, 44}, {50, 20}, {64, 44}},
      {{41, 36},  {59, 36} },
      {{34, 58},         {66, 58}         },
      {{34, 74},         {66, 74}        }
  });
}

/// One a board.
class Worksheets : public QObject {
 public:
  explicit Worksheets(Board& board) : QObject(&board), board_(board) {
    board.strip().AddButton(Strip::Group::Teacher,
                            {.name = "strip_sheets",
                             .text = QStringLiteral("Worksheet"),
                             .key = QKeySequence::Print,
                             .picture = WorksheetPicture()},
                            [this] { OpenWhenFree({}); });
  }

  /// Prints these words, if there are any.
  ///
  /// A dialog in the middle of what is written could not be answered: its message boxes would wait
  /// for the letter's end, and the letter for them. So the letter comes to its end first, also one
  /// that pauses.
  void OpenWhenFree(const QString& words) {
    if (awaited_) return;
    awaited_ = true;
    if (board_.pen().IsWriting()) board_.pen().GoOn();
    WhenFree(this, [this, words] {
      awaited_ = false;
      Trap(QStringLiteral("wks:01"), [&](ErrInfo&) { Open(words); });
    });
  }

 private:
  void Open(const QString& words) {
    if (dialog_ != nullptr) return dialog_->raise();
    // A desktop would bring the board to the front afterwards, whichever window has asked.
    const QPointer<QWidget> asker = QApplication::activeWindow();
    dialog_ = new WorksheetDialog(board_);
    connect(dialog_, &QDialog::finished, this, [asker] {
      if (asker != nullptr) asker->activateWindow();
    });
    dialog_->show();
    if (!words.isEmpty()) dialog_->PrintWords(words);
  }

  Board& board_;
  QPointer<WorksheetDialog> dialog_;
  bool awaited_ = false;
};

Worksheets* WorksheetsOf(const Board& board) {
  for (QObject* child : board.children()) {
    if (auto* worksheets = dynamic_cast<Worksheets*>(child)) return worksheets;
  }
  return nullptr;
}

}  // namespace

void AddWorksheets(Board& board) {
  new Worksheets(board);
}

bool HasWorksheets(const Board& board) {
  return WorksheetsOf(board) != nullptr;
}

void PrintWords(Board& board, const QString& words) {
  if (Worksheets* worksheets = WorksheetsOf(board)) worksheets->OpenWhenFree(words);
}

}  // namespace bramlee
