// What the book forms change, and what they keep of the given ones.
#include "letters/book_forms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "tests/letters/written.h"

namespace bramlee {
namespace {

Runs Given(std::string_view set, int tile, bool alternative = false) {
  return Written(set, tile, {.alternative = alternative}).runs;
}

Runs Book(std::string_view set, int tile, bool alternative = false) {
  return Written(set, tile, {.alternative = alternative, .book = true}).runs;
}

Runs Half(int letter) {
  return Book("hinc", kHindiSetTiles + letter);
}

Runs WithR(int letter) {
  return Book("hinc", 2 * kHindiSetTiles + letter);
}

Runs WithoutLast(const Runs& runs, std::ptrdiff_t count = 1) {
  return FirstOf(runs, std::ssize(runs) - count);
}

/// The runs in an order that does not depend on how they are written.
Runs Sorted(Runs runs) {
  std::ranges::sort(runs, [](const RecordedRun& a, const RecordedRun& b) {
    return std::tie(a.primitive, a.arguments) < std::tie(b.primitive, b.arguments);
  });
  return runs;
}

/// The place of the letter's long stem.
double StemOf(const Runs& runs) {
  for (const RecordedRun& run : runs) {
    const auto& arguments = run.arguments;
    if (run.primitive == Primitive::LineDown && arguments[2] - arguments[1] == 150) {
      return arguments[0];
    }
  }
  return 0;
}

TEST(BookForms, HaveNoStrokeTwice) {
  for (const LetterSet& set : LetterSets()) {
    for (const BookForm& form : set.bookForms) {
      const Runs runs = Sorted(Book(set.name, form.tile, form.alternative));
      EXPECT_EQ(std::ranges::adjacent_find(runs), runs.end()) << set.name << ' ' << form.tile;
    }
  }
}

TEST(BookForms, OfEnglishLettersAreTheGivenStrokesInAnotherOrder) {
  for (const auto& [set, tile] :
       {std::pair("engc", 8), std::pair("engs", 9), std::pair("engs", 10), std::pair("hinv", 15)}) {
    EXPECT_EQ(Sorted(Book(set, tile)), Sorted(Given(set, tile))) << set << ' ' << tile;
    EXPECT_NE(Book(set, tile), Given(set, tile)) << set << ' ' << tile;
  }
}

TEST(BookForms, OfSmallIAndJHaveTheirDotLast) {
  EXPECT_EQ(Book("engs", 9).back(), Given("engs", 9).front());
  EXPECT_EQ(Book("engs", 10).back(), Given("engs", 10).front());
}

TEST(BookForms, OfHAndTheSignOfAaHaveTheirBarLast) {
  EXPECT_EQ(Book("engc", 8).back(), Given("engc", 8)[1]);
  EXPECT_EQ(Book("hinv", 15).back(), Given("hinv", 15).front());
}

TEST(BookForms, OfRoundLettersAreTheSameRoundFromItsUpperRight) {
  for (const int tile : {1, 4, 7, 17}) {
    const Runs given = Given("engs", tile);
    const Runs book = Book("engs", tile);
    ASSERT_EQ(book.size(), given.size()) << tile;
    const auto& round = book[0].arguments;
    EXPECT_EQ(FirstOf(book, 1)[0].dots, 361) << tile;
    EXPECT_EQ(round[1], 45) << tile;
    EXPECT_EQ(std::vector(round.begin() + 3, round.end()),
              std::vector(given[0].arguments.begin() + 3, given[0].arguments.end()))
        << tile;
    EXPECT_EQ(book[1].arguments[0], round[3] + round[5]) << tile;  // the stem touches the round
    EXPECT_EQ(book[1].arguments[1], given[1].arguments[1]) << tile;
    EXPECT_EQ(book[1].arguments[2], given[1].arguments[2]) << tile;
  }
  EXPECT_EQ(Book("engs", 7)[2], Given("engs", 7)[2]);  // the tail of g
}

TEST(BookForms, OfSAreTwoBowsThatMeetBetweenTheSameLinesAsTheGivenOnes) {
  struct Lines {
    const char* set;
    double top, bottom;
  };
  for (const auto& [set, top, bottom] : {
           Lines{"engc", 150, 350},
           Lines{"engs", 125, 275}
  }) {
    const Runs s = Book(set, 19);
    ASSERT_EQ(s.size(), 2U);
    const auto& upper = s[0].arguments;
    const auto& lower = s[1].arguments;
    EXPECT_NEAR(upper[4] - upper[5], top, 1e-9);
    EXPECT_NEAR(upper[4] + upper[5], lower[4] - lower[5], 1e-9);
    EXPECT_NEAR(lower[4] + lower[5], bottom, 1e-9);
    EXPECT_EQ(upper[3], lower[3]);
  }
}

TEST(BookForms, OfFiveHaveTheHatLastAndFromTheLeft) {
  const Runs given = Given("mat", 5);
  const Runs book = Book("mat", 5);
  ASSERT_EQ(book.size(), 3U);
  EXPECT_EQ(FirstOf(book, 2), (Runs{given[1], given[2]}));
  EXPECT_EQ(book[2].primitive, Primitive::LineRight);
  EXPECT_EQ(book[2].arguments, given[0].arguments);  // of LineLeft: to X, Y, from X
}

TEST(BookForms, OfNineKeepStemAndHook) {
  for (const bool hooked : {false, true}) {
    const Runs given = Given("mat", 9, hooked);
    const Runs book = Book("mat", 9, hooked);
    ASSERT_EQ(book.size(), given.size());
    EXPECT_EQ(book[0].arguments[1], 45);
    for (std::size_t i = 1; i < book.size(); ++i) {
      for (std::size_t k = 0; k < book[i].arguments.size(); ++k) {
        EXPECT_NEAR(book[i].arguments[k], given[i].arguments[k], 1e-3);
      }
    }
  }
}

TEST(BookForms, OfDigitsStandAtTheirPlaceInANumber) {
  for (const int tile : {5, 9}) {
    const TileForm second{.place = 2, .book = true};
    const TileForm third{.place = 3, .book = true};
    EXPECT_EQ(Written("mat", tile, third).runs, Moved(Written("mat", tile, second).runs, 250));
    EXPECT_NE(Written("mat", tile, second).runs,
              Written("mat", tile, {.place = 2, .book = false}).runs);
  }
  EXPECT_TRUE(Written("mat", 13, {.place = 2, .book = true}).runs.empty());  // no digit
  EXPECT_TRUE(Written("mat", 5, {.place = 6, .book = true}).runs.empty());   // no place
}

TEST(BookForms, OfTheSignsShowOneSign) {
  EXPECT_EQ(Book("mat", 13), FirstOf(Given("mat", 13), 2));
  EXPECT_EQ(Book("mat", 14), FirstOf(Given("mat", 14), 3));
}

TEST(BookForms, OfTheMoonArcHaveADotInIt) {
  const Runs moon = Book("hinv", 27);
  EXPECT_EQ(WithoutLast(moon), Given("hinv", 27));
  EXPECT_LT(moon.back().arguments[4], 325 - 45);
}

TEST(BookForms, OfPaPhaAndSsaShareTheirBowlAndHaveAStem) {
  const Runs pa = Book("hinc", 21);
  for (const int tile : {22, 31}) {
    EXPECT_EQ(FirstOf(Book("hinc", tile), 2), Moved(FirstOf(pa, 2), 337.5 - 120)) << tile;
  }
  EXPECT_EQ(FirstOf(pa, 2), FirstOf(Given("hinc", 21), 2));
  for (const int tile : {17, 19, 21, 22, 30, 31}) EXPECT_NE(StemOf(Book("hinc", tile)), 0) << tile;
}

TEST(BookForms, OfHalfLettersGoOnFromTheGivenStrokesWithABarAsFarAsTheStem) {
  for (const int letter : {6, 8, 10, 16, 20, 23, 24, 28, 29, 35, 36, 37}) {
    const Runs half = Half(letter);
    EXPECT_EQ(WithoutLast(half), Given("hinc", kHindiSetTiles + letter)) << letter;
    EXPECT_EQ(half.back().primitive, Primitive::LineRight) << letter;
    EXPECT_EQ(half.back().arguments[1], 325) << letter;
    EXPECT_EQ(half.back().arguments[2], StemOf(Given("hinc", letter))) << letter;
  }
}

TEST(BookForms, OfBothFormsOfHalfTaHaveTheBar) {
  const int halfTa = kHindiSetTiles + 16;
  EXPECT_EQ(WithoutLast(Book("hinc", halfTa, true)), Given("hinc", halfTa, true));
  EXPECT_EQ(Book("hinc", halfTa, true).back(), Book("hinc", halfTa).back());
}

TEST(BookForms, OfHalfLettersBeginAsTheWholeLetter) {
  for (const int letter : {3, 17, 19, 30}) {
    const Runs whole = Book("hinc", letter);
    const Runs half = Half(letter);
    EXPECT_EQ(WithoutLast(half), WithoutLast(whole, 2)) << letter;  // neither stem nor bar
    EXPECT_EQ(half.back().arguments[0], whole.back().arguments[0]) << letter;
    EXPECT_LT(half.back().arguments[2], whole.back().arguments[2]) << letter;
  }
}

TEST(BookForms, OfHalfLettersWithoutAStemAreTheWholeLetterAndTheMark) {
  for (const int letter : {5, 7, 11, 12, 13, 14, 18, 33, 34}) {
    const Runs half = Half(letter);
    EXPECT_EQ(WithoutLast(half), Given("hinc", letter)) << letter;
    EXPECT_EQ(half.back().primitive, Primitive::SlantRight) << letter;
    const RecordedRun foot = Given("hinc", 2 * kHindiSetTiles + letter).back();
    EXPECT_EQ(half.back() == foot, letter != 34) << letter;  // that of lla is higher
  }
}

TEST(BookForms, OfTheThirdSetAreTheWholeLetterAndTheR) {
  for (int letter = 1; letter <= kHindiSetTiles; ++letter) {
    const bool ownBody = letter == 16 || letter == 30;
    const bool without = letter == 27 || letter == 36;
    if (ownBody || without) continue;
    const Runs whole = Book("hinc", letter);
    const Runs joined = WithR(letter);
    ASSERT_GT(joined.size(), whole.size()) << letter;
    EXPECT_EQ(FirstOf(joined, std::ssize(whole)), whole) << letter;
    const bool slant = joined.back().primitive == Primitive::SlantLeft;
    EXPECT_EQ(joined.size(), whole.size() + (slant ? 1 : 2)) << letter;
    const double stem = StemOf(whole);
    if (stem == 0) continue;
    EXPECT_NEAR(joined.back().arguments[1], stem, 0.1) << letter;
  }
}

TEST(BookForms, OfTaWithRAreTraInItsColumn) {
  EXPECT_EQ(WithR(16), Moved(Given("hinc", 36), 262.5 - 762.5));
}

TEST(BookForms, DoNotBringTheFootStrokeOfTheGivenOnes) {
  const LetterSet& set = *FindLetterSet("hinc");
  EXPECT_FALSE(IsFollowedByFootStroke(set, 75, kBook));
  EXPECT_TRUE(IsFollowedByFootStroke(set, 75, {}));
  EXPECT_TRUE(IsFollowedByFootStroke(set, 101, kBook));  // as given: it has no r to join
  EXPECT_FALSE(IsFollowedByFootStroke(set, 74, {}));
}

}  // namespace
}  // namespace bramlee
