// The tracer and letters that people wrote freely on a tablet, laid over the program's own.
#include "tests/writing/recorded_pens.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include "writing/tracer.h"

namespace bramlee {
namespace {

/// The tracer after all touches.
Tracer TracedBy(const RecordedLetter& letter, TraceLevel level) {
  Tracer tracer(GuideOf(LetterOf(letter.id)), level);
  for (const Way& touch : letter.touches) VerdictOf(tracer, touch);
  return tracer;
}

class RecordedPens : public testing::Test {
 protected:
  /// The capital letter as it was recorded.
  const RecordedLetter& Capital(char letter) const {
    return *std::ranges::find(letters_,
                              LetterId{.set = "engc", .tile = letter - 'A' + 1, .form = {}},
                              &RecordedLetter::id);
  }

  const std::vector<RecordedLetter> letters_ =
      RecordedLetters(BRAMLEE_TEST_DATA "/recorded_pens.txt");
};

TEST_F(RecordedPens, WriteALetterToTheEndWhereTheyGoAsTheProgramDoes) {
  for (const char letter : {'I', 'L', 'O', 'Y'}) {
    EXPECT_TRUE(TracedBy(Capital(letter), TraceLevel::Normal).IsFinished()) << letter;
    EXPECT_EQ(TracedBy(Capital(letter), TraceLevel::Normal).Helped(), 0) << letter;
  }
}

TEST_F(RecordedPens, AreAskedForTheRestOfAShortStroke) {
  const Tracer tracer = TracedBy(Capital('F'), TraceLevel::Normal);
  EXPECT_EQ(tracer.Stroke(), 2U);
  EXPECT_NEAR(tracer.Progress(), 0.64, 0.01);
}

TEST_F(RecordedPens, AreSentBackWhereTheyBeginAtTheOtherEnd) {
  for (const TraceLevel level : kTraceLevels) {
    const Tracer tracer = TracedBy(Capital('S'), level);
    EXPECT_EQ(tracer.Stroke(), 0U) << NameOf(level);
    EXPECT_EQ(tracer.Misses(), 1) << NameOf(level);
  }
}

TEST_F(RecordedPens, FinishNoFewerLettersWhereThePenMayStrayFurther) {
  std::vector<std::ptrdiff_t> finished;
  for (const TraceLevel level : kTraceLevels) {
    finished.push_back(std::ranges::count_if(letters_, [level](const RecordedLetter& letter) {
      return TracedBy(letter, level).IsFinished();
    }));
  }
  EXPECT_TRUE(std::ranges::is_sorted(finished));
  EXPECT_LT(finished.front(), finished.back());
}

}  // namespace
}  // namespace bramlee
