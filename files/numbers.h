// Texts and numbers as the forms keep them: flags, steps and operands live in text boxes and are
// read by their numeric value at each use.
#pragma once

#include <QString>
#include <cstdint>

namespace bramlee {

/// The text without the blanks at both ends. Blanks only: line ends and tabs stay.
QString Trim(const QString& text);

/// Whether the text is a number: an optional sign, digits with at most one point, an optional
/// exponent, blanks around it. Neither "" nor "nan" nor "inf" is.
bool IsNumeric(const QString& text);

/// The text's numeric value; 0 for a text that is no number.
double Val(const QString& text);

/// The shortest decimal digits that read back as `number`, written out without an exponent below
/// 1e15. Minus zero reads "0".
QString NumberText(double number);

/// The nearest whole number, ties to even: 236.5 gives 236, 237.5 gives 238.
double RoundEven(double number);

/// RoundEven narrowed to 32 or 16 bits. Throws std::overflow_error for what does not fit, also
/// for what is no number.
std::int32_t RoundToLong(double number);
std::int16_t RoundToInteger(double number);

}  // namespace bramlee
