// How letters stand on a sheet of paper.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "strokes/stroke_numbers.h"

namespace bramlee {

enum class RowKind : std::uint8_t {
  Model,    ///< the whole letter, its strokes numbered, with arrows and dots where they begin
  BuiltUp,  ///< one more stroke in each cell, the new one black, the others grey
  Dotted,   ///< dots along the strokes
  Grey,     ///< the letter in pale grey, to write over
  Hollow,   ///< its outline
  Blank,    ///< the lines alone
};

enum class Ruling : std::uint8_t {
  English,  ///< four lines, the base line thickest
  Hindi,    ///< a thick head line and the base line
  Telugu,   ///< four lines
  Boxes,    ///< a box a letter
  None,
};

/// Body heights that are offered, in millimetres: WritingLines::BodyHeight says what that is.
inline constexpr double kBodySizesMm[] = {28, 20, 14, 10};

struct SheetStyle {
  std::vector<RowKind> rows = {RowKind::Model, RowKind::Dotted, RowKind::Dotted, RowKind::Blank};
  double bodyMm = 20;
  /// Without one each letter has that of its script.
  std::optional<Ruling> ruling{};
  /// For a left hand, which covers what it has written, each row ends in the model once more.
  Hand hand = Hand::Right;
};

// The choices by name, for a command line and for what is kept: "model", "built-up", "dotted",
// "grey", "hollow", "blank"; "english", "hindi", "telugu", "boxes", "none". Nothing for a name that
// there is not.
const char* NameOf(RowKind kind);
const char* NameOf(Ruling ruling);
std::optional<RowKind> RowKindNamed(const QString& name);
std::optional<Ruling> RulingNamed(const QString& name);

/// All of them, in the order in which they are offered.
std::span<const RowKind> RowKinds();
std::span<const Ruling> Rulings();

/// The ruling that the letters of a set are taught on.
Ruling RulingOf(std::string_view letterSet);

}  // namespace bramlee
