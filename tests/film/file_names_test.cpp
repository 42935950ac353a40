// What the files of letters are called.
#include "film/file_names.h"

#include <gtest/gtest.h>

#include <QSet>
#include <algorithm>

#include "letters/letter_sets.h"

namespace bramlee {
namespace {

std::string NameOf(const char* set, int tile, const TileForm& form = {}) {
  return FileNameOf({.set = set, .tile = tile, .form = form}).toStdString();
}

TEST(FileNames, TellSetNumberAndSign) {
  EXPECT_EQ(NameOf("hinc", 3), "hinc-03-ग");
  EXPECT_EQ(NameOf("engc", 26), "engc-26-Z");
  EXPECT_EQ(NameOf("hinc", 40), "hinc-half-03-ग्\u200D");
  EXPECT_EQ(NameOf("hinc", 111), "hinc-with-foot-37-ज्ञ्र");
}

TEST(FileNames, SayWhichFormItIs) {
  EXPECT_EQ(NameOf("mat", 9, {.alternative = true}), "mat-09-9-alt");
  EXPECT_EQ(NameOf("hinc", 17, {.book = true}), "hinc-17-थ-book");
  EXPECT_EQ(NameOf("mat", 2, {.place = 5}), "mat-02-2-place-5");
}

TEST(FileNames, NameSignsThatSomeFileSystemsRefuse) {
  EXPECT_EQ(NameOf("mat", 14), "mat-14-divided-by");
  EXPECT_EQ(NameOf("mat", 17), "mat-17-question-mark");
  EXPECT_EQ(NameOf("mat", 12), "mat-12-minus");
  EXPECT_EQ(NameOf("telv", 15), "telv-15-head-tick");
}

TEST(FileNames, SortAsTheTilesDo) {
  for (const LetterSet& set : LetterSets()) {
    QStringList names;
    for (int tile = 1; tile <= set.tiles; ++tile) {
      names << FileNameOf({.set = set.name, .tile = tile, .form = {}});
    }
    EXPECT_TRUE(std::ranges::is_sorted(names)) << set.name;
    EXPECT_EQ(QSet(names.begin(), names.end()).size(), set.tiles) << set.name;
  }
}

std::string WordName(const char* word, int number = 1) {
  return WordFileName(QString::fromUtf8(word), number).toStdString();
}

TEST(FileNames, OfWordsHaveTheirNumberAndText) {
  EXPECT_EQ(WordName("राम"), "word-01-राम");
  EXPECT_EQ(WordName("Amina Rao", 12), "word-12-Amina-Rao");
}

TEST(FileNames, OfWordsHaveDashesForWhatSomeFileSystemsRefuse) {
  EXPECT_EQ(WordName("9 - 4 = ?"), "word-01-9-4-=");
  EXPECT_EQ(WordName("a\\b/c:d*e?f\"g<h>i|j%"), "word-01-a-b-c-d-e-f-g-h-i-j");
  EXPECT_EQ(WordName("?"), "word-01");
}

TEST(FileNames, OfLongWordsAreCutBetweenLetters) {
  EXPECT_EQ(WordName(QByteArray("m").repeated(80).constData()), "word-01-" + std::string(64, 'm'));
  EXPECT_EQ(WordFileName(QStringLiteral("कि").repeated(40) + u'm', 1).size(), 8 + 64);
  const QString odd = WordFileName(u'm' + QStringLiteral("कि").repeated(40), 1);
  EXPECT_TRUE(odd.endsWith(QStringLiteral("कि"))) << odd.toStdString();
  EXPECT_EQ(odd.size(), 8 + 63);
}

TEST(FileNames, OfStepsSortToo) {
  EXPECT_EQ(StepName(QStringLiteral("a"), 2, 9), QStringLiteral("a-2"));
  EXPECT_EQ(StepName(QStringLiteral("a"), 2, 10), QStringLiteral("a-02"));
}

}  // namespace
}  // namespace bramlee
