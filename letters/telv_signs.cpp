// Telugu vowel signs: tiles 15 to 30 are the signs that stand at a consonant, 33 to 36 those that
// end a syllable, all but the last of these shown in a word. Signs stand above Row2 (325), beside
// the letter or hang below Row4 (475). Their measures are those of the vowels in telv.cpp.
#include "letters/telugu_shapes.h"
#include "letters/telugu_tiles.h"

namespace bramlee {
namespace {

// Parts that several signs share: a change to one changes every sign that uses it. `column` is
// the left edge of the sign's own column, which X1 becomes.

/// The first way in which the signs of i and ii are written, at X1.
void WriteFirstLoop(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1 + 125;
  pen.Arc(255, 450, +1, r.X1, r.Row2 - 62.5, 52.5);
  pen.Arc(90, 450, +1, r.X1, r.Row2 - 73, 42);
}

/// The second way, at X2.
void WriteSecondLoop(StrokeRec& r, Pen& pen) {
  r.X2 = r.Col2 + 125;
  pen.Arc(60, 120, +1, r.X2 + 11.55, r.Row2 + 50.875, 52.5);
  pen.Arc(110, 450, +1, r.X2, r.Row2 + 45.1, 42);
}

/// The sign of short u, which the long one goes on from.
void WriteSignUAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  CrownedBack(pen, r.Row3);
}

/// The sign of short vocalic r, which the long one goes on from.
void WriteSignVocalicRAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  pen.Arc(180, 540, +1, r.X1 + 133.75, r.Row4 + 37.5, 18.75);
  CrownedBack(pen, r.Row4);
}

/// The sign of short e, which the long one and that of ai go on from.
void WriteSignEAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  pen.LineRight(r.X1 + 90.625, r.Row2 - 9, r.X1 + 118.75);
  pen.Arc(-90, 90, +1, r.X1 + 118.75, r.Row2 - 28.75, 18.75);
  pen.LineLeft(r.X1 + 48.4375, r.Row2 - 47.625, r.X1 + 118.75);
}

/// The sign of short o, which the long one goes on from.
void WriteSignOAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  r.R4 = r.RowH / 1.9;  // of the two arches
  r.CX1 = r.X1 + 38 + r.R4;
  r.CY1 = r.Row2 + 5 - r.R4 / 2;
  pen.Arc(190, 0, -1, r.CX1, r.CY1, r.R4);
  pen.Arc(170, 80, -1, r.CX1 + 2 * r.R4, r.CY1, r.R4);
  pen.Arc(90, -270, -1, r.X1 + 167.5, r.Row2 + 5 - 0.904 * r.R4, 0.58 * r.R4);
}

/// The sign of short vocalic l, which the long one goes on from.
void WriteSignVocalicLAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  pen.Arc(180, 0, -1, r.X1 + 43.75, r.Row4 + 18.75, 18.75);
  pen.Arc(180, -90, -1, r.X1 + 81.25, r.Row4 + 18.75, 18.75);
  pen.Arc(90, 360, +1, r.X1 + 81.25, r.Row4 + 56.25, 18.75);
}

/// The bowl and back of the second letter in the words of am and candrabindu.
void WriteBowlInWord(const StrokeRec& r, Pen& pen) {
  pen.Arc(190, 346, +1, r.Col3 + 370, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 440, +1, r.Col3 + 328, r.Row3 + 4, 89.25);
}

/// The crest over that letter, which the pen goes over twice.
void WriteCrestInWord(StrokeRec& r, Pen& pen) {
  r.R4 = r.RowH;
  DoubleCrest(pen, r.Col3 + 320.5, r.Row2, r.R4);
}

// Each sign: its anchors, then its strokes in writing order, a line each.

void WriteHeadTick(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1 + 181.25;
  HeadTick(pen, r.X1, r.Row2 - 10, 75, kVowelTick);
}

void WriteSignAa(StrokeRec& r, Pen& pen) {
  SideHook(pen, r.Col2 + 75, r.Row2 - 10, 18.75);
}

// Both ways in which the signs of i and ii are written, side by side; ii has a tail on each.

void WriteSignI(StrokeRec& r, Pen& pen) {
  WriteFirstLoop(r, pen);
  WriteSecondLoop(r, pen);
}

void WriteSignIi(StrokeRec& r, Pen& pen) {
  WriteFirstLoop(r, pen);
  pen.Arc(270, 0, -1, r.X1, r.Row2 - 143.1, 29.4);
  WriteSecondLoop(r, pen);
  pen.Arc(270, 0, -1, r.X2, r.Row2 - 26, 29.4);
}

void WriteSignU(StrokeRec& r, Pen& pen) {
  WriteSignUAt(r.Col1, r, pen);
}

void WriteSignUu(StrokeRec& r, Pen& pen) {
  WriteSignUAt(r.Col2, r, pen);
  SideHook(pen, r.X1 + 125, r.Row1 + 75, 37.5);
}

