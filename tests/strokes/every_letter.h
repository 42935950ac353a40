// All letters that there are, for tests that go through them, and a run for letters of their own.
#pragma once

#include <string>
#include <vector>

#include "letters/letter_sets.h"
#include "strokes/pen_strokes.h"

namespace bramlee {

/// A run to the right.
inline Run Line(double fromX, double toX) {
  return {
      Primitive::LineRight, {fromX, 40, toX}
  };
}

/// The forms of a tile: its usual one and its alternative, each as given and in the book, and at
/// each place of a number.
inline std::vector<TileForm> FormsOf(const LetterSet& set, int tile) {
  std::vector<TileForm> forms;
  const auto add = [&](TileForm form) {
    const int places = tile <= set.digits ? 5 : 0;
    for (form.place = 0; form.place <= places; ++form.place) forms.push_back(form);
  };
  for (const bool alternative : {false, true}) {
    if (alternative && !HasSecondForm(set, tile)) continue;
    const TileForm given{.alternative = alternative};
    add(given);
    if (HasBookForm(set, tile, given)) add({.alternative = alternative, .book = true});
  }
  return forms;
}

inline std::vector<LetterId> EveryLetter() {
  std::vector<LetterId> letters;
  for (const LetterSet& set : LetterSets()) {
    for (int tile = 1; tile <= set.tiles; ++tile) {
      for (const TileForm& form : FormsOf(set, tile)) {
        letters.push_back({.set = set.name, .tile = tile, .form = form});
      }
    }
  }
  return letters;
}

inline std::string NameOf(const LetterId& id) {
  return std::string(id.set) + ' ' + std::to_string(id.tile) +
         (id.form.alternative ? " alternative" : "") + (id.form.book ? " book" : "") + " place " +
         std::to_string(id.form.place);
}

}  // namespace bramlee
