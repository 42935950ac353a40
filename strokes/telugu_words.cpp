// Telugu in words: a vowel sign takes the place of the consonant's tick or stands at its right
// foot, further consonants hang below the first.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>
#include <vector>

#include "strokes/code_table.h"
#include "strokes/telugu_anchors.h"
#include "strokes/telugu_signs.h"
#include "strokes/word.h"
#include "strokes/word_ink.h"

namespace bramlee {
namespace {

constexpr char32_t kVirama = 0xC4D;
constexpr char32_t kSsa = 0xC37;
constexpr char32_t kKa = 0xC15;
constexpr char32_t kYa = 0xC2F;
constexpr char32_t kAa = 0xC3E;
constexpr char32_t kI = 0xC3F;
constexpr char32_t kIi = 0xC40;
constexpr char32_t kU = 0xC41;
constexpr char32_t kUu = 0xC42;
constexpr char32_t kE = 0xC46;
constexpr char32_t kO = 0xC4A;
constexpr char32_t kOo = 0xC4B;
constexpr char32_t kAu = 0xC4C;
constexpr double kMargin = 13;  ///< of a letter with its signs, on both sides

/// A sign that stands on the head: the place on its tile that comes to the letter's head, or loop.
/// A part of its runs may stand below the letter.
struct HeadSign {
  char32_t code;
  int tile;
  Point at;
  double TeluguAnchors::*loop;  ///< where it stands instead of the head; null: there
  std::size_t runsAbove;        ///< the rest hangs below
};
constexpr std::size_t kAllRuns = 100;
constexpr HeadSign kHeadSigns[] = {
    {kAa,     16, {425, 315},   nullptr,              kAllRuns},
    {kI,      17, {225, 315},   &TeluguAnchors::loop, kAllRuns},
    {kIi,     18, {225, 315},   &TeluguAnchors::loop, kAllRuns},
    {kE,      23, {190.6, 316}, nullptr,              kAllRuns},
    {0xC47,   24, {440.6, 316}, nullptr,              kAllRuns}, // ే
    {0xC48,   25, {690.6, 316}, nullptr,              3       }, // ై
    {kO,      26, {175, 316},   nullptr,              kAllRuns},
    {kOo,     27, {425, 316},   nullptr,              kAllRuns},
    {kAu,     28, {690, 316},   nullptr,              kAllRuns},
    {kVirama, 36, {205, 316},   nullptr,              kAllRuns},
};

/// The sign of ai below: its right end on the tile.
constexpr double kRightOfAiBelow = 737.5;

/// A sign at the right foot or below it: the place on its tile that comes to the right end of the
/// letter's foot.
struct FootSign {
  char32_t code;
  int tile;
  double at;
};
constexpr FootSign kFootSigns[] = {
    {kU,    19, 214},
    {kUu,   20, 464},
    {0xC43, 21, 238}, // ృ
    {0xC44, 22, 488}, // ౄ
    {0xC62, 29, 200}, // ౢ
    {0xC63, 30, 450}, // ౣ
};

/// A sign that ends a syllable: on its tile it follows the letter a, which is this many runs.
struct EndSign {
  char32_t code;
  int tile;
};
constexpr std::size_t kRunsOfA = 4;
constexpr EndSign kEndSigns[] = {
    {0xC01, 34}, // ఁ
    {0xC02, 33}, // ం
    {0xC03, 35}, // ః
};
constexpr double kBeforeEndSign = 16;

struct Vowel {
  char32_t code;
  int tile;
};
constexpr Vowel kVowelTiles[] = {
    {0xC05, 1 },
    {0xC06, 2 },
    {0xC07, 3 },
    {0xC08, 4 },
    {0xC09, 5 },
    {0xC0A, 6 },
    {0xC0B, 7 },
    {0xC60, 8 },
    {0xC0E, 9 },
    {0xC0F, 10},
    {0xC10, 11},
    {0xC12, 12},
    {0xC13, 13},
    {0xC14, 14},
    {0xC0C, 31},
    {0xC61, 32},
};

// A sign that reaches out: how far right of the letter's body its ring hangs; which part of the
// body its bar leaves free at the left; how it lies on a letter whose back rises through it; and
// the level at which the last hook of a hooked letter goes over into it, with the length of the bar
// there.
constexpr double kRingBeyond = 48;
constexpr double kBarFrom = 0.15;
constexpr double kCurlFrom = 0.45;
constexpr double kLevelOfOpen = 365;
constexpr double kCurlOnOpen = 30;
constexpr double kLevelOfHook = 360;
constexpr double kBarOfHook = 70;

/// Forms below that begin higher than this stand at the right foot, the others under the letter.
constexpr double kFootLine = 470;
constexpr double kOverFoot = 8;  ///< how far they reach into the room of the letter

const Letter& VowelTile(int tile) {
  return LetterOf({.set = "telv", .tile = tile, .form = {.book = true}});
}

const Letter& ConsonantTile(int tile) {
  return LetterOf({.set = "telc", .tile = tile, .form = {.book = true}});
}

std::vector<std::size_t> Numbers(std::size_t from, std::size_t to) {
  std::vector<std::size_t> numbers;
  for (; from < to; ++from) numbers.push_back(from);
  return numbers;
}

std::vector<std::size_t> NoRuns() {
  return {};
}

/// The two runs of a letter's tick, if it has one: down to the right, then up.
std::vector<std::size_t> TickOf(const Letter& letter) {
  const auto runs = letter.Runs();
  for (std::size_t i = 0; i + 1 < runs.size(); ++i) {
    if (runs[i].primitive == Primitive::SlantRight &&
        runs[i + 1].primitive == Primitive::SlantUpRight) {
      return Numbers(i, i + 2);
    }
  }
  return {};
}

/// A letter with its signs, read from text and laid.
class Syllable {
 public:
  explicit Syllable(std::span<const TextCharacter> text) : text_(text) {}

