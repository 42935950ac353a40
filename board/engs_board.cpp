// The board of the English small letters.
#include "board/board.h"
#include "strokes/set_looks.h"
#include "ui/form_ids.h"

namespace bramlee {
namespace {

constexpr int kTilesInRow = 4;

void LayOut(Board& board) {
  for (int i = 1; i <= board.letters().tiles; ++i) {
    const int column = (i - 1) % kTilesInRow;
    const int row = (i - 1) / kTilesInRow;
    const double left = i == 23 ? 2640 : 600 + 1050 * column;  // the w stands a little aside
    board.PlaceTile(i, left, 600 + 975 * row);
  }
  board.PlaceTitle(600, 4050);
}

}  // namespace

const BoardRecord kSmallLettersBoard{
    .form = kSmallLettersForm,
    .title = kSmallLettersLook.title,
    .letterSet = "engs",
    .cueBoardNo = 2,
    .audioCaption = "Audio",
    .gridExtent = kSmallLettersLook.gridExtent,
    .ruleExtent = kSmallLettersLook.ruleExtent,
    .ruleLines = kSmallLettersLook.ruleLines,
    .groupStarts = kSmallLettersLook.groupStarts,
    .strangeTile = "My Mom is Calling.I am going for CHACOLATE",
    .layOut = LayOut,
};

}  // namespace bramlee
