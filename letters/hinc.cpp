// Hindi consonants: 37 letters in three sets of tiles. Set 1 holds the whole letters, set 2 their
// half forms and set 3 the letters that get a foot stroke. A letter hangs from a bar at Y1 (325)
// and is its body, then for some a stem and a bar whose places stand, with X1 and the place of
// the foot stroke, in one table at the end.
#include "letters/hindi_shapes.h"
#include "letters/letter_sets.h"
#include "letters/pen.h"

namespace bramlee {
namespace {

constexpr int kSets = 3;

/// A full stem is this long.
constexpr double kHeight = 150;

int LetterOf(const StrokeRec& r) {
  return (r.LetterNo - 1) % kHindiSetTiles + 1;
}

int SetOf(const StrokeRec& r) {
  return (r.LetterNo - 1) / kHindiSetTiles + 1;
}

bool IsHalf(const StrokeRec& r) {
  return SetOf(r) == 2;
}

/// Where a stem or a bar begins across the sheet and how long it is; a length of 0 is none.
struct Extent {
  double x;
  double length;
};

void WriteStem(const Extent& stem, StrokeRec& r, Pen& pen) {
  r.X1 = stem.x;
  r.CellH = stem.length / 2;
  pen.LineDown(r.X1, r.Y1, r.Y1 + 2 * r.CellH);
}

void WriteBar(const Extent& bar, StrokeRec& r, Pen& pen) {
  r.X1 = bar.x;
  r.CellW = bar.length;
  pen.LineRight(r.X1, r.Y1, r.X1 + r.CellW);
}

// Each body: its strokes in writing order, a line each.

void WriteKa(StrokeRec& r, Pen& pen) {
  const EndPoint ring = pen.Arc(45, 360, +1, r.X1 + 81.5, r.Y1 + 72, 45);
  pen.Arc(180, IsHalf(r) ? 70 : -100, -1, ring.x + 45, r.Y1 + 72, 45);
  pen.LineDown(ring.x, r.Y1, r.Y1 + kHeight);
  pen.LineRight(r.X1 + 36.5, r.Y1, ring.x + 90);
}

void WriteKha(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 75, r.Y1, r.Y1 + 75);
  const EndPoint curl = pen.Arc(0, -160, -1, r.X1 + 60, r.Y1 + 75, 15);
  pen.Arc(180, 340, +1, curl.x + 66.75, curl.y, 66.75);
  pen.Arc(60, 360, +1, r.X1 + 147.5, r.Y1 + 75, 30);
  if (!IsHalf(r)) pen.LineDown(r.X1 + 177.5, r.Y1, r.Y1 + kHeight);
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + 202.5);
}

void WriteGa(StrokeRec& r, Pen& pen) {
  if (r.AltFlag == 0) {
    pen.SlantRight(45, r.X1 + 62.5, r.Y1 + 75, r.Y1 + 111.75);
    pen.LineUp(r.X1 + 100, r.Y1 + 112.5, r.Y1);
  } else {
    pen.Arc(180, 360, +1, r.X1 + 73.75, r.Y1 + 105, 26.25);
    pen.LineUp(r.X1 + 100, r.Y1 + 105, r.Y1);
  }
  if (!IsHalf(r)) pen.LineDown(r.X1 + 177.5, r.Y1, r.Y1 + kHeight);
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + (IsHalf(r) ? 137.5 : 200));
}

void WriteGha(StrokeRec& r, Pen& pen) {
  pen.Arc(90, 270, +1, r.X1 + 41.25, r.Y1 + 33.75, 33.75);
  const EndPoint bow = pen.Arc(90, 272, +1, r.X1 + 41.25, r.Y1 + 101.25, 33.75);
  pen.Arc(270, 345, +1, bow.x + 4.4625, bow.y - 62.475, 63.75);
}

void WriteNgaDda(StrokeRec& r, Pen& pen) {
  enum { Nga = 5 };
  WriteHook(r, pen);
  if (LetterOf(r) == Nga) pen.Arc(90, 450, +1, r.X1 + 25, r.Y1 + 48.75, 5.25);
  if (!IsHalf(r)) pen.LineRight(r.X1 - 63.825, r.Y1, r.X1 + 31.9125);
}

