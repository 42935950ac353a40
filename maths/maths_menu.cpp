#include "maths/maths_menu.h"

#include <array>

#include "maths/result_box.h"

namespace bramlee {
namespace {

void SetSheetMenusVisible(Board& board, bool visible) {
  for (const char* menu : {"mnucolors", "mnuspeed", "mnudraw"}) {
    board.Named<QMenu>(QString::fromLatin1(menu))->menuAction()->setVisible(visible);
  }
}

void SetDigitTilesVisible(Board& board, bool visible) {
  board.ShowTiles(1, board.letters().tiles, [visible](int) { return visible; });
  board.Named<Combo>(QStringLiteral("cmb(0)"))->setVisible(visible);
}

}  // namespace

void HideSheetMenus(Board& board) {
  SetSheetMenusVisible(board, false);
}

void ShowSheetMenus(Board& board) {
  SetSheetMenusVisible(board, true);
}

void UncheckMathsMenu(Board& board) {
  for (const char* item : {"mnunum", "mnutbl", "mnuadd", "mnusub", "mnumul", "mnudiv", "mnuper"}) {
    board.SetChecked(QString::fromLatin1(item), false);
  }
}

void HideDigitTiles(Board& board) {
  SetDigitTilesVisible(board, false);
}

void ShowDigitTiles(Board& board) {
  SetDigitTilesVisible(board, true);
  auto* numberBox = board.Named<Combo>(QStringLiteral("cmb(0)"));
  MoveTo(numberBox, PlaceOf(board.Tile(11)).left, PlaceOf(numberBox).top);
}

void mnunum_Click(Board& board) {
  const QString item = QStringLiteral("mnunum");
  ShowSheetMenus(board);
  if (board.Checked(item)) {
    board.SetChecked(item, false);
    return;
  }
  UncheckMathsMenu(board);
  board.SetChecked(item, true);
  ShowDigitTiles(board);
}

Combo* FirstOperand(const Board& board) {
  return board.Named<Combo>(QStringLiteral("cmb(16)"));
}

ResultBox* Result(const Board& board) {
  return board.Named<ResultBox>(QStringLiteral("txtval(20)"));
}

void StartAtFirstOperand(Board& board) {
  FirstOperand(board)->setFocus();
  FirstOperand(board)->lineEdit()->selectAll();
}

}  // namespace bramlee
