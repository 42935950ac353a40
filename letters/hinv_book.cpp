// Hindi vowels and vowel signs as in the book. Their anchors are those of the given letters.
#include "letters/book_forms.h"
#include "letters/hindi_shapes.h"

namespace bramlee {
namespace {

// Each letter: its strokes in writing order, a line each.

void WriteUu(StrokeRec& r, Pen& pen) {
  WriteUBows(r, pen);
  pen.Arc(130, -85, -1, r.X1 + 90, r.Y1 + 110, 33.5);
  pen.LineRight(r.X1 - 42, r.Y1, r.X1 + 139);
}

void WriteRi(StrokeRec& r, Pen& pen) {
  const EndPoint arch = pen.Arc(160, 45, -1, r.X1 - 50.5, r.Y1 + 60, 26.25);
  pen.SlantRight(50, arch.x, arch.y, r.Y1 + 68);
  pen.SlantLeft(46, r.X1, r.Y1 + 68, r.Y1 + 128);
  pen.LineDown(r.X1, r.Y1, r.Y1 + kHindiStem);
  pen.SlantUpRight(43, r.X1, r.Y1 + 82.5, r.Y1 + 44);
  const EndPoint loop = pen.Arc(-70, 270, +1, r.X1 + 41, r.Y1 + 38, 7);
  pen.SlantRight(10, loop.x, loop.y, r.Y1 + 78);
  pen.Arc(100, 300, +1, r.X1 + 52, r.Y1 + 104, 26);
  pen.LineRight(r.X1 - 75, r.Y1, r.X1 + 75);
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
