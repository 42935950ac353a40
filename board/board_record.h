// What one board differs in from the others: a record a board, and the few handlers that only
// it has.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <span>

#include "board/rules.h"
#include "engine/stroke_rec.h"
#include "letters/letter_sets.h"
#include "shell/controls.h"

namespace bramlee {

class Board;

/// Puts back what a board of its own kept across a wipe.
using PutBack = std::function<void(Board&)>;

// The ways most boards do it; a record names another where its board differs.
void NoOwnPart(Board& board);
void NoOwnPart(Board& board, StrokeRec& rec);
PutBack KeepNothing(const Board& board);
void CueIfPlayIsOn(Board& board, const StrokeRec& rec);
void WriteTile(Board& board, StrokeRec& rec);
void SetSpeed(Board& board, int index);
void DrawAllTiles(Board& board);

/// One board. Fields in the order in which a form's life meets them.
struct BoardRecord {
  const char* form;         ///< the form's name
  const char* title;        ///< text of txthdr1 and the window's caption
  ColourWord backColor;     ///< of the sheet
  const char* letterSet;    ///< name of its letters, of its pictures' folder too
  std::int16_t cueBoardNo;  ///< its number among the sound sets
  const char* backItem = "mnuclose";
  const char* audioCaption = "&Audio";
  bool alternatives = false;  ///< has mnudrawalt and txtalt
  int firstTile = 1;          ///< pic(firstTile) to pic(lastTile) exist
  int lastTile;

  SheetExtent gridExtent = kWideExtent;
  SheetExtent ruleExtent = kWideExtent;
  RuleLines ruleLines = RuleLines::WritingBook;
  bool rulesComeBack = true;  ///< whether a group start draws the checked rule again

  std::span<const int> groupStarts;  ///< tiles before which the sheet is wiped
  const char* strangeTile;           ///< what is said of a number that is no tile

  /// Makes the controls and menu items that only this board has; once, with the form.
  void (*makeOwn)(Board&) = NoOwnPart;
  /// Brings them to their design values, as in a form just made.
  void (*resetOwn)(Board&) = NoOwnPart;
  /// Its part of Form_Load: lays the tiles out.
  void (*layOut)(Board&);
  /// Reads what it keeps across a wipe beside what all boards keep.
  PutBack (*keepOwn)(const Board&) = KeepNothing;

  /// A tile's click, once the record is filled: flags that go into it.
  void (*prepare)(Board&, StrokeRec&) = NoOwnPart;
  void (*cue)(Board&, const StrokeRec&) = CueIfPlayIsOn;
  void (*write)(Board&, StrokeRec&) = WriteTile;

  void (*speed)(Board&, int index) = SetSpeed;  ///< mnuspd_Click
  void (*drawAll)(Board&) = DrawAllTiles;       ///< mnudall_Click, after mnuaud is off
  std::span<const int> drawOrder = {};          ///< tiles of Draw All, when not in number order
};

// One record a board, each in the source of its board.
extern const BoardRecord kCapitalsBoard;

}  // namespace bramlee
