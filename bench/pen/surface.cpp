// What a dot costs on the sheet of a board, beside the same dots drawn by QPainter and beside the
// bare loop that works out their places; at the end how the three compare. All offscreen and
// without the pace. QT_SCALE_FACTOR=2 in the environment measures pixel ratio 2.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "board/sheet.h"
#include "engine/primitives.h"

namespace bramlee {
namespace {

constexpr QSize kSheetSize(1366, 700);
constexpr int kRepetitions = 9;
constexpr double kSteps[] = {0.01, 0.2, 1};

// Strokes as long as a capital's. They go to every surface by the same call, through the engine.

void WriteLines(DrawingSurface& sheet) {
  LineRight(sheet, 425.3, 150.2, 575);
  LineDown(sheet, 425.3, 150.2, 350);
  SlantRight(sheet, 37, 625, 150.7, 350);
}

void WriteArcs(DrawingSurface& sheet) {
  ArcStroke(sheet, +1, 0, 60, 300, 925.4, 250.1, 100);
  ArcStroke(sheet, -1, 0, 90, -90, 525, 200.6, 50);
}

using Strokes = void (*)(DrawingSurface&);

/// Only adds up where the dots would lie.
class BareLoop : public DrawingSurface {
 public:
  explicit BareLoop(double step) : step_(step) {}
  void PSet(float x, float y) override {
    sum_ += x + y;
    ++dots_;
  }
  double Step() const override { return step_; }
  double Sum() const { return static_cast<double>(sum_); }
  int Dots() const { return dots_; }

 private:
  double step_;
  float sum_ = 0;
  int dots_ = 0;
};

/// Draws each dot with a round-capped pen.
class PainterPoints : public DrawingSurface {
 public:
  explicit PainterPoints(double step)
      : step_(step), image_(kSheetSize * qApp->devicePixelRatio(), QImage::Format_RGB32) {
    image_.setDevicePixelRatio(qApp->devicePixelRatio());
    image_.fill(Qt::white);
    painter_.begin(&image_);
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(QPen(Qt::red, kDrawWidth, Qt::SolidLine, Qt::RoundCap));
  }
  void PSet(float x, float y) override {
    painter_.drawPoint(QPointF(static_cast<double>(x), static_cast<double>(y)));
  }
  double Step() const override { return step_; }

 private:
  double step_;
  QImage image_;
  QPainter painter_;
};

int DotsOf(Strokes strokes, double step) {
  BareLoop loop(step);
  strokes(loop);
  return loop.Dots();
}

void CountDots(benchmark::State& state, int dots) {
  using benchmark::Counter;
  state.counters["per_dot"] = Counter(dots, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

void MeasureBareLoop(benchmark::State& state, Strokes strokes, double step) {
  BareLoop loop(step);
  for ([[maybe_unused]] auto turn : state) strokes(loop);
  benchmark::DoNotOptimize(loop.Sum());
  CountDots(state, DotsOf(strokes, step));
}

void MeasurePainter(benchmark::State& state, Strokes strokes, double step) {
  PainterPoints points(step);
  for ([[maybe_unused]] auto turn : state) strokes(points);
  CountDots(state, DotsOf(strokes, step));
}

/// Letters add up on a sheet until it is wiped, which is no part of writing.
void MeasureSheet(benchmark::State& state, Strokes strokes, double step) {
  constexpr int kLettersToAWipe = 100;
  QLineEdit box(QString::number(step));
  Sheet sheet;
  sheet.SetStepBox(&box);
  sheet.resize(kSheetSize);
  sheet.grab();
  strokes(sheet);
  int letters = 0;
  for ([[maybe_unused]] auto turn : state) {
    strokes(sheet);
    if (++letters % kLettersToAWipe != 0) continue;
    state.PauseTiming();
    sheet.Wipe();
    state.ResumeTiming();
  }
  CountDots(state, DotsOf(strokes, step));
}

/// Keeps the figures for the comparison.
class Keeper : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& /*context*/) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      const double perDot = run.counters.at("per_dot").value * 1e9;
      const auto [best, isFirst] = best_.emplace(run.run_name.function_name, perDot);
      best->second = std::min(best->second, perDot);
    }
  }

  /// Nanoseconds, in the repetition that was disturbed least.
  double PerDot(const std::string& name) const { return best_.at(name); }

 private:
  std::map<std::string, double> best_;
};

struct Task {
  const char* name;
  Strokes strokes;
};
constexpr Task kTasks[] = {
    {"lines", WriteLines},
    {"arcs",  WriteArcs }
};

std::string NameOf(const char* surface, const Task& task, double step) {
  return std::string(surface) + "/" + task.name + "/" + QString::number(step).toStdString();
}

void RegisterAll() {
  for (const Task& task : kTasks) {
    for (const double step : kSteps) {
      const auto add = [&](const char* surface, auto measure) {
        benchmark::RegisterBenchmark(NameOf(surface, task, step).c_str(), measure, task.strokes,
                                     step)
            ->MinTime(0.05)
            ->Repetitions(kRepetitions);
      };
      add("sheet", MeasureSheet);
      add("bare loop", MeasureBareLoop);
      add("drawPoint", MeasurePainter);
    }
  }
}

void PrintComparison(const Keeper& keeper) {
  std::printf("\nPixel ratio %g, nanoseconds a dot (best of %d)\n", qApp->devicePixelRatio(),
              kRepetitions);
  std::printf("%-6s %5s %8s %10s %10s %12s %14s\n", "", "step", "sheet", "bare loop", "drawPoint",
              "to the loop", "than drawPoint");
  for (const Task& task : kTasks) {
    for (const double step : kSteps) {
      const double sheet = keeper.PerDot(NameOf("sheet", task, step));
      const double loop = keeper.PerDot(NameOf("bare loop", task, step));
      const double points = keeper.PerDot(NameOf("drawPoint", task, step));
      std::printf("%-6s %5g %8.2f %10.2f %10.1f %10.2f x %7.1f x less\n", task.name, step, sheet,
                  loop, points, sheet / loop, points / sheet);
    }
  }
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  bramlee::RegisterAll();
  bramlee::Keeper keeper;
  benchmark::RunSpecifiedBenchmarks(&keeper);
  bramlee::PrintComparison(keeper);
  return 0;
}
