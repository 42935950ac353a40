// What the page may know of the sets before it writes anything.
#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "letters/letter_names.h"
#include "letters/letter_sets.h"
#include "strokes/set_looks.h"
#include "strokes/writing_lines.h"
#include "web/exports.h"
#include "web/result.h"
#include "web/sets.h"
#include "writing/timeline.h"
#include "writing/tracer.h"

namespace bramlee {
namespace {

/// An object in JSON, field by field.
class JsonObject {
 public:
  void Add(std::string_view name, std::string value) {
    text_ += text_.empty() ? "{" : ",";
    text_ += Quoted(name) + ':' + std::move(value);
  }
  void AddText(std::string_view name, std::string_view value) { Add(name, Quoted(value)); }
  void AddFlag(std::string_view name, bool value) { Add(name, value ? "true" : "false"); }
  void AddNumber(std::string_view name, long value) { Add(name, std::to_string(value)); }
  std::string Text() const { return text_ + '}'; }

 private:
  std::string text_;
};

/// A list in JSON of what `each` makes of the entries.
template <class Entries, class Each>
std::string ListOf(const Entries& entries, Each each) {
  std::string list = "[";
  for (const auto& entry : entries) {
    if (list.size() > 1) list += ',';
    list += each(entry);
  }
  return list + ']';
}

std::string NumbersOf(const auto& numbers) {
  return ListOf(numbers, [](auto number) { return std::to_string(number); });
}

std::string NamesOf(const auto& values) {
  return ListOf(values, [](auto value) { return Quoted(NameOf(value)); });
}

/// Around what grid and rules take up.
Box SheetOf(const SetLook& look) {
  const SheetExtent& grid = look.gridExtent;
  const SheetExtent& rules = look.ruleExtent;
  const double left = std::min(grid.left, rules.left);
  const double top = std::min(grid.top, rules.top);
  return {.x = left,
          .y = top,
          .width = std::max(grid.right, rules.right) - left,
          .height = std::max(grid.bottom, rules.bottom) - top};
}

std::string TileAsJson(const SetLook& look, const LetterSet& set, int tile) {
  JsonObject object;
  object.AddText("printed", PrintedLetter(look.set, tile));
  object.AddText("name", LetterName(look.set, tile));
  object.AddText("bookPrinted", PrintedLetter(look.set, tile, true));
  object.AddText("bookName", LetterName(look.set, tile, true));
  object.AddText("lettering", ShowsLettering(look.set, tile) ? kHindiLettering : "");
  object.AddFlag("alternative", HasSecondForm(set, tile));
  object.AddFlag("book", HasBookForm(set, tile));
  object.AddFlag("startsGroup",
                 std::ranges::find(look.groupStarts, tile) != look.groupStarts.end());
  return object.Text();
}

}  // namespace

void CommonFacts() {
  Result& result = NewResult();
  JsonObject object;
  object.AddNumber("sets", std::ssize(kSetLooks));
  object.AddNumber("hindiSetTiles", kHindiSetTiles);
  object.AddNumber("pen", kPenColour);
  object.AddNumber("ruling", kRulingColour);
  object.Add("colours", NumbersOf(kMenuColours));
  object.Add("levels", NamesOf(kTraceLevels));
  result.text = object.Text();
  for (const double number : {kDotsPerSecond, kUsualStep, kLeastRadiusMm}) result.Add(number);
  for (const double step : kSpeedSteps) result.Add(step);
}

void FactsOfSet(int index) {
  Result& result = NewResult();
  const SetLook* look = LookAt(index);
  if (look == nullptr) return;
  const LetterSet& set = *FindLetterSet(look->set);
  JsonObject object;
  object.AddText("name", look->set);
  object.AddText("subject", look->subject);
  object.AddText("title", look->title);
  object.AddNumber("subjectColour", look->subjectColour);
  object.AddNumber("ink", look->tileInk);
  object.AddNumber("tileGround", look->tileGround);
  object.AddNumber("ground", look->sheet);
  object.AddNumber("tiles", set.tiles);
  object.AddNumber("digits", set.digits);
  object.AddFlag("rulesComeBack", look->rulesComeBack);
  result.text = object.Text();
  const WritingLines lines = WritingLinesOf(look->set);
  for (const double y : {lines.top, lines.middle, lines.base, lines.foot, lines.bodyTop}) {
    result.Add(y);
  }
  result.Add(SheetOf(*look));
}

void TilesOfSet(int index) {
  Result& result = NewResult();
  const SetLook* look = LookAt(index);
  if (look == nullptr) return;
  const LetterSet& set = *FindLetterSet(look->set);
  for (int tile = 1; tile <= set.tiles; ++tile) {
    result.text += (tile == 1 ? '[' : ',') + TileAsJson(*look, set, tile);
  }
  result.text += ']';
}

}  // namespace bramlee
