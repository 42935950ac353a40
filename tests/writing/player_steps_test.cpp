// Whatever was paused, stepped, taken back and written again: the dots of a page are the same.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "tests/writing/recording_surface.h"
#include "writing/player.h"

namespace bramlee {
namespace {

using Random = std::minstd_rand;

int Pick(Random& random, int count) {
  return static_cast<int>(random() % static_cast<unsigned>(count));
}

/// Presses whatever there is to press, in any order, and writes in slices of any size.
void PlayAbout(Player& player, Random& random, int turns) {
  for (int turn = 0; turn < turns; ++turn) {
    switch (Pick(random, 8)) {
      case 0:
        player.Pause();
        break;
      case 1:
        player.GoOn();
        break;
      case 2:
        player.StepBack();
        break;
      case 3:
        player.WriteStroke();
        break;
      case 4:
        player.WriteStroke(Pick(random, 40));
        break;
      case 5:
        player.SetRate(0.1 + Pick(random, 40) / 8.0);
        break;
      default:
        player.Write(player.DotsDue(Pick(random, 300)));
        break;
    }
  }
}

class AnyWay : public testing::TestWithParam<const char*> {};

TEST_P(AnyWay, LeavesTheDotsOfAPlainWriting) {
  const LetterSet& set = *FindLetterSet(GetParam());
  Random random(1207);
  for (int tile = 1; tile <= set.tiles; tile += 3) {
    SCOPED_TRACE(tile);
    Page page;
    RecordingSurface surface;
    Player player(page, surface);
    for (std::uint32_t letter = 0; letter < 3; ++letter) {
      const int which = 1 + (tile + static_cast<int>(letter) - 1) % set.tiles;
      page.Add({.letter = LetterAt(set.name, which, 0.5), .colour = letter, .placing = {}});
      PlayAbout(player, random, 40);
    }
    player.RunToEnd();
    EXPECT_EQ(surface.errors, "");
    ASSERT_EQ(surface.dots.size(), PlainDots(page).size());
    EXPECT_TRUE(surface.dots == PlainDots(page));
  }
}

INSTANTIATE_TEST_SUITE_P(Sets, AnyWay,
                         testing::Values("engc", "engs", "hinv", "hinc", "telv", "telc", "mat"),
                         [](const auto& suite) { return std::string(suite.param); });

TEST(AnyPlace, StandsOnTheDotsOfAPlainWritingUpToThere) {
  Page page;
  for (const int tile : {2, 7, 19}) {
    page.Add({.letter = LetterAt("engc", tile, 1), .colour = 1, .placing = {}});
  }
  const std::vector<ColouredDot> plain = PlainDots(page);
  RecordingSurface surface;
  Player player(page, surface);
  Random random(3);
  for (int turn = 0; turn < 200; ++turn) {
    PlayAbout(player, random, 1);
    ASSERT_LE(surface.dots.size(), plain.size());
    ASSERT_TRUE(std::equal(surface.dots.begin(), surface.dots.end(), plain.begin())) << turn;
  }
}

}  // namespace
}  // namespace bramlee
