// Hindi vowels and vowel signs. A letter hangs from a bar at Y1 (325) and is 150 high; what
// stands above the bar goes up from Y1, what hangs below the foot goes down from Y2 (475). X1
// places the letter in its cell: the anchors of all tiles stand in one table at the end.
#include "letters/hindi_shapes.h"
#include "letters/letter_sets.h"
#include "letters/pen.h"

namespace bramlee {
namespace {

/// Stems and bodies are this high.
constexpr double kHeight = 150;

// Strokes that several letters share.

/// The body of अ up to its stem; gives the place of the stem.
EndPoint WriteABody(const StrokeRec& r, Pen& pen) {
  pen.Arc(150, -90, -1, r.X1 + 30, r.Y1 + 30, 30);
  pen.Arc(90, -170, -1, r.X1 + 30, r.Y1 + 105, 45);
  return pen.Arc(222, 320, +1, r.X1 + 78, r.Y1 + 37.5, 37.5);
}

/// The sign of e; gives the place where it meets the bar.
EndPoint WriteESign(const StrokeRec& r, Pen& pen) {
  pen.Arc(70, -290, -1, r.X1 + 110, r.Y1 - 27, 7.5);
  return pen.SlantRight(45, r.X1 + 114.5, r.Y1 - 33, r.Y1);
}

/// What the sign of ai has above that of e; gives the place where it meets the bar.
EndPoint WriteAiSign(const StrokeRec& r, Pen& pen) {
  pen.Arc(45, -290, -1, r.X1 + 112.5, r.Y1 - 55.5, 7.5);
  return pen.SlantRight(30, r.X1 + 119.5, r.Y1 - 59.25, r.Y1);
}

/// One of the round dots of ं and ः.
void WriteDot(double centreX, double centreY, Pen& pen) {
  pen.Arc(90, -270, -1, centreX, centreY, 7.5);
}

// Each letter: its strokes in writing order, a line each.

void WriteAAaOtherwise(StrokeRec& r, Pen& pen) {
  enum { A = 1, Aa = 2 };
  const EndPoint waist = pen.Arc(150, -90, -1, r.X1 + 37.5, r.Y1 + 37.5, 37.5);
  pen.Arc(90, -170, -1, r.X1 + 37.5, r.Y1 + 112.5, 37.5);
  pen.LineRight(waist.x, waist.y, waist.x + 75);
  pen.LineDown(waist.x + 75, r.Y1, r.Y1 + kHeight);
  if (r.LetterNo == A) pen.LineRight(waist.x + 45, r.Y1, waist.x + 105);
  if (r.LetterNo == Aa) {
    pen.LineDown(waist.x + 112.5, r.Y1, r.Y1 + kHeight);
    pen.LineRight(waist.x + 45, r.Y1, waist.x + 142.5);
  }
}

void WriteAAa(StrokeRec& r, Pen& pen) {
  enum { A = 1, Aa = 2 };
  if (r.AltFlag != 0) return WriteAAaOtherwise(r, pen);
  const EndPoint stem = WriteABody(r, pen);
  pen.LineDown(stem.x, r.Y1, r.Y1 + kHeight);
  if (r.LetterNo == A) pen.LineRight(stem.x - 36, r.Y1, stem.x + 36);
  if (r.LetterNo == Aa) {
    pen.LineDown(stem.x + 45, r.Y1, r.Y1 + kHeight);
    pen.LineRight(stem.x - 36, r.Y1, stem.x + 81);
  }
}

void WriteIIi(StrokeRec& r, Pen& pen) {
  enum { I = 3, Ii = 4 };
  const EndPoint bowl = WriteHook(r, pen).lower;
  pen.SlantRight(60, bowl.x, bowl.y, bowl.y + 36);
  pen.LineRight(r.X1 - 55.5, r.Y1, r.X1 + 27.75);
  if (r.LetterNo == Ii) pen.Arc(250, 70, -1, r.X1 + 5.625, r.Y1 - 26.25, 26.25);
}

void WriteUUu(StrokeRec& r, Pen& pen) {
  enum { U = 5, Uu = 6 };
  pen.Arc(65, -90, -1, r.X1 + 30, r.Y1 + 30, 30);
  pen.Arc(90, -170, -1, r.X1 + 30, r.Y1 + 105, 45);
  if (r.LetterNo == U) pen.LineRight(r.X1 - 12, r.Y1, r.X1 + 105);
  if (r.LetterNo == Uu) {
    pen.Arc(150, 0, -1, r.X1 + 90, r.Y1 + 90, 37.5);
    pen.LineRight(r.X1 - 12, r.Y1, r.X1 + 129);
  }
}

void WriteRiOtherwise(StrokeRec& r, Pen& pen) {
  const EndPoint bow = pen.Arc(100, -90, -1, r.X1 - 52.5, r.Y1 + 78.75, 52.5);
  pen.LineDown(r.X1, r.Y1, r.Y1 + kHeight);
  pen.SlantUpRight(45, bow.x, bow.y, bow.y - 94.5);
  const EndPoint loop = pen.Arc(300, 570, +1, r.X1 + 34.2, r.Y1 + 31.5, 9);
  pen.SlantRight(45, loop.x, loop.y, loop.y + 27);
  pen.Arc(90, 300, +1, r.X1 + 54, r.Y1 + 96, 30);
  pen.LineRight(r.X1 - 75, r.Y1, r.X1 + 75);
}

void WriteRi(StrokeRec& r, Pen& pen) {
  if (r.AltFlag != 0) return WriteRiOtherwise(r, pen);
  pen.Arc(110, -110, -1, r.X1 - 37.5, r.Y1 + 60, 37.5);
  pen.LineDown(r.X1, r.Y1, r.Y1 + kHeight);
  pen.SlantUpRight(45, r.X1, r.Y1 + 82.5, r.Y1 + 50);
  const EndPoint loop = pen.Arc(-70, 270, +1, r.X1 + 31.05, r.Y1 + 37.8, 9);
  pen.SlantRight(45, loop.x, loop.y, loop.y + 23.4);
  pen.Arc(90, 300, +1, r.X1 + 54, r.Y1 + 99, 30);
  pen.LineRight(r.X1 - 75, r.Y1, r.X1 + 75);
}

void WriteEAi(StrokeRec& r, Pen& pen) {
  enum { E = 8, Ai = 9 };
  const bool curled = r.AltFlag == 0;  // the alternative form leaves both curls out
  pen.LineDown(r.X1 + 75, r.Y1, r.Y1 + 75);
  const EndPoint tail = pen.SlantRight(45, r.X1 + 75, r.Y1 + 75, r.Y1 + kHeight);
  if (curled) pen.Arc(45, -160, -1, tail.x - 12, tail.y + 10.5, 15);
  pen.LineDown(r.X1 + 150, r.Y1, r.Y1 + 75);
  if (curled) pen.Arc(0, -160, -1, r.X1 + 135, r.Y1 + 72.75, 15);
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + 175);
  if (r.LetterNo == Ai) {
    pen.Arc(90, -270, -1, r.X1 + 87.5, r.Y1 - 35.25, 7.5);
    pen.SlantRight(55, r.X1 + 95, r.Y1 - 37.5, r.Y1);
  }
}

void WriteOAu(StrokeRec& r, Pen& pen) {
  enum { O = 10, Au = 11 };
  if (r.AltFlag != 0) return;  // they have no other form, and no tile to click then
  const EndPoint stem = WriteABody(r, pen);
  pen.LineDown(stem.x, r.Y1, r.Y1 + kHeight);
  pen.LineDown(stem.x + 45, r.Y1, r.Y1 + kHeight);
  pen.LineRight(stem.x - 36, r.Y1, stem.x + 81);
  WriteESign(r, pen);
  if (r.LetterNo == Au) WriteAiSign(r, pen);
}

void WriteAmAh(StrokeRec& r, Pen& pen) {
  enum { Am = 12, Ah = 13 };
  const EndPoint stem = WriteABody(r, pen);
  pen.LineDown(stem.x, r.Y1, r.Y1 + kHeight);
  pen.LineRight(stem.x - 36, r.Y1, stem.x + 36);
  if (r.LetterNo == Am) WriteDot(stem.x, r.Y1 - 22.5, pen);
  if (r.LetterNo == Ah) {
    WriteDot(stem.x + 37.5, r.Y1 + 37.5, pen);
    WriteDot(stem.x + 37.5, r.Y1 + 112.5, pen);
  }
}

void WriteAaSign(StrokeRec& r, Pen& pen) {
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + 100);
  pen.LineDown(r.X1 + 75, r.Y1, r.Y2);
}

