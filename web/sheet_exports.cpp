// Sheets for the page.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

#include "strokes/rules.h"
#include "strokes/run_recorder.h"
#include "web/exports.h"
#include "web/letters_shelf.h"
#include "web/sets.h"
#include "web/sheet.h"
#include "writing/page_numbers.h"

namespace bramlee {
namespace {

Shelf<WebSheet>& Sheets() {
  static Shelf<WebSheet> sheets;
  return sheets;
}

ColourWord WordOf(double colour) {
  return colour >= 0 && colour <= 0xFFFFFF ? static_cast<ColourWord>(colour) : 0;
}

std::int64_t CountOf(double most) {
  constexpr double kMost = 1e15;
  return most >= 0 && most <= kMost ? static_cast<std::int64_t>(most) : Player::kAll;
}

/// The grid for number 0.
Letter Ruling(const SetLook& look, int number, double step) {
  RunRecorder recorder(step);
  if (number == 0) {
    DrawGrid(recorder, look.gridExtent);
  } else {
    auto line = static_cast<std::int16_t>(number);
    DrawRules(recorder, look.ruleExtent, look.ruleLines, line);
  }
  return {{}, step, recorder.TakeRuns()};
}

}  // namespace

int MakeSheet() {
  return Sheets().Put(std::make_unique<WebSheet>());
}

void FreeSheet(int sheet) {
  Sheets().Free(sheet);
}

void AddLetter(int sheet, int handle, double colour, double scale, double right, double down) {
  WebSheet* found = Sheets().At(sheet);
  const Letter* letter = LettersOfPage().At(handle);
  if (found == nullptr || letter == nullptr || !(scale > 0 && scale <= 1)) return;
  found->Letters().Add({
      .letter = *letter,
      .colour = WordOf(colour),
      .placing = {.scale = scale, .right = right, .down = down}
  });
}

void AddRuling(int sheet, int set, int rule, double colour, double step) {
  WebSheet* found = Sheets().At(sheet);
  const SetLook* look = LookAt(set);
  if (found == nullptr || look == nullptr || !(step > 0)) return;
  found->Letters().Add({.letter = Ruling(*look, rule, step),
                        .colour = WordOf(colour),
                        .placing = {},
                        .ruling = true});
}

void ClearSheet(int sheet) {
  if (WebSheet* found = Sheets().At(sheet)) found->Clear();
}

double DotsDue(int sheet, double atUsualPace) {
  WebSheet* found = Sheets().At(sheet);
  constexpr double kMost = 1e9;  // hours
  if (found == nullptr || !(atUsualPace > 0 && atUsualPace <= kMost)) return 0;
  return static_cast<double>(found->Pen().DotsDue(atUsualPace));
}

double WriteDots(int sheet, double most) {
  WebSheet* found = Sheets().At(sheet);
  if (found == nullptr) return 0;
  return static_cast<double>(found->Pen().Write(CountOf(most)));
}

double WriteStrokeDots(int sheet, double most) {
  WebSheet* found = Sheets().At(sheet);
  return found == nullptr ? 0 : static_cast<double>(found->Pen().WriteStroke(CountOf(most)));
}

int StepBack(int sheet) {
  WebSheet* found = Sheets().At(sheet);
  return found != nullptr && found->Pen().StepBack() ? 1 : 0;
}

int StepToLetterStart(int sheet) {
  WebSheet* found = Sheets().At(sheet);
  return found != nullptr && found->Pen().StepToLetterStart() ? 1 : 0;
}

void LayRulings(int sheet) {
  if (WebSheet* found = Sheets().At(sheet)) found->Pen().LayRulings();
}

void SetRate(int sheet, double rate) {
  if (WebSheet* found = Sheets().At(sheet)) found->Pen().SetRate(rate);
}

void StandsAt(int sheet) {
  Result& result = NewResult();
  WebSheet* found = Sheets().At(sheet);
  if (found == nullptr) return;
  Player& pen = found->Pen();
  const Player::Where stands = pen.Stands();
  result.Add(static_cast<double>(stands.letter));
  result.Add(static_cast<double>(stands.stroke));
  result.Add(stands.begun ? 1 : 0);
  result.Add(pen.AtEnd() ? 1 : 0);
  result.Add(pen.BetweenStrokes() ? 1 : 0);
  result.Add(static_cast<double>(pen.StrokesWritten()));
  result.Add(pen.Rate());
}

void NumbersOnSheet(int sheet, double discRadius, double penHalfWidth, int leftHand) {
  Result& result = NewResult();
  WebSheet* found = Sheets().At(sheet);
  if (found == nullptr) return;
  const Player::Where first = FirstNumbered(found->Letters(), found->Pen().Stands());
  for (const PageNumber& number : NumbersOf(
           found->Letters(),
           {.discRadius = discRadius, .penHalfWidth = penHalfWidth, .hand = HandOf(leftHand)})) {
    if (number.letter < first.letter) continue;
    if (number.letter == first.letter && number.stroke < first.stroke) continue;
    result.Add(static_cast<double>(number.letter));
    result.Add(static_cast<double>(number.stroke));
    AddNumber(result, number.place);
  }
}

int CoverSheet(int sheet, double x, double y, double width, double height, double ratio,
               double ground) {
  WebSheet* found = Sheets().At(sheet);
  Result& result = NewResult();
  if (found == nullptr) return 0;
  const Box area{.x = x, .y = y, .width = width, .height = height};
  const bool covered =
      found->Cover(area, ratio, ground < 0 ? std::nullopt : std::optional(WordOf(ground)));
  result.Add(found->CoveredSize().width);
  result.Add(found->CoveredSize().height);
  return covered ? 1 : 0;
}

const std::uint32_t* PaintSheet(int sheet) {
  Result& result = NewResult();
  WebSheet* found = Sheets().At(sheet);
  if (found == nullptr) return nullptr;
  const PixelSize size = found->CoveredSize();
  if (size.width == 0) return nullptr;
  const PixelRect dirty = found->Paint();
  for (const int each : {size.width, size.height, dirty.x, dirty.y, dirty.width, dirty.height}) {
    result.Add(each);
  }
  return found->Picture().data();
}

void KeepDots(int sheet, int keep) {
  if (WebSheet* found = Sheets().At(sheet)) found->Ink().KeepDots(keep != 0);
}

const float* TakeDots(int sheet) {
  Result& result = NewResult();
  WebSheet* found = Sheets().At(sheet);
  if (found == nullptr) return nullptr;
  const auto& dots = found->Ink().TakeDots();
  const std::size_t count = dots.size() / 2;
  result.Add(static_cast<double>(count));
  for (const WebInk::PenChange& change : found->Ink().TakenChanges()) {
    result.Add(static_cast<double>(change.first));
    result.Add(change.colour);
  }
  return dots.data();
}

}  // namespace bramlee
