// What a point of the pen costs the tracer: nanoseconds a point of a 240 Hz pen that traces every
// letter, best of several rounds, with what is said when the pen is lifted apart.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "letters/letter_sets.h"
#include "strokes/letter.h"
#include "writing/tracer.h"

namespace bramlee {
namespace {

constexpr int kRounds = 7;
/// How far a pen goes between two points, in sheet pixels: a slow one, a usual one, a fast one.
constexpr std::size_t kPixels[] = {1, 3, 10};

using Clock = std::chrono::steady_clock;

struct Cost {
  double points = 0;
  double ofPoints = 0;  ///< nanoseconds in all
  double lifts = 0;
  double ofLifts = 0;  ///< the same
};

void Trace(const std::vector<GuideStroke>& guide, std::size_t every, Cost& cost) {
  Tracer tracer(guide);
  for (const GuideStroke& stroke : guide) {
    const auto begin = Clock::now();
    tracer.Down(stroke.points.front());
    for (std::size_t i = 0; i < stroke.points.size(); i += every) tracer.Move(stroke.points[i]);
    tracer.Move(stroke.points.back());
    const auto lift = Clock::now();
    tracer.Up();
    const auto end = Clock::now();
    cost.points += static_cast<double>(stroke.points.size() / every + 2);
    cost.ofPoints += std::chrono::duration<double, std::nano>(lift - begin).count();
    cost.lifts += 1;
    cost.ofLifts += std::chrono::duration<double, std::nano>(end - lift).count();
  }
}

std::vector<std::vector<GuideStroke>> EveryGuide() {
  std::vector<std::vector<GuideStroke>> guides;
  for (const LetterSet& set : LetterSets()) {
    for (int tile = 1; tile <= set.tiles; ++tile) {
      guides.push_back(GuideOf(LetterOf({.set = set.name, .tile = tile, .form = {}})));
    }
  }
  return guides;
}

void Print() {
  const auto guides = EveryGuide();
  std::printf("%-14s %10s %14s %14s\n", "pixels a point", "points", "ns a point", "us a lift");
  for (const std::size_t every : kPixels) {
    double point = 1e9;
    double lift = 1e9;
    Cost cost;
    for (int round = 0; round < kRounds; ++round) {
      cost = {};
      for (const auto& guide : guides) Trace(guide, every, cost);
      point = std::min(point, cost.ofPoints / cost.points);
      lift = std::min(lift, cost.ofLifts / cost.lifts / 1000);
    }
    std::printf("%-14zu %10.0f %14.0f %14.1f\n", every, cost.points, point, lift);
  }
}

}  // namespace
}  // namespace bramlee

int main() {
  bramlee::Print();
  return 0;
}
