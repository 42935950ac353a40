// The arithmetic of the drills and the tables.
#pragma once

#include <QString>
#include <optional>

namespace bramlee {

// The five signs of the drills, by the numbers of their pictures: pic1(11) to pic1(15).
inline constexpr int kPlus = 11;
inline constexpr int kMinus = 12;
inline constexpr int kTimes = 13;
inline constexpr int kDividedBy = 14;
inline constexpr int kPerCent = 15;

/// The result of a drill's row; kPerCent is `b` per cent of `a`. Empty where there is no number to
/// show: 0 / 0, a result too large for a double, another sign. Never throws.
std::optional<double> RowResult(int sign, double a, double b);

/// Whether the row divides a number other than 0 by 0.
bool IsInfinite(int sign, double a, double b);

/// The twenty rows of the table of `n`, as "7 X 3 = 21", each with a carriage return and a line
/// feed behind it; numbers to 15 significant digits. Empty if a product is too large for a double.
std::optional<QString> TableText(double n);

}  // namespace bramlee
