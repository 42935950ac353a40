#include "companions/export/export.h"

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

void Show(Board& board) {
  auto* dialog = new ExportDialog(board);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->open();
}

}  // namespace

void AddExport(Board& board) {
  board.strip().AddButton(Strip::Group::Teacher,
                          {.name = "strip_export",
                           .text = QStringLiteral("Export letters to files"),
                           .key = Qt::Key_E,
                           .picture = ExportPicture(),
                           .restsWhileWriting = true},
                          [&board] { Show(board); });
}

}  // namespace bramlee
