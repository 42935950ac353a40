// The board of the Telugu consonants.
#include "board/board.h"
#include "files/numbers.h"
#include "strokes/set_looks.h"
#include "ui/form_ids.h"

namespace bramlee {
namespace {

constexpr int kSpareTile = 0;  ///< an element of the array without a picture, never seen

void MakeOwn(Board& board) {
  board.Tile(kSpareTile)->hide();
}

void LayOut(Board& board) {
  double left = 1450;
  double top = 560;
  for (int i = 1; i <= board.letters().tiles; ++i) {
    board.PlaceTile(i, left, top);
    left += 950;
    if (i == 17 || i == 34 || i == 51 || i == 68) {
      left = 1450;
      top += 875;
    }
    if (i == 51) top = RoundEven(875 * 9.7);  // the last two rows stand below the sheet
    if (i == 68) left = PlaceOf(board.Tile(6)).left;
  }
  board.PlaceTitle(PlaceOf(board.Tile(7)).left + 450);
}

}  // namespace

const BoardRecord kTeluguConsonantsBoard{
    .form = kTeluguConsonantsForm,
    .title = kTeluguConsonantsLook.title,
    .letterSet = "telc",
    .cueBoardNo = 6,
    .firstTile = kSpareTile,
    .groupStarts = kTeluguConsonantsLook.groupStarts,
    .strangeTile = "My Friend is Calling.I am going for Ice-Cream",
    .makeOwn = MakeOwn,
    .layOut = LayOut,
};

}  // namespace bramlee
