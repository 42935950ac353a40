#include "tools/strokes/asked_letters.h"

#include "tools/strokes/word_report.h"

namespace bramlee {

std::vector<Letter> LettersAsked(const Request& request) {
  if (!request.word.isEmpty()) return {WordAsked(request).letter};
  std::vector<Letter> letters;
  for (int tile = request.firstTile; tile <= request.lastTile; ++tile) {
    letters.push_back(RecordTile(request.Tile(tile), request.step));
  }
  return letters;
}

QColor GroundOf(const Request& request) {
  if (request.set == nullptr) return ColourOf(kGround);
  return ColourOf(request.set->sheet == SheetKind::Capitals ? kCapitalsGround : kGround);
}

}  // namespace bramlee
