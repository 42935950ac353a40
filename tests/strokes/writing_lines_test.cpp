// Where the lines of a writing book run.
#include "strokes/writing_lines.h"

#include <gtest/gtest.h>

#include "strokes/letter.h"

namespace bramlee {
namespace {

Box BoundsOfTile(std::string_view set, int tile) {
  return LetterOf({.set = set, .tile = tile, .form = {}}).Bounds();
}

TEST(WritingLines, OfCapitalsAndDigitsHaveOneInTheMiddleOfTheBody) {
  const WritingLines capitals{.top = 150, .middle = 250, .base = 350, .foot = 450, .bodyTop = 150};
  const WritingLines digits{.top = 325, .middle = 400, .base = 475, .foot = 550, .bodyTop = 325};
  EXPECT_EQ(WritingLinesOf("engc"), capitals);
  EXPECT_EQ(WritingLinesOf("mat"), digits);
  EXPECT_EQ(capitals.BodyHeight(), 200);
}

TEST(WritingLines, OfSmallLettersAndIndianSetsHaveTheLineOfXOrTheHeadLine) {
  const WritingLines small{.top = 50, .middle = 125, .base = 275, .foot = 350, .bodyTop = 50};
  const WritingLines indian{.top = 250, .middle = 325, .base = 475, .foot = 550, .bodyTop = 325};
  EXPECT_EQ(WritingLinesOf("engs"), small);
  for (const char* set : {"hinv", "hinc", "telv", "telc"}) {
    EXPECT_EQ(WritingLinesOf(set), indian) << set;
  }
}

TEST(WritingLines, AreWhereTheLettersReach) {
  const Box h = BoundsOfTile("engc", 8);
  EXPECT_NEAR(h.y, WritingLinesOf("engc").bodyTop, 0.1);
  EXPECT_NEAR(h.y + h.height, WritingLinesOf("engc").base, 0.1);
  const WritingLines small = WritingLinesOf("engs");
  EXPECT_NEAR(BoundsOfTile("engs", 12).y, small.top, 0.1);
  EXPECT_NEAR(BoundsOfTile("engs", 14).y, small.middle, 0.1);
  const Box p = BoundsOfTile("engs", 16);
  EXPECT_NEAR(p.y + p.height, small.foot, 0.1);
}

TEST(WritingLines, OfASetThatThereIsNotAreNone) {
  EXPECT_EQ(WritingLinesOf("greek"), WritingLines());
}

}  // namespace
}  // namespace bramlee
