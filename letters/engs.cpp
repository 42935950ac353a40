// English small letters: tiles 1 to 26 are a to z. A body lies between Y2 (125) and Y4 (275)
// around the middle line Y3 (200); ascenders start at Y1 (50), descenders end at Y5 (350). Four
// letters stand side by side, each in the cell of its own column. Rad comes in as 75.
#include "letters/letter_sets.h"
#include "letters/pen.h"

namespace bramlee {
namespace {

// Parts that several letters share: a change to one changes every letter that uses it.

/// The tall stem of b and h, at X2 in the cell at `column`.
void WriteAscender(double column, StrokeRec& r, Pen& pen) {
  r.X2 = r.Unit / 2 + column;
  r.Y9 = r.Row3 + r.Rad;
  pen.LineDown(r.X2, r.Y1, r.Y9);
}

/// The dot of i and j, a short stroke over the stem at `x`.
void WriteDot(double x, StrokeRec& r, Pen& pen) {
  r.Y6 = r.Row2 - r.Unit / 1.2;
  r.Y7 = r.Unit / 5 + r.Y6;
  pen.LineDown(x, r.Y6, r.Y7);
}

/// The stem and arch of n, and of m before its second arch: the stem at X1, the arch of radius
/// Rad about (CX1, CY1), and a stem down from where it really ended.
void WriteStemAndArch(double stemX, double radius, StrokeRec& r, Pen& pen) {
  r.Rad = radius;
  r.X1 = stemX;
  r.CX1 = r.X1 + r.Rad;
  r.CY1 = r.Row2 + r.Rad;
  pen.LineDown(r.X1, r.Y2, r.Y4);
  pen.Arc(170, 0, -1, r.CX1, r.CY1, r.Rad);
  r.X2 = LastX;
  r.Y2 = LastY;
  pen.LineDown(r.X2, r.Y2, r.Y4);
}

// Each letter: its anchors, then its strokes in writing order, a line each.

void WriteA(StrokeRec& r, Pen& pen) {
  r.X1 = r.Unit / 2 + r.Col1;
  r.CX1 = r.X1 + r.Rad;
  pen.Arc(0, 360, +1, r.CX1, r.Y3, r.Rad);
  r.X2 = LastX;  // the stem stands where the bowl really ended
  pen.LineDown(r.X2, r.Y2, r.Y4);
}

void WriteB(StrokeRec& r, Pen& pen) {
  WriteAscender(r.Col2, r, pen);
  r.CX2 = r.X2 + r.Rad;
  pen.Arc(180, -180, -1, r.CX2, r.Y3, r.Rad);
}

void WriteC(StrokeRec& r, Pen& pen) {
  r.CX3 = r.Unit * 3 / 2 + r.Col3 + r.Rad / 2;
  pen.Arc(60, 300, +1, r.CX3, r.Y3, r.Rad);
}

void WriteD(StrokeRec& r, Pen& pen) {
  r.X4 = r.Unit / 2 + r.Col4;
  r.CX1 = r.X4 + r.Rad;
  r.Y7 = r.Row1;
  r.Y9 = r.Row3 + r.Rad;
  pen.Arc(0, 360, +1, r.CX1, r.Y3, r.Rad);
  r.X4 = LastX;
  pen.LineDown(r.X4, r.Y7, r.Y9);
}

void WriteE(StrokeRec& r, Pen& pen) {
  r.X6 = 50.0 / 2 + r.Col1;
  r.CX1 = r.X6 + r.Rad;
  r.X7 = r.Col2 - 50.0 / 2;
  pen.LineRight(r.X6, r.Y3, r.X7);
  pen.Arc(0, 330, +1, r.CX1, r.Y3, r.Rad);
}

void WriteF(StrokeRec& r, Pen& pen) {
  r.Rad = r.Rad / 2;
  r.X2 = r.CellW / 2 + r.Col2;
  r.X7 = r.X2 - r.Rad;
  r.X8 = r.X2 + r.Rad;
  r.CX2 = r.X8;
  r.CY2 = r.Row1 + r.Rad;
  pen.Arc(0, 180, +1, r.CX2, r.CY2, r.Rad);
  r.Y7 = LastY;
  pen.LineDown(r.X2, r.Y7, r.Y4);
  pen.LineRight(r.X7, r.Y2, r.X8);
}

void WriteG(StrokeRec& r, Pen& pen) {
  r.X1 = r.Unit / 2 + r.Col3;
  r.CX1 = r.X1 + r.Rad;
  r.CY1 = r.Row4;
  pen.Arc(0, 360, +1, r.CX1, r.Y3, r.Rad);
  r.X2 = LastX;
  pen.LineDown(r.X2, r.Y2, r.Y4);
  pen.Arc(5, -160, -1, r.CX1, r.CY1, r.Rad);
}

void WriteH(StrokeRec& r, Pen& pen) {
  WriteAscender(r.Col4, r, pen);
  r.CX2 = r.X2 + r.Rad;
  pen.Arc(170, 0, -1, r.CX2, r.Y3, r.Rad);
  r.X2 = LastX;
  pen.LineDown(r.X2, r.Y3, r.Y4);
}

void WriteI(StrokeRec& r, Pen& pen) {
  r.X1 = r.CellW / 2 + r.Col1;
  WriteDot(r.X1, r, pen);
  pen.LineDown(r.X1, r.Y2, r.Y4);
}

void WriteJ(StrokeRec& r, Pen& pen) {
  r.Rad = 37.5;
  r.X3 = r.CellW / 2 + r.Col2;
  r.CX3 = r.X3 - r.Rad;
  WriteDot(r.X3, r, pen);
  pen.LineDown(r.X3, r.Y2, r.Y4);
  pen.Arc(360, 180, -1, r.CX3, r.Y4, r.Rad);  // the hook hangs below the base line
}

void WriteK(StrokeRec& r, Pen& pen) {
  r.X3 = r.Unit / 2 + r.Col3;
  r.X8 = r.X3 + r.CellW - r.Unit;
  pen.LineDown(r.X3, r.Y1, r.Y4);
  pen.SlantLeft(63, r.X8, r.Y2, r.Y3);
  pen.SlantRight(63, r.X3, r.Y3, r.Y4);
}

void WriteL(StrokeRec& r, Pen& pen) {
  r.X3 = r.CellW / 2 + r.X4;
  pen.LineDown(r.X3, r.Y1, r.Y4);
}

void WriteM(StrokeRec& r, Pen& pen) {
  WriteStemAndArch(r.Unit / 2 + r.Col1, 37.5, r, pen);
  r.CX2 = 2 * r.Rad + r.CX1;
  r.X3 = r.CX2 + r.Rad;
  pen.Arc(170, 0, -1, r.CX2, r.CY1, r.Rad);
  r.Y8 = LastY;
  pen.LineDown(r.X3, r.Y8, r.Y4);
}

void WriteN(StrokeRec& r, Pen& pen) {
  WriteStemAndArch(r.Unit * 1.3 / 2 + r.Col2, 37.5 * 1.8, r, pen);
}

void WriteO(StrokeRec& r, Pen& pen) {
  r.CX3 = r.CellW / 2 + r.Col3;
  r.CY3 = r.Row3;
  pen.Arc(-270, 90, +1, r.CX3, r.CY3, r.Rad);
}

void WriteP(StrokeRec& r, Pen& pen) {
  r.X4 = r.Unit / 2 + r.Col4;
  r.CX3 = r.CellW / 2 + r.Col4;
  r.CY3 = r.Row3;
  pen.LineDown(r.X4, r.Y2, r.Y5);
  pen.Arc(180, -180, -1, r.CX3, r.CY3, r.Rad);
}

void WriteQ(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col2 - r.Unit / 2;
  r.CX1 = r.CellW / 2 + r.Col1;
  pen.Arc(-360, 90, +1, r.CX1, r.Row3, r.Rad);  // one turn and a quarter
  pen.LineDown(r.X1, r.Y2, r.Y5);
}

void WriteR(StrokeRec& r, Pen& pen) {
  r.Rad = 37.5;
  r.X2 = r.CellW / 2 + r.Col2;
  r.CX2 = r.X2 + r.Rad;
  r.CY2 = r.Row2 + r.Rad;
  pen.LineDown(r.X2, r.Y2, r.Y4);
  pen.Arc(180, 20, -1, r.CX2, r.CY2, r.Rad);
}

void WriteS(StrokeRec& r, Pen& pen) {
  const double middle = r.CellW / 2 + r.Col3;
  const double bow = (r.CellW - r.Unit) / 2;
  const double bend = r.Unit / 2;
  pen.Arc(40, 167, +1, middle, r.Row3, bow);
  pen.Arc(210, 270, +1, r.Unit + r.Col3, r.Row3 - r.Unit / 2, bend);
  pen.LineRight(r.Unit + r.Col3, r.Row3, r.Col4 - r.Unit);
  pen.Arc(450, 390, -1, r.Col4 - r.Unit, r.Row3 + r.Unit / 2, bend);
  pen.Arc(346, 215, -1, middle, r.Row3, bow);
}

void WriteT(StrokeRec& r, Pen& pen) {
  r.Rad = 37.5;
  r.X4 = r.CellW / 2 + r.Col4;
  r.X9 = r.X4 - r.Rad;
  r.X10 = r.X4 + r.Rad;
  r.Y7 = r.Y2 - r.Rad;
  r.Y8 = r.Y3 + r.Rad;
  r.CX4 = r.X10;
  r.CY4 = r.Y8;
  pen.LineDown(r.X4, r.Y7, r.Y8);
  pen.Arc(-180, -90, +1, r.CX4, r.CY4, r.Rad);
  pen.LineRight(r.X9, r.Y2, r.X10);
}

void WriteU(StrokeRec& r, Pen& pen) {
  r.X1 = r.Unit / 2 + r.Col1;
  r.X2 = r.Col2 - r.Unit / 2;
  r.CX3 = r.CellW / 2 + r.Col1;
  r.CY3 = r.Row3;
  r.Rad = (r.CellW - r.Unit) / 2;
  pen.LineDown(r.X1, r.Y2, r.CY3);
  pen.Arc(180, 360, +1, r.CX3, r.CY3, r.Rad);
  pen.LineDown(r.X2, r.Y2, r.Y4);
}

void WriteV(StrokeRec& r, Pen& pen) {
  r.X2 = r.Unit / 2 + r.Col2;
  r.X3 = r.Col3 - r.Unit / 2;
  pen.SlantRight(26, r.X2, r.Y2, r.Y4);
  pen.SlantLeft(26, r.X3, r.Y2, r.Y4);
}

void WriteW(StrokeRec& r, Pen& pen) {
  r.X3 = r.Unit / 2 + r.Col3;
  r.CX3 = r.CellW / 2 + r.Col3;
  r.X4 = r.Col4 - r.Unit / 2;
  pen.SlantRight(13, r.X3, r.Y2, r.Y4);
  pen.SlantLeft(13, r.CX3, r.Y2, r.Y4);
  pen.SlantRight(13, r.CX3, r.Y2, r.Y4);
  pen.SlantLeft(13, r.X4, r.Y2, r.Y4);
}

void WriteX(StrokeRec& r, Pen& pen) {
  r.X4 = r.Unit / 2 + r.Col4;
  r.X5 = r.Col5 - r.Unit / 2;
  pen.SlantRight(45, r.X4, r.Y2, r.Y4);
  pen.SlantLeft(45, r.X5, r.Y2, r.Y4);
}

void WriteY(StrokeRec& r, Pen& pen) {
  r.X1 = r.Unit / 2 + r.Col1;
  r.X2 = r.Col2 - r.Unit / 2;
  pen.SlantRight(26, r.X1, r.Y2, r.Y4);
  pen.SlantLeft(26, r.X2, r.Y2, r.Y5);  // the long stroke runs on below the line
}

void WriteZ(StrokeRec& r, Pen& pen) {
  r.X2 = r.Unit / 2 + r.Col2;
  r.X3 = r.Col3 - r.Unit / 2;
  pen.LineRight(r.X2, r.Y2, r.X3);
  pen.SlantLeft(45, r.X3, r.Y2, r.Y4);
  pen.LineRight(r.X2, r.Y4, r.X3);
}

constexpr LetterRoutine kLetters[] = {
    WriteA, WriteB, WriteC, WriteD, WriteE, WriteF, WriteG, WriteH, WriteI,
    WriteJ, WriteK, WriteL, WriteM, WriteN, WriteO, WriteP, WriteQ, WriteR,
    WriteS, WriteT, WriteU, WriteV, WriteW, WriteX, WriteY, WriteZ,
};
static_assert(std::size(kLetters) == 26);

}  // namespace

void WriteSmallLetter(StrokeRec& rec, DrawingSurface& sheet) {
  WriteFrom(kLetters, rec, sheet);
}

}  // namespace bramlee
