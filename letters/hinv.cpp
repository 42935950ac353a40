// Hindi vowels and vowel signs: tiles 1 to 13 are the vowels, tile 14 is a picture, tiles 15 to 24
// are the vowels' signs, 25 to 28 the marks. A letter hangs from a bar at Y1 (325) and is 150 high;
// what stands above the bar goes up from Y1, what hangs below the foot goes down from Y2 (475). X1
// places the letter in its cell: the anchors of all tiles stand in one table at the end.
#include "letters/forms.h"
#include "letters/hindi_shapes.h"
#include "letters/letter_sets.h"
#include "letters/pen.h"

namespace bramlee {
namespace {

// Parts that several letters share: a change to one changes every letter that uses it.

/// अ without its bar; returns the place of its stem.
EndPoint WriteABody(const StrokeRec& r, Pen& pen) {
  pen.Arc(150, -90, -1, r.X1 + 30, r.Y1 + 30, 30);
  pen.Arc(90, -170, -1, r.X1 + 30, r.Y1 + 105, 45);
  const EndPoint stem = pen.Arc(222, 320, +1, r.X1 + 78, r.Y1 + 37.5, 37.5);
  pen.LineDown(stem.x, r.Y1, r.Y1 + kHindiStem);
  return stem;
}

/// The whole of अ; returns the place of its stem.
EndPoint WriteWholeA(const StrokeRec& r, Pen& pen) {
  const EndPoint stem = WriteABody(r, pen);
  pen.LineRight(stem.x - 36, r.Y1, stem.x + 36);
  return stem;
}

/// The whole of आ.
void WriteWholeAa(const StrokeRec& r, Pen& pen) {
  const EndPoint stem = WriteABody(r, pen);
  pen.LineDown(stem.x + 45, r.Y1, r.Y1 + kHindiStem);
  pen.LineRight(stem.x - 36, r.Y1, stem.x + 81);
}

/// The alternative form of अ without its bar; returns the waist between its two bows.
EndPoint WriteRoundA(const StrokeRec& r, Pen& pen) {
  const EndPoint waist = pen.Arc(150, -90, -1, r.X1 + 37.5, r.Y1 + 37.5, 37.5);
  pen.Arc(90, -170, -1, r.X1 + 37.5, r.Y1 + 112.5, 37.5);
  pen.LineRight(waist.x, waist.y, waist.x + 75);
  pen.LineDown(waist.x + 75, r.Y1, r.Y1 + kHindiStem);
  return waist;
}

/// The whole of इ.
void WriteWholeI(const StrokeRec& r, Pen& pen) {
  const EndPoint bowl = WriteHook(r, pen).lower;
  pen.SlantRight(60, bowl.x, bowl.y, bowl.y + 36);
  pen.LineRight(r.X1 - 55.5, r.Y1, r.X1 + 27.75);
}

/// The whole of ए.
void WriteWholeE(const StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 75, r.Y1, r.Y1 + 75);
  const EndPoint tail = pen.SlantRight(45, r.X1 + 75, r.Y1 + 75, r.Y1 + kHindiStem);
  pen.Arc(45, -160, -1, tail.x - 12, tail.y + 10.5, 15);
  pen.LineDown(r.X1 + 150, r.Y1, r.Y1 + 75);
  pen.Arc(0, -160, -1, r.X1 + 135, r.Y1 + 72.75, 15);
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + 175);
}

/// The alternative form of ए, which has neither curl.
void WritePlainE(const StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 75, r.Y1, r.Y1 + 75);
  pen.SlantRight(45, r.X1 + 75, r.Y1 + 75, r.Y1 + kHindiStem);
  pen.LineDown(r.X1 + 150, r.Y1, r.Y1 + 75);
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + 175);
}

/// What ऐ has above ए.
void WriteStrokeOfAi(const StrokeRec& r, Pen& pen) {
  pen.Arc(90, -270, -1, r.X1 + 87.5, r.Y1 - 35.25, 7.5);
  pen.SlantRight(55, r.X1 + 95, r.Y1 - 37.5, r.Y1);
}

/// The sign of e; returns the place where it meets the bar.
EndPoint WriteESign(const StrokeRec& r, Pen& pen) {
  pen.Arc(70, -290, -1, r.X1 + 110, r.Y1 - 27, 7.5);
  return pen.SlantRight(45, r.X1 + 114.5, r.Y1 - 33, r.Y1);
}

