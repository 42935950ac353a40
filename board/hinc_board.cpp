// The board of the Hindi consonants: 37 letters in three sets of tiles, of which one is in use.
#include "board/board.h"
#include "files/numbers.h"
#include "files/trap.h"
#include "letters/letter_sets.h"
#include "strokes/set_looks.h"
#include "ui/form_ids.h"

namespace bramlee {
namespace {

constexpr const char* kSetNames[kHindiSets] = {"whole letters", "half letters",
                                               "letters with the foot stroke"};

int SetInUse(const Board& board) {
  return RoundToInteger(board.FlagOf(QStringLiteral("txtsetno")));
}

bool AlternativesWanted(const Board& board) {
  return board.FlagOf(QStringLiteral("txtalt")) != 0;
}

void pic1_Click(Board& board, int index) {
  Trap(QStringLiteral("brd:20"), [&](ErrInfo&) {
    board.SetText(QStringLiteral("txtsetno"), NumberText(index));
    board.mnuclear1_Click();
  });
}

void MakeOwn(Board& board) {
  board.AddHiddenText(QStringLiteral("txtsetno"), QStringLiteral("1"));
  for (int set = 1; set <= kHindiSets; ++set) {
    PictureBox* button = board.AddPicture(Indexed("pic1", set));
    button->setAccessibleName(QString::fromLatin1(kSetNames[set - 1]));
    button->SetPicture(QStringLiteral(":/pictures/hinc/set%1.jpg").arg(set));
    QObject::connect(button, &PictureBox::clicked, &board,
                     [&board, set] { pic1_Click(board, set); });
  }
}

/// Shows the tiles of the set in use alone, and of these only the ones with a second form while
/// alternatives are wanted.
void ShowTiles(Board& board) {
  const int first = FirstHindiTileOf(SetInUse(board));
  const bool alternatives = AlternativesWanted(board);
  board.ShowTiles(1, kHindiTiles, [&](int tile) {
    const bool inSet = tile >= first && tile < first + kHindiSetTiles;
    return inSet && (!alternatives || HasSecondForm(board.letters(), tile));
  });
}

/// Three rows of five, which the letters from the 16th on continue further right.
void PlaceSet(Board& board, int set) {
  double left = 1450;
  double top = 560;
  for (int letter = 1; letter <= kHindiSetTiles; ++letter) {
    const int tile = FirstHindiTileOf(set) + letter - 1;
    board.PlaceTile(tile, left, top);
    left += 950;
    if (letter > 25 || letter % 5 != 0) continue;
    left = 1450;
    top += 875;
    if (letter < 15) continue;
    const TwipsRect rowEnd = PlaceOf(board.Tile(tile - 10));
    left = rowEnd.left + 1800;
    top = rowEnd.top;
  }
}

void LayOut(Board& board) {
  PlaceSet(board, SetInUse(board));
  ShowTiles(board);
  for (int set = 1; set <= kHindiSets; ++set) {
    Place(board.Named<QWidget>(Indexed("pic1", set)),
          {.left = 100, .top = 560 + 875.0 * (set - 1), .width = 1250, .height = 825});
  }
  board.PlaceTitle(1450);
}

void Prepare(Board& board, StrokeRec& rec) {
  if (!HasSecondForm(board.letters(), rec.LetterNo)) return;
  rec.AltFlag = RoundToInteger(board.FlagOf(QStringLiteral("txtalt")));
}

void WriteWithFootStroke(StrokeRec& rec, DrawingSurface& sheet) {
  WriteHindiConsonant(rec, sheet);
  WriteHindiFootStroke(rec, sheet);
}

/// The foot stroke hangs on the set in use, whatever the tile.
WriteLetter Program(const Board& board, const StrokeRec& /*rec*/) {
  return SetInUse(board) == kHindiFootSet ? WriteWithFootStroke : WriteHindiConsonant;
}

void DrawAll(Board& board) {
  if (AlternativesWanted(board)) return board.mnuclear1_Click();
  const int first = FirstHindiTileOf(SetInUse(board));
  for (int tile = first; tile < first + kHindiSetTiles; ++tile) board.pic_Click(tile);
}

}  // namespace

const BoardRecord kHindiConsonantsBoard{
    .form = kHindiConsonantsForm,
    .title = kHindiConsonantsLook.title,
    .letterSet = "hinc",
    .cueBoardNo = 4,
    .backItem = "mnuback",
    .audioCaption = "Audio",
    .groupStarts = kHindiConsonantsLook.groupStarts,
    .strangeTile = "My Friend is Calling.I am going for Ice-Cream",
    .makeOwn = MakeOwn,
    .layOut = LayOut,
    .showTiles = ShowTiles,
    .prepare = Prepare,
    .program = Program,
    .drawAll = DrawAll,
};

}  // namespace bramlee
