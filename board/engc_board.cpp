// The board of the English capitals.
#include "board/board.h"
#include "strokes/set_looks.h"
#include "ui/form_ids.h"

namespace bramlee {
namespace {

/// A tile's top left corner, in twips.
struct Corner {
  int left;
  int top;
};

/// The tiles stand in the shape of a large letter A.
constexpr Corner kTiles[] = {
    {2040, 600 }, // A
    {1440, 1200},
    {2640, 1200}, // B, C
    {840,  1800},
    {2040, 1800},
    {3240, 1800}, // D to F
    {240,  2400},
    {1440, 2400},
    {2640, 2400},
    {3840, 2400}, // G to J
    {240,  3000},
    {1440, 3000},
    {2640, 3000},
    {3840, 3000}, // K to N
    {240,  3600},
    {1440, 3600},
    {2640, 3600},
    {3840, 3600}, // O to R
    {840,  4200},
    {2040, 4200},
    {3240, 4200}, // S to U
    {1440, 4800},
    {2640, 4800}, // V, W
    {2040, 5400}, // X
    {960,  6000},
    {3120, 6000}, // Y, Z
};

void LayOut(Board& board) {
  int tile = 1;
  for (const Corner& corner : kTiles) board.PlaceTile(tile++, corner.left, corner.top, 1215, 615);
  board.PlaceTitle(240);
}

}  // namespace

const BoardRecord kCapitalsBoard{
    .form = kCapitalsForm,
    .title = kCapitalsLook.title,
    .backColor = kCapitalsLook.sheet,
    .letterSet = "engc",
    .cueBoardNo = 1,
    .gridExtent = kCapitalsLook.gridExtent,
    .ruleExtent = kCapitalsLook.ruleExtent,
    .ruleLines = kCapitalsLook.ruleLines,
    .rulesComeBack = kCapitalsLook.rulesComeBack,
    .groupStarts = kCapitalsLook.groupStarts,
    .strangeTile = "My Mom is Calling.I am going for CHACOLATE",
    .layOut = LayOut,
};

}  // namespace bramlee