  Cluster Read() {
    if (const Vowel* vowel = RecordOfCode(kVowelTiles, Code())) {
      Add(VowelTile(vowel->tile), {});
      hasLetter_ = true;
      ++at_;
    } else if (RecordOfCode(TeluguLetters(), Code()) != nullptr) {
      ReadConsonants();
      hasLetter_ = true;
    }
    ReadSigns();
    LayConsonants();
    LayEndSigns();
    GiveRoom();
    cluster_.characters = at_;
    return std::move(cluster_);
  }

 private:
  char32_t Code(std::size_t ahead = 0) const {
    return at_ + ahead < text_.size() ? text_[at_ + ahead].code : 0;
  }

  void Add(const Letter& letter, const Placing& placing,
           std::span<const std::size_t> without = {}) {
    cluster_.ink.Add(letter, placing, without);
  }

  void ReadConsonants() {
    letters_.push_back(RecordOfCode(TeluguLetters(), Code()));
    ++at_;
    while (Code() == kVirama) {
      const std::size_t joiner = Code(1) == kJoiner ? 1 : 0;
      const TeluguAnchors* next = RecordOfCode(TeluguLetters(), Code(1 + joiner));
      if (next == nullptr || next->below == 0) return;
      if (letters_.size() == 1 && letters_[0]->code == kKa && next->code == kSsa) {
        letters_[0] = &TeluguLetters().back();
      } else {
        letters_.push_back(next);
      }
      at_ += 2 + joiner;
    }
  }

  void ReadSigns() {
    for (; at_ < text_.size(); ++at_) {
      const char32_t code = Code();
      if (IsJoiner(code) && at_ > 0) continue;
      const bool isVowelSign =
          RecordOfCode(kHeadSigns, code) != nullptr || RecordOfCode(kFootSigns, code) != nullptr;
      const EndSign* end = RecordOfCode(kEndSigns, code);
      if (!isVowelSign && end == nullptr) return;
      const bool hasRoom = isVowelSign
                               ? sign_ == 0 && ends_.empty() && (!hasLetter_ || !letters_.empty())
                               : std::ranges::find(ends_, end) == ends_.end();
      if (!hasRoom) {
        cluster_.leftOut.push_back(text_[at_]);
      } else if (isVowelSign) {
        sign_ = code;
      } else {
        ends_.push_back(end);
      }
    }
  }

