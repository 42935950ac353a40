// Which numbers stand over the letters of a page.
#include "writing/page_numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "strokes/letter.h"

namespace bramlee {
namespace {

constexpr NumberRule kRule{.discRadius = 12, .penHalfWidth = 5, .hand = Hand::Right};

PlacedLetter Placed(std::string_view set, int tile, const Placing& placing = {}) {
  return {.letter = LetterOf({.set = set, .tile = tile, .form = {}}),
          .colour = 0,
          .placing = placing,
          .ruling = false};
}

PlacedLetter Ruling() {
  std::vector<Run> runs{
      {Primitive::LineRight, {0, 600, 1000}}
  };
  return {
      .letter = {{},               kUsualStep, std::move(runs)},
        .colour = 0, .placing = {               },
        .ruling = true
  };
}

std::vector<std::size_t> LettersOf(const std::vector<PageNumber>& numbers) {
  std::vector<std::size_t> letters;
  for (const PageNumber& number : numbers) letters.push_back(number.letter);
  return letters;
}

TEST(PageNumbersTest, AreThoseOfEachLettersStrokes) {
  Page page;
  page.Add(Placed("engc", 2));
  const std::vector<PageNumber> numbers = NumbersOf(page, kRule);
  const auto& strokes = page.Letters()[0].letter.Shape().strokes;
  ASSERT_EQ(numbers.size(), strokes.size());
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    EXPECT_EQ(numbers[i].stroke, i);
    EXPECT_EQ(numbers[i].place.radius, 12);
    EXPECT_TRUE(numbers[i].place.clean);
    EXPECT_LT(DistanceBetween(numbers[i].place.centre, strokes[i].points.front()), 40);
  }
}

TEST(PageNumbersTest, LeaveRulingsOut) {
  Page page;
  page.Add(Ruling());
  page.Add(Placed("engc", 9));
  page.Add(Ruling());
  EXPECT_EQ(LettersOf(NumbersOf(page, kRule)), (std::vector<std::size_t>{1}));
}

TEST(PageNumbersTest, LeaveALetterOutThatALaterOneWasWrittenOver) {
  Page page;
  page.Add(Placed("mat", 4));
  page.Add(Placed("mat", 8));  // in the same place
  const Placing aside{.scale = 1, .right = 400, .down = 0};
  page.Add(Placed("mat", 8, aside));
  EXPECT_EQ(LettersOf(NumbersOf(page, kRule)), (std::vector<std::size_t>{1, 2}));
}

TEST(PageNumbersTest, KeepALetterThatALaterOneTouches) {
  Page page;
  const Box box = LetterOf({.set = "engc", .tile = 8, .form = {}}).Bounds();
  page.Add(Placed("engc", 8));
  page.Add(Placed("engc", 8, {.scale = 1, .right = 0.9 * box.width, .down = 0}));
  EXPECT_EQ(LettersOf(NumbersOf(page, kRule)), (std::vector<std::size_t>{0, 0, 0, 1, 1, 1}));
}

TEST(PageNumbersTest, StandWhereTheLetterIsPlaced) {
  const Placing placing{.scale = 0.5, .right = 300, .down = 40};
  Page page;
  page.Add(Placed("engc", 9, placing));
  const Point begin = LetterOf({.set = "engc", .tile = 9, .form = {}}).Shape().strokes[0].points[0];
  const Point placed{begin.x * 0.5 + 300, begin.y * 0.5 + 40};
  EXPECT_LT(DistanceBetween(NumbersOf(page, kRule).at(0).place.centre, placed), 25);
}

TEST(PageNumbersTest, KeepClearOfTheOtherLettersAndTheirNumbers) {
  Page page;
  // the second one begins where the first one's number would stand alone
  page.Add(Placed("engc", 9));
  page.Add(Placed("engc", 9, {.scale = 1, .right = -22, .down = -12}));
  page.Add(Placed("engc", 9, {.scale = 1, .right = 22, .down = 6}));
  const std::vector<PageNumber> numbers = NumbersOf(page, kRule);
  ASSERT_EQ(numbers.size(), 3U);
  const auto& line = LetterOf({.set = "engc", .tile = 9, .form = {}}).Shape().strokes[0].points;
  for (const PageNumber& number : numbers) {
    for (const PageNumber& other : numbers) {
      const Placing& placing = page.Letters()[other.letter].placing;
      for (const Point& point : line) {
        const Point ink{point.x + placing.right, point.y + placing.down};
        EXPECT_GT(DistanceBetween(number.place.centre, ink), 12 + 5);
      }
      if (number.letter == other.letter) continue;
      EXPECT_GT(DistanceBetween(number.place.centre, other.place.centre), 24);
    }
  }
}

TEST(PageNumbersTest, OfAnEmptyPageAreNone) {
  EXPECT_TRUE(NumbersOf(Page(), kRule).empty());
  EXPECT_EQ(FirstNumbered(Page(), {}), Player::Where());
}

TEST(FirstNumberedTest, IsTheFirstStrokeThatIsNotBegun) {
  Page page;
  page.Add(Placed("engc", 1));
  page.Add(Placed("engc", 2));
  EXPECT_EQ(FirstNumbered(page, {.letter = 1, .stroke = 1, .begun = false}),
            (Player::Where{.letter = 1, .stroke = 1}));
  EXPECT_EQ(FirstNumbered(page, {.letter = 1, .stroke = 1, .begun = true}),
            (Player::Where{.letter = 1, .stroke = 2}));
}

TEST(FirstNumberedTest, IsTheVeryFirstOnceAllIsWritten) {
  Page page;
  page.Add(Placed("engc", 1));
  page.Add(Ruling());
  EXPECT_EQ(FirstNumbered(page, {.letter = 2}), Player::Where());
  // a ruling is being written and no letter follows
  EXPECT_EQ(FirstNumbered(page, {.letter = 1, .stroke = 0, .begun = true}), Player::Where());
}

TEST(FirstNumberedTest, IsInTheNextLetterWhileARulingIsWritten) {
  Page page;
  page.Add(Placed("engc", 1));
  page.Add(Ruling());
  page.Add(Placed("engc", 2));
  EXPECT_EQ(FirstNumbered(page, {.letter = 1, .stroke = 0, .begun = true}),
            (Player::Where{.letter = 2}));
}

}  // namespace
}  // namespace bramlee
