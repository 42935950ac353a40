// English letters as in the book: the shapes of the given ones in the order and the directions that
// are taught, and S and s of two round bows.
#include "letters/book_forms.h"

namespace bramlee {
namespace {

// Parts that several letters share: a change to one changes every letter that uses it.

/// The round of a, d, g and q from its upper right, where the hand begins it, and the stem at its
/// right side.
void WriteRoundAndStem(double centreX, double top, double foot, StrokeRec& r, Pen& pen) {
  r.CX1 = centreX;
  pen.Arc(45, 405, +1, r.CX1, r.Row3, r.Rad);
  pen.LineDown(r.CX1 + r.Rad, top, foot);
}

/// The dot of i and j over the stem at `x`.
void WriteDot(double x, StrokeRec& r, Pen& pen) {
  r.Y6 = r.Row2 - r.Unit / 1.2;
  pen.LineDown(x, r.Y6, r.Unit / 5 + r.Y6);
}

/// S about `middle` of two bows that meet near Row3, the lower one larger; it is four times
/// `radius` high.
void WriteBows(double middle, double radius, StrokeRec& r, Pen& pen) {
  const double upper = 0.94 * radius;
  const double lower = 1.06 * radius;
  pen.Arc(20, 270, +1, middle, r.Row3 - 2 * radius + upper, upper);
  pen.Arc(90, -160, -1, middle, r.Row3 + 2 * radius - lower, lower);
}

// Each letter: its anchors, then its strokes in writing order, a line each.

void WriteCapitalH(StrokeRec& r, Pen& pen) {
  r.X4 = r.Unit / 2 + r.Col4;
  r.X9 = r.X4 + r.CellW - r.Unit;
  pen.LineDown(r.X4, r.Y2, r.Y4);
  pen.LineDown(r.X9, r.Y2, r.Y4);
  pen.LineRight(r.X4, r.Y3, r.X9);
}

void WriteCapitalS(StrokeRec& r, Pen& pen) {
  WriteBows(r.CellW / 2 + r.Col3, r.Unit, r, pen);
}

void WriteA(StrokeRec& r, Pen& pen) {
  WriteRoundAndStem(r.Unit / 2 + r.Col1 + r.Rad, r.Y2, r.Y4, r, pen);
}

void WriteD(StrokeRec& r, Pen& pen) {
  WriteRoundAndStem(r.Unit / 2 + r.Col4 + r.Rad, r.Y1, r.Y4, r, pen);
}

void WriteG(StrokeRec& r, Pen& pen) {
  WriteRoundAndStem(r.Unit / 2 + r.Col3 + r.Rad, r.Y2, r.Y4, r, pen);
  pen.Arc(5, -160, -1, r.CX1, r.Row4, r.Rad);
}

void WriteI(StrokeRec& r, Pen& pen) {
  r.X1 = r.CellW / 2 + r.Col1;
  pen.LineDown(r.X1, r.Y2, r.Y4);
  WriteDot(r.X1, r, pen);
}

void WriteJ(StrokeRec& r, Pen& pen) {
  r.Rad = 37.5;
  r.X3 = r.CellW / 2 + r.Col2;
  pen.LineDown(r.X3, r.Y2, r.Y4);
  pen.Arc(360, 180, -1, r.X3 - r.Rad, r.Y4, r.Rad);
  WriteDot(r.X3, r, pen);
}

void WriteQ(StrokeRec& r, Pen& pen) {
  WriteRoundAndStem(r.CellW / 2 + r.Col1, r.Y2, r.Y5, r, pen);
}

void WriteS(StrokeRec& r, Pen& pen) {
  WriteBows(r.CellW / 2 + r.Col3, r.Rad / 2, r, pen);
}

constexpr BookForm kCapitals[] = {
    {8,  WriteCapitalH}, // H
    {19, WriteCapitalS}, // S
};

constexpr BookForm kSmallLetters[] = {
    {1,  WriteA}, // a
    {4,  WriteD}, // d
    {7,  WriteG}, // g
    {9,  WriteI}, // i
    {10, WriteJ}, // j
    {17, WriteQ}, // q
    {19, WriteS}, // s
};

}  // namespace

std::span<const BookForm> CapitalsInTheBook() {
  return kCapitals;
}

std::span<const BookForm> SmallLettersInTheBook() {
  return kSmallLetters;
}

}  // namespace bramlee
