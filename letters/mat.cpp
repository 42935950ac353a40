// Digits and signs: tiles 1 to 9 are the digits of that name, tile 10 is 0, tiles 11 to 17 are the
// signs + - x / % = ?. A digit stands between Y1 (325) and 150 below, its left edge or middle at
// X1; a sign has its middle on Row3 (400). Their measures are parts of the cell's width and
// height and of R1, so that a digit stands alike in any column.
#include "letters/mat.h"

#include "letters/forms.h"
#include "letters/letter_sets.h"

namespace bramlee {
namespace {

// Parts that several digits or forms share: a change to one changes all that use it.

/// The frame that the 1, 2, 3 and 5 stand in.
void LayFrame(StrokeRec& r) {
  r.WX1 = r.CellW * 0.15 + r.X1;
  r.WX2 = r.CellW * 0.36 + r.WX1;
  r.WY1 = r.Y1;
  r.CX1 = r.CellW * 0.342 + r.X1;
}

/// The 1 stands at WX1 from WY1 to WY2; its flag and its foot begin at WX3.
void LayOne(StrokeRec& r) {
  LayFrame(r);
  r.WX3 = r.WX1 - r.CellW * 0.3;
  r.WY3 = r.CellH * 0.3 + r.Y1;
  r.WY2 = 2 * r.CellH + r.Y1;
  r.WX1 = r.WX1 - r.CellW * 0.2;
}

/// The 4 has its bar from WX1 to WX2 at WY2 and its stem at WX3 from WY1 to WY3.
void LayFour(StrokeRec& r) {
  r.WX1 = r.X1;
  r.WY1 = r.Y1;
  r.WX2 = r.CellW * 0.5 + r.WX1;
  r.WY2 = r.CellH + r.Y1;
  r.WX3 = (r.WX2 - r.WX1) * 1.7 / 3 + r.WX1;
  r.WY3 = 2 * r.CellH + r.WY1;
}

// Each digit: its anchors, then its strokes in writing order, a line each.

void WriteOne(StrokeRec& r, Pen& pen) {
  LayOne(r);
  pen.SlantUpRight(45, r.WX3, r.WY3, r.WY1);
  pen.LineDown(r.WX1, r.WY1, r.WY2);
  r.WX2 = (r.WX1 - r.WX3) + r.WX1;
  pen.LineRight(r.WX3, r.WY2, r.WX2);
}

void WriteBareOne(StrokeRec& r, Pen& pen) {
  LayOne(r);
  pen.LineDown(r.WX1, r.WY1, r.WY2);
}

void WriteTwo(StrokeRec& r, Pen& pen) {
  LayFrame(r);
  r.WY2 = 2 * r.CellH + r.Y1;
  const EndPoint bow = pen.Arc(180, -45, -1, r.CX1, r.CellH * 0.56 + r.WY1, r.R1 * 0.56);
  pen.SlantLeft(45, bow.x, bow.y, r.WY2);
  pen.LineRight(r.WX1, r.WY2, r.WX2);
}

void WriteThree(StrokeRec& r, Pen& pen) {
  LayFrame(r);
  r.R4 = r.R1 * 0.5;
  r.CY1 = r.CellH * 1.5 + r.WY1;
  pen.Arc(135, -90, -1, r.CX1, r.CellH * 0.5 + r.WY1, r.R4);
  pen.Arc(90, -135, -1, r.CX1, r.CY1, r.R4);
}

void WriteFlatThree(StrokeRec& r, Pen& pen) {
  LayFrame(r);
  r.WY2 = r.CellH * 0.59 + r.Y1;
  r.R4 = r.R1 * 0.72;
  r.CY1 = r.CellH * 1.3 + r.WY1;
  pen.LineRight(r.WX1, r.WY1, r.WX2);
  pen.SlantLeft(43, r.WX2, r.WY1, r.WY2);
  pen.Arc(90, -135, -1, r.CX1, r.CY1, r.R4);
}

void WriteFour(StrokeRec& r, Pen& pen) {
  LayFour(r);
  pen.SlantLeft(43, r.WX3, r.WY1, r.WY2);
  pen.LineRight(r.WX1, r.WY2, r.WX2);
  pen.LineDown(r.WX3, r.WY1, r.WY3);
}

void WriteOpenFour(StrokeRec& r, Pen& pen) {
  LayFour(r);
  pen.LineDown(r.WX1, r.WY1, r.WY2);
  pen.LineRight(r.WX1, r.WY2, r.WX2);
  pen.LineDown(r.WX3, r.WY1, r.WY3);
}

void WriteFive(StrokeRec& r, Pen& pen) {
  LayFive(r);
  pen.LineLeft(r.WX1, r.WY1, r.WX2);
  WriteStemAndBowOfFive(r, pen);
}

void WriteSix(StrokeRec& r, Pen& pen) {
  r.WY1 = r.CellH * 0.2 + r.Y1;
  r.R3 = r.Rad * 1.1;
  pen.Arc(30, 150, +1, r.CellW * 0.008 + r.X1, r.CellH * 0.46 + r.WY1, r.R3);
  pen.Arc(150, 205, +1, r.CellW * 0.173 + r.X1, r.CellH * 0.83 + r.WY1, 2 * r.R3);
  pen.Arc(200, 560, +1, r.X1, r.CellH * 1.33 + r.Y1, r.R3);
}

/// The 7 stands in a cell of its own width.
constexpr double kSevenWidth = 0.42;

void WriteSeven(StrokeRec& r, Pen& pen) {
  r.WX1 = r.CellW * 0.24 / kSevenWidth + r.X1;
  r.WX2 = r.CellW * 0.45 + r.WX1;
  r.WY2 = 2 * r.CellH + r.Y1;
  pen.LineRight(r.X1, r.Y1, r.CellW + r.X1);
  pen.SlantLeft(35, r.WX2, r.Y1, r.WY2);
}

void WriteEight(StrokeRec& r, Pen& pen) {
  r.WY1 = r.CellH * 0.2 + r.Y1;
  r.CY1 = r.CellH * 0.3 + r.WY1;
  r.R4 = r.R1 * 0.5;
  pen.Arc(90, 270, +1, r.X1, r.CY1, r.R4);
  pen.Arc(90, -270, -1, r.X1, r.CellH + r.CY1, r.R4);
  pen.Arc(270, 450, +1, r.X1, r.CY1, r.R4);
}

void WriteNine(StrokeRec& r, Pen& pen) {
  WriteStemOfNine(WriteRingOfNine(0, r, pen), r, pen);
}

void WriteHookedNine(StrokeRec& r, Pen& pen) {
  WriteStemAndHookOfNine(WriteRingOfNine(0, r, pen), r, pen);
}

// An egg of five arcs: crown, left side, foot, right side, and the crown closed.
void WriteZero(StrokeRec& r, Pen& pen) {
  r.WY1 = r.R1 * 0.4 + r.Y1;
  r.R4 = r.R1 * 0.62;
  r.R5 = r.R1 * 1.1;
  pen.Arc(90, 120, +1, r.X1, r.R4 * 0.39 + r.WY1, r.R4);
  pen.Arc(125, 235, +1, r.X1 + 25, r.CellH * 0.6 + r.WY1, r.R5);
  pen.Arc(240, 300, +1, r.X1, r.CellH * 0.95 + r.WY1, r.R4);
  pen.Arc(305, 415, +1, r.X1 - 25, r.CellH * 0.6 + r.WY1, r.R5);
  pen.Arc(60, 90, +1, r.X1, r.R4 * 0.39 + r.WY1, r.R4);
}

// Signs stand in columns of their own, which no typed number changes.

/// Two small rings, half a cell above and below (X1, Y1), the lower one `aslant` further right.
void WriteTwoDots(double aslant, StrokeRec& r, Pen& pen) {
  pen.Arc(90, 450, +1, r.X1, r.Y1 - r.CellH * 0.5, r.R1 * 0.08);
  pen.Arc(90, 450, +1, r.X1 + aslant, r.Y1 + r.CellH * 0.5, r.R1 * 0.08);
}

/// The round of the question mark over (X1, Y1), to the angle `end`: its bow and its dot.
void WriteRound(double end, StrokeRec& r, Pen& pen) {
  pen.Arc(180, end, -1, r.X1, r.Y1 - r.CellH * 0.5, r.R1 * 0.15);
}

void WritePlus(StrokeRec& r, Pen& pen) {
  pen.LineRight(r.CellW * 0.25 + r.Col3, r.Row3, r.CellW * 0.75 + r.Col3);
  pen.LineDown(r.CellW * 0.5 + r.Col3, r.CellH * 0.25 + r.Row2, r.Row4 - r.CellH * 0.25);
}

void WriteMinus(StrokeRec& r, Pen& pen) {
  pen.LineRight(r.CellW * 0.3 + r.Col4, r.Row3, r.Col5 - r.CellW * 0.3);
}

// A cross and, beside it, a star.
void WriteTimes(StrokeRec& r, Pen& pen) {
  WriteCross(r, pen);
  r.Y3 = r.CellH * 0.6 + r.Row2;
  r.Y4 = r.CellH * 0.4 + r.Row3;
  pen.SlantRight(60, r.CellW * 0.28 + r.Col2, r.Y3, r.Y4);
  pen.SlantLeft(60, r.CellW * 0.72 + r.Col2, r.Y3, r.Y4);
  pen.LineDown(r.CellW * 0.5 + r.Col2, r.Y1, r.Y2);
}

// A bar between two dots and, beside it, a slash.
void WriteDividedBy(StrokeRec& r, Pen& pen) {
  WriteBarAndDots(r, pen);
  pen.SlantLeft(35, r.CellW * 0.62 + r.Col4, r.CellH * 0.32 + r.Row2, r.Row4 - r.CellH * 0.32);
}

void WritePercent(StrokeRec& r, Pen& pen) {
  r.X1 = r.CellW * 0.33 + r.Col1;
  r.Y1 = r.Row3;
  r.R1 = r.R1 * 3;
  pen.SlantLeft(45, r.CellW * 0.67 + r.Col1, r.CellH * 0.3 + r.Row2, r.Row4 - r.CellH * 0.3);
  WriteTwoDots(r.CellW * 0.3, r, pen);
}

void WriteEquals(StrokeRec& r, Pen& pen) {
  pen.LineRight(r.CellW * 0.25 + r.Col2, r.Row3 - 30, r.CellW * 0.75 + r.Col2);
  pen.LineRight(r.CellW * 0.25 + r.Col2, r.Row3 + 30, r.CellW * 0.75 + r.Col2);
}

void WriteQuestion(StrokeRec& r, Pen& pen) {
  r.X1 = r.CellW * 0.5 + r.Col3;
  r.Y1 = r.Row3;
  r.R1 = r.R1 * 3.2;
  WriteRound(-90, r, pen);
  pen.LineDown(r.X1, r.Row3, r.CellH * 0.6 + r.Row3);
  r.Y1 = r.Row4 + 30;
  r.R1 = r.R1 * 0.1;
  WriteRound(-180, r, pen);
}

/// A digit: its routines, and where it stands.
struct Digit {
  Forms write;
  double radius;  ///< Rad as a part of R1
  double offset;  ///< X1's distance from the column's left edge as a part of the cell's width
  int column;     ///< of its tile
  double width;   ///< of its own cell, as a part of the cell's
};

// clang-format off
constexpr Digit kDigits[] = {
    // usual, alternative         radius offset column width
    {{WriteOne, WriteBareOne},    0.65,  0.55,  1,     1},            //  1
    {{WriteTwo},                  0.65,  0.1,   2,     1},            //  2
    {{WriteThree, WriteFlatThree},0.65,  0.1,   3,     1},            //  3
    {{WriteFour, WriteOpenFour},  0.65,  0.3,   4,     1},            //  4
    {{WriteFive},                 0.65,  0.15,  1,     1},            //  5
    {{WriteSix},                  0.6,   0.65,  2,     1},            //  6
    {{WriteSeven},                1,     0.3,   3,     kSevenWidth},  //  7
    {{WriteEight},                0.7,   0.5,   4,     1},            //  8
    {{WriteNine, WriteHookedNine},0.45,  0.47,  1,     1},            //  9
    {{WriteZero},                 1.2,   0.5,   2,     1},            // 10, the 0
};
// clang-format on
static_assert(std::size(kDigits) == kDigitTiles);

// From tile 11 on.
constexpr LetterRoutine kSigns[] = {
    WritePlus, WriteMinus, WriteTimes, WriteDividedBy, WritePercent, WriteEquals, WriteQuestion,
};
static_assert(kDigitTiles + std::size(kSigns) == 17);

/// The digit of the record's tile, or nullptr.
const Digit* DigitOf(const StrokeRec& r) {
  return r.LetterNo >= 1 && r.LetterNo <= kDigitTiles ? &kDigits[r.LetterNo - 1] : nullptr;
}

void StandIn(double column, const Digit& digit, StrokeRec& r) {
  r.Rad = r.R1 * digit.radius;
  r.X1 = r.CellW * digit.offset + column;
  r.Y1 = r.Row2;
}

/// Leaves the digit the width of its own cell.
void Narrow(const Digit& digit, StrokeRec& r) {
  r.CellW = r.CellW * digit.width;
}

void StandOnItsTile(const Digit& digit, StrokeRec& r) {
  StandIn(ColumnOf(r, digit.column), digit, r);
  Narrow(digit, r);
}

/// The digit where it is typed; nullptr, and nothing is laid, for a sign or without a place.
const Digit* StandInItsNumber(StrokeRec& r) {
  const Digit* digit = DigitOf(r);
  if (digit == nullptr || !IsColumn(r.LoopNo)) return nullptr;
  Narrow(*digit, r);  // before its place is measured: a typed 7 stands further left
  StandIn(ColumnOf(r, r.LoopNo), *digit, r);
  return digit;
}

}  // namespace

void LayFive(StrokeRec& r) {
  LayFrame(r);
  r.WY2 = r.CellH * 0.93 + r.Y1;
}

void WriteStemAndBowOfFive(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.WX1, r.WY1, r.WY2);
  pen.Arc(150, -140, -1, r.CX1, r.CellH * 1.3 + r.WY1, r.R1 * 0.72);
}

