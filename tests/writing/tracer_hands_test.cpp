// The tracer and children's hands: how many of those that write rightly it takes, and of those that
// do not, on the pen strokes of all letters.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "strokes/letter.h"
#include "tests/strokes/every_letter.h"
#include "tests/writing/hands.h"
#include "writing/guide_path.h"
#include "writing/tracer.h"

namespace bramlee {
namespace {

/// A letter whose strokes are in its unit.
struct UnitLetter {
  std::string name;
  std::vector<Way> strokes;
};

/// Each so manieth letter.
std::vector<UnitLetter> Letters(std::size_t every) {
  std::vector<UnitLetter> letters;
  const std::vector<LetterId> ids = EveryLetter();
  for (std::size_t i = 0; i < ids.size(); i += every) {
    UnitLetter letter{NameOf(ids[i]), {}};
    for (const GuideStroke& stroke : GuideOf(LetterOf(ids[i]))) {
      Way way;
      for (const Point& point : stroke.points) {
        way.push_back({point.x / stroke.unit, point.y / stroke.unit});
      }
      letter.strokes.push_back(std::move(way));
    }
    letters.push_back(std::move(letter));
  }
  return letters;
}

/// A tracer that has come to that stroke; the one after it is there too.
Tracer TracerAt(const UnitLetter& letter, std::size_t stroke, TraceLevel level) {
  std::vector<GuideStroke> guide;
  for (std::size_t i = stroke; i < letter.strokes.size() && i < stroke + 2; ++i) {
    guide.push_back({.points = letter.strokes[i], .unit = 1});
  }
  return Tracer(std::move(guide), level);
}

/// How many of how many ways are taken for the stroke at each level.
struct Count {
  int taken[std::size(kTraceLevels)] = {};
  int all = 0;

