// The forms in which Telugu consonants hang below another consonant, tiles 52 to 68, 70, 72 and 75:
// those of ta to rra. The first ones are in telc_below.cpp, with what holds for all of them.
#include "letters/telugu_parts.h"
#include "letters/telugu_shapes.h"
#include "letters/telugu_tiles.h"

namespace bramlee {
namespace {

// Parts that several forms share: a change to one changes every form that uses it. `column` is
// the left edge of the form's own column.

/// The form of da, and the beginning of those of tha and dha; returns the place between its bowls.
EndPoint WriteDaAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  pen.Arc(90, 185, +1, r.X1 + 120.625, r.Row4 + 38.125, 35);
  const EndPoint bowl = pen.Arc(180, 360, +1, r.X1 + 103.125, r.Row4 + 38.125, 17.5);
  pen.Arc(180, 370, +1, r.X1 + 138.125, r.Row4 + 38.125, 17.5);
  pen.Arc(0, 90, +1, r.X1 + 120.625, r.Row4 + 38.125, 35);
  return bowl;
}

/// The ring of pa, pha and ha about (X1, Y1); returns the place where it closes.
EndPoint WriteRing(StrokeRec& r, Pen& pen) {
  return pen.Arc(0, 360, +1, r.X1, r.Y1, 18.75);
}

/// The bowl of pa, pha, sa and ha beside the ring.
void WriteBowl(StrokeRec& r, Pen& pen) {
  pen.Arc(190, 346, +1, r.X1 + 37.5, r.Y1, 18.75);
}

/// The back of pa, pha and sa over that bowl.
void WriteBack(StrokeRec& r, Pen& pen) {
  pen.Arc(332, 435, +1, r.X1 + 3.75, r.Y1 - 24, 60);
}

/// The form of pa, and the beginning of that of pha; returns the place where the ring closes.
EndPoint WritePaAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column + 157.5;
  r.Y1 = r.Row4 + 37.5;
  const EndPoint ring = WriteRing(r, pen);
  WriteBowl(r, pen);
  WriteBack(r, pen);
  return ring;
}

/// The form of ba, and the beginning of that of bha; returns the place between its bowls.
EndPoint WriteBaAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  pen.Arc(180, -90, -1, r.X1 + 191.875, r.Row4 + 3.75, 18.75);
  const EndPoint bowl = pen.Arc(90, 360, +1, r.X1 + 191.875, r.Row4 + 41.25, 18.75);
  pen.Arc(190, 346, +1, r.X1 + 229.375, r.Row4 + 41.25, 18.75);
  pen.Arc(332, 435, +1, r.X1 + 191.875, r.Row4 + 22.5, 60);
  return bowl;
}

// Each form: its anchors, then its strokes in writing order, a line each. X1 is the left edge of
// the form's own column where nothing else is said.

void WriteTa(StrokeRec& r, Pen& pen) {
  r.WX1 = r.Col1 + 130;
  FootHook(pen, r.WX1, r.Row4 + 48, 20);
}

void WriteTha(StrokeRec& r, Pen& pen) {
  const EndPoint bowl = WriteDaAt(r.Col2, r, pen);
  pen.Arc(0, 90, +1, bowl.x, bowl.y - 13.78125, 2.75625);
  pen.LineDown(bowl.x, bowl.y, bowl.y + 25);
}

void WriteDa(StrokeRec& r, Pen& pen) {
  WriteDaAt(r.Col3, r, pen);
}

void WriteDha(StrokeRec& r, Pen& pen) {
  const EndPoint bowl = WriteDaAt(r.Col4, r, pen);
  pen.LineDown(bowl.x, bowl.y, bowl.y + 25);
}

// Two ways of writing na, side by side.
void WriteNa(StrokeRec& r, Pen& pen) {
  const EndPoint first = pen.Arc(95, -90, -1, r.Col1 + 153, r.Row4 + 7.5, 33.75);
  pen.Arc(260, 190, -1, first.x, first.y - 9, 9);
  pen.Arc(180, 0, -1, first.x + 8.46, first.y - 10.62, 18);
  pen.Arc(180, 350, +1, first.x + 45, first.y - 18, 18);
  const EndPoint second = pen.Arc(70, -50, -1, r.Col2 + 146.25, r.Row4 - 11.25, 56.25);
  pen.Arc(310, 10, -1, second.x - 9.45, second.y - 10.575, 13.5);
  pen.Arc(225, 315, +1, second.x + 32.4, second.y - 34.2, 36);
}

