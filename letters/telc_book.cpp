// Telugu consonants as in the book. A tile that shows several ways of writing its letter keeps the
// one that primers print, in the first of its columns; the others differ from the given letter in a
// part alone, or in where a ring begins. What a book form shares with its given letter is in
// telugu_parts.h.
#include "letters/book_forms.h"
#include "letters/telugu_parts.h"
#include "letters/telugu_shapes.h"

namespace bramlee {
namespace {

/// Rra about the middle of its round at (x, y), `scale` times as large as the whole letter. Its two
/// bowls meet in the middle, and each goes on into a side without a bend.
void WriteRraAbout(double x, double y, double scale, Pen& pen) {
  RingOfA(pen, x, y, scale);
  pen.Arc(163, 206, +1, x + 28 * scale, y + 18 * scale, 133 * scale);
  pen.Arc(206, 352, +1, x - 48 * scale, y + 55 * scale, 48.5 * scale);
  pen.Arc(188, 334, +1, x + 48 * scale, y + 55 * scale, 48.5 * scale);
  pen.Arc(-26, 11, +1, x - 28 * scale, y + 18 * scale, 133 * scale);
  CurlOfA(pen, x, y, scale);
}

/// The foot of ssa from the end of its bowl, bent to the right, `scale` as in WriteRraAbout. By
/// that bend it differs from the foot of pha.
void WriteFootOfSsa(EndPoint bowl, double scale, Pen& pen) {
  pen.Arc(180, 215, +1, bowl.x + 100 * scale, bowl.y, 100 * scale);
}

// Each letter: its anchors, then its strokes in writing order, a line each.

void WriteDda(StrokeRec& r, Pen& pen) {
  DdaAt(r.Col1, kWholeRing, r, pen);
}

// The stroke hangs out below the letter, as in tha and dha.
void WriteDdha(StrokeRec& r, Pen& pen) {
  const EndPoint bowl = DdaAt(r.Col1, kWholeRing, r, pen);
  pen.LineDown(bowl.x, bowl.y, r.Row4 + 22.5);
}

// The ring of tta, ta and la goes on into the bow.

void WriteTta(StrokeRec& r, Pen& pen) {
  TtaWithRing(141, -158, r, pen);
}

void WriteTa(StrokeRec& r, Pen& pen) {
  TaWithRing(195, r, pen);
}

void WriteLa(StrokeRec& r, Pen& pen) {
  LaWithRing(184, r, pen);
}

// The given ones write their tick twice.

void WriteNa(StrokeRec& r, Pen& pen) {
  NaWithTick(TickPasses::Once, r, pen);
}

void WriteMa(StrokeRec& r, Pen& pen) {
  MaWithTick(TickPasses::Once, r, pen);
}

void WriteYa(StrokeRec& r, Pen& pen) {
  YaWithTick(TickPasses::Once, r, pen);
}

void WriteVa(StrokeRec& r, Pen& pen) {
  VaWithTick(TickPasses::Once, r, pen);
}

// Of ssa X1, Y1 is the middle of the ring.
void WriteSsa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col2 + 70;
  r.Y1 = r.Row3 + 37.5;
  RingOfPa(r.X1, r.Y1, 1, pen);
  const EndPoint bowl = BowlAndBackOfPa(r.X1, r.Y1, 1, pen);
  TickOfPa(r.X1, r.Y1, r, pen);
  WriteFootOfSsa(bowl, 1, pen);
}

void WriteRra(StrokeRec& r, Pen& pen) {
  WriteRraAbout(r.Col3 + 125, r.Row3 - 28, 1, pen);
}

// The forms that hang below another consonant.

void WriteBelowTta(StrokeRec& r, Pen& pen) {
  BelowTtaWithRing(151, r, pen);
}

// Of na and ya X1, Y1 is where the pen begins.

// A back from above, a loop and a tail to the right.
void WriteBelowNa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1 + 165;
  r.Y1 = r.Row4 - 64;
  pen.Arc(66, -68, -1, r.X1 - 22, r.Y1 + 49.5, 54);
  pen.Arc(292, 120, -1, r.X1 - 7.5, r.Y1 + 85, 15.5);
  pen.Arc(120, 18, -1, r.X1 - 5, r.Y1 + 90, 21);
  pen.Arc(198, 290, +1, r.X1 + 38, r.Y1 + 76, 24);
}

// X1, Y1 is the middle of the ring that the stem from above runs into.
void WriteBelowMa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1 + 183.75;
  r.Y1 = r.Row4 + 25;
  pen.Arc(64, -40, -1, r.X1 - 27.5, r.Y1 - 61.25, 37);
  pen.Arc(140, 171, +1, r.X1 + 56, r.Y1 + 9, 72);
  pen.Arc(171, 427, +1, r.X1, r.Y1, 15.25);
  pen.Arc(67, 325, +1, r.X1 - 5.75, r.Y1 + 13.75, 30.25);
}

// A curl, a bowl, a rising back with a hook on top.
void WriteBelowYa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1 + 110;
  r.Y1 = r.Row4 + 14;
  pen.Arc(157, -78, -1, r.X1 + 11, r.Y1 + 4.5, 12);
  pen.Arc(102, 256, +1, r.X1 + 16.5, r.Y1 + 31, 15);
  pen.Arc(256, 365, +1, r.X1 + 20, r.Y1 + 17, 29.5);
  pen.Arc(5, 56, +1, r.X1 - 25, r.Y1 + 21, 75);
  pen.Arc(236, 11, -1, r.X1 + 28, r.Y1 - 58, 20.5);
}

void WriteBelowRa(StrokeRec& r, Pen& pen) {
  BowlOfRaBelow(r, pen);
}

// The whole letter without its tick, half as large.
void WriteBelowSsa(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1 + 168.75;
  r.Y1 = r.Row4 + 37.5;
  RingOfPa(r.X1, r.Y1, 0.5, pen);
  WriteFootOfSsa(BowlAndBackOfPa(r.X1, r.Y1, 0.5, pen), 0.5, pen);
}

void WriteBelowRra(StrokeRec& r, Pen& pen) {
  WriteRraAbout(r.Col3 + 125, r.Row4 + 25.5, 0.4, pen);
}

constexpr BookForm kBook[] = {
    {.tile = 13, .write = WriteTta     }, // ట
    {.tile = 15, .write = WriteDda     }, // డ
    {.tile = 16, .write = WriteDdha    }, // ఢ
    {.tile = 30, .write = WriteBelowTta}, // ్ట
    {.tile = 35, .write = WriteTa      }, // త
    {.tile = 39, .write = WriteNa      }, // న
    {.tile = 44, .write = WriteMa      }, // మ
    {.tile = 45, .write = WriteYa      }, // య
    {.tile = 47, .write = WriteLa      }, // ల
    {.tile = 48, .write = WriteVa      }, // వ
    {.tile = 50, .write = WriteSsa     }, // ష
    {.tile = 56, .write = WriteBelowNa }, // ్న
    {.tile = 61, .write = WriteBelowMa }, // ్మ
    {.tile = 62, .write = WriteBelowYa }, // ్య
    {.tile = 63, .write = WriteBelowRa }, // ్ర
    {.tile = 67, .write = WriteBelowSsa}, // ్ష
    {.tile = 74, .write = WriteRra     }, // ఱ
    {.tile = 75, .write = WriteBelowRra}, // ్ఱ
};

}  // namespace

std::span<const BookForm> TeluguConsonantsInTheBook() {
  return kBook;
}

}  // namespace bramlee
