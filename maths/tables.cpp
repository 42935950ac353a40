#include "maths/tables.h"

#include "files/numbers.h"
#include "files/trap.h"
#include "maths/arithmetic.h"
#include "maths/maths_menu.h"
#include "maths/result_box.h"

namespace bramlee {
namespace {

/// Heights of the result box while a table is made and when it shows one, in twips.
constexpr double kLowBox = 2000;
constexpr double kTableBox = 7600;

const QString kItem = QStringLiteral("mnutbl");

PictureBox* TablePicture(const Board& board) {
  return board.Named<PictureBox>(QStringLiteral("pict"));
}

void SetTableVisible(Board& board, bool visible) {
  TablePicture(board)->setVisible(visible);
  Result(board)->setVisible(visible);
  FirstOperand(board)->setVisible(visible);
}

void MoveToTop(Board& board, QWidget* control) {
  MoveTo(control, PlaceOf(control).left, PlaceOf(board.Tile(1)).top);
}

void SetResultHeight(Board& board, double height) {
  TwipsRect place = PlaceOf(Result(board));
  place.height = height;
  Place(Result(board), place);
  board.FitSheet();
}

void mnutbl_Click(Board& board) {
  HideSheetMenus(board);
  board.mnuclear1_Click();
  if (board.Checked(kItem)) {
    board.SetChecked(kItem, false);
    SetTableVisible(board, false);
    ShowDigitTiles(board);
    return;
  }
  UncheckMathsMenu(board);
  board.SetChecked(kItem, true);
  SetTableVisible(board, true);
  HideDigitTiles(board);
  MoveToTop(board, FirstOperand(board));
  MoveToTop(board, TablePicture(board));
  MoveToTop(board, Result(board));
  board.FitSheet();
  // Tab goes from the number to the picture and on to the table.
  QWidget::setTabOrder(FirstOperand(board), TablePicture(board));
  QWidget::setTabOrder(TablePicture(board), Result(board));
  StartAtFirstOperand(board);
}

}  // namespace

void MakeTablePicture(Board& board) {
  PictureBox* picture = board.AddPicture(QStringLiteral("pict"));
  picture->SetPicture(QStringLiteral(":/pictures/mat/table.jpg"));
  picture->setAccessibleName(QStringLiteral("Make the table"));
  picture->hide();
  const TwipsRect number = PlaceOf(FirstOperand(board));
  Place(picture, {.left = number.left + number.width + 200,
                  .top = number.top,
                  .width = 1300,
                  .height = number.height});
  QObject::connect(picture, &PictureBox::clicked, &board, [&board] { pict_Click(board); });
}

void MakeTableMenu(Board& board, QMenu* menu) {
  QMenu* tables = board.AddMenu(menu, QStringLiteral("mnutable"), QStringLiteral("&ShowTables"));
  board.AddItem(tables, kItem, QStringLiteral("&Tables"), [&board] {
    Trap(QStringLiteral("mat:04"), [&](ErrInfo&) { mnutbl_Click(board); });
  });
}

void pict_Click(Board& board) {
  Trap(QStringLiteral("mat:05"), [&board](ErrInfo&) {
    SetResultHeight(board, kLowBox);
    const std::optional<QString> text = TableText(Val(FirstOperand(board)->currentText()));
    if (!text) return;
    SetResultHeight(board, kTableBox);
    Result(board)->SetText(*text);
  });
}

}  // namespace bramlee
