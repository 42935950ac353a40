// The board of the Telugu vowels.
#include "board/board.h"
#include "strokes/set_looks.h"
#include "ui/form_ids.h"

namespace bramlee {
namespace {

/// The tiles as they stand on the board: 31 and 32 end its first row.
constexpr int kReadingOrder[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12,
                                 13, 14, 31, 32, 15, 16, 17, 18, 19, 20, 21, 22,
                                 23, 24, 25, 26, 27, 28, 29, 30, 33, 34, 35, 36};

/// The letters of tiles 7 and 8 are wider than the others.
double WidthOf(int tile) {
  return tile == 7 || tile == 8 ? 1150 : 900;
}

/// Puts a tile at the end of the first row, beside `neighbour`.
void EndFirstRowWith(Board& board, int tile, int neighbour) {
  const TwipsRect beside = PlaceOf(board.Tile(neighbour));
  MoveTo(board.Tile(tile), beside.left + beside.width + 50, PlaceOf(board.Tile(1)).top);
}

void LayOut(Board& board) {
  double left = 1450;
  double top = 560;
  for (int i = 1; i <= board.letters().tiles; ++i) {
    if (i == 8 || i == 9) left = left - 950 + PlaceOf(board.Tile(i - 1)).width + 50;
    board.PlaceTile(i, left, top, WidthOf(i));
    left += 950;
    if (i == 14 || i == 32) {
      left = 1750;
      top += 875;
    }
    if (i == 31) EndFirstRowWith(board, 31, 14);
    if (i == 32) {
      left = PlaceOf(board.Tile(20)).left + 450;
      board.PlaceTitle(left);
      EndFirstRowWith(board, 32, 31);
    }
  }
}

}  // namespace

const BoardRecord kTeluguVowelsBoard{
    .form = kTeluguVowelsForm,
    .title = kTeluguVowelsLook.title,
    .letterSet = "telv",
    .cueBoardNo = 5,
    .ruleExtent = kTeluguVowelsLook.ruleExtent,
    .ruleLines = kTeluguVowelsLook.ruleLines,
    .groupStarts = kTeluguVowelsLook.groupStarts,
    .strangeTile = "My Mom is Calling.I am going for CHACOLATE",
    .layOut = LayOut,
    .drawOrder = kReadingOrder,
};

}  // namespace bramlee
