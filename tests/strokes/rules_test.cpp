#include "strokes/rules.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "engine/drawing_surface.h"
#include "tests/recorder.h"

namespace bramlee {
namespace {

std::vector<std::string> Calls(const Recorder& recorder) {
  std::vector<std::string> calls;
  for (const RecordedRun& run : recorder.runs) {
    std::ostringstream call;
    call << PrimitiveName(run.primitive);
    for (const double argument : run.arguments) call << ' ' << argument;
    calls.push_back(call.str());
  }
  return calls;
}

std::vector<std::string> Across(int left, int right, const std::vector<int>& ys) {
  std::vector<std::string> calls;
  for (const int y : ys) {
    calls.push_back("LineRight " + std::to_string(left) + " " + std::to_string(y) + " " +
                    std::to_string(right));
  }
  return calls;
}

std::vector<std::string> GridCalls(const SheetExtent& extent) {
  Recorder recorder(1);
  DrawGrid(recorder, extent);
  return Calls(recorder);
}

std::vector<std::string> RuleCalls(const SheetExtent& extent, RuleLines lines,
                                   std::int16_t number) {
  Recorder recorder(1);
  DrawRules(recorder, extent, lines, number);
  return Calls(recorder);
}

TEST(Grid, OfCapitalsIsFiveLinesAcrossThenFiveDown) {
  const std::vector<std::string> expected{"LineRight 400 50 1200",  "LineRight 400 150 1200",
                                          "LineRight 400 250 1200", "LineRight 400 350 1200",
                                          "LineRight 400 450 1200", "LineDown 400 50 450",
                                          "LineDown 600 50 450",    "LineDown 800 50 450",
                                          "LineDown 1000 50 450",   "LineDown 1200 50 450"};
  EXPECT_EQ(GridCalls(kCapitalsExtent), expected);
}

TEST(Grid, OfSmallLettersHasLinesSeventyFiveApart) {
  const std::vector<std::string> expected{"LineRight 400 50 1200",  "LineRight 400 125 1200",
                                          "LineRight 400 200 1200", "LineRight 400 275 1200",
                                          "LineRight 400 350 1200", "LineDown 400 50 350",
                                          "LineDown 600 50 350",    "LineDown 800 50 350",
                                          "LineDown 1000 50 350",   "LineDown 1200 50 350"};
  EXPECT_EQ(GridCalls(kSmallExtent), expected);
}

TEST(Grid, OfTheWideSheetsHasCellsOf250By75) {
  const std::vector<std::string> expected{"LineRight 100 250 1100", "LineRight 100 325 1100",
                                          "LineRight 100 400 1100", "LineRight 100 475 1100",
                                          "LineRight 100 550 1100", "LineDown 100 250 550",
                                          "LineDown 350 250 550",   "LineDown 600 250 550",
                                          "LineDown 850 250 550",   "LineDown 1100 250 550"};
  EXPECT_EQ(GridCalls(kWideExtent), expected);
}

TEST(Grid, OfCapitalsTakesSixHundredThousandDotsAtTheDefaultStep) {
  Recorder recorder(0.01);
  DrawGrid(recorder, kCapitalsExtent);
  EXPECT_NEAR(static_cast<double>(recorder.dots.size()), 600000, 20);
}

TEST(Grid, TakesTenTimesAsManyDotsAtTheSlowestSpeed) {
  Recorder byDefault(0.01);
  Recorder slowest(0.001);
  DrawGrid(byDefault, kSmallExtent);
  DrawGrid(slowest, kSmallExtent);
  EXPECT_NEAR(static_cast<double>(slowest.dots.size()) / static_cast<double>(byDefault.dots.size()),
              10, 0.01);
}

TEST(Rules, OfCapitalsRunFromTheirFirstToTheirLastLine) {
  const std::vector<std::string> expected[] = {
      Across(400, 1200, {350}), Across(400, 1200, {250, 350}), Across(400, 1200, {150, 250, 350}),
      Across(400, 1200, {150, 250, 350, 450}), Across(400, 1200, {50, 150, 250, 350, 450})};
  for (std::int16_t number = 1; number <= 5; ++number) {
    EXPECT_EQ(RuleCalls(kCapitalsExtent, RuleLines::FirstToLast, number), expected[number - 1]);
  }
}

TEST(Rules, OfSmallLettersAndTeluguVowelsRunFromTheirFirstToTheirLastLine) {
  const std::vector<std::string> expected[] = {
      Across(400, 1200, {275}), Across(400, 1200, {200, 275}), Across(400, 1200, {125, 200, 275}),
      Across(400, 1200, {125, 200, 275, 350}), Across(400, 1200, {50, 125, 200, 275, 350})};
  for (std::int16_t number = 1; number <= 5; ++number) {
    EXPECT_EQ(RuleCalls(kSmallExtent, RuleLines::FirstToLast, number), expected[number - 1]);
  }
}

TEST(Rules, OfTheWideSheetsLeaveLinesOutLikeAWritingBook) {
  const std::vector<std::string> expected[] = {
      Across(100, 1100, {475}), Across(100, 1100, {325, 475}), Across(100, 1100, {325, 400, 475}),
      Across(100, 1100, {250, 325, 475, 550}), Across(100, 1100, {250, 325, 400, 475, 550})};
  for (std::int16_t number = 1; number <= 5; ++number) {
    EXPECT_EQ(RuleCalls(kWideExtent, RuleLines::WritingBook, number), expected[number - 1]);
  }
}

TEST(Rules, OutsideOneToFiveDrawNothing) {
  for (const int number : {-1, 0, 6, 7, 32767}) {
    for (const RuleLines lines : {RuleLines::FirstToLast, RuleLines::WritingBook}) {
      EXPECT_TRUE(RuleCalls(kWideExtent, lines, static_cast<std::int16_t>(number)).empty());
      EXPECT_TRUE(RuleCalls(kCapitalsExtent, lines, static_cast<std::int16_t>(number)).empty());
    }
  }
}

TEST(Rules, CountInTheWordTheyAreGivenWhereTheyRunFromFirstToLast) {
  const std::int16_t afterwards[] = {5, 5, 5, 6, 6};
  for (std::int16_t number = 1; number <= 5; ++number) {
    Recorder recorder(1);
    std::int16_t word = number;
    DrawRules(recorder, kCapitalsExtent, RuleLines::FirstToLast, word);
    EXPECT_EQ(word, afterwards[number - 1]) << number;
  }
}

TEST(Rules, LeaveTheWordAloneOnTheWideSheets) {
  for (std::int16_t number = 1; number <= 5; ++number) {
    Recorder recorder(1);
    std::int16_t word = number;
    DrawRules(recorder, kWideExtent, RuleLines::WritingBook, word);
    EXPECT_EQ(word, number);
  }
}

}  // namespace
}  // namespace bramlee
