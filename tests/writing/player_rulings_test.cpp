// Rules and grids on a page: what a step back does where they lie over a letter.
#include <gtest/gtest.h>

#include <vector>

#include "strokes/word.h"
#include "tests/writing/recording_surface.h"
#include "writing/player.h"

namespace bramlee {
namespace {

constexpr std::int64_t kFirst = 11;
constexpr std::int64_t kSecond = 6;

/// A letter of two strokes, of 11 and of 6 dots, and a ruling of two lines of 4 dots each.
class PlayerRulings : public testing::Test {
 protected:
  void SetUp() override { page_.Add({.letter = TwoStrokes(), .colour = kRed, .placing = {}}); }
  void TearDown() override { EXPECT_EQ(surface_.errors, ""); }

  static Letter TwoStrokes() {
    return {
        {                                  },
        1, { {Primitive::LineRight, {0, 5, 10}}, {Primitive::LineDown, {50, 5, 10}}}
    };
  }
  void AddRuling(double y = 100) {
    page_.Add({
        .letter = {{},
                   1, {{Primitive::LineRight, {0, y, 3}}, {Primitive::LineRight, {0, y + 50, 3}}}},
        .colour = kBlue,
        .placing = {                                                                           },
        .ruling = true
    });
  }
  /// The dots without the count of their runs, which a step back changes.
  std::vector<std::pair<Dot, std::uint32_t>> Dots() const { return Plain(surface_.dots); }
  /// What stands when the letter has so many dots and every ruling is whole.
  std::vector<std::pair<Dot, std::uint32_t>> LetterUpTo(std::int64_t dots) const {
    auto all = Plain(PlainDots(page_));
    all.erase(all.begin() + dots, all.begin() + kFirst + kSecond);
    return all;
  }

  Page page_;
  RecordingSurface surface_;
  Player player_{page_, surface_};

 private:
  static std::vector<std::pair<Dot, std::uint32_t>> Plain(const std::vector<ColouredDot>& dots) {
    std::vector<std::pair<Dot, std::uint32_t>> plain;
    for (const ColouredDot& dot : dots) plain.emplace_back(dot.dot, dot.colour);
    return plain;
  }
};

TEST_F(PlayerRulings, AStepBackTakesTheLettersDotsAlone) {
  AddRuling();
  player_.RunToEnd();
  EXPECT_TRUE(player_.StepBack());
  EXPECT_EQ(Dots(), LetterUpTo(kFirst));
  EXPECT_EQ(player_.Stands(), (Player::Where{.letter = 0, .stroke = 1, .begun = false}));
  EXPECT_TRUE(player_.StepBack());
  EXPECT_EQ(Dots(), LetterUpTo(0));
  EXPECT_FALSE(player_.StepBack());
  EXPECT_EQ(Dots(), LetterUpTo(0));
}

TEST_F(PlayerRulings, AWholeStrokeLiesBeneathTheRulingsAgain) {
  AddRuling();
  AddRuling(200);
  player_.RunToEnd();
  player_.StepBack();
  player_.StepBack();
  EXPECT_EQ(player_.WriteStroke(5), 5);  // over them while it is written
  EXPECT_EQ(surface_.dots.back().colour, kRed);
  player_.WriteStroke();
  EXPECT_EQ(Dots(), LetterUpTo(kFirst));
  player_.RunToEnd();
  EXPECT_EQ(Dots(), LetterUpTo(kFirst + kSecond));
  EXPECT_TRUE(player_.AtEnd());
  EXPECT_EQ(player_.StrokesWritten(), 2U);
}

TEST_F(PlayerRulings, AStepBackWithinAStrokeLeavesThemToo) {
  AddRuling();
  player_.RunToEnd();
  player_.StepBack();
  player_.WriteStroke(3);
  EXPECT_TRUE(player_.StepBack());
  EXPECT_EQ(Dots(), LetterUpTo(kFirst));
  EXPECT_EQ(player_.StrokesWritten(), 1U);
  player_.RunToEnd();
  EXPECT_EQ(Dots(), LetterUpTo(kFirst + kSecond));
}

TEST_F(PlayerRulings, AStepBackFromWithinARulingMakesThatWhole) {
  AddRuling();
  player_.Write(kFirst + kSecond + 2);
  EXPECT_TRUE(player_.StepBack());
  EXPECT_EQ(Dots(), LetterUpTo(kFirst));
  EXPECT_EQ(player_.StrokesWritten(), 1U);
}

TEST_F(PlayerRulings, OnesThatComeOverAnUnfinishedLetterAreWrittenAtOnce) {
  player_.Write(kFirst);
  AddRuling();
  player_.LayRulings();
  EXPECT_EQ(Dots(), LetterUpTo(kFirst));
  AddRuling(200);
  player_.LayRulings();
  EXPECT_EQ(Dots(), LetterUpTo(kFirst));
  player_.RunToEnd();
  EXPECT_EQ(Dots(), LetterUpTo(kFirst + kSecond));
}

TEST_F(PlayerRulings, OnesThatComeWithinAStrokeWaitForItsEnd) {
  player_.Write(kFirst + 2);
  AddRuling();
  player_.LayRulings();
  EXPECT_EQ(Dots(), LetterUpTo(kFirst + kSecond));
  EXPECT_TRUE(player_.AtEnd());
}

TEST_F(PlayerRulings, LettersThatFollowAreWrittenOverThem) {
  AddRuling();
  player_.RunToEnd();
  player_.StepBack();
  page_.Add({.letter = TwoStrokes(), .colour = kRed, .placing = {}});
  player_.RunToEnd();
  EXPECT_EQ(Dots(), LetterUpTo(kFirst + kSecond));
}

TEST_F(PlayerRulings, AreNoStrokesOfALetter) {
  page_.Clear();
  AddRuling();
  player_.RunToEnd();
  EXPECT_EQ(player_.StrokesWritten(), 0U);
  EXPECT_FALSE(player_.StepBack());
  EXPECT_FALSE(player_.StepToLetterStart());
}

TEST_F(PlayerRulings, TheWayToALettersStartTakesTwoStepsHoweverManyStrokesItHas) {
  page_.Add({.letter = LayWord("mmmm").letter, .colour = kRed, .placing = {}});
  AddRuling();
  player_.RunToEnd();
  EXPECT_TRUE(player_.StepToLetterStart());
  EXPECT_EQ(surface_.rewinds, 2);
  EXPECT_EQ(player_.Stands(), (Player::Where{.letter = 1, .stroke = 0, .begun = false}));
  EXPECT_EQ(player_.StrokesWritten(), 2U);
  player_.RunToEnd();
  EXPECT_EQ(Dots().size(), PlainDots(page_).size());
}

TEST_F(PlayerRulings, TheWayToALettersStartEndsThere) {
  page_.Add({.letter = TwoStrokes(), .colour = kRed, .placing = {}});
  player_.RunToEnd();
  EXPECT_TRUE(player_.StepToLetterStart());
  EXPECT_EQ(player_.Stands(), (Player::Where{.letter = 1, .stroke = 0, .begun = false}));
  EXPECT_FALSE(player_.StepToLetterStart());
  EXPECT_EQ(player_.Stands(), (Player::Where{.letter = 1, .stroke = 0, .begun = false}));
  player_.WriteStroke(1);
  EXPECT_TRUE(player_.StepToLetterStart());
  EXPECT_EQ(player_.StrokesWritten(), 2U);
}

}  // namespace
}  // namespace bramlee
