// Telugu consonants. A letter fills the rows from Row2 (325) to Row4 (475), and most carry a
// HeadTick on or just above Row2. The forms that hang below another consonant are in
// telc_below.cpp.
#include "letters/letter_sets.h"
#include "letters/telugu_shapes.h"
#include "letters/telugu_tiles.h"

namespace bramlee {
namespace {

// Each letter: its anchors, then its strokes in writing order, a line each. X1 is the left edge
// of the letter's own column, WX1 the place of its HeadTick or FootHook, which move it.

void WriteKa(StrokeRec& r, Pen& pen) {
  enum { Ka = 1, Kssa = 73 };
  r.X1 = r.LetterNo == Ka ? r.Col1 : r.Col2;
  r.WX1 = r.X1 + 150;
  pen.Arc(0, 270, +1, r.X1 + 125, r.Row2 + 37.5, 37.5);
  pen.Arc(90, -180, -1, r.X1 + 125, r.Row3 + 37.5, 37.5);
  HeadTick(pen, r.WX1, r.Row2 - 10, 45);
  if (r.LetterNo == Kssa) {
    pen.Arc(180, 350, +1, r.X1 + 92.5, r.Row4 + 10, 32.5);
    pen.Arc(190, 370, +1, r.X1 + 157.5, r.Row4 + 10, 32.5);
    pen.LineDown(LastX, LastY, r.Row4 + 60);
  }
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

void WriteJa(StrokeRec& r, Pen& pen) {
  enum { Nga = 5, Ja = 9, Dza = 10 };
  r.X1 = r.LetterNo == Dza ? r.Col2 : r.Col1;
  r.WX1 = r.X1 + 97.5;
  pen.Arc(180, -90, -1, r.X1 + 62.5, r.Row2 + 37.5, 37.5);
  pen.Arc(90, 360, +1, r.X1 + 62.5, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 380, +1, r.X1 + 137.5, r.Row3 + 37.5, 37.5);
  if (r.LetterNo == Nga) {
    pen.LineDown(r.X1 + 135, r.Row2 + 7.5, r.Row2 + 32.5);
    pen.LineRight(r.X1 + 105, r.Row2 + 32.5, r.X1 + 165);
  } else {
    pen.Arc(180, 440, +1, r.X1 + 137.5, r.Row2 + 37.5, 37.5);
  }
  if (r.LetterNo == Dza) FootHook(pen, r.WX1, r.Row2 - 15, 15);
}

void WriteCha(StrokeRec& r, Pen& pen) {
  enum { Cha = 6, Tsa = 7, Chha = 8 };
  r.X1 = ColumnOf(r, r.LetterNo - Cha + 1);
  r.WX1 = r.X1 + 145;
  pen.LineRight(r.X1 + 20, r.Row4 - 100, r.X1 + 60);
  pen.Arc(100, 360, +1, r.X1 + 70, r.Row4 - 50, 50);
  pen.Arc(180, 370, +1, r.X1 + 170, r.Row4 - 50, 50);
  pen.Arc(0, 90, +1, r.X1 + 120, r.Row4 - 50, 100);
  HeadTick(pen, r.WX1, r.Row2, 52.5);
  if (r.LetterNo == Tsa) FootHook(pen, r.WX1, r.Row1, 15);  // where the tick left its X
  if (r.LetterNo == Chha) pen.LineDown(r.X1 + 121.25, r.Row4 - 37.5, r.Row4 + 22.5);
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
  r.X1 = r.Col1;
  pen.Arc(90, 450, +1, r.X1 + 66.5, r.Row2 + 25, 25);
  pen.Arc(-220, -150, +1, r.X1 + 125, r.Row3, 102.5);
  pen.Arc(190, 360, +1, r.X1 + 76.25, r.Row3 + 28, 46.875);
  pen.Arc(190, 345, +1, r.X1 + 170, r.Row3 + 28, 46.875);
  pen.Arc(-25, 45, +1, r.X1 + 122, r.Row3, 102.5);
  pen.LineDown(r.X1 + 66.5, r.Row2 - 30, r.Row2);
}

void WriteTtha(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col2;
  r.WX1 = r.X1 + 150;
  pen.Arc(90, 450, +1, r.X1 + 125, r.Row3, 75);
  HeadTick(pen, r.WX1, r.Row2, 52.5);
  pen.Arc(90, 450, +1, r.X1 + 125, r.Row3, 3.5);
}

/// One of the ways in which dda and ddha are written, the column's left edge at `x`. The loop at
/// its right ends at the angle `loopEnd`; without one there is no loop.
void WriteDdaAt(double x, int loopEnd, StrokeRec& r, Pen& pen) {
  enum { Dda = 15, Ddha = 16 };
  r.WX1 = x + 153.25;
  pen.Arc(50, 185, +1, x + 113.75, r.Row2 + 100.725, 98.75);
  const EndPoint bowl = pen.Arc(180, 355, +1, x + 64.375, r.Row2 + 100.725, 49.375);
  pen.Arc(185, 390, +1, x + 163.125, r.Row2 + 100.725, 49.375);
  if (loopEnd != 0) pen.Arc(45, loopEnd, +1, x + 185.34375, r.Row2 + 90.85, 24.6875);
  HeadTick(pen, r.WX1, r.Row2 - 2.9625, 69.125);
  if (r.LetterNo == Ddha) pen.LineDown(bowl.x, bowl.y, bowl.y + 49.375);
}

void WriteDda(StrokeRec& r, Pen& pen) {
  WriteDdaAt(r.Col1, 0, r, pen);
  WriteDdaAt(r.Col2, 180, r, pen);
  WriteDdaAt(r.Col3, 405, r, pen);
}

void WriteNna(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  pen.Arc(300, 90, -1, r.X1 + 62.5, r.Row3 + 37.5, 37.5);
  pen.Arc(270, 0, -1, r.X1 + 62.5, r.Row3 - 37.5, 37.5);
  pen.Arc(180, 30, -1, r.X1 + 137.5, r.Row3 - 37.5, 37.5);
  pen.Arc(30, -30, -1, r.X1 + 70, r.Row3, 115);
  pen.Arc(330, -30, -1, r.X1 + 137.5, r.Row3 + 37.5, 37.5);
}

// Three ways of writing ta, side by side.
void WriteTa(StrokeRec& r, Pen& pen) {
  r.WX1 = r.Col1 + 130;
  pen.Arc(90, 450, +1, r.Col1 + 40, r.Row2 + 64.5, 30);
  pen.Arc(-175, 0, +1, r.Col1 + 100.3, r.Row2 + 64.5, 90);
  pen.Arc(0, 450, +1, r.Col1 + 160, r.Row2 + 64.5, 30);
  pen.Arc(270, 450, +1, r.Col1 + 160, r.Row2 + 17.7, 18);
  pen.LineLeft(r.Col1 + 101, r.Row2 - 0.3, r.Col1 + 156);
  HeadTick(pen, r.WX1, r.Row2, 52.5);

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

void WriteDa(StrokeRec& r, Pen& pen) {
  enum { Tha = 36, Da = 37, Dha = 38 };
  r.X1 = ColumnOf(r, r.LetterNo - Tha + 2);
  r.WX1 = r.X1 + 145;
  pen.Arc(90, 185, +1, r.X1 + 120, r.Row3 + 25, 100);
  pen.Arc(180, 360, +1, r.X1 + 70, r.Row3 + 25, 50);
  pen.Arc(180, 370, +1, r.X1 + 170, r.Row3 + 25, 50);
  pen.Arc(0, 90, +1, r.X1 + 120, r.Row3 + 25, 100);
  HeadTick(pen, r.WX1, r.Row2, 52.5);
  if (r.LetterNo == Tha) pen.Arc(0, 90, +1, r.X1 + 120, r.Row3 - 10, 3.5);
  if (r.LetterNo != Da) pen.LineDown(r.X1 + 121.25, r.Row4 - 37.5, r.Row4 + 22.5);
}

/// A HeadTick that the pen goes over a second time, dot for dot.
void TickTwice(Pen& pen, double x, double y, double r) {
  for (int pass = 1; pass <= 2; ++pass) {
    pen.rec.WX1 = x;
    HeadTick(pen, pen.rec.WX1, y, r);
  }
}

void WriteNa(StrokeRec& r, Pen& pen) {
  enum { Na = 39, Va = 48 };
  r.X1 = r.LetterNo == Na ? r.Col1 : r.Col4;
  if (r.LetterNo == Na) pen.Arc(260, -10, -1, r.X1 + 45, r.Row3 + 37.5, 37.5);
  if (r.LetterNo == Va) pen.Arc(0, 360, +1, r.X1 + 45, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 346, +1, r.X1 + 120, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 440, +1, r.X1 + 84, r.Row3 + 8, 82.5);
  TickTwice(pen, r.X1 + 125, r.Row2, 52.5);
}

void WritePa(StrokeRec& r, Pen& pen) {
  enum { Pa = 40, Pha = 41, Ssa = 50, Sa = 51, Ha = 69 };
  r.X1 = r.LetterNo == Pa    ? r.Col1
         : r.LetterNo == Pha ? r.Col2
         : r.LetterNo == Ssa ? r.Col2 + 25
         : r.LetterNo == Sa  ? r.Col3 + 25
                             : r.Col4 + 10;
  r.WX1 = r.X1 + 100;
  const EndPoint ring = r.LetterNo == Sa ? pen.Arc(260, -10, -1, r.X1 + 45, r.Row3 + 37.5, 37.5)
                                         : pen.Arc(0, 360, +1, r.X1 + 45, r.Row3 + 37.5, 37.5);
  const EndPoint bowl = pen.Arc(190, 346, +1, r.X1 + 120, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 420, +1, r.X1 + 78, r.Row3 + 4, 89.25);
  if (r.LetterNo == Ha) SideHook(pen, LastX, r.Row2, 18.75);
  HeadTick(pen, r.WX1, r.Row2 - 10, 56.25);
  if (r.LetterNo == Pha) pen.LineDown(ring.x, ring.y, ring.y + 56.25);
  if (r.LetterNo == Ssa) pen.LineDown(bowl.x, r.Row4 - 20, r.Row4 + 20);
}

void WriteBa(StrokeRec& r, Pen& pen) {
  enum { Ba = 42, Bha = 43 };
  r.X1 = r.LetterNo == Ba ? r.Col3 : r.Col4;
  r.WX1 = r.X1 + 167.5;
  pen.Arc(180, -90, -1, r.X1 + 62.5, r.Row2 + 37.5, 37.5);
  const EndPoint bowl = pen.Arc(90, 360, +1, r.X1 + 62.5, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 346, +1, r.X1 + 137.5, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 420, +1, r.X1 + 95.5, r.Row3 + 4, 89.25);
  if (r.LetterNo == Bha) {
    HeadTick(pen, r.WX1, r.Row2, 56.25);
    pen.LineDown(bowl.x, bowl.y, r.Row4 + 20);
  }
}

void WriteMa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  pen.Arc(0, 360, +1, r.X1 + 45, r.Row3 + 37.5, 37.5);
  pen.Arc(190, 346, +1, r.X1 + 120, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 440, +1, r.X1 + 84, r.Row3 + 8, 82.5);
  TickTwice(pen, r.X1 + 125, r.Row2, 52.5);
  pen.Arc(190, 346, +1, r.X1 + 195, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 420, +1, r.X1 + 153, r.Row3 + 4, 89.25);
}

void WriteYa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  pen.Arc(-30, 330, +1, r.X1 + 45, r.Row3, 75);
  pen.Arc(190, 346, +1, r.X1 + 146.25, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 440, +1, r.X1 + 110.25, r.Row3 + 8, 82.5);
  TickTwice(pen, r.X1 + 150, r.Row2, 52.5);
  pen.Arc(190, 346, +1, r.X1 + 221.25, r.Row3 + 37.5, 37.5);
  pen.Arc(332, 420, +1, r.X1 + 179.25, r.Row3 + 4, 89.25);
}

void WriteRa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col2;
  r.WX1 = r.X1 + 150;
  pen.Arc(90, 450, +1, r.X1 + 125, r.Row2 + 75, 75);
  HeadTick(pen, r.WX1, r.Row2, 52.5);
}

void WriteLa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col3;
  pen.Arc(90, 450, +1, r.X1 + 65, r.Row2 + 36, 30);
  pen.Arc(-190, 32, +1, r.X1 + 130, r.Row2 + 55, 96);
}

