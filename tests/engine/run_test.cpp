// Runs as data: their dots one by one, and where they can stop.
#include "engine/run.h"

#include <bit>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/engine/stroke_fixture.h"
#include "tests/recorder.h"

namespace bramlee {
namespace {

using RunTest = Stroke;
using RunCursorTest = Stroke;

static_assert(std::is_trivially_copyable_v<Run>);
static_assert(std::is_trivially_copyable_v<RunCursor>);

/// One of each primitive, and those that plot nothing or one dot only.
const Run kRuns[] = {
    {Primitive::ArcStroke,    {-1, 90, -90, 725, 200, 50}    },
    {Primitive::ArcStroke,    {+1, 60, 300, 925.4, 250.1, 13}},
    {Primitive::ArcStroke,    {+1, 90, -90, 725, 200, 50}    },
    {Primitive::LineRight,    {10.3, 20, 31}                 },
    {Primitive::LineLeft,     {10, 20, 30.7}                 },
    {Primitive::LineDown,     {10, 20.1, 30}                 },
    {Primitive::LineUp,       {10, 30, 20.2}                 },
    {Primitive::LineUp,       {10, 20, 30}                   },
    {Primitive::SlantLeft,    {20.65, 500, 150, 350}         },
    {Primitive::SlantLeft,    {80, 500, 100, 150}            },
    {Primitive::SlantLeft,    {30, 100, -50, 0}              },
    {Primitive::SlantRight,   {45, 0, 0, 350}                },
    {Primitive::SlantRight,   {20, 500, 300, 250}            },
    {Primitive::SlantUpRight, {20.65, 500, 350, 150}         },
};

struct Outcome {
  std::vector<Dot> dots;
  std::vector<double> registers;
  bool operator==(const Outcome&) const = default;
};

std::vector<double> Registers() {
  return {LastX, LastY, LastX2, LastY2};
}

void Untouch() {
  LastX = LastY = LastX2 = LastY2 = kUntouched;
}

Outcome Written(const Run& run, double step) {
  Untouch();
  Recorder sheet(step);
  WriteRun(sheet, run);
  return {sheet.dots, Registers()};
}

std::string NameOf(const Run& run) {
  std::string name = PrimitiveName(run.primitive);
  for (const double argument : run.Arguments()) name += ' ' + std::to_string(argument);
  return name;
}

TEST_F(RunTest, HoldsAsManyArgumentsAsItsPrimitiveHas) {
  const double seven[] = {1, 2, 3, 4, 5, 6, 7};
  const auto count = [&](Primitive primitive) {
    const auto run = MakeRun(primitive, seven);
    EXPECT_EQ(run.values.at(2), 3);
    return run.Arguments().size();
  };
  EXPECT_EQ(count(Primitive::ArcStroke), 6U);
  for (const auto line :
       {Primitive::LineRight, Primitive::LineLeft, Primitive::LineDown, Primitive::LineUp}) {
    EXPECT_EQ(count(line), 3U);
    EXPECT_EQ(MakeRun(line, seven).values.at(3), 0);
  }
  for (const auto slant : {Primitive::SlantLeft, Primitive::SlantRight, Primitive::SlantUpRight}) {
    EXPECT_EQ(count(slant), 4U);
  }
}

TEST_F(RunTest, WritesWhatItsPrimitiveWrites) {
  Recorder called(0.25);
  ArcStroke(called, -1, 0, 90, -90, 725, 200, 50);
  SlantRight(called, 20.65, 500, 150, 350);
  const std::vector<double> registers = Registers();
  Untouch();
  Recorder told(0.25);
  WriteRun(told, {
                     Primitive::ArcStroke, {-1, 90, -90, 725, 200, 50}
  });
  WriteRun(told, {
                     Primitive::SlantRight, {20.65, 500, 150, 350}
  });
  EXPECT_EQ(told.dots, called.dots);
  EXPECT_EQ(told.runs, called.runs);
  EXPECT_EQ(Registers(), registers);
}

TEST_F(RunCursorTest, ThatStopsBetweenTwoDotsGoesOnWithTheNextOne) {
  for (const auto& run : kRuns) {
    for (const double step : {0.01, 0.2, 1.0}) {
      const Outcome whole = Written(run, step);
      Untouch();
      Recorder sheet(step);
      RunCursor cursor(run, step);
      for (int most = 0; !cursor.AtEnd(); ++most) {
        const RunCursor copy = cursor;
        cursor = copy;
        EXPECT_LE(cursor.Plot(sheet, most), most);
      }
      EXPECT_EQ(cursor.Plot(sheet), 0);
      cursor.LeaveLastPoint();
      EXPECT_EQ((Outcome{sheet.dots, Registers()}), whole) << NameOf(run) << " step " << step;
    }
  }
}

TEST_F(RunCursorTest, IsAtItsEndRightAfterTheLastDot) {
  for (const auto& run : kRuns) {
    const auto dots = static_cast<std::int64_t>(Written(run, 1).dots.size());
    Recorder sheet(1);
    RunCursor cursor(run, 1);
    EXPECT_EQ(cursor.AtEnd(), dots == 0) << NameOf(run);
    if (dots == 0) continue;
    EXPECT_EQ(cursor.Plot(sheet, dots - 1), dots - 1);
    EXPECT_FALSE(cursor.AtEnd()) << NameOf(run);
    EXPECT_EQ(cursor.Plot(sheet, 5), 1);
    EXPECT_TRUE(cursor.AtEnd()) << NameOf(run);
  }
}

TEST_F(RunCursorTest, ThatSkipsLeavesTheSameRegistersBitForBit) {
  for (const auto& run : kRuns) {
    for (const double step : {0.001, 0.01, 1.0}) {
      const Outcome whole = Written(run, step);
      Untouch();
      RunCursor cursor(run, step);
      EXPECT_EQ(cursor.Skip(), static_cast<std::int64_t>(whole.dots.size())) << NameOf(run);
      EXPECT_TRUE(cursor.AtEnd());
      cursor.LeaveLastPoint();
      for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(std::bit_cast<std::uint64_t>(Registers().at(i)),
                  std::bit_cast<std::uint64_t>(whole.registers.at(i)))
            << NameOf(run);
      }
    }
  }
}

TEST_F(RunCursorTest, PlotsTheSameDotsAfterSkippingSome) {
  for (const auto& run : kRuns) {
    const std::vector<Dot> whole = Written(run, 0.2).dots;
    if (whole.size() < 8) continue;
    Recorder sheet(0.2);
    RunCursor cursor(run, 0.2);
    EXPECT_EQ(cursor.Skip(7), 7);
    cursor.Plot(sheet);
    EXPECT_EQ(sheet.dots, (std::vector<Dot>(whole.begin() + 7, whole.end()))) << NameOf(run);
  }
}

TEST_F(RunCursorTest, LeavesTheRegistersAsIfTheRunHadEndedWhereItStands) {
  RunCursor cursor(
      {
          Primitive::SlantRight, {0, 40, 10, 60}
  },
      1);
  cursor.LeaveLastPoint();
  EXPECT_EQ(LastX2, kUntouched);
  cursor.Skip(3);
  cursor.LeaveLastPoint();
  EXPECT_EQ(LastX2, 40);
  EXPECT_EQ(LastY2, 13);
}

/// Fails at one dot, once.
class Faulty : public Recorder {
 public:
  explicit Faulty(std::size_t good) : Recorder(1), good_(good) {}
  void PSet(float x, float y) override {
    if (dots.size() == good_) {
      good_ = 0;
      throw std::runtime_error("no ink");
    }
    Recorder::PSet(x, y);
  }

 private:
  std::size_t good_;
};

TEST_F(RunCursorTest, StandsBeforeTheDotThatCouldNotBePlotted) {
  for (const auto& run : kRuns) {
    const std::vector<Dot> whole = Written(run, 1).dots;
    if (whole.size() < 5) continue;
    Faulty sheet(4);
    RunCursor cursor(run, 1);
    EXPECT_THROW(cursor.Plot(sheet), std::runtime_error);
    cursor.Plot(sheet);
    EXPECT_EQ(sheet.dots, whole) << NameOf(run);
  }
}

/// Wants runs and no dots.
class Listener : public Recorder {
 public:
  using Recorder::Recorder;
  bool WantsDots() const override { return false; }
};

TEST_F(RunTest, OnASurfaceThatWantsNoDotsLeavesTheSameRegisters) {
  for (const auto& run : kRuns) {
    const Outcome whole = Written(run, 0.2);
    Untouch();
    Listener sheet(0.2);
    WriteRun(sheet, run);
    EXPECT_TRUE(sheet.dots.empty());
    EXPECT_EQ(sheet.runs.size(), 1U);
    EXPECT_EQ(Registers(), whole.registers) << NameOf(run);
  }
}

}  // namespace
}  // namespace bramlee
