// Digits and signs. A digit stands between Y1 (325) and 150 below, its left edge or middle at
// X1; a sign has its middle on Row3 (400). Their measures are parts of the cell's width and
// height and of R1, so that a digit stands alike in any column.
#include "letters/letter_sets.h"
#include "letters/pen.h"

namespace bramlee {
namespace {

// Each digit: its anchors, then its strokes in writing order, a line each.

/// The frame that the 1, 2, 3 and 5 stand in.
void LayFrame(StrokeRec& r) {
  r.WX1 = r.CellW * 0.15 + r.X1;
  r.WX2 = r.CellW * 0.36 + r.WX1;
  r.WY1 = r.Y1;
  r.CX1 = r.CellW * 0.342 + r.X1;
}

void WriteOne(StrokeRec& r, Pen& pen) {
  LayFrame(r);
  r.WX3 = r.WX1 - r.CellW * 0.3;
  r.WY3 = r.CellH * 0.3 + r.Y1;
  r.WY2 = 2 * r.CellH + r.Y1;
  if (r.AltFlag == 0) pen.SlantUpRight(45, r.WX3, r.WY3, r.WY1);
  r.WX1 = r.WX1 - r.CellW * 0.2;
  pen.LineDown(r.WX1, r.WY1, r.WY2);
  if (r.AltFlag == 0) {
    r.WX2 = (r.WX1 - r.WX3) + r.WX1;
    pen.LineRight(r.WX3, r.WY2, r.WX2);
  }
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
  r.WY2 = r.CellH * 0.59 + r.Y1;
  if (r.AltFlag == 1) {
    r.R4 = r.R1 * 0.72;
    r.CY1 = r.CellH * 1.3 + r.WY1;
    pen.LineRight(r.WX1, r.WY1, r.WX2);
    pen.SlantLeft(43, r.WX2, r.WY1, r.WY2);
  } else {
    r.R4 = r.R1 * 0.5;
    r.CY1 = r.CellH * 1.5 + r.WY1;
    pen.Arc(135, -90, -1, r.CX1, r.CellH * 0.5 + r.WY1, r.R4);
  }
  pen.Arc(90, -135, -1, r.CX1, r.CY1, r.R4);
}

void WriteFour(StrokeRec& r, Pen& pen) {
  r.WX1 = r.X1;
  r.WY1 = r.Y1;
  r.WX2 = r.CellW * 0.5 + r.WX1;
  r.WY2 = r.CellH + r.Y1;
  r.WX3 = (r.WX2 - r.WX1) * 1.7 / 3 + r.WX1;
  r.WY3 = 2 * r.CellH + r.WY1;
  if (r.AltFlag == 0) pen.SlantLeft(43, r.WX3, r.WY1, r.WY2);
  if (r.AltFlag != 0) pen.LineDown(r.WX1, r.WY1, r.WY2);
  pen.LineRight(r.WX1, r.WY2, r.WX2);
  pen.LineDown(r.WX3, r.WY1, r.WY3);
}

void WriteFive(StrokeRec& r, Pen& pen) {
  LayFrame(r);
  r.WY2 = r.CellH * 0.93 + r.Y1;
  pen.LineLeft(r.WX1, r.WY1, r.WX2);
  pen.LineDown(r.WX1, r.WY1, r.WY2);
  pen.Arc(150, -140, -1, r.CX1, r.CellH * 1.3 + r.WY1, r.R1 * 0.72);
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
  r.WY1 = r.CellH * 0.32 + r.Y1;
  r.CY1 = r.CellH * 0.2 + r.WY1;
  r.R4 = r.R1 * 0.52;
  const EndPoint ring = pen.Arc(0, 360, +1, r.X1, r.CY1, r.R4);
  r.Y2 = (r.AltFlag == 1 ? r.R4 * 1.8 : r.CellH * 1.5) + ring.y;
  pen.LineDown(ring.x, ring.y, r.Y2);
  if (r.AltFlag == 1) pen.Arc(0, -135, -1, r.X1, r.CY1 + r.R4 * 1.8, r.R4);
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

enum { Percent = 15, Question = 17 };

/// Two small rings, half a cell above and below (X1, Y1). Those of the per cent sign lie aslant.
void TwoDots(StrokeRec& r, Pen& pen) {
  const double aslant = r.LetterNo == Percent ? r.CellW * 0.3 : 0;
  pen.Arc(90, 450, +1, r.X1, r.Y1 - r.CellH * 0.5, r.R1 * 0.08);
  pen.Arc(90, 450, +1, r.X1 + aslant, r.Y1 + r.CellH * 0.5, r.R1 * 0.08);
}

/// The bow of the question mark over (X1, Y1); a whole ring for its dot, which LoopNo 17 asks for.
void QuestionArc(StrokeRec& r, Pen& pen) {
  const double end = r.LoopNo == Question ? -180 : -90;
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
  r.Y1 = r.CellH * 0.25 + r.Row2;
  r.Y2 = r.Row4 - r.CellH * 0.25;
  pen.SlantRight(45, r.CellW * 0.28 + r.Col1, r.Y1, r.Y2);
  pen.SlantLeft(45, r.CellW * 0.72 + r.Col1, r.Y1, r.Y2);
  r.Y3 = r.CellH * 0.6 + r.Row2;
  r.Y4 = r.CellH * 0.4 + r.Row3;
  pen.SlantRight(60, r.CellW * 0.28 + r.Col2, r.Y3, r.Y4);
  pen.SlantLeft(60, r.CellW * 0.72 + r.Col2, r.Y3, r.Y4);
  pen.LineDown(r.CellW * 0.5 + r.Col2, r.Y1, r.Y2);
}

// A bar between two dots and, beside it, a slash.
void WriteDividedBy(StrokeRec& r, Pen& pen) {
  r.X1 = r.CellW * 0.5 + r.Col3;
  r.Y1 = r.Row3;
  pen.LineRight(r.CellW * 0.3 + r.Col3, r.Row3, r.Col4 - r.CellW * 0.3);
  TwoDots(r, pen);
  pen.SlantLeft(35, r.CellW * 0.62 + r.Col4, r.CellH * 0.32 + r.Row2, r.Row4 - r.CellH * 0.32);
}

void WritePercent(StrokeRec& r, Pen& pen) {
  r.X1 = r.CellW * 0.33 + r.Col1;
  r.Y1 = r.Row3;
  r.R1 = r.R1 * 3;
  pen.SlantLeft(45, r.CellW * 0.67 + r.Col1, r.CellH * 0.3 + r.Row2, r.Row4 - r.CellH * 0.3);
  TwoDots(r, pen);
}

void WriteEquals(StrokeRec& r, Pen& pen) {
  pen.LineRight(r.CellW * 0.25 + r.Col2, r.Row3 - 30, r.CellW * 0.75 + r.Col2);
  pen.LineRight(r.CellW * 0.25 + r.Col2, r.Row3 + 30, r.CellW * 0.75 + r.Col2);
}

void WriteQuestion(StrokeRec& r, Pen& pen) {
  r.X1 = r.CellW * 0.5 + r.Col3;
  r.Y1 = r.Row3;
  r.LoopNo = 1;
  r.R1 = r.R1 * 3.2;
  QuestionArc(r, pen);
  pen.LineDown(r.X1, r.Row3, r.CellH * 0.6 + r.Row3);
  r.Y1 = r.Row4 + 30;
  r.LoopNo = Question;
  r.R1 = r.R1 * 0.1;
  QuestionArc(r, pen);
}

constexpr Letter kTiles[] = {
    WriteOne,   WriteTwo,       WriteThree,   WriteFour,   WriteFive,     WriteSix,
    WriteSeven, WriteEight,     WriteNine,    WriteZero,   WritePlus,     WriteMinus,
    WriteTimes, WriteDividedBy, WritePercent, WriteEquals, WriteQuestion,
};
static_assert(std::size(kTiles) == 17);

/// Where a digit stands: its radius as a part of R1, its distance from the column's left edge as
/// a part of the cell's width, and the column of its tile.
struct DigitPlace {
  double radius;
  double offset;
  int column;
};
constexpr DigitPlace kPlaces[] = {
    {0.65, 0.55, 1}, // 1
    {0.65, 0.1,  2}, // 2
    {0.65, 0.1,  3}, // 3
    {0.65, 0.3,  4}, // 4
    {0.65, 0.15, 1}, // 5
    {0.6,  0.65, 2}, // 6
    {1,    0.3,  3}, // 7
    {0.7,  0.5,  4}, // 8
    {0.45, 0.47, 1}, // 9
    {1.2,  0.5,  2}, // 0
};

bool IsDigit(const StrokeRec& r) {
  return r.LetterNo >= 1 && r.LetterNo <= static_cast<int>(std::size(kPlaces));
}

const DigitPlace& PlaceOf(const StrokeRec& r) {
  return kPlaces[r.LetterNo - 1];
}

void StandIn(double column, StrokeRec& r) {
  r.Rad = r.R1 * PlaceOf(r).radius;
  r.X1 = r.CellW * PlaceOf(r).offset + column;
  r.Y1 = r.Row2;
}

void NarrowSeven(StrokeRec& r) {
  if (r.LetterNo == 7) r.CellW = r.CellW * kSevenWidth;
}

}  // namespace

void WriteNumberTile(StrokeRec& rec, DrawingSurface& sheet) {
  if (IsDigit(rec)) {
    StandIn(ColumnOf(rec, PlaceOf(rec).column), rec);
    NarrowSeven(rec);
  }
  WriteFrom(kTiles, rec, sheet);
}

void WriteTypedDigit(StrokeRec& rec, DrawingSurface& sheet) {
  if (!IsColumn(rec.LoopNo) || !IsDigit(rec)) return;
  NarrowSeven(rec);  // before its place is measured: a typed 7 stands further left
  StandIn(ColumnOf(rec, rec.LoopNo), rec);
  WriteFrom(kTiles, rec, sheet);
}

}  // namespace bramlee