EndPoint WriteRingOfNine(double start, StrokeRec& r, Pen& pen) {
  r.WY1 = r.CellH * 0.32 + r.Y1;
  r.CY1 = r.CellH * 0.2 + r.WY1;
  r.R4 = r.R1 * 0.52;
  return pen.Arc(start, start + 360, +1, r.X1, r.CY1, r.R4);
}

void WriteStemOfNine(EndPoint right, StrokeRec& r, Pen& pen) {
  r.Y2 = r.CellH * 1.5 + right.y;
  pen.LineDown(right.x, right.y, r.Y2);
}

void WriteStemAndHookOfNine(EndPoint right, StrokeRec& r, Pen& pen) {
  r.Y2 = r.R4 * 1.8 + right.y;
  pen.LineDown(right.x, right.y, r.Y2);
  pen.Arc(0, -135, -1, r.X1, r.CY1 + r.R4 * 1.8, r.R4);
}

void WriteCross(StrokeRec& r, Pen& pen) {
  r.Y1 = r.CellH * 0.25 + r.Row2;
  r.Y2 = r.Row4 - r.CellH * 0.25;
  pen.SlantRight(45, r.CellW * 0.28 + r.Col1, r.Y1, r.Y2);
  pen.SlantLeft(45, r.CellW * 0.72 + r.Col1, r.Y1, r.Y2);
}

