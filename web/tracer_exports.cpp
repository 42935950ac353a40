// Tracers for the page.
#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "web/exports.h"
#include "web/letters_shelf.h"
#include "writing/trace_way.h"
#include "writing/tracer.h"

namespace bramlee {
namespace {

Shelf<Tracer>& Tracers() {
  static Shelf<Tracer> tracers;
  return tracers;
}

TraceLevel LevelOf(int level) {
  const bool isLevel = level >= 0 && level < std::ssize(kTraceLevels);
  return isLevel ? kTraceLevels[level] : TraceLevel::Normal;
}

}  // namespace

int MakeTracer(int level) {
  return Tracers().Put(std::make_unique<Tracer>(std::vector<GuideStroke>(), LevelOf(level)));
}

void FreeTracer(int tracer) {
  Tracers().Free(tracer);
}

void AddToTracer(int tracer, int handle, double scale, double right, double down) {
  Tracer* found = Tracers().At(tracer);
  const Letter* letter = LettersOfPage().At(handle);
  if (found == nullptr || letter == nullptr) return;
  std::vector<GuideStroke> strokes(found->Strokes().begin(), found->Strokes().end());
  std::ranges::move(GuideOf(*letter, {.scale = scale, .right = right, .down = down}),
                    std::back_inserter(strokes));
  *found = Tracer(std::move(strokes), found->Level());
}

void PenDown(int tracer, double x, double y) {
  if (Tracer* found = Tracers().At(tracer)) found->Down({x, y});
}

void PenMove(int tracer, double x, double y) {
  if (Tracer* found = Tracers().At(tracer)) found->Move({x, y});
}

void PenUp(int tracer) {
  Result& result = NewResult();
  Tracer* found = Tracers().At(tracer);
  if (found == nullptr) return;
  const auto judgement = found->Up();
  if (!judgement) return;
  result.text = R"({"stroke":)" + std::to_string(judgement->stroke) + R"(,"verdict":)" +
                Quoted(NameOf(judgement->verdict)) + R"(,"misses":)" +
                std::to_string(judgement->misses) + R"(,"help":)" +
                Quoted(NameOf(judgement->help)) + '}';
  result.Add(judgement->progress);
}

void PenCancel(int tracer) {
  if (Tracer* found = Tracers().At(tracer)) found->Cancel();
}

void WriteForChild(int tracer) {
  if (Tracer* found = Tracers().At(tracer)) found->WriteForChild();
}

void SetLevel(int tracer, int level) {
  if (Tracer* found = Tracers().At(tracer)) found->SetLevel(LevelOf(level));
}

void SetLeastRadius(int tracer, double sheetPixels) {
  if (Tracer* found = Tracers().At(tracer)) found->SetLeastRadius(sheetPixels);
}

void TracerState(int tracer) {
  Result& result = NewResult();
  const Tracer* found = Tracers().At(tracer);
  if (found == nullptr) return;
  result.Add(static_cast<double>(found->Strokes().size()));
  result.Add(static_cast<double>(found->Stroke()));
  result.Add(found->Progress());
  result.Add(found->Misses());
  result.Add(found->Helped());
  result.Add(found->PlaceToGoOn());
  result.Add(found->Reach());
  result.Add(static_cast<double>(found->Level()));
  result.Add(static_cast<double>(found->Pen()));
  result.Add(static_cast<double>(found->HelpDue()));
}

void GuideOfTracer(int tracer, int stroke) {
  Result& result = NewResult();
  const Tracer* found = Tracers().At(tracer);
  if (found == nullptr || stroke < 0 || stroke >= std::ssize(found->Strokes())) return;
  for (const Point& point : found->Strokes()[static_cast<std::size_t>(stroke)].points) {
    result.Add(point);
  }
}

void RestOfTracer(int tracer) {
  Result& result = NewResult();
  const Tracer* found = Tracers().At(tracer);
  if (found == nullptr) return;
  for (const Point& point : RestOfStroke(*found)) result.Add(point);
}

void ArrowOfTracer(int tracer, int leftHand) {
  Result& result = NewResult();
  const Tracer* found = Tracers().At(tracer);
  if (found == nullptr) return;
  AddArrow(result, ArrowToGoOn(RestOfStroke(*found), HandOf(leftHand)));
}

}  // namespace bramlee
