// Hindi vowels and vowel signs as in the book. Their anchors are those of the given letters.
#include "letters/book_forms.h"
#include "letters/hindi_shapes.h"

namespace bramlee {
namespace {

// Each letter: its strokes in writing order, a line each.

void WriteUu(StrokeRec& r, Pen& pen) {
  WriteUuTo(-70, r, pen);
}

void WriteRi(StrokeRec& r, Pen& pen) {
  WriteArmsOfTra(r.X1 - 62.5, r, pen);
  WriteRiFromStem(r, pen);
}

void WriteSignOfAa(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 75, r.Y1, r.Y2);
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + 100);
}

void WriteMoonWithDot(StrokeRec& r, Pen& pen) {
  WriteMoonBowl(r, pen);
  WriteHindiDot(r.X1, r.Y1 - 52.5, pen);
}

// clang-format off
constexpr BookForm kForms[] = {
    {6,  WriteUu},           // ऊ
    {7,  WriteRi},           // ऋ
    {7,  WriteRi, true},     // its other form has the same fault
    {15, WriteSignOfAa},     // ा
    {27, WriteMoonWithDot},  // ँ
};
// clang-format on

}  // namespace

std::span<const BookForm> HindiVowelsInTheBook() {
  return kForms;
}

}  // namespace bramlee
