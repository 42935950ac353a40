#include "letters/letter_names.h"

#include <gtest/gtest.h>

#include <set>

#include "letters/letter_sets.h"

namespace bramlee {
namespace {

TEST(LetterNames, DifferForEveryTileOfASet) {
  for (const LetterSet& set : LetterSets()) {
    for (const bool book : {false, true}) {
      std::set<std::string> names;
      for (int tile = 1; tile <= set.tiles; ++tile) names.insert(LetterName(set.name, tile, book));
      EXPECT_FALSE(names.contains(""));
      EXPECT_EQ(names.size(), static_cast<std::size_t>(set.tiles)) << set.name;
    }
  }
}

TEST(LetterNames, AreEmptyOutsideTheSet) {
  for (const LetterSet& set : LetterSets()) {
    EXPECT_EQ(LetterName(set.name, 0), "");
    EXPECT_EQ(LetterName(set.name, set.tiles + 1), "");
    EXPECT_EQ(PrintedLetter(set.name, set.tiles + 1), "");
  }
  EXPECT_EQ(LetterName("none", 1), "");
}

TEST(PrintedLetter, ShowsHalfFormsAndFootStrokesAsPrintedInBooks) {
  EXPECT_EQ(PrintedLetter("hinc", 1), "क");
  EXPECT_EQ(PrintedLetter("hinc", 38), "क\u094D\u200D");
  EXPECT_EQ(PrintedLetter("hinc", 75), "क\u094Dर");
  EXPECT_EQ(LetterName("hinc", 38), "half ka (क\u094D\u200D)");
}

TEST(LetterNames, SayWhatTheTileShowsInTheBook) {
  EXPECT_EQ(LetterName("hinc", 42), "half nga (ङ\u094D\u200D)");
  EXPECT_EQ(LetterName("hinc", 42, true), "nga with the mark below (ङ\u094D\u200C)");
  EXPECT_EQ(LetterName("hinc", 38, true), LetterName("hinc", 38));
  EXPECT_EQ(LetterName("hinc", 75), "ka with the foot stroke (क\u094Dर)");
  EXPECT_EQ(LetterName("hinc", 75, true), "ka with r (क\u094Dर)");
  EXPECT_EQ(LetterName("hinc", 101, true), LetterName("hinc", 101));
  EXPECT_EQ(LetterName("hinv", 27), "moon arc (ँ)");
  EXPECT_EQ(LetterName("hinv", 27, true), "moon arc with a dot (ँ)");
  EXPECT_EQ(LetterName("telc", 1, true), LetterName("telc", 1));
}

TEST(PrintedLetter, IsWhatTheStrokesOfTheLastFourShow) {
  EXPECT_EQ(PrintedLetter("hinc", 34), "ळ");
  EXPECT_EQ(PrintedLetter("hinc", 35), "क्ष");
  EXPECT_EQ(PrintedLetter("hinc", 36), "त्र");
  EXPECT_EQ(PrintedLetter("hinc", 37), "ज्ञ");
}

TEST(PrintedLetter, FollowsTheTeluguTilesThatStandOutOfOrder) {
  EXPECT_EQ(PrintedLetter("telv", 31), "ఌ");
  EXPECT_EQ(PrintedLetter("telv", 15), "");
  EXPECT_EQ(LetterName("telv", 15), "head tick");
  EXPECT_EQ(PrintedLetter("telc", 73), "క్ష");
}

}  // namespace
}  // namespace bramlee