/// The sign of ai: that of e and a stroke above it; returns the place where it meets the bar.
EndPoint WriteAiSign(const StrokeRec& r, Pen& pen) {
  WriteESign(r, pen);
  pen.Arc(45, -290, -1, r.X1 + 112.5, r.Y1 - 55.5, 7.5);
  return pen.SlantRight(30, r.X1 + 119.5, r.Y1 - 59.25, r.Y1);
}

/// The stem and bar of the signs of o and au, which hang where their last slant ended.
void WriteSignStem(EndPoint end, const StrokeRec& r, Pen& pen) {
  pen.LineDown(end.x, r.Y1, r.Y4);
  pen.LineRight(end.x - 25, r.Y1, end.x + 25);
}

/// The two dots of ः, one over the other.
void WriteTwoDots(double centreX, const StrokeRec& r, Pen& pen) {
  WriteHindiDot(centreX, r.Y1 + 37.5, pen);
  WriteHindiDot(centreX, r.Y1 + 112.5, pen);
}

/// The stroke down from the loop or bar of the mark below.
void WriteTailBelow(EndPoint start, const StrokeRec& r, Pen& pen) {
  pen.SlantRight(45, start.x, start.y, r.Y2 + 37.5);
}

// Each letter: its strokes in writing order, a line each.

void WriteA(StrokeRec& r, Pen& pen) {
  WriteWholeA(r, pen);
}

void WriteAOtherwise(StrokeRec& r, Pen& pen) {
  const EndPoint waist = WriteRoundA(r, pen);
  pen.LineRight(waist.x + 45, r.Y1, waist.x + 105);
}

void WriteAa(StrokeRec& r, Pen& pen) {
  WriteWholeAa(r, pen);
}

void WriteAaOtherwise(StrokeRec& r, Pen& pen) {
  const EndPoint waist = WriteRoundA(r, pen);
  pen.LineDown(waist.x + 112.5, r.Y1, r.Y1 + kHindiStem);
  pen.LineRight(waist.x + 45, r.Y1, waist.x + 142.5);
}

void WriteI(StrokeRec& r, Pen& pen) {
  WriteWholeI(r, pen);
}

void WriteIi(StrokeRec& r, Pen& pen) {
  WriteWholeI(r, pen);
  pen.Arc(250, 70, -1, r.X1 + 5.625, r.Y1 - 26.25, 26.25);
}

void WriteU(StrokeRec& r, Pen& pen) {
  WriteUBows(r, pen);
  pen.LineRight(r.X1 - 12, r.Y1, r.X1 + 105);
}

void WriteUu(StrokeRec& r, Pen& pen) {
  WriteUBows(r, pen);
  pen.Arc(150, 0, -1, r.X1 + 90, r.Y1 + 90, 37.5);
  pen.LineRight(r.X1 - 12, r.Y1, r.X1 + 129);
}

void WriteRi(StrokeRec& r, Pen& pen) {
  pen.Arc(110, -110, -1, r.X1 - 37.5, r.Y1 + 60, 37.5);
  pen.LineDown(r.X1, r.Y1, r.Y1 + kHindiStem);
  pen.SlantUpRight(45, r.X1, r.Y1 + 82.5, r.Y1 + 50);
  const EndPoint loop = pen.Arc(-70, 270, +1, r.X1 + 31.05, r.Y1 + 37.8, 9);
  pen.SlantRight(45, loop.x, loop.y, loop.y + 23.4);
  pen.Arc(90, 300, +1, r.X1 + 54, r.Y1 + 99, 30);
  pen.LineRight(r.X1 - 75, r.Y1, r.X1 + 75);
}

void WriteRiOtherwise(StrokeRec& r, Pen& pen) {
  const EndPoint bow = pen.Arc(100, -90, -1, r.X1 - 52.5, r.Y1 + 78.75, 52.5);
  pen.LineDown(r.X1, r.Y1, r.Y1 + kHindiStem);
  pen.SlantUpRight(45, bow.x, bow.y, bow.y - 94.5);
  const EndPoint loop = pen.Arc(300, 570, +1, r.X1 + 34.2, r.Y1 + 31.5, 9);
  pen.SlantRight(45, loop.x, loop.y, loop.y + 27);
  pen.Arc(90, 300, +1, r.X1 + 54, r.Y1 + 96, 30);
  pen.LineRight(r.X1 - 75, r.Y1, r.X1 + 75);
}

