// Telugu vowels and vowel signs as in the book.
#include "letters/book_forms.h"
#include "letters/telugu_parts.h"
#include "letters/telugu_shapes.h"

namespace bramlee {
namespace {

/// The loop of the signs of i and ii: one line from its foot up the right side, over the top and
/// around into itself. X1 is its middle, Y1 its lower end.
void WriteLoop(StrokeRec& r, Pen& pen) {
  r.X1 = r.Col1 + 125;
  r.Y1 = r.Row2 - 10;
  pen.Arc(-127, -26, +1, r.X1, r.Y1 - 50, 50);
  pen.Arc(-26, 74, +1, r.X1 - 5, r.Y1 - 52.5, 55.5);
  pen.Arc(74, 163, +1, r.X1 + 1, r.Y1 - 73, 34.25);
  pen.Arc(163, 277, +1, r.X1 - 3.5, r.Y1 - 74.25, 30);
  pen.Arc(277, 306, +1, r.X1 - 9, r.Y1 - 120.5, 76.75);
}

/// The ring that ends the right bowl of u and uu, under the bar.
void WriteRingInBowl(StrokeRec& r, Pen& pen) {
  pen.Arc(10, 370, +1, r.X1 + 199.5, r.Row3 + 19.75, 20);
}

/// Short vocalic l, which the long one goes on from, `scale` times as large as the whole letter:
/// two arches, then a bow that comes up again beside them. (x, y) is where the pen begins.
EndPoint WriteVocalicLAt(double x, double y, double scale, Pen& pen) {
  pen.Arc(180, 0, -1, x + 37.5 * scale, y, 37.5 * scale);
  pen.Arc(185, -67, -1, x + 110 * scale, y - 3 * scale, 35 * scale);
  pen.Arc(113, 277, +1, x + 138.5 * scale, y + 64.5 * scale, 38.5 * scale);
  return pen.Arc(277, 414, +1, x + 134 * scale, y + 25.5 * scale, 78 * scale);
}

/// The sign of short o, which the long one goes on from. X1 becomes the middle of its ring, Y1 its
/// top.
void WriteSignOAt(double column, StrokeRec& r, Pen& pen) {
  r.X1 = column + 60;
  r.Y1 = r.Row2 - 9;
  pen.LineLeft(r.X1, r.Y1, r.X1 + 15);
  pen.Arc(270, 94, -1, r.X1, r.Y1 - 21.25, 21.25);
  pen.Arc(94, 40, -1, r.X1 + 1.75, r.Y1 + 5.5, 48);
  pen.Arc(146, 83, -1, r.X1 + 69.5, r.Y1 - 4.5, 37.5);
  r.X1 += 105, r.Y1 -= 41.75;
  pen.LineRight(r.X1 - 31, r.Y1, r.X1);
  pen.Arc(90, -270, -1, r.X1, r.Y1 + 22, 22);
}

// Each letter and sign: its anchors, then its strokes in writing order, a line each.

void WriteU(StrokeRec& r, Pen& pen) {
  BowlsOfU(r.Col1, r, pen);
  WriteRingInBowl(r, pen);
  RestOfU(r, pen);
}

void WriteUu(StrokeRec& r, Pen& pen) {
  BowlsOfU(r.Col2, r, pen);
  WriteRingInBowl(r, pen);
  RestOfUu(r, pen);
}

void WriteVocalicL(StrokeRec& r, Pen& pen) {
  WriteVocalicLAt(r.Col1 + 25, r.Row2 + 37.5, 1, pen);
}

void WriteVocalicLl(StrokeRec& r, Pen& pen) {
  const EndPoint bow = WriteVocalicLAt(r.Col2 + 25, r.Row2 + 37.5, 1, pen);
  SideHook(pen, bow.x, bow.y, 24);
}

void WriteSignI(StrokeRec& r, Pen& pen) {
  WriteLoop(r, pen);
}

void WriteSignIi(StrokeRec& r, Pen& pen) {
  WriteLoop(r, pen);
  pen.Arc(255, 0, -1, r.X1 + 4, r.Y1 - 134, 28);
}

void WriteSignO(StrokeRec& r, Pen& pen) {
  WriteSignOAt(r.Col1, r, pen);
}

void WriteSignOo(StrokeRec& r, Pen& pen) {
  WriteSignOAt(r.Col2, r, pen);
  pen.Arc(270, 0, -1, r.X1, r.Y1 - 20, 20);
}

void WriteSignVocalicL(StrokeRec& r, Pen& pen) {
  WriteVocalicLAt(r.Col1 + 25, r.Row4 + 18.75, 0.5, pen);
}

void WriteSignVocalicLl(StrokeRec& r, Pen& pen) {
  const EndPoint bow = WriteVocalicLAt(r.Col2 + 25, r.Row4 + 18.75, 0.5, pen);
  SideHook(pen, bow.x, bow.y, 12);
}

// The signs that end a syllable stand close behind their letter. The word that spells their
// sound is left out.

void WriteAm(StrokeRec& r, Pen& pen) {
  LetterA(pen, r.Col1);
  pen.Arc(90, 450, +1, r.Col1 + 330, r.Row3 + 5, 64);
}

void WriteCandrabindu(StrokeRec& r, Pen& pen) {
  LetterA(pen, r.Col1);
  pen.Arc(90, 270, +1, r.Col1 + 337, r.Row3 + 3, 66);
}

void WriteAh(StrokeRec& r, Pen& pen) {
  LetterA(pen, r.Col1);
  pen.Arc(90, 450, +1, r.Col1 + 290, r.Row3 - 55, 28.5);
  pen.Arc(90, 450, +1, r.Col1 + 290, r.Row3 + 45, 28.5);
}

constexpr BookForm kBook[] = {
    {.tile = 5,  .write = WriteU            }, // ఉ
    {.tile = 6,  .write = WriteUu           }, // ఊ
    {.tile = 17, .write = WriteSignI        }, // ి
    {.tile = 18, .write = WriteSignIi       }, // ీ
    {.tile = 26, .write = WriteSignO        }, // ొ
    {.tile = 27, .write = WriteSignOo       }, // ో
    {.tile = 29, .write = WriteSignVocalicL }, // ౢ
    {.tile = 30, .write = WriteSignVocalicLl}, // ౣ
    {.tile = 31, .write = WriteVocalicL     }, // ఌ
    {.tile = 32, .write = WriteVocalicLl    }, // ౡ
    {.tile = 33, .write = WriteAm           }, // అం
    {.tile = 34, .write = WriteCandrabindu  }, // అఁ
    {.tile = 35, .write = WriteAh           }, // అః
};

}  // namespace

std::span<const BookForm> TeluguVowelsInTheBook() {
  return kBook;
}

}  // namespace bramlee