void WriteSignVocalicR(StrokeRec& r, Pen& pen) {
  WriteSignVocalicRAt(r.Col1, r, pen);
}

void WriteSignVocalicRr(StrokeRec& r, Pen& pen) {
  WriteSignVocalicRAt(r.Col2, r, pen);
  SideHook(pen, r.X1 + 125, r.Row2 + 75, 37.5);
}

void WriteSignE(StrokeRec& r, Pen& pen) {
  WriteSignEAt(r.Col1, r, pen);
}

void WriteSignEe(StrokeRec& r, Pen& pen) {
  WriteSignEAt(r.Col2, r, pen);
  pen.Arc(270, 0, -1, r.X1 + 118.75, r.Row2 - 66.25, 18.75);
}

void WriteSignAi(StrokeRec& r, Pen& pen) {
  WriteSignEAt(r.Col3, r, pen);
  pen.Arc(270, 630, +1, r.X1 + 67.1875, r.Row2 + 178.125, 18.75);
  pen.LineRight(r.X1 + 67.1875, r.Row2 + 196.875, r.X1 + 137.5);
}

void WriteSignO(StrokeRec& r, Pen& pen) {
  WriteSignOAt(r.Col1, r, pen);
}

void WriteSignOo(StrokeRec& r, Pen& pen) {
  WriteSignOAt(r.Col2, r, pen);
  pen.Arc(270, 0, -1, r.X1 + 162.5, r.Row1 + 6.875, 13.125);
}

void WriteSignAu(StrokeRec& r, Pen& pen) {
  CrestHook(pen, r.Col3 + 100, r.Row2, 18.75);
}

void WriteSignVocalicL(StrokeRec& r, Pen& pen) {
  WriteSignVocalicLAt(r.Col1, r, pen);
}

void WriteSignVocalicLl(StrokeRec& r, Pen& pen) {
  WriteSignVocalicLAt(r.Col2, r, pen);
  r.CX1 = LastX + 28.125;  // the hook hangs on the end of the bowl
  pen.LineRight(LastX, r.Row4 + 56.25, r.CX1);
  pen.Arc(90, -270, -1, r.CX1, r.Row4 + 65.625, 9.375);
}

// The last signs of the row are shown as their letter and then in a word, which begins in Col3.

void WriteAm(StrokeRec& r, Pen& pen) {
  LetterA(pen, r.Col1);
  pen.Arc(90, 450, +1, r.Col2 + 110, r.Row3, 75);
  LetterA(pen, r.Col3);
  pen.Arc(0, 360, +1, r.Col3 + 295, r.Row3 + 37.5, 37.5);
  WriteBowlInWord(r, pen);
  WriteCrestInWord(r, pen);
  pen.Arc(190, 346, +1, r.Col3 + 445, r.Row3 + 37.5, 37.5);
  pen.Arc(335, 402, +1, r.Col3 + 380, r.Row3, 112.5);
  WriteCrestInWord(r, pen);
}

void WriteCandrabindu(StrokeRec& r, Pen& pen) {
  LetterA(pen, r.Col1);
  pen.Arc(90, 270, +1, r.Col2 + 110, r.Row3, 75);
  LetterA(pen, r.Col3);
  pen.Arc(270, 0, -1, r.Col3 + 295, r.Row3 + 37.5, 37.5);
  WriteBowlInWord(r, pen);
  WriteCrestInWord(r, pen);
  WriteCrestInWord(r, pen);
}

void WriteAh(StrokeRec& r, Pen& pen) {
  r.R4 = r.RowH;
  LetterA(pen, r.Col1);
  pen.Arc(90, 450, +1, r.Col2 + 125, r.Row3 - 37.5, 18.75);
  pen.Arc(90, 450, +1, r.Col2 + 125, r.Row3 + 37.5, 18.75);
  LetterA(pen, r.Col3);
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

constexpr TeluguTile kSigns[] = {
    {15, WriteHeadTick     }, // the tick of the a that belongs to every consonant
    {16, WriteSignAa       }, // ా
    {17, WriteSignI        }, // ి
    {18, WriteSignIi       }, // ీ
    {19, WriteSignU        }, // ు
    {20, WriteSignUu       }, // ూ
    {21, WriteSignVocalicR }, // ృ
    {22, WriteSignVocalicRr}, // ౄ
    {23, WriteSignE        }, // ె
    {24, WriteSignEe       }, // ే
    {25, WriteSignAi       }, // ై
    {26, WriteSignO        }, // ొ
    {27, WriteSignOo       }, // ో
    {28, WriteSignAu       }, // ౌ
    {29, WriteSignVocalicL }, // ౢ
    {30, WriteSignVocalicLl}, // ౣ
    {33, WriteAm           }, // అం
    {34, WriteCandrabindu  }, // అఁ
    {35, WriteAh           }, // అః
    {36, WriteVirama       }, // ్
};

}  // namespace

std::span<const TeluguTile> TeluguVowelSigns() {
  return kSigns;
}

}  // namespace bramlee