  void LayConsonants() {
    if (!letters_.empty() && letters_.front()->form == TeluguForm::Hooked) return LayHooked();
    LayConsonants(RecordOfCode(kHeadSigns, sign_), RecordOfCode(kFootSigns, sign_));
  }

  /// A letter whose last hook carries aa and au keeps its tick with them; o is e and a further
  /// hook, oo is e and aa. Ya has no loop of i: it loses its tick.
  void LayHooked() {
    const bool isYa = letters_.front()->code == kYa;
    const bool isHookCut = sign_ == kAa || sign_ == kOo || (isYa && sign_ == kIi);
    if (sign_ == kO)
      return LayConsonants(RecordOfCode(kHeadSigns, kE), RecordOfCode(kFootSigns, kU));
    if (!isHookCut && !(isYa && sign_ == kI)) {
      return LayConsonants(RecordOfCode(kHeadSigns, sign_), RecordOfCode(kFootSigns, sign_));
    }
    const TeluguAnchors& anchors = *letters_.front();
    const Letter& letter = ConsonantTile(anchors.tile);
    std::vector<std::size_t> without = sign_ == kAa ? std::vector<std::size_t>() : TickOf(letter);
    std::vector<Run> hook;
    if (isHookCut) hook = CutHook(letter, without);
    Add(letter, {}, without);
    cluster_.ink.AddStroke(hook);
    if (sign_ == kOo) LayHead(*RecordOfCode(kHeadSigns, kE), anchors);
    LayAllBelow(anchors, letter);
  }

  /// The letter's last bow and its back up to a level where a bar and a ring go on. Takes those
  /// runs into `without`.
  static std::vector<Run> CutHook(const Letter& letter, std::vector<std::size_t>& without) {
    const auto runs = letter.Runs();
    std::size_t back = runs.size() - 1;
    while (runs[back].primitive != Primitive::ArcStroke) --back;
    const auto& arc = runs[back].values;
    const Point centre{arc[3], arc[4]};
    const double angle = std::asin((centre.y - kLevelOfHook) / arc[5]);
    const double x = centre.x + arc[5] * std::cos(angle);
    std::vector<Run> hook = {
        runs[back - 1], ArcRun(arc[1], 360 + angle * 180 / std::numbers::pi, +1, centre, arc[5])};
    for (const Run& run : BarWithRing(x, kLevelOfHook, x + kBarOfHook)) hook.push_back(run);
    without.push_back(back - 1);
    without.push_back(back);
    return hook;
  }

  void LayConsonants(const HeadSign* head, const FootSign* foot) {
    if (letters_.empty()) {
      if (head != nullptr) Add(VowelTile(head->tile), {});
      if (foot != nullptr) Add(VowelTile(foot->tile), {});
      return;
    }
    const TeluguAnchors& anchors = *letters_.front();
    const Letter& letter = ConsonantTile(anchors.tile);
    Add(letter, {}, head != nullptr && !KeepsTick(anchors) ? TickOf(letter) : NoRuns());
    if (head != nullptr) LayHead(*head, anchors);
    LayAllBelow(anchors, letter);
    if (foot != nullptr) Add(VowelTile(foot->tile), {.right = right_ - foot->at});
  }

  void LayAllBelow(const TeluguAnchors& anchors, const Letter& letter) {
    right_ = anchors.foot.to;
    if (anchors.code == 0)
      right_ = letter.Bounds().x + letter.Bounds().width;  // it hangs below already
    for (std::size_t i = 1; i < letters_.size(); ++i) LayBelow(*letters_[i], anchors);
  }

  bool ReachesOut() const { return sign_ == kAa || sign_ == kO || sign_ == kOo || sign_ == kAu; }

  bool KeepsTick(const TeluguAnchors& anchors) const {
    return (anchors.form == TeluguForm::Ha && ReachesOut()) ||
           (anchors.form == TeluguForm::Hooked && sign_ == kAu);
  }

