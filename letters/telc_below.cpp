// The forms in which Telugu consonants hang below another consonant, tiles 18 to 34: those of ka to
// nna. The rest are in telc_below_ta_to_rra.cpp. They stand around and under Row4 (475), most of
// them half as large as the letter itself, and have no HeadTick.
#include "letters/telugu_parts.h"
#include "letters/telugu_shapes.h"
#include "letters/telugu_tiles.h"

namespace bramlee {
namespace {

// Parts that several forms share: a change to one changes every form that uses it. `column` is
// the left edge of the form's own column.

/// The loop and bowls that nga, ja and dza begin with. X1 is the middle of the left loop and X2 of
/// the right one, Y1 of both; Rad is their radius.
void WriteLoopAndBowls(StrokeRec& r, Pen& pen) {
  r.X2 = r.X1 + 2 * r.Rad;
  pen.Arc(180, -90, -1, r.X1, r.Y1, r.Rad);
  r.Y2 = LastY + r.Rad;
  pen.Arc(90, 360, +1, LastX, r.Y2, r.Rad);
  pen.Arc(190, 380, +1, r.X2, r.Y2, r.Rad);
}

/// The form of ja, and the beginning of that of dza.
void WriteJaAt(double column, StrokeRec& r, Pen& pen) {
  r.Rad = 11.25;
  r.X1 = column + 111.25;
  r.Y1 = r.Row4 + 42.75;
  WriteLoopAndBowls(r, pen);
  pen.Arc(180, 440, +1, r.X2, r.Y1, r.Rad);
}

/// The form of cha, and the beginning of those of tsa and chha.
void WriteChaAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  pen.LineRight(r.X1 + 118.5, r.Row4 + 25.05, r.X1 + 138.6);
  pen.Arc(100, 360, +1, r.X1 + 138.6, r.Row4 + 45.15, 20.1);
  pen.Arc(180, 370, +1, r.X1 + 178.8, r.Row4 + 45.15, 20.1);
  pen.Arc(0, 90, +1, r.X1 + 139.8, r.Row4 + 45.15, 60);
}

/// The form of dda about its middle, and the beginning of that of ddha; returns the place between
/// its bowls.
EndPoint WriteDdaAt(double middle, StrokeRec& r, Pen& pen) {
  r.X1 = middle;
  pen.Arc(40, 185, +1, r.X1, r.Row4 + 46.575, 37.575);
  const EndPoint bowl = pen.Arc(180, 360, +1, r.X1 - 18.7875, r.Row4 + 46.575, 18.7875);
  pen.Arc(180, 370, +1, r.X1 + 18.7875, r.Row4 + 46.575, 18.7875);
  return bowl;
}

// Each form: its anchors, then its strokes in writing order, a line each. X1 is the left edge of
// the form's own column where nothing else is said. Where a later stroke starts from the end of
// an earlier one, that end is kept by name.

void WriteKa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  pen.Arc(180, -90, -1, r.X1 + 125, r.Row4 - 27, 25);
  pen.Arc(-270, 45, +1, r.X1 + 125, r.Row4 + 30, 30);
  pen.LineRight(LastX, LastY, r.X1 + 225);
}

void WriteKha(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col2;
  pen.Arc(95, -270, -1, r.X1 + 82.5, r.Row4 + 22.5, 10.5);
  pen.Arc(110, -108, -1, LastX + 6.6, LastY + 33, 33);
  pen.Arc(270, 120, -1, LastX, LastY - 15, 15);
  const EndPoint arch = pen.Arc(130, 0, -1, LastX + 12, LastY + 21.6, 24);
  pen.Arc(210, 347, +1, LastX + 26.4, LastY - 14.4, 24);
  pen.Arc(-20, 75, +1, LastX - 39, LastY - 7.8, 39);
  pen.LineDown(arch.x + 6, arch.y, arch.y + 12);
}

void WriteGa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col3;
  pen.Arc(220, 98, -1, r.X1 + 137.5, r.Row4 + 37.5, 37.5);
  pen.Arc(90, -40, -1, r.X1 + 137.5, r.Row4 + 37.5, 37.5);
}

void WriteGha(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col4;
  const EndPoint ring = pen.Arc(0, 360, +1, r.X1 + 70, r.Row4 + 43.75, 18.75);
  pen.Arc(190, 346, +1, r.X1 + 107.5, r.Row4 + 43.75, 18.75);
  pen.Arc(332, 410, +1, LastX - 31.875, LastY - 18.75, 37.5);
  pen.Arc(190, 346, +1, r.X1 + 145, r.Row4 + 43.75, 18.75);
  pen.Arc(332, 410, +1, LastX - 31.875, LastY - 18.75, 37.5);
  pen.LineDown(ring.x, ring.y, r.Row5 - 2.625);
}

void WriteNga(StrokeRec& r, Pen& pen) {
  r.Rad = 18.75;
  r.X1 = r.Col1 + 43.75;
  r.Y1 = r.Row4 + r.Rad;
  WriteLoopAndBowls(r, pen);
  pen.LineDown(r.X2, r.Row4, r.Y1);
  pen.LineRight(r.X2 - r.Rad, r.Y1, r.X2 + r.Rad);
}

void WriteCha(StrokeRec& r, Pen& pen) {
  WriteChaAt(r.Col1, r, pen);
}

