// Hindi consonants, letters 1 to 19: ka to dha, whole and half. What hinc.cpp adds to a body, its
// stem, bar and foot stroke, stands in the table at the end.
#include "letters/hinc.h"
#include "letters/hindi_shapes.h"
#include "letters/letter_sets.h"

namespace bramlee {
namespace {

// Parts that several letters or forms share: a change to one changes all that use it.

/// The whole of क, its right bow from the stem to the angle `end`.
void WriteKaTo(double end, StrokeRec& r, Pen& pen) {
  const EndPoint ring = pen.Arc(45, 360, +1, r.X1 + 81.5, r.Y1 + 72, 45);
  pen.Arc(180, end, -1, ring.x + 45, r.Y1 + 72, 45);
  pen.LineDown(ring.x, r.Y1, r.Y1 + kHindiStem);
  pen.LineRight(r.X1 + 36.5, r.Y1, ring.x + 90);
}

/// What whole and half ख have in common: all but the stem and the bar.
void WriteKhaBody(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 75, r.Y1, r.Y1 + 75);
  const EndPoint curl = pen.Arc(0, -160, -1, r.X1 + 60, r.Y1 + 75, 15);
  pen.Arc(180, 340, +1, curl.x + 66.75, curl.y, 66.75);
  pen.Arc(60, 360, +1, r.X1 + 147.5, r.Y1 + 75, 30);
}

/// The hook of ग, beginning with a slant.
void WriteGaHook(StrokeRec& r, Pen& pen) {
  pen.SlantRight(45, r.X1 + 62.5, r.Y1 + 75, r.Y1 + 111.75);
  pen.LineUp(r.X1 + 100, r.Y1 + 112.5, r.Y1);
}

/// The stem and bar of whole ग.
void WriteGaStemAndBar(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 177.5, r.Y1, r.Y1 + kHindiStem);
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + 200);
}

/// The bar of ङ and ड.
void WriteBarOverHook(StrokeRec& r, Pen& pen) {
  pen.LineRight(r.X1 - 63.825, r.Y1, r.X1 + 31.9125);
}

/// The short stem and the round of ट, ठ and ढ, to the angle `end`; returns the end of the round.
EndPoint WriteStemAndRound(double end, StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1, r.Y1, r.Y1 + 30);
  return pen.Arc(90, end, +1, r.X1, r.Y1 + 86.25, 56.25);
}

/// The bar of ट, ठ and ढ.
void WriteBarOverRound(StrokeRec& r, Pen& pen) {
  pen.LineRight(r.X1 - 60, r.Y1, r.X1 + 60);
}

/// What whole and half ण have in common: all but the stem and the bar.
void WriteNnaBody(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 62.5, r.Y1, r.Y1 + 105);
  const EndPoint bow = pen.Arc(180, 360, +1, r.X1 + 92.5, r.Y1 + 105, 30);
  pen.LineUp(bow.x, bow.y, r.Y1);
}

/// The half form of त, its bow to the angle `end`.
void WriteTaTo(double end, StrokeRec& r, Pen& pen) {
  pen.LineLeft(r.X1, r.Y1 + 63.75, r.X1 + 62.5);
  const EndPoint bow = pen.Arc(90, end, +1, r.X1, r.Y1 + 91.5, 27.75);
  pen.SlantRight(30, bow.x, bow.y, bow.y + 45);
}

/// The stem and bow of द; returns the end of the bow.
EndPoint WriteDaBow(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1, r.Y1, r.Y1 + 30);
  pen.LineLeft(r.X1 - 28.5, r.Y1 + 30, r.X1);
  return pen.Arc(85, 313, +1, r.X1 - 25, r.Y1 + 82.5, 52.5);
}

/// The bar of द.
void WriteDaBar(StrokeRec& r, Pen& pen) {
  pen.LineRight(r.X1 - 75, r.Y1, r.X1 + 45);
}

// Each body: its strokes in writing order, a line each. A half form stands before a whole one
// that goes on from it.

void WriteKa(StrokeRec& r, Pen& pen) {
  WriteKaTo(-100, r, pen);
}

void WriteHalfKa(StrokeRec& r, Pen& pen) {
  WriteKaTo(70, r, pen);
}

void WriteKha(StrokeRec& r, Pen& pen) {
  WriteKhaBody(r, pen);
  pen.LineDown(r.X1 + 177.5, r.Y1, r.Y1 + kHindiStem);
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + 202.5);
}

void WriteHalfKha(StrokeRec& r, Pen& pen) {
  WriteKhaBody(r, pen);
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + 202.5);
}

