// Hindi in words: consonants joined, vowel signs before, behind, above and below, marks on top. The
// head line is left out of the letters; the word draws it.
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "strokes/code_table.h"
#include "strokes/hindi_anchors.h"
#include "strokes/hindi_text.h"
#include "strokes/word.h"
#include "strokes/word_ink.h"

namespace bramlee {
namespace {

constexpr int kTilesOfASet = kHindiSetTiles;
constexpr int kKhaTile = 2;
constexpr int kDaTile = 18;
constexpr int kRaTile = 27;
constexpr int kShaTile = 30;
constexpr int kHaTile = 33;
constexpr int kRephTile = 64;

/// A sign in sheet pixels of its own tile, and the place there that comes to its letter's: on the
/// head line for one above, at its top for one below, where the sign's own shape meets the letter.
struct HangingSign {
  char32_t code;
  int tile;
  Point at;
  std::size_t firstRun = 0;  ///< the runs before it are left out
};
/// In words e has the long mark of ai, as in print and in writing books: the short one of its own
/// tile is hardly seen above a whole word.
constexpr std::size_t kLongMark = 2;
constexpr HangingSign kAbove[] = {
    {hindi::kE, 22,      {502.5, kWordHead}, kLongMark},
    {hindi::kAi,         22,       {497.5, kWordHead}              },
    {hindi::kMoon,         27,     {725, kWordHead}},
    {hindi::kDotAbove,         25, {225, kWordHead + 15}          },
    {hindi::kArcAbove,         27, {725, kWordHead}},
};
constexpr HangingSign kBelow[] = {
    {hindi::kU,    18, {225, kWordBase}      },
    {hindi::kUu,   19, {475, kWordBase + 4}  },
    {hindi::kRi,   20, {730, kWordBase}      },
    {hindi::kMark, 28, {960, kWordBase + 7.5}},
};

/// A sign behind its letter: its room and its stem, as its tile has them.
struct SignBehind {
  char32_t code;
  int tile;
  double left, right;
  double stem;
  std::size_t firstRun = 0;  ///< as of a sign that hangs
};
constexpr SignBehind kBehind[] = {
    {hindi::kAa,     15, 450,       500,         475   },
    {hindi::kIi,     17, 1000,      1050,        1025  },
    {hindi::kMoonAa, 15, 450,       500,         475   },
    {hindi::kO,      24, 978.7,     1028.7,      1003.7, kLongMark},
    {hindi::kAu,              24,       978.7, 1028.7, 1003.7},
};

// The sign of i: its room, its stem, and the hood that reaches over the letter behind it. It is as
// high as on its tile, and at least as wide; there it ends so far above the head line.
constexpr double kRoomOfI = 50;
constexpr double kStemOfI = 25;
constexpr double kHoodHeight = 48;
constexpr double kLeastHood = 75;
constexpr double kHoodEnd = kWordHead - 5.625;

constexpr double kRoomOfDots = 50;  ///< of the two dots beside a letter; they stand in its middle
constexpr double kRoomOfStop = 60;

/// Marks stand so far right of a sign above that takes their place.
constexpr double kAsideOfSign = 22;
constexpr double kAsideOfReph = 34;

/// The reph: where its hook stands on the head line.
constexpr HangingSign kReph = {
    0, kRephTile, {444, kWordHead}
};

/// The dot below, from where signs below hang: to the left under the bowl of a letter with a stem,
/// straight below another.
constexpr Point kDotAtStem = {-40, -8};
constexpr Point kDotAtRound = {-6, 26};
constexpr Point kDotUnderKha = {-48, 25};        ///< whose body reaches down to the base
constexpr Point kDot = {225, kWordHead - 22.5};  ///< the middle of the dot on its tile

constexpr double kLoneMargin = 12;  ///< on both sides of a sign that stands alone

const Letter& SignLetter(int tile, bool book = true) {
  return LetterOf({.set = "hinv", .tile = tile, .form = {.book = book}});
}

const Letter& ConsonantLetter(int tile) {
  return LetterOf({.set = "hinc", .tile = tile, .form = {.book = true}});
}

/// The runs of a letter that are its head line.
std::vector<std::size_t> HeadLineOf(const Letter& letter) {
  std::vector<std::size_t> runs;
  for (std::size_t i = 0; i < letter.Runs().size(); ++i) {
    const Run& run = letter.Runs()[i];
    if (run.primitive == Primitive::LineRight && run.values[1] == kWordHead) runs.push_back(i);
  }
  return runs;
}

/// Adds the letter's runs from one to another to a stroke.
void AddRuns(std::vector<Run>& stroke, const Letter& letter, std::size_t from, std::size_t to) {
  const auto runs = letter.Runs().subspan(from, to - from);
  stroke.insert(stroke.end(), runs.begin(), runs.end());
}

/// Ha, da and sha have a shape of their own with the sign of vocalic r, drawn after Lohit
/// Devanagari: in ha the sign lies in the lower bow, da has it at a straight tail, and sha is that
/// of shra. As pen strokes where the consonant's tile stands; none for another consonant.
std::vector<std::vector<Run>> ShapeWithRi(int tile) {
  constexpr int kShraTile = kShaTile + (kHindiFootSet - 1) * kTilesOfASet;
  const Letter& letter = ConsonantLetter(tile == kShaTile ? kShraTile : tile);
  std::vector<std::vector<Run>> strokes(2);
  switch (tile) {
    case kHaTile:
      AddRuns(strokes[0], letter, 0, 3);
      strokes[1] = {ArcRun(290, 90, -1, {1003, 443}, 13), ArcRun(-90, 40, +1, {1003, 418.3}, 11.8),
                    ArcRun(40, 292, +1, {984, 435.25}, 37.5)};
      return strokes;
    case kDaTile:
      AddRuns(strokes[0], letter, 0, 4);
      strokes[0].push_back(MakeRun(Primitive::SlantRight, std::array{25.0, 763.8, 442.5, 472.0}));
      strokes[0].push_back(MakeRun(Primitive::LineLeft, std::array{764.0, 472.0, 777.5}));
      strokes[0].push_back(ArcRun(90, 300, +1, {764, 491}, 19));
      strokes.pop_back();
      return strokes;
    case kShaTile:
      AddRuns(strokes[0], letter, 0, 3);
      AddRuns(strokes[1], letter, 3, 4);
      strokes[1].push_back(ArcRun(90, 300, +1, {275, 494}, 19));
      return strokes;
    default:
      return {};
  }
}

/// Lays one syllable from left to right.
class Layout {
 public:
  explicit Layout(HindiSyllable syllable) : syllable_(std::move(syllable)) {}

