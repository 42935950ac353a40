#include "letters/letter_names.h"

#include <iterator>

#include "letters/hinc.h"
#include "letters/letter_sets.h"

namespace bramlee {
namespace {

struct Named {
  const char* name;
  const char* printed;
};

// clang-format off
constexpr Named kHindiVowels[] = {
    {"vowel a", "अ"},
    {"vowel aa", "आ"},
    {"vowel i", "इ"},
    {"vowel ii", "ई"},
    {"vowel u", "उ"},
    {"vowel uu", "ऊ"},
    {"vowel ri", "ऋ"},
    {"vowel e", "ए"},
    {"vowel ai", "ऐ"},
    {"vowel o", "ओ"},
    {"vowel au", "औ"},
    {"vowel am", "अं"},
    {"vowel ah", "अः"},
    {"picture", ""},
    {"sign of aa", "ा"},
    {"sign of i", "ि"},
    {"sign of ii", "ी"},
    {"sign of u", "ु"},
    {"sign of uu", "ू"},
    {"sign of ri", "ृ"},
    {"sign of e", "े"},
    {"sign of ai", "ै"},
    {"sign of o", "ो"},
    {"sign of au", "ौ"},
    {"dot above", "ं"},
    {"two dots", "ः"},
    {"moon arc", "ँ"},
    {"mark below", "्"},
};

// The last four are printed as their strokes show them.
constexpr Named kHindiConsonants[] = {
    {"ka", "क"}, {"kha", "ख"}, {"ga", "ग"}, {"gha", "घ"},
    {"nga", "ङ"}, {"cha", "च"}, {"chha", "छ"}, {"ja", "ज"},
    {"jha", "झ"}, {"nya", "ञ"}, {"tta", "ट"}, {"ttha", "ठ"},
    {"dda", "ड"}, {"ddha", "ढ"}, {"nna", "ण"}, {"ta", "त"},
    {"tha", "थ"}, {"da", "द"}, {"dha", "ध"}, {"na", "न"},
    {"pa", "प"}, {"pha", "फ"}, {"ba", "ब"}, {"bha", "भ"},
    {"ma", "म"}, {"ya", "य"}, {"ra", "र"}, {"la", "ल"},
    {"va", "व"}, {"sha", "श"}, {"ssa", "ष"}, {"sa", "स"},
    {"ha", "ह"}, {"lla", "ळ"}, {"ksha", "क्ष"}, {"tra", "त्र"},
    {"jnya", "ज्ञ"},
};

constexpr const char* kTeluguVowels[] = {
    "అ", "ఆ", "ఇ", "ఈ", "ఉ", "ఊ", "ఋ", "ౠ", "ఎ", "ఏ",
    "ఐ", "ఒ", "ఓ", "ఔ", "", "ా", "ి", "ీ", "ు", "ూ",
    "ృ", "ౄ", "ె", "ే", "ై", "ొ", "ో", "ౌ", "ౢ", "ౣ",
    "ఌ", "ౡ", "అం", "అఁ", "అః", "్",
};

constexpr const char* kTeluguConsonants[] = {
    "క", "ఖ", "గ", "ఘ", "ఙ", "చ", "ౘ", "ఛ", "జ", "ౙ",
    "ఝ", "ఞ", "ట", "ఠ", "డ", "ఢ", "ణ", "్క", "్ఖ", "్గ",
    "్ఘ", "్ఙ", "్చ", "్ౘ", "్ఛ", "్జ", "్ౙ", "్ఝ", "్ఞ", "్ట",
    "్ఠ", "్డ", "్ఢ", "్ణ", "త", "థ", "ద", "ధ", "న", "ప",
    "ఫ", "బ", "భ", "మ", "య", "ర", "ల", "వ", "శ", "ష",
    "స", "్త", "్థ", "్ద", "్ధ", "్న", "్ప", "్ఫ", "్బ", "్భ",
    "్మ", "్య", "్ర", "్ల", "్వ", "్శ", "్ష", "్స", "హ", "్హ",
    "ళ", "్ళ", "క్ష", "ఱ", "్ఱ",
};

constexpr Named kNumbers[] = {
    {"1", "1"}, {"2", "2"}, {"3", "3"}, {"4", "4"}, {"5", "5"},
    {"6", "6"}, {"7", "7"}, {"8", "8"}, {"9", "9"}, {"0", "0"},
    {"plus", "+"}, {"minus", "-"}, {"times", "x"}, {"divided by", "/"},
    {"per cent", "%"}, {"equals", "="}, {"question mark", "?"},
};
// clang-format on

static_assert(std::size(kHindiConsonants) == kHindiSetTiles);
constexpr const char* kVirama = "\u094D";     ///< takes the vowel away
constexpr const char* kJoiner = "\u200D";     ///< after it: the half form, not the mark below
constexpr const char* kNonJoiner = "\u200C";  ///< after it: the mark below
constexpr const char* kFoot = "\u0930";       ///< ra, joined below as the foot stroke

/// The book has the dot in the arc.
constexpr int kMoonArc = 27;

Named HindiVowel(int tile, bool book) {
  if (book && tile == kMoonArc) return {"moon arc with a dot", kHindiVowels[tile - 1].printed};
  return kHindiVowels[tile - 1];
}

// The book writes these signs alone.
constexpr int kTimes = 13;
constexpr int kDividedBy = 14;

Named Number(int tile, bool book) {
  const Named number = kNumbers[tile - 1];
  if (book && tile == kTimes) return {number.name, "×"};
  if (book && tile == kDividedBy) return {number.name, "÷"};
  return number;
}

/// What a letter is named and printed with.
struct Joined {
  std::string before, after;
  std::string printed;
};

Joined HowJoined(int tile, bool book) {
  switch (HindiSetOf(tile)) {
    case kHindiHalfSet:
      if (book && HasMarkForHalf(HindiLetterOf(tile))) {
        return {"", " with the mark below", std::string(kVirama) + kNonJoiner};
      }
      return {"half ", "", std::string(kVirama) + kJoiner};
    case kHindiFootSet: {
      const bool withR = book && HasBookForm(*FindLetterSet("hinc"), tile);
      return {"", withR ? " with r" : " with the foot stroke", std::string(kVirama) + kFoot};
    }
    default:
      return {};
  }
}

Named HindiLetter(int tile) {
  return kHindiConsonants[HindiLetterOf(tile) - 1];
}

std::string HindiConsonantName(int tile, bool book) {
  const Joined joined = HowJoined(tile, book);
  return joined.before + HindiLetter(tile).name + joined.after;
}

std::string PrintedHindiConsonant(int tile, bool book) {
  return HindiLetter(tile).printed + HowJoined(tile, book).printed;
}

int Tiles(std::string_view set) {
  const LetterSet* found = FindLetterSet(set);
  return found == nullptr ? 0 : found->tiles;
}

std::string Printed(std::string_view set, int tile, bool book) {
  if (set == "engc") return {static_cast<char>('A' + tile - 1)};
  if (set == "engs") return {static_cast<char>('a' + tile - 1)};
  if (set == "hinv") return HindiVowel(tile, book).printed;
  if (set == "hinc") return PrintedHindiConsonant(tile, book);
  if (set == "telv") return kTeluguVowels[tile - 1];
  if (set == "telc") return kTeluguConsonants[tile - 1];
  return Number(tile, book).printed;
}

}  // namespace

bool ShowsLettering(std::string_view letterSet, int tile) {
  return letterSet == "hinv" && tile == 14;
}

std::string PrintedLetter(std::string_view letterSet, int tile, bool book) {
  return tile < 1 || tile > Tiles(letterSet) ? std::string() : Printed(letterSet, tile, book);
}

std::string LetterName(std::string_view letterSet, int tile, bool book) {
  std::string printed = PrintedLetter(letterSet, tile, book);
  if (tile < 1 || tile > Tiles(letterSet)) return {};
  if (letterSet == "engc") return "capital " + printed;
  if (letterSet == "engs") return "small " + printed;
  // NOLINTNEXTLINE(clang-analyzer-security.ArrayBound): the set has as many tiles as the table
  if (letterSet == "mat") return kNumbers[tile - 1].name;
  if (letterSet == "telv" && printed.empty()) return "head tick";
  const std::string name = letterSet == "hinv"   ? HindiVowel(tile, book).name
                           : letterSet == "hinc" ? HindiConsonantName(tile, book)
                                                 : std::string();
  if (name.empty()) return printed;
  return printed.empty() ? name : name + " (" + printed + ")";
}

}  // namespace bramlee