void WriteE(StrokeRec& r, Pen& pen) {
  WriteWholeE(r, pen);
}

void WriteEOtherwise(StrokeRec& r, Pen& pen) {
  WritePlainE(r, pen);
}

void WriteAi(StrokeRec& r, Pen& pen) {
  WriteWholeE(r, pen);
  WriteStrokeOfAi(r, pen);
}

void WriteAiOtherwise(StrokeRec& r, Pen& pen) {
  WritePlainE(r, pen);
  WriteStrokeOfAi(r, pen);
}

// ओ and औ have no other form, and no tile to click while others are wanted.

void WriteO(StrokeRec& r, Pen& pen) {
  if (r.AltFlag != 0) return;
  WriteWholeAa(r, pen);
  WriteESign(r, pen);
}

void WriteAu(StrokeRec& r, Pen& pen) {
  if (r.AltFlag != 0) return;
  WriteWholeAa(r, pen);
  WriteAiSign(r, pen);
}

void WriteAm(StrokeRec& r, Pen& pen) {
  const EndPoint stem = WriteWholeA(r, pen);
  WriteHindiDot(stem.x, r.Y1 - 22.5, pen);
}

void WriteAh(StrokeRec& r, Pen& pen) {
  const EndPoint stem = WriteWholeA(r, pen);
  WriteTwoDots(stem.x + 37.5, r, pen);
}

void WriteSignOfAa(StrokeRec& r, Pen& pen) {
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + 100);
  pen.LineDown(r.X1 + 75, r.Y1, r.Y2);
}

void WriteSignOfI(StrokeRec& r, Pen& pen) {
  pen.Arc(0, 180, +1, r.X1 + 37.5, r.Y1 - 5.625, 37.5);
  pen.LineDown(r.X1, r.Y1, r.Y2);
  pen.LineRight(r.X1 - 25, r.Y1, r.X1 + 25);
}

void WriteSignOfIi(StrokeRec& r, Pen& pen) {
  pen.Arc(180, 0, -1, r.X1 + 37.5, r.Y1 - 5.625, 37.5);
  pen.LineDown(r.X1 + 75, r.Y1, r.Y2);
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + 100);
}

void WriteSignOfU(StrokeRec& r, Pen& pen) {
  pen.Arc(180, -60, -1, r.X1 + 75, r.Y2 + 15, 15);
  pen.Arc(300, 220, -1, r.X1 + 57.5, r.Y2 - 17.25, 52.5);
}

void WriteSignOfUu(StrokeRec& r, Pen& pen) {
  pen.Arc(0, -260, -1, r.X1 + 75, r.Y2 + 21, 15);
  pen.Arc(-255, -335, -1, r.X1 + 87.5, r.Y2 + 54.75, 52.5);
}

void WriteSignOfRi(StrokeRec& r, Pen& pen) {
  pen.Arc(95, 300, +1, r.X1 + 82.5, r.Y2 + 16.5, 16.5);
}

void WriteSignOfE(StrokeRec& r, Pen& pen) {
  WriteESign(r, pen);
}

void WriteSignOfAi(StrokeRec& r, Pen& pen) {
  WriteAiSign(r, pen);
}

void WriteSignOfO(StrokeRec& r, Pen& pen) {
  WriteSignStem(WriteESign(r, pen), r, pen);
}

void WriteSignOfAu(StrokeRec& r, Pen& pen) {
  WriteSignStem(WriteAiSign(r, pen), r, pen);
}

void WriteDotAbove(StrokeRec& r, Pen& pen) {
  WriteHindiDot(r.X1, r.Y1 - 22.5, pen);
}

void WriteDotsBeside(StrokeRec& r, Pen& pen) {
  WriteTwoDots(r.X1, r, pen);
}

void WriteMoon(StrokeRec& r, Pen& pen) {
  WriteMoonBowl(r, pen);
}

void WriteMarkBelow(StrokeRec& r, Pen& pen) {
  const EndPoint loop = pen.Arc(70, -290, -1, r.X1 + 110, r.Y2 + 15, 6);
  WriteTailBelow(loop, r, pen);
}

void WriteMarkBelowOtherwise(StrokeRec& r, Pen& pen) {
  pen.LineRight(r.X1 + 110, r.Y2 + 15, r.X1 + 122.5);
  WriteTailBelow({.x = r.X1 + 122.5, .y = r.Y2 + 15}, r, pen);
}

