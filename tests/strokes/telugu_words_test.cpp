// Telugu letters whose shape with a sign is their own: where the sign lies, and what it replaces.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "strokes/word.h"

namespace bramlee {
namespace {

using StrokeRun = Run;  ///< a test has a Run of its own

/// How many ticks of Telugu letters the word has: down to the right, then up.
std::ptrdiff_t TicksOf(const char* text) {
  const Word word = LayWord(text);
  return std::ranges::count(word.letter.Runs(), Primitive::SlantUpRight, &StrokeRun::primitive);
}

TEST(TeluguWordTest, GivesTeluguAaItsRingBesideTheLetterAndItsBarOverIt) {
  for (const char* letter : {"చ", "న", "గ", "ద"}) {
    const Word word = LayWord(std::string(letter) + "ా");
    EXPECT_EQ(TicksOf((std::string(letter) + "ా").c_str()), 0) << letter;
    const StrokeRun ring = word.letter.Runs().back();
    const Box plain = LayWord(letter).letter.Bounds();
    EXPECT_GT(ring.values[3] - ring.values[5], plain.x + plain.width - 25) << letter;
    const StrokeRun bar = word.letter.Runs()[word.letter.Runs().size() - 2];
    EXPECT_LT(bar.values[0], plain.x + plain.width / 2) << letter;
  }
}

TEST(TeluguWordTest, LetsTheBackOfPaRiseThroughItsSign) {
  for (const char* text : {"పా", "ఫా", "షా", "సా", "సౌ"}) {
    const Word word = LayWord(text);
    EXPECT_EQ(TicksOf(text), 0) << text;
    const bool low = std::ranges::any_of(word.letter.Runs(), [](const StrokeRun& run) {
      return run.primitive == Primitive::LineRight && run.values[1] > kWordHead;
    });
    EXPECT_TRUE(low) << text;
  }
}

TEST(TeluguWordTest, LetsTheLastHookOfMaGoOverIntoAaAndKeepsTheTick) {
  for (const char* text : {"ఘా", "ఝా", "మా", "యా"}) {
    EXPECT_EQ(TicksOf(text), 1) << text;
    const Word word = LayWord(text);
    const auto ring = std::ranges::find_if(word.letter.Runs(), [](const StrokeRun& run) {
      return run.primitive == Primitive::LineRight;
    });
    ASSERT_NE(ring, word.letter.Runs().end()) << text;
    EXPECT_EQ(ring->values[1], 360) << text;
  }
  EXPECT_EQ(TicksOf("మో"), 0) << "the sign of e in its place";
  EXPECT_EQ(LayWord("మొ").letter.Runs().size(),
            LayWord("మె").letter.Runs().size() + LayWord("ు").letter.Runs().size());
}

TEST(TeluguWordTest, WritesYaWithISimplyWithoutItsTick) {
  EXPECT_EQ(LayWord("యి").letter.Runs().size(), LayWord("య").letter.Runs().size() - 2);
  EXPECT_EQ(TicksOf("యీ"), 0);
  EXPECT_GT(LayWord("యీ").width, LayWord("యి").width + 40) << "with bar and ring";
}

TEST(TeluguWordTest, AddsABowToTheBarThatHaHasAlready) {
  EXPECT_EQ(TicksOf("హా"), 1);
  EXPECT_EQ(LayWord("హా").letter.Runs().size(), LayWord("హ").letter.Runs().size() + 1);
}

}  // namespace
}  // namespace bramlee
