// What the tracer says of a child's pen, verdict by verdict.
#include "writing/tracer.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <vector>

#include "strokes/letter.h"
#include "tests/writing/pen_marks.h"

namespace bramlee {

static void PrintTo(TraceVerdict verdict, std::ostream* out) {
  *out << NameOf(verdict);
}
static void PrintTo(TraceHelp help, std::ostream* out) {
  *out << NameOf(help);
}

namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

/// 100 units to the right.
const Way kBar = {
    {0,   0},
    {100, 0}
};
/// 100 units down, begun where no pen that writes the bar comes by.
const Way kStem = {
    {50, 60 },
    {50, 160}
};
/// Far from both.
const Way kFarAway = {
    {300, 300},
    {340, 300}
};

/// The same with another way to have the verdict compared.
Way To(double x) {
  return {
      {0, 0},
      {x, 0}
  };
}

Tracer BarAndStem(TraceLevel level = TraceLevel::Normal) {
  return Tracer({StrokeThrough(kBar), StrokeThrough(kStem)}, level);
}

Tracer Of(const Way& way, TraceLevel level = TraceLevel::Normal) {
  return Tracer({StrokeThrough(way)}, level);
}

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

// Crossings, loops, rings, dots.

/// A loop: to the right, round, and on to the right through the crossing.
Way Loop(double radius) {
  Way way = Joined(
      {
          {0, 0}
  },
      Arc({60, -radius}, radius, 90, -270));
  way.push_back({120, 0});
  return way;
}

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
