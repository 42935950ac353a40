// Hindi consonants as in the book. Whole letters get the strokes that they lack; a half form keeps
// a piece of the bar, and that of a letter without a stem is the whole letter with the mark below;
// the letters of set 3 have the r joined to them. Bodies stand where the given ones do.
#include <algorithm>
#include <vector>

#include "letters/book_forms.h"
#include "letters/hinc.h"
#include "letters/hindi_shapes.h"
#include "letters/letter_sets.h"

namespace bramlee {
namespace {

constexpr int kTa = 16;
constexpr int kLla = 34;

// Parts that several letters or forms share: a change to one changes all that use it.

/// The short stem of ग, downwards.
void WriteShortStemOfGa(double length, StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 100, r.Y1, r.Y1 + length);
}

/// फ without its bar: प and, from its stem on, a hook to the angle `end`.
void WritePhaTo(double end, StrokeRec& r, Pen& pen) {
  WriteStemAndBowl(360, r, pen);
  pen.LineDown(r.X1 + 145, r.Y1, r.Y1 + kHindiStem);
  pen.Arc(180, end, -1, r.X1 + 185, r.Y1 + 72, 40);
}

// Each body: its strokes in writing order, a line each.

void WriteGa(StrokeRec& r, Pen& pen) {
  WriteShortStemOfGa(112.5, r, pen);
  pen.SlantRight(45, r.X1 + 62.5, r.Y1 + 75, r.Y1 + 111.75);
}

void WriteGaOtherwise(StrokeRec& r, Pen& pen) {
  WriteShortStemOfGa(105, r, pen);
  pen.Arc(360, 180, -1, r.X1 + 73.75, r.Y1 + 105, 26.25);
}

void WriteTha(StrokeRec& r, Pen& pen) {
  pen.Arc(260, 0, -1, r.X1 + 41.25, r.Y1 + 22.5, 22.5);
  pen.Arc(360, 274, -1, r.X1 + 6.1, r.Y1 + 22.5, 57.6);
  pen.Arc(180, 272, +1, r.X1 + 46.5, r.Y1 + 80, 36.5);
  pen.Arc(270, 345, +1, r.X1 + 51, r.Y1 + 54, 63.75);
}

void WriteDha(StrokeRec& r, Pen& pen) {
  pen.Arc(-60, 180, +1, r.X1 + 31, r.Y1 + 19, 23);
  pen.Arc(180, 262, +1, r.X1 + 49, r.Y1 + 19, 41);
  pen.Arc(90, 272, +1, r.X1 + 41.25, r.Y1 + 94.5, 33.75);
  pen.Arc(270, 345, +1, r.X1 + 45.7125, r.Y1 + 65.775, 63.75);
}

void WritePa(StrokeRec& r, Pen& pen) {
  WriteStemAndBowl(360, r, pen);
}

void WriteHalfPa(StrokeRec& r, Pen& pen) {
  WriteStemAndBowl(310, r, pen);
}

void WritePha(StrokeRec& r, Pen& pen) {
  WritePhaTo(-80, r, pen);
}

// As half क, it keeps its stem and loses the end of its hook.
void WriteHalfPha(StrokeRec& r, Pen& pen) {
  WritePhaTo(70, r, pen);
}

void WriteSha(StrokeRec& r, Pen& pen) {
  pen.Arc(360, 0, -1, r.X1 + 37.75, r.Y1 + 26, 26);
  const EndPoint bow = pen.Arc(360, 278, -1, r.X1 - 3.75, r.Y1 + 26, 67.5);
  pen.SlantRight(48, bow.x, bow.y, r.Y1 + kHindiStem);
}

void WriteSsa(StrokeRec& r, Pen& pen) {
  WriteStemAndBowl(360, r, pen);
  pen.SlantRight(45, r.X1 + 62.5, r.Y1, r.Y1 + 82.5);
}

void WriteHalfSsa(StrokeRec& r, Pen& pen) {
  WriteStemAndBowl(330, r, pen);
  pen.SlantRight(45, r.X1 + 62.5, r.Y1, r.Y1 + 77);
}

// The half form of र stands on the bar.
void WriteHalfRa(StrokeRec& r, Pen& pen) {
  const EndPoint hook = pen.Arc(60, 215, +1, r.X1 + 50, r.Y1 - 34, 22);
  pen.SlantRight(35, hook.x, hook.y, r.Y1);
}

// With the r, त is त्र itself, in its own column.
void WriteTaWithR(StrokeRec& r, Pen& pen) {
  WriteArmsOfTra(r.X1, r, pen);
}

// With the r, श begins with a loop of its own, which ends at the stem.
void WriteShaWithR(StrokeRec& r, Pen& pen) {
  pen.SlantUpRight(49, r.X1 + 9.5, r.Y1 + 98, r.Y1 + 47);
  pen.Arc(-40, 220, +1, r.X1 + 49.5, r.Y1 + 30, 26);
  pen.SlantRight(63, r.X1 + 29.6, r.Y1 + 46.7, r.Y1 + 89);
}

/// A letter's body in the book and where its parts stand; a length of 0 is none.
struct BookLetter {
  int letter;
  Forms body;
  HindiExtent stem, bar;
};

// clang-format off
constexpr BookLetter kWholes[] = {
    // body                           stem            bar
    { 3, {WriteGa, WriteGaOtherwise}, {777.5, 150},   {650, 150}},    // ग
    {17, {WriteTha},                  {525, 150},     {490, 75}},     // थ
    {19, {WriteDha},                  {1008.75, 150}, {970, 87.5}},   // ध
    {21, {WritePa},                   {265, 150},     {150, 150}},    // प
    {22, {WritePha},                  {},             {367.5, 200}},  // फ
    {30, {WriteSha},                  {275, 150},     {240, 75}},     // श
    {31, {WriteSsa},                  {482.5, 150},   {367.5, 150}},  // ष
};

// In the third set these alone have another body than in the first.
constexpr BookLetter kBeforeR[] = {
    {kTa, {WriteTaWithR},             {262.5, 150},   {162.5, 150}},  // त्र
    {30, {WriteShaWithR},             {275, 150},     {240, 75}},     // श्र
};

constexpr BookLetter kHalves[] = {
    { 3, {WriteGa},                   {},             {650, 87.5}},
    {17, {WriteTha},                  {},             {490, 35}},
    {19, {WriteDha},                  {},             {970, 38.75}},
    {21, {WriteHalfPa},               {},             {150, 112.5}},
    {22, {WriteHalfPha},              {},             {367.5, 172.5}},
    {27, {WriteHalfRa, WriteHalfRa},  {},             {437.5, 62.5}},
    {30, {WriteSha},                  {},             {240, 35}},
    {31, {WriteHalfSsa},              {},             {367.5, 112.5}},
};

/// The bar of a half form whose body is the given one: it ends where the stem would stand.
struct HalfBar {
  int letter;
  HindiExtent bar;
};
constexpr HalfBar kHalfBars[] = {
    { 6, {157.5, 116.25}},  // च्‍
    { 8, {657.5, 117.5}},   // ज्‍
    {10, {162.5, 100}},     // ञ्‍
    {16, {175, 87.5}},      // त्‍
    {20, {157.5, 115}},     // न्‍
    {23, {662.5, 85}},      // ब्‍
    {24, {965, 50}},        // भ्‍
    {28, {637.5, 157.5}},   // ल्‍
    {29, {912.5, 85}},      // व्‍
    {35, {465, 50}},        // क्ष्‍
    {36, {662.5, 100}},     // त्र्‍
    {37, {907.5, 125}},     // ज्ञ्‍
};

/// The letters without a stem: they cannot lose one, and get the mark below.
constexpr int kMarked[] = {5, 7, 11, 12, 13, 14, 18, 33, kLla};

/// How the r hangs on a letter: a slant down to the left, its angle from the vertical, from the
/// letter's stem or ring at `x`; `from` and `to` are below the bar.
struct JoinedSlant {
  int letter;
  double angle, x, from, to;
};
constexpr JoinedSlant kSlants[] = {
    // with a stem that is free at its foot
    { 1, 60, 226.5,   105, 150},
    { 2, 60, 547.5,   130, 165},
    { 3, 60, 777.5,   105, 150},
    { 4, 60, 1008.75, 118, 160},
    { 6, 60, 273.75,  105, 150},
    { 8, 60, 775,     105, 150},
    {10, 60, 262.5,   105, 150},
    {15, 60, 277.5,   105, 150},
    {17, 60, 525,     105, 150},
    {19, 60, 1008.75, 112, 155},
    {20, 60, 272.5,   105, 150},
    {21, 60, 265,     105, 150},
    {22, 60, 482.5,   105, 150},
    {23, 60, 747.5,   105, 150},
    {24, 60, 1015,    105, 150},
    {25, 60, 262.5,   105, 150},
    {26, 60, 275,     105, 150},
    {28, 60, 795,     105, 150},
    {29, 60, 997.5,   105, 150},
    {31, 60, 482.5,   105, 150},
    // with a leg beside the stem
    { 9, 50, 1025,    105, 140},
    {32, 50, 762.5,   105, 140},
    {35, 50, 515,     105, 127},
    {37, 50, 1032.5,  105, 140},
    // each its own
    {18, 50, 770,     132, 170},  // from the small ring
    {30, 52, 275,     89,  145},
    {33, 45, 1000.5,  80,  112},  // inside the lower bow
};

/// How the r hangs below a round letter: a caret, its top at `x`; `top` and `foot` are below the bar.
struct JoinedCaret {
  int letter;
  double x, top, foot;
};
constexpr JoinedCaret kCarets[] = {
    { 5, 221.5, 150, 185},
    { 7, 451.4, 150, 185},
    {11, 225,   150, 185},
    {12, 475,   150, 185},
    {13, 721.5, 150, 185},
    {14, 975,   150, 185},
    {kLla, 276, 122, 157},
};
// clang-format on

template <class Row, std::size_t kRows>
const Row* RowOf(int letter, const Row (&rows)[kRows]) {
  const auto* row = std::ranges::find(rows, letter, &Row::letter);
  return row == std::end(rows) ? nullptr : row;
}

HindiParts PartsOf(const BookLetter& letter, const StrokeRec& r) {
  return {Wanted(letter.body, r), letter.stem, letter.bar};
}

/// The parts of a tile of the first set, which are the given ones where the book has no others.
HindiParts WholePartsOf(int tile, const StrokeRec& r) {
  const BookLetter* own = RowOf(tile, kWholes);
  return own == nullptr ? GivenPartsOf(tile, r) : PartsOf(*own, r);
}

/// The parts that the tile's letter has in the third set, where there are no alternative forms.
HindiParts PartsBeforeR(int tile) {
  const int letter = HindiLetterOf(tile);
  const BookLetter* own = RowOf(letter, kBeforeR);
  return own == nullptr ? WholePartsOf(letter, StrokeRec()) : PartsOf(*own, StrokeRec());
}

HindiParts HalfPartsOf(int tile, const StrokeRec& r) {
  const int letter = HindiLetterOf(tile);
  if (const BookLetter* own = RowOf(letter, kHalves)) return PartsOf(*own, r);
  HindiParts parts = GivenPartsOf(tile, r);
  if (const HalfBar* half = RowOf(letter, kHalfBars)) parts.bar = half->bar;
  return parts;
}

void WriteParts(const HindiParts& parts, StrokeRec& r, Pen& pen) {
  WriteHindiParts(HindiConsonantOf(r.LetterNo).x, parts, r, pen);
}

void WriteWhole(StrokeRec& r, Pen& pen) {
  WriteParts(WholePartsOf(r.LetterNo, r), r, pen);
}

void WriteHalf(StrokeRec& r, Pen& pen) {
  WriteParts(HalfPartsOf(r.LetterNo, r), r, pen);
}

void WriteBeforeR(StrokeRec& r, Pen& pen) {
  WriteParts(PartsBeforeR(r.LetterNo), r, pen);
}

void WriteWithMark(StrokeRec& r, Pen& pen) {
  WriteBeforeR(r, pen);
  WriteFootStrokeOf(r.LetterNo, r, pen);
}

// ळ ends above the foot line, and the mark hangs where it ends.
void WriteLlaWithMark(StrokeRec& r, Pen& pen) {
  WriteBeforeR(r, pen);
  pen.SlantRight(45, r.X1 + 126.5, r.Y1 + 124, r.Y1 + 158);
}

void WriteWithSlant(StrokeRec& r, Pen& pen) {
  WriteBeforeR(r, pen);
  const JoinedSlant& join = *RowOf(HindiLetterOf(r.LetterNo), kSlants);
  pen.SlantLeft(join.angle, join.x, r.Y1 + join.from, r.Y1 + join.to);
}

void WriteWithCaret(StrokeRec& r, Pen& pen) {
  WriteBeforeR(r, pen);
  const JoinedCaret& join = *RowOf(HindiLetterOf(r.LetterNo), kCarets);
  const double width = join.foot - join.top;
  pen.SlantUpRight(45, join.x - width, r.Y1 + join.foot, r.Y1 + join.top);
  pen.SlantRight(45, join.x, r.Y1 + join.top, r.Y1 + join.foot);
}

constexpr int TileIn(int set, int letter) {
  return FirstHindiTileOf(set) + letter - 1;
}

/// The tables above as one, by tiles.
std::vector<BookForm> AllForms() {
  std::vector<BookForm> all;
  const auto add = [&all](int tile, LetterRoutine write, bool ofTwoForms) {
    all.push_back({.tile = tile, .write = write});
    if (ofTwoForms) all.push_back({.tile = tile, .write = write, .alternative = true});
  };
  for (const BookLetter& whole : kWholes) {
    add(whole.letter, WriteWhole, whole.body.alternative != nullptr);
  }
  for (const BookLetter& half : kHalves) {
    add(TileIn(kHindiHalfSet, half.letter), WriteHalf, half.body.alternative != nullptr);
  }
  for (const HalfBar& half : kHalfBars) {
    const int tile = TileIn(kHindiHalfSet, half.letter);
    add(tile, WriteHalf, HindiConsonantOf(tile).half.alternative != nullptr);
  }
  for (const int letter : kMarked) {
    add(TileIn(kHindiHalfSet, letter), letter == kLla ? WriteLlaWithMark : WriteWithMark, false);
  }
  for (const JoinedSlant& join : kSlants) {
    add(TileIn(kHindiFootSet, join.letter), WriteWithSlant, false);
  }
  for (const JoinedCaret& join : kCarets) {
    add(TileIn(kHindiFootSet, join.letter), WriteWithCaret, false);
  }
  add(TileIn(kHindiFootSet, kTa), WriteBeforeR, false);
  return all;
}

}  // namespace

bool HasMarkForHalf(int letter) {
  return std::ranges::find(kMarked, letter) != std::end(kMarked);
}

std::span<const BookForm> HindiConsonantsInTheBook() {
  static const std::vector<BookForm> kForms = AllForms();
  return kForms;
}

}  // namespace bramlee
