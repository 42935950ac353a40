// Letters as data: what was recorded is what the program writes.
#include "strokes/letter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "engine/last_point.h"
#include "engine/primitives.h"
#include "strokes/run_recorder.h"
#include "tests/recorder.h"
#include "tests/strokes/every_letter.h"

namespace bramlee {
namespace {

constexpr double kSlowest = 0.001;

struct Registers {
  double x = LastX, y = LastY, x2 = LastX2, y2 = LastY2;
  bool operator==(const Registers&) const = default;
};

Recorder Plain(const LetterId& id, double step) {
  Recorder sheet(step);
  WriteWholeTile(*FindLetterSet(id.set), id.tile, id.form, sheet);
  return sheet;
}

TEST(LetterTest, RecordedAtAnyStepHasTheDotsAndLeavesTheRegistersOfItsProgram) {
  for (const double step : {0.2, 1.0}) {
    for (const LetterId& id : EveryLetter()) {
      SCOPED_TRACE(NameOf(id));
      const Recorder plain = Plain(id, step);
      const Registers left;
      const Letter letter = RecordTile(id, step);
      EXPECT_EQ(Registers(), left);
      EXPECT_EQ(letter.Step(), step);
      Recorder again(step);
      for (const auto& run : letter.Runs()) WriteRun(again, run);
      EXPECT_EQ(again.runs, plain.runs);
      EXPECT_EQ(again.dots, plain.dots);
    }
  }
}

TEST(LetterTest, RecordedAtTheSlowestStepHasTheRunsOfItsProgram) {
  for (const int tile : {1, 2, 7, 19}) {  // of slants, joins and arcs
    const LetterId id{.set = "engc", .tile = tile, .form = {}};
    const Recorder plain = Plain(id, kSlowest);
    const Registers left;
    const Letter letter = RecordTile(id, kSlowest);
    EXPECT_EQ(Registers(), left);
    ASSERT_EQ(letter.Runs().size(), plain.runs.size());
    for (std::size_t i = 0; i < plain.runs.size(); ++i) {
      EXPECT_EQ(letter.Runs()[i], MakeRun(plain.runs[i].primitive, plain.runs[i].arguments));
      EXPECT_EQ(DotCount(letter.Runs()[i], kSlowest), plain.runs[i].dots);
    }
  }
}

TEST(LetterTest, OfATileIsWhatTheBoardWritesAtFirst) {
  for (const LetterId& id : {
           LetterId{"engc", 2,  {}                               },
           LetterId{"hinc", 75, {}                               },
           LetterId{"mat",  3,  {.alternative = true, .place = 4}}
  }) {
    const Recorder plain = Plain(id, kUsualStep);
    const Letter& letter = LetterOf(id);
    EXPECT_EQ(letter.Id(), id);
    EXPECT_EQ(letter.Step(), kUsualStep);
    ASSERT_EQ(letter.Runs().size(), plain.runs.size());
    for (std::size_t i = 0; i < plain.runs.size(); ++i) {
      EXPECT_EQ(letter.Runs()[i], MakeRun(plain.runs[i].primitive, plain.runs[i].arguments));
    }
  }
}

TEST(LetterTest, OfATileIsRecordedOnce) {
  const LetterId a{.set = "engs", .tile = 1, .form = {}};
  const LetterId b{.set = "engs", .tile = 2, .form = {}};
  const Letter& first = LetterOf(a);
  EXPECT_NE(&LetterOf(b), &first);
  EXPECT_EQ(&LetterOf(a), &first);
}

TEST(LetterTest, OfATileLeavesTheRegistersAsTheyAre) {
  LastX = LastY = LastX2 = LastY2 = 4321;
  // a form that no other test asks for, so that it is recorded here
  const LetterId first{.set = "engc", .tile = 19, .form = {.alternative = true}};
  EXPECT_FALSE(LetterOf(first).Runs().empty());
  EXPECT_EQ(LastX, 4321);
  EXPECT_EQ(LastY, 4321);
  EXPECT_EQ(LastX2, 4321);
  EXPECT_EQ(LastY2, 4321);
}

TEST(RecordTileTest, OfNoTileIsEmpty) {
  EXPECT_TRUE(RecordTile({.set = "engx", .tile = 1, .form = {}}, 1).Runs().empty());
  EXPECT_TRUE(RecordTile({.set = "engc", .tile = 27, .form = {}}, 1).Runs().empty());
}

TEST(LetterTest, OfNoTileIsEmpty) {
  for (const LetterId& id : {
           LetterId{"engx", 1, {}},
           LetterId{"engc",    0, {}},
           LetterId{"engc", 27, {}},
           LetterId{}
  }) {
    const Letter& letter = LetterOf(id);
    EXPECT_TRUE(letter.Runs().empty());
    EXPECT_TRUE(letter.PenStrokes().empty());
    EXPECT_TRUE(letter.Shape().strokes.empty());
    EXPECT_EQ(letter.Bounds(), Box());
    EXPECT_EQ(letter.Length(), 0);
  }
}

/// Joins on to what was written before.
void WriteOn(StrokeRec& rec, DrawingSurface& sheet) {
  LineRight(sheet, LastX, LastY, rec.X1);
  ArcStroke(sheet, +1, 0, 0, 90, 50, 60, 10);
  rec.X1 = 7;
}

TEST(RecordLetterTest, StartsFromTheRegistersAndLeavesThemAndTheRecordAsTheProgramDoes) {
  LastX = 20, LastY = 30;
  StrokeRec rec;
  rec.X1 = 45;
  const Letter letter = RecordLetter({}, WriteOn, rec, 1);
  ASSERT_EQ(letter.Runs().size(), 2U);
  EXPECT_EQ(letter.Runs()[0], (bramlee::Run{
                                  Primitive::LineRight, {20, 30, 45}
  }));
  EXPECT_EQ(rec.X1, 7);
  EXPECT_EQ(LastY, 60 - 10 * std::sin(90 * (kPi / 180)));
}

TEST(RunRecorderTest, ReturnsItsRunsOnce) {
  RunRecorder recorder(1);
  LineRight(recorder, 0, 0, 3);
  EXPECT_EQ(recorder.Runs().size(), 1U);
  EXPECT_EQ(recorder.TakeRuns().size(), 1U);
  EXPECT_TRUE(recorder.Runs().empty());
}

}  // namespace
}  // namespace bramlee
