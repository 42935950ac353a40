// Telugu vowels: tiles 1 to 14, 31 and 32; their signs are in telv_signs.cpp. A letter fills the
// rows from Row2 (325) to Row4 (475). Bowls have half a row (37.5) as radius, small loops and hooks
// a quarter (18.75), large rounds one row (75), the long rising backs one and a half (112.5). Every
// stroke is absolute: nothing but the registers joins one to another.
#include "letters/letter_sets.h"
#include "letters/telugu_parts.h"
#include "letters/telugu_shapes.h"
#include "letters/telugu_tiles.h"

namespace bramlee {
namespace {

// Parts that several letters share: a change to one changes every letter that uses it. `column`
// is the left edge of the letter's own column, which X1 becomes.

/// Short vocalic r, which the long one goes on from.
void WriteVocalicRAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  pen.Arc(180, -90, -1, r.X1 + 62.5, r.Row2 + 37.5, 37.5);
  pen.Arc(90, 360, +1, r.X1 + 62.5, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 346, +1, r.X1 + 137.5, r.Row3 + 37.5, 37.5);
  pen.Arc(335, 402, +1, r.X1 + 72.5, r.Row3, 112.5);
  pen.Arc(190, 346, +1, r.X1 + 212.5, r.Row3 + 37.5, 37.5);
  pen.Arc(335, 402, +1, r.X1 + 147.5, r.Row3, 112.5);
  pen.Arc(190, 346, +1, r.X1 + 287.5, r.Row3 + 37.5, 37.5);
  pen.Arc(335, 402, +1, r.X1 + 222.5, r.Row3, 112.5);
}

/// Short e, which the long one goes on from.
void WriteEAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  pen.Arc(0, 360, +1, r.X1 + 77.5, r.Row3 + 37.5, 37.5);
  CrownedBack(pen, r.Row3);
}

/// Short o, which the long one and au go on from.
void WriteOAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  pen.Arc(180, -90, -1, r.X1 + 62.5, r.Row2 + 37.5, 37.5);
  pen.Arc(90, 360, +1, r.X1 + 62.5, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 380, +1, r.X1 + 137.5, r.Row3 + 37.5, 37.5);
}

/// Short vocalic l, which the long one goes on from.
void WriteVocalicLAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  pen.Arc(180, 0, -1, r.X1 + 62.5, r.Row2 + 37.5, 37.5);
  pen.Arc(180, -90, -1, r.X1 + 137.5, r.Row2 + 37.5, 37.5);
  pen.Arc(90, 360, +1, r.X1 + 137.5, r.Row3 + 37.5, 37.5);
}

// Each letter: its anchors, then its strokes in writing order, a line each. X1 is the left edge
// of the letter's own column.

void WriteA(StrokeRec& r, Pen& pen) {
  LetterA(pen, r.Col1);
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
  BowlsOfU(r.Col1, r, pen);
  RestOfU(r, pen);
}

void WriteUu(StrokeRec& r, Pen& pen) {
  BowlsOfU(r.Col2, r, pen);
  RestOfUu(r, pen);
}

void WriteVocalicR(StrokeRec& r, Pen& pen) {
  WriteVocalicRAt(r.Col1, r, pen);
}

void WriteVocalicRr(StrokeRec& r, Pen& pen) {
  WriteVocalicRAt(r.Col3, r, pen);
  r.CX1 = LastX + 112.5;  // the hook hangs on the end of the last back
  pen.LineRight(LastX, r.Row2, r.CX1);
  pen.Arc(90, -270, -1, r.CX1, r.Row2 + 37.5, 37.5);
}

void WriteE(StrokeRec& r, Pen& pen) {
  WriteEAt(r.Col1, r, pen);
}

void WriteEe(StrokeRec& r, Pen& pen) {
  WriteEAt(r.Col2, r, pen);
  pen.Arc(180, 90, -1, r.X1 + 125, r.Row1 + 75, 37.5);
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
  WriteOAt(r.Col1, r, pen);
}

void WriteOo(StrokeRec& r, Pen& pen) {
  WriteOAt(r.Col2, r, pen);
  pen.Arc(180, 0, -1, r.X1 + 100, r.Row1 + 67.5, 37.5);
}

void WriteAu(StrokeRec& r, Pen& pen) {
  WriteOAt(r.Col3, r, pen);
  CrestHook(pen, r.X1 + 62.5, r.Row2, 18.75);
}

void WriteVocalicL(StrokeRec& r, Pen& pen) {
  WriteVocalicLAt(r.Col1, r, pen);
}

void WriteVocalicLl(StrokeRec& r, Pen& pen) {
  WriteVocalicLAt(r.Col2, r, pen);
  r.CX1 = LastX + 60;  // the hook hangs on the end of the bowl
  pen.LineRight(LastX, r.Row3 + 37.5, r.CX1);
  pen.Arc(90, -270, -1, r.CX1, r.Row3 + 56.25, 18.75);
}

constexpr TeluguTile kVowels[] = {
    {1,  WriteA        }, // అ
    {2,  WriteAa       }, // ఆ
    {3,  WriteI        }, // ఇ
    {4,  WriteIi       }, // ఈ
    {5,  WriteU        }, // ఉ
    {6,  WriteUu       }, // ఊ
    {7,  WriteVocalicR }, // ఋ
    {8,  WriteVocalicRr}, // ౠ
    {9,  WriteE        }, // ఎ
    {10, WriteEe       }, // ఏ
    {11, WriteAi       }, // ఐ
    {12, WriteO        }, // ఒ
    {13, WriteOo       }, // ఓ
    {14, WriteAu       }, // ఔ
    {31, WriteVocalicL }, // ఌ
    {32, WriteVocalicLl}, // ౡ
};

}  // namespace

void BowlsOfU(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  pen.Arc(30, 185, +1, r.X1 + 120, r.Row3 + 25, 100);
  pen.Arc(180, 360, +1, r.X1 + 70, r.Row3 + 25, 50);
  pen.Arc(180, 370, +1, r.X1 + 170, r.Row3 + 25, 50);
}

void RestOfU(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 120, r.Row2 - 37.5, r.Row2);
  pen.LineRight(r.X1 + 10, r.Row3, r.X1 + 240);
}

void RestOfUu(StrokeRec& r, Pen& pen) {
  r.CX1 = r.X1 + 270, r.CY1 = r.Row3 + 30, r.CY2 = r.Row3 - 30, r.Rad = 30;
  pen.LineDown(r.X1 + 97.5, r.Row2 - 37.5, r.Row2);
  pen.LineDown(r.X1 + 142.5, r.Row2 - 37.5, r.Row2);
  pen.LineRight(r.X1 + 10, r.Row3, r.CX1);
  TwinCurl(pen);
}

void WriteTeluguVowel(StrokeRec& rec, DrawingSurface& sheet) {
  WriteTelugu({kVowels, TeluguVowelSigns()}, rec, sheet);
}

}  // namespace bramlee