void WriteGa(StrokeRec& r, Pen& pen) {
  WriteGaHook(r, pen);
  WriteGaStemAndBar(r, pen);
}

void WriteGaOtherwise(StrokeRec& r, Pen& pen) {
  pen.Arc(180, 360, +1, r.X1 + 73.75, r.Y1 + 105, 26.25);
  pen.LineUp(r.X1 + 100, r.Y1 + 105, r.Y1);
  WriteGaStemAndBar(r, pen);
}

void WriteHalfGa(StrokeRec& r, Pen& pen) {
  WriteGaHook(r, pen);
  pen.LineRight(r.X1 + 50, r.Y1, r.X1 + 137.5);
}

void WriteGha(StrokeRec& r, Pen& pen) {
  pen.Arc(90, 270, +1, r.X1 + 41.25, r.Y1 + 33.75, 33.75);
  const EndPoint bow = pen.Arc(90, 272, +1, r.X1 + 41.25, r.Y1 + 101.25, 33.75);
  pen.Arc(270, 345, +1, bow.x + 4.4625, bow.y - 62.475, 63.75);
}

void WriteHalfNga(StrokeRec& r, Pen& pen) {
  WriteHook(r, pen);
  pen.Arc(90, 450, +1, r.X1 + 25, r.Y1 + 48.75, 5.25);
}

void WriteNga(StrokeRec& r, Pen& pen) {
  WriteHalfNga(r, pen);
  WriteBarOverHook(r, pen);
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
}

