// Telugu consonants, tiles 1 to 17 and 73: ka to nna, and kssa. Those from ta on are in
// telc_ta_to_rra.cpp, the forms that hang below another consonant in telc_below.cpp and
// telc_below_ta_to_rra.cpp. A letter fills the rows from Row2 (325) to Row4 (475), and most carry a
// HeadTick on or just above Row2.
#include "letters/letter_sets.h"
#include "letters/telugu_parts.h"
#include "letters/telugu_shapes.h"
#include "letters/telugu_tiles.h"

namespace bramlee {
namespace {

// Parts that several letters share: a change to one changes every letter that uses it. `column`
// is the left edge of the letter's own column, which X1 becomes.

/// The letter ka, and the beginning of kssa.
void WriteKaAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  r.WX1 = r.X1 + 150;
  pen.Arc(0, 270, +1, r.X1 + 125, r.Row2 + 37.5, 37.5);
  pen.Arc(90, -180, -1, r.X1 + 125, r.Row3 + 37.5, 37.5);
  HeadTick(pen, r.WX1, r.Row2 - 10, 45);
}

/// The loop and bowls that nga, ja and dza begin with.
void WriteLoopAndBowls(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  r.WX1 = r.X1 + 97.5;
  pen.Arc(180, -90, -1, r.X1 + 62.5, r.Row2 + 37.5, 37.5);
  pen.Arc(90, 360, +1, r.X1 + 62.5, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 380, +1, r.X1 + 137.5, r.Row3 + 37.5, 37.5);
}

/// The letter ja, and the beginning of dza.
void WriteJaAt(double column, StrokeRec& r, Pen& pen) {
  WriteLoopAndBowls(column, r, pen);
  pen.Arc(180, 440, +1, r.X1 + 137.5, r.Row2 + 37.5, 37.5);
}

/// The letter cha, and the beginning of tsa and chha.
void WriteChaAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  r.WX1 = r.X1 + 145;
  pen.LineRight(r.X1 + 20, r.Row4 - 100, r.X1 + 60);
  pen.Arc(100, 360, +1, r.X1 + 70, r.Row4 - 50, 50);
  pen.Arc(180, 370, +1, r.X1 + 170, r.Row4 - 50, 50);
  pen.Arc(0, 90, +1, r.X1 + 120, r.Row4 - 50, 100);
  HeadTick(pen, r.WX1, r.Row2, 52.5);
}

/// One of the ways in which ddha is written: dda's with a stroke down from between its bowls.
void WriteDdhaAt(double column, int ringEnd, StrokeRec& r, Pen& pen) {
  const EndPoint bowl = DdaAt(column, ringEnd, r, pen);
  pen.LineDown(bowl.x, bowl.y, bowl.y + 49.375);
}

// Each letter: its anchors, then its strokes in writing order, a line each. X1 is the left edge
// of the letter's own column, WX1 the place of its HeadTick or FootHook, which move it.

void WriteKa(StrokeRec& r, Pen& pen) {
  WriteKaAt(r.Col1, r, pen);
}

void WriteKha(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col2;
  pen.Arc(95, -270, -1, r.X1 + 43.75, r.Row2 + 26.25, 24.375);
  pen.Arc(110, -108, -1, r.X1 + 58.75, r.Row3 - 0.76875, 75);
  pen.Arc(270, 120, -1, r.X1 + 51.9375, r.Row3 + 33.1875, 39.375);
  const EndPoint arch = pen.Arc(130, 0, -1, r.X1 + 65.34375, r.Row3 + 40.3375, 53.625);
  pen.Arc(210, 347, +1, r.X1 + 162.84375, r.Row3 + 20.95, 48.75);
  pen.Arc(-20, 90, +1, r.X1 + 140.278625, r.Row3 + 3.73125, 75);
  pen.LineDown(arch.x, arch.y, r.Row4 + 20);
}

void WriteGa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col3;
  r.WX1 = r.X1 + 162.5;
  pen.Arc(220, 95, -1, r.X1 + 145, r.Row3 + 13.5, 90);
  pen.Arc(85, -40, -1, r.X1 + 125, r.Row3 + 13.5, 90);
  HeadTick(pen, r.WX1, r.Row2 - 10, 56.25);
}