void WriteCha(StrokeRec& r, Pen& pen) {
  pen.LineRight(r.X1 - 10, r.Y1 + 48.75, r.X1 + 42.5);
  const EndPoint bow = pen.Arc(90, 270, +1, r.X1 + 41.25, r.Y1 + 84.375, 33.75);
  pen.Arc(270, 345, +1, bow.x + 4.4625, bow.y - 62.475, 63.75);
}

void WriteChha(StrokeRec& r, Pen& pen) {
  pen.Arc(65, 270, +1, r.X1 + 48.75, r.Y1 + 48.5625, 26.25);
  const EndPoint bow = pen.Arc(90, 272, +1, r.X1 + 51.375, r.Y1 + 110.625, 33.75);
  pen.Arc(270, 370, +1, bow.x + 5.25, bow.y - 74.25, 75);
  pen.Arc(0, 360, +1, r.X1 + 104.325, r.Y1 + 53.55, 25.5);
  if (r.AltFlag != 0) pen.Arc(160, 0, -1, r.X1 + 151.825, r.Y1 + 60, 18.75);
}

void WriteJa(StrokeRec& r, Pen& pen) {
  const EndPoint foot = pen.Arc(180, 270, +1, r.X1 + 75, r.Y1 + 52.5, 63.75);
  const EndPoint top = pen.Arc(270, 450, +1, foot.x, foot.y - 33.75, 33.75);
  pen.LineRight(top.x, top.y, top.x + 52.5);
}

void WriteJha(StrokeRec& r, Pen& pen) {
  const HookEnds hook = WriteHook(r, pen);
  pen.SlantRight(60, hook.lower.x, hook.lower.y, hook.lower.y + 37.5);
  const double armX = 1.02 * hook.upper.x;  // off the waist by shares of the sheet itself
  pen.LineRight(armX, 1.015 * hook.upper.y, armX + 51.3375);
}

void WriteNya(StrokeRec& r, Pen& pen) {
  pen.Arc(90, -90, -1, r.X1 - 25, r.Y1 + 75, 37.5);
  pen.LineRight(r.X1 + 12.5, r.Y1 + 75, r.X1 + 50);
}

void WriteTtaTthaDdha(StrokeRec& r, Pen& pen) {
  enum { Ttha = 12, Ddha = 14 };
  pen.LineDown(r.X1, r.Y1, r.Y1 + 30);
  const double end = LetterOf(r) == Ttha ? 450 : 310;
  const EndPoint bow = pen.Arc(90, end, +1, r.X1, r.Y1 + 86.25, 56.25);
  if (LetterOf(r) == Ddha) pen.Arc(-36, 325, +1, bow.x - 15.525, r.Y1 + 112.125, 22.5);
  if (!IsHalf(r)) pen.LineRight(r.X1 - 60, r.Y1, r.X1 + 60);
}

void WriteNna(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 62.5, r.Y1, r.Y1 + 105);
  const EndPoint bow = pen.Arc(180, 360, +1, r.X1 + 92.5, r.Y1 + 105, 30);
  pen.LineUp(bow.x, bow.y, r.Y1);
  if (!IsHalf(r)) pen.LineDown(r.X1 + 177.5, r.Y1, r.Y1 + kHeight);
  pen.LineRight(r.X1 + 35, r.Y1, r.X1 + (IsHalf(r) ? 152.5 : 202.5));
}

void WriteTa(StrokeRec& r, Pen& pen) {
  pen.LineLeft(r.X1, r.Y1 + 63.75, r.X1 + 62.5);
  const EndPoint bow = pen.Arc(90, r.AltFlag == 0 ? 210 : 180, +1, r.X1, r.Y1 + 91.5, 27.75);
  pen.SlantRight(30, bow.x, bow.y, bow.y + 45);
  if (IsHalf(r)) return;
  pen.LineDown(r.X1 + 62.5, r.Y1, r.Y1 + kHeight);
  pen.LineRight(r.X1 - 25, r.Y1, r.X1 + 100);
}

