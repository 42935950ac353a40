// Which runs are one movement of the hand.
#include "strokes/pen_strokes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "strokes/letter.h"
#include "tests/strokes/every_letter.h"

namespace bramlee {
namespace {

using Strokes = std::vector<PenStroke>;

Strokes StrokesOf(const Letter& letter) {
  return {letter.PenStrokes().begin(), letter.PenStrokes().end()};
}

TEST(PenStrokesTest, GoOnWithARunThatBeginsAtMostTenPixelsFromTheEnd) {
  // a line of one dot, so that the gap is exact
  const auto line = Line(20, 20);
  EXPECT_EQ(JoinedRuns(
                {
  },
                std::vector{line, Line(30, 40)}),
            (Strokes{{0, 2}}));
  EXPECT_EQ(JoinedRuns(
                {
  },
                std::vector{line, Line(10, 15)}),
            (Strokes{{0, 2}}));
  EXPECT_EQ(JoinedRuns(
                {
  },
                std::vector{line, Line(30.001, 40)}),
            (Strokes{{0, 1}, {1, 1}}));
}

TEST(PenStrokesTest, KeepARunThatPlotsNothing) {
  EXPECT_EQ(JoinedRuns(
                {
  },
                std::vector{Line(10, 20), Line(500, 400), Line(22, 30)}),
            (Strokes{{0, 3}}));
  EXPECT_EQ(JoinedRuns(
                {
  },
                std::vector{Line(500, 400), Line(10, 20)}),
            (Strokes{{0, 1}, {1, 1}}));
  EXPECT_TRUE(JoinedRuns({}, {}).empty());
}

TEST(PenStrokesTest, OfBAreItsStemAndItsBowls) {
  const Letter& b = LetterOf({.set = "engc", .tile = 2, .form = {}});
  ASSERT_EQ(b.PenStrokes().front(), (PenStroke{0, 1}));
  EXPECT_EQ(b.Runs()[0].primitive, Primitive::LineDown);
  EXPECT_GT(b.PenStrokes()[1].runs, 1U);
}

TEST(PenStrokesTest, DifferFromTheRuleWhereTheHandDoesOtherwise) {
  std::vector<std::string> letters;
  for (const LetterId& id : EveryLetter()) {
    const Letter& letter = LetterOf(id);
    const Strokes byDistance = JoinedRuns({}, letter.Runs());
    if (byDistance == StrokesOf(letter)) continue;
    letters.push_back(NameOf(id) + ": " + std::to_string(byDistance.size()) + " to " +
                      std::to_string(letter.PenStrokes().size()));
  }
  EXPECT_EQ(letters,
            (std::vector<std::string>{
                "hinv 9 place 0: 5 to 4", "hinv 9 alternative place 0: 5 to 4",
                "telv 2 place 0: 2 to 1", "telc 2 place 0: 4 to 2", "telc 13 place 0: 4 to 3",
                "telc 29 place 0: 2 to 3", "telc 72 place 0: 2 to 1"}));
}

TEST(PenStrokesTest, OfATileWithOneFormAreThoseOfThatFormHoweverItIsAskedFor) {
  const LetterId other{.set = "telc", .tile = 2, .form = {.alternative = true}};
  EXPECT_EQ(StrokesOf(LetterOf(other)), StrokesOf(LetterOf({"telc", 2, {}})));
}

TEST(PenStrokesTest, HoldEveryRunOnceInOrder) {
  for (const LetterId& id : EveryLetter()) {
    std::size_t next = 0;
    for (const PenStroke& stroke : LetterOf(id).PenStrokes()) {
      EXPECT_EQ(stroke.firstRun, next) << NameOf(id);
      EXPECT_GT(stroke.runs, 0U) << NameOf(id);
      next += stroke.runs;
    }
    EXPECT_EQ(next, LetterOf(id).Runs().size()) << NameOf(id);
  }
}

TEST(PenStrokesTest, AreTheSameAtEachSpeed) {
  constexpr double kSteps[] = {1.0 / 1000, 2.0 / 500, 3.0 / 100, 4.0 / 50, 5.0 / 25, 1};
  for (const LetterId& id : EveryLetter()) {
    if (id.form.place > 1) continue;  // the same digit, moved
    for (const double step : kSteps) {
      EXPECT_EQ(StrokesOf(RecordTile(id, step)), StrokesOf(LetterOf(id)))
          << NameOf(id) << " step " << step;
    }
  }
}

}  // namespace
}  // namespace bramlee