void WriteGha(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col4;
  r.WX1 = r.X1 + 100;
  const EndPoint ring = pen.Arc(0, 360, +1, r.X1 + 45, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 346, +1, r.X1 + 120, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 420, +1, r.X1 + 78, r.Row3 + 4, 89.25);
  pen.Arc(190, 346, +1, r.X1 + 195, r.Row3 + 37.5, 37.5);
  pen.Arc(335, 402, +1, r.X1 + 130, r.Row3, 112.5);
  HeadTick(pen, r.WX1, r.Row2 - 10, 56.25);
  pen.LineDown(ring.x, ring.y, r.Row4 + 20);
}

void WriteNga(StrokeRec& r, Pen& pen) {
  WriteLoopAndBowls(r.Col1, r, pen);
  pen.LineDown(r.X1 + 135, r.Row2 + 7.5, r.Row2 + 32.5);
  pen.LineRight(r.X1 + 105, r.Row2 + 32.5, r.X1 + 165);
}

void WriteCha(StrokeRec& r, Pen& pen) {
  WriteChaAt(r.Col1, r, pen);
}

void WriteTsa(StrokeRec& r, Pen& pen) {
  WriteChaAt(r.Col2, r, pen);
  FootHook(pen, r.WX1, r.Row1, 15);  // where the tick left its X
}

void WriteChha(StrokeRec& r, Pen& pen) {
  WriteChaAt(r.Col3, r, pen);
  pen.LineDown(r.X1 + 121.25, r.Row4 - 37.5, r.Row4 + 22.5);
}

void WriteJa(StrokeRec& r, Pen& pen) {
  WriteJaAt(r.Col1, r, pen);
}

void WriteDza(StrokeRec& r, Pen& pen) {
  WriteJaAt(r.Col2, r, pen);
  FootHook(pen, r.WX1, r.Row2 - 15, 15);
}

void WriteJha(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col3;
  r.WX1 = r.X1 + 125;
  pen.Arc(90, 450, +1, r.X1 + 100, r.Row2 + 75, 75);
  HeadTick(pen, r.WX1, r.Row2, 52.5);  // the rest hangs on where it leaves its X
  const EndPoint bowl = pen.Arc(180, 346, +1, r.WX1 + 112.5, r.Row3 + 37.5, 37.5);
  pen.Arc(335, 402, +1, r.WX1 + 47.5, r.Row3, 112.5);
  pen.Arc(190, 346, +1, r.WX1 + 187.5, r.Row3 + 37.5, 37.5);
  pen.Arc(335, 402, +1, r.WX1 + 122.5, r.Row3, 112.5);
  pen.LineDown(bowl.x, r.Row4 - 22.5, r.Row4 + 37.5);
}

void WriteNya(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  const EndPoint arch = pen.Arc(200, 0, -1, r.X1 + 75, r.Row2 + 50, 50);
  pen.Arc(180, -10, -1, r.X1 + 175, r.Row2 + 50, 50);
  pen.Arc(-5, -130, -1, r.X1 + 125, r.Row3 - 25, 100);
  pen.Arc(-120, -255, -1, r.X1 + 70, r.Row3 + 33, 20);
  pen.Arc(-240, -345, -1, r.X1 + 115, r.Row4 + 25, 100);
  pen.LineDown(arch.x + 135, arch.y + 7.5, r.Row3);
  pen.LineRight(arch.x + 105, r.Row3, arch.x + 165);
}

void WriteTta(StrokeRec& r, Pen& pen) {
  TtaWithRing(90, -150, r, pen);
}

void WriteTtha(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col2;
  r.WX1 = r.X1 + 150;
  pen.Arc(90, 450, +1, r.X1 + 125, r.Row3, 75);
  HeadTick(pen, r.WX1, r.Row2, 52.5);
  pen.Arc(90, 450, +1, r.X1 + 125, r.Row3, 3.5);
}

// Three ways of writing dda, and then ddha, side by side.