void WriteBarAndDots(StrokeRec& r, Pen& pen) {
  r.X1 = r.CellW * 0.5 + r.Col3;
  r.Y1 = r.Row3;
  pen.LineRight(r.CellW * 0.3 + r.Col3, r.Row3, r.Col4 - r.CellW * 0.3);
  WriteTwoDots(0, r, pen);
}

std::span<const int> NumbersOfTwoForms() {
  static const std::vector<int> kOfTwo =
      TilesOfTwoForms(kDigitTiles, [](int tile) { return kDigits[tile - 1].write; });
  return kOfTwo;
}

void WriteNumberTile(StrokeRec& rec, DrawingSurface& sheet) {
  Pen pen{rec, sheet};
  if (const Digit* digit = DigitOf(rec)) {
    StandOnItsTile(*digit, rec);
    return Wanted(digit->write, rec)(rec, pen);
  }
  const int sign = rec.LetterNo - kDigitTiles;
  if (sign >= 1 && sign <= std::ssize(kSigns)) kSigns[sign - 1](rec, pen);
}

void WriteTypedDigit(StrokeRec& rec, DrawingSurface& sheet) {
  const Digit* digit = StandInItsNumber(rec);
  if (digit == nullptr) return;
  Pen pen{rec, sheet};
  Wanted(digit->write, rec)(rec, pen);
}

void WriteNumberInTheBook(StrokeRec& rec, DrawingSurface& sheet) {
  if (const Digit* digit = DigitOf(rec)) StandOnItsTile(*digit, rec);
  WriteFrom(NumbersInTheBook(), rec, sheet);
}

void WriteTypedDigitInTheBook(StrokeRec& rec, DrawingSurface& sheet) {
  if (StandInItsNumber(rec) != nullptr) WriteFrom(NumbersInTheBook(), rec, sheet);
}

}  // namespace bramlee