// Of pa, pha, sa and ha X1 is the middle of the ring, Y1 of ring and bowl.

void WritePa(StrokeRec& r, Pen& pen) {
  WritePaAt(r.Col1, r, pen);
}

void WritePha(StrokeRec& r, Pen& pen) {
  const EndPoint ring = WritePaAt(r.Col2, r, pen);
  pen.LineDown(ring.x, ring.y, ring.y + 25);
}

void WriteBa(StrokeRec& r, Pen& pen) {
  WriteBaAt(r.Col3, r, pen);
}

void WriteBha(StrokeRec& r, Pen& pen) {
  const EndPoint bowl = WriteBaAt(r.Col4, r, pen);
  pen.LineDown(bowl.x, bowl.y, bowl.y + 28.125);
}

// Two ways of writing ma, side by side.
void WriteMa(StrokeRec& r, Pen& pen) {
  pen.LineRight(r.Col1 + 105, r.Row4 + 13.125, r.Col1 + 210);
  pen.Arc(90, -270, -1, r.Col1 + 210, r.Row4 + 39.375, 26.25);
  pen.Arc(-90, 180, +1, r.Col1 + 210, r.Row4 - 13.125, 26.25);
  pen.Arc(180, -90, -1, r.Col2 + 183.75, r.Row4 - 39.375, 26.25);
  pen.Arc(90, 450, +1, r.Col2 + 183.75, r.Row4 + 13.125, 26.25);
  pen.Arc(90, 360, +1, r.Col2 + 183.75, r.Row4 + 24.9375, 39.375);
}

// Two ways of writing ya, side by side.
void WriteYa(StrokeRec& r, Pen& pen) {
  pen.LineRight(r.Col1 + 99, r.Row4 + 9, r.Col1 + 174);
  pen.Arc(140, 450, +1, r.Col1 + 195, r.Row4 + 30, 30);
  pen.Arc(270, 0, -1, r.Col1 + 204, r.Row4 - 21.75, 22.5);
  pen.Arc(180, 90, -1, r.Col2 + 120.6, r.Row4 + 22.2, 12);
  pen.Arc(90, -90, -1, r.Col2 + 126, r.Row4 + 20.25, 10.5);
  pen.Arc(90, 210, +1, LastX, LastY + 16.5, 15);
  pen.Arc(210, 360, +1, LastX + 27, LastY - 12, 30);
  pen.Arc(0, 63, +1, LastX - 39, LastY, 39);
  pen.Arc(235, 180, -1, LastX + 21, LastY - 37.8, 42);
  pen.Arc(180, 0, -1, LastX + 15, LastY + 1.5, 15);
}

// Two ways of writing ra, side by side.
void WriteRa(StrokeRec& r, Pen& pen) {
  BowlOfRaBelow(r, pen);
  pen.LineDown(r.Col1 + 288, r.Row4 - 33, r.Row4 - 6.3);
  pen.Arc(180, 270, +1, r.Col1 + 318, r.Row4 - 3, 30);
  pen.LineRight(r.Col1 + 318, r.Row4 + 27, r.Col1 + 378);
}

void WriteLa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col3;
  r.Y1 = r.Col3 - 75;  // 525: the arches' height is taken from the column
  pen.Arc(200, 0, -1, r.X1 + 107.625, r.Y1, 25.125);
  pen.Arc(180, -10, -1, r.X1 + 157.875, r.Y1, 25.125);
}

void WriteVa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col4;
  pen.Arc(0, 360, +1, r.X1 + 176.25, r.Row4 + 37.5, 18.75);
  pen.Arc(190, 346, +1, r.X1 + 213.75, r.Row4 + 37.5, 18.75);
  pen.Arc(325, 450, +1, r.X1 + 198, r.Row4 + 19.125, 41.25);
  pen.Arc(270, 0, -1, r.X1 + 196.25, r.Row4 - 41.25, 18.75);
}

