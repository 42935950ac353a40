// The forms in which Telugu consonants hang below another consonant. They stand around and under
// Row4 (475), most of them half as large as the letter itself, and bear no HeadTick.
#include "letters/telugu_shapes.h"
#include "letters/telugu_tiles.h"

namespace bramlee {
namespace {

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

// Nga is larger than ja and dza. X1 is the middle of the left loop, X2 of the right one.
void WriteJa(StrokeRec& r, Pen& pen) {
  enum { Nga = 22, Ja = 26, Dza = 27 };
  r.Rad = r.LetterNo == Nga ? 18.75 : 11.25;
  r.X1 = r.LetterNo == Nga ? r.Col1 + 43.75 : r.LetterNo == Ja ? r.Col1 + 111.25 : r.Col2 + 111.25;
  r.X2 = r.X1 + 2 * r.Rad;
  r.Y1 = r.LetterNo == Nga ? r.Row4 + r.Rad : r.Row4 + 42.75;
  r.WX1 = r.X1 + 3.375;
  pen.Arc(180, -90, -1, r.X1, r.Y1, r.Rad);
  r.Y2 = LastY + r.Rad;
  pen.Arc(90, 360, +1, LastX, r.Y2, r.Rad);
  pen.Arc(190, 380, +1, r.X2, r.Y2, r.Rad);
  if (r.LetterNo == Nga) {
    pen.LineDown(r.X2, r.Row4, r.Y1);
    pen.LineRight(r.X2 - r.Rad, r.Y1, r.X2 + r.Rad);
  } else {
    pen.Arc(180, 440, +1, r.X2, r.Y1, r.Rad);
  }
  if (r.LetterNo == Dza) FootHook(pen, r.WX1, r.Row4 + 20.7, 6.75);
}

void WriteCha(StrokeRec& r, Pen& pen) {
  enum { Cha = 23, Tsa = 24, Chha = 25 };
  r.X1 = ColumnOf(r, r.LetterNo - Cha + 1);
  r.WX1 = r.X1 + 138.6;
  pen.LineRight(r.X1 + 118.5, r.Row4 + 25.05, r.X1 + 138.6);
  pen.Arc(100, 360, +1, r.X1 + 138.6, r.Row4 + 45.15, 20.1);
  pen.Arc(180, 370, +1, r.X1 + 178.8, r.Row4 + 45.15, 20.1);
  pen.Arc(0, 90, +1, r.X1 + 139.8, r.Row4 + 45.15, 60);
  if (r.LetterNo == Tsa) FootHook(pen, r.WX1, r.Row4 - 30, 15);
  if (r.LetterNo == Chha) pen.LineDown(r.X1 + 159.9, r.Row4 + 45.15, r.Row4 + 67.65);
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
  r.X1 = r.Col1;
  pen.Arc(90, 450, +1, r.X1 + 91.5, r.Row4 + 23.75, 12.5);
  pen.Arc(-220, -150, +1, r.X1 + 108.375, r.Row5 - 33.75, 37.5);
  pen.Arc(190, 360, +1, r.X1 + 97.125, r.Row5 - 23.90625, 23.4375);
  pen.Arc(190, 345, +1, r.X1 + 144.234375, r.Row5 - 24.375, 23.4375);
  pen.Arc(-25, 50, +1, r.X1 + 133.5, r.Row4 + 42.5, 37.5);
}

void WriteTtha(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col2;
  pen.Arc(90, 450, +1, r.X1 + 125, r.Row4 + 30, 18.75);
  pen.Arc(90, 450, +1, r.X1 + 125, r.Row4 + 30, 1.875);
}

void WriteDda(StrokeRec& r, Pen& pen) {
  enum { Dda = 32, Ddha = 33 };
  r.X1 = r.LetterNo == Dda ? r.Col3 + 137.325 : r.Col4 + 112.575;  // the middle
  pen.Arc(40, 185, +1, r.X1, r.Row4 + 46.575, 37.575);
  const EndPoint bowl = pen.Arc(180, 360, +1, r.X1 - 18.7875, r.Row4 + 46.575, 18.7875);
  pen.Arc(180, 370, +1, r.X1 + 18.7875, r.Row4 + 46.575, 18.7875);
  if (r.LetterNo == Ddha) pen.LineDown(bowl.x, bowl.y, bowl.y + 25);
}

void WriteNna(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1;
  pen.Arc(300, 90, -1, r.X1 + 105, r.Row4 + 45, 15);
  pen.Arc(270, 0, -1, r.X1 + 105, r.Row4 + 15, 15);
  pen.Arc(180, 30, -1, r.X1 + 135, r.Row4 + 15, 15);
  pen.Arc(30, -30, -1, r.X1 + 119.4, r.Row4 + 29.88, 36);
  pen.Arc(330, -30, -1, r.X1 + 135, r.Row4 + 45, 15);
}

void WriteTa(StrokeRec& r, Pen& pen) {
  r.WX1 = r.Col1 + 130;
  FootHook(pen, r.WX1, r.Row4 + 48, 20);
}

void WriteDa(StrokeRec& r, Pen& pen) {
  enum { Tha = 53, Da = 54, Dha = 55 };
  r.X1 = ColumnOf(r, r.LetterNo - Tha + 2);
  pen.Arc(90, 185, +1, r.X1 + 120.625, r.Row4 + 38.125, 35);
  const EndPoint bowl = pen.Arc(180, 360, +1, r.X1 + 103.125, r.Row4 + 38.125, 17.5);
  pen.Arc(180, 370, +1, r.X1 + 138.125, r.Row4 + 38.125, 17.5);
  pen.Arc(0, 90, +1, r.X1 + 120.625, r.Row4 + 38.125, 35);
  if (r.LetterNo == Tha) pen.Arc(0, 90, +1, bowl.x, bowl.y - 13.78125, 2.75625);
  if (r.LetterNo != Da) pen.LineDown(bowl.x, bowl.y, bowl.y + 25);
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

// X1 is the middle of the ring, Y1 of ring and bowl.
void WritePa(StrokeRec& r, Pen& pen) {
  enum { Pa = 57, Pha = 58, Sa = 68, Ha = 70 };
  r.X1 = r.LetterNo == Pa    ? r.Col1 + 157.5
         : r.LetterNo == Pha ? r.Col2 + 157.5
         : r.LetterNo == Sa  ? r.Col3 + 168.75
                             : r.Col4 + 120;
  r.Y1 = r.LetterNo == Pa || r.LetterNo == Pha ? r.Row4 + 37.5 : r.Row4 + 18.75;
  const EndPoint ring = r.LetterNo == Sa ? pen.Arc(260, -10, -1, r.X1, r.Y1, 18.75)
                                         : pen.Arc(0, 360, +1, r.X1, r.Y1, 18.75);
  pen.Arc(190, 346, +1, r.X1 + 37.5, r.Y1, 18.75);
  if (r.LetterNo != Ha) pen.Arc(332, 435, +1, r.X1 + 3.75, r.Y1 - 24, 60);
  if (r.LetterNo == Ha) pen.Arc(332, 400, +1, r.X1 + 24, r.Y1 - 15, 37.5);
  if (r.LetterNo == Pha) pen.LineDown(ring.x, ring.y, ring.y + 25);
  if (r.LetterNo == Ha) SideHook(pen, LastX + 3.75, r.Row4 - 22.5, 9.375);
}

void WriteBa(StrokeRec& r, Pen& pen) {
  enum { Ba = 59, Bha = 60 };
  r.X1 = r.LetterNo == Ba ? r.Col3 : r.Col4;
  pen.Arc(180, -90, -1, r.X1 + 191.875, r.Row4 + 3.75, 18.75);
  const EndPoint bowl = pen.Arc(90, 360, +1, r.X1 + 191.875, r.Row4 + 41.25, 18.75);
  pen.Arc(190, 346, +1, r.X1 + 229.375, r.Row4 + 41.25, 18.75);
  pen.Arc(332, 435, +1, r.X1 + 191.875, r.Row4 + 22.5, 60);
  if (r.LetterNo == Bha) pen.LineDown(bowl.x, bowl.y, bowl.y + 28.125);
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
  pen.Arc(210, 330, +1, r.Col1 + 125, r.Row4 - 18, 60);
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

// Forms that differ by a stroke or a column share a routine.
constexpr TeluguTile kForms[] = {
    {18, WriteKa  }, // ్క
    {19, WriteKha }, // ్ఖ
    {20, WriteGa  }, // ్గ
    {21, WriteGha }, // ్ఘ
    {22, WriteJa  }, // ్ఙ
    {23, WriteCha }, // ్చ
    {24, WriteCha }, // ్ౘ
    {25, WriteCha }, // ్ఛ
    {26, WriteJa  }, // ్జ
    {27, WriteJa  }, // ్ౙ
    {28, WriteJha }, // ్ఝ
    {29, WriteNya }, // ్ఞ
    {30, WriteTta }, // ్ట
    {31, WriteTtha}, // ్ఠ
    {32, WriteDda }, // ్డ
    {33, WriteDda }, // ్ఢ
    {34, WriteNna }, // ్ణ
    {52, WriteTa  }, // ్త
    {53, WriteDa  }, // ్థ
    {54, WriteDa  }, // ్ద
    {55, WriteDa  }, // ్ధ
    {56, WriteNa  }, // ్న
    {57, WritePa  }, // ్ప
    {58, WritePa  }, // ్ఫ
    {59, WriteBa  }, // ్బ
    {60, WriteBa  }, // ్భ
    {61, WriteMa  }, // ్మ
    {62, WriteYa  }, // ్య
    {63, WriteRa  }, // ్ర
    {64, WriteLa  }, // ్ల
    {65, WriteVa  }, // ్వ
    {66, WriteSha }, // ్శ
    {67, WriteSsa }, // ్ష
    {68, WritePa  }, // ్స
    {70, WritePa  }, // ్హ
    {72, WriteLla }, // ్ళ
    {75, WriteRra }, // ్ఱ
};

}  // namespace

std::span<const TeluguTile> TeluguConsonantsBelow() {
  return kForms;
}

}  // namespace bramlee
