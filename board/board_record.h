// What one board differs in from the others: a record a board, and the few handlers that only
// it has.
//
// Hooks for a board of its own:
// - Controls and menus that only it has are made in `makeOwn`, at their design values. Menus made
//   there stand on the bar before the gap ahead of "&Clear".
// - A wipe leaves them as they are, but for what `resetOwn` brings back to its design value.
// - `layOut` places the tiles; it runs when the form is loaded and again in each wipe, so it lays
//   out for the state that it finds.
// - A board with `showTiles` has alternative forms: "&Draw Alternatives" and txtalt.
// - After a control that is placed later than `layOut` calls Board::FitSheet, so that it can be
//   scrolled to.
#pragma once

#include <cstdint>
#include <span>

#include "engine/stroke_rec.h"
#include "ink/colours.h"
#include "letters/letter_sets.h"
#include "strokes/rules.h"
#include "ui/controls.h"

namespace bramlee {

class Board;

// The ways most boards do it; a record names another where its board differs.
void NoOwnPart(Board& board);
void NoOwnPart(Board& board, StrokeRec& rec);
void NoOwnPart(Board& board, bool on);
/// Asks for the letter's sound if mnuaud is checked.
void CueIfPlayIsOn(Board& board, const StrokeRec& rec);
/// The program of the board's letter set.
WriteLetter ProgramOfSet(const Board& board, const StrokeRec& rec);
/// Writes the letter by its program, or says the record's `strangeTile`, if any, when there is no
/// tile of that number. Throws what the program throws.
void WriteTile(Board& board, StrokeRec& rec);
/// Marks that speed, 1 to 6, and writes its step to txtspd. Throws TrappedError for another.
void SetSpeed(Board& board, int index);
/// Clicks the tiles in the record's order, each group start on a sheet wiped once more.
void DrawAllTiles(Board& board);

/// One board. Fields in the order in which a form's life meets them.
struct BoardRecord {
  const char* form;                     ///< the form's name
  const char* title;                    ///< text of txthdr1 and the window's caption
  ColourWord backColor = kGround;       ///< of the sheet
  const char* letterSet;                ///< name of its letters, of its pictures' folder too
  std::int16_t cueBoardNo;              ///< its number among the sound sets
  const char* backItem = "mnuclose";    ///< name of "&Back"
  const char* audioCaption = "&Audio";  ///< of mnuaud1
  int firstTile = 1;                    ///< pic(firstTile) to pic(lastTile) exist
  int lastTile = 0;                     ///< 0: as many tiles as the letter set has

  SheetExtent gridExtent = kWideExtent;
  SheetExtent ruleExtent = kWideExtent;
  RuleLines ruleLines = RuleLines::WritingBook;
  bool rulesComeBack = true;  ///< whether a group start draws the checked rule again

  std::span<const int> groupStarts;   ///< tiles before which the sheet is wiped
  const char* strangeTile = nullptr;  ///< what is said of a number that is no tile

  /// Makes the controls and menus that only this board has; once, with the form.
  void (*makeOwn)(Board&) = NoOwnPart;
  /// Its part of Form_Load: lays the tiles out. In each wipe too.
  void (*layOut)(Board&);
  /// Brings back to design what a wipe loses of its own part.
  void (*resetOwn)(Board&) = NoOwnPart;
  /// Shows and hides tiles by txtalt, after mnudrawalt was switched. Null: no alternative forms.
  void (*showTiles)(Board&) = nullptr;
  /// After mnuaud was switched on or off.
  void (*playSwitched)(Board&, bool on) = NoOwnPart;

  /// A tile's click, once the record is filled: flags that go into it.
  void (*prepare)(Board&, StrokeRec&) = NoOwnPart;
  void (*cue)(Board&, const StrokeRec&) = CueIfPlayIsOn;
  /// The program that writes this record's letter.
  WriteLetter (*program)(const Board&, const StrokeRec&) = ProgramOfSet;
  void (*write)(Board&, StrokeRec&) = WriteTile;

  void (*speed)(Board&, int index) = SetSpeed;  ///< mnuspd_Click
  void (*drawAll)(Board&) = DrawAllTiles;       ///< mnudall_Click, after mnuaud is off
  std::span<const int> drawOrder = {};          ///< tiles of Draw All, when not in number order
};

// One record a board, each in the source of its board.
extern const BoardRecord kCapitalsBoard;
extern const BoardRecord kSmallLettersBoard;
extern const BoardRecord kHindiVowelsBoard;
extern const BoardRecord kHindiConsonantsBoard;
extern const BoardRecord kTeluguVowelsBoard;
extern const BoardRecord kTeluguConsonantsBoard;

}  // namespace bramlee