  Cluster Lay() {
    if (syllable_.sign == hindi::kI) LeaveRoomForI();
    LayLetters();
    if (syllable_.sign == hindi::kI) WriteI();
    LayBehind();
    if (!hasRi_ && !WriteUOnRa()) LayHanging(kBelow, foot_);
    if (syllable_.sign == hindi::kDotBelow) AddDotBelow(foot_);
    LayAbove();
    if (syllable_.dotsBeside) LayDotsBeside();
    if (syllable_.consonants.empty() && syllable_.vowel == nullptr) GiveLoneRoom();
    cluster_.width = x_;
    cluster_.characters = syllable_.characters;
    cluster_.leftOut = std::move(syllable_.leftOut);
    return std::move(cluster_);
  }

 private:
  /// A sign that stands alone has room around its ink.
  void GiveLoneRoom() {
    const Box ink = cluster_.ink.Bounds();
    Reach around{.from = ink.x, .to = ink.x + ink.width};
    for (const Reach& reach : cluster_.head) {
      around.from = std::min(around.from, reach.from), around.to = std::max(around.to, reach.to);
    }
    const double right = kLoneMargin - around.from;
    WordInk moved;
    moved.Append(cluster_.ink, right);
    cluster_.ink = std::move(moved);
    for (Reach& reach : cluster_.head) reach.from += right, reach.to += right;
    x_ = around.to - around.from + 2 * kLoneMargin;
  }

  void Add(const Letter& letter, double right, double down = 0, std::size_t firstRun = 0) {
    std::vector<std::size_t> without = HeadLineOf(letter);
    for (std::size_t i = 0; i < firstRun; ++i) without.push_back(i);
    cluster_.ink.Add(letter, {.right = right, .down = down}, without);
  }

