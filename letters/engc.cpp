// English capitals: tiles 1 to 26 are A to Z. A capital stands between Y2 (150) and Y4 (350) with
// Y3 (250) as its middle line, four letters side by side, each in the cell of its own column.
#include "letters/letter_sets.h"
#include "letters/pen.h"

namespace bramlee {
namespace {

// Parts that several letters share: a change to one changes every letter that uses it.

/// The stem and upper bowl of B, P and R. The stem stands at X2 in the cell at `column`, the bowl's
/// half circle begins at X7.
void WriteStemAndBowl(double column, StrokeRec& r, Pen& pen) {
  r.X2 = r.Unit / 2 + column;
  r.X7 = r.X2 + 2 * r.Unit;
  r.Rad = r.CellW / 4;
  pen.LineDown(r.X2, r.Y2, r.Y4);
  pen.LineRight(r.X2, r.Y2, r.X7);
  r.CY2 = r.Rad + r.Y2;
  pen.Arc(90, -90, -1, r.X7, r.CY2, r.Rad);
  pen.LineLeft(r.X2, r.Y3, r.X7);
}

/// The open bow of C and G.
void WriteOpenBow(StrokeRec& r, Pen& pen) {
  r.Rad = 100;
  r.CX3 = r.Unit * 3 / 2 + r.Col3 + 100.0 / 2;
  pen.Arc(60, 300, +1, r.CX3, r.Y3, r.Rad);
}

/// Where E, F and L have their stem, X1, and the end of their bars, X6.
void LayStemAndBars(double column, StrokeRec& r) {
  r.X1 = r.Unit / 2 + column;
  r.X6 = r.X1 + r.CellW - r.Unit;
}

/// The long ring of O and Q, in the cell at `column`.
void WriteRing(double column, StrokeRec& r, Pen& pen) {
  r.X3 = r.Unit / 2 + column;
  r.X8 = column + r.CellW - r.Unit / 2;
  r.Y3 = r.Row3 - r.Unit / 2;
  r.Y8 = r.Row3 + r.Unit / 2;
  r.Rad = (r.CellW - r.Unit) / 2;
  r.CX3 = r.CellW / 2 + column;
  pen.Arc(90, 180, +1, r.CX3, r.Y3, r.Rad);
  pen.LineDown(r.X3, r.Y3, r.Y8);
  pen.Arc(180, 360, +1, r.CX3, r.Y8, r.Rad);
  pen.LineUp(r.X8, r.Y8, r.Y3);
  pen.Arc(360, 450, +1, r.CX3, r.Y3, r.Rad);
}

// Each letter: its anchors, then its strokes in writing order, a line each.

void WriteA(StrokeRec& r, Pen& pen) {
  r.X2 = r.Col1 + 2 * r.Unit;
  pen.SlantLeft(20.65, r.X2, r.Y2, r.Y4);
  pen.SlantRight(20.65, r.X2, r.Y2, r.Y4);
  r.X3 = LastX;  // both legs' registers stand 100 below the apex: the crossbar's height
  r.X8 = LastX2;
  pen.LineRight(r.X3, r.Y3, r.X8);
}

void WriteB(StrokeRec& r, Pen& pen) {
  WriteStemAndBowl(r.Col2, r, pen);
  r.CY3 = r.Rad + r.Y3;
  pen.Arc(90, -90, -1, r.X7, r.CY3, r.Rad);
  pen.LineLeft(r.X2, r.Y4, r.X7);
}

void WriteC(StrokeRec& r, Pen& pen) {
  WriteOpenBow(r, pen);
}

void WriteD(StrokeRec& r, Pen& pen) {
  r.Rad = 100;
  r.X4 = r.Unit / 2 + r.Col4;
  r.X9 = r.X4 + r.Unit;
  r.CX4 = r.X9;
  pen.LineDown(r.X4, r.Y2, r.Y4);
  pen.LineRight(r.X4, r.Y2, r.X9);
  r.StepFlag = 1;
  pen.Arc(90, -90, -1, r.CX4, r.Y3, r.Rad);
  pen.LineLeft(r.X4, r.Y4, r.X9);
}

void WriteE(StrokeRec& r, Pen& pen) {
  LayStemAndBars(r.Col1, r);
  pen.LineDown(r.X1, r.Y2, r.Y4);
  pen.LineRight(r.X1, r.Y2, r.X6);
  pen.LineRight(r.X1, r.Y3, r.X6);
  pen.LineRight(r.X1, r.Y4, r.X6);
}

void WriteF(StrokeRec& r, Pen& pen) {
  LayStemAndBars(r.Col2, r);
  pen.LineDown(r.X1, r.Y2, r.Y4);
  pen.LineRight(r.X1, r.Y2, r.X6);
  pen.LineRight(r.X1, r.Y3, r.X6);
}

void WriteG(StrokeRec& r, Pen& pen) {
  WriteOpenBow(r, pen);
  r.X8 = LastX;  // the crossbar ends where the arc really ended
  r.Y8 = LastY;
  r.X3 = r.Col3 + 2 * r.Unit;
  pen.LineRight(r.X3, r.Y3, r.X8);
  pen.LineDown(r.X8, r.Y3, r.Y8);
}

void WriteH(StrokeRec& r, Pen& pen) {
  r.X4 = r.Unit / 2 + r.Col4;
  r.X9 = r.X4 + r.CellW - r.Unit;
  pen.LineDown(r.X4, r.Y2, r.Y4);
  pen.LineRight(r.X4, r.Y3, r.X9);
  pen.LineDown(r.X9, r.Y2, r.Y4);
}

void WriteI(StrokeRec& r, Pen& pen) {
  r.X4 = r.CellW / 2 + r.Col1;
  pen.LineDown(r.X4, r.Y2, r.Y4);
}

void WriteJ(StrokeRec& r, Pen& pen) {
  r.Rad = r.Unit * 3 / 2;
  r.X3 = r.Col3 - r.Unit / 2;
  r.CX3 = r.X3 - r.Rad;
  r.Y8 = r.Unit / 2 + r.Y3;
  pen.LineDown(r.X3, r.Y2, r.Y8);
  r.StepFlag = 1;
  pen.Arc(360, 180, -1, r.CX3, r.Y8, r.Rad);
}

void WriteK(StrokeRec& r, Pen& pen) {
  r.X3 = r.Unit / 2 + r.Col3;
  r.X8 = r.X3 + r.CellW - r.Unit;
  pen.LineDown(r.X3, r.Y2, r.Y4);
  pen.SlantLeft(56, r.X8, r.Y2, r.Y3);
  pen.SlantRight(56, r.X3, r.Y3, r.Y4);
}

void WriteL(StrokeRec& r, Pen& pen) {
  LayStemAndBars(r.Col4, r);
  pen.LineDown(r.X1, r.Y2, r.Y4);
  pen.LineRight(r.X1, r.Y4, r.X6);
}

void WriteM(StrokeRec& r, Pen& pen) {
  r.X1 = r.Unit / 2 + r.Col1;
  r.X2 = r.Col2 - r.Unit / 2;
  pen.LineDown(r.X1, r.Y2, r.Y4);
  pen.SlantRight(20.5, r.X1, r.Y2, r.Y4);
  pen.SlantLeft(20.5, r.X2, r.Y2, r.Y4);
  pen.LineDown(r.X2, r.Y2, r.Y4);
}

void WriteN(StrokeRec& r, Pen& pen) {
  r.X1 = r.Unit / 2 + r.Col2;
  r.X2 = r.Col3 - r.Unit / 2;
  pen.LineDown(r.X1, r.Y2, r.Y4);
  pen.SlantRight(36.5, r.X1, r.Y2, r.Y4);
  pen.LineDown(r.X2, r.Y2, r.Y4);
}

void WriteO(StrokeRec& r, Pen& pen) {
  WriteRing(r.Col3, r, pen);
}

void WriteP(StrokeRec& r, Pen& pen) {
  WriteStemAndBowl(r.Col4, r, pen);
}

void WriteQ(StrokeRec& r, Pen& pen) {
  WriteRing(r.Col1, r, pen);
  pen.SlantRight(55, r.CX3, r.Unit + r.Row3, r.Y4);
}

void WriteR(StrokeRec& r, Pen& pen) {
  WriteStemAndBowl(r.Col2, r, pen);
  pen.SlantRight(56, r.X2, r.Y3, r.Y4);
}

void WriteS(StrokeRec& r, Pen& pen) {
  const double middle = r.CellW / 2 + r.Col3;
  const double bow = (r.CellW - r.Unit) / 2;
  const double bend = r.Unit / 2;
  pen.Arc(20, 180, +1, middle, r.Row3 - r.Unit / 2, bow);
  pen.Arc(180, 270, +1, r.Col3 + r.Unit, r.Row3 - r.Unit / 2, bend);
  pen.LineRight(r.Col3 + r.Unit, r.Row3, r.Col4 - r.Unit);
  pen.Arc(450, 370, -1, r.Col4 - r.Unit, r.Row3 + r.Unit / 2, bend);
  pen.Arc(360, 200, -1, middle, r.Row3 + r.Unit / 2, bow);
}

void WriteT(StrokeRec& r, Pen& pen) {
  const double middle = r.CellW / 2 + r.Col4;
  r.X4 = middle - 75;
  r.X9 = r.X4 + 150;
  pen.LineDown(middle, r.Y2, r.Y4);
  pen.LineRight(r.X4, r.Y2, r.X9);
}

void WriteU(StrokeRec& r, Pen& pen) {
  r.X1 = r.Unit / 2 + r.Col1;
  r.X2 = r.Col2 - r.Unit / 2;
  r.CX3 = r.CellW / 2 + r.Col1;
  r.CY3 = r.Row3 + r.Unit / 2;
  r.Rad = 75;
  pen.LineDown(r.X1, r.Y2, r.CY3);
  pen.Arc(180, 360, +1, r.CX3, r.CY3, r.Rad);
  pen.LineUp(r.X2, r.CY3, r.Y2);
}

void WriteV(StrokeRec& r, Pen& pen) {
  r.X2 = r.Unit / 2 + r.Col2;
  r.X3 = r.Col3 - r.Unit / 2;
  pen.SlantRight(20, r.X2, r.Y2, r.Y4);
  pen.SlantLeft(20, r.X3, r.Y2, r.Y4);
}

void WriteW(StrokeRec& r, Pen& pen) {
  r.X3 = r.Unit / 2 + r.Col3;
  r.CX3 = r.CellW / 2 + r.Col3;
  r.X4 = r.Col4 - r.Unit / 2;
  pen.SlantRight(9.89, r.X3, r.Y2, r.Y4);
  pen.SlantLeft(9.89, r.CX3, r.Y2, r.Y4);
  pen.SlantRight(9.89, r.CX3, r.Y2, r.Y4);
  pen.SlantLeft(9.89, r.X4, r.Y2, r.Y4);
}

void WriteX(StrokeRec& r, Pen& pen) {
  r.X4 = r.Unit / 2 + r.Col4;
  r.X5 = r.Col5 - r.Unit / 2;
  pen.SlantRight(37, r.X4, r.Y2, r.Y4);
  pen.SlantLeft(37, r.X5, r.Y2, r.Y4);
}

void WriteY(StrokeRec& r, Pen& pen) {
  r.X1 = r.Unit / 2 + r.Col1;
  r.CX1 = (r.CellW - r.Unit) / 2 + r.X1;
  r.X2 = r.Col2 - r.Unit / 2;
  pen.SlantRight(37, r.X1, r.Y2, r.Y3);
  pen.SlantLeft(37, r.X2, r.Y2, r.Y3);
  pen.LineDown(r.CX1, r.Y3, r.Y4);
}

void WriteZ(StrokeRec& r, Pen& pen) {
  r.X2 = r.Unit / 2 + r.Col2;
  r.X3 = r.Col3 - r.Unit / 2;
  pen.LineRight(r.X2, r.Y2, r.X3);
  pen.SlantLeft(37, r.X3, r.Y2, r.Y4);
  pen.LineRight(r.X2, r.Y4, r.X3);
}

constexpr LetterRoutine kLetters[] = {
    WriteA, WriteB, WriteC, WriteD, WriteE, WriteF, WriteG, WriteH, WriteI,
    WriteJ, WriteK, WriteL, WriteM, WriteN, WriteO, WriteP, WriteQ, WriteR,
    WriteS, WriteT, WriteU, WriteV, WriteW, WriteX, WriteY, WriteZ,
};
static_assert(std::size(kLetters) == 26);

}  // namespace

void WriteCapital(StrokeRec& rec, DrawingSurface& sheet) {
  WriteFrom(kLetters, rec, sheet);
}

}  // namespace bramlee
