// How the tracer helps, and how wide it lets the pen go at each level and size.
#include <gtest/gtest.h>

#include <vector>

#include "strokes/letter.h"
#include "strokes/word.h"
#include "tests/writing/tracers.h"

namespace bramlee {
namespace {

// Help.

TEST(TracerTest, HelpsMoreWithEachMissAndWritesTheStrokeAtTheFourth) {
  Tracer tracer = BarAndStem();
  constexpr TraceHelp kHelps[] = {TraceHelp::Pulse, TraceHelp::Show, TraceHelp::Wider,
                                  TraceHelp::Written};
  int misses = 0;
  for (const TraceHelp help : kHelps) {
    EXPECT_EQ(tracer.Misses(), misses);
    EXPECT_EQ(Draw(tracer, kFarAway), (TraceJudgement{.stroke = 0,
                                                      .verdict = TraceVerdict::Elsewhere,
                                                      .progress = 0,
                                                      .misses = ++misses,
                                                      .help = help}));
  }
  EXPECT_EQ(tracer.Stroke(), 1U);
  EXPECT_EQ(tracer.Helped(), 1);
  EXPECT_EQ(tracer.Misses(), 0);
  EXPECT_EQ(tracer.HelpDue(), TraceHelp::None);
}

TEST(TracerTest, KeepsTheHelpThatIsDueUntilTheStrokeIsDone) {
  Tracer tracer = BarAndStem();
  Draw(tracer, kFarAway);
  Draw(tracer, kFarAway);
  EXPECT_EQ(tracer.HelpDue(), TraceHelp::Show);
  EXPECT_EQ(Draw(tracer, To(50))->help, TraceHelp::None);
  EXPECT_EQ(tracer.HelpDue(), TraceHelp::Show);
  const auto done = Draw(tracer, kBar);
  EXPECT_EQ(done->misses, 2);
  EXPECT_EQ(done->help, TraceHelp::None);
  EXPECT_EQ(tracer.HelpDue(), TraceHelp::None);
}

TEST(TracerTest, IsWiderAfterThreeMisses) {
  const Way aside = Moved(kBar, 0, 20);
  Tracer tracer = Of(kBar);
  const double reach = tracer.Reach();
  Draw(tracer, kFarAway);
  Draw(tracer, kFarAway);
  Tracer before = tracer;
  EXPECT_NE(VerdictOf(before, aside), TraceVerdict::Done);
  Draw(tracer, kFarAway);
  EXPECT_EQ(VerdictOf(tracer, aside), TraceVerdict::Done);
  EXPECT_EQ(before.Reach(), 1.5 * reach);
}

TEST(TracerTest, WritesAStrokeForAChildThatCannotDrawIt) {
  Tracer tracer = BarAndStem();
  tracer.Down({0, 0});
  tracer.WriteForChild();
  EXPECT_EQ(tracer.Pen(), TracePen::Up);
  EXPECT_EQ(tracer.Up(), std::nullopt);
  EXPECT_EQ(tracer.Stroke(), 1U);
  EXPECT_EQ(tracer.Helped(), 1);
  tracer.WriteForChild();
  EXPECT_TRUE(tracer.IsFinished());
  EXPECT_EQ(tracer.Helped(), 2);
  tracer.WriteForChild();
  EXPECT_EQ(tracer.Helped(), 2);
}

// Levels and sizes.

TEST(TracerTest, HasACorridorOfEachLevelsWidth) {
  struct Width {
    TraceLevel level;
    double radius;
  };
  for (const Width& width : {
           Width{TraceLevel::Strict,  12},
           Width{TraceLevel::Normal,  16},
           Width{TraceLevel::Gentle,  20},
           Width{TraceLevel::Toddler, 24}
  }) {
    const auto verdictAside = [&](double aside) {
      Tracer tracer = Of(kBar, width.level);
      return VerdictOf(tracer, {
                                   {0,   0    },
                                   {30,  aside},
                                   {100, aside}
      });
    };
    EXPECT_EQ(verdictAside(width.radius - 0.5), TraceVerdict::Done) << NameOf(width.level);
    EXPECT_EQ(verdictAside(width.radius + 0.5), TraceVerdict::Astray) << NameOf(width.level);
    EXPECT_EQ(Of(kBar, width.level).Reach(), 1.3 * width.radius);
  }
}

TEST(TracerTest, TakesANewLevelOverForTheTouchUnderWay) {
  Tracer tracer = Of(kBar, TraceLevel::Strict);
  tracer.Down({0, 0});
  tracer.SetLevel(TraceLevel::Toddler);
  EXPECT_EQ(tracer.Level(), TraceLevel::Toddler);
  tracer.Move({30, 22});
  tracer.Move({100, 22});
  EXPECT_EQ(tracer.Up()->verdict, TraceVerdict::Done);
}

TEST(TracerTest, HasANarrowerCorridorForAShortStroke) {
  const Way tick{
      {0,  0},
      {24, 0}
  };
  const auto verdictAside = [&](double aside) {
    Tracer tracer = Of(tick);
    return VerdictOf(tracer, {
                                 {0,  0    },
                                 {12, aside},
                                 {24, aside}
    });
  };
  EXPECT_EQ(verdictAside(11.5), TraceVerdict::Done);
  EXPECT_NE(verdictAside(15.5), TraceVerdict::Done);
}

TEST(TracerTest, HasAtLeastTheRadiusThatIsAskedFor) {
  const Way aside = Moved(kBar, 0, 35);
  Tracer tracer = Of(kBar);
  EXPECT_NE(VerdictOf(tracer, aside), TraceVerdict::Done);
  tracer.SetLeastRadius(40);
  EXPECT_EQ(tracer.Reach(), 1.3 * 40);
  EXPECT_EQ(VerdictOf(tracer, aside), TraceVerdict::Done);
}

TEST(TracerTest, IgnoresALeastRadiusThatIsNotFinite) {
  Tracer tracer = Of(kBar);
  tracer.SetLeastRadius(kNoNumber);
  tracer.SetLeastRadius(kInfinite);
  EXPECT_EQ(tracer.Reach(), 1.3 * 16);
}

TEST(TracerTest, MeasuresInTheStrokesUnit) {
  Way bar = kBar;
  for (Point& point : bar) point = {point.x * 3 + 10, point.y * 3 - 20};
  const auto verdictAside = [&](double aside) {
    Tracer tracer({
        {.points = bar, .unit = 3}
    });
    return VerdictOf(tracer, Moved(bar, 0, aside));
  };
  EXPECT_EQ(verdictAside(45), TraceVerdict::Done);
  EXPECT_EQ(verdictAside(65), TraceVerdict::Elsewhere);
}

TEST(TracerTest, TakesAUnitThatIsNoneForAPixel) {
  for (const double none : {0.0, -1.0, kNoNumber, kInfinite}) {
    Tracer tracer({
        {.points = kBar, .unit = none}
    });
    EXPECT_EQ(tracer.Reach(), 1.3 * 16);
    EXPECT_EQ(VerdictOf(tracer, kBar), TraceVerdict::Done);
  }
}

TEST(TracerTest, GuidesAlongALettersStrokesWhereItIsPlaced) {
  const Letter& b = LetterOf({.set = "engc", .tile = 2, .form = {}});
  const std::vector<GuideStroke> guide = GuideOf(b, {.scale = 2, .right = 10, .down = -5});
  ASSERT_EQ(guide.size(), b.PenStrokes().size());
  const Point& first = b.Shape().strokes[0].points[0];
  EXPECT_EQ(guide[0].points[0], (Point{first.x * 2 + 10, first.y * 2 - 5}));
  EXPECT_EQ(guide[0].unit, b.Bounds().height * 2 / 100);
  EXPECT_TRUE(GuideOf(Letter()).empty());
}

TEST(TracerTest, AsksOfAWordWhatItAsksOfItsLetters) {
  const std::vector<GuideStroke> one = GuideOf(LayWord("a").letter);
  const std::vector<GuideStroke> word = GuideOf(LayWord("aaaaaaaaaaaa").letter, {.scale = 0.5});
  EXPECT_EQ(one[0].unit, (kWordBase - kWordHead) / 100);
  EXPECT_EQ(word.back().unit, one[0].unit / 2);
}

TEST(TracerTest, IsTheSameForALetterThatIsPlaced) {
  const Letter& b = LetterOf({.set = "engc", .tile = 2, .form = {}});
  Tracer tracer(GuideOf(b, {.scale = 0.5, .right = 100, .down = 30}));
  for (const StrokePath& stroke : b.Shape().strokes) {
    Way way = stroke.points;
    for (Point& point : way) point = {point.x / 2 + 100, point.y / 2 + 30};
    EXPECT_EQ(VerdictOf(tracer, way), TraceVerdict::Done);
  }
  EXPECT_TRUE(tracer.IsFinished());
}

}  // namespace
}  // namespace bramlee