  void AddHead(double from, double to) { cluster_.head.push_back({.from = from, .to = to}); }

  void LayLetters() {
    if (syllable_.vowel != nullptr) LayVowel(*syllable_.vowel);
    for (const HindiConsonant& each : syllable_.consonants) LayConsonant(each);
  }

  void LayVowel(const HindiVowelAnchors& vowel) {
    const double right = x_ - vowel.left;
    Add(SignLetter(vowel.tile), right);
    AddHead(vowel.headFrom + right, vowel.right + right);
    head_ = vowel.head + right;
    x_ = vowel.right + right;
  }

  void LayConsonant(const HindiConsonant& consonant) {
    const HindiConsonantAnchors& anchors = *consonant.letter;
    const bool half = consonant.join == HindiJoin::Half && !consonant.withR;
    const int set = consonant.withR ? kHindiFootSet : half ? kHindiHalfSet : 1;
    const Letter& letter = ConsonantLetter(anchors.tile + (set - 1) * kTilesOfASet);
    const double right = x_ - anchors.left;
    const double end = half ? anchors.halfRight : anchors.right;
    if (!AddShapeWithRi(consonant, right)) Add(letter, right);
    AddHead(anchors.headFrom + right, end + right);
    head_ = anchors.head + right;
    foot_ = {anchors.foot.x + right, anchors.foot.y};
    if (consonant.withR) foot_.y = std::max(foot_.y, letter.Bounds().y + letter.Bounds().height);
    if (consonant.dotBelow) {
      const bool hasStem = anchors.foot.x == anchors.head;
      const Point dot = anchors.tile == kKhaTile ? kDotUnderKha
                        : hasStem                ? kDotAtStem
                                                 : kDotAtRound;
      AddDotBelow({foot_.x + dot.x, foot_.y + dot.y});
    }
    if (consonant.join == HindiJoin::Mark) Hang(*RecordOfCode(kBelow, hindi::kMark), foot_);
    x_ = end + right;
  }

  bool AddShapeWithRi(const HindiConsonant& consonant, double right) {
    if (syllable_.sign != hindi::kRi || consonant.withR || consonant.join != HindiJoin::None)
      return false;
    WordInk shape;
    for (const std::vector<Run>& stroke : ShapeWithRi(consonant.letter->tile))
      shape.AddStroke(stroke);
    cluster_.ink.Append(shape, right);
    hasRi_ = shape.Strokes() > 0;
    return hasRi_;
  }

  void AddDotBelow(Point middle) {
    Add(SignLetter(RecordOfCode(kAbove, hindi::kDotAbove)->tile), middle.x - kDot.x,
        middle.y - kDot.y);
  }

  void LeaveRoomForI() {
    AddHead(x_, x_ + kRoomOfI);
    x_ += kRoomOfI;
  }

  /// One movement: over the letter to the left, then down.
  void WriteI() {
    const double stem = kStemOfI;
    const double width = std::max(head_ - stem, kLeastHood);
    const double radius = (width * width / 4 + kHoodHeight * kHoodHeight) / (2 * kHoodHeight);
    const double aside = std::asin(width / 2 / radius) * 180 / std::numbers::pi;
    const double open = kHoodHeight > radius ? 180 - aside : aside;
    const Point centre = {stem + width / 2, kHoodEnd - kHoodHeight + radius};
    const Run strokes[] = {
        ArcRun(90 - open, 90 + open, +1, centre, radius),
        MakeRun(Primitive::LineDown, std::array{stem, kWordHead, kWordBase}),
    };
    WordInk before;
    before.AddStroke(strokes);
    before.Append(cluster_.ink, 0);
    cluster_.ink = std::move(before);
  }

  void LayBehind() {
    const SignBehind* sign = RecordOfCode(kBehind, syllable_.sign);
    if (sign == nullptr) return;
    const double right = x_ - sign->left;
    Add(SignLetter(sign->tile), right, 0, sign->firstRun);
    AddHead(x_, sign->right + right);
    head_ = sign->stem + right;
    if (sign->code == hindi::kMoonAa) syllable_.moon = true;
    x_ = sign->right + right;
  }

