// Telugu vowels and vowel signs. A letter fills the rows from Row2 (325) to Row4 (475), its signs
// stand above Row2 or hang below Row4. Bowls have half a row (37.5) as radius, small loops and
// hooks a quarter (18.75), large rounds one row (75), the long rising backs one and a half
// (112.5). Every stroke is absolute: nothing but the registers joins one to another.
#include "letters/letter_sets.h"
#include "letters/pen.h"
#include "letters/telugu_shapes.h"

namespace bramlee {
namespace {

// Each letter: its anchors, then its strokes in writing order, a line each. X1 is the left edge
// of the letter's own column.

/// The letter a, in a column of its own or as the first letter of a word.
void WriteAAt(double x, const StrokeRec& r, Pen& pen) {
  pen.Arc(-180, 180, +1, x + 57, r.Row2 + 30, 30);
  pen.Arc(-195, 3, +1, x + 125, r.Row3 - 28, 100);
  pen.Arc(-2, 270, +1, x + 188, r.Row3 - 37, 37);
  pen.LineLeft(LastX - 110, LastY, LastX);
}

void WriteA(StrokeRec& r, Pen& pen) {
  WriteAAt(r.Col1, r, pen);
}

void WriteAa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col2;
  pen.Arc(-180, 180, +1, r.X1 + 57, r.Row2 + 30, 30);
  pen.Arc(-195, -45, +1, r.X1 + 130, r.Row3 - 28, 105);
  pen.Arc(-60, 90, +1, r.X1 + 190, r.Row3 + 25, 25);
  pen.Arc(270, -90, -1, r.X1 + 187.5, r.Row3 - 37.5, 37.5);
  pen.LineLeft(LastX - 110, LastY, LastX);
}

void WriteI(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col3;
  pen.Arc(200, 0, -1, r.X1 + 75, r.Row2 + 50, 50);
  pen.Arc(180, -10, -1, r.X1 + 175, r.Row2 + 50, 50);
  pen.Arc(-5, -130, -1, r.X1 + 125, r.Row3 - 25, 100);
  pen.Arc(-120, -255, -1, r.X1 + 70, r.Row3 + 33, 20);
  pen.Arc(-240, -345, -1, r.X1 + 115, r.Row4 + 25, 100);
}

void WriteIi(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col4;
  r.CX1 = r.X1 + 230, r.CY1 = r.Row3 + 30, r.CY2 = r.Row3 - 30, r.Rad = 30;
  pen.Arc(90, 450, +1, r.X1 + 110, r.Row3, 75);
  pen.SlantRight(50, r.X1 + 75, r.Row2 - 37.5, r.Row2);
  pen.SlantUpRight(50, r.X1 + 110, r.Row2, r.Row2 - 50);
  pen.LineRight(r.X1 + 20, r.Row3, r.CX1);
  TwinCurl(pen);
}

void WriteU(StrokeRec& r, Pen& pen) {
  enum { U = 5, Uu = 6 };
  r.X1 = r.LetterNo == U ? r.Col1 : r.Col2;
  pen.Arc(30, 185, +1, r.X1 + 120, r.Row3 + 25, 100);
  pen.Arc(180, 360, +1, r.X1 + 70, r.Row3 + 25, 50);
  pen.Arc(180, 370, +1, r.X1 + 170, r.Row3 + 25, 50);
  if (r.LetterNo == U) {
    pen.LineDown(r.X1 + 120, r.Row2 - 37.5, r.Row2);
    pen.LineRight(r.X1 + 10, r.Row3, r.X1 + 240);
  }
  if (r.LetterNo == Uu) {
    r.CX1 = r.X1 + 270, r.CY1 = r.Row3 + 30, r.CY2 = r.Row3 - 30, r.Rad = 30;
    pen.LineDown(r.X1 + 97.5, r.Row2 - 37.5, r.Row2);
    pen.LineDown(r.X1 + 142.5, r.Row2 - 37.5, r.Row2);
    pen.LineRight(r.X1 + 10, r.Row3, r.CX1);
    TwinCurl(pen);
  }
}

void WriteVocalicR(StrokeRec& r, Pen& pen) {
  enum { Short = 7, Long = 8 };
  r.X1 = r.LetterNo == Short ? r.Col1 : r.Col3;
  pen.Arc(180, -90, -1, r.X1 + 62.5, r.Row2 + 37.5, 37.5);
  pen.Arc(90, 360, +1, r.X1 + 62.5, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 346, +1, r.X1 + 137.5, r.Row3 + 37.5, 37.5);
  pen.Arc(335, 402, +1, r.X1 + 72.5, r.Row3, 112.5);
  pen.Arc(190, 346, +1, r.X1 + 212.5, r.Row3 + 37.5, 37.5);
  pen.Arc(335, 402, +1, r.X1 + 147.5, r.Row3, 112.5);
  pen.Arc(190, 346, +1, r.X1 + 287.5, r.Row3 + 37.5, 37.5);
  pen.Arc(335, 402, +1, r.X1 + 222.5, r.Row3, 112.5);
  if (r.LetterNo == Long) {
    r.CX1 = LastX + 112.5;  // the hook hangs on the end of the last back
    pen.LineRight(LastX, r.Row2, r.CX1);
    pen.Arc(90, -270, -1, r.CX1, r.Row2 + 37.5, 37.5);
  }
}

/// Where the crown of e and its kin has its centre: just left of the back that it closes.
double CrownX(const StrokeRec& r) {
  return r.X1 + 152.5 - r.RowH / 2.95 - 2;
}

void WriteE(StrokeRec& r, Pen& pen) {
  enum { E = 9, Ee = 10 };
  r.X1 = r.LetterNo == E ? r.Col1 : r.Col2;
  pen.Arc(0, 360, +1, r.X1 + 77.5, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 346, +1, r.X1 + 152.5, r.Row3 + 37.5, 37.5);
  pen.Arc(335, 360, +1, r.X1 + 87.5, r.Row3, 112.5);
  pen.Arc(360, 450, +1, CrownX(r), r.Row2 + 75, 75);
  if (r.LetterNo == Ee) pen.Arc(180, 90, -1, r.X1 + 125, r.Row1 + 75, 37.5);
}

void WriteAi(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col3;
  r.R4 = r.RowH / 1.9;  // of the two arches
  r.CX1 = r.X1 + 38 + r.R4;
  pen.Arc(200, 0, -1, r.CX1, r.Row2 + r.R4, r.R4);
  pen.Arc(170, 16, -1, r.CX1 + 2 * r.R4, r.Row2 + r.R4, r.R4);
  pen.Arc(380, 355, -1, CrownX(r), r.Row2 + 55, 75);
  pen.Arc(365, 335, -1, r.X1 + 87.5, r.Row3, 112.5);
  pen.Arc(346, 190, -1, r.X1 + 152.5, r.Row3 + 37.5, 37.5);
  pen.Arc(360, 0, -1, r.X1 + 77.5, r.Row3 + 37.5, 37.5);
}

void WriteO(StrokeRec& r, Pen& pen) {
  enum { O = 12, Oo = 13, Au = 14 };
  r.X1 = ColumnOf(r, r.LetterNo - O + 1);
  pen.Arc(180, -90, -1, r.X1 + 62.5, r.Row2 + 37.5, 37.5);
  pen.Arc(90, 360, +1, r.X1 + 62.5, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 380, +1, r.X1 + 137.5, r.Row3 + 37.5, 37.5);
  if (r.LetterNo == Oo) pen.Arc(180, 0, -1, r.X1 + 100, r.Row1 + 67.5, 37.5);
  if (r.LetterNo == Au) CrestHook(pen, r.X1 + 62.5, r.Row2, 18.75);
}

void WriteHeadTick(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1 + 181.25;
  HeadTick(pen, r.X1, r.Row2 - 10, 75, kVowelTick);
}

void WriteSignAa(StrokeRec& r, Pen& pen) {
  SideHook(pen, r.Col2 + 75, r.Row2 - 10, 18.75);
}

// Both ways in which the signs of i and ii are written, side by side; ii has a tail on each.
void WriteSignI(StrokeRec& r, Pen& pen) {
  enum { I = 17, Ii = 18 };
  r.X1 = r.Col1 + 125;
  r.X2 = r.Col2 + 125;
  pen.Arc(255, 450, +1, r.X1, r.Row2 - 62.5, 52.5);
  pen.Arc(90, 450, +1, r.X1, r.Row2 - 73, 42);
  if (r.LetterNo == Ii) pen.Arc(270, 0, -1, r.X1, r.Row2 - 143.1, 29.4);
  pen.Arc(60, 120, +1, r.X2 + 11.55, r.Row2 + 50.875, 52.5);
  pen.Arc(110, 450, +1, r.X2, r.Row2 + 45.1, 42);
  if (r.LetterNo == Ii) pen.Arc(270, 0, -1, r.X2, r.Row2 - 26, 29.4);
}

void WriteSignU(StrokeRec& r, Pen& pen) {
  enum { U = 19, Uu = 20 };
  r.X1 = r.LetterNo == U ? r.Col1 : r.Col2;
  pen.Arc(190, 346, +1, r.X1 + 152.5, r.Row3 + 37.5, 37.5);
  pen.Arc(335, 360, +1, r.X1 + 87.5, r.Row3, 112.5);
  pen.Arc(360, 450, +1, CrownX(r), r.Row2 + 75, 75);
  if (r.LetterNo == Uu) SideHook(pen, r.X1 + 125, r.Row1 + 75, 37.5);
}

void WriteSignVocalicR(StrokeRec& r, Pen& pen) {
  enum { Short = 21, Long = 22 };
  r.X1 = r.LetterNo == Short ? r.Col1 : r.Col2;
  pen.Arc(180, 540, +1, r.X1 + 133.75, r.Row4 + 37.5, 18.75);
  pen.Arc(190, 346, +1, r.X1 + 152.5, r.Row4 + 37.5, 37.5);
  pen.Arc(335, 360, +1, r.X1 + 87.5, r.Row4, 112.5);
  pen.Arc(360, 450, +1, CrownX(r), r.Row3 + 75, 75);
  if (r.LetterNo == Long) SideHook(pen, r.X1 + 125, r.Row2 + 75, 37.5);
}

void WriteSignE(StrokeRec& r, Pen& pen) {
  enum { E = 23, Ee = 24, Ai = 25 };
  r.X1 = ColumnOf(r, r.LetterNo - E + 1);
  pen.LineRight(r.X1 + 90.625, r.Row2 - 9, r.X1 + 118.75);
  pen.Arc(-90, 90, +1, r.X1 + 118.75, r.Row2 - 28.75, 18.75);
  pen.LineLeft(r.X1 + 48.4375, r.Row2 - 47.625, r.X1 + 118.75);
  if (r.LetterNo == Ee) pen.Arc(270, 0, -1, r.X1 + 118.75, r.Row2 - 66.25, 18.75);
  if (r.LetterNo == Ai) {
    pen.Arc(270, 630, +1, r.X1 + 67.1875, r.Row2 + 178.125, 18.75);
    pen.LineRight(r.X1 + 67.1875, r.Row2 + 196.875, r.X1 + 137.5);
  }
}

void WriteSignO(StrokeRec& r, Pen& pen) {
  enum { O = 26, Oo = 27 };
  r.X1 = r.LetterNo == O ? r.Col1 : r.Col2;
  r.R4 = r.RowH / 1.9;  // of the two arches
  r.CX1 = r.X1 + 38 + r.R4;
  r.CY1 = r.Row2 + 5 - r.R4 / 2;
  pen.Arc(190, 0, -1, r.CX1, r.CY1, r.R4);
  pen.Arc(170, 80, -1, r.CX1 + 2 * r.R4, r.CY1, r.R4);
  pen.Arc(90, -270, -1, r.X1 + 167.5, r.Row2 + 5 - 0.904 * r.R4, 0.58 * r.R4);
  if (r.LetterNo == Oo) pen.Arc(270, 0, -1, r.X1 + 162.5, r.Row1 + 6.875, 13.125);
}

void WriteSignAu(StrokeRec& r, Pen& pen) {
  CrestHook(pen, r.Col3 + 100, r.Row2, 18.75);
}

void WriteSignVocalicL(StrokeRec& r, Pen& pen) {
  enum { Short = 29, Long = 30 };
  r.X1 = r.LetterNo == Short ? r.Col1 : r.Col2;
  pen.Arc(180, 0, -1, r.X1 + 43.75, r.Row4 + 18.75, 18.75);
  pen.Arc(180, -90, -1, r.X1 + 81.25, r.Row4 + 18.75, 18.75);
  pen.Arc(90, 360, +1, r.X1 + 81.25, r.Row4 + 56.25, 18.75);
  if (r.LetterNo == Long) {
    r.CX1 = LastX + 28.125;  // the hook hangs on the end of the bowl
    pen.LineRight(LastX, r.Row4 + 56.25, r.CX1);
    pen.Arc(90, -270, -1, r.CX1, r.Row4 + 65.625, 9.375);
  }
}

void WriteVocalicL(StrokeRec& r, Pen& pen) {
  enum { Short = 31, Long = 32 };
  r.X1 = r.LetterNo == Short ? r.Col1 : r.Col2;
  pen.Arc(180, 0, -1, r.X1 + 62.5, r.Row2 + 37.5, 37.5);
  pen.Arc(180, -90, -1, r.X1 + 137.5, r.Row2 + 37.5, 37.5);
  pen.Arc(90, 360, +1, r.X1 + 137.5, r.Row3 + 37.5, 37.5);
  if (r.LetterNo == Long) {
    r.CX1 = LastX + 60;  // the hook hangs on the end of the bowl
    pen.LineRight(LastX, r.Row3 + 37.5, r.CX1);
    pen.Arc(90, -270, -1, r.CX1, r.Row3 + 56.25, 18.75);
  }
}

// The last signs of the row are shown as their letter and then in a word, which begins in Col3.

void WriteAm(StrokeRec& r, Pen& pen) {
  enum { Am = 33, Candrabindu = 34 };
  r.X3 = r.Col3 + 320.5;
  WriteAAt(r.Col1, r, pen);
  pen.Arc(90, r.LetterNo == Am ? 450 : 270, +1, r.Col2 + 110, r.Row3, 75);
  WriteAAt(r.Col3, r, pen);
  if (r.LetterNo == Am) pen.Arc(0, 360, +1, r.Col3 + 295, r.Row3 + 37.5, 37.5);
  if (r.LetterNo == Candrabindu) pen.Arc(270, 0, -1, r.Col3 + 295, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 346, +1, r.Col3 + 370, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 440, +1, r.Col3 + 328, r.Row3 + 4, 89.25);
  r.R4 = r.RowH;
  DoubleCrest(pen, r.X3, r.Row2, r.R4);
  if (r.LetterNo == Am) {
    pen.Arc(190, 346, +1, r.Col3 + 445, r.Row3 + 37.5, 37.5);
    pen.Arc(335, 402, +1, r.Col3 + 380, r.Row3, 112.5);
  }
  r.R4 = r.RowH;
  DoubleCrest(pen, r.X3, r.Row2, r.R4);
}

void WriteAh(StrokeRec& r, Pen& pen) {
  r.R4 = r.RowH;
  WriteAAt(r.Col1, r, pen);
  pen.Arc(90, 450, +1, r.Col2 + 125, r.Row3 - 37.5, 18.75);
  pen.Arc(90, 450, +1, r.Col2 + 125, r.Row3 + 37.5, 18.75);
  WriteAAt(r.Col3, r, pen);
  pen.Arc(0, 360, +1, r.Col3 + 295, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 346, +1, r.Col3 + 370, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 435, +1, r.Col3 + 328, r.Row3 + 4, 89.25);
  SideHook(pen, LastX, r.Row2 - 10, 18.75);
  DoubleCrest(pen, r.Col3 + 301.75, r.Row2, r.R4);
}

void WriteVirama(StrokeRec& r, Pen& pen) {
  r.R4 = r.RowH;
  DoubleCrest(pen, r.Col1 + 100, r.Row2, r.R4);
}

// Letters that differ by a stroke or a column share a routine.
constexpr Letter kLetters[] = {
    WriteA,             // 1 అ
    WriteAa,            // 2 ఆ
    WriteI,             // 3 ఇ
    WriteIi,            // 4 ఈ
    WriteU,             // 5 ఉ
    WriteU,             // 6 ఊ
    WriteVocalicR,      // 7 ఋ
    WriteVocalicR,      // 8 ౠ
    WriteE,             // 9 ఎ
    WriteE,             // 10 ఏ
    WriteAi,            // 11 ఐ
    WriteO,             // 12 ఒ
    WriteO,             // 13 ఓ
    WriteO,             // 14 ఔ
    WriteHeadTick,      // 15 the tick of the a that a consonant bears
    WriteSignAa,        // 16 ా
    WriteSignI,         // 17 ి
    WriteSignI,         // 18 ీ
    WriteSignU,         // 19 ు
    WriteSignU,         // 20 ూ
    WriteSignVocalicR,  // 21 ృ
    WriteSignVocalicR,  // 22 ౄ
    WriteSignE,         // 23 ె
    WriteSignE,         // 24 ే
    WriteSignE,         // 25 ై
    WriteSignO,         // 26 ొ
    WriteSignO,         // 27 ో
    WriteSignAu,        // 28 ౌ
    WriteSignVocalicL,  // 29 ౢ
    WriteSignVocalicL,  // 30 ౣ
    WriteVocalicL,      // 31 ఌ
    WriteVocalicL,      // 32 ౡ
    WriteAm,            // 33 అం
    WriteAm,            // 34 అఁ
    WriteAh,            // 35 అః
    WriteVirama,        // 36 ్
};
static_assert(std::size(kLetters) == 36);

}  // namespace

void WriteTeluguVowel(StrokeRec& rec, DrawingSurface& sheet) {
  WriteFrom(kLetters, rec, sheet);
}

}  // namespace bramlee
