// What the forms, sets and parts of the Hindi letters change.
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "tests/letters/written.h"

namespace bramlee {
namespace {

Runs Vowel(int tile, const TileForm& form = {}, double step = 1) {
  return Written("hinv", tile, form, step).runs;
}

Runs Consonant(int tile, const TileForm& form = {}) {
  return Written("hinc", tile, form).runs;
}

Runs LastOf(const Runs& runs, std::ptrdiff_t count) {
  return {runs.end() - count, runs.end()};
}

bool Contains(const Runs& runs, const RecordedRun& wanted) {
  return std::ranges::find(runs, wanted) != runs.end();
}

RecordedRun Line(Primitive primitive, std::vector<double> arguments, int dots) {
  return {.primitive = primitive, .arguments = std::move(arguments), .dots = dots};
}

/// The record after the letter's routine.
StrokeRec RecordAfter(int tile) {
  StrokeRec rec = FillStrokeRec(SheetKind::Wide, static_cast<std::int16_t>(tile));
  Recorder sheet(1);
  WriteHindiConsonant(rec, sheet);
  return rec;
}

// --- vowels

TEST(HindiVowels, StandEachInTheCellOfItsOwnColumn) {
  // aa is a with a second stem, one cell to the right, whatever was written before
  const Runs a = Vowel(1);
  const Runs aa = Vowel(2);
  EXPECT_EQ(FirstOf(aa, 3), Moved(FirstOf(a, 3), 250));
  EXPECT_EQ(aa.size(), a.size() + 1);
}

TEST(HindiVowels, AndTheirSignsShareTheBodyOfTheFirst) {
  const Runs body = FirstOf(Vowel(1), 3);
  EXPECT_EQ(FirstOf(Vowel(10), 3), Moved(body, 500));
  EXPECT_EQ(FirstOf(Vowel(11), 3), Moved(body, 750));
  EXPECT_EQ(FirstOf(Vowel(12), 3), body);
  EXPECT_EQ(FirstOf(Vowel(13), 3), Moved(body, 250));
  EXPECT_EQ(LastOf(Vowel(10), 2), Moved(Vowel(21), 550));
  EXPECT_EQ(LastOf(Vowel(11), 4), Moved(Vowel(22), 550));
}

TEST(HindiVowels, MarkBelowIsABarInsteadOfALoopInItsOtherForm) {
  const Runs usual = Vowel(28);
  const Runs other = Vowel(28, kAlternative);
  ASSERT_EQ(usual.size(), 2U);
  ASSERT_EQ(other.size(), 2U);
  EXPECT_EQ(usual[0].primitive, Primitive::ArcStroke);
  EXPECT_EQ(other[0], Line(Primitive::LineRight, {960, 490, 972.5}, 13));
  EXPECT_EQ(other[1].arguments, (std::vector<double>{45, 972.5, 490, 512.5}));
}

TEST(HindiVowels, StemOfTheAuSignHangsWhereItsSecondSlantEnded) {
  for (const double step : {1.0, 0.01, 0.7}) {
    Recorder sheet(step);
    ClearLastPoint();
    WriteWholeTile(*FindLetterSet("hinv"), 24, {}, sheet);
    ASSERT_EQ(sheet.runs.size(), 6U);
    EXPECT_EQ(sheet.runs[4].arguments, (std::vector<double>{LastX2, 325, 475})) << step;
    EXPECT_NEAR(sheet.runs[5].arguments[0], LastX2 - 25, 1e-9) << step;
    EXPECT_EQ(FirstOf(sheet.runs, 4), Moved(Vowel(22, {}, step), 500)) << step;
  }
  EXPECT_NE(Vowel(24, {}, 1)[4].arguments[0], Vowel(24, {}, 0.7)[4].arguments[0]);
}

TEST(HindiVowels, ThatShareAPartDifferByTheStrokesOfTheirOwn) {
  EXPECT_EQ(FirstOf(Vowel(4), 6), Moved(Vowel(3), 250));  // ii is i with a loop on top
  EXPECT_EQ(Vowel(4).size(), 7U);
  EXPECT_EQ(FirstOf(Vowel(9), 6), Moved(Vowel(8), 250));  // ai is e with a stroke above
  EXPECT_EQ(Vowel(9).size(), 8U);
  EXPECT_EQ(FirstOf(Vowel(22), 2), Moved(Vowel(21), 250));
  EXPECT_EQ(FirstOf(Vowel(23), 2), Moved(Vowel(21), 500));
}

// --- consonants

TEST(HindiConsonants, ReadTheFormForTheTilesThatHaveTwoAlone) {
  // the same letter in another set has a second form
  for (const int tile : {16, 40, 55, 72, 77, 90}) {
    EXPECT_EQ(Consonant(tile, kAlternative), Consonant(tile)) << tile;
  }
  for (const int tile : {3, 7, 18, 35, 53, 64}) {
    EXPECT_NE(Consonant(tile, kAlternative), Consonant(tile)) << tile;
  }
}

TEST(HindiConsonants, KeepStemAndBarInBothForms) {
  EXPECT_EQ(LastOf(Consonant(7, kAlternative), 2), LastOf(Consonant(7), 2));
  EXPECT_EQ(LastOf(Consonant(35, kAlternative), 2), LastOf(Consonant(35), 2));
}

TEST(HindiConsonants, LeaveTheCellAsItWas) {
  for (int tile = 1; tile <= 3 * kHindiSetTiles; ++tile) {
    const StrokeRec rec = RecordAfter(tile);
    EXPECT_EQ(rec.CellW, 250) << tile;
    EXPECT_EQ(rec.CellH, 75) << tile;
    EXPECT_EQ(rec.Y1, 325) << tile;
  }
}

TEST(HindiConsonants, SeventhHasAShortStemInAllSets) {
  const RecordedRun stem = Line(Primitive::LineDown, {508.75, 325, 352}, 28);
  EXPECT_TRUE(Contains(Consonant(7), stem));
  EXPECT_TRUE(Contains(Consonant(44), stem));
  EXPECT_TRUE(Contains(Consonant(81), stem));
}

TEST(HindiConsonants, LoseTheirStemInTheSecondSet) {
  struct Stem {
    int letter;
    double x;
  };
  constexpr Stem kStems[] = {
      {4,  1008.75},
      {6,  273.75 },
      {8,  775    },
      {9,  1025   },
      {10, 262.5  },
      {17, 525    },
      {19, 1008.75},
      {20, 272.5  },
      {23, 747.5  },
      {24, 1015   },
      {25, 262.5  },
      {26, 275    },
      {28, 795    },
      {29, 997.5  },
      {30, 275    },
      {32, 762.5  },
      {35, 515    },
      {36, 762.5  },
      {37, 1032.5 },
  };
  for (const auto& [letter, x] : kStems) {
    const RecordedRun stem = Line(Primitive::LineDown, {x, 325, 475}, 151);
    EXPECT_TRUE(Contains(Consonant(letter), stem)) << letter;
    EXPECT_FALSE(Contains(Consonant(letter + 37), stem)) << letter;
    EXPECT_TRUE(Contains(Consonant(letter + 74), stem)) << letter;
  }
}

TEST(HindiConsonants, OfTheSecondSetSometimesKeepABar) {
  struct Bar {
    int letter;
    double x;
    double length;
  };
  for (const auto& [letter, x, length] : {
           Bar{4,  887.5, 112.5},
           Bar{9,  907.5, 125  },
           Bar{25, 150,   112.5},
           Bar{26, 175,   100  },
           Bar{32, 650,   112.5}
  }) {
    const RecordedRun last = Consonant(letter + 37).back();
    EXPECT_EQ(last.primitive, Primitive::LineRight) << letter;
    EXPECT_EQ(last.arguments, (std::vector<double>{x, 325, x + length})) << letter;
  }
}

TEST(HindiConsonants, HalfRaIsAStrokeOfItsOwn) {
  const Runs usual = Consonant(64);
  ASSERT_EQ(usual.size(), 1U);
  EXPECT_EQ(usual[0].primitive, Primitive::SlantLeft);
  EXPECT_EQ(usual[0].arguments, (std::vector<double>{50, 462.5, 407.5, 437.5}));
  const Runs other = Consonant(64, kAlternative);
  ASSERT_EQ(other.size(), 1U);
  EXPECT_EQ(other[0].primitive, Primitive::ArcStroke);
  EXPECT_EQ(other[0].arguments, (std::vector<double>{1, 60, 210, 470, 306.25, 30}));
}

TEST(HindiConsonants, TwentyEighthWorksWithASmallerRadius) {
  EXPECT_EQ(RecordAfter(28).R1, 0.55 * 75);
  EXPECT_EQ(RecordAfter(27).R1, 75);
  EXPECT_NEAR(Consonant(28)[0].arguments[5], 37.125, 1e-9);
}

TEST(HindiConsonants, ShortBarOfTheThirtySecondLiesBelowAloneAndBeforeTheStem) {
  const Runs sa = Consonant(32);
  ASSERT_EQ(sa.size(), 6U);
  EXPECT_EQ(sa[3].arguments, (std::vector<double>{697.5, 400, 755}));
  EXPECT_EQ(sa[4].arguments, (std::vector<double>{762.5, 325, 475}));
  EXPECT_EQ(sa[5].arguments, (std::vector<double>{624.75, 325, 789.75}));
  const Runs half = Consonant(69);
  ASSERT_EQ(half.size(), 5U);
  EXPECT_EQ(half[3], sa[3]);
  EXPECT_EQ(half[4].arguments, (std::vector<double>{650, 325, 762.5}));
}

TEST(HindiConsonants, PaPhaAndSsaDifferByTheirLettersOwnRows) {
  const auto moved = [](const Runs& runs) { return Moved(runs, 337.5 - 120); };
  const Runs pa = Consonant(21);
  ASSERT_EQ(pa.size(), 4U);
  const Runs wanted = moved(pa);
  EXPECT_EQ(Consonant(22), (Runs{wanted[0], wanted[1], wanted[3]}));
  EXPECT_EQ(Consonant(31), (Runs{wanted[0], wanted[1], wanted[2]}));

  const Runs half = Consonant(58);
  ASSERT_EQ(half.size(), 6U);
  EXPECT_EQ(FirstOf(half, 3), (Runs{pa[0], pa[1], pa[3]}));
  EXPECT_EQ(half[4], half[5]);  // the short bar goes over twice
  EXPECT_EQ(Consonant(59), Consonant(22));
  EXPECT_EQ(Consonant(68), moved({half[0], half[3], half[4]}));
}

TEST(HindiConsonants, BaIsVaWithASlantInTheBowl) {
  const Runs ba = Consonant(23);
  const Runs va = Moved(Consonant(29), -250);
  ASSERT_EQ(ba.size(), 4U);
  EXPECT_EQ(ba[1].primitive, Primitive::SlantRight);
  EXPECT_EQ((Runs{ba[0], ba[2], ba[3]}), va);
}

TEST(HindiConsonants, RaAndSaShareABodyAndDifferInWhatIsAdded) {
  EXPECT_EQ(FirstOf(Consonant(32), 2), Moved(FirstOf(Consonant(27), 2), 625 - 420));
  EXPECT_EQ(Consonant(27).size(), 4U);  // the body and one bar
}

TEST(HindiConsonants, ThaAndShaShareABody) {
  const Runs tha = Moved(FirstOf(Consonant(17), 2), 162.5 - 412.5);
  const Runs sha = FirstOf(Consonant(30), 2);
  EXPECT_EQ(tha[0], sha[0]);
  EXPECT_NEAR(tha[1].arguments[3], sha[1].arguments[3], 1e-9);
}

TEST(HindiConsonants, OfTheThirdSetAreThoseOfTheFirstAndAFootStroke) {
  for (int letter = 1; letter <= kHindiSetTiles; ++letter) {
    Runs third = Consonant(letter + 74);
    ASSERT_FALSE(third.empty());
    const RecordedRun foot = third.back();
    third.pop_back();
    EXPECT_EQ(third, Consonant(letter)) << letter;
    EXPECT_EQ(foot.primitive, Primitive::SlantRight) << letter;
    EXPECT_EQ(foot.arguments[0], 45) << letter;
    EXPECT_EQ(foot.arguments[2], 486.25) << letter;
    EXPECT_EQ(foot.arguments[3], 520) << letter;
  }
}

/// Where the foot stroke of a tile begins when it is written after it.
double FootAfter(int tile) {
  StrokeRec rec = RecordAfter(tile);
  Recorder sheet(1);
  WriteHindiFootStroke(rec, sheet);
  EXPECT_EQ(sheet.runs.size(), 1U);
  return sheet.runs.at(0).arguments.at(1);
}

TEST(HindiFootStroke, BeginsInTheTilesColumnAndMovesRightByItsOffset) {
  EXPECT_EQ(FootAfter(75), 225);        // column 1
  EXPECT_EQ(FootAfter(76), 475);        // column 2
  EXPECT_EQ(FootAfter(77), 725 + 50);   // column 3, 0.2
  EXPECT_EQ(FootAfter(79), 225);        // a letter alone on its sheet
  EXPECT_EQ(FootAfter(96), 475 + 7.5);  // 0.03
  EXPECT_EQ(FootAfter(102), 725 + 67.5);
  EXPECT_EQ(FootAfter(111), 975 + 60);
}

TEST(HindiFootStroke, OfATileWithoutAColumnBeginsWhereItsLastPartBegan) {
  EXPECT_EQ(FootAfter(1), 100);      // body alone: X1 of the letter
  EXPECT_EQ(FootAfter(4), 887.5);    // the bar came last
  EXPECT_EQ(FootAfter(44), 508.75);  // the short stem came last
  EXPECT_EQ(FootAfter(64), 420);
}

}  // namespace
}  // namespace bramlee
