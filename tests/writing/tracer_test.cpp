// What the tracer says of a child's pen that is drawn in one touch, and in which order.
#include <gtest/gtest.h>

#include <vector>

#include "tests/writing/tracers.h"

namespace bramlee {
namespace {

// The order of the strokes.

TEST(TracerTest, WithoutStrokesIsFinishedAndSaysNothing) {
  Tracer tracer;
  EXPECT_TRUE(tracer.IsFinished());
  EXPECT_EQ(Draw(tracer, kBar), std::nullopt);
  EXPECT_EQ(tracer.PlaceToGoOn(), Point());
  EXPECT_EQ(tracer.Reach(), 0);
  EXPECT_EQ(tracer.Progress(), 0);
}

TEST(TracerTest, OffersAStrokeWhenTheOneBeforeIsDone) {
  Tracer tracer = BarAndStem();
  EXPECT_EQ(tracer.Stroke(), 0U);
  EXPECT_EQ(VerdictOf(tracer, kStem), TraceVerdict::Elsewhere);
  EXPECT_EQ(tracer.Stroke(), 0U);
  EXPECT_EQ(VerdictOf(tracer, kBar), TraceVerdict::Done);
  EXPECT_EQ(tracer.Stroke(), 1U);
  EXPECT_EQ(tracer.PlaceToGoOn(), kStem.front());
  EXPECT_EQ(VerdictOf(tracer, kStem), TraceVerdict::Done);
  EXPECT_TRUE(tracer.IsFinished());
  EXPECT_EQ(tracer.Helped(), 0);
}

TEST(TracerTest, NamesTheStrokeThatATouchWasMeantFor) {
  Tracer tracer = BarAndStem();
  EXPECT_EQ(Draw(tracer, kBar)->stroke, 0U);
  EXPECT_EQ(Draw(tracer, kStem)->stroke, 1U);
  EXPECT_EQ(Draw(tracer, kStem), std::nullopt);
}

TEST(TracerTest, PassesOverStrokesWithoutPoints) {
  Tracer tracer({StrokeThrough({}), StrokeThrough(kBar), StrokeThrough({})});
  EXPECT_EQ(tracer.Stroke(), 1U);
  EXPECT_EQ(VerdictOf(tracer, kBar), TraceVerdict::Done);
  EXPECT_TRUE(tracer.IsFinished());
  EXPECT_EQ(tracer.Helped(), 0);
}

TEST(TracerTest, CopiesGoOnByThemselves) {
  Tracer tracer = BarAndStem();
  tracer.Down({0, 0});
  Tracer copy = tracer;
  tracer.Move({100, 0});
  EXPECT_EQ(tracer.Up()->verdict, TraceVerdict::Done);
  EXPECT_EQ(copy.Progress(), 0);
  copy.Move({50, 0});
  EXPECT_EQ(copy.Up()->verdict, TraceVerdict::Resume);
}

// Verdicts.

TEST(TracerTest, TakesAStrokeThatIsTracedExactly) {
  Tracer tracer = Of(kBar);
  EXPECT_EQ(Draw(tracer, kBar), (TraceJudgement{.stroke = 0,
                                                .verdict = TraceVerdict::Done,
                                                .progress = 1,
                                                .misses = 0,
                                                .help = TraceHelp::None}));
}

TEST(TracerTest, TakesAStrokeBesideTheStroke) {
  for (const double aside : {-14.0, 14.0}) {
    Tracer tracer = Of(kBar);
    EXPECT_EQ(VerdictOf(tracer, Moved(kBar, 0, aside)), TraceVerdict::Done) << aside;
  }
}

TEST(TracerTest, DoesNotTakeAStrokeBesideTheCorridor) {
  Tracer tracer = Of(kBar);
  EXPECT_EQ(VerdictOf(tracer,
                      {
                          {0,   0 },
                          {20,  18},
                          {100, 18}
  }),
            TraceVerdict::Astray);
}

TEST(TracerTest, SaysElsewhereOfAPenThatComesDownAwayFromTheStart) {
  for (const Point& away : {
           Point{0,   22},
           Point{-22, 0 },
           Point{50,  0 },
           Point{300, 3 }
  }) {
    Tracer tracer = Of(kBar);
    tracer.Down(away);
    EXPECT_EQ(tracer.Pen(), TracePen::Elsewhere);
    tracer.Move({100, 0});
    EXPECT_EQ(tracer.Up()->verdict, TraceVerdict::Elsewhere) << away.x << ' ' << away.y;
  }
}

TEST(TracerTest, TakesAPenThatComesDownNearTheStart) {
  Tracer tracer = Of(kBar);
  EXPECT_EQ(VerdictOf(tracer,
                      {
                          {0,   20},
                          {40,  6 },
                          {100, 0 }
  }),
            TraceVerdict::Done);
}

TEST(TracerTest, SaysReversedOfAStrokeFromItsEndToItsBeginning) {
  Tracer bar = Of(kBar);
  EXPECT_EQ(VerdictOf(bar, Backwards(kBar)), TraceVerdict::Reversed);
  const Way ring = Arc({0, 0}, 40, -90, 270);
  Tracer closed = Of(ring);
  EXPECT_EQ(VerdictOf(closed, Backwards(ring)), TraceVerdict::Reversed);
  const Way small = Arc({0, 0}, 5, -90, 270);
  Tracer smallRing = Of(small);
  EXPECT_EQ(VerdictOf(smallRing, Backwards(small)), TraceVerdict::Reversed);
}

TEST(TracerTest, DoesNotSayReversedOfAPieceFromTheEnd) {
  Tracer tracer = Of(kBar);
  EXPECT_EQ(VerdictOf(tracer,
                      {
                          {100, 0},
                          {60,  0}
  }),
            TraceVerdict::Elsewhere);
}

TEST(TracerTest, SaysScribbleOfFarMoreInkThanTheStrokeHas) {
  const auto zigzag = [](int turns) {
    Way way{
        {0, 0}
    };
    for (int i = 1; i <= turns; ++i) way.push_back({i % 2 == 0 ? 0.0 : 20.0, 0});
    way.push_back({100, 0});
    return way;
  };
  Tracer much = Of(kBar);  // 220 + 20 units are the most
  EXPECT_EQ(VerdictOf(much, zigzag(8)), TraceVerdict::Scribble);
  Tracer less = Of(kBar);
  EXPECT_EQ(VerdictOf(less, zigzag(6)), TraceVerdict::Done);
}

TEST(TracerTest, SaysAstrayOfATap) {
  Tracer tracer = Of(kBar);
  EXPECT_EQ(VerdictOf(tracer,
                      {
                          {0, 0}
  }),
            TraceVerdict::Astray);
}

TEST(TracerTest, SaysAstrayOfAPenThatLeavesTheStroke) {
  Tracer tracer = Of(kBar);
  const auto judgement = Draw(tracer, {
                                          {0,  0 },
                                          {40, 0 },
                                          {40, 80}
  });
  EXPECT_EQ(judgement->verdict, TraceVerdict::Astray);
  EXPECT_GE(judgement->progress, 0.4);
  EXPECT_LE(judgement->progress, 0.57);
}

TEST(TracerTest, SaysAstrayOfAPenThatGoesOnFarBeyondTheEnd) {
  Tracer near = Of(kBar);
  EXPECT_EQ(VerdictOf(near, To(131)), TraceVerdict::Done);
  Tracer far = Of(kBar);
  EXPECT_EQ(VerdictOf(far, To(133)), TraceVerdict::Astray);
  EXPECT_EQ(far.Progress(), 0);
}

TEST(TracerTest, TakesAStrokeThatEndsALittleShort) {
  Tracer enough = Of(kBar);
  EXPECT_EQ(VerdictOf(enough, To(85)), TraceVerdict::Done);
  Tracer tooLittle = Of(kBar);
  EXPECT_EQ(VerdictOf(tooLittle, To(83)), TraceVerdict::Resume);
}

TEST(TracerTest, TakesAShareOfAShortOrLongStrokeForItsEnd) {
  const auto verdictOf = [](double length, double drawn) {
    Tracer tracer = Of(To(length));
    return VerdictOf(tracer, To(drawn));
  };
  EXPECT_EQ(verdictOf(40, 29), TraceVerdict::Done);
  EXPECT_EQ(verdictOf(40, 27), TraceVerdict::Resume);
  EXPECT_EQ(verdictOf(300, 277), TraceVerdict::Done);
  EXPECT_EQ(verdictOf(300, 275), TraceVerdict::Resume);
}

TEST(TracerTest, CountsTheLastLittleMoveBeforeThePenIsLifted) {
  Tracer tracer = Of(kBar);
  EXPECT_EQ(VerdictOf(tracer,
                      {
                          {0,    0},
                          {83.3, 0},
                          {83.7, 0}
  }),
            TraceVerdict::Done);
}

TEST(TracerTest, TakesAShortStrokeForItsPlaceLengthAndDirection) {
  const Way dash = To(12);
  Tracer right = Of(dash);
  EXPECT_EQ(VerdictOf(right, Moved(dash, 3, 8)), TraceVerdict::Done);
  Tracer reversed = Of(dash);
  EXPECT_EQ(VerdictOf(reversed, Backwards(dash)), TraceVerdict::Reversed);
  Tracer half = Of(dash);
  EXPECT_EQ(VerdictOf(half, To(6)), TraceVerdict::Resume);
  Tracer leaves = Of(dash);
  EXPECT_EQ(VerdictOf(leaves,
                      {
                          {0,  0 },
                          {0,  40},
                          {12, 23}
  }),
            TraceVerdict::Scribble);
}

TEST(TracerTest, SaysTheSameHoweverFarApartThePointsAre) {
  const Way arc = Arc({0, 0}, 50, 180, 360);
  for (const std::size_t every : {1U, 3U, 9U}) {
    Way thinned;
    for (std::size_t i = 0; i < arc.size(); i += every) thinned.push_back(arc[i]);
    Tracer right = Of(arc);
    EXPECT_EQ(VerdictOf(right, thinned), TraceVerdict::Done) << every;
    Tracer wrong = Of(arc);
    EXPECT_EQ(VerdictOf(wrong, Moved(Arc({0, 0}, 50, 180, 0), 0, 0)), TraceVerdict::Astray);
  }
}

TEST(TracerTest, DoesNotCountTheTremblingOfAHandThatRests) {
  Tracer tracer = Of(kBar);
  tracer.Down({0, 0});
  for (int i = 0; i < 5000; ++i) tracer.Move({i % 2 == 0 ? 0.3 : 0.0, 0});
  tracer.Move({100, 0});
  EXPECT_EQ(tracer.Up()->verdict, TraceVerdict::Done);
}

TEST(TracerTest, WritesWithAPenThatComesBackToTheStroke) {
  Tracer tracer = Of(kBar);
  tracer.Down({0, 0});
  tracer.Move({40, 0});
  tracer.Move({40, 25});
  EXPECT_EQ(tracer.Pen(), TracePen::OnWay);
  tracer.Move({40, 40});
  EXPECT_EQ(tracer.Pen(), TracePen::Astray);
  EXPECT_NEAR(tracer.PlaceToGoOn().x, 40, 2);
  tracer.Move({44, 0});
  tracer.Move({60, 0});
  EXPECT_EQ(tracer.Pen(), TracePen::OnWay);
  tracer.Move({100, 0});
  EXPECT_EQ(tracer.Up()->verdict, TraceVerdict::Done);
}

}  // namespace
}  // namespace bramlee
