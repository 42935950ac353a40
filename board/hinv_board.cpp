// The board of the Hindi vowels and the vowel signs.
#include "board/board.h"
#include "files/numbers.h"
#include "letters/letter_names.h"
#include "strokes/set_looks.h"
#include "ui/form_ids.h"

namespace bramlee {
namespace {

constexpr int kVowels = 13;     ///< tiles of the first row
constexpr int kLastTile = 36;   ///< tiles behind the vowels and signs are spare and never seen
constexpr int kLine = 0;        ///< pic(0), a line of lettering that lies on the sheet
constexpr int kShowsLine = 14;  ///< the tile that puts it there
constexpr int kHidesLine = 18;  ///< the tile that takes it away

void MakeOwn(Board& board) {
  // Hidden here and not in the layout: a wipe leaves the line as it stands.
  board.Tile(kLine)->hide();
  board.Tile(kLine)->setAccessibleName(
      QStringLiteral("Line of lettering (%1)").arg(QString::fromUtf8(kHindiLettering)));
}

void ShowTiles(Board& board) {
  const bool alternatives = board.FlagOf(QStringLiteral("txtalt")) != 0;
  board.ShowTiles(1, board.letters().tiles,
                  [&](int tile) { return !alternatives || HasSecondForm(board.letters(), tile); });
}

void LayOut(Board& board) {
  board.ShowTiles(board.letters().tiles + 1, kLastTile, [](int) { return false; });
  double left = 1450;
  double top = 560;
  for (int i = 1; i <= board.letters().tiles; ++i) {
    board.PlaceTile(i, left, top);
    left += 950;
    if (i == kVowels) {
      left = 1450;
      top += 875;
    }
  }
  board.PlaceTitle(PlaceOf(board.Tile(5)).left + 450);
  ShowTiles(board);
}

void Prepare(Board& board, StrokeRec& rec) {
  if (rec.LetterNo == kHidesLine) board.Tile(kLine)->hide();
  rec.AltFlag = RoundToInteger(board.FlagOf(QStringLiteral("txtalt")));
}

/// Lays the line over the first cell of the sheet. Its place is computed like a letter's, in sheet
/// pixels.
void ShowLine(Board& board, const StrokeRec& rec) {
  PictureBox* line = board.Tile(kLine);
  Place(line, {.left = kTwipsPerPixel * (rec.Col1 + 0.1 * rec.CellH),
               .top = kTwipsPerPixel * (rec.Row2 + 0.2 * rec.CellH),
               .width = kTwipsPerPixel * (0.95 * rec.CellW),
               .height = kTwipsPerPixel * (0.6 * rec.CellH)});
  line->show();
}

void Write(Board& board, StrokeRec& rec) {
  if (rec.LetterNo == kShowsLine) return ShowLine(board, rec);
  WriteTile(board, rec);
}

/// While a speed is marked, a pick only removes that mark; the next one sets a speed.
void PickSpeed(Board& board, int index) {
  const int marked = board.FirstChecked("mnuspd", Board::kSpeeds);
  if (marked != 0) return board.SetChecked(Indexed("mnuspd", marked), false);
  SetSpeed(board, index);
}

}  // namespace

const BoardRecord kHindiVowelsBoard{
    .form = kHindiVowelsForm,
    .title = kHindiVowelsLook.title,
    .letterSet = "hinv",
    .cueBoardNo = 3,
    .firstTile = kLine,
    .lastTile = kLastTile,
    .groupStarts = kHindiVowelsLook.groupStarts,
    .strangeTile = "My Dad is Calling.He brings me  Dolls",
    .makeOwn = MakeOwn,
    .layOut = LayOut,
    .showTiles = ShowTiles,
    .prepare = Prepare,
    .write = Write,
    .speed = PickSpeed,
};

}  // namespace bramlee