void WriteChhaOtherwise(StrokeRec& r, Pen& pen) {
  WriteChha(r, pen);
  pen.Arc(160, 0, -1, r.X1 + 151.825, r.Y1 + 60, 18.75);
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

void WriteHalfTta(StrokeRec& r, Pen& pen) {
  WriteStemAndRound(310, r, pen);
}

void WriteTta(StrokeRec& r, Pen& pen) {
  WriteHalfTta(r, pen);
  WriteBarOverRound(r, pen);
}

void WriteHalfTtha(StrokeRec& r, Pen& pen) {
  WriteStemAndRound(450, r, pen);
}

void WriteTtha(StrokeRec& r, Pen& pen) {
  WriteHalfTtha(r, pen);
  WriteBarOverRound(r, pen);
}

void WriteHalfDda(StrokeRec& r, Pen& pen) {
  WriteHook(r, pen);
}

void WriteDda(StrokeRec& r, Pen& pen) {
  WriteHalfDda(r, pen);
  WriteBarOverHook(r, pen);
}

void WriteHalfDdha(StrokeRec& r, Pen& pen) {
  const EndPoint bow = WriteStemAndRound(310, r, pen);
  pen.Arc(-36, 325, +1, bow.x - 15.525, r.Y1 + 112.125, 22.5);
}

void WriteDdha(StrokeRec& r, Pen& pen) {
  WriteHalfDdha(r, pen);
  WriteBarOverRound(r, pen);
}

void WriteNna(StrokeRec& r, Pen& pen) {
  WriteNnaBody(r, pen);
  pen.LineDown(r.X1 + 177.5, r.Y1, r.Y1 + kHindiStem);
  pen.LineRight(r.X1 + 35, r.Y1, r.X1 + 202.5);
}

void WriteHalfNna(StrokeRec& r, Pen& pen) {
  WriteNnaBody(r, pen);
  pen.LineRight(r.X1 + 35, r.Y1, r.X1 + 152.5);
}

void WriteHalfTa(StrokeRec& r, Pen& pen) {
  WriteTaTo(210, r, pen);
}

void WriteHalfTaOtherwise(StrokeRec& r, Pen& pen) {
  WriteTaTo(180, r, pen);
}

void WriteTa(StrokeRec& r, Pen& pen) {
  WriteHalfTa(r, pen);
  pen.LineDown(r.X1 + 62.5, r.Y1, r.Y1 + kHindiStem);
  pen.LineRight(r.X1 - 25, r.Y1, r.X1 + 100);
}

void WriteTha(StrokeRec& r, Pen& pen) {
  WriteRingAndTail(r, pen);
}

void WriteHalfDa(StrokeRec& r, Pen& pen) {
  const EndPoint bow = WriteDaBow(r, pen);
  pen.Arc(-35, 325, +1, bow.x - 6.1875, r.Y1 + 111, 11.25);
  pen.Arc(90, -50, -1, bow.x, r.Y1 + 139.125, 18.75);
}

void WriteDa(StrokeRec& r, Pen& pen) {
  WriteHalfDa(r, pen);
  WriteDaBar(r, pen);
}

void WriteDaOtherwise(StrokeRec& r, Pen& pen) {
  const EndPoint bow = WriteDaBow(r, pen);
  pen.Arc(-35, 325, +1, bow.x - 9, r.Y1 + 112.5, 11.25);
  pen.Arc(150, 230, +1, bow.x + 17.5, r.Y1 + 124.5, 30);
  pen.Arc(150, 241, +1, bow.x + 17.5, r.Y1 + 124.5, 26.25);
  WriteDaBar(r, pen);
}

void WriteDha(StrokeRec& r, Pen& pen) {
  pen.Arc(180, 540, +1, r.X1 + 29.85, r.Y1 + 18.9, 21);
  pen.Arc(90, 270, +1, r.X1 + 41.25, r.Y1 + 27, 33.75);
  const EndPoint bow = pen.Arc(170, 272, +1, r.X1 + 41.25, r.Y1 + 94.5, 33.75);
  pen.Arc(270, 345, +1, bow.x + 4.4625, bow.y - 62.475, 63.75);
}

// clang-format off
constexpr HindiConsonant kLetters[] = {
    // whole                          half                                 X1     stem            bar           half: stem    half: bar       foot
    {{WriteKa},                       {WriteHalfKa},                       100,   {},             {},           {},           {},             {1, 0}},     //  1 ka क
    {{WriteKha},                      {WriteHalfKha},                      370,   {},             {},           {},           {},             {2, 0}},     //  2 kha ख
    {{WriteGa, WriteGaOtherwise},     {WriteHalfGa},                       600,   {},             {},           {},           {},             {3, 0.2}},   //  3 ga ग
    {{WriteGha},                      {WriteGha},                          900,   {1008.75, 150}, {887.5, 150}, {},           {887.5, 112.5}, {4, 0.15}},  //  4 gha घ
    {{WriteNga},                      {WriteHalfNga},                      250,   {},             {},           {},           {},             {1, 0}},     //  5 nga ङ
    {{WriteCha},                      {WriteCha},                          165,   {273.75, 150},  {157.5, 150}, {},           {},             {1, 0.2}},   //  6 cha च
    {{WriteChha, WriteChhaOtherwise}, {WriteChha},                         400,   {508.75, 27},   {420, 125},   {508.75, 27}, {},             {2, 0}},     //  7 chha छ
    {{WriteJa},                       {WriteJa},                           642.5, {775, 150},     {657.5, 150}, {},           {},             {3, 0.2}},   //  8 ja ज
    {{WriteJha},                      {WriteJha},                          975,   {1025, 150},    {907.5, 150}, {},           {907.5, 125},   {4, 0.2}},   //  9 jha झ
    {{WriteNya},                      {WriteNya},                          212.5, {262.5, 150},   {162.5, 150}, {},           {},             {1, 0.15}},  // 10 nya ञ
    {{WriteTta},                      {WriteHalfTta},                      225,   {},             {},           {},           {},             {1, 0}},     // 11 tta ट
    {{WriteTtha},                     {WriteHalfTtha},                     475,   {},             {},           {},           {},             {2, 0}},     // 12 ttha ठ
    {{WriteDda},                      {WriteHalfDda},                      750,   {},             {},           {},           {},             {3, 0}},     // 13 dda ड
    {{WriteDdha},                     {WriteHalfDdha},                     975,   {},             {},           {},           {},             {4, 0}},     // 14 ddha ढ
    {{WriteNna},                      {WriteHalfNna},                      100,   {},             {},           {},           {},             {1, 0.2}},   // 15 nna ण
    {{WriteTa},                       {WriteHalfTa, WriteHalfTaOtherwise}, 200,   {},             {},           {},           {},             {1, 0.15}},  // 16 ta त
    {{WriteTha},                      {WriteTha},                          412.5, {525, 150},     {490, 75},    {},           {},             {2, 0.2}},   // 17 tha थ
    {{WriteDa, WriteDaOtherwise},     {WriteHalfDa},                       750,   {},             {},           {},           {},             {3, 0.15}},  // 18 da द
    {{WriteDha},                      {WriteDha},                          900,   {1008.75, 150}, {970, 87.5},  {},           {},             {4, 0.15}},  // 19 dha ध
};
// clang-format on
static_assert(std::size(kLetters) == kHindiKaToDha);

}  // namespace

std::span<const HindiConsonant> HindiKaToDha() {
  return kLetters;
}

}  // namespace bramlee
