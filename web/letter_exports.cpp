// Letters and words for the page.
#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "companions/words/word_lines.h"
#include "strokes/run_track.h"
#include "strokes/stroke_dots.h"
#include "strokes/svg_path.h"
#include "strokes/word.h"
#include "strokes/writing_lines.h"
#include "web/exports.h"
#include "web/letters_shelf.h"
#include "web/sets.h"
#include "writing/timeline.h"

namespace bramlee {
namespace {

std::string& TextOfPage() {
  static std::string text;
  return text;
}

std::string_view TextOf(int bytes) {
  const std::string_view text = TextOfPage();
  return text.substr(0, static_cast<std::size_t>(std::max(bytes, 0)));
}

/// The letter, or one without runs.
const Letter& LetterAt(int handle) {
  static const Letter kNone;
  const Letter* letter = LettersOfPage().At(handle);
  return letter != nullptr ? *letter : kNone;
}

int Shelved(Letter letter) {
  return LettersOfPage().Put(std::make_unique<Letter>(std::move(letter)));
}

bool IsStep(double step) {
  return step >= kSpeedSteps[0] && step <= 1;
}

WordOptions OptionsOf(int headPerLetter, double step) {
  return {.headLine = headPerLetter != 0 ? HeadLine::PerLetter : HeadLine::Once,
          .step = IsStep(step) ? step : kUsualStep};
}

std::string LeftOutAsJson(const std::vector<LeftOut>& leftOut) {
  std::string list = "[";
  for (const LeftOut& each : leftOut) {
    if (list.size() > 1) list += ',';
    list += R"({"text":)" + Quoted(each.text) + R"(,"at":)" + std::to_string(each.at) + '}';
  }
  return list + ']';
}

std::string LettersAsJson(const std::vector<WordLetter>& letters) {
  std::string list = "[";
  for (const WordLetter& letter : letters) {
    if (list.size() > 1) list += ',';
    list += Quoted(letter.text);
  }
  return list + ']';
}

void AddWord(Result& result, Word word) {
  result.text += (result.text.empty() ? '[' : ',') + std::string(R"({"letters":)") +
                 LettersAsJson(word.letters) + R"(,"leftOut":)" + LeftOutAsJson(word.leftOut) + '}';
  result.Add(Shelved(std::move(word.letter)));
  result.Add(word.width);
  result.Add(static_cast<double>(word.letters.size()));
  for (const WordLetter& letter : word.letters) {
    result.Add(static_cast<double>(letter.firstStroke));
    result.Add(static_cast<double>(letter.strokes));
    result.Add(letter.left);
    result.Add(letter.right);
  }
}

/// Follows the runs from one index to another.
void Follow(SvgPath& path, const Letter& letter, const PenStroke& stroke) {
  bool begun = false;
  for (const Run& run : letter.Runs().subspan(stroke.firstRun, stroke.runs)) {
    const auto track = TrackOf(run, letter.Step());
    if (!track) continue;
    if (!begun) path.MoveTo(track->ends.begin);
    begun = true;
    path.Follow(*track);
  }
}

}  // namespace

Shelf<Letter>& LettersOfPage() {
  static Shelf<Letter> letters;
  return letters;
}

char* TextRoom(int bytes) {
  TextOfPage().resize(static_cast<std::size_t>(std::max(bytes, 0)));
  return TextOfPage().data();
}

const double* ResultNumbers() {
  return PresentResult().numbers.data();
}

int ResultCount() {
  return static_cast<int>(PresentResult().numbers.size());
}

const char* ResultText() {
  return PresentResult().text.data();
}

int ResultBytes() {
  return static_cast<int>(PresentResult().text.size());
}

int LetterOfTile(int set, int tile, int forms, int place, double step) {
  const SetLook* look = LookAt(set);
  if (look == nullptr || tile < 1 || tile > FindLetterSet(look->set)->tiles) return 0;
  const LetterId id{
      .set = look->set,
      .tile = tile,
      .form = {.alternative = (forms & static_cast<int>(WebForm::Alternative)) != 0,
               .place = place >= 1 && place <= 5 ? place : 0,
               .book = (forms & static_cast<int>(WebForm::Book)) != 0}
  };
  return Shelved(step == kUsualStep || !IsStep(step) ? LetterOf(id) : RecordTile(id, step));
}

void LayText(int bytes, double width, int headPerLetter, double step) {
  const WordOptions options = OptionsOf(headPerLetter, step);
  const std::string_view text = TextOf(bytes);
  Result& result = NewResult();
  if (width > 0) {
    for (Word& line : LayLines(text, width, options)) AddWord(result, std::move(line));
  } else {
    AddWord(result, LayWord(text, options));
  }
  result.text += ']';
}

void SetTextOn(int set, int bytes, int headPerLetter, double step) {
  const SetLook* look = LookAt(set);
  Result& result = NewResult();
  if (look == nullptr) return;
  const WritingLines lines = WritingLinesOf(look->set);
  const WordRoom room{.around = look->gridExtent, .head = lines.bodyTop, .base = lines.base};
  SetText text = SetWords(TextOf(bytes), OptionsOf(headPerLetter, step), room, kPenColour);
  result.text = LeftOutAsJson(text.leftOut);
  if (!text.letter) return;
  const Placing& placing = text.letter->placing;
  result.Add(Shelved(std::move(text.letter->letter)));
  for (const double each : {placing.scale, placing.right, placing.down}) result.Add(each);
}

void FreeLetter(int letter) {
  LettersOfPage().Free(letter);
}

void ShapeOfLetter(int handle) {
  Result& result = NewResult();
  const LetterShape& shape = LetterAt(handle).Shape();
  result.Add(shape.bounds);
  result.Add(shape.length);
  for (const StrokePath& stroke : shape.strokes) result.Add(stroke.length);
}

void RoughBoundsOfLetter(int handle) {
  constexpr double kRoughStep = 0.5;
  NewResult().Add(BoundsOf(LetterAt(handle).Runs(), kRoughStep).value_or(Box{}));
}

void PointsOfStroke(int handle, int stroke) {
  Result& result = NewResult();
  const auto& strokes = LetterAt(handle).Shape().strokes;
  if (stroke < 0 || stroke >= std::ssize(strokes)) return;
  for (const Point& point : strokes[static_cast<std::size_t>(stroke)].points) result.Add(point);
}

void PathOfLetter(int handle, int stroke) {
  const Letter& letter = LetterAt(handle);
  const auto strokes = letter.PenStrokes();
  SvgPath path({});
  for (int i = 0; i < std::ssize(strokes); ++i) {
    if (stroke == -1 || stroke == i) Follow(path, letter, strokes[static_cast<std::size_t>(i)]);
  }
  NewResult().text = path.Text();
}

double SecondsOfLetter(int letter, double rate) {
  return TimelineOf(LetterAt(letter), rate > 0 ? rate : 1).seconds;
}

void AddArrow(Result& result, const StrokeArrow& arrow) {
  result.Add(static_cast<double>(arrow.shaft.size()));
  for (const Point& point : arrow.shaft) result.Add(point);
  for (const Point& point : arrow.head) result.Add(point);
}

void AddNumber(Result& result, const StrokeNumber& number) {
  result.Add(number.centre);
  result.Add(number.radius);
  result.Add(number.clean ? 1 : 0);
  AddArrow(result, number.arrow);
}

void NumbersOfLetter(int handle, double discRadius, double penHalfWidth, int leftHand) {
  Result& result = NewResult();
  for (const StrokeNumber& number : PlaceNumbers(
           LetterAt(handle).Shape().strokes,
           {.discRadius = discRadius, .penHalfWidth = penHalfWidth, .hand = HandOf(leftHand)})) {
    AddNumber(result, number);
  }
}

void DotsOfLetter(int handle, double pitch, double diameter) {
  Result& result = NewResult();
  if (!(pitch > 0) || !(diameter > 0)) return;
  for (const auto& stroke :
       PlaceDots(LetterAt(handle).Shape().strokes, {.pitch = pitch, .diameter = diameter})) {
    result.Add(static_cast<double>(stroke.size()));
    for (const Point& dot : stroke) result.Add(dot);
  }
}

}  // namespace bramlee