void WriteTsa(StrokeRec& r, Pen& pen) {
  WriteChaAt(r.Col2, r, pen);
  r.WX1 = r.X1 + 138.6;
  FootHook(pen, r.WX1, r.Row4 - 30, 15);
}

void WriteChha(StrokeRec& r, Pen& pen) {
  WriteChaAt(r.Col3, r, pen);
  pen.LineDown(r.X1 + 159.9, r.Row4 + 45.15, r.Row4 + 67.65);
}

void WriteJa(StrokeRec& r, Pen& pen) {
  WriteJaAt(r.Col1, r, pen);
}

void WriteDza(StrokeRec& r, Pen& pen) {
  WriteJaAt(r.Col2, r, pen);
  r.WX1 = r.X1 + 3.375;
  FootHook(pen, r.WX1, r.Row4 + 20.7, 6.75);
}

void WriteJha(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col3;
  pen.Arc(-25, 335, +1, r.X1 + 90, r.Row4 + 37.5, 30);
  const EndPoint bowl = pen.Arc(180, 346, +1, r.X1 + 135, r.Row4 + 52.5, 15);
  pen.Arc(335, 420, +1, r.X1 + 117, bowl.y - 14.52, 36.3);
  pen.Arc(190, 346, +1, r.X1 + 165, r.Row4 + 52.5, 15);
  pen.Arc(335, 420, +1, r.X1 + 147, bowl.y - 14.52, 36.3);
  pen.LineDown(bowl.x + 2, bowl.y, bowl.y + 20);
}

void WriteNya(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  pen.Arc(200, 5, -1, r.X1 + 100.125, r.Row4 + 25.125, 25.125);
  pen.Arc(175, -10, -1, r.X1 + 150.375, r.Row4 + 25.125, 25.125);
  pen.Arc(-5, -130, -1, r.X1 + 125.125, r.Row4 + 22.625, 50);
  pen.Arc(-120, -255, -1, r.X1 + 100.125, r.Row4 + 53.125, 10);
  pen.Arc(-240, -345, -1, r.X1 + 125.125, r.Row4 + 85.125, 50);
  pen.LineDown(r.X1 + 191.625, r.Row4 + 17.625, r.Row4 + 32.625);
  pen.LineRight(r.X1 + 182.25, r.Row4 + 32.625, r.X1 + 204.75);
}

void WriteTta(StrokeRec& r, Pen& pen) {
  BelowTtaWithRing(90, r, pen);
}

void WriteTtha(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col2;
  pen.Arc(90, 450, +1, r.X1 + 125, r.Row4 + 30, 18.75);
  pen.Arc(90, 450, +1, r.X1 + 125, r.Row4 + 30, 1.875);
}

void WriteDda(StrokeRec& r, Pen& pen) {
  WriteDdaAt(r.Col3 + 137.325, r, pen);
}

void WriteDdha(StrokeRec& r, Pen& pen) {
  const EndPoint bowl = WriteDdaAt(r.Col4 + 112.575, r, pen);
  pen.LineDown(bowl.x, bowl.y, bowl.y + 25);
}

void WriteNna(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  pen.Arc(300, 90, -1, r.X1 + 105, r.Row4 + 45, 15);
  pen.Arc(270, 0, -1, r.X1 + 105, r.Row4 + 15, 15);
  pen.Arc(180, 30, -1, r.X1 + 135, r.Row4 + 15, 15);
  pen.Arc(30, -30, -1, r.X1 + 119.4, r.Row4 + 29.88, 36);
  pen.Arc(330, -30, -1, r.X1 + 135, r.Row4 + 45, 15);
}

constexpr TeluguTile kForms[] = {
    {18, WriteKa  }, // ్క
    {19, WriteKha }, // ్ఖ
    {20, WriteGa  }, // ్గ
    {21, WriteGha }, // ్ఘ
    {22, WriteNga }, // ్ఙ
    {23, WriteCha }, // ్చ
    {24, WriteTsa }, // ్ౘ
    {25, WriteChha}, // ్ఛ
    {26, WriteJa  }, // ్జ
    {27, WriteDza }, // ్ౙ
    {28, WriteJha }, // ్ఝ
    {29, WriteNya }, // ్ఞ
    {30, WriteTta }, // ్ట
    {31, WriteTtha}, // ్ఠ
    {32, WriteDda }, // ్డ
    {33, WriteDdha}, // ్ఢ
    {34, WriteNna }, // ్ణ
};

}  // namespace

void BelowTtaWithRing(int ringFrom, StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  pen.Arc(ringFrom, ringFrom + 360, +1, r.X1 + 91.5, r.Row4 + 23.75, 12.5);
  pen.Arc(-220, -150, +1, r.X1 + 108.375, r.Row5 - 33.75, 37.5);
  pen.Arc(190, 360, +1, r.X1 + 97.125, r.Row5 - 23.90625, 23.4375);
  pen.Arc(190, 345, +1, r.X1 + 144.234375, r.Row5 - 24.375, 23.4375);
  pen.Arc(-25, 50, +1, r.X1 + 133.5, r.Row4 + 42.5, 37.5);
}

std::span<const TeluguTile> TeluguConsonantsBelow() {
  return kForms;
}

}  // namespace bramlee