void WriteThaSha(StrokeRec& r, Pen& pen) {
  const EndPoint ring = pen.Arc(360, 0, -1, r.X1 + 41.25, r.Y1 + 22.5, 22.5);
  pen.Arc(360, 290, -1, ring.x - 67.5, ring.y, 67.5);
}

void WriteDa(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1, r.Y1, r.Y1 + 30);
  pen.LineLeft(r.X1 - 28.5, r.Y1 + 30, r.X1);
  const EndPoint bow = pen.Arc(85, 313, +1, r.X1 - 25, r.Y1 + 82.5, 52.5);
  if (r.AltFlag == 0) {
    pen.Arc(-35, 325, +1, bow.x - 6.1875, r.Y1 + 111, 11.25);
    pen.Arc(90, -50, -1, bow.x, r.Y1 + 139.125, 18.75);
  } else {
    pen.Arc(-35, 325, +1, bow.x - 9, r.Y1 + 112.5, 11.25);
    pen.Arc(150, 230, +1, bow.x + 17.5, r.Y1 + 124.5, 30);
    pen.Arc(150, 241, +1, bow.x + 17.5, r.Y1 + 124.5, 26.25);
  }
  if (!IsHalf(r)) pen.LineRight(r.X1 - 75, r.Y1, r.X1 + 45);
}

void WriteDha(StrokeRec& r, Pen& pen) {
  pen.Arc(180, 540, +1, r.X1 + 29.85, r.Y1 + 18.9, 21);
  pen.Arc(90, 270, +1, r.X1 + 41.25, r.Y1 + 27, 33.75);
  const EndPoint bow = pen.Arc(170, 272, +1, r.X1 + 41.25, r.Y1 + 94.5, 33.75);
  pen.Arc(270, 345, +1, bow.x + 4.4625, bow.y - 62.475, 63.75);
}

void WriteNa(StrokeRec& r, Pen& pen) {
  const EndPoint ring = pen.Arc(90, -270, -1, r.X1 + 40, r.Y1 + 75, 26.25);
  pen.LineRight(ring.x, ring.y, ring.x + 87.5);
}

void WritePaPhaSsa(StrokeRec& r, Pen& pen) {
  enum { Pa = 21, Pha = 22, Ssa = 31 };
  const int letter = LetterOf(r);
  const bool half = IsHalf(r);
  pen.LineDown(r.X1 + 62.5, r.Y1, r.Y1 + 56.25);
  if (letter != Ssa || !half) pen.Arc(180, 360, +1, r.X1 + 103.75, r.Y1 + 56.25, 41.25);
  if (letter != Pha && !half) pen.LineRight(r.X1 + 30, r.Y1, r.X1 + 180);
  if (letter != Ssa) pen.LineRight(r.X1 + 30, r.Y1, r.X1 + 230);
  if (letter != Pha && half) {
    pen.Arc(180, 310, +1, r.X1 + 103.75, r.Y1 + 56.25, 41.25);
    pen.LineRight(r.X1 + 30, r.Y1, r.X1 + 142.5);
  }
  if (letter == Pa && half) pen.LineRight(r.X1 + 30, r.Y1, r.X1 + 142.5);
}

void WriteBaVa(StrokeRec& r, Pen& pen) {
  enum { Ba = 23 };
  pen.Arc(60, 335, +1, r.X1 - 25, r.Y1 + 75, 37.5);
  if (LetterOf(r) == Ba) pen.SlantRight(40, r.X1 - 51.25, r.Y1 + 45, r.Y1 + 99.375);
}

void WriteBha(StrokeRec& r, Pen& pen) {
  const EndPoint ring = pen.Arc(360, 0, -1, r.X1 + 25, r.Y1 + 15, 18.75);
  pen.LineDown(ring.x, ring.y, ring.y + 75);
  const EndPoint curl = pen.Arc(360, 90, -1, ring.x - 15, ring.y + 75, 15);
  pen.LineRight(curl.x, curl.y, curl.x + 80);
}

void WriteMa(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 43.75, r.Y1, r.Y1 + 90);
  const EndPoint curl = pen.Arc(360, 90, -1, r.X1 + 28.75, r.Y1 + 90, 15);
  pen.LineRight(curl.x, curl.y, curl.x + 80);
}