  /// The signs that reach out to the right.
  void LayReach(const TeluguAnchors& anchors) {
    if (anchors.form == TeluguForm::Ha && sign_ == kAa) {
      const Run bow = BowOfHaa(anchors.side, anchors.head.y);
      return cluster_.ink.AddStroke({&bow, 1});
    }
    const SignReach reach = ReachOver(anchors);
    cluster_.ink.AddStroke(sign_ == kAa   ? SignOfAa(reach)
                           : sign_ == kAu ? SignOfAu(reach)
                                          : SignOfO(reach, sign_ == kOo));
  }

  /// Over a letter that is round at its top the sign lies from its left to its right; the back of
  /// an open one rises through it; one without a tick has the sign where its last bow ends.
  SignReach ReachOver(const TeluguAnchors& anchors) const {
    const Letter& letter = ConsonantTile(anchors.tile);
    WordInk body;
    const std::vector<std::size_t> tick = TickOf(letter);
    body.Add(letter, {}, tick);
    const Box box = body.Bounds();
    const double right = box.x + box.width;
    SignReach reach{.bar = anchors.side,
                    .curl = anchors.side,
                    .level = anchors.head.y,
                    .ring = right + kRingBeyond};
    if (anchors.form == TeluguForm::Open) {
      reach = {
          .bar = box.x, .curl = box.x + kCurlOnOpen, .level = kLevelOfOpen, .ring = reach.ring};
    } else if (!tick.empty() && anchors.form == TeluguForm::Round) {
      reach.bar = box.x + kBarFrom * box.width;
      reach.curl = std::min(anchors.side, box.x + kCurlFrom * box.width);
      reach.level = box.y;
    }
    return reach;
  }

  void LayHead(const HeadSign& sign, const TeluguAnchors& anchors) {
    if (ReachesOut() && sign.code == sign_) return LayReach(anchors);
    const Letter& letter = VowelTile(sign.tile);
    const double x = sign.loop != nullptr ? anchors.*sign.loop : anchors.head.x;
    const std::size_t runs = letter.Runs().size();
    const std::size_t above = std::min(sign.runsAbove, runs);
    Add(letter, {.right = x - sign.at.x, .down = anchors.head.y - sign.at.y}, Numbers(above, runs));
    if (above == runs) return;
    const double middle = (anchors.foot.from + anchors.foot.to) / 2;
    const double right = (middle + anchors.foot.to) / 2 - kRightOfAiBelow;
    Add(letter, {.right = right}, Numbers(0, above));
  }

  void LayBelow(const TeluguAnchors& below, const TeluguAnchors& anchors) {
    const Letter& letter = ConsonantTile(below.below);
    const Box& ink = letter.Bounds();
    const double middle = (anchors.foot.from + anchors.foot.to) / 2;
    const bool atFoot = ink.y < kFootLine || right_ > anchors.foot.to;
    const double left = atFoot ? right_ - kOverFoot : middle - ink.width / 2;
    Add(letter, {.right = left - ink.x});
    if (atFoot) right_ = left + ink.width + 2 * kOverFoot;
  }

  void LayEndSigns() {
    for (const EndSign* end : ends_) {
      const Letter& letter = VowelTile(end->tile);
      WordInk sign;
      sign.Add(letter, {}, Numbers(0, kRunsOfA));
      const Box before = cluster_.ink.Bounds();
      const double left = before.x + before.width + (before.width > 0 ? kBeforeEndSign : 0);
      cluster_.ink.Append(sign, left - sign.Bounds().x);
    }
  }

  void GiveRoom() {
    const Box ink = cluster_.ink.Bounds();
    WordInk moved;
    moved.Append(cluster_.ink, kMargin - ink.x);
    cluster_.ink = std::move(moved);
    cluster_.width = cluster_.ink.Strokes() > 0 ? ink.width + 2 * kMargin : 0;
  }

  std::span<const TextCharacter> text_;
  std::size_t at_ = 0;
  Cluster cluster_;
  std::vector<const TeluguAnchors*> letters_;
  bool hasLetter_ = false;
  char32_t sign_ = 0;
  std::vector<const EndSign*> ends_;
  double right_ = 0;  ///< where the next thing at the right foot begins
};

}  // namespace

Cluster ReadTelugu(std::span<const TextCharacter> text) {
  return Syllable(text).Read();
}

}  // namespace bramlee
