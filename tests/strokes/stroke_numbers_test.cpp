// Where the numbers of pen strokes stand.
#include "strokes/stroke_numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "strokes/letter.h"
#include "tests/strokes/every_letter.h"

namespace bramlee {
namespace {

constexpr NumberRule kRightHand{.discRadius = 9, .penHalfWidth = 5, .hand = Hand::Right};
constexpr NumberRule kLeftHand{.discRadius = 9, .penHalfWidth = 5, .hand = Hand::Left};

using Numbers = std::vector<StrokeNumber>;

StrokePath LineFrom(const Point& from, const Point& to) {
  StrokePath path;
  path.length = DistanceBetween(from, to);
  const int parts = std::max(1, static_cast<int>(path.length));
  for (int i = 0; i <= parts; ++i) {
    const double way = static_cast<double>(i) / parts;
    path.points.push_back({from.x + (to.x - from.x) * way, from.y + (to.y - from.y) * way});
  }
  return path;
}

double NearestInk(const Point& place, const std::vector<StrokePath>& paths) {
  double nearest = 1e9;
  for (const StrokePath& path : paths) {
    for (const Point& point : path.points) {
      nearest = std::min(nearest, DistanceBetween(point, place));
    }
  }
  return nearest;
}

/// What is wrong with a number, by looking at all there is; empty if nothing.
std::string FaultOf(std::size_t stroke, const Numbers& numbers,
                    const std::vector<StrokePath>& strokes, const NumberRule& rule) {
  const StrokeNumber& number = numbers[stroke];
  if (NearestInk(number.centre, strokes) <= number.radius + rule.penHalfWidth) return "touches ink";
  const Point& begin = strokes[stroke].points.front();
  for (std::size_t i = 0; i < strokes.size(); ++i) {
    if (i == stroke || strokes[i].points.empty()) continue;
    const double apart = DistanceBetween(number.centre, numbers[i].centre);
    if (apart <= number.radius + numbers[i].radius)
      return "touches number " + std::to_string(i + 1);
    const Point& other = strokes[i].points.front();
    const bool nearerToOther =
        DistanceBetween(number.centre, other) <= DistanceBetween(number.centre, begin);
    if (nearerToOther && DistanceBetween(begin, other) >= kSameBegin) {
      return "stands nearer to begin " + std::to_string(i + 1);
    }
  }
  return "";
}

struct Verdict {
  int numbers = 0;
  int clean = 0;
  std::vector<std::string> rest;
};

Verdict VerdictOnEveryLetter(const NumberRule& rule) {
  Verdict verdict;
  for (const LetterId& id : EveryLetter()) {
    if (id.form.place > 1) continue;  // the same digit, moved
    const std::vector<StrokePath>& strokes = LetterOf(id).Shape().strokes;
    const Numbers numbers = PlaceNumbers(strokes, rule);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      if (numbers[i].radius == 0) continue;
      const std::string fault = FaultOf(i, numbers, strokes, rule);
      EXPECT_EQ(numbers[i].clean, fault.empty()) << NameOf(id) << ' ' << i + 1 << ' ' << fault;
      ++verdict.numbers;
      if (fault.empty()) ++verdict.clean;
      if (!fault.empty()) {
        verdict.rest.push_back(NameOf(id) + ": " + std::to_string(i + 1) + ' ' + fault);
      }
    }
  }
  return verdict;
}

/// 99 of 100 have to be clean; those that are not are named here.
void ExpectCleanBut(const std::vector<std::string>& rest, const NumberRule& rule) {
  const Verdict verdict = VerdictOnEveryLetter(rule);
  EXPECT_GT(verdict.numbers, 900);
  EXPECT_GE(verdict.clean * 100, verdict.numbers * 99);
  EXPECT_EQ(verdict.rest, rest);
}

TEST(StrokeNumbersTest, OfEveryLetterAreCleanForARightHand) {
  ExpectCleanBut({}, kRightHand);
}

TEST(StrokeNumbersTest, OfEveryLetterAreCleanForALeftHand) {
  ExpectCleanBut({}, kLeftHand);
}

TEST(StrokeNumbersTest, OfEveryLetterAreCleanButForTwoWhereDiscsAreAsLargeAsLettersAllow) {
  ExpectCleanBut({"hinv 10 place 0: 3 touches ink", "hinv 11 place 0: 3 touches ink"},
                 {.discRadius = 18, .penHalfWidth = 5, .hand = Hand::Right});
}

TEST(StrokeNumbersTest, StandAwayFromTheHand) {
  const std::vector strokes{LineFrom({200, 100}, {200, 300})};
  const StrokeNumber right = PlaceNumbers(strokes, kRightHand).at(0);
  EXPECT_LT(right.centre.x, 200 - 5);
  EXPECT_LT(right.arrow.head[0].x, 200 - 5);
  const StrokeNumber left = PlaceNumbers(strokes, kLeftHand).at(0);
  EXPECT_GT(left.centre.x, 200 + 5);
  EXPECT_GT(left.arrow.head[0].x, 200 + 5);
}

TEST(StrokeNumbersTest, KeepClearOfObstacles) {
  const std::vector strokes{LineFrom({200, 100}, {200, 300})};
  const Point usual = PlaceNumbers(strokes, kRightHand).at(0).centre;
  const std::vector obstacles{LineFrom(usual, {usual.x, usual.y + 1})};
  const StrokeNumber moved = PlaceNumbers(strokes, kRightHand, obstacles).at(0);
  EXPECT_TRUE(moved.clean);
  EXPECT_GT(NearestInk(moved.centre, obstacles), 9 + 5);
}

TEST(StrokeNumbersTest, OfStrokesThatBeginAtOnePlaceStandAtTheirOwnStrokes) {
  const std::vector strokes{LineFrom({200, 100}, {200, 300}), LineFrom({200, 100}, {350, 100})};
  for (const NumberRule& rule : {kRightHand, kLeftHand}) {
    const Numbers numbers = PlaceNumbers(strokes, rule);
    EXPECT_TRUE(numbers[0].clean && numbers[1].clean);
    EXPECT_LT(DistanceBetween(numbers[0].centre, {200, 110}),
              DistanceBetween(numbers[0].centre, {210, 100}));
    EXPECT_LT(DistanceBetween(numbers[1].centre, {210, 100}),
              DistanceBetween(numbers[1].centre, {200, 110}));
  }
}

TEST(StrokeNumbersTest, HaveArrowsInTheDirectionOfThePen) {
  const std::vector strokes{LineFrom({350, 100}, {200, 100})};
  const StrokeArrow arrow = PlaceNumbers(strokes, kRightHand).at(0).arrow;
  ASSERT_TRUE(arrow.IsDrawn());
  EXPECT_LT(arrow.head[0].x, arrow.shaft.front().x);
}

TEST(StrokeNumbersTest, HaveArrowsBesideTheirStrokesWhereThereIsRoom) {
  const std::vector strokes{LineFrom({200, 100}, {200, 300})};
  EXPECT_GT(NearestInk(PlaceNumbers(strokes, kRightHand).at(0).arrow.head[0], strokes), 5);
  const std::vector leftWall{LineFrom({188, 118}, {188, 400})};
  const StrokeArrow right = PlaceNumbers(strokes, kRightHand, leftWall).at(0).arrow;
  EXPECT_GT(right.head[0].x, 205);
  const std::vector walls{LineFrom({188, 0}, {188, 400}), LineFrom({212, 0}, {212, 400})};
  const StrokeArrow on = PlaceNumbers(strokes, kRightHand, walls).at(0).arrow;
  EXPECT_EQ(on.head[0].x, 200);
}

TEST(StrokeNumbersTest, HaveAShorterArrowOnTheInkWhereALongerOneWouldBend) {
  StrokePath hook = LineFrom({200, 100}, {200, 113});
  for (int i = 1; i <= 40; ++i) {
    const double angle = i * 3.14159265 / 40;
    hook.points.push_back({212 - 12 * std::cos(angle), 113 + 12 * std::sin(angle)});
  }
  const std::vector walls{LineFrom({188, 0}, {188, 400}), LineFrom({212, 0}, {212, 400})};
  const StrokeArrow arrow = PlaceNumbers({&hook, 1}, kRightHand, walls).at(0).arrow;
  ASSERT_TRUE(arrow.IsDrawn());
  EXPECT_NEAR(arrow.head[0].x, 200, 5);
  EXPECT_LT(arrow.head[0].y, 125);
}

TEST(StrokeNumbersTest, OfASmallRingHaveAnArrowOutsideOrNone) {
  StrokePath ring;
  for (int i = 0; i <= 40; ++i) {
    const double angle = i * 3.14159265 / 20;
    ring.points.push_back({200 - 7 * std::cos(angle), 200 - 7 * std::sin(angle)});
  }
  const StrokeArrow arrow = PlaceNumbers({&ring, 1}, kRightHand).at(0).arrow;
  ASSERT_TRUE(arrow.IsDrawn());
  for (const Point& point : arrow.shaft) EXPECT_GT(DistanceBetween(point, {200, 200}), 7 + 5);
  const std::vector walls{LineFrom({180, 180}, {220, 180}), LineFrom({180, 220}, {220, 220}),
                          LineFrom({180, 180}, {180, 220}), LineFrom({220, 180}, {220, 220})};
  EXPECT_FALSE(PlaceNumbers({&ring, 1}, kRightHand, walls).at(0).arrow.IsDrawn());
}

TEST(StrokeNumbersTest, OfADotHaveNoArrow) {
  const std::vector<StrokePath> strokes{LineFrom({200, 100}, {201, 100})};
  const StrokeNumber number = PlaceNumbers(strokes, kRightHand).at(0);
  EXPECT_TRUE(number.clean);
  EXPECT_FALSE(number.arrow.IsDrawn());
}

TEST(StrokeNumbersTest, SkipAStrokeThatPlotsNothing) {
  const std::vector strokes{StrokePath(), LineFrom({200, 100}, {200, 300})};
  const Numbers numbers = PlaceNumbers(strokes, kRightHand);
  ASSERT_EQ(numbers.size(), 2U);
  EXPECT_EQ(numbers[0].radius, 0);
  EXPECT_FALSE(numbers[0].arrow.IsDrawn());
  EXPECT_TRUE(numbers[1].clean);
  EXPECT_TRUE(PlaceNumbers({}, kRightHand).empty());
}

TEST(StrokeNumbersTest, SayWhereThereIsNoRoom) {
  std::vector<StrokePath> walls;
  for (double y = 0; y < 400; y += 10) walls.push_back(LineFrom({0, y}, {400, y}));
  const std::vector strokes{LineFrom({200, 100}, {200, 300})};
  const StrokeNumber number = PlaceNumbers(strokes, kRightHand, walls).at(0);
  EXPECT_EQ(number.radius, 9);
  EXPECT_FALSE(number.clean);
}

TEST(StrokeNumbersTest, OfEveryLetterAreTouchedByNoArrow) {
  for (const LetterId& id : EveryLetter()) {
    const Numbers numbers = PlaceNumbers(LetterOf(id).Shape().strokes, kRightHand);
    for (const StrokeNumber& number : numbers) {
      for (const StrokeNumber& other : numbers) {
        for (const Point& point : other.arrow.shaft) {
          EXPECT_GT(DistanceBetween(point, number.centre), number.radius) << NameOf(id);
        }
      }
    }
  }
}

/// Arrows on the ink may: there the strokes cross too.
TEST(StrokeNumbersTest, OfEveryLetterHaveArrowsThatDoNotCrossBesideTheInk) {
  for (const LetterId& id : EveryLetter()) {
    const std::vector<StrokePath>& strokes = LetterOf(id).Shape().strokes;
    std::vector<StrokeArrow> beside;
    for (const StrokeNumber& number : PlaceNumbers(strokes, kRightHand)) {
      const StrokeArrow& arrow = number.arrow;
      if (arrow.IsDrawn() && NearestInk(arrow.head[0], strokes) > 5) beside.push_back(arrow);
    }
    for (std::size_t i = 0; i < beside.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        for (const Point& point : beside[i].shaft) {
          for (const Point& other : beside[j].shaft) {
            ASSERT_GT(DistanceBetween(point, other), 2) << NameOf(id);
          }
        }
      }
    }
  }
}

/// Else one does not see at a glance where it points.
TEST(StrokeNumbersTest, OfEveryLetterHaveArrowsWithTheHeadInLineWithTheShaft) {
  for (const LetterId& id : EveryLetter()) {
    for (const StrokeNumber& number : PlaceNumbers(LetterOf(id).Shape().strokes, kRightHand)) {
      const StrokeArrow& arrow = number.arrow;
      if (arrow.shaft.size() < 4) continue;
      const Point& end = arrow.shaft.back();
      const Point& before = arrow.shaft[arrow.shaft.size() - 4];
      const double along = (end.x - before.x) * (arrow.head[0].x - end.x) +
                           (end.y - before.y) * (arrow.head[0].y - end.y);
      EXPECT_GT(along / DistanceBetween(before, end) / DistanceBetween(end, arrow.head[0]), 0.7)
          << NameOf(id);
    }
  }
}

}  // namespace
}  // namespace bramlee
