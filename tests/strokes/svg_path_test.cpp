// Runs as the text of SVG paths.
#include "strokes/svg_path.h"

#include <gtest/gtest.h>

#include <limits>

#include "strokes/letter.h"
#include "tests/strokes/every_letter.h"

namespace bramlee {
namespace {

constexpr double kStep = 0.01;

RunTrack Track(Primitive primitive, std::initializer_list<double> values) {
  return TrackOf(MakeRun(primitive, {values.begin(), values.size()}), kStep).value_or(RunTrack());
}

std::string PathOf(std::initializer_list<RunTrack> tracks) {
  SvgPath path({100, 100});
  for (const RunTrack& track : tracks) path.Follow(track);
  return path.Text();
}

TEST(SvgNumber, IsRoundedToAHundredthAndAsShortAsCanBe) {
  EXPECT_EQ(SvgNumber(0), "0");
  EXPECT_EQ(SvgNumber(-0.001), "0");
  EXPECT_EQ(SvgNumber(0.5), ".5");
  EXPECT_EQ(SvgNumber(-0.05), "-.05");
  EXPECT_EQ(SvgNumber(12.3456), "12.35");
  EXPECT_EQ(SvgNumber(-100), "-100");
}

TEST(SvgNumber, IsANumberWhateverItIsMadeOf) {
  const double infinite = std::numeric_limits<double>::infinity();
  EXPECT_EQ(SvgNumber(infinite), "1000000000");
  EXPECT_EQ(SvgNumber(-infinite), "-1000000000");
  EXPECT_EQ(SvgNumber(1e300), "1000000000");
  EXPECT_EQ(SvgNumber(std::numeric_limits<double>::quiet_NaN()), "0");
}

// The last dot of some runs stands a step short of where they should end.
TEST(SvgPath, WritesLinesFromTheOrigin) {
  EXPECT_EQ(PathOf({Track(Primitive::LineDown, {150, 120, 300})}), "M50 20v180");
  EXPECT_EQ(PathOf({Track(Primitive::LineRight, {90, 110, 95.5})}), "M-10 10h5.49");
}

TEST(SvgPath, WritesAQuarterAsOneArc) {
  EXPECT_EQ(PathOf({Track(Primitive::ArcStroke, {1, 0, 90, 200, 200, 50})}),
            "M150 100a50 50 0 0 0-49.99-50");
}

TEST(SvgPath, WritesARingInPartsOfAThird) {
  const RunTrack ring = Track(Primitive::ArcStroke, {-1, 90, -270, 200, 200, 50});
  EXPECT_EQ(PathOf({ring}), "M100 50a50 50 0 0 1 43.3 75a50 50 0 0 1-86.6 0a50 50 0 0 1 43.3-75");
}

TEST(SvgPath, GoesOnWithoutAMove) {
  EXPECT_EQ(PathOf({Track(Primitive::LineDown, {150, 120, 300}),
                    Track(Primitive::LineRight, {151, 300, 200})}),
            "M50 20v180h1h49");
}

TEST(SvgPath, ShowsADot) {
  EXPECT_EQ(PathOf({Track(Primitive::LineDown, {150, 120, 120})}), "M50 20h.01");
}

TEST(RunTrack, OfARunThatPlotsNothingIsNone) {
  const double values[] = {150, 300, 120};
  EXPECT_FALSE(TrackOf(MakeRun(Primitive::LineDown, values), kStep));
}

TEST(RunTrack, EndsWhereTheLastDotOfEveryRunStands) {
  for (const LetterId& id : EveryLetter()) {
    for (const auto& run : LetterOf(id).Runs()) {
      Point first;
      Point last;
      std::int64_t dots = 0;
      RunCursor(run, kStep).Advance(RunCursor::kAll, [&](double x, double y) {
        if (dots++ == 0) first = {x, y};
        last = {x, y};
      });
      const auto track = TrackOf(run, kStep);
      ASSERT_EQ(track.has_value(), dots > 0) << NameOf(id);
      if (!track) continue;
      EXPECT_EQ(track->ends.begin, first) << NameOf(id);
      EXPECT_EQ(track->ends.end, last) << NameOf(id);
      if (track->radius == 0) continue;
      EXPECT_LT(DistanceBetween(track->OnArc(1), last), 1e-6) << NameOf(id);
    }
  }
}

}  // namespace
}  // namespace bramlee
