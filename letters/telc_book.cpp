// Telugu consonants as in the book. A tile that shows several ways of writing its letter keeps the
// one that primers print, in the first of its columns; the others differ from the given letter in a
// part alone. What a book form shares with its given letter is in telugu_parts.h.
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

// Each letter: its anchors, then its strokes in writing order, a line each.

void WriteDda(StrokeRec& r, Pen& pen) {
  DdaAt(r.Col1, kWholeRing, r, pen);
}

void WriteDdha(StrokeRec& r, Pen& pen) {
  DdhaAt(r.Col1, kWholeRing, r, pen);
}

void WriteTa(StrokeRec& r, Pen& pen) {
  LeftRingOfTaAt(r.Col1, kBowlOfTa, r, pen);
  TaFromBowlAt(r.Col1, r, pen);
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

void WriteRra(StrokeRec& r, Pen& pen) {
  WriteRraAbout(r.Col3 + 125, r.Row3 - 28, 1, pen);
}

// The forms that hang below another consonant.

void WriteBelowNa(StrokeRec& r, Pen& pen) {
  BelowNaWithTailAt(r.Col1, r, pen);
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

void WriteBelowYa(StrokeRec& r, Pen& pen) {
  BelowYaWithCurlAt(r.Col1, r, pen);
}

void WriteBelowRa(StrokeRec& r, Pen& pen) {
  BelowRaBowlAt(r.Col1, r, pen);
}

void WriteBelowSsa(StrokeRec& r, Pen& pen) {
  BelowSsaAsLetterAt(r.Col1, r, pen);
}

void WriteBelowRra(StrokeRec& r, Pen& pen) {
  WriteRraAbout(r.Col3 + 125, r.Row4 + 25.5, 0.4, pen);
}

constexpr BookForm kBook[] = {
    {.tile = 15, .write = WriteDda     }, // డ
    {.tile = 16, .write = WriteDdha    }, // ఢ
    {.tile = 35, .write = WriteTa      }, // త
    {.tile = 39, .write = WriteNa      }, // న
    {.tile = 44, .write = WriteMa      }, // మ
    {.tile = 45, .write = WriteYa      }, // య
    {.tile = 48, .write = WriteVa      }, // వ
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
