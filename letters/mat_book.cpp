// Digits and signs as in the book. Digits stand where the given ones do.
#include "letters/book_forms.h"
#include "letters/mat.h"

namespace bramlee {
namespace {

/// The ring of the 9 from its upper right, where the hand begins it; returns the ring's right side.
EndPoint WriteRingFromAbove(StrokeRec& r, Pen& pen) {
  WriteRingOfNine(45, r, pen);
  return {.x = r.X1 + r.R4, .y = r.CY1};
}

// Each digit and sign: its strokes in writing order, a line each.

void WriteFive(StrokeRec& r, Pen& pen) {
  LayFive(r);
  WriteStemAndBowOfFive(r, pen);
  pen.LineRight(r.WX1, r.WY1, r.WX2);
}

void WriteNine(StrokeRec& r, Pen& pen) {
  WriteStemOfNine(WriteRingFromAbove(r, pen), r, pen);
}

void WriteHookedNine(StrokeRec& r, Pen& pen) {
  WriteStemAndHookOfNine(WriteRingFromAbove(r, pen), r, pen);
}

// clang-format off
constexpr BookForm kForms[] = {
    {5,  WriteFive},              // hat last
    {9,  WriteNine},
    {9,  WriteHookedNine, true},
    {13, WriteCross},             // without the star
    {14, WriteBarAndDots},        // without the slash
};
// clang-format on

}  // namespace

std::span<const BookForm> NumbersInTheBook() {
  return kForms;
}

}  // namespace bramlee
