#include "maths/arithmetic.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <limits>

#include "files/numbers.h"

namespace bramlee {
namespace {

constexpr double kHuge = std::numeric_limits<double>::max();

TEST(RowResult, FollowsTheSign) {
  EXPECT_EQ(RowResult(kPlus, 5, 3), 8);
  EXPECT_EQ(RowResult(kMinus, 5, 8), -3);
  EXPECT_EQ(RowResult(kTimes, 5, 3), 15);
  EXPECT_EQ(RowResult(kDividedBy, 7, 2), 3.5);
  EXPECT_EQ(RowResult(kPerCent, 50, 200), 100);
}

TEST(RowResult, PerCentTakesTheHundredthFirst) {
  // 7 * 100 * 0.01 would be 7 exactly.
  EXPECT_EQ(RowResult(kPerCent, 7, 100), 7 * 0.01 * 100);
  EXPECT_EQ(NumberText(*RowResult(kPerCent, 7, 100)).toStdString(), "7.000000000000001");
}

TEST(RowResult, ZeroHasNoSign) {
  EXPECT_EQ(NumberText(*RowResult(kTimes, 0, -5)).toStdString(), "0");
  EXPECT_EQ(NumberText(*RowResult(kDividedBy, 0, -5)).toStdString(), "0");
}

TEST(RowResult, IsEmptyWhereThereIsNoNumber) {
  EXPECT_FALSE(RowResult(kDividedBy, 0, 0));
  EXPECT_FALSE(RowResult(kPlus, kHuge, kHuge));
  EXPECT_FALSE(RowResult(kMinus, -kHuge, kHuge));
  EXPECT_FALSE(RowResult(kTimes, kHuge, 10));
  EXPECT_FALSE(RowResult(kDividedBy, kHuge, 0.1));
  EXPECT_FALSE(RowResult(kPerCent, kHuge, 1000));
  EXPECT_FALSE(RowResult(0, 1, 1));
  EXPECT_FALSE(RowResult(16, 1, 1));
}

TEST(RowResult, OnlyANumberDividedByZeroIsInfinite) {
  EXPECT_TRUE(IsInfinite(kDividedBy, 5, 0));
  EXPECT_TRUE(IsInfinite(kDividedBy, -5, -0.0));
  EXPECT_FALSE(IsInfinite(kDividedBy, 0, 0));
  EXPECT_FALSE(IsInfinite(kDividedBy, 0, 5));
  EXPECT_FALSE(IsInfinite(kTimes, 5, 0));
}

QStringList Rows(double n) {
  return TableText(n)->split(QStringLiteral("\r\n"));
}

TEST(Table, HasTwentyRowsThatEndInReturnAndLineFeed) {
  const QStringList rows = Rows(7);
  ASSERT_EQ(rows.size(), 21);
  EXPECT_EQ(rows[0].toStdString(), "7 X 1 = 7");
  EXPECT_EQ(rows[2].toStdString(), "7 X 3 = 21");
  EXPECT_EQ(rows[19].toStdString(), "7 X 20 = 140");
  EXPECT_TRUE(rows[20].isEmpty());
  EXPECT_EQ(TableText(7)->count(u'\n'), 20);
}

TEST(Table, OfAHundredEndsWithTwoThousand) {
  EXPECT_EQ(Rows(100)[19].toStdString(), "100 X 20 = 2000");
}

TEST(Table, OfZeroIsZeros) {
  EXPECT_EQ(Rows(0)[0].toStdString(), "0 X 1 = 0");
  EXPECT_EQ(Rows(0)[19].toStdString(), "0 X 20 = 0");
  EXPECT_EQ(Rows(-0.0)[4].toStdString(), "0 X 5 = 0");
}

TEST(Table, KeepsFractions) {
  EXPECT_EQ(Rows(2.5)[1].toStdString(), "2.5 X 2 = 5");
  EXPECT_EQ(Rows(-1.5)[2].toStdString(), "-1.5 X 3 = -4.5");
}

TEST(Table, ProductsHaveAtMostFifteenDigits) {
  ASSERT_NE(0.1 * 3, 0.3);
  EXPECT_EQ(Rows(0.1)[2].toStdString(), "0.1 X 3 = 0.3");
  EXPECT_EQ(Rows(1.1)[2].toStdString(), "1.1 X 3 = 3.3");
  EXPECT_EQ(Rows(1.0 / 3)[0].toStdString(), "0.333333333333333 X 1 = 0.333333333333333");
}

TEST(Table, WritesSmallNumbersWithoutExponent) {
  EXPECT_EQ(Rows(0.00001)[1].toStdString(), "0.00001 X 2 = 0.00002");
  EXPECT_EQ(Rows(5e13)[19].toStdString(), "50000000000000 X 20 = 1e+15");
}

TEST(Table, IsEmptyWhenAProductIsTooLarge) {
  EXPECT_FALSE(TableText(1e308));
  EXPECT_TRUE(TableText(kHuge / 20));
}

}  // namespace
}  // namespace bramlee