/// Where a letter stands on the sheet, and its routines.
struct Tile {
  int column;
  double across;  ///< X1's distance from the column's left edge, in widths of a cell
  bool foot;      ///< Y2 is the foot line
  Forms write;
};

// clang-format off
constexpr Tile kTiles[] = {
    // column, across, foot, strokes: usual, alternative
    {1, 0.2,  false, {WriteA, WriteAOtherwise}},                  //  1 अ
    {2, 0.2,  false, {WriteAa, WriteAaOtherwise}},                //  2 आ
    {3, 0.5,  false, {WriteI}},                                   //  3 इ
    {4, 0.5,  false, {WriteIi}},                                  //  4 ई
    {1, 0.2,  false, {WriteU}},                                   //  5 उ
    {2, 0.25, false, {WriteUu}},                                  //  6 ऊ
    {3, 0.5,  false, {WriteRi, WriteRiOtherwise}},                //  7 ऋ
    {1, 0,    false, {WriteE, WriteEOtherwise}},                  //  8 ए
    {2, 0,    false, {WriteAi, WriteAiOtherwise}},                //  9 ऐ
    {3, 0.2,  false, {WriteO}},                                   // 10 ओ
    {4, 0.2,  false, {WriteAu}},                                  // 11 औ
    {1, 0.2,  false, {WriteAm}},                                  // 12 अं
    {2, 0.2,  false, {WriteAh}},                                  // 13 अः
    {1, 0,    false, {}},                                         // 14 a picture in the first cell, no strokes
    {2, 0.2,  true,  {WriteSignOfAa}},                            // 15 ा
    {3, 0.2,  true,  {WriteSignOfI}},                             // 16 ि
    {4, 0.4,  true,  {WriteSignOfIi}},                            // 17 ी
    {1, 0.2,  true,  {WriteSignOfU}},                             // 18 ु
    {2, 0.2,  true,  {WriteSignOfUu}},                            // 19 ू
    {3, 0.2,  true,  {WriteSignOfRi}},                            // 20 ृ
    {1, 0,    true,  {WriteSignOfE}},                             // 21 े
    {2, 0,    true,  {WriteSignOfAi}},                            // 22 ै
    {3, 0,    true,  {WriteSignOfO}},                             // 23 ो
    {4, 0,    true,  {WriteSignOfAu}},                            // 24 ौ
    {1, 0.5,  false, {WriteDotAbove}},                            // 25 ं
    {2, 0.6,  false, {WriteDotsBeside}},                          // 26 ः
    {3, 0.5,  true,  {WriteMoon}},                                // 27 ँ
    {4, 0,    true,  {WriteMarkBelow, WriteMarkBelowOtherwise}},  // 28 ्
};
// clang-format on
static_assert(std::size(kTiles) == 28);

/// The tile of the record, or nullptr.
const Tile* TileOf(const StrokeRec& r) {
  return r.LetterNo >= 1 && r.LetterNo <= std::ssize(kTiles) ? &kTiles[r.LetterNo - 1] : nullptr;
}

void LayAnchors(const Tile& tile, StrokeRec& r) {
  r.X1 = ColumnOf(r, tile.column) + tile.across * r.CellW;
  r.Y1 = r.Row2;
  if (tile.foot) r.Y2 = r.Row4;
}

}  // namespace

std::span<const int> HindiVowelsOfTwoForms() {
  static const std::vector<int> kOfTwo = TilesOfTwoForms(
      static_cast<int>(std::size(kTiles)), [](int tile) { return kTiles[tile - 1].write; });
  return kOfTwo;
}

void WriteHindiVowel(StrokeRec& rec, DrawingSurface& sheet) {
  const Tile* tile = TileOf(rec);
  if (tile == nullptr) return;
  const LetterRoutine write = Wanted(tile->write, rec);
  if (write == nullptr) return;
  LayAnchors(*tile, rec);
  Pen pen{rec, sheet};
  write(rec, pen);
}

void WriteHindiVowelInTheBook(StrokeRec& rec, DrawingSurface& sheet) {
  const Tile* tile = TileOf(rec);
  if (tile == nullptr) return;
  LayAnchors(*tile, rec);
  WriteFrom(HindiVowelsInTheBook(), rec, sheet);
}

}  // namespace bramlee