  void Add(const UnitLetter& letter, std::size_t stroke, const Way& way) {
    ++all;
    for (const TraceLevel level : kTraceLevels) {
      Tracer tracer = TracerAt(letter, stroke, level);
      if (VerdictOf(tracer, way) == TraceVerdict::Done) ++taken[static_cast<std::size_t>(level)];
    }
  }
  double PerCent(TraceLevel level) const {
    return 100.0 * taken[static_cast<std::size_t>(level)] / all;
  }
  void Print(const char* name) const {
    std::printf("%-20s", name);
    for (const TraceLevel level : kTraceLevels) std::printf(" %7.2f", PerCent(level));
    std::printf(" of %d\n", all);
  }
};

/// How many letters, how often, and how much more may be judged wrongly because these are few.
struct Sample {
  std::size_t every;
  int times;
  double spare;
};
constexpr Sample kAll{1, 2, 0};
constexpr Sample kSome{12, 1, 1.5};

Count CountOf(const ChildHand& hand, const Sample& sample) {
  Count count;
  Chance chance(6);
  for (const UnitLetter& letter : Letters(sample.every)) {
    for (std::size_t i = 0; i < letter.strokes.size(); ++i) {
      for (int time = 0; time < sample.times; ++time) {
        count.Add(letter, i, DrawnBy(hand, letter.strokes[i], chance));
      }
    }
  }
  count.Print(hand.name);
  return count;
}

Count CountOf(Wrong wrong, const Sample& sample) {
  Count count;
  Chance chance(7);
  for (const UnitLetter& letter : Letters(sample.every)) {
    for (std::size_t i = 0; i < letter.strokes.size(); ++i) {
      const auto exact = DrawnWrongly(wrong, letter.strokes, i, chance);
      if (!exact) continue;
      count.Add(letter, i, *exact);
      const bool isMark = wrong == Wrong::Tap || wrong == Wrong::Scribble;
      for (int time = 0; time < sample.times && !isMark; ++time) {
        count.Add(letter, i, DrawnBy(kSix, *exact, chance));
      }
    }
  }
  count.Print(NameOf(wrong));
  return count;
}

void ExpectRightHandsAreTaken(const Sample& sample) {
  const Count exact = CountOf(kExact, sample);
  for (const TraceLevel level : kTraceLevels) EXPECT_EQ(exact.PerCent(level), 100) << NameOf(level);
  const double least = 100 - sample.spare;
  EXPECT_GE(CountOf(kSix, sample).PerCent(TraceLevel::Normal), least - 1);
  EXPECT_GE(CountOf(kFive, sample).PerCent(TraceLevel::Normal), least - 2);
  EXPECT_GE(CountOf(kFour, sample).PerCent(TraceLevel::Toddler), least - 4);
}

void ExpectWrongHandsAreNotTaken(const Sample& sample) {
  for (const Wrong wrong : kWrongs) {
    const Count count = CountOf(wrong, sample);
    ASSERT_GT(count.all, 0) << NameOf(wrong);
    EXPECT_LE(count.PerCent(TraceLevel::Normal), 1 + sample.spare) << NameOf(wrong);
    EXPECT_LE(count.PerCent(TraceLevel::Gentle), 3 + sample.spare) << NameOf(wrong);
  }
}

/// A pen that knows nothing of the letter.
Way RandomWay(Chance& chance, const Box& sheet) {
  Way way;
  const int places = static_cast<int>(chance.Between(1, 12));
  for (int i = 0; i < places; ++i) {
    way.push_back({chance.Between(sheet.x - 20, sheet.x + sheet.width + 20),
                   chance.Between(sheet.y - 20, sheet.y + sheet.height + 20)});
  }
  return way;
}

void ExpectRandomPensFinish(const Sample& sample) {
  Chance chance(8);
  int tries = 0;
  int resumed = 0;
  for (const LetterId& id : EveryLetter()) {
    if (chance.Between(0, static_cast<double>(sample.every)) >= 1) continue;
    const Letter& letter = LetterOf(id);
    Tracer tracer(GuideOf(letter));
    for (std::size_t k = 0; k < letter.PenStrokes().size() && tracer.Stroke() == k; ++k) {
      int misses = 0;
      while (tracer.Stroke() == k && misses <= 4) {
        const bool isResume =
            VerdictOf(tracer, RandomWay(chance, letter.Bounds())) == TraceVerdict::Resume;
        ++(isResume ? resumed : misses);
        ++tries;
      }
      EXPECT_LE(misses, 4) << NameOf(id);
    }
    EXPECT_TRUE(tracer.IsFinished()) << NameOf(id);
  }
  std::printf("random pens: %d tries, of which %d may go on\n", tries, resumed);
  EXPECT_LE(resumed * 100, tries);
}

/// Lifts the pen once along each stroke, and goes on there.
void ExpectLiftedPensGoOn(const Sample& sample) {
  constexpr double kDot = 7;
  for (const UnitLetter& letter : Letters(sample.every)) {
    for (std::size_t i = 0; i < letter.strokes.size(); ++i) {
      const Way& way = letter.strokes[i];
      if (LengthOf(way) <= kDot) continue;
      const Way even = EvenlyAlong(way, 101);
      for (const std::ptrdiff_t lift : {26, 41, 51}) {
        Tracer tracer = TracerAt(letter, i, TraceLevel::Normal);
        EXPECT_EQ(VerdictOf(tracer, Way(even.begin(), even.begin() + lift)), TraceVerdict::Resume)
            << letter.name << " stroke " << i + 1 << " at " << lift;
        EXPECT_EQ(VerdictOf(tracer, Way(even.begin() + lift - 1, even.end())), TraceVerdict::Done)
            << letter.name << " stroke " << i + 1 << " at " << lift;
      }
    }
  }
}

TEST(TracerHandsTest, TakesChildrensHandsOnSomeLetters) {
  ExpectRightHandsAreTaken(kSome);
}

TEST(TracerHandsTest, DoesNotTakeWrongOnesOnSomeLetters) {
  ExpectWrongHandsAreNotTaken(kSome);
}

TEST(TracerHandsTest, BringsRandomPensThroughSomeLetters) {
  ExpectRandomPensFinish(kSome);
}

TEST(TracerHandsTest, LetsThePenBeLiftedOnSomeLetters) {
  ExpectLiftedPensGoOn(kSome);
}

TEST(SweepOfTracerHands, TakesChildrensHandsOnEveryStroke) {
  ExpectRightHandsAreTaken(kAll);
}

TEST(SweepOfTracerHands, DoesNotTakeWrongOnesOnAnyStroke) {
  ExpectWrongHandsAreNotTaken(kAll);
}

TEST(SweepOfTracerHands, BringsRandomPensThroughEveryLetter) {
  ExpectRandomPensFinish(kAll);
}

TEST(SweepOfTracerHands, LetsThePenBeLiftedOnEveryStroke) {
  ExpectLiftedPensGoOn(kAll);
}

}  // namespace
}  // namespace bramlee
