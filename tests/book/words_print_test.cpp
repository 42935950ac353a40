// Letters with their signs, and whole words, beside print: how much of their ink is the same at the
// same box, and that no name is left out.
#include <gtest/gtest.h>

#include <QFile>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "strokes/word.h"
#include "tests/book/overlap.h"
#include "tools/contact_sheets/print_fonts.h"
#include "tools/contact_sheets/word_clusters.h"

namespace bramlee {
namespace {

std::vector<QString> TextsIn(const char* file) {
  QFile lines(QStringLiteral(BRAMLEE_TEST_DATA "/../strokes/words/") + QString::fromLatin1(file));
  EXPECT_TRUE(lines.open(QIODevice::ReadOnly));
  std::vector<QString> texts;
  for (const QByteArray& line : lines.readAll().split('\n')) {
    if (!line.isEmpty() && !line.startsWith('#')) texts.push_back(QString::fromUtf8(line));
  }
  return texts;
}

class WordsOfAChild : public testing::TestWithParam<const char*> {};

TEST_P(WordsOfAChild, AreWrittenWholeButForOneInAHundredAtMost) {
  const std::vector<QString> texts = TextsIn(GetParam());
  ASSERT_GE(texts.size(), 600U);
  std::size_t whole = 0;
  for (const QString& text : texts) {
    const Word word = LayWord(text.toStdString());
    std::string written;
    for (const WordLetter& letter : word.letters) {
      EXPECT_GT(letter.strokes, 0U);
      written += letter.text;
    }
    const bool isWhole =
        word.leftOut.empty() && QString::fromStdString(written) == QString(text).remove(u' ');
    if (!isWhole) std::printf("not whole: %s\n", qPrintable(text));
    whole += isWhole;
  }
  std::printf("%zu of %zu whole\n", whole, texts.size());
  EXPECT_GE(whole * 100, texts.size() * 99);
}

TEST_P(WordsOfAChild, PartBetweenLettersWhereQtDoes) {
  for (const QString& text : TextsIn(GetParam())) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype at = 0;
    for (const WordLetter& letter : LayWord(text.toStdString()).letters) {
      while (text[at] == u' ') ++at;
      at += QString::fromStdString(letter.text).size();
      finder.setPosition(at);
      EXPECT_TRUE(finder.isAtBoundary()) << text.toStdString() << ' ' << letter.text;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EveryList, WordsOfAChild,
                         testing::Values("first_words.txt", "first_names.txt"),
                         [](const auto& list) { return std::string(list.param).substr(6, 5); });

struct Measured {
  std::string text;
  bool bare = false;  ///< a letter without a sign
  double overlap = 0;
};

std::vector<Measured> Measure(std::string_view script) {
  std::vector<Measured> all;
  for (const WordCluster& cluster : ClustersOf(script)) {
    const CentreLine line = LineOf(LayWord(cluster.text).letter);
    Measured measured{.text = cluster.text, .bare = cluster.bare};
    for (const QString& family : PrintFontsOf(script)) {
      const auto sign = LineOf(QString::fromStdString(cluster.text), family);
      if (!sign || sign->empty()) continue;
      measured.overlap = std::max(measured.overlap, OverlapInBox(line, *sign));
    }
    all.push_back(measured);
  }
  return all;
}

/// A sign that hung at a wrong place would make its letter less like print than the letter is
/// alone.
struct Expected {
  const char* script;
  std::size_t clusters;
  double median;     ///< of all clusters, as measured
  double belowBare;  ///< how far it lies below that of the letters alone at most
};

class SweepOfClusters : public testing::TestWithParam<Expected> {};

TEST_P(SweepOfClusters, AreAsNearToPrintAsTheirLettersAre) {
  const Expected& expected = GetParam();
  std::vector<double> all;
  std::vector<double> bare;
  for (const Measured& each : Measure(expected.script)) {
    all.push_back(each.overlap);
    if (each.bare) bare.push_back(each.overlap);
    if (each.overlap < 0.5) std::printf("%s %.2f\n", each.text.c_str(), each.overlap);
  }
  EXPECT_EQ(all.size(), expected.clusters);
  std::printf("%s: median %.3f, letters alone %.3f\n", expected.script, MedianOf(all),
              MedianOf(bare));
  EXPECT_GE(MedianOf(all), expected.median);
  EXPECT_GE(MedianOf(all), MedianOf(bare) - expected.belowBare);
}

INSTANTIATE_TEST_SUITE_P(
    EveryScript, SweepOfClusters,
    testing::Values(Expected{.script = "hin", .clusters = 396, .median = 0.765, .belowBare = 0},
                    Expected{.script = "tel", .clusters = 510, .median = 0.75, .belowBare = 0.08}),
    [](const auto& expected) { return std::string(expected.param.script); });

}  // namespace
}  // namespace bramlee
