// What holds for every letter of every set.
#include "letters/letter_sets.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/letters/written.h"

namespace bramlee {
namespace {

/// The fields that letters only read.
std::vector<double> CellTablesOf(const StrokeRec& rec) {
  return {rec.Col1, rec.Col2, rec.Col3, rec.Col4, rec.Col5, rec.Row1,
          rec.Row2, rec.Row3, rec.Row4, rec.Row5, rec.Unit, rec.RowH};
}

/// Calls `check` with the set, the tile and the form of everything that can be written.
template <class Check>
void ForEveryTile(Check check) {
  for (const LetterSet& set : LetterSets()) {
    for (int tile = 1; tile <= set.tiles; ++tile) {
      for (const TileForm& form : {TileForm{}, kAlternative, kBook, kBookAlternative}) {
        SCOPED_TRACE(std::string(set.name) + " tile " + std::to_string(tile) +
                     (form.alternative ? " alternative" : "") + (form.book ? " in the book" : ""));
        check(set, tile, form);
      }
    }
  }
}

TEST(LetterSets, AreFoundByName) {
  EXPECT_EQ(LetterSets().size(), 7U);
  for (const LetterSet& set : LetterSets()) EXPECT_EQ(FindLetterSet(set.name), &set);
  EXPECT_EQ(FindLetterSet("engx"), nullptr);
  EXPECT_EQ(FindLetterSet(""), nullptr);
}

TEST(LetterSets, WriteNothingForATileOutside) {
  using Limits = std::numeric_limits<std::int16_t>;
  for (const LetterSet& set : LetterSets()) {
    for (const int tile : {int{Limits::min()}, -1, 0, set.tiles + 1, int{Limits::max()}}) {
      SCOPED_TRACE(std::string(set.name) + " tile " + std::to_string(tile));
      LastX = LastY2 = 5;
      Recorder sheet(1);
      StrokeRec rec = FillStrokeRec(set.sheet, static_cast<std::int16_t>(tile));
      set.write(rec, sheet);
      set.writeBook(rec, sheet);
      WriteWholeTile(set, tile, {}, sheet);
      WriteWholeTile(set, tile, kBook, sheet);
      EXPECT_TRUE(sheet.runs.empty());
      EXPECT_TRUE(sheet.dots.empty());
      EXPECT_EQ(LastX, 5);
      EXPECT_EQ(LastY2, 5);
    }
  }
}

TEST(LetterSets, WriteEveryTileButTheFewThatAreSilent) {
  ForEveryTile([](const LetterSet& set, int tile, const TileForm& form) {
    const bool hindiVowel = set.name == "hinv";
    const bool picture = hindiVowel && tile == 14;
    const bool noOtherForm = hindiVowel && (tile == 10 || tile == 11) && form.alternative;
    EXPECT_EQ(Written(set.name, tile, form).runs.empty(), picture || noOtherForm);
  });
}

TEST(LetterSets, HaveNoStrokeThatPlotsNothing) {
  ForEveryTile([](const LetterSet& set, int tile, const TileForm& form) {
    for (const RecordedRun& run : Written(set.name, tile, form).runs) EXPECT_GT(run.dots, 0);
  });
}

TEST(LetterSets, OnlyReadTheCellTables) {
  ForEveryTile([](const LetterSet& set, int tile, const TileForm& form) {
    StrokeRec rec = FillStrokeRec(set.sheet, static_cast<std::int16_t>(tile));
    rec.AltFlag = form.alternative ? 1 : 0;
    const std::vector<double> before = CellTablesOf(rec);
    Recorder sheet(1);
    ProgramOf(set, tile, form)(rec, sheet);
    EXPECT_EQ(CellTablesOf(rec), before);
    EXPECT_EQ(rec.LetterNo, tile);
    EXPECT_EQ(rec.LastResult, 0);
  });
}

TEST(LetterSets, DoNotRelyOnWhatAnotherLetterLeftInTheRegisters) {
  ForEveryTile([](const LetterSet& set, int tile, const TileForm& form) {
    const auto writtenAfter = [&](double left) {
      LastX = LastY = LastX2 = LastY2 = left;
      StrokeRec rec = FillStrokeRec(set.sheet, static_cast<std::int16_t>(tile));
      rec.AltFlag = form.alternative ? 1 : 0;
      Recorder sheet(1);
      ProgramOf(set, tile, form)(rec, sheet);
      return sheet;
    };
    const Recorder fromZero = writtenAfter(0);
    const Recorder after = writtenAfter(4321);
    EXPECT_EQ(after.runs, fromZero.runs);
    EXPECT_EQ(after.dots, fromZero.dots);
  });
}

TEST(LetterSets, WriteAWholeTileFromClearedRegisters) {
  const LetterSet& capitals = *FindLetterSet("engc");
  LastX = LastY = LastX2 = LastY2 = 4321;
  Recorder sheet(1);
  WriteWholeTile(capitals, 9, {}, sheet);  // I, a line that leaves the registers alone
  EXPECT_EQ(LastX, 0);
  EXPECT_EQ(LastY, 0);
  EXPECT_EQ(LastX2, 0);
  EXPECT_EQ(LastY2, 0);
}

TEST(LetterSets, DoNotChangeWithTheStepFlag) {
  ForEveryTile([](const LetterSet& set, int tile, const TileForm& form) {
    const auto written = [&](std::int16_t stepFlag) {
      StrokeRec rec = FillStrokeRec(set.sheet, static_cast<std::int16_t>(tile));
      rec.AltFlag = form.alternative ? 1 : 0;
      rec.StepFlag = stepFlag;
      Recorder sheet(1);
      ProgramOf(set, tile, form)(rec, sheet);
      return sheet.dots;
    };
    EXPECT_EQ(written(0), written(1));
  });
}

TEST(LetterSets, NameTheTilesThatChangeWithTheForm) {
  for (const LetterSet& set : LetterSets()) {
    std::set<int> changing;
    for (int tile = 1; tile <= set.tiles; ++tile) {
      const Recorder other = Written(set.name, tile, kAlternative);
      // a tile that falls silent has no second form
      if (!other.runs.empty() && other.runs != Written(set.name, tile).runs) changing.insert(tile);
    }
    EXPECT_EQ(changing, std::set<int>(set.secondForms.begin(), set.secondForms.end())) << set.name;
    for (int tile = 0; tile <= set.tiles + 1; ++tile) {
      EXPECT_EQ(HasSecondForm(set, tile), changing.contains(tile)) << set.name << ' ' << tile;
    }
  }
}

TEST(LetterSets, HaveEachBookFormOnceAndOfAFormThatThereIs) {
  for (const LetterSet& set : LetterSets()) {
    std::set<std::pair<int, bool>> named;
    for (const BookForm& form : set.bookForms) {
      SCOPED_TRACE(std::string(set.name) + " tile " + std::to_string(form.tile));
      EXPECT_TRUE(form.tile >= 1 && form.tile <= set.tiles);
      EXPECT_TRUE(!form.alternative || HasSecondForm(set, form.tile));
      EXPECT_TRUE(named.emplace(form.tile, form.alternative).second);
    }
  }
}

TEST(LetterSets, WriteTheGivenFormFromTheBookUnlessATileStandsOtherwiseThere) {
  ForEveryTile([](const LetterSet& set, int tile, const TileForm& form) {
    if (!form.book) return;
    TileForm given = form;
    given.book = false;
    const bool otherwise =
        Written(set.name, tile, form).runs != Written(set.name, tile, given).runs;
    EXPECT_EQ(otherwise, HasBookForm(set, tile, form));
  });
}

TEST(LetterSets, HaveTheUsualFormInTheBookOfATileWithoutAnAlternativeOne) {
  ForEveryTile([](const LetterSet& set, int tile, const TileForm& form) {
    if (!form.book || !form.alternative || HasSecondForm(set, tile)) return;
    if (Written(set.name, tile, kAlternative).runs.empty()) return;  // falls silent
    EXPECT_EQ(Written(set.name, tile, form).runs, Written(set.name, tile, kBook).runs);
  });
}

TEST(LetterSets, DrawAFieldThatWasNeverSetAsZero) {
  StrokeRec rec;
  rec.LetterNo = 9;  // I, a single line
  Recorder sheet(1);
  WriteCapital(rec, sheet);
  EXPECT_EQ(sheet.dots, (std::vector<Dot>{
                            {0, 0}
  }));
}

}  // namespace
}  // namespace bramlee
