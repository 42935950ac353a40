// The maths board: digits, signs and typed numbers; drills and tables stand on the same form.
#include "board/board.h"
#include "board/cues.h"
#include "files/numbers.h"
#include "files/trap.h"
#include "letters/letter_sets.h"
#include "maths/drills.h"
#include "maths/maths.h"
#include "maths/maths_menu.h"
#include "maths/number_box.h"
#include "maths/tables.h"
#include "strokes/set_looks.h"
#include "ui/form_ids.h"

namespace bramlee {
namespace {

// Places of the tiles, in twips. The digits in two rows of five, the signs in one row beside
// them, as high as both rows: their pictures stand below the number box, which is laid over the
// top of the first three.
constexpr double kLeft = 600;
constexpr double kTop = 600;
constexpr double kColumnPitch = 1050;
constexpr double kRowPitch = 900;
constexpr int kColumns = 5;
constexpr double kSignWidth = 900;
constexpr double kSignHeight = 1725;

void LayOutTiles(Board& board) {
  for (int i = 0; i < kDigitTiles; ++i) {
    const int row = i / kColumns;
    board.PlaceTile(i + 1, kLeft + i % kColumns * kColumnPitch, kTop + row * kRowPitch);
  }
  for (int i = kDigitTiles; i < board.letters().tiles; ++i) {
    board.PlaceTile(i + 1, kLeft + (kColumns + i - kDigitTiles) * kColumnPitch, kTop, kSignWidth,
                    kSignHeight);
  }
}

void LayOut(Board& board) {
  LayOutTiles(board);
  LayOutNumberBox(board);
  board.PlaceTitle(kLeft, 5100);
}

void MakeMathsMenu(Board& board) {
  QMenu* maths = board.AddMenu(QStringLiteral("mnutables"), QStringLiteral("&Maths"));
  board.AddItem(maths, QStringLiteral("mnunum"), QStringLiteral("&Numbers"), [&board] {
    Trap(QStringLiteral("mat:06"), [&](ErrInfo&) { mnunum_Click(board); });
  });
  MakeTableMenu(board, maths);
  MakeDrillMenu(board, maths);
}

void MakeOwn(Board& board) {
  const auto hidden = [&board](const char* name, const char* text) {
    board.AddHiddenText(QString::fromLatin1(name), QString::fromLatin1(text));
  };
  hidden("txtalt3", "0");
  hidden("txtaltno", "0");
  hidden("txtaud", "0");
  hidden("txtsetno", "1");
  hidden("txtsign", "17");
  hidden("txtsignleft", "0");
  hidden("txtsigntop", "0");
  hidden("txttable", "0");
  MakeNumberBox(board);
  LayOutTiles(board);
  MakeDrillRow(board);
  MakeTablePicture(board);
  MakeMathsMenu(board);
}

/// A wipe clears the place of a typed digit; a drill stays on.
void ForgetPlace(Board& board) {
  board.SetText(QStringLiteral("txtalt3"), QStringLiteral("0"));
  board.SetText(QStringLiteral("txtaltno"), QStringLiteral("0"));
}

void ShowTilesByForm(Board& board) {
  if (board.FlagOf(QStringLiteral("txtalt")) != 1) return ShowDigitTiles(board);
  HideDigitTiles(board);
  for (const int tile : board.letters().secondForms) board.Tile(tile)->show();
}

void SilenceNextTile(Board& board, bool on) {
  board.SetText(QStringLiteral("txtaud"), on ? QStringLiteral("1") : QStringLiteral("0"));
}

void ReadFlags(Board& board, StrokeRec& rec) {
  rec.AltFlag = RoundToInteger(board.FlagOf(QStringLiteral("txtalt")));
  rec.LoopNo = RoundToInteger(board.FlagOf(QStringLiteral("txtaltno")));
}

/// A tile speaks whether Play is on or off; txtaud silences the next one.
void CueUnlessSilenced(Board& board, const StrokeRec& rec) {
  if (board.FlagOf(QStringLiteral("txtaud")) == 0) {
    CueBoardNo = board.record().cueBoardNo;
    PlayCue(rec.LetterNo, CueBoardNo);
  }
  board.SetText(QStringLiteral("txtaud"), QStringLiteral("0"));
}

/// Signs have no place in a typed number.
WriteLetter ProgramByPlace(const Board& board, const StrokeRec& rec) {
  const bool typed = rec.LetterNo <= kDigitTiles && board.FlagOf(QStringLiteral("txtalt3")) == 3;
  return typed ? WriteTypedDigit : WriteNumberTile;
}

/// Wipes only where a tile's own click wipes.
void DrawAll(Board& board) {
  if (board.FlagOf(QStringLiteral("txtalt")) == 1) return board.mnuclear1_Click();
  for (int tile = 1; tile <= board.letters().tiles; ++tile) board.pic_Click(tile);
}

const BoardRecord kMathsBoard{
    .form = kMathsForm,
    .title = kNumbersLook.title,
    .letterSet = "mat",
    .cueBoardNo = 7,
    .backItem = "mnuback",
    .groupStarts = kNumbersLook.groupStarts,
    .makeOwn = MakeOwn,
    .layOut = LayOut,
    .resetOwn = ForgetPlace,
    .showTiles = ShowTilesByForm,
    .playSwitched = SilenceNextTile,
    .prepare = ReadFlags,
    .cue = CueUnlessSilenced,
    .program = ProgramByPlace,
    .drawAll = DrawAll,
};

}  // namespace

void RegisterMaths() {
  RegisterBoard(kMathsBoard);
}

}  // namespace bramlee
