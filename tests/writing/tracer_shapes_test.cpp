// What the tracer says of crossings, loops, rings and dots.
#include <gtest/gtest.h>

#include <vector>

#include "tests/writing/tracers.h"

namespace bramlee {
namespace {

TEST(TracerTest, TakesALoopThatIsDrawnRound) {
  for (const double radius : {8.0, 15.0, 40.0}) {
    Tracer tracer = Of(Loop(radius));
    EXPECT_EQ(VerdictOf(tracer, Loop(radius)), TraceVerdict::Done) << radius;
  }
}

TEST(TracerTest, DoesNotTakeALoopThatIsLeftOut) {
  for (const double radius : {8.0, 15.0, 40.0}) {
    Tracer tracer = Of(Loop(radius));
    EXPECT_NE(VerdictOf(tracer, To(120)), TraceVerdict::Done) << radius;
  }
}

TEST(TracerTest, DoesNotTakeALoopThatIsDrawnTheOtherWayRound) {
  for (const double radius : {8.0, 15.0, 40.0}) {
    Way other = Joined(
        {
            {0, 0}
    },
        Arc({60, -radius}, radius, 90, 450));
    other.push_back({120, 0});
    Tracer tracer = Of(Loop(radius));
    EXPECT_NE(VerdictOf(tracer, other), TraceVerdict::Done) << radius;
  }
}

TEST(TracerTest, DoesNotTakeWhatLooksLikeTheStrokeButIsAnother) {
  const Way bow = Arc({0, 0}, 25, 180, 360);
  const Way ends{bow.front(), bow.back()};
  const Way otherSide = Arc({0, 0}, 25, 180, 0);
  for (const Way& another : {ends, otherSide}) {
    Tracer tracer = Of(bow, TraceLevel::Toddler);
    EXPECT_NE(VerdictOf(tracer, another), TraceVerdict::Done);
  }
}

TEST(TracerTest, DoesNotTakeTheNextStrokeForThisOne) {
  const Way bar{
      {0,  0},
      {60, 0}
  };
  const Way lower = Moved(bar, 0, 14);
  Tracer tracer({StrokeThrough(bar), StrokeThrough(lower)});
  EXPECT_EQ(VerdictOf(tracer, lower), TraceVerdict::Astray);
  EXPECT_EQ(VerdictOf(tracer, bar), TraceVerdict::Done);
  EXPECT_EQ(VerdictOf(tracer, lower), TraceVerdict::Done);
}

TEST(TracerTest, TakesARingFromItsBeginningToItsEnd) {
  const Way ring = Arc({0, 0}, 40, -90, 270);
  Tracer whole = Of(ring);
  EXPECT_EQ(VerdictOf(whole, ring), TraceVerdict::Done);
  Tracer half = Of(ring);
  EXPECT_EQ(VerdictOf(half, Arc({0, 0}, 40, -90, 90)), TraceVerdict::Resume);
  EXPECT_NEAR(half.Progress(), 0.5, 0.01);
}

TEST(TracerTest, TakesAnySmallMarkForADot) {
  const Way dot{
      {0, 0},
      {0, 5}
  };
  const Way marks[] = {
      dot, {{0, 0}  },
       Backwards(dot), { {-6, 2}, {4, 3}, {-2, 6}}
  };
  for (const Way& mark : marks) {
    Tracer tracer = Of(dot);
    EXPECT_EQ(VerdictOf(tracer, mark), TraceVerdict::Done);
  }
}

TEST(TracerTest, DoesNotTakeAnythingForADot) {
  const Way dot{
      {0, 0},
      {0, 5}
  };
  Tracer away = Of(dot);
  EXPECT_EQ(VerdictOf(away,
                      {
                          {25, 0}
  }),
            TraceVerdict::Elsewhere);
  Tracer leaves = Of(dot);
  EXPECT_EQ(VerdictOf(leaves,
                      {
                          {0,  0},
                          {30, 0}
  }),
            TraceVerdict::Astray);
  Tracer scribbles = Of(dot);
  EXPECT_EQ(VerdictOf(scribbles,
                      {
                          {0, 0},
                          {8, 0},
                          {0, 0},
                          {8, 0},
                          {0, 0}
  }),
            TraceVerdict::Scribble);
}

TEST(TracerTest, TakesATapForAStrokeOfOnePlace) {
  Tracer tracer = Of({
      {7, 7}
  });
  const auto judgement = Draw(tracer, {
                                          {9, 9}
  });
  EXPECT_EQ(judgement->verdict, TraceVerdict::Done);
  EXPECT_EQ(judgement->progress, 1);
}

TEST(TracerTest, TakesASmallRingForWhatItIs) {
  const Way ring = Arc({0, 0}, 2, -90, 270);
  Tracer drawn = Of(ring);
  EXPECT_EQ(VerdictOf(drawn, Moved(ring, 6, 5)), TraceVerdict::Done);
  Tracer tapped = Of(ring);
  EXPECT_EQ(VerdictOf(tapped,
                      {
                          {0, -2}
  }),
            TraceVerdict::Astray);
  Tracer half = Of(ring);
  EXPECT_NE(VerdictOf(half, Arc({0, 0}, 2, -90, 90)), TraceVerdict::Done);
}

}  // namespace
}  // namespace bramlee
