// Telugu vowels and vowel signs as in the book.
#include "letters/book_forms.h"
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

// Each sign: its anchors, then its strokes in writing order, a line each.

void WriteSignI(StrokeRec& r, Pen& pen) {
  WriteLoop(r, pen);
}

void WriteSignIi(StrokeRec& r, Pen& pen) {
  WriteLoop(r, pen);
  pen.Arc(255, 0, -1, r.X1 + 4, r.Y1 - 134, 28);
}

// The signs that end a syllable stand close behind their letter, without a word.

void WriteAm(StrokeRec& r, Pen& pen) {
  LetterA(pen, r.Col1);
  pen.Arc(90, 450, +1, r.Col1 + 312, r.Row3, 75);
}

void WriteCandrabindu(StrokeRec& r, Pen& pen) {
  LetterA(pen, r.Col1);
  pen.Arc(90, 270, +1, r.Col1 + 325, r.Row3, 75);
}

void WriteAh(StrokeRec& r, Pen& pen) {
  LetterA(pen, r.Col1);
  pen.Arc(90, 450, +1, r.Col1 + 280, r.Row3 - 40, 28);
  pen.Arc(90, 450, +1, r.Col1 + 280, r.Row3 + 40, 28);
}

constexpr BookForm kBook[] = {
    {.tile = 17, .write = WriteSignI      }, // ి
    {.tile = 18, .write = WriteSignIi     }, // ీ
    {.tile = 33, .write = WriteAm         }, // అం
    {.tile = 34, .write = WriteCandrabindu}, // అఁ
    {.tile = 35, .write = WriteAh         }, // అః
};

}  // namespace

std::span<const BookForm> TeluguVowelsInTheBook() {
  return kBook;
}

}  // namespace bramlee
