#include "strokes/hindi_text.h"

#include <algorithm>
#include <utility>

#include "strokes/word_ink.h"

namespace bramlee {
namespace {

constexpr char32_t kRa = 0x930;

/// A character that stands for a consonant with the dot below, or for a vowel with the moon.
struct Combined {
  char32_t code;
  char32_t letter;
};
constexpr Combined kWithDot[] = {
    {0x929, 0x928},
    {0x931, 0x930},
    {0x934, 0x933},
    {0x958, 0x915},
    {0x959, 0x916},
    {0x95A, 0x917},
    {0x95B, 0x91C},
    {0x95C, 0x921},
    {0x95D, 0x922},
    {0x95E, 0x92B},
    {0x95F, 0x92F},
};
constexpr Combined kWithMoon[] = {
    {0x90D, 0x90F},
    {0x911, 0x906},
    {0x972, 0x905},
};

/// Two consonants with a letter of their own.
struct JoinedLetter {
  char32_t first;
  char32_t second;
  int tile;
};
constexpr JoinedLetter kJoinedLetters[] = {
    {0x915, 0x937, 35}, // क्ष
    {0x924, kRa,   36}, // त्र
    {0x91C, 0x91E, 37}, // ज्ञ
};

const Combined* FindIn(std::span<const Combined> table, char32_t code) {
  const auto found = std::ranges::find(table, code, &Combined::code);
  return found == table.end() ? nullptr : &*found;
}

const HindiConsonantAnchors* ConsonantOf(char32_t code) {
  const Combined* dotted = FindIn(kWithDot, code);
  const auto found = std::ranges::find(HindiConsonants(), dotted ? dotted->letter : code,
                                       &HindiConsonantAnchors::code);
  return code == 0 || found == HindiConsonants().end() ? nullptr : &*found;
}

const HindiVowelAnchors* VowelOf(char32_t code) {
  const Combined* mooned = FindIn(kWithMoon, code);
  const auto found =
      std::ranges::find(HindiVowels(), mooned ? mooned->letter : code, &HindiVowelAnchors::code);
  return found == HindiVowels().end() ? nullptr : &*found;
}

constexpr bool IsVowelSign(char32_t code) {
  return code >= hindi::kAa && code <= hindi::kAu && code != 0x944 && code != 0x946 &&
         code != 0x94A;
}

/// Reads characters one by one.
class Reader {
 public:
  explicit Reader(std::span<const TextCharacter> text) : text_(text) {}

  HindiSyllable Read() {
    const char32_t first = At(0);
    if (const HindiVowelAnchors* vowel = VowelOf(first)) {
      syllable_.vowel = vowel;
      syllable_.moon = FindIn(kWithMoon, first) != nullptr;
      ++at_;
    } else if (ConsonantOf(first) != nullptr) {
      ReadConsonants();
      FindReph();
      FindJoined();
    }
    ReadSigns();
    syllable_.characters = at_;
    return std::move(syllable_);
  }

 private:
  char32_t At(std::size_t ahead) const {
    return at_ + ahead < text_.size() ? text_[at_ + ahead].code : 0;
  }

  void ReadConsonants() {
    while (ReadConsonant()) {
    }
  }

  /// Whether another one follows that belongs to the same letter.
  bool ReadConsonant() {
    const char32_t code = At(0);
    HindiConsonant consonant{.letter = ConsonantOf(code),
                             .dotBelow = FindIn(kWithDot, code) != nullptr};
    ++at_;
    while (At(0) == hindi::kDotBelow) consonant.dotBelow = true, ++at_;
    const bool goesOn = At(0) == hindi::kMark && ReadJoin(consonant);
    syllable_.consonants.push_back(consonant);
    return goesOn;
  }

  /// A joiner after the mark asks for the half form, a non-joiner for the mark itself.
  bool ReadJoin(HindiConsonant& consonant) {
    ++at_;
    const bool half = At(0) == kJoiner;
    const bool mark = At(0) == kNonJoiner;
    if (half || mark) ++at_;
    const bool goesOn = !mark && ConsonantOf(At(0)) != nullptr;
    consonant.join = half || goesOn ? HindiJoin::Half : HindiJoin::Mark;
    asked_ = asked_ || half;
    return goesOn;
  }

  void FindReph() {
    auto& all = syllable_.consonants;
    if (asked_ || all.size() < 2 || all.front().letter->code != kRa || all.front().dotBelow) return;
    syllable_.reph = true;
    all.erase(all.begin());
  }

  void FindJoined() {
    auto& all = syllable_.consonants;
    for (std::size_t i = 0; !asked_ && i + 1 < all.size(); ++i) {
      HindiConsonant& first = all[i];
      const HindiConsonant& second = all[i + 1];
      if (first.dotBelow || second.dotBelow || first.withR) continue;
      const auto tile = JoinedTile(first.letter->code, second.letter->code);
      if (tile > 0) first.letter = &HindiConsonants()[static_cast<std::size_t>(tile) - 1];
      if (tile == 0 && second.letter->code != kRa) continue;
      first.withR = tile == 0;
      first.join = second.join;
      all.erase(all.begin() + static_cast<std::ptrdiff_t>(i) + 1);
      if (tile > 0) --i;  // an r may follow it
    }
  }

  static int JoinedTile(char32_t first, char32_t second) {
    for (const JoinedLetter& each : kJoinedLetters) {
      if (each.first == first && each.second == second) return each.tile;
    }
    return 0;
  }

  void ReadSigns() {
    while (at_ < text_.size()) {
      const char32_t code = At(0);
      if (IsJoiner(code) && at_ > 0) {
        ++at_;
      } else if (IsVowelSign(code) || IsMark(code)) {
        if (!Take(code)) syllable_.leftOut.push_back(text_[at_]);
        ++at_;
      } else {
        return;
      }
    }
  }

  static bool IsMark(char32_t code) {
    return (code >= hindi::kArcAbove && code <= hindi::kDotsBeside) || code == hindi::kMark ||
           code == hindi::kDotBelow;
  }

  /// Whether there is room for it.
  bool Take(char32_t code) {
    const bool closed =
        !syllable_.consonants.empty() && syllable_.consonants.back().join != HindiJoin::None;
    if (code == hindi::kDotsBeside) {
      return !std::exchange(syllable_.dotsBeside, true);
    }
    if (code == hindi::kArcAbove || code == hindi::kDotAbove) {
      return syllable_.above == 0 && (syllable_.above = code, true);
    }
    if (closed || syllable_.sign != 0 || syllable_.above != 0 || syllable_.dotsBeside) return false;
    if (code == hindi::kMoon) return !std::exchange(syllable_.moon, true);
    if (syllable_.vowel != nullptr) return false;
    syllable_.sign = code;
    return true;
  }

  std::span<const TextCharacter> text_;
  std::size_t at_ = 0;
  bool asked_ = false;  ///< whether a joiner asked for half forms as they are
  HindiSyllable syllable_;
};

}  // namespace

HindiSyllable ReadSyllable(std::span<const TextCharacter> text) {
  return Reader(text).Read();
}

}  // namespace bramlee