void WriteSha(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  const EndPoint arch = pen.Arc(145, 25, -1, r.X1 + 170.625, r.Row4 + 26.25, 26.25);
  pen.Arc(40, -265, -1, arch.x - 15, arch.y + 13.125, 18.75);
  pen.Arc(-90, 85, +1, arch.x - 15, arch.y - 43.125, 37.5);
}

// Two ways of writing ssa, side by side.
void WriteSsa(StrokeRec& r, Pen& pen) {
  pen.Arc(0, 360, +1, r.Col1 + 168.75, r.Row4 + 37.5, 18.75);
  const EndPoint bowl = pen.Arc(190, 346, +1, r.Col1 + 206.25, r.Row4 + 37.5, 18.75);
  pen.Arc(332, 390, +1, r.Col1 + 202.125, r.Row4 + 27, 26.25);
  pen.LineDown(bowl.x + 5, bowl.y, bowl.y + 20);
  pen.Arc(140, 350, +1, r.Col1 + 324.25, r.Row4 + 28.125, 22.5);
  pen.Arc(190, 400, +1, r.Col1 + 369.25, r.Row4 + 28.125, 22.5);
  pen.LineDown(LastX + 5, LastY + 5, LastY + 47.25);
}

void WriteSa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col3 + 168.75;
  r.Y1 = r.Row4 + 18.75;
  pen.Arc(260, -10, -1, r.X1, r.Y1, 18.75);
  WriteBowl(r, pen);
  WriteBack(r, pen);
}

void WriteHa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col4 + 120;
  r.Y1 = r.Row4 + 18.75;
  WriteRing(r, pen);
  WriteBowl(r, pen);
  pen.Arc(332, 400, +1, r.X1 + 24, r.Y1 - 15, 37.5);
  SideHook(pen, LastX + 3.75, r.Row4 - 22.5, 9.375);
}

void WriteLla(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  pen.Arc(180, 540, +1, r.X1 + 182, r.Row4 - 5.5, 12.5);
  pen.Arc(-185, -90, +1, r.X1 + 205.25, r.Row4 - 1.75, 37.5);
  pen.Arc(90, -270, -1, r.X1 + 205.25, r.Row4 + 53.525, 16.75);
  pen.Arc(-90, 0, +1, r.X1 + 205.25, r.Row4 - 1.75, 37.5);
  pen.Arc(332, 430, +1, r.X1 + 185.45, r.Row4 - 13.75, 60);
}

void WriteRra(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col3;
  pen.Arc(-180, 180, +1, r.X1 + 100.2, r.Row4 + 13.2, 13.2);
  pen.Arc(-195, -130, +1, r.X1 + 123.741, r.Row4 + 25.17, 39.9);
  pen.Arc(-60, 3, +1, r.X1 + 129, r.Row4 + 25.8, 36);
  pen.Arc(-2, 275, +1, r.X1 + 148.875, r.Row4 + 17.16, 16.5);
  pen.LineLeft(LastX - 41.25, LastY, LastX);
}

constexpr TeluguTile kForms[] = {
    {52, WriteTa }, // ్త
    {53, WriteTha}, // ్థ
    {54, WriteDa }, // ్ద
    {55, WriteDha}, // ్ధ
    {56, WriteNa }, // ్న
    {57, WritePa }, // ్ప
    {58, WritePha}, // ్ఫ
    {59, WriteBa }, // ్బ
    {60, WriteBha}, // ్భ
    {61, WriteMa }, // ్మ
    {62, WriteYa }, // ్య
    {63, WriteRa }, // ్ర
    {64, WriteLa }, // ్ల
    {65, WriteVa }, // ్వ
    {66, WriteSha}, // ్శ
    {67, WriteSsa}, // ్ష
    {68, WriteSa }, // ్స
    {70, WriteHa }, // ్హ
    {72, WriteLla}, // ్ళ
    {75, WriteRra}, // ్ఱ
};

}  // namespace

void BowlOfRaBelow(const StrokeRec& r, Pen& pen) {
  pen.Arc(210, 330, +1, r.Col1 + 125, r.Row4 - 18, 60);
}

std::span<const TeluguTile> TeluguConsonantsBelowFromTa() {
  return kForms;
}

}  // namespace bramlee