void WriteSha(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  r.CX1 = r.X1 + 125, r.CY1 = r.Row3 + 37.5, r.CY2 = r.Row3 - 37.5, r.Rad = 37.5;
  r.WX1 = r.X1 + 145;
  pen.Arc(145, 25, -1, r.X1 + 107, r.Row2 + 110, 52.5);
  OpenCurl(pen);
  HeadTick(pen, r.WX1, r.Row2 - 2, 52.5);
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
  r.X1 = r.Col3;
  pen.Arc(-180, 180, +1, r.X1 + 57, r.Row2 + 30, 30);
  pen.Arc(-195, -130, +1, r.X1 + 125, r.Row3 - 28, 100);
  pen.Arc(-60, 3, +1, r.X1 + 125, r.Row3 - 28, 100);
  pen.Arc(-2, 270, +1, r.X1 + 188, r.Row3 - 37, 37);
  pen.LineLeft(LastX - 110, LastY, LastX);
}

// Letters that differ by a stroke or a column share a routine.
constexpr TeluguTile kLetters[] = {
    {1,  WriteKa  }, // క
    {2,  WriteKha }, // ఖ
    {3,  WriteGa  }, // గ
    {4,  WriteGha }, // ఘ
    {5,  WriteJa  }, // ఙ
    {6,  WriteCha }, // చ
    {7,  WriteCha }, // ౘ
    {8,  WriteCha }, // ఛ
    {9,  WriteJa  }, // జ
    {10, WriteJa  }, // ౙ
    {11, WriteJha }, // ఝ
    {12, WriteNya }, // ఞ
    {13, WriteTta }, // ట
    {14, WriteTtha}, // ఠ
    {15, WriteDda }, // డ
    {16, WriteDda }, // ఢ
    {17, WriteNna }, // ణ
    {35, WriteTa  }, // త
    {36, WriteDa  }, // థ
    {37, WriteDa  }, // ద
    {38, WriteDa  }, // ధ
    {39, WriteNa  }, // న
    {40, WritePa  }, // ప
    {41, WritePa  }, // ఫ
    {42, WriteBa  }, // బ
    {43, WriteBa  }, // భ
    {44, WriteMa  }, // మ
    {45, WriteYa  }, // య
    {46, WriteRa  }, // ర
    {47, WriteLa  }, // ల
    {48, WriteNa  }, // వ
    {49, WriteSha }, // శ
    {50, WritePa  }, // ష
    {51, WritePa  }, // స
    {69, WritePa  }, // హ
    {71, WriteLla }, // ళ
    {73, WriteKa  }, // క్ష
    {74, WriteRra }, // ఱ
};

}  // namespace

void WriteTeluguConsonant(StrokeRec& rec, DrawingSurface& sheet) {
  WriteTelugu({kLetters, TeluguConsonantsBelow()}, rec, sheet);
}

}  // namespace bramlee
