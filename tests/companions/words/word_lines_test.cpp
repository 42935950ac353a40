// Where words stand on a sheet.
#include "companions/words/word_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace bramlee {
namespace {

const WordRoom kWide{.around = kWideExtent, .head = 325, .base = 475};
const WordRoom kCapitals{.around = kCapitalsExtent, .head = 150, .base = 350};

/// Around a text's dots on the sheet.
Box OnSheet(const SetText& set) {
  const Box& box = set.letter->letter.Bounds();
  const Placing& placing = set.letter->placing;
  return {.x = box.x * placing.scale + placing.right,
          .y = box.y * placing.scale + placing.down,
          .width = box.width * placing.scale,
          .height = box.height * placing.scale};
}

/// How often white lies between ink above and ink below, from left to right.
std::size_t WhiteBands(const Letter& letter) {
  const Box& box = letter.Bounds();
  std::vector<bool> ink(static_cast<std::size_t>(box.height) + 1);
  for (const StrokePath& stroke : letter.Shape().strokes) {
    for (const Point& point : stroke.points) ink[static_cast<std::size_t>(point.y - box.y)] = true;
  }
  std::size_t bands = 0;
  for (std::size_t y = 1; y < ink.size(); ++y) {
    if (ink[y - 1] && !ink[y]) ++bands;
  }
  return ink.back() ? bands : bands - 1;
}

TEST(WordLinesTest, SetAShortWordBetweenHeadAndBase) {
  for (const WordRoom& room : {kWide, kCapitals}) {
    const SetText set = SetWords("HELM", {}, room, 7);
    ASSERT_EQ(set.lines, 1U);
    const Box box = OnSheet(set);
    EXPECT_NEAR(box.y, room.head, 1);
    EXPECT_NEAR(box.y + box.height, room.base, 1);
    EXPECT_GE(box.x, room.around.left);
    EXPECT_LE(box.x + box.width, room.around.right);
    EXPECT_EQ(set.letter->colour, 7U);
  }
}

TEST(WordLinesTest, SetALongerWordSmallerOnTheSameBase) {
  const SetText set = SetWords("Lakshminarayana", {}, kWide, 0);
  ASSERT_EQ(set.lines, 1U);
  const Box box = OnSheet(set);
  const Placing& placing = set.letter->placing;
  EXPECT_LT(placing.scale, 1);
  EXPECT_LE(box.x + box.width, kWide.around.right + 0.01);
  EXPECT_NEAR(kWordBase * placing.scale + placing.down, kWide.base, 0.01);
}

TEST(WordLinesTest, SetALongTextOnLinesWithinTheRoom) {
  std::string text;
  for (int i = 0; i < 200; ++i) text += i % 9 == 8 ? " " : "नी";
  const SetText set = SetWords(text, {}, kWide, 0);
  ASSERT_GT(set.lines, 1U);
  const Box box = OnSheet(set);
  EXPECT_GE(box.x, kWide.around.left - 1);
  EXPECT_LE(box.x + box.width, kWide.around.right + 1);
  EXPECT_GE(box.y, kWide.around.top);
  EXPECT_LE(box.y + box.height, kWide.around.bottom);
  EXPECT_EQ(WhiteBands(set.letter->letter), set.lines - 1) << "lines stand clear of each other";
}

TEST(WordLinesTest, SetNothingWhereNoLetterHasStrokes) {
  EXPECT_FALSE(SetWords("   ", {}, kWide, 0).letter);
  const SetText set = SetWords("é", {}, kWide, 0);
  EXPECT_FALSE(set.letter);
  EXPECT_EQ(set.lines, 0U);
  EXPECT_EQ(set.leftOut.size(), 1U);
}

}  // namespace
}  // namespace bramlee
