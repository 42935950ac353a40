// The book forms beside the printed signs. How near a letter is to its sign is the part of their
// ink that both have, in the font of its script that has most: letters have more than one right
// shape, and each font shows one.
#include <gtest/gtest.h>

#include <QFontInfo>
#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "letters/letter_names.h"
#include "tests/book/overlap.h"
#include "tools/contact_sheets/print_fonts.h"

namespace bramlee {
namespace {

/// Letters that no font prints as their strokes show them.
struct Unprinted {
  std::string_view set;
  int tile;
};
constexpr Unprinted kUnprinted[] = {
    {"hinc", 57 }, // half na: its ring is a solid knob in print, which leaves no line
    {"hinc", 64 }, // half ra: print puts it on the next letter
    {"hinc", 101}, // ra and tra take no r: their foot stroke is no part of the sign
    {"hinc", 110},
    {"telc", 24 }, // has no form below another letter, nor has the next one
    {"telc", 27 },
};

/// Two letters that overlap this much have the same strokes, if in another order.
constexpr double kSameShape = 0.9;

/// How much nearer to each other two letters may be than their printed signs are: letters of one
/// pen share stems and bars to the pixel, those of a font do not.
constexpr double kAsAlikeInPrint = 0.2;

struct Printed {
  LetterId id;
  CentreLine line;
  std::vector<CentreLine> signs;  ///< in the fonts that have them
  double overlap = 0;             ///< with the sign of the nearest font
  bool reshaped = false;          ///< whether the book gives the letter another shape

  std::string Name() const {
    return std::string(id.set) + ' ' + std::to_string(id.tile) +
           (id.form.alternative ? " alternative" : "");
  }
};

double NearestOf(const CentreLine& line, const std::vector<CentreLine>& signs) {
  double nearest = 0;
  for (const CentreLine& sign : signs) nearest = std::max(nearest, Overlap(line, sign));
  return nearest;
}

bool IsReshaped(const LetterSet& set, const LetterId& book) {
  if (!HasBookForm(set, book.tile, book.form)) return false;
  LetterId given = book;
  given.form.book = false;
  return Overlap(LineOf(LetterOf(book)), LineOf(LetterOf(given))) < kSameShape;
}

Printed Print(const LetterSet& set, const LetterId& id) {
  const QString sign = QString::fromStdString(PrintedLetter(set.name, id.tile, id.form.book));
  Printed printed{.id = id, .line = LineOf(LetterOf(id)), .signs = {}};
  for (const QString& family : PrintFontsOf(set.name)) {
    auto line = LineOf(sign, family);
    if (line && !line->empty()) printed.signs.push_back(std::move(*line));
  }
  printed.overlap = printed.line.empty() ? 0 : NearestOf(printed.line, printed.signs);
  printed.reshaped = id.form.book && IsReshaped(set, id);
  return printed;
}

bool IsPrinted(const LetterSet& set, int tile) {
  const auto same = [&](const Unprinted& each) {
    return each.set == set.name && each.tile == tile;
  };
  return !PrintedLetter(set.name, tile).empty() && std::ranges::none_of(kUnprinted, same);
}

/// The letters of a set as they stand in the book; measured when they are first asked for.
const std::vector<Printed>& PrintedLettersOf(const LetterSet& set) {
  static std::map<std::string_view, std::vector<Printed>> measured;
  std::vector<Printed>& letters = measured[set.name];
  if (!letters.empty()) return letters;
  for (int tile = 1; tile <= set.tiles; ++tile) {
    if (!IsPrinted(set, tile)) continue;
    for (const bool alternative : {false, true}) {
      if (alternative && !HasSecondForm(set, tile)) continue;
      const TileForm form{.alternative = alternative, .book = true};
      letters.push_back(Print(set, {.set = set.name, .tile = tile, .form = form}));
    }
  }
  return letters;
}

std::vector<double> OverlapsOf(const std::vector<Printed>& letters, bool reshaped) {
  std::vector<double> overlaps;
  for (const Printed& letter : letters) {
    if (letter.reshaped == reshaped) overlaps.push_back(letter.overlap);
  }
  std::ranges::sort(overlaps);
  return overlaps;
}

TEST(PrintFonts, AreThereAndAtLeastTwoToAScript) {
  for (const LetterSet& set : LetterSets()) {
    const std::vector<QString> families = PrintFontsOf(set.name);
    EXPECT_GE(families.size(), 2U) << set.name;
    for (const QString& family : families) {
      // a foundry may follow in brackets
      EXPECT_TRUE(QFontInfo(QFont(family)).family().startsWith(family)) << family.toStdString();
    }
  }
}

/// Whether the two show one letter: with the mark below and with the r joined, for example.
bool ShowOneLetter(const LetterId& a, const LetterId& b) {
  return a.set == "hinc" ? HindiLetterOf(a.tile) == HindiLetterOf(b.tile) : a.tile == b.tile;
}

class SweepOfBookPrint : public testing::TestWithParam<const char*> {
 protected:
  const LetterSet& set_ = *FindLetterSet(GetParam());
  const std::vector<Printed>& letters_ = PrintedLettersOf(set_);
};

TEST_P(SweepOfBookPrint, HasASignForEachBookFormInTwoFonts) {
  for (const Printed& letter : letters_) {
    if (HasBookForm(set_, letter.id.tile, letter.id.form)) {
      EXPECT_GE(letter.signs.size(), 2U) << letter.Name();
    }
  }
}

TEST_P(SweepOfBookPrint, IsAsNearToNewShapesAsToThoseThatAreKept) {
  const std::vector<double> kept = OverlapsOf(letters_, false);
  const std::vector<double> reshaped = OverlapsOf(letters_, true);
  ASSERT_FALSE(kept.empty());
  ASSERT_FALSE(reshaped.empty());
  std::printf("%zu kept, median %.2f; %zu reshaped, median %.2f\n", kept.size(), MedianOf(kept),
              reshaped.size(), MedianOf(reshaped));
  EXPECT_GE(MedianOf(reshaped), MedianOf(kept));
  for (const Printed& letter : letters_) {
    EXPECT_TRUE(!letter.reshaped || letter.overlap >= kept.front())
        << letter.Name() << ": " << letter.overlap << ", the least is " << kept.front();
  }
}

/// How alike two letters are in print, in the font in which they are most alike.
double AlikeInPrint(const Printed& a, const Printed& b) {
  double most = 0;
  for (std::size_t i = 0; i < std::min(a.signs.size(), b.signs.size()); ++i) {
    most = std::max(most, Overlap(a.signs[i], b.signs[i]));
  }
  return most;
}

TEST_P(SweepOfBookPrint, NoTwoBookFormsAreNearerToEachOtherThanToTheirSigns) {
  for (auto a = letters_.begin(); a != letters_.end(); ++a) {
    for (auto b = a + 1; b != letters_.end(); ++b) {
      if (!a->reshaped || !b->reshaped) continue;
      if (ShowOneLetter(a->id, b->id)) continue;
      const double alike = Overlap(a->line, b->line);
      if (alike <= std::max(a->overlap, b->overlap)) continue;
      EXPECT_LE(alike, AlikeInPrint(*a, *b) + kAsAlikeInPrint) << a->Name() << ", " << b->Name();
    }
  }
}

const auto kSets = testing::Values("engc", "engs", "hinv", "hinc", "telv", "telc", "mat");
const auto kNameOfSet = [](const auto& set) { return std::string(set.param); };
INSTANTIATE_TEST_SUITE_P(EverySet, SweepOfBookPrint, kSets, kNameOfSet);

}  // namespace
}  // namespace bramlee
