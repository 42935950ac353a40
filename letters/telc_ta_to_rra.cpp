// Telugu consonants, tiles 35 to 51, 69, 71 and 74: ta to rra. Those before ta are in telc.cpp,
// with what holds for all of them.
#include "letters/telugu_parts.h"
#include "letters/telugu_shapes.h"
#include "letters/telugu_tiles.h"

namespace bramlee {
namespace {

// Parts that several letters share: a change to one changes every letter that uses it. `column`
// is the left edge of the letter's own column, which X1 becomes.

/// The letter da, and the beginning of tha and dha.
void WriteDaAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  r.WX1 = r.X1 + 145;
  pen.Arc(90, 185, +1, r.X1 + 120, r.Row3 + 25, 100);
  pen.Arc(180, 360, +1, r.X1 + 70, r.Row3 + 25, 50);
  pen.Arc(180, 370, +1, r.X1 + 170, r.Row3 + 25, 50);
  pen.Arc(0, 90, +1, r.X1 + 120, r.Row3 + 25, 100);
  HeadTick(pen, r.WX1, r.Row2, 52.5);
}

/// The stroke down between the bowls of tha and dha.
void WriteStrokeDown(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 121.25, r.Row4 - 37.5, r.Row4 + 22.5);
}

/// A HeadTick that the pen goes over so many times, dot for dot.
void WriteTick(TickPasses passes, double x, StrokeRec& r, Pen& pen) {
  for (int pass = 1; pass <= static_cast<int>(passes); ++pass) {
    r.WX1 = x;
    HeadTick(pen, r.WX1, r.Row2, 52.5);
  }
}

/// The bowl that na, ma and va have beside their ring, with its back and tick.
void WriteBowlWithTick(TickPasses passes, StrokeRec& r, Pen& pen) {
  pen.Arc(190, 346, +1, r.X1 + 120, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 440, +1, r.X1 + 84, r.Row3 + 8, 82.5);
  WriteTick(passes, r.X1 + 125, r, pen);
}

/// The letter va, and the beginning of ma.
void WriteVaAt(double column, TickPasses passes, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  pen.Arc(0, 360, +1, r.X1 + 45, r.Row3 + 37.5, 37.5);
  WriteBowlWithTick(passes, r, pen);
}

/// The ring of pa, pha, ssa and ha; returns the place where it closes.
EndPoint WriteRing(StrokeRec& r, Pen& pen) {
  return RingOfPa(r.X1 + 45, r.Row3 + 37.5, 1, pen);
}

/// The bowl of pa, pha, ssa, sa and ha beside the ring, and its back; returns the end of the bowl.
EndPoint WriteBowlAndBack(StrokeRec& r, Pen& pen) {
  return BowlAndBackOfPa(r.X1 + 45, r.Row3 + 37.5, 1, pen);
}

/// The tick of pa, pha, ssa, sa and ha.
void WriteTickOfPa(StrokeRec& r, Pen& pen) {
  TickOfPa(r.X1 + 45, r.Row3 + 37.5, r, pen);
}

/// The letter pa, and the beginning of pha; returns the place where the ring closes.
EndPoint WritePaAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  const EndPoint ring = WriteRing(r, pen);
  WriteBowlAndBack(r, pen);
  WriteTickOfPa(r, pen);
  return ring;
}

/// The letter ba, and the beginning of bha; returns the place between its bowls.
EndPoint WriteBaAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column;
  pen.Arc(180, -90, -1, r.X1 + 62.5, r.Row2 + 37.5, 37.5);
  const EndPoint bowl = pen.Arc(90, 360, +1, r.X1 + 62.5, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 346, +1, r.X1 + 137.5, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 420, +1, r.X1 + 95.5, r.Row3 + 4, 89.25);
  return bowl;
}

// Each letter: its anchors, then its strokes in writing order, a line each. X1 is the left edge
// of the letter's own column, WX1 the place of its HeadTick, which moves it.

