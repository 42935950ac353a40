#include "maths/arithmetic.h"

#include <cmath>
#include <limits>

#include "files/numbers.h"

namespace bramlee {
namespace {

constexpr int kTableRows = 20;

/// A table is read by children: 0.1 X 3 has to read 0.3, not 0.30000000000000004.
constexpr int kTableDigits = 15;

double Compute(int sign, double a, double b) {
  switch (sign) {
    case kPlus:
      return b + a;
    case kMinus:
      return a - b;
    case kTimes:
      return b * a;
    case kDividedBy:
      return a / b;
    case kPerCent:
      return a * 0.01 * b;  // the hundredth first: the order decides the last digit
    default:
      return std::numeric_limits<double>::quiet_NaN();
  }
}

QString TableNumber(double number) {
  const double rounded = QString::number(number, 'g', kTableDigits).toDouble();
  return NumberText(std::isfinite(rounded) ? rounded : number);
}

}  // namespace

std::optional<double> RowResult(int sign, double a, double b) {
  const double result = Compute(sign, a, b);
  if (!std::isfinite(result)) return std::nullopt;
  return result;
}

bool IsInfinite(int sign, double a, double b) {
  return sign == kDividedBy && a != 0 && b == 0;
}

std::optional<QString> TableText(double n) {
  QString text;
  for (int i = 1; i <= kTableRows; ++i) {
    const double product = i * n;
    if (!std::isfinite(product)) return std::nullopt;
    text += QStringLiteral("%1 X %2 = %3\r\n")
                .arg(TableNumber(n), QString::number(i), TableNumber(product));
  }
  return text;
}

}  // namespace bramlee
