// Hindi consonants: 37 letters in three sets of tiles. Set 1, tiles 1 to 37, holds the whole
// letters, set 2, tiles 38 to 74, their half forms and set 3, tiles 75 to 111, the letters that get
// a foot stroke. A letter hangs from a bar at Y1 (325) and is its body, then for some a stem and a
// bar. The bodies and the places of all parts are in hinc_ka_to_dha.cpp and hinc_na_to_jnya.cpp.
#include "letters/hinc.h"

#include "letters/letter_sets.h"

namespace bramlee {
namespace {

/// The routines of a tile's body; a letter with the foot stroke has no alternative one.
Forms BodyOf(int tile) {
  const HindiConsonant& letter = HindiConsonantOf(tile);
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

void WriteFootStrokeFrom(double x, StrokeRec& r, Pen& pen) {
  r.Y1 = r.Row4 + 0.15 * r.CellH;
  pen.SlantRight(45, x, r.Y1, r.Y1 + 0.45 * r.CellH);
}

}  // namespace

std::span<const int> HindiConsonantsOfTwoForms() {
  static const std::vector<int> kOfTwo = TilesOfTwoForms(kHindiTiles, BodyOf);
  return kOfTwo;
}

const HindiConsonant& HindiConsonantOf(int tile) {
  const auto letter = static_cast<std::size_t>(HindiLetterOf(tile));
  return letter <= kHindiKaToDha ? HindiKaToDha()[letter - 1]
                                 : HindiNaToJnya()[letter - 1 - kHindiKaToDha];
}

HindiParts GivenPartsOf(int tile, const StrokeRec& r) {
  const HindiConsonant& letter = HindiConsonantOf(tile);
  const LetterRoutine body = Wanted(BodyOf(tile), r);
  if (HindiSetOf(tile) == kHindiHalfSet) return {body, letter.halfStem, letter.halfBar};
  return {body, letter.stem, letter.bar};
}

void WriteHindiParts(double x, const HindiParts& parts, StrokeRec& r, Pen& pen) {
  r.X1 = x;
  r.Y1 = r.Row2;
  parts.body(r, pen);
  if (parts.stem.length > 0) WriteStem(parts.stem, r, pen);
  if (parts.bar.length > 0) WriteBar(parts.bar, r, pen);
  r.CellW = 5 * r.Unit;
  r.CellH = r.RowH;
}

void WriteFootStrokeOf(int tile, StrokeRec& r, Pen& pen) {
  const HindiFoot& foot = HindiConsonantOf(tile).foot;
  r.X1 = ColumnOf(r, foot.column) + 0.5 * r.CellW;
  WriteFootStrokeFrom(r.X1 + foot.across * r.CellW, r, pen);
}

void WriteHindiConsonant(StrokeRec& rec, DrawingSurface& sheet) {
  if (rec.LetterNo < 1 || rec.LetterNo > kHindiTiles) return;
  Pen pen{rec, sheet};
  WriteHindiParts(HindiConsonantOf(rec.LetterNo).x, GivenPartsOf(rec.LetterNo, rec), rec, pen);
}

void WriteHindiFootStroke(StrokeRec& rec, DrawingSurface& sheet) {
  Pen pen{rec, sheet};
  if (HindiSetOf(rec.LetterNo) == kHindiFootSet) return WriteFootStrokeOf(rec.LetterNo, rec, pen);
  // a tile of another set has no column here: its stroke begins where its last part began
  WriteFootStrokeFrom(rec.X1, rec, pen);
}

}  // namespace bramlee