void WriteDda(StrokeRec& r, Pen& pen) {
  DdaAt(r.Col1, 0, r, pen);
  DdaAt(r.Col2, 180, r, pen);
  DdaAt(r.Col3, kWholeRing, r, pen);
}

void WriteDdha(StrokeRec& r, Pen& pen) {
  WriteDdhaAt(r.Col1, 0, r, pen);
  WriteDdhaAt(r.Col2, 180, r, pen);
  WriteDdhaAt(r.Col3, kWholeRing, r, pen);
}

void WriteNna(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  pen.Arc(300, 90, -1, r.X1 + 62.5, r.Row3 + 37.5, 37.5);
  pen.Arc(270, 0, -1, r.X1 + 62.5, r.Row3 - 37.5, 37.5);
  pen.Arc(180, 30, -1, r.X1 + 137.5, r.Row3 - 37.5, 37.5);
  pen.Arc(30, -30, -1, r.X1 + 70, r.Row3, 115);
  pen.Arc(330, -30, -1, r.X1 + 137.5, r.Row3 + 37.5, 37.5);
}

void WriteKssa(StrokeRec& r, Pen& pen) {
  WriteKaAt(r.Col2, r, pen);
  pen.Arc(180, 350, +1, r.X1 + 92.5, r.Row4 + 10, 32.5);
  pen.Arc(190, 370, +1, r.X1 + 157.5, r.Row4 + 10, 32.5);
  pen.LineDown(LastX, LastY, r.Row4 + 60);
}

constexpr TeluguTile kLetters[] = {
    {1,  WriteKa  }, // క
    {2,  WriteKha }, // ఖ
    {3,  WriteGa  }, // గ
    {4,  WriteGha }, // ఘ
    {5,  WriteNga }, // ఙ
    {6,  WriteCha }, // చ
    {7,  WriteTsa }, // ౘ
    {8,  WriteChha}, // ఛ
    {9,  WriteJa  }, // జ
    {10, WriteDza }, // ౙ
    {11, WriteJha }, // ఝ
    {12, WriteNya }, // ఞ
    {13, WriteTta }, // ట
    {14, WriteTtha}, // ఠ
    {15, WriteDda }, // డ
    {16, WriteDdha}, // ఢ
    {17, WriteNna }, // ణ
    {73, WriteKssa}, // క్ష
};

}  // namespace

EndPoint DdaAt(double column, int ringEnd, StrokeRec& r, Pen& pen) {
  r.WX1 = column + 153.25;
  pen.Arc(50, 185, +1, column + 113.75, r.Row2 + 100.725, 98.75);
  const EndPoint bowl = pen.Arc(180, 355, +1, column + 64.375, r.Row2 + 100.725, 49.375);
  pen.Arc(185, 390, +1, column + 163.125, r.Row2 + 100.725, 49.375);
  if (ringEnd != 0) pen.Arc(45, ringEnd, +1, column + 185.34375, r.Row2 + 90.85, 24.6875);
  HeadTick(pen, r.WX1, r.Row2 - 2.9625, 69.125);
  return bowl;
}

void TtaWithRing(int ringFrom, int bowEnd, StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  pen.Arc(ringFrom, ringFrom + 360, +1, r.X1 + 66.5, r.Row2 + 25, 25);
  pen.Arc(-220, bowEnd, +1, r.X1 + 125, r.Row3, 102.5);
  pen.Arc(190, 360, +1, r.X1 + 76.25, r.Row3 + 28, 46.875);
  pen.Arc(190, 345, +1, r.X1 + 170, r.Row3 + 28, 46.875);
  pen.Arc(-25, 45, +1, r.X1 + 122, r.Row3, 102.5);
  pen.LineDown(r.X1 + 66.5, r.Row2 - 30, r.Row2);
}

void WriteTeluguConsonant(StrokeRec& rec, DrawingSurface& sheet) {
  WriteTelugu(
      {kLetters, TeluguConsonantsFromTa(), TeluguConsonantsBelow(), TeluguConsonantsBelowFromTa()},
      rec, sheet);
}

}  // namespace bramlee
