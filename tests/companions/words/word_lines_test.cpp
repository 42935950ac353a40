// Where words stand on a sheet.
#include "companions/words/word_lines.h"

#include <gtest/gtest.h>

#include <string>

namespace bramlee {
namespace {

const WordRoom kWide{.around = kWideExtent, .head = 325, .base = 475};
const WordRoom kCapitals{.around = kCapitalsExtent, .head = 150, .base = 350};

/// Around a line's dots on the sheet.
Box OnSheet(const PlacedLetter& line) {
  const Box& box = line.letter.Bounds();
  const Placing& placing = line.placing;
  return {.x = box.x * placing.scale + placing.right,
          .y = box.y * placing.scale + placing.down,
          .width = box.width * placing.scale,
          .height = box.height * placing.scale};
}

TEST(WordLinesTest, SetAShortWordBetweenHeadAndBase) {
  for (const WordRoom& room : {kWide, kCapitals}) {
    const SetText set = SetWords("HELM", {}, room, 7);
    ASSERT_EQ(set.lines.size(), 1U);
    const Box box = OnSheet(set.lines[0]);
    EXPECT_NEAR(box.y, room.head, 1);
    EXPECT_NEAR(box.y + box.height, room.base, 1);
    EXPECT_GE(box.x, room.around.left);
    EXPECT_LE(box.x + box.width, room.around.right);
    EXPECT_EQ(set.lines[0].colour, 7U);
  }
}

TEST(WordLinesTest, SetALongerWordSmallerOnTheSameBase) {
  const SetText set = SetWords("Lakshminarayana", {}, kWide, 0);
  ASSERT_EQ(set.lines.size(), 1U);
  const Box box = OnSheet(set.lines[0]);
  EXPECT_LT(set.lines[0].placing.scale, 1);
  EXPECT_LE(box.x + box.width, kWide.around.right + 0.01);
  EXPECT_NEAR(475 * set.lines[0].placing.scale + set.lines[0].placing.down, kWide.base, 0.01);
}

TEST(WordLinesTest, SetALongTextOnLinesWithinTheRoom) {
  std::string text;
  for (int i = 0; i < 200; ++i) text += i % 9 == 8 ? " " : "नी";
  const SetText set = SetWords(text, {}, kWide, 0);
  ASSERT_GT(set.lines.size(), 1U);
  double above = 0;
  for (const PlacedLetter& line : set.lines) {
    const Box box = OnSheet(line);
    EXPECT_GE(box.x, kWide.around.left - 1);
    EXPECT_LE(box.x + box.width, kWide.around.right + 1);
    EXPECT_GE(box.y, kWide.around.top);
    EXPECT_LE(box.y + box.height, kWide.around.bottom);
    EXPECT_GE(box.y, above) << "lines stand clear of each other";
    above = box.y + box.height;
  }
}

TEST(WordLinesTest, SetNothingWhereNoLetterHasStrokes) {
  EXPECT_TRUE(SetWords("   ", {}, kWide, 0).lines.empty());
  const SetText set = SetWords("é", {}, kWide, 0);
  EXPECT_TRUE(set.lines.empty());
  EXPECT_EQ(set.leftOut.size(), 1U);
}

}  // namespace
}  // namespace bramlee
