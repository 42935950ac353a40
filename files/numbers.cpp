#include "files/numbers.h"

#include <QLocale>
#include <QRegularExpression>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace bramlee {
namespace {

template <class Whole>
Whole Narrow(double number) {
  const double rounded = RoundEven(number);
  if (!(rounded >= std::numeric_limits<Whole>::min() &&
        rounded <= std::numeric_limits<Whole>::max())) {
    throw std::overflow_error("a number does not fit its field");
  }
  return static_cast<Whole>(rounded);
}

}  // namespace

QString Trim(const QString& text) {
  qsizetype begin = 0;
  qsizetype end = text.size();
  while (begin < end && text[begin] == u' ') ++begin;
  while (end > begin && text[end - 1] == u' ') --end;
  return text.mid(begin, end - begin);
}

bool IsNumeric(const QString& text) {
  static const QRegularExpression kNumber(
      QStringLiteral(R"(\A *[+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+-]?[0-9]+)? *\z)"));
  return kNumber.match(text).hasMatch() && std::isfinite(Trim(text).toDouble());
}

double Val(const QString& text) {
  return IsNumeric(text) ? Trim(text).toDouble() : 0;
}

QString NumberText(double number) {
  if (number == 0) return QStringLiteral("0");
  if (std::abs(number) < 1e15) {
    return QString::number(number, 'f', QLocale::FloatingPointShortest);
  }
  return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

double RoundEven(double number) {
  return std::nearbyint(number);
}

std::int32_t RoundToLong(double number) {
  return Narrow<std::int32_t>(number);
}

std::int16_t RoundToInteger(double number) {
  return Narrow<std::int16_t>(number);
}

}  // namespace bramlee
