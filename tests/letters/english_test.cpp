// Which strokes of English letters follow the registers, and how letters with a shared part differ.
#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

#include "tests/letters/written.h"

namespace bramlee {
namespace {

Runs Capital(char letter, double step = 1) {
  return Written("engc", letter - 'A' + 1, {}, step).runs;
}

Runs Small(char letter, double step = 1) {
  return Written("engs", letter - 'a' + 1, {}, step).runs;
}

/// Where the arc's last dot falls, X and Y.
std::pair<double, double> EndOf(const RecordedRun& arc, double step) {
  const double angle = arc.arguments[1] + arc.arguments[0] * step * (arc.dots - 1);
  const double radians = angle * 3.14159 / 180;
  return {arc.arguments[3] + arc.arguments[5] * std::cos(radians),
          arc.arguments[4] - arc.arguments[5] * std::sin(radians)};
}

TEST(Capitals, CrossbarOfTheAMeetsItsLegsToWithinAPixel) {
  const Runs a = Capital('A');
  const double reach = 100 * std::tan(20.65 * 3.14159 / 180);
  EXPECT_NEAR(a[2].arguments[0], 500 - reach, 1);
  EXPECT_NEAR(a[2].arguments[2], 500 + reach, 1);
  EXPECT_EQ(a[2].arguments[1], 250);
  EXPECT_NE(a[2].arguments[0], Capital('A', 0.01)[2].arguments[0]);
}

TEST(Capitals, CrossbarOfTheGEndsWhereItsArcEnded) {
  for (const double step : {1.0, 0.01, 0.7}) {
    const Runs g = Capital('G', step);
    const auto [x, y] = EndOf(g[0], step);
    EXPECT_NEAR(g[1].arguments[2], x, 1e-6) << step;
    EXPECT_NEAR(g[2].arguments[0], x, 1e-6) << step;
    EXPECT_NEAR(g[2].arguments[2], y, 1e-6) << step;
  }
  EXPECT_GT(std::abs(Capital('G', 0.7)[1].arguments[2] - Capital('G', 1)[1].arguments[2]), 0.1);
}

TEST(Capitals, ThatShareAPartDifferByTheirColumnAndALastStroke) {
  const Runs b = Capital('B');
  const Runs p = Capital('P');
  const Runs r = Capital('R');
  ASSERT_EQ(b.size(), 6U);
  EXPECT_EQ(p, Moved(FirstOf(b, 4), 400));
  EXPECT_EQ(FirstOf(r, 4), FirstOf(b, 4));
  ASSERT_EQ(r.size(), 5U);
  EXPECT_EQ(r[4].primitive, Primitive::SlantRight);

  EXPECT_EQ(FirstOf(Capital('G'), 1), Capital('C'));

  const Runs e = Capital('E');
  ASSERT_EQ(e.size(), 4U);
  EXPECT_EQ(Capital('F'), Moved(FirstOf(e, 3), 200));
  EXPECT_EQ(Capital('L'), Moved({e[0], e[3]}, 600));

  const Runs h = Capital('H');
  ASSERT_EQ(h.size(), 3U);
  EXPECT_EQ(Capital('I'), Moved(FirstOf(h, 1), 500 - 1025));
  EXPECT_EQ(FirstOf(Capital('T'), 1), Moved(FirstOf(h, 1), 1100 - 1025));
  EXPECT_EQ(Capital('T').size(), 2U);

  const Runs q = Capital('Q');
  ASSERT_EQ(q.size(), 6U);
  EXPECT_EQ(Capital('O'), Moved(FirstOf(q, 5), 400));
}

TEST(SmallLetters, HookOfTheJHasItsCentreOnTheBaseLine) {
  const RecordedRun hook = Small('j').at(2);
  EXPECT_EQ(hook.arguments, (std::vector<double>{-1, 360, 180, 662.5, 275, 37.5}));
}

TEST(SmallLetters, MIsNWithASmallerRadiusAndASecondArch) {
  const Runs m = Small('m');
  const Runs n = Small('n');
  ASSERT_EQ(m.size(), 5U);
  ASSERT_EQ(n.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(m[i].primitive, n[i].primitive);
  EXPECT_EQ(m[1].arguments[5], 37.5);
  EXPECT_EQ(n[1].arguments[5], 67.5);
}

TEST(SmallLetters, StemsStandWhereTheirArcReallyEnded) {
  struct Join {
    char letter;
    std::size_t arc;
    std::size_t stem;
  };
  for (const double step : {1.0, 0.01, 0.7}) {
    for (const Join& join : {
             Join{'a', 0, 1},
             Join{'d', 0, 1},
             Join{'g', 0, 1},
             Join{'h', 1, 2},
             Join{'m', 1, 2},
             Join{'n', 1, 2}
    }) {
      const Runs runs = Small(join.letter, step);
      const double stemX = runs[join.stem].arguments[0];
      EXPECT_NEAR(stemX, EndOf(runs[join.arc], step).first, 1e-6) << join.letter << ' ' << step;
    }
  }
  // 0 to 360 by 0.7 ends before the turn is full, so the stem moves left
  EXPECT_LT(Small('a', 0.7)[1].arguments[0], Small('a', 1)[1].arguments[0]);
}

TEST(SmallLetters, ThatShareAPartDifferByTheirColumnAndOneOrTwoStrokes) {
  EXPECT_EQ(FirstOf(Small('h'), 1), Moved(FirstOf(Small('b'), 1), 400));
  EXPECT_EQ(Small('b').size(), 2U);
  EXPECT_EQ(Small('h').size(), 3U);

  EXPECT_EQ(FirstOf(Small('j'), 2), Moved(Small('i'), 200));

  const Runs k = Small('k');
  ASSERT_EQ(k.size(), 3U);
  EXPECT_EQ(Small('l'), Moved(FirstOf(k, 1), 1100 - 825));

  EXPECT_EQ(Small('o').size(), 1U);
  EXPECT_EQ(Small('p').size(), 2U);
}

}  // namespace
}  // namespace bramlee
