// What the golden strokes do not show of the Telugu letters.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/letters/written.h"

namespace bramlee {
namespace {

/// The dots of one run, the first run being 1.
std::vector<Dot> DotsOf(const Recorder& sheet, std::size_t run) {
  std::ptrdiff_t first = 0;
  for (std::size_t i = 0; i + 1 < run; ++i) first += sheet.runs[i].dots;
  const auto begin = sheet.dots.begin() + first;
  return {begin, begin + sheet.runs.at(run - 1).dots};
}

bool SameDots(const std::vector<Dot>& a, const std::vector<Dot>& b) {
  return std::ranges::equal(a, b, [](Dot p, Dot q) { return p.x == q.x && p.y == q.y; });
}

class TeluguSets : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(Both, TeluguSets, testing::Values("telv", "telc"));

TEST_P(TeluguSets, TickFromTheEndOfAShortFirstArm) {
  const LetterSet& set = *FindLetterSet(GetParam());
  int ticks = 0;
  for (int tile = 1; tile <= set.tiles; ++tile) {
    const Recorder sheet = Written(GetParam(), tile, {}, 0.08);
    for (std::size_t run = 1; run < sheet.runs.size(); ++run) {
      const RecordedRun& arm = sheet.runs[run - 1];
      const RecordedRun& rise = sheet.runs[run];
      const bool tick = arm.primitive == Primitive::SlantRight && arm.arguments[0] == 45;
      if (!tick) continue;
      ++ticks;
      const Dot last = DotsOf(sheet, run).back();
      EXPECT_LT(std::abs(static_cast<double>(last.y) - arm.arguments[2]), 100) << tile;
      ASSERT_EQ(rise.primitive, Primitive::SlantUpRight) << tile;
      EXPECT_FLOAT_EQ(static_cast<float>(rise.arguments[1]), last.x) << tile;
    }
  }
  EXPECT_EQ(ticks, set.name == "telv" ? 1 : 38);
}

TEST(TeluguVowels, WriteTheirLongWordsPastTheFourthColumn) {
  for (const int tile : {33, 34, 35}) {
    const Recorder sheet = Written("telv", tile);
    const auto [left, right] = std::ranges::minmax(sheet.dots, {}, &Dot::x);
    EXPECT_LT(left.x, 200) << tile;
    EXPECT_GT(right.x, 930) << tile;
  }
}

TEST(TeluguVowels, WriteTheSameCrestTwice) {
  const Recorder am = Written("telv", 33);
  const Recorder candrabindu = Written("telv", 34);
  for (std::size_t stroke = 0; stroke < 5; ++stroke) {
    EXPECT_TRUE(SameDots(DotsOf(am, 13 + stroke), DotsOf(am, 20 + stroke))) << stroke;
    EXPECT_TRUE(SameDots(DotsOf(candrabindu, 13 + stroke), DotsOf(candrabindu, 18 + stroke)))
        << stroke;
  }
}

TEST(TeluguVowels, WriteTheSameFirstLetterInAAndItsWords) {
  const Recorder a = Written("telv", 1);
  for (const int tile : {33, 34, 35}) {
    const Recorder word = Written("telv", tile);
    for (std::size_t stroke = 1; stroke <= 4; ++stroke) {
      EXPECT_TRUE(SameDots(DotsOf(a, stroke), DotsOf(word, stroke))) << tile << ' ' << stroke;
    }
  }
}

TEST(TeluguConsonants, GoOverSomeTicksTwice) {
  for (const int tile : {39, 44, 45, 48}) {
    const Recorder sheet = Written("telc", tile);
    EXPECT_TRUE(SameDots(DotsOf(sheet, 4), DotsOf(sheet, 6))) << tile;
    EXPECT_TRUE(SameDots(DotsOf(sheet, 5), DotsOf(sheet, 7))) << tile;
  }
}

TEST(TeluguConsonants, HangTheFootOfTsaOnItsTick) {
  const Recorder sheet = Written("telc", 7);
  const double tickX = sheet.runs.at(5).arguments.at(1);
  EXPECT_EQ(sheet.runs.at(6).arguments.at(3), tickX + 2.5 * 15);
  EXPECT_EQ(sheet.runs.at(7).arguments, (std::vector<double>{tickX - 30, 250, tickX + 37.5}));
}

TEST(TeluguConsonants, MoveJhaWithTheSpeedByLessThanAStep) {
  const Recorder fast = Written("telc", 11);
  const Recorder slow = Written("telc", 11, {}, 0.01);
  const double fastX = fast.runs.at(3).arguments.at(3);
  const double slowX = slow.runs.at(3).arguments.at(3);
  EXPECT_NE(fastX, slowX);
  EXPECT_LT(std::abs(fastX - slowX), 1);
  EXPECT_EQ(fastX, fast.runs.at(2).arguments.at(1) + 112.5);
}

TEST(TeluguConsonants, TakeTheHeightOfTheFormOfLaFromItsColumn) {
  const Recorder sheet = Written("telc", 64);
  for (const RecordedRun& run : sheet.runs) EXPECT_EQ(run.arguments.at(4), 600 - 75);
}

}  // namespace
}  // namespace bramlee