void WriteYa(StrokeRec& r, Pen& pen) {
  const EndPoint hook = pen.Arc(55, 0, -1, r.X1 + 41.25, r.Y1 + 18.75, 22.5);
  const EndPoint back = pen.Arc(360, 290, -1, hook.x - 67.5, hook.y, 67.5);
  pen.Arc(220, 290, +1, back.x + 60, back.y - 45, 75);
}

/// The half form of र, which has nothing of the whole letter.
void WriteHalfRa(StrokeRec& r, Pen& pen) {
  if (r.AltFlag == 0) {
    pen.SlantLeft(50, r.Col2 + 0.45 * r.CellW, r.Row3 + 0.1 * r.CellH, r.Row3 + 0.5 * r.CellH);
  } else {
    pen.Arc(60, 210, +1, 470, 306.25, 30);
  }
}

/// The body of र and स.
void WriteRaBody(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 75, r.Y1, r.Y1 + 56.25);
  const EndPoint curl = pen.Arc(0, -130, -1, r.X1 + 45, r.Y1 + 56.25, 30);
  pen.SlantRight(40, curl.x, curl.y, r.Y1 + kHeight);
}

void WriteRa(StrokeRec& r, Pen& pen) {
  if (IsHalf(r)) return WriteHalfRa(r, pen);
  WriteRaBody(r, pen);
}

void WriteSa(StrokeRec& r, Pen& pen) {
  WriteRaBody(r, pen);
  r.Y1 = r.Row3;  // for the short bar to the stem alone
  WriteBar({.x = 697.5, .length = 57.5}, r, pen);
  r.Y1 = r.Row2;
}

void WriteLa(StrokeRec& r, Pen& pen) {
  r.R1 = 0.55 * r.R1;
  r.Rad = r.R1;
  pen.Arc(260, 0, -1, r.X1, r.Y1 + 105, 0.9 * r.Rad);
  pen.Arc(180, 40, -1, r.X1 + 1.8 * r.Rad, r.Y1 + 105, 0.9 * r.Rad);
}

void WriteHa(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1, r.Y1, r.Y1 + 22.5);
  pen.LineLeft(r.X1 - 28.5, r.Y1 + 22.5, r.X1);
  pen.Arc(90, 260, +1, r.X1 - 28.5, r.Y1 + 50.25, 27.75);
  pen.Arc(280, 400, +1, r.X1 + 0.5, r.Y1 + 93.75, 15);
  pen.Arc(40, 270, +1, r.X1 - 16, r.Y1 + 110.25, 37.5);
  if (!IsHalf(r)) pen.LineRight(r.X1 - 65.2125, r.Y1, r.X1 + 31.9125);
}

void WriteLla(StrokeRec& r, Pen& pen) {
  const EndPoint ring = pen.Arc(0, 360, +1, r.X1 + 81.5, r.Y1 + 72, 45);
  pen.Arc(180, -180, -1, ring.x + 45, r.Y1 + 72, 45);
  pen.LineDown(ring.x + 50, r.Y1, r.Y1 + 26.25);
  if (!IsHalf(r)) pen.LineRight(r.X1 + 36.5, r.Y1, ring.x + 90);
}

void WriteKsha(StrokeRec& r, Pen& pen) {
  pen.LineLeft(r.X1 + 25, r.Y1 + 49.5, r.X1 + 112.5);
  const EndPoint ring = pen.Arc(270, -90, -1, r.X1 + 25, r.Y1 + 19.5, 30);
  const EndPoint bow = pen.Arc(90, 340, +1, ring.x, ring.y + 37.5, 37.5);
  pen.Arc(-35, 325, +1, bow.x - 11.25, bow.y, 11.25);
  if (r.AltFlag == 0) {
    pen.Arc(90, -50, -1, bow.x, bow.y + 32.8125, 18.75);
  } else {
    pen.Arc(150, 230, +1, bow.x + 17.5, bow.y + 4.5, 30);
    pen.Arc(150, 241, +1, bow.x + 17.5, bow.y + 4.5, 26.25);
  }
}

