// Hindi consonants, letters 20 to 37: na to jnya, whole and half. What hinc.cpp adds to a body, its
// stem, bar and foot stroke, stands in the table at the end.
#include "letters/hinc.h"
#include "letters/hindi_shapes.h"
#include "letters/letter_sets.h"

namespace bramlee {
namespace {

// Parts that several letters or forms share: a change to one changes all that use it.

/// The open bow of ब and व.
void WriteOpenBow(StrokeRec& r, Pen& pen) {
  pen.Arc(60, 335, +1, r.X1 - 25, r.Y1 + 75, 37.5);
}

/// The body of र and स.
void WriteRaBody(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 75, r.Y1, r.Y1 + 56.25);
  const EndPoint curl = pen.Arc(0, -130, -1, r.X1 + 45, r.Y1 + 56.25, 30);
  pen.SlantRight(40, curl.x, curl.y, r.Y1 + kHindiStem);
}

/// ळ without its bar; returns the place where its two rings meet.
EndPoint WriteLlaRings(StrokeRec& r, Pen& pen) {
  const EndPoint ring = pen.Arc(0, 360, +1, r.X1 + 81.5, r.Y1 + 72, 45);
  pen.Arc(180, -180, -1, ring.x + 45, r.Y1 + 72, 45);
  pen.LineDown(ring.x + 50, r.Y1, r.Y1 + 26.25);
  return ring;
}

/// क्ष without its tail; returns the end of its bow.
EndPoint WriteKshaBow(StrokeRec& r, Pen& pen) {
  pen.LineLeft(r.X1 + 25, r.Y1 + 49.5, r.X1 + 112.5);
  const EndPoint ring = pen.Arc(270, -90, -1, r.X1 + 25, r.Y1 + 19.5, 30);
  const EndPoint bow = pen.Arc(90, 340, +1, ring.x, ring.y + 37.5, 37.5);
  pen.Arc(-35, 325, +1, bow.x - 11.25, bow.y, 11.25);
  return bow;
}

// Each body: its strokes in writing order, a line each. A half form stands before a whole one
// that goes on from it.

void WriteNa(StrokeRec& r, Pen& pen) {
  const EndPoint ring = pen.Arc(90, -270, -1, r.X1 + 40, r.Y1 + 75, 26.25);
  pen.LineRight(ring.x, ring.y, ring.x + 87.5);
}

void WritePa(StrokeRec& r, Pen& pen) {
  WriteStemAndBowl(360, r, pen);
  pen.LineRight(r.X1 + 30, r.Y1, r.X1 + 180);
  pen.LineRight(r.X1 + 30, r.Y1, r.X1 + 230);
}

// The pen goes over the beginning of the bowl and over the bar once more.
void WriteHalfPa(StrokeRec& r, Pen& pen) {
  WriteStemAndBowl(360, r, pen);
  pen.LineRight(r.X1 + 30, r.Y1, r.X1 + 230);
  pen.Arc(180, 310, +1, r.X1 + 103.75, r.Y1 + 56.25, 41.25);
  pen.LineRight(r.X1 + 30, r.Y1, r.X1 + 142.5);
  pen.LineRight(r.X1 + 30, r.Y1, r.X1 + 142.5);
}

void WritePha(StrokeRec& r, Pen& pen) {
  WriteStemAndBowl(360, r, pen);
  pen.LineRight(r.X1 + 30, r.Y1, r.X1 + 230);
}

void WriteBa(StrokeRec& r, Pen& pen) {
  WriteOpenBow(r, pen);
  pen.SlantRight(40, r.X1 - 51.25, r.Y1 + 45, r.Y1 + 99.375);
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

void WriteRa(StrokeRec& r, Pen& pen) {
  WriteRaBody(r, pen);
}

// The half form of र shares no stroke with the whole letter.

void WriteHalfRa(StrokeRec& r, Pen& pen) {
  pen.SlantLeft(50, r.Col2 + 0.45 * r.CellW, r.Row3 + 0.1 * r.CellH, r.Row3 + 0.5 * r.CellH);
}

void WriteHalfRaOtherwise(StrokeRec& /*r*/, Pen& pen) {
  pen.Arc(60, 210, +1, 470, 306.25, 30);
}

void WriteLa(StrokeRec& r, Pen& pen) {
  r.R1 = 0.55 * r.R1;
  r.Rad = r.R1;
  pen.Arc(260, 0, -1, r.X1, r.Y1 + 105, 0.9 * r.Rad);
  pen.Arc(180, 40, -1, r.X1 + 1.8 * r.Rad, r.Y1 + 105, 0.9 * r.Rad);
}

void WriteVa(StrokeRec& r, Pen& pen) {
  WriteOpenBow(r, pen);
}

void WriteSha(StrokeRec& r, Pen& pen) {
  WriteRingAndTail(r, pen);
}

void WriteSsa(StrokeRec& r, Pen& pen) {
  WriteStemAndBowl(360, r, pen);
  pen.LineRight(r.X1 + 30, r.Y1, r.X1 + 180);
}

void WriteHalfSsa(StrokeRec& r, Pen& pen) {
  WriteStemAndBowl(310, r, pen);
  pen.LineRight(r.X1 + 30, r.Y1, r.X1 + 142.5);
}

void WriteSa(StrokeRec& r, Pen& pen) {
  WriteRaBody(r, pen);
  pen.LineRight(697.5, r.Row3, 755);  // the short bar to the stem
}

void WriteHalfHa(StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1, r.Y1, r.Y1 + 22.5);
  pen.LineLeft(r.X1 - 28.5, r.Y1 + 22.5, r.X1);
  pen.Arc(90, 260, +1, r.X1 - 28.5, r.Y1 + 50.25, 27.75);
  pen.Arc(280, 400, +1, r.X1 + 0.5, r.Y1 + 93.75, 15);
  pen.Arc(40, 270, +1, r.X1 - 16, r.Y1 + 110.25, 37.5);
}

void WriteHa(StrokeRec& r, Pen& pen) {
  WriteHalfHa(r, pen);
  pen.LineRight(r.X1 - 65.2125, r.Y1, r.X1 + 31.9125);
}

void WriteLla(StrokeRec& r, Pen& pen) {
  const EndPoint ring = WriteLlaRings(r, pen);
  pen.LineRight(r.X1 + 36.5, r.Y1, ring.x + 90);
}

void WriteHalfLla(StrokeRec& r, Pen& pen) {
  WriteLlaRings(r, pen);
}

void WriteKsha(StrokeRec& r, Pen& pen) {
  const EndPoint bow = WriteKshaBow(r, pen);
  pen.Arc(90, -50, -1, bow.x, bow.y + 32.8125, 18.75);
}

void WriteKshaOtherwise(StrokeRec& r, Pen& pen) {
  const EndPoint bow = WriteKshaBow(r, pen);
  pen.Arc(150, 230, +1, bow.x + 17.5, bow.y + 4.5, 30);
  pen.Arc(150, 241, +1, bow.x + 17.5, bow.y + 4.5, 26.25);
}

void WriteTra(StrokeRec& r, Pen& pen) {
  WriteArmsOfTra(r.X1 - 12.5, r, pen);
}

void WriteJnya(StrokeRec& r, Pen& pen) {
  pen.LineLeft(r.X1 + 55, r.Y1 + 48.75, r.X1 + 130);
  pen.Arc(90, -140, -1, r.X1 + 55, r.Y1 + 82.5, 33.75);
  pen.SlantRight(40, r.X1 + 27.6625, r.Y1 + 101.25, r.Y1 + 150.1875);
}

// clang-format off
constexpr HindiConsonant kLetters[] = {
    // whole                          half                                 X1      stem           bar             half: stem  half: bar     foot
    {{WriteNa},                       {WriteNa},                           140,    {272.5, 150},  {157.5, 150},   {},         {},           {1, 0.2}},   // 20 na न
    {{WritePa},                       {WriteHalfPa},                       120,    {},            {},             {},         {},           {1, 0.15}},  // 21 pa प
    {{WritePha},                      {WritePha},                          337.5,  {},            {},             {},         {},           {2, 0.03}},  // 22 pha फ
    {{WriteBa},                       {WriteBa},                           737.5,  {747.5, 150},  {662.5, 125},   {},         {},           {3, 0.1}},   // 23 ba ब
    {{WriteBha},                      {WriteBha},                          900,    {1015, 150},   {965, 87.5},    {},         {},           {4, 0.15}},  // 24 bha भ
    {{WriteMa},                       {WriteMa},                           150,    {262.5, 150},  {160, 137.5},   {},         {150, 112.5}, {1, 0.15}},  // 25 ma म
    {{WriteYa},                       {WriteYa},                           162.5,  {275, 150},    {175, 125},     {},         {175, 100},   {1, 0.2}},   // 26 ya य
    {{WriteRa},                       {WriteHalfRa, WriteHalfRaOtherwise}, 420,    {},            {437.5, 112.5}, {},         {},           {2, 0.1}},   // 27 ra र
    {{WriteLa},                       {WriteLa},                           690.75, {795, 150},    {637.5, 190},   {},         {},           {3, 0.27}},  // 28 la ल
    {{WriteVa},                       {WriteVa},                           987.5,  {997.5, 150},  {912.5, 125},   {},         {},           {4, 0.1}},   // 29 va व
    {{WriteSha},                      {WriteSha},                          162.5,  {275, 150},    {240, 75},      {},         {},           {1, 0.2}},   // 30 sha श
    {{WriteSsa},                      {WriteHalfSsa},                      337.5,  {},            {},             {},         {},           {2, 0.03}},  // 31 ssa ष
    {{WriteSa},                       {WriteSa},                           625,    {762.5, 150},  {624.75, 165},  {},         {650, 112.5}, {3, 0.16}},  // 32 sa स
    {{WriteHa},                       {WriteHalfHa},                       1000,   {},            {},             {},         {},           {4, 0}},     // 33 ha ह
    {{WriteLla},                      {WriteHalfLla},                      100,    {},            {},             {},         {},           {1, 0}},     // 34 lla ळ
    {{WriteKsha, WriteKshaOtherwise}, {WriteKsha},                         400,    {515, 150},    {465, 87.5},    {},         {},           {2, 0.16}},  // 35 ksha क्ष
    {{WriteTra},                      {WriteTra},                          712.5,  {762.5, 150},  {662.5, 150},   {},         {},           {3, 0.16}},  // 36 tra त्र
    {{WriteJnya},                     {WriteJnya},                         900,    {1032.5, 150}, {907.5, 150},   {},         {},           {4, 0.24}},  // 37 jnya ज्ञ
};
// clang-format on
static_assert(std::size(kLetters) == kHindiSetTiles - kHindiKaToDha);

}  // namespace

std::span<const HindiConsonant> HindiNaToJnya() {
  return kLetters;
}

}  // namespace bramlee