// Three ways of writing ta, side by side.
void WriteTa(StrokeRec& r, Pen& pen) {
  TaWithRing(90, r, pen);

  r.WX1 = r.Col2 + 135;
  pen.Arc(90, 450, +1, r.Col2 + 52.5, r.Row2 + 55.05, 18);
  pen.Arc(90, 185, +1, r.Col2 + 52.5, r.Row2 + 67.05, 30);
  pen.Arc(-180, 0, +1, r.Col2 + 111.685, r.Row2 + 67.05, 89);
  pen.Arc(-5, 90, +1, r.Col2 + 171, r.Row2 + 67.05, 30);
  pen.Arc(90, 450, +1, r.Col2 + 164.7, r.Row2 + 56.25, 18);
  pen.Arc(270, 450, +1, r.Col2 + 164.7, r.Row2 + 20.25, 18);
  pen.LineLeft(r.Col2 + 105.7, r.Row2 + 2.25, r.Col2 + 160.7);
  HeadTick(pen, r.WX1, r.Row2, 52.5);

  r.WX1 = r.Col3 + 182.9;
  pen.Arc(90, 450, +1, r.Col3 + 59.9, r.Row2 + 60, 28.5);
  pen.Arc(190, 325, +1, r.Col3 + 135, r.Row2 + 48.5, 105);
  pen.Arc(-30, 70, +1, r.Col3 + 182.4, r.Row2 + 80, 47.5);
  pen.Arc(60, 275, +1, r.Col3 + 184.9, r.Row2 + 60, 28.5);
  pen.Arc(-90, 120, +1, r.Col3 + 179.9, r.Row2 + 45, 44);
  HeadTick(pen, r.WX1, r.Row2 + 6, 52.5);
}

void WriteTha(StrokeRec& r, Pen& pen) {
  WriteDaAt(r.Col2, r, pen);
  pen.Arc(0, 90, +1, r.X1 + 120, r.Row3 - 10, 3.5);
  WriteStrokeDown(r, pen);
}

void WriteDa(StrokeRec& r, Pen& pen) {
  WriteDaAt(r.Col3, r, pen);
}

void WriteDha(StrokeRec& r, Pen& pen) {
  WriteDaAt(r.Col4, r, pen);
  WriteStrokeDown(r, pen);
}

void WriteNa(StrokeRec& r, Pen& pen) {
  NaWithTick(TickPasses::Twice, r, pen);
}

void WritePa(StrokeRec& r, Pen& pen) {
  WritePaAt(r.Col1, r, pen);
}

void WritePha(StrokeRec& r, Pen& pen) {
  const EndPoint ring = WritePaAt(r.Col2, r, pen);
  pen.LineDown(ring.x, ring.y, ring.y + 56.25);
}

void WriteBa(StrokeRec& r, Pen& pen) {
  WriteBaAt(r.Col3, r, pen);
}

void WriteBha(StrokeRec& r, Pen& pen) {
  const EndPoint bowl = WriteBaAt(r.Col4, r, pen);
  r.WX1 = r.X1 + 167.5;
  HeadTick(pen, r.WX1, r.Row2, 56.25);
  pen.LineDown(bowl.x, bowl.y, r.Row4 + 20);
}

void WriteMa(StrokeRec& r, Pen& pen) {
  MaWithTick(TickPasses::Twice, r, pen);
}

void WriteYa(StrokeRec& r, Pen& pen) {
  YaWithTick(TickPasses::Twice, r, pen);
}

void WriteRa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col2;
  r.WX1 = r.X1 + 150;
  pen.Arc(90, 450, +1, r.X1 + 125, r.Row2 + 75, 75);
  HeadTick(pen, r.WX1, r.Row2, 52.5);
}

void WriteLa(StrokeRec& r, Pen& pen) {
  LaWithRing(90, r, pen);
}

void WriteVa(StrokeRec& r, Pen& pen) {
  VaWithTick(TickPasses::Twice, r, pen);
}

void WriteSha(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  r.CX1 = r.X1 + 125, r.CY1 = r.Row3 + 37.5, r.CY2 = r.Row3 - 37.5, r.Rad = 37.5;
  r.WX1 = r.X1 + 145;
  pen.Arc(145, 25, -1, r.X1 + 107, r.Row2 + 110, 52.5);
  OpenCurl(pen);
  HeadTick(pen, r.WX1, r.Row2 - 2, 52.5);
}

void WriteSsa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col2 + 25;
  WriteRing(r, pen);
  const EndPoint bowl = WriteBowlAndBack(r, pen);
  WriteTickOfPa(r, pen);
  pen.LineDown(bowl.x, r.Row4 - 20, r.Row4 + 20);
}

void WriteSa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col3 + 25;
  pen.Arc(260, -10, -1, r.X1 + 45, r.Row3 + 37.5, 37.5);
  WriteBowlAndBack(r, pen);
  WriteTickOfPa(r, pen);
}

void WriteHa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col4 + 10;
  WriteRing(r, pen);
  WriteBowlAndBack(r, pen);
  SideHook(pen, LastX, r.Row2, 18.75);
  WriteTickOfPa(r, pen);
}