  /// A sign of the table, if the syllable has one, at that place.
  void LayHanging(std::span<const HangingSign> signs, Point at) {
    const HangingSign* sign = RecordOfCode(signs, syllable_.sign);
    if (sign == nullptr) return;
    Hang(*sign, at);
  }

  void Hang(const HangingSign& sign, Point at) {
    Add(SignLetter(sign.tile), at.x - sign.at.x, at.y - sign.at.y, sign.firstRun);
  }

  /// Ra has the signs of u and uu in its middle, right of its slant, and they are shaped for that.
  bool WriteUOnRa() {
    const bool isU = syllable_.sign == hindi::kU;
    const bool isUu = syllable_.sign == hindi::kUu;
    const bool onRa =
        !syllable_.consonants.empty() && syllable_.consonants.back().letter->tile == kRaTile;
    if (!onRa || !(isU || isUu)) return false;
    const double x = foot_.x + 5;
    const double y = foot_.y - 63;
    std::vector<Run> sign = {ArcRun(190, isU ? -110 : 0, -1, {x, y}, isU ? 28 : 24)};
    if (isUu) sign.push_back(ArcRun(180, 290, +1, {x + 48, y}, 24));
    cluster_.ink.AddStroke(sign);
    return true;
  }

  void LayAbove() {
    double aside = 0;
    LayHanging(kAbove, {head_, kWordHead});
    if (syllable_.moon) {
      Add(SignLetter(RecordOfCode(kAbove, hindi::kMoon)->tile, false),
          head_ - RecordOfCode(kAbove, hindi::kMoon)->at.x);
    }
    if (syllable_.reph) {
      Add(ConsonantLetter(kReph.tile), head_ - kReph.at.x);
      aside = kAsideOfReph;
    } else if (HasSignAbove()) {
      aside = kAsideOfSign;
    }
    if (syllable_.above == 0) return;
    Hang(*RecordOfCode(kAbove, syllable_.above),
         {head_ + aside, kWordHead - (syllable_.moon ? 25.0 : 0.0)});
  }

  bool HasSignAbove() const {
    static constexpr char32_t kSigns[] = {hindi::kE, hindi::kAi, hindi::kO, hindi::kAu, hindi::kIi};
    return std::ranges::find(kSigns, syllable_.sign) != std::end(kSigns) || VowelReachesUp();
  }

  bool VowelReachesUp() const {
    static constexpr char32_t kReaching[] = {0x908, 0x910, 0x913, 0x914};  // ई ऐ ओ औ
    return syllable_.vowel != nullptr &&
           std::ranges::find(kReaching, syllable_.vowel->code) != std::end(kReaching);
  }

  void LayDotsBeside() {
    constexpr int kTile = 26;
    constexpr double kMiddle = 500;
    Add(SignLetter(kTile), x_ + kRoomOfDots / 2 - kMiddle);
    x_ += kRoomOfDots;
  }

  HindiSyllable syllable_;
  Cluster cluster_;
  double x_ = 0;
  bool hasRi_ = false;        ///< whether the consonant's shape has the sign of vocalic r in it
  double head_ = 0;           ///< where signs above stand by now
  Point foot_{0, kWordBase};  ///< where signs below hang
};

/// A stroke from the head line to the base, or two of them.
Cluster LayStop(char32_t code) {
  Cluster cluster{.characters = 1};
  const int strokes = code == hindi::kDoubleStop ? 2 : 1;
  for (int i = 0; i < strokes; ++i) {
    cluster.width += kRoomOfStop / 2;
    const Run run = MakeRun(Primitive::LineDown, std::array{cluster.width, kWordHead, kWordBase});
    cluster.ink.AddStroke({&run, 1});
  }
  cluster.width += kRoomOfStop / 2;
  return cluster;
}

}  // namespace

Cluster ReadHindi(std::span<const TextCharacter> text) {
  const char32_t first = text.front().code;
  if (first == hindi::kStop || first == hindi::kDoubleStop) return LayStop(first);
  HindiSyllable syllable = ReadSyllable(text);
  if (syllable.characters == 0) return {};
  return Layout(std::move(syllable)).Lay();
}

}  // namespace bramlee
