// Sums that are chosen, and their pages.
#include "paper/sums.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <set>

#include "paper/pdf_file.h"
#include "tests/paper/pdf_reading.h"

namespace bramlee {
namespace {

using Key = std::pair<int, int>;

TEST(ChooseSums, TakesNumbersOfTheDrillsUpToTheLargest) {
  const std::vector<Sum> sums = ChooseSums(SumKind::Add, 10, 45, 1);
  std::set<Key> different;
  for (const Sum& sum : sums) {
    EXPECT_GE(std::min(sum.first, sum.second), 1);
    EXPECT_LE(sum.first + sum.second, 10);
    different.emplace(sum.first, sum.second);
  }
  EXPECT_EQ(different.size(), 45U) << "all that there are, before any comes again";
}

TEST(ChooseSums, OffersWhatTheDrillsDo) {
  std::set<int> firsts, seconds;
  for (const Sum& sum : ChooseSums(SumKind::Add, 1000, 28 * 19, 1)) {
    firsts.insert(sum.first), seconds.insert(sum.second);
  }
  EXPECT_EQ(firsts.size(), 28U);   // 1 to 20, 30, 40, ... 100
  EXPECT_EQ(seconds.size(), 19U);  // 1 to 10, 20, 30, ... 100
  EXPECT_FALSE(firsts.contains(25) || seconds.contains(15));
}

TEST(ChooseSums, ComeOutWholeAndNotNegative) {
  for (const Sum& sum : ChooseSums(SumKind::Subtract, 20, 300, 1)) EXPECT_GE(sum.Result(), 0);
  for (const Sum& sum : ChooseSums(SumKind::Divide, 100, 300, 1)) {
    EXPECT_EQ(sum.Result() * sum.second, sum.first);
  }
  for (const Sum& sum : ChooseSums(SumKind::PerCent, 100, 300, 1)) {
    EXPECT_EQ(sum.Result() * 100, sum.first * sum.second);
  }
  for (const Sum& sum : ChooseSums(SumKind::Multiply, 30, 300, 1)) EXPECT_LE(sum.Result(), 30);
}

TEST(ChooseSums, ChoosesTheSameForTheSameSeed) {
  EXPECT_EQ(ChooseSums(SumKind::Add, 10, 20, 7), ChooseSums(SumKind::Add, 10, 20, 7));
  EXPECT_NE(ChooseSums(SumKind::Add, 10, 20, 7), ChooseSums(SumKind::Add, 10, 20, 8));
}

TEST(ChooseSums, AreNoneWhereThereAreNone) {
  EXPECT_TRUE(ChooseSums(SumKind::Add, 1, 20, 1).empty());
  EXPECT_TRUE(ChooseSums(SumKind::Add, 10, 0, 1).empty());
  EXPECT_TRUE(ChooseSums(SumKind::Add, 10, -5, 1).empty());
}

TEST(Sum, HasItsResult) {
  const auto result = [](SumKind kind) { return Sum{kind, 12, 3}.Result(); };
  EXPECT_EQ(result(SumKind::Add), 15);
  EXPECT_EQ(result(SumKind::Subtract), 9);
  EXPECT_EQ(result(SumKind::Multiply), 36);
  EXPECT_EQ(result(SumKind::Divide), 4);
  EXPECT_EQ((Sum{SumKind::PerCent, 20, 50}.Result()), 10);
  EXPECT_EQ((Sum{SumKind::Divide, 20, 0}.Result()), 0);
}

TEST(SumSheet, HasAnswersOnPagesOfTheirOwn) {
  SKIP_WITHOUT_PDF_TOOLS();
  SumSheet sheet{.sums = ChooseSums(SumKind::Add, 10, 30, 1)};
  const int perPage = SumsOnAPage(sheet);
  EXPECT_EQ(perPage, 22);
  LaidOut made = LayOut(sheet);
  ASSERT_TRUE(made.error.IsNone());
  EXPECT_EQ(made.pages->Count(), 4);
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("sums.pdf"));
  ASSERT_TRUE(WritePdf(*made.pages, {}, file).IsNone());
  EXPECT_TRUE(TextOfPdf(file, 1).contains(QStringLiteral("22.")));
  EXPECT_TRUE(TextOfPdf(file, 1).contains(QRegularExpression(QStringLiteral("\\b1\\. +12\\."))))
      << "sums run down a column";
  EXPECT_TRUE(TextOfPdf(file, 2).contains(QStringLiteral("23.")));
  EXPECT_FALSE(TextOfPdf(file, 2).contains(QStringLiteral("Answers")));
  EXPECT_TRUE(TextOfPdf(file, 3).contains(QStringLiteral("Answers")));
  EXPECT_TRUE(TextOfPdf(file, 4).contains(QStringLiteral("30.")));
  sheet.answers = false;
  EXPECT_EQ(LayOut(sheet).pages->Count(), 2);
}

TEST(SumSheet, SaysWhatItCannotHold) {
  EXPECT_EQ(LayOut(SumSheet()).error.kind, PaperError::Kind::NothingToPrint);
  SumSheet large{.sums = ChooseSums(SumKind::Add, 10, 3, 1), .digitMm = 100};
  EXPECT_EQ(SumsOnAPage(large), 0);
  EXPECT_EQ(LayOut(large).error.kind, PaperError::Kind::RowTooHigh);
}

TEST(SumKinds, HaveNamesThatReadBack) {
  for (const SumKind kind : SumKinds()) {
    EXPECT_EQ(SumKindNamed(QLatin1String(NameOf(kind))), kind);
  }
  EXPECT_EQ(SumKinds().size(), 5U);
  EXPECT_FALSE(SumKindNamed(QStringLiteral("root")));
}

}  // namespace
}  // namespace bramlee
