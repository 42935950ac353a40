// Hindi consonants: 37 letters in three sets of tiles. Set 1, tiles 1 to 37, holds the whole
// letters, set 2, tiles 38 to 74, their half forms and set 3, tiles 75 to 111, the letters that get
// a foot stroke. A letter hangs from a bar at Y1 (325) and is its body, then for some a stem and a
// bar. The bodies and the places of all parts are in hinc_ka_to_dha.cpp and hinc_na_to_jnya.cpp.
#include "letters/hinc.h"

#include "letters/letter_sets.h"

namespace bramlee {
namespace {

const HindiConsonant& ConsonantOf(int tile) {
  const auto letter = static_cast<std::size_t>(HindiLetterOf(tile));
  return letter <= kHindiKaToDha ? HindiKaToDha()[letter - 1]
                                 : HindiNaToJnya()[letter - 1 - kHindiKaToDha];
}

/// The routines of a tile's body; a letter with the foot stroke has no alternative one.
Forms BodyOf(int tile) {
  const HindiConsonant& letter = ConsonantOf(tile);
  if (HindiSetOf(tile) == kHindiHalfSet) return letter.half;
  if (HindiSetOf(tile) == kHindiFootSet) return {.usual = letter.whole.usual};
  return letter.whole;
}

void WriteStem(const HindiExtent& stem, StrokeRec& r, Pen& pen) {
  r.X1 = stem.x;
  r.CellH = stem.length / 2;
  pen.LineDown(r.X1, r.Y1, r.Y1 + 2 * r.CellH);
}

void WriteBar(const HindiExtent& bar, StrokeRec& r, Pen& pen) {
  r.X1 = bar.x;
  r.CellW = bar.length;
  pen.LineRight(r.X1, r.Y1, r.X1 + r.CellW);
}

}  // namespace

std::span<const int> HindiConsonantsOfTwoForms() {
  static const std::vector<int> kOfTwo = TilesOfTwoForms(kHindiTiles, BodyOf);
  return kOfTwo;
}

void WriteHindiConsonant(StrokeRec& rec, DrawingSurface& sheet) {
  if (rec.LetterNo < 1 || rec.LetterNo > kHindiTiles) return;
  const bool half = HindiSetOf(rec.LetterNo) == kHindiHalfSet;
  const HindiConsonant& letter = ConsonantOf(rec.LetterNo);
  const HindiExtent& stem = half ? letter.halfStem : letter.stem;
  const HindiExtent& bar = half ? letter.halfBar : letter.bar;
  Pen pen{rec, sheet};

  rec.X1 = letter.x;
  rec.Y1 = rec.Row2;
  Wanted(BodyOf(rec.LetterNo), rec)(rec, pen);
  if (stem.length > 0) WriteStem(stem, rec, pen);
  if (bar.length > 0) WriteBar(bar, rec, pen);
  rec.CellW = 5 * rec.Unit;
  rec.CellH = rec.RowH;
}

void WriteHindiFootStroke(StrokeRec& rec, DrawingSurface& sheet) {
  rec.Y1 = rec.Row4 + 0.15 * rec.CellH;
  double across = 0;
  // a tile of another set has no column here: its stroke begins where its last part began
  if (HindiSetOf(rec.LetterNo) == kHindiFootSet) {
    const HindiFoot& foot = ConsonantOf(rec.LetterNo).foot;
    rec.X1 = ColumnOf(rec, foot.column) + 0.5 * rec.CellW;
    across = foot.across;
  }
  Pen pen{rec, sheet};
  pen.SlantRight(45, rec.X1 + across * rec.CellW, rec.Y1, rec.Y1 + 0.45 * rec.CellH);
}

}  // namespace bramlee
