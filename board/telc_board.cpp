// The board of the Telugu consonants.
#include "board/board.h"
#include "files/numbers.h"
#include "ui/form_ids.h"

namespace bramlee {
namespace {

// Tiles 72 to 75 are written beside 71 and never begin a group.
constexpr int kGroupStarts[] = {1,  5,  6,  9,  12, 13, 15, 16, 17, 18, 22, 23, 26, 29, 30, 34,
                                35, 36, 39, 40, 44, 45, 49, 52, 56, 57, 61, 62, 63, 66, 67, 71};

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
    .title = "TELUGU-CONSONANTS",
    .letterSet = "telc",
    .cueBoardNo = 6,
    .firstTile = kSpareTile,
    .groupStarts = kGroupStarts,
    .strangeTile = "My Friend is Calling.I am going for Ice-Cream",
    .makeOwn = MakeOwn,
    .layOut = LayOut,
};

}  // namespace bramlee