void WriteTra(StrokeRec& r, Pen& pen) {
  const EndPoint arch = pen.Arc(160, 45, -1, r.X1 - 12.5, r.Y1 + 56.25, 26.25);
  pen.SlantRight(50, arch.x, arch.y, arch.y + 37.5);
  pen.SlantLeft(50, arch.x + 45, arch.y + 37.5, arch.y + 97.5);
}

void WriteJnya(StrokeRec& r, Pen& pen) {
  pen.LineLeft(r.X1 + 55, r.Y1 + 48.75, r.X1 + 130);
  pen.Arc(90, -140, -1, r.X1 + 55, r.Y1 + 82.5, 33.75);
  pen.SlantRight(40, r.X1 + 27.6625, r.Y1 + 101.25, r.Y1 + 150.1875);
}

/// A letter's column on the sheet, and how far in it its foot stroke begins right of the
/// column's middle, in widths of a cell.
struct Foot {
  int column;
  double across;
};

/// Where the parts of a letter stand.
struct Anchors {
  Letter body;
  double x;  ///< X1 of the body
  Extent stem, bar;
  Extent halfStem, halfBar;  ///< of set 2
  Foot foot;                 ///< of set 3
};

constexpr Extent kNone{};

// Letters that differ by a stroke share a routine.
// clang-format off
constexpr Anchors kLetters[] = {
    // body            X1      stem             bar             half: stem     half: bar       foot
    {WriteKa,          100,    kNone,           kNone,          kNone,         kNone,          {1, 0}},     //  1 ka क
    {WriteKha,         370,    kNone,           kNone,          kNone,         kNone,          {2, 0}},     //  2 kha ख
    {WriteGa,          600,    kNone,           kNone,          kNone,         kNone,          {3, 0.2}},   //  3 ga ग
    {WriteGha,         900,    {1008.75, 150},  {887.5, 150},   kNone,         {887.5, 112.5}, {4, 0.15}},  //  4 gha घ
    {WriteNgaDda,      250,    kNone,           kNone,          kNone,         kNone,          {1, 0}},     //  5 nga ङ
    {WriteCha,         165,    {273.75, 150},   {157.5, 150},   kNone,         kNone,          {1, 0.2}},   //  6 cha च
    {WriteChha,        400,    {508.75, 27},    {420, 125},     {508.75, 27},  kNone,          {2, 0}},     //  7 chha छ
    {WriteJa,          642.5,  {775, 150},      {657.5, 150},   kNone,         kNone,          {3, 0.2}},   //  8 ja ज
    {WriteJha,         975,    {1025, 150},     {907.5, 150},   kNone,         {907.5, 125},   {4, 0.2}},   //  9 jha झ
    {WriteNya,         212.5,  {262.5, 150},    {162.5, 150},   kNone,         kNone,          {1, 0.15}},  // 10 nya ञ
    {WriteTtaTthaDdha, 225,    kNone,           kNone,          kNone,         kNone,          {1, 0}},     // 11 tta ट
    {WriteTtaTthaDdha, 475,    kNone,           kNone,          kNone,         kNone,          {2, 0}},     // 12 ttha ठ
    {WriteNgaDda,      750,    kNone,           kNone,          kNone,         kNone,          {3, 0}},     // 13 dda ड
    {WriteTtaTthaDdha, 975,    kNone,           kNone,          kNone,         kNone,          {4, 0}},     // 14 ddha ढ
    {WriteNna,         100,    kNone,           kNone,          kNone,         kNone,          {1, 0.2}},   // 15 nna ण
    {WriteTa,          200,    kNone,           kNone,          kNone,         kNone,          {1, 0.15}},  // 16 ta त
    {WriteThaSha,      412.5,  {525, 150},      {490, 75},      kNone,         kNone,          {2, 0.2}},   // 17 tha थ
    {WriteDa,          750,    kNone,           kNone,          kNone,         kNone,          {3, 0.15}},  // 18 da द
    {WriteDha,         900,    {1008.75, 150},  {970, 87.5},    kNone,         kNone,          {4, 0.15}},  // 19 dha ध
    {WriteNa,          140,    {272.5, 150},    {157.5, 150},   kNone,         kNone,          {1, 0.2}},   // 20 na न
    {WritePaPhaSsa,    120,    kNone,           kNone,          kNone,         kNone,          {1, 0.15}},  // 21 pa प
    {WritePaPhaSsa,    337.5,  kNone,           kNone,          kNone,         kNone,          {2, 0.03}},  // 22 pha फ
    {WriteBaVa,        737.5,  {747.5, 150},    {662.5, 125},   kNone,         kNone,          {3, 0.1}},   // 23 ba ब
    {WriteBha,         900,    {1015, 150},     {965, 87.5},    kNone,         kNone,          {4, 0.15}},  // 24 bha भ
    {WriteMa,          150,    {262.5, 150},    {160, 137.5},   kNone,         {150, 112.5},   {1, 0.15}},  // 25 ma म
    {WriteYa,          162.5,  {275, 150},      {175, 125},     kNone,         {175, 100},     {1, 0.2}},   // 26 ya य
    {WriteRa,          420,    kNone,           {437.5, 112.5}, kNone,         kNone,          {2, 0.1}},   // 27 ra र
    {WriteLa,          690.75, {795, 150},      {637.5, 190},   kNone,         kNone,          {3, 0.27}},  // 28 la ल
    {WriteBaVa,        987.5,  {997.5, 150},    {912.5, 125},   kNone,         kNone,          {4, 0.1}},   // 29 va व
    {WriteThaSha,      162.5,  {275, 150},      {240, 75},      kNone,         kNone,          {1, 0.2}},   // 30 sha श
    {WritePaPhaSsa,    337.5,  kNone,           kNone,          kNone,         kNone,          {2, 0.03}},  // 31 ssa ष
    {WriteSa,          625,    {762.5, 150},    {624.75, 165},  kNone,         {650, 112.5},   {3, 0.16}},  // 32 sa स
    {WriteHa,          1000,   kNone,           kNone,          kNone,         kNone,          {4, 0}},     // 33 ha ह
    {WriteLla,         100,    kNone,           kNone,          kNone,         kNone,          {1, 0}},     // 34 lla ळ
    {WriteKsha,        400,    {515, 150},      {465, 87.5},    kNone,         kNone,          {2, 0.16}},  // 35 ksha क्ष
    {WriteTra,         712.5,  {762.5, 150},    {662.5, 150},   kNone,         kNone,          {3, 0.16}},  // 36 tra त्र
    {WriteJnya,        900,    {1032.5, 150},   {907.5, 150},   kNone,         kNone,          {4, 0.24}},  // 37 jnya ज्ञ
};
// clang-format on
static_assert(std::size(kLetters) == kHindiSetTiles);

}  // namespace

