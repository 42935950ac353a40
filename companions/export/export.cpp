#include "companions/export/export.h"

#include <QShortcut>

#include "board/board.h"
#include "board/strip.h"
#include "board/strip_pictures.h"
#include "companions/export/export_dialog.h"

namespace bramlee {
namespace {

/// A sheet, and an arrow that leads out of it.
QIcon ExportPicture() {
  return StripPicture({
      {{54, 18},  {16, 18}, {16, 84}, {82, 84}, {82, 46}},
      {{42, 58}, {84, 16}        },
      {{60, 14},         {86, 14},  {86, 40}         }
  });
}

/// One a board.
class Exports : public QObject {
 public:
  explicit Exports(Board& board) : QObject(&board), board_(board) {
    button_ = board.strip().AddButton(Strip::Group::Teacher,
                                      {.name = "strip_export",
                                       .text = QStringLiteral("Export letters to files"),
                                       .key = QStringLiteral("E"),
                                       .picture = ExportPicture()},
                                      [this] { Show(); });
    auto* key = new QShortcut(Qt::Key_E, &board);
    key->setAutoRepeat(false);
    connect(key, &QShortcut::activated, button_, &StripButton::click);
    connect(&board.pen(), &BoardPen::Changed, this, [this] { FollowPen(); });
    FollowPen();
  }

 private:
  /// Input for a dialog would wait for the letter's end.
  void FollowPen() { button_->setEnabled(!board_.pen().IsWriting()); }

  void Show() {
    auto* dialog = new ExportDialog(board_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
  }

  Board& board_;
  StripButton* button_;
};

}  // namespace

void AddExport(Board& board) {
  new Exports(board);
}

}  // namespace bramlee
