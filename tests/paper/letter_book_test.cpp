// The book of all letters.
#include "paper/letter_book.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "letters/letter_sets.h"
#include "paper/pdf_file.h"
#include "tests/paper/pdf_reading.h"

namespace bramlee {
namespace {

LetterBook BookOf(std::vector<std::string_view> sets) {
  LetterBook book{.sets = std::move(sets)};
  book.style.bodyMm = 14;
  return book;
}

TEST(LetterBook, HasContentsAndPageNumbers) {
  SKIP_WITHOUT_PDF_TOOLS();
  const LaidOut made = LayOut(BookOf({"engc", "hinv"}));
  ASSERT_TRUE(made.error.IsNone());
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("book.pdf"));
  ASSERT_TRUE(WritePdf(*made.pages, {}, file).IsNone());
  const QString contents = TextOfPdf(file, 1).simplified();
  EXPECT_TRUE(contents.contains(QStringLiteral("English capital letters 2")))
      << qPrintable(contents);
  int hindi = 2;
  while (hindi < made.pages->Count() &&
         !TextOfPdf(file, hindi).contains(QStringLiteral("vowel a"))) {
    ++hindi;
  }
  EXPECT_TRUE(contents.contains(QStringLiteral("Hindi vowels %1").arg(hindi)))
      << qPrintable(contents);
  const QString page = TextOfPdf(file, hindi).simplified();
  EXPECT_TRUE(page.startsWith(QStringLiteral("Hindi vowels"))) << qPrintable(page);
  EXPECT_TRUE(page.endsWith(QStringLiteral(" %1").arg(hindi))) << qPrintable(page);
}

TEST(LetterBook, HasEverySetWithItsTitle) {
  for (const LetterSet& set : LetterSets()) {
    EXPECT_FALSE(TitleOfSet(set.name).isEmpty()) << set.name;
  }
  EXPECT_EQ(LanguageOfSet("telc"), QStringLiteral("te"));
  EXPECT_EQ(TitleOfSet("greek"), QString());
}

TEST(LetterBook, SaysWhichLettersHaveNoStrokes) {
  const LaidOut made = LayOut(BookOf({"hinv"}));
  ASSERT_TRUE(made.error.IsNone());
  EXPECT_EQ(made.pages->Notes(),
            QStringList{QStringLiteral("Hindi vowels, tile 14, has no strokes")});
}

TEST(LetterBook, SaysWhatItCannotHold) {
  EXPECT_EQ(LayOut(BookOf({"greek"})).error.kind, PaperError::Kind::UnknownSet);
  LetterBook high = BookOf({"engc"});
  high.style.bodyMm = 250;
  EXPECT_EQ(LayOut(high).error.kind, PaperError::Kind::RowTooHigh);
  LetterBook bare = BookOf({"engc"});
  bare.style.rows.clear();
  EXPECT_EQ(LayOut(bare).error.kind, PaperError::Kind::NothingToPrint);
}

TEST(LetterBook, HasLettersOfTheBookUnlessGivenOnesAreAskedFor) {
  SKIP_WITHOUT_PDF_TOOLS();
  LetterBook book = BookOf({"hinv"});
  book.style.rows = {RowKind::Blank};
  for (const bool given : {false, true}) {
    book.given = given;
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("book.pdf"));
    ASSERT_TRUE(WritePdf(*LayOut(book).pages, {}, file).IsNone());
    const QString text = TextOfPdf(file);
    EXPECT_TRUE(text.contains(QStringLiteral("moon arc")));
    EXPECT_EQ(text.contains(QStringLiteral("moon arc with a dot")), !given);
  }
}

}  // namespace
}  // namespace bramlee