void WriteHindiConsonant(StrokeRec& rec, DrawingSurface& sheet) {
  if (rec.LetterNo < 1 || rec.LetterNo > kSets * kHindiSetTiles) return;
  if (!HasSecondForm(*FindLetterSet("hinc"), rec.LetterNo)) rec.AltFlag = 0;
  const Anchors& letter = kLetters[LetterOf(rec) - 1];
  const Extent& stem = IsHalf(rec) ? letter.halfStem : letter.stem;
  const Extent& bar = IsHalf(rec) ? letter.halfBar : letter.bar;
  Pen pen{rec, sheet};

  rec.X1 = letter.x;
  rec.Y1 = rec.Row2;
  letter.body(rec, pen);
  if (stem.length > 0) WriteStem(stem, rec, pen);
  if (bar.length > 0) WriteBar(bar, rec, pen);
  rec.CellW = 5 * rec.Unit;
  rec.CellH = rec.RowH;
}

void WriteHindiFootStroke(StrokeRec& rec, DrawingSurface& sheet) {
  rec.Y1 = rec.Row4 + 0.15 * rec.CellH;
  double across = 0;
  // a tile of another set has no column here: its stroke begins where its last part began
  if (SetOf(rec) == kSets) {
    const Foot& foot = kLetters[LetterOf(rec) - 1].foot;
    rec.X1 = ColumnOf(rec, foot.column) + 0.5 * rec.CellW;
    across = foot.across;
  }
  Pen pen{rec, sheet};
  pen.SlantRight(45, rec.X1 + across * rec.CellW, rec.Y1, rec.Y1 + 0.45 * rec.CellH);
}

}  // namespace bramlee
