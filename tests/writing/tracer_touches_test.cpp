// What the tracer says of a stroke in several touches, and of pens that are lost, far off or no
// pens.
#include <gtest/gtest.h>

#include <vector>

#include "tests/writing/tracers.h"

namespace bramlee {
namespace {

// Several touches.

TEST(TracerTest, GoesOnWhereThePenWasLifted) {
  Tracer tracer = Of(kBar);
  const auto first = Draw(tracer, To(50));
  EXPECT_EQ(first->verdict, TraceVerdict::Resume);
  EXPECT_NEAR(first->progress, 0.5, 0.01);
  EXPECT_EQ(first->misses, 0);
  EXPECT_EQ(first->help, TraceHelp::None);
  EXPECT_NEAR(tracer.PlaceToGoOn().x, 50, 1);
  const auto second = Draw(tracer, {
                                       {54,  6},
                                       {100, 0}
  });
  EXPECT_EQ(second->verdict, TraceVerdict::Done);
  EXPECT_EQ(second->misses, 0);
}

TEST(TracerTest, GoesOnWhereThePenLeftTheStroke) {
  Tracer tracer = Of(kBar);
  EXPECT_EQ(VerdictOf(tracer,
                      {
                          {0,  0 },
                          {50, 0 },
                          {50, 60}
  }),
            TraceVerdict::Astray);
  EXPECT_EQ(VerdictOf(tracer,
                      {
                          {52,  0},
                          {100, 0}
  }),
            TraceVerdict::Done);
}

TEST(TracerTest, FollowsAChildThatBeginsTheStrokeAnew) {
  Tracer tracer = Of(kBar);
  Draw(tracer, To(60));
  EXPECT_EQ(VerdictOf(tracer, kBar), TraceVerdict::Done);
}

TEST(TracerTest, FollowsAChildThatGoesOverWhatIsWritten) {
  Tracer tracer = Of(kBar);
  Draw(tracer, To(70));
  EXPECT_EQ(VerdictOf(tracer,
                      {
                          {40,  5},
                          {100, 0}
  }),
            TraceVerdict::Done);
}

TEST(TracerTest, DoesNotGoOnBeyondWhatIsWritten) {
  Tracer tracer = Of(kBar);
  Draw(tracer, To(50));
  EXPECT_EQ(VerdictOf(tracer,
                      {
                          {75,  0},
                          {100, 0}
  }),
            TraceVerdict::Elsewhere);
  EXPECT_NEAR(tracer.Progress(), 0.5, 0.01);
}

TEST(TracerTest, CountsATouchThatComesNoFurtherAsAMiss) {
  Tracer tracer = Of(kBar);
  Draw(tracer, To(50));
  EXPECT_EQ(VerdictOf(tracer,
                      {
                          {50, 0},
                          {55, 0}
  }),
            TraceVerdict::Astray);
  EXPECT_EQ(VerdictOf(tracer, To(50)), TraceVerdict::Astray);
  EXPECT_EQ(tracer.Misses(), 2);
  EXPECT_NEAR(tracer.Progress(), 0.5, 0.01);
}

TEST(TracerTest, GoesOnFromATouchThatHasComeALittleWay) {
  const Way tick{
      {0,  0},
      {30, 0}
  };
  Tracer longStroke = Of(kBar);
  EXPECT_EQ(VerdictOf(longStroke, To(10)), TraceVerdict::Resume);
  Tracer little = Of(kBar);
  EXPECT_EQ(VerdictOf(little, To(6)), TraceVerdict::Astray);
  Tracer shortStroke = Of(tick);
  EXPECT_EQ(VerdictOf(shortStroke, To(7)), TraceVerdict::Resume);
}

TEST(TracerTest, DoesNotGoOnFromATouchThatEndsBeforeWhatIsWritten) {
  Tracer tracer = Of(kBar);
  Draw(tracer, To(50));
  EXPECT_EQ(VerdictOf(tracer, To(30)), TraceVerdict::Astray);
  EXPECT_NEAR(tracer.Progress(), 0.5, 0.01);
}

TEST(TracerTest, KeepsNothingOfAScribble) {
  Tracer tracer = Of(kBar);
  Way scribble = To(50);
  for (int i = 0; i < 40; ++i) scribble.push_back({50, i % 2 == 0 ? 10.0 : 0.0});
  EXPECT_EQ(VerdictOf(tracer, scribble), TraceVerdict::Scribble);
  EXPECT_EQ(tracer.Progress(), 0);
}

TEST(TracerTest, IsNotFinishedByTapsAlongTheStroke) {
  Tracer tracer = Of(kBar);
  for (double x = 0; x <= 45; x += 15) {
    EXPECT_EQ(VerdictOf(tracer,
                        {
                            {x, 0}
    }),
              x == 0 || x == 15 ? TraceVerdict::Astray : TraceVerdict::Elsewhere);
  }
}

TEST(TracerTest, GoesOnThroughACrossingInTheStrokesOwnDirection) {
  const Way loop = Loop(30);
  Tracer tracer = Of(loop);
  const Way first(loop.begin(), loop.begin() + 88);  // nearly back at the crossing
  EXPECT_EQ(VerdictOf(tracer, first), TraceVerdict::Resume);
  EXPECT_EQ(VerdictOf(tracer,
                      {
                          {58,  0},
                          {120, 0}
  }),
            TraceVerdict::Done);
}

// What a pen may do besides.

TEST(TracerTest, SaysNothingOfAPenThatWasUp) {
  Tracer tracer = Of(kBar);
  EXPECT_EQ(tracer.Up(), std::nullopt);
  tracer.Move({50, 0});
  EXPECT_EQ(tracer.Pen(), TracePen::Up);
  EXPECT_EQ(tracer.Progress(), 0);
  EXPECT_EQ(tracer.Misses(), 0);
}

TEST(TracerTest, TakesATouchBack) {
  Tracer tracer = Of(kBar);
  tracer.Down(kFarAway.front());
  tracer.Cancel();
  EXPECT_EQ(tracer.Up(), std::nullopt);
  EXPECT_EQ(tracer.Misses(), 0);
  EXPECT_EQ(VerdictOf(tracer, kBar), TraceVerdict::Done);
}

TEST(TracerTest, TakesATouchBackWhoseEndWasLost) {
  Tracer tracer = Of(kBar);
  tracer.Down(kFarAway.front());
  tracer.Move({200, 200});
  EXPECT_EQ(VerdictOf(tracer, kBar), TraceVerdict::Done);
}

TEST(TracerTest, IgnoresPlacesThatAreNotFinite) {
  for (const double none : {kNoNumber, kInfinite, -kInfinite}) {
    Tracer tracer = Of(kBar);
    tracer.Down({0, none});
    EXPECT_EQ(tracer.Pen(), TracePen::Up);
    EXPECT_EQ(tracer.Up(), std::nullopt);
    tracer.Down({0, 0});
    tracer.Move({none, 0});
    tracer.Move({100, 0});
    tracer.Move({0, none});
    EXPECT_EQ(tracer.Up()->verdict, TraceVerdict::Done);
  }
}

TEST(TracerTest, EndsInNoTimeForPlacesThatAreFarOff) {
  constexpr double kFar = std::numeric_limits<double>::max();
  Tracer tracer = Of(kBar);
  tracer.Down({0, 0});
  for (int i = 0; i < 1000; ++i) tracer.Move({i % 2 == 0 ? kFar : -kFar, kFar});
  EXPECT_EQ(tracer.Up()->verdict, TraceVerdict::Scribble);
  EXPECT_EQ(VerdictOf(tracer,
                      {
                          {kFar, kFar}
  }),
            TraceVerdict::Elsewhere);
}

TEST(TracerTest, LeavesOutPointsOfAStrokeThatAreNotFinite) {
  Tracer tracer = Of({
      {kNoNumber, 0        },
      {0,         0        },
      {kInfinite, kInfinite},
      {100,       0        }
  });
  EXPECT_EQ(VerdictOf(tracer, kBar), TraceVerdict::Done);
}

TEST(TracerTest, ShowsHowFarThePenHasCome) {
  Tracer tracer = Of(kBar);
  EXPECT_EQ(tracer.Pen(), TracePen::Up);
  tracer.Down({0, 0});
  EXPECT_EQ(tracer.Pen(), TracePen::OnWay);
  tracer.Move({30, 5});
  EXPECT_NEAR(tracer.Progress(), 0.3, 0.01);
  EXPECT_NEAR(tracer.PlaceToGoOn().x, 30, 1);
  tracer.Move({10, 5});
  EXPECT_NEAR(tracer.Progress(), 0.3, 0.01);
}

TEST(TracerTest, NamesLevelsVerdictsAndHelps) {
  for (const TraceLevel level : kTraceLevels) EXPECT_EQ(TraceLevelNamed(NameOf(level)), level);
  EXPECT_EQ(TraceLevelNamed("Normal"), std::nullopt);
  EXPECT_EQ(TraceLevelNamed(""), std::nullopt);
  EXPECT_STREQ(NameOf(TraceLevel::Toddler), "toddler");
  EXPECT_STREQ(NameOf(TraceVerdict::Scribble), "scribble");
  EXPECT_STREQ(NameOf(TraceHelp::Written), "written");
}

}  // namespace
}  // namespace bramlee
