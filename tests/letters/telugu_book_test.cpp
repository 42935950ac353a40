// The Telugu letters as in the book, beside the given ones.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "tests/letters/written.h"

namespace bramlee {
namespace {

std::vector<int> TilesInTheBook(std::string_view name) {
  const LetterSet& set = *FindLetterSet(name);
  std::vector<int> tiles;
  for (int tile = 1; tile <= set.tiles; ++tile) {
    if (HasBookForm(set, tile)) tiles.push_back(tile);
  }
  return tiles;
}

/// Whether the runs are the same but for the rounding of their figures.
void ExpectSameStrokes(const Runs& written, const Runs& wanted) {
  ASSERT_EQ(written.size(), wanted.size());
  for (std::size_t run = 0; run < wanted.size(); ++run) {
    SCOPED_TRACE(run);
    EXPECT_EQ(written[run].primitive, wanted[run].primitive);
    ASSERT_EQ(written[run].arguments.size(), wanted[run].arguments.size());
    for (std::size_t place = 0; place < wanted[run].arguments.size(); ++place) {
      EXPECT_NEAR(written[run].arguments[place], wanted[run].arguments[place], 0.001) << place;
    }
  }
}

constexpr double kColumn = 250;

/// The way around and the angles of an arc.
std::vector<double> TurnOf(const RecordedRun& arc) {
  return {arc.arguments.begin(), arc.arguments.begin() + 3};
}

/// Centre and radius of an arc.
std::vector<double> WhereOf(const RecordedRun& arc) {
  return {arc.arguments.begin() + 3, arc.arguments.end()};
}

TEST(TeluguBook, HasTheVowelsThatTheTablesWriteOtherwise) {
  EXPECT_EQ(TilesInTheBook("telv"),
            (std::vector<int>{5, 6, 17, 18, 26, 27, 29, 30, 31, 32, 33, 34, 35}));
}

TEST(TeluguBook, HasTheConsonantsThatTheTablesWriteOtherwise) {
  EXPECT_EQ(TilesInTheBook("telc"), (std::vector<int>{13, 15, 16, 30, 35, 39, 44, 45, 47, 48, 50,
                                                      56, 61, 62, 63, 67, 74, 75}));
}

TEST(TeluguBook, KeepsOneOfTheWaysThatATileShowsInItsFirstColumn) {
  struct Kept {
    int tile;
    std::ptrdiff_t first;  ///< run of the given tile, from 0
    std::ptrdiff_t count;
    int column;
  };
  for (const auto& [tile, first, count, column] : {
           Kept{15, 11, 6, 3},
           Kept{16, 13, 6, 3},
           Kept{63, 0,  1, 1},
  }) {
    SCOPED_TRACE(tile);
    const Runs given = Written("telc", tile).runs;
    const Runs way{given.begin() + first, given.begin() + first + count};
    ExpectSameStrokes(FirstOf(Written("telc", tile, kBook).runs, count),
                      Moved(way, kColumn * (1 - column)));
  }
}

TEST(TeluguBook, WritesNoStrokeOfTheOtherWays) {
  EXPECT_EQ(Written("telc", 15, kBook).runs.size(), 6U);
  EXPECT_EQ(Written("telc", 63, kBook).runs.size(), 1U);
}

TEST(TeluguBook, HangsTheLastStrokeOfDdhaOutBelowItsBowls) {
  const Recorder sheet = Written("telc", 16, kBook);
  ASSERT_EQ(sheet.runs.size(), 7U);
  EXPECT_EQ(sheet.runs[6].primitive, Primitive::LineDown);
  const auto foot = sheet.dots.end() - sheet.runs[6].dots;
  const float bowls = std::ranges::max_element(sheet.dots.begin(), foot, {}, &Dot::y)->y;
  EXPECT_GT(sheet.dots.back().y, bowls + 20);
}

TEST(TeluguBook, BeginsARingWhereItGoesOnIntoTheBow) {
  for (const int tile : {13, 30, 35, 47}) {
    SCOPED_TRACE(tile);
    const Recorder book = Written("telc", tile, kBook);
    const auto bow = static_cast<std::size_t>(book.runs.at(0).dots);
    EXPECT_NEAR(book.dots.at(bow - 1).x, book.dots.at(bow).x, 2);
    EXPECT_NEAR(book.dots.at(bow - 1).y, book.dots.at(bow).y, 2);
  }
}

TEST(TeluguBook, KeepsTheShapeOfALetterWhoseRingBeginsElsewhere) {
  for (const int tile : {30, 35, 47}) {
    SCOPED_TRACE(tile);
    const Runs given = Written("telc", tile).runs;
    const Runs book = Written("telc", tile, kBook).runs;
    EXPECT_EQ(book[0].dots, given[0].dots);
    EXPECT_EQ(WhereOf(book[0]), WhereOf(given[0]));
    const auto rest = static_cast<std::ptrdiff_t>(book.size());
    ExpectSameStrokes({book.begin() + 1, book.end()}, {given.begin() + 1, given.begin() + rest});
  }
}

TEST(TeluguBook, GoesOverEachTickOnce) {
  for (const int tile : {39, 44, 45, 48}) {
    SCOPED_TRACE(tile);
    Runs once = Written("telc", tile).runs;
    once.erase(once.begin() + 5, once.begin() + 7);
    EXPECT_EQ(Written("telc", tile, kBook).runs, once);
  }
}

TEST(TeluguBook, WritesSomeLettersWithoutALift) {
  struct Letter {
    const char* set;
    int tile;
  };
  for (const auto& [set, tile] : {
           Letter{"telv", 17},
           Letter{"telv", 26},
           Letter{"telv", 29},
           Letter{"telv", 30},
           Letter{"telv", 31},
           Letter{"telv", 32},
           Letter{"telc", 56},
           Letter{"telc", 61},
           Letter{"telc", 62},
           Letter{"telc", 74},
           Letter{"telc", 75}
  }) {
    SCOPED_TRACE(std::string(set) + " " + std::to_string(tile));
    const Recorder sheet = Written(set, tile, kBook);
    std::size_t next = 0;
    for (std::size_t run = 0; run + 1 < sheet.runs.size(); ++run) {
      next += static_cast<std::size_t>(sheet.runs[run].dots);
      const Dot end = sheet.dots.at(next - 1);
      const Dot begin = sheet.dots.at(next);
      EXPECT_LT(std::hypot(begin.x - end.x, begin.y - end.y), 5) << run;
    }
  }
}

/// Expects the arcs of `small` to turn as those of `whole` do, `scale` times as large.
void ExpectSmallerArcs(const Runs& small, const Runs& whole, double scale) {
  ASSERT_EQ(small.size(), whole.size());
  for (std::size_t run = 0; run < whole.size(); ++run) {
    SCOPED_TRACE(run);
    ASSERT_EQ(small[run].primitive, whole[run].primitive);
    if (whole[run].primitive != Primitive::ArcStroke) continue;
    EXPECT_EQ(TurnOf(small[run]), TurnOf(whole[run]));
    EXPECT_NEAR(small[run].arguments[5], scale * whole[run].arguments[5], 0.001);
  }
}

TEST(TeluguBook, HangsRraBelowAnotherLetterAsTheWholeLetterInSmall) {
  ExpectSmallerArcs(Written("telc", 75, kBook).runs, Written("telc", 74, kBook).runs, 0.4);
}

TEST(TeluguBook, HangsSsaBelowAnotherLetterAsTheWholeLetterInSmallWithoutItsTick) {
  Runs whole = Written("telc", 50, kBook).runs;
  ASSERT_EQ(whole.size(), 6U);
  whole.erase(whole.begin() + 3, whole.begin() + 5);
  ExpectSmallerArcs(Written("telc", 67, kBook).runs, whole, 0.5);
}

TEST(TeluguBook, BendsTheFootOfSsaAwayFromThatOfPha) {
  const Recorder ssa = Written("telc", 50, kBook);
  EXPECT_EQ(FirstOf(ssa.runs, 5), FirstOf(Written("telc", 50).runs, 5));
  const auto foot = ssa.dots.end() - ssa.runs.back().dots;
  EXPECT_GT(ssa.dots.back().x, foot->x + 15);
}

TEST(TeluguBook, WritesTheSignsOfVocalicLAsTheLettersInSmall) {
  ExpectSmallerArcs(Written("telv", 29, kBook).runs, Written("telv", 31, kBook).runs, 0.5);
  ExpectSmallerArcs(Written("telv", 30, kBook).runs, Written("telv", 32, kBook).runs, 0.5);
}

TEST(TeluguBook, AddsARingToTheBowlsOfU) {
  for (const int tile : {5, 6}) {
    SCOPED_TRACE(tile);
    Runs book = Written("telv", tile, kBook).runs;
    ASSERT_GT(book.size(), 3U);
    EXPECT_EQ(book[3].primitive, Primitive::ArcStroke);
    EXPECT_EQ(book[3].dots, 361);
    book.erase(book.begin() + 3);
    EXPECT_EQ(book, Written("telv", tile).runs);
  }
}

TEST(TeluguBook, ShowsTheSignsThatEndASyllableCloseBehindTheirLetterWithoutAWord) {
  const Runs a = Written("telv", 1).runs;
  for (const int tile : {33, 34, 35}) {
    SCOPED_TRACE(tile);
    const Recorder sheet = Written("telv", tile, kBook);
    EXPECT_EQ(FirstOf(sheet.runs, 4), a);
    EXPECT_LT(std::ranges::max(sheet.dots, {}, &Dot::x).x, 500);
  }
}

}  // namespace
}  // namespace bramlee