void WriteISign(StrokeRec& r, Pen& pen) {
  pen.Arc(0, 180, +1, r.X1 + 37.5, r.Y1 - 5.625, 37.5);
  pen.LineDown(r.X1, r.Y1, r.Y2);
  pen.LineRight(r.X1 - 25, r.Y1, r.X1 + 25);
}

void WriteIiSign(StrokeRec& r, Pen& pen) {
  pen.Arc(180, 0, -1, r.X1 + 37.5, r.Y1 - 5.625, 37.5);
  pen.LineDown(r.X1 + 75, r.Y1, r.Y2);
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + 100);
}

void WriteUSign(StrokeRec& r, Pen& pen) {
  pen.Arc(180, -60, -1, r.X1 + 75, r.Y2 + 15, 15);
  pen.Arc(300, 220, -1, r.X1 + 57.5, r.Y2 - 17.25, 52.5);
}

void WriteUuSign(StrokeRec& r, Pen& pen) {
  pen.Arc(0, -260, -1, r.X1 + 75, r.Y2 + 21, 15);
  pen.Arc(-255, -335, -1, r.X1 + 87.5, r.Y2 + 54.75, 52.5);
}

void WriteRiSign(StrokeRec& r, Pen& pen) {
  pen.Arc(95, 300, +1, r.X1 + 82.5, r.Y2 + 16.5, 16.5);
}