void WriteLla(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  r.WX1 = r.X1 + 190;
  pen.Arc(180, 540, +1, r.X1 + 89.5, r.Row2 + 25, 25);
  pen.Arc(-185, -90, +1, r.X1 + 125, r.Row2 + 40, 60);
  pen.Arc(90, -270, -1, r.X1 + 125, r.Row3 + 50, 25);
  pen.Arc(-90, 40, +1, r.X1 + 125, r.Row2 + 40, 60);
  HeadTick(pen, r.WX1, r.Row2, 52.5);
}

void WriteRra(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col3 + 125;
  r.Y1 = r.Row3 - 28;
  RingOfA(pen, r.X1, r.Y1, 1);
  pen.Arc(-195, -130, +1, r.X1, r.Y1, 100);
  pen.Arc(-60, 3, +1, r.X1, r.Y1, 100);
  CurlOfA(pen, r.X1, r.Y1, 1);
}

constexpr TeluguTile kLetters[] = {
    {35, WriteTa }, // త
    {36, WriteTha}, // థ
    {37, WriteDa }, // ద
    {38, WriteDha}, // ధ
    {39, WriteNa }, // న
    {40, WritePa }, // ప
    {41, WritePha}, // ఫ
    {42, WriteBa }, // బ
    {43, WriteBha}, // భ
    {44, WriteMa }, // మ
    {45, WriteYa }, // య
    {46, WriteRa }, // ర
    {47, WriteLa }, // ల
    {48, WriteVa }, // వ
    {49, WriteSha}, // శ
    {50, WriteSsa}, // ష
    {51, WriteSa }, // స
    {69, WriteHa }, // హ
    {71, WriteLla}, // ళ
    {74, WriteRra}, // ఱ
};

}  // namespace

void TaWithRing(int ringFrom, StrokeRec& r, Pen& pen) {
  r.WX1 = r.Col1 + 130;
  pen.Arc(ringFrom, ringFrom + 360, +1, r.Col1 + 40, r.Row2 + 64.5, 30);
  pen.Arc(-175, 0, +1, r.Col1 + 100.3, r.Row2 + 64.5, 90);
  pen.Arc(0, 450, +1, r.Col1 + 160, r.Row2 + 64.5, 30);
  pen.Arc(270, 450, +1, r.Col1 + 160, r.Row2 + 17.7, 18);
  pen.LineLeft(r.Col1 + 101, r.Row2 - 0.3, r.Col1 + 156);
  HeadTick(pen, r.WX1, r.Row2, 52.5);
}

void LaWithRing(int ringFrom, StrokeRec& r, Pen& pen) {
  r.X1 = r.Col3;
  pen.Arc(ringFrom, ringFrom + 360, +1, r.X1 + 65, r.Row2 + 36, 30);
  pen.Arc(-190, 32, +1, r.X1 + 130, r.Row2 + 55, 96);
}

void NaWithTick(TickPasses passes, StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  pen.Arc(260, -10, -1, r.X1 + 45, r.Row3 + 37.5, 37.5);
  WriteBowlWithTick(passes, r, pen);
}

void MaWithTick(TickPasses passes, StrokeRec& r, Pen& pen) {
  WriteVaAt(r.Col1, passes, r, pen);
  pen.Arc(190, 346, +1, r.X1 + 195, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 420, +1, r.X1 + 153, r.Row3 + 4, 89.25);
}

void YaWithTick(TickPasses passes, StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  pen.Arc(-30, 330, +1, r.X1 + 45, r.Row3, 75);
  pen.Arc(190, 346, +1, r.X1 + 146.25, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 440, +1, r.X1 + 110.25, r.Row3 + 8, 82.5);
  WriteTick(passes, r.X1 + 150, r, pen);
  pen.Arc(190, 346, +1, r.X1 + 221.25, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 420, +1, r.X1 + 179.25, r.Row3 + 4, 89.25);
}

void VaWithTick(TickPasses passes, StrokeRec& r, Pen& pen) {
  WriteVaAt(r.Col4, passes, r, pen);
}

EndPoint RingOfPa(double x, double y, double scale, Pen& pen) {
  return pen.Arc(0, 360, +1, x, y, 37.5 * scale);
}

EndPoint BowlAndBackOfPa(double x, double y, double scale, Pen& pen) {
  const EndPoint bowl = pen.Arc(190, 346, +1, x + 75 * scale, y, 37.5 * scale);
  pen.Arc(332, 420, +1, x + 33 * scale, y - 33.5 * scale, 89.25 * scale);
  return bowl;
}

void TickOfPa(double x, double y, StrokeRec& r, Pen& pen) {
  r.WX1 = x + 55;
  HeadTick(pen, r.WX1, y - 122.5, 56.25);
}

std::span<const TeluguTile> TeluguConsonantsFromTa() {
  return kLetters;
}

}  // namespace bramlee
