// Sums to work out, with an answer page.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "paper/worksheet.h"

namespace bramlee {

/// The five drills of the numbers board.
enum class SumKind : std::uint8_t { Add, Subtract, Multiply, Divide, PerCent };

struct Sum {
  SumKind kind = SumKind::Add;
  int first = 0;
  int second = 0;
  bool operator==(const Sum&) const = default;

  /// For PerCent, `second` per cent of `first`; 0 for a division by 0.
  int Result() const;
};

/// Sums of one kind whose numbers and result are whole, not negative and at most `largest`, their
/// numbers among those that the drills offer: 1 to 20 then tens to 100, and 1 to 10 then tens.
/// All that there are, shuffled by `seed`, before any comes again: the same seed gives the same
/// ones. None when there are no such sums.
std::vector<Sum> ChooseSums(SumKind kind, int largest, int count, std::uint32_t seed);

/// A sheet of sums, as data.
struct SumSheet {
  std::vector<Sum> sums{};
  bool answers = true;  ///< the same sums with their results on pages of their own, at the end
  double digitMm = 10;  ///< height of the digits
  PageFormat page{};
  Heading heading{};
};

/// Two columns of sums, in the digits of the book. Errors: NothingToPrint, RowTooHigh.
LaidOut LayOut(const SumSheet& sheet);

/// How many sums a page of the sheet holds; 0 when not even one fits.
int SumsOnAPage(const SumSheet& sheet);

// The kinds by name: "add", "subtract", "multiply", "divide", "percent".
const char* NameOf(SumKind kind);
std::optional<SumKind> SumKindNamed(const QString& name);
std::span<const SumKind> SumKinds();

}  // namespace bramlee