void WriteSignsOfEToAu(StrokeRec& r, Pen& pen) {
  enum { E = 21, Ai = 22, O = 23, Au = 24 };
  EndPoint end = WriteESign(r, pen);
  if (r.LetterNo == Ai || r.LetterNo == Au) end = WriteAiSign(r, pen);
  if (r.LetterNo == O || r.LetterNo == Au) {
    pen.LineDown(end.x, r.Y1, r.Y4);  // the stem hangs where the last slant ended
    pen.LineRight(end.x - 25, r.Y1, end.x + 25);
  }
}

void WriteDots(StrokeRec& r, Pen& pen) {
  enum { DotAbove = 25, TwoDots = 26 };
  if (r.LetterNo == DotAbove) WriteDot(r.X1, r.Y1 - 22.5, pen);
  if (r.LetterNo == TwoDots) {
    WriteDot(r.X1, r.Y1 + 37.5, pen);
    WriteDot(r.X1, r.Y1 + 112.5, pen);
  }
}

void WriteMoon(StrokeRec& r, Pen& pen) {
  pen.Arc(190, 350, +1, r.X1, r.Y1 - 45, 30);
}

void WriteMarkBelow(StrokeRec& r, Pen& pen) {
  EndPoint start{.x = r.X1 + 122.5, .y = r.Y2 + 15};
  if (r.AltFlag == 0) {
    start = pen.Arc(70, -290, -1, r.X1 + 110, r.Y2 + 15, 6);
  } else {
    pen.LineRight(r.X1 + 110, r.Y2 + 15, start.x);
  }
  pen.SlantRight(45, start.x, start.y, r.Y2 + 37.5);
}

/// Where a letter stands on the sheet, and its routine.
struct Tile {
  int column;
  double across;  ///< X1's distance from the column's left edge, in widths of a cell
  bool foot;      ///< Y2 is the foot line
  Letter write;
};

// Letters that differ by a stroke share a routine.
// clang-format off
constexpr Tile kTiles[] = {
    // column, across, foot, strokes
    {1, 0.2,  false, WriteAAa},           //  1 अ
    {2, 0.2,  false, WriteAAa},           //  2 आ
    {3, 0.5,  false, WriteIIi},           //  3 इ
    {4, 0.5,  false, WriteIIi},           //  4 ई
    {1, 0.2,  false, WriteUUu},           //  5 उ
    {2, 0.25, false, WriteUUu},           //  6 ऊ
    {3, 0.5,  false, WriteRi},            //  7 ऋ
    {1, 0,    false, WriteEAi},           //  8 ए
    {2, 0,    false, WriteEAi},           //  9 ऐ
    {3, 0.2,  false, WriteOAu},           // 10 ओ
    {4, 0.2,  false, WriteOAu},           // 11 औ
    {1, 0.2,  false, WriteAmAh},          // 12 अं
    {2, 0.2,  false, WriteAmAh},          // 13 अः
    {1, 0,    false, nullptr},            // 14 a picture in the first cell, no strokes
    {2, 0.2,  true,  WriteAaSign},        // 15 ा
    {3, 0.2,  true,  WriteISign},         // 16 ि
    {4, 0.4,  true,  WriteIiSign},        // 17 ी
    {1, 0.2,  true,  WriteUSign},         // 18 ु
    {2, 0.2,  true,  WriteUuSign},        // 19 ू
    {3, 0.2,  true,  WriteRiSign},        // 20 ृ
    {1, 0,    true,  WriteSignsOfEToAu},  // 21 े
    {2, 0,    true,  WriteSignsOfEToAu},  // 22 ै
    {3, 0,    true,  WriteSignsOfEToAu},  // 23 ो
    {4, 0,    true,  WriteSignsOfEToAu},  // 24 ौ
    {1, 0.5,  false, WriteDots},          // 25 ं
    {2, 0.6,  false, WriteDots},          // 26 ः
    {3, 0.5,  true,  WriteMoon},          // 27 ँ
    {4, 0,    true,  WriteMarkBelow},     // 28 ्
};
// clang-format on
static_assert(std::size(kTiles) == 28);

}  // namespace

void WriteHindiVowel(StrokeRec& rec, DrawingSurface& sheet) {
  if (rec.LetterNo < 1 || rec.LetterNo > std::ssize(kTiles)) return;
  const Tile& tile = kTiles[rec.LetterNo - 1];
  if (tile.write == nullptr) return;
  rec.X1 = ColumnOf(rec, tile.column) + tile.across * rec.CellW;
  rec.Y1 = rec.Row2;
  if (tile.foot) rec.Y2 = rec.Row4;
  Pen pen{rec, sheet};
  tile.write(rec, pen);
}

}  // namespace bramlee
