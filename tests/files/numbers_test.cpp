#include "files/numbers.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace bramlee {
namespace {

TEST(TrimOf, TakesBlanksOnly) {
  EXPECT_EQ(Trim(QStringLiteral("  a b  ")), QStringLiteral("a b"));
  EXPECT_EQ(Trim(QStringLiteral(" \na\t ")), QStringLiteral("\na\t"));
  EXPECT_EQ(Trim(QStringLiteral("   ")), QString());
  EXPECT_EQ(Trim(QStringLiteral("\u00a0a")), QStringLiteral("\u00a0a"));
}

TEST(IsNumericOf, TakesSignsPointsExponentsAndBlanks) {
  for (const char* text : {"1", "-1", "+1", " 1 ", "1.5", ".5", "5.", "1e3", "1E-3", "-.5e+2"}) {
    EXPECT_TRUE(IsNumeric(QString::fromLatin1(text))) << text;
  }
  for (const char* text : {"", " ", "nan", "inf", "-inf", "1,5", "1.2.3", "?...", "1 2", "0x10",
                           "e5", ".", "+", "1e", "1e999", "\t1", "1\n"}) {
    EXPECT_FALSE(IsNumeric(QString::fromLatin1(text))) << text;
  }
}

TEST(Rounding, GoesToEvenAndFailsOutOfRange) {
  EXPECT_EQ(RoundToLong(236.5), 236);
  EXPECT_EQ(RoundToLong(237.5), 238);
  EXPECT_EQ(RoundToLong(-2.5), -2);
  EXPECT_EQ(RoundToInteger(32767.5 - 0.01), 32767);
  EXPECT_EQ(RoundToLong(2147483647.4), 2147483647);
  EXPECT_THROW(RoundToLong(2147483647.5), std::overflow_error);
  EXPECT_EQ(RoundToLong(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  EXPECT_THROW(RoundToInteger(32768), std::overflow_error);
  EXPECT_THROW(RoundToLong(std::numeric_limits<double>::quiet_NaN()), std::overflow_error);
  EXPECT_THROW(RoundToLong(std::numeric_limits<double>::infinity()), std::overflow_error);
}

TEST(NumberTextOf, IsTheShortestThatReadsBack) {
  EXPECT_EQ(NumberText(0.1), QStringLiteral("0.1"));
  EXPECT_EQ(NumberText(-0.0), QStringLiteral("0"));
  EXPECT_EQ(NumberText(1000000), QStringLiteral("1000000"));
  EXPECT_EQ(NumberText(100.0), QStringLiteral("100"));
  EXPECT_EQ(NumberText(1e-7), QStringLiteral("0.0000001"));
}

}  // namespace
}  // namespace bramlee
