// Worksheets laid out and read back.
#include "paper/worksheet.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QTemporaryDir>

#include "paper/heading.h"
#include "paper/pdf_file.h"
#include "strokes/word.h"
#include "tests/paper/painted.h"
#include "tests/paper/pdf_reading.h"

namespace bramlee {
namespace {

Worksheet SheetOf(std::vector<Practice> practices, std::vector<RowKind> rows) {
  Worksheet sheet;
  sheet.practices = std::move(practices);
  sheet.style.rows = std::move(rows);
  return sheet;
}

/// A page in grey, 300 dots an inch, painted by ourselves.
QImage PictureOf(const LaidOut& made, int page = 0) {
  const QSizeF size = made.pages->SizeMm() * kDotsPerMm;
  QImage picture(size.toSize(), QImage::Format_Grayscale8);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(kDotsPerMm, kDotsPerMm);
  made.pages->Paint(painter, page);
  return picture;
}

/// What is darker than that, in millimetres.
QRectF DarkBox(const QImage& picture, int darker = 60) {
  QRect box;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (qGray(picture.pixel(x, y)) < darker) box |= QRect(x, y, 1, 1);
    }
  }
  return {box.x() / kDotsPerMm, box.y() / kDotsPerMm, box.width() / kDotsPerMm,
          box.height() / kDotsPerMm};
}

QImage Page(Worksheet sheet) {
  sheet.heading.shown = false;
  const LaidOut made = LayOut(sheet);
  EXPECT_TRUE(made.error.IsNone()) << qPrintable(made.error.text);
  return made.pages ? PictureOf(made) : QImage();
}

/// One letter alone in its row: a sheet that is as narrow as that.
Worksheet Narrow(const Practice& practice, RowKind kind, double bodyMm) {
  Worksheet sheet = SheetOf({practice}, {kind});
  sheet.practices[0].caption.clear();
  sheet.style.bodyMm = bodyMm;
  sheet.style.ruling = Ruling::None;
  sheet.page.paperMm = {2 * kMarginMm + bodyMm + 10, 200};
  return sheet;
}

TEST(Worksheet, HasLettersOfTheBodyHeight) {
  for (const double body : kBodySizesMm) {
    const double pen = 0.06 * body;
    const QRectF h = DarkBox(Page(Narrow(Tile("engc", 8), RowKind::Model, body)));
    const QRectF grey = DarkBox(Page(Narrow(Tile("engc", 8), RowKind::Grey, body)), 250);
    EXPECT_NEAR(grey.height(), body + pen, 0.2) << body;
    EXPECT_NEAR(grey.width(), 0.75 * body + pen, 0.2) << body;
    EXPECT_GE(h.height(), grey.height() - 0.2);
    const QRectF b = DarkBox(Page(Narrow(Tile("engs", 2), RowKind::Grey, body)), 250);
    EXPECT_NEAR(b.height(), body + pen, 0.2) << "a tall small letter is as high as a capital";
  }
}

TEST(Worksheet, HasTheRulingWhereTheLettersStand) {
  Worksheet sheet = SheetOf({Tile("engc", 8)}, {RowKind::Blank});
  sheet.practices[0].caption.clear();
  const QImage english = Page(sheet);
  for (const double line : {0.0, 10.0, 20.0, 30.0}) {
    EXPECT_TRUE(IsDark(english, 100, kMarginMm + 0.6 + line)) << line;
    EXPECT_FALSE(IsDark(english, 100, kMarginMm + 0.6 + line + 1)) << line;
  }
  EXPECT_TRUE(IsDark(english, 12.2, 12.6) && IsDark(english, 197.8, 12.6));
  EXPECT_FALSE(IsDark(english, 11.8, 12.6) || IsDark(english, 198.2, 12.6));
  sheet.style.ruling = Ruling::Hindi;
  const QImage hindi = Page(sheet);
  EXPECT_TRUE(IsDark(hindi, 100, 12.6) && IsDark(hindi, 100, 32.6));
  EXPECT_FALSE(IsDark(hindi, 100, 22.6) || IsDark(hindi, 100, 42.6));
}

/// How thick the line at that height is, in millimetres.
double ThicknessAt(const QImage& page, double yMm) {
  constexpr double kAround = 0.8;
  int dark = 0;
  for (double y = yMm - kAround; y < yMm + kAround; y += 1 / kDotsPerMm) {
    dark += IsDark(page, 100, y) ? 1 : 0;
  }
  return dark / kDotsPerMm;
}

TEST(Worksheet, HasTheLineThickThatLettersStandOnOrHangFrom) {
  Worksheet sheet = SheetOf({Tile("engc", 8)}, {RowKind::Blank});
  sheet.practices[0].caption.clear();
  const auto thickness = [&](Ruling ruling, double line) {
    sheet.style.ruling = ruling;
    return ThicknessAt(Page(sheet), kMarginMm + 0.6 + line);
  };
  constexpr double kThick = 0.45, kThin = 0.2, kOff = 0.1;
  EXPECT_NEAR(thickness(Ruling::English, 0), kThin, kOff);
  EXPECT_NEAR(thickness(Ruling::English, 10), kThin, kOff);
  EXPECT_NEAR(thickness(Ruling::English, 20), kThick, kOff);
  EXPECT_NEAR(thickness(Ruling::Hindi, 0), kThick, kOff);
  EXPECT_NEAR(thickness(Ruling::Hindi, 20), kThin, kOff);
  EXPECT_NEAR(thickness(Ruling::Telugu, 20), kThin, kOff);
  sheet.style.bodyMm = 10;
  sheet.style.ruling = Ruling::English;
  EXPECT_NEAR(ThicknessAt(Page(sheet), kMarginMm + 0.3 + 10), 0.3, 0.09) << "thinner";
}

TEST(Worksheet, HasABoxALetter) {
  Worksheet sheet = SheetOf({Tile("mat", 8)}, {RowKind::Grey});
  sheet.practices[0].caption.clear();
  const QImage page = Page(sheet);
  int edges = 0, digits = 0;
  for (int x = 1; x < page.width(); ++x) {
    const auto grey = [&](double yMm) {
      return std::pair(IsDark(page, (x - 0.5) / kDotsPerMm, yMm),
                       IsDark(page, (x + 0.5) / kDotsPerMm, yMm));
    };
    edges += grey(kMarginMm + 1) == std::pair(false, true) ? 1 : 0;
    digits += grey(kMarginMm + 2.6 + 10) == std::pair(false, true) ? 1 : 0;
  }
  EXPECT_GT(edges, 5);
  EXPECT_EQ(digits, edges + edges - 1) << "the middle of each eight once, between two edges";
}

TEST(Worksheet, WithoutAChoiceHasTheRulingOfTheScript) {
  EXPECT_EQ(RulingOf("engs"), Ruling::English);
  EXPECT_EQ(RulingOf("hinv"), Ruling::Hindi);
  EXPECT_EQ(RulingOf("telc"), Ruling::Telugu);
  EXPECT_EQ(RulingOf("mat"), Ruling::Boxes);
  EXPECT_EQ(RulingOf(WordPractice(QStringLiteral("राम")).set), Ruling::Hindi);
  EXPECT_EQ(RulingOf(WordPractice(QStringLiteral("Ram")).set), Ruling::English);
}

TEST(Worksheet, HasTheModelAtTheEndOfEachRowForALeftHand) {
  Worksheet sheet = SheetOf({Tile("engc", 8)}, {RowKind::Blank});
  sheet.practices[0].caption.clear();
  sheet.style.ruling = Ruling::None;
  EXPECT_TRUE(DarkBox(Page(sheet)).isEmpty());
  sheet.style.hand = Hand::Left;
  const QRectF model = DarkBox(Page(sheet));
  EXPECT_GT(model.left(), 160);
  EXPECT_GT(model.right(), 185);
}

TEST(Worksheet, GivesAModelRoomForItsNumbers) {
  // The numbers of both stand above what the letters themselves reach.
  for (const auto& [set, tile] : {
           std::pair("hinv", 11), {"telc", 19}
  }) {
    Worksheet sheet = Narrow(Tile(set, tile), RowKind::Model, 28);
    sheet.page.paperMm.setWidth(100);
    EXPECT_GE(DarkBox(Page(sheet)).top(), kMarginMm - 0.1) << set;
  }
}

TEST(Worksheet, KeepsRowsApartWhateverHangsBelow) {
  Worksheet sheet = Narrow(Tile("engs", 7), RowKind::Grey, 20);  // g
  const double one = DarkBox(Page(sheet), 250).height();
  sheet.style.rows = {RowKind::Grey, RowKind::Grey};
  EXPECT_GT(DarkBox(Page(sheet), 250).height(), 2 * one + 1.4) << "they do not overlap";
}

TEST(Worksheet, BuildsALetterUpInAsManyCells) {
  // H has three strokes: a black one in each of the first three cells, nothing in the others.
  Worksheet sheet = SheetOf({Tile("engc", 8)}, {RowKind::BuiltUp});
  sheet.practices[0].caption.clear();
  sheet.style.ruling = Ruling::None;
  const QImage page = Page(sheet);
  const QRectF black = DarkBox(page);
  EXPECT_LT(black.right(), 100);
  const QRectF any = DarkBox(page, 250);
  EXPECT_NEAR(any.right(), black.right(), 6);
}

TEST(Worksheet, GoesOnInTheNextRowWithStrokesBuiltUpThatAreMoreThanItsCells) {
  Worksheet one = Narrow(Tile("engc", 8), RowKind::BuiltUp, 20);
  const LaidOut made = LayOut(one);
  ASSERT_TRUE(made.error.IsNone());
  const QImage page = Page(one);
  const QRectF all = DarkBox(page, 250);
  EXPECT_GT(all.height(), 55) << "three rows of one cell";
  // The left stem, the right stem, the bar.
  const auto blackIn = [&](int row) {
    const int height = static_cast<int>(all.height() / 3 * kDotsPerMm);
    const int top = static_cast<int>(all.top() * kDotsPerMm) + row * height;
    return DarkBox(page.copy(0, top, page.width(), height));
  };
  EXPECT_GT(blackIn(1).left(), blackIn(0).left() + 10);
  EXPECT_GT(blackIn(2).width(), 10);
}

TEST(Worksheet, KeepsTheRowsOfALetterOnOnePage) {
  const std::vector<RowKind> five(5, RowKind::Blank);
  const LaidOut made = LayOut(SheetOf({Tile("engc", 1), Tile("engc", 2)}, five));
  ASSERT_TRUE(made.error.IsNone());
  EXPECT_EQ(made.pages->Count(), 2);
  EXPECT_LT(DarkBox(PictureOf(made, 0), 200).bottom(), 200) << "there is room for a row or two";
  const LaidOut many = LayOut(SheetOf({Tile("engc", 1)}, std::vector<RowKind>(9, RowKind::Blank)));
  EXPECT_EQ(many.pages->Count(), 2) << "more rows than a page holds";
}

TEST(Worksheet, LeavesWhiteBetweenTheRowsOfTwoLetters) {
  Worksheet sheet = SheetOf({Tile("engc", 8), Tile("engc", 9)}, {RowKind::Blank});
  for (Practice& practice : sheet.practices) practice.caption.clear();
  const QImage page = Page(sheet);
  const double foot = kMarginMm + 0.6 + 30;
  EXPECT_TRUE(IsDark(page, 100, foot));
  EXPECT_TRUE(IsDark(page, 100, foot + 6 + 0.6)) << "the second letter's top line";
  for (double y = foot + 0.5; y < foot + 6; y += 0.2) EXPECT_FALSE(IsDark(page, 100, y)) << y;
}

TEST(Worksheet, SaysThatARowDoesNotFitThePaper) {
  Worksheet sheet = SheetOf({Tile("engc", 1)}, {RowKind::Blank});
  sheet.page.paperMm = {148, 60};
  const LaidOut made = LayOut(sheet);
  EXPECT_EQ(made.error.kind, PaperError::Kind::RowTooHigh);
  EXPECT_EQ(made.pages, nullptr);
  EXPECT_TRUE(made.error.text.startsWith(QStringLiteral("a row of letters 20 mm high takes ")))
      << qPrintable(made.error.text);
}

TEST(Worksheet, LeavesALetterWithoutStrokesOutAndSaysSo) {
  const LaidOut made = LayOut(SheetOf({Tile("hinv", 13), Tile("hinv", 14)}, {RowKind::Model}));
  ASSERT_TRUE(made.error.IsNone());
  EXPECT_EQ(made.pages->Notes(), QStringList{QStringLiteral("picture has no strokes")});
  const LaidOut none = LayOut(SheetOf({Tile("hinv", 14)}, {RowKind::Model}));
  EXPECT_EQ(none.error.kind, PaperError::Kind::NothingToPrint);
  EXPECT_EQ(none.error.text, QStringLiteral("picture has no strokes"));
}

TEST(Worksheet, SaysWhatIsLeftOutOfAWord) {
  const LaidOut made = LayOut(SheetOf({WordPractice(QStringLiteral("Am字i"))}, {RowKind::Grey}));
  ASSERT_TRUE(made.error.IsNone());
  // Where no font shows the character, the caption is noted as well.
  ASSERT_FALSE(made.pages->Notes().isEmpty());
  EXPECT_EQ(made.pages->Notes().constFirst(),
            QStringLiteral("字 has no strokes and is left out of \"Am字i\""));
}

TEST(Worksheet, OfNothingSaysSo) {
  EXPECT_EQ(LayOut(Worksheet()).error.text, QStringLiteral("nothing is chosen"));
  EXPECT_EQ(LayOut(SheetOf({Tile("engc", 1)}, {})).error.text,
            QStringLiteral("no rows are chosen"));
}

TEST(Worksheet, LeavesACaptionOutThatNoFontShows) {
  Worksheet sheet = SheetOf({Tile("engc", 1)}, {RowKind::Model});
  sheet.practices[0].caption = QStringLiteral("A \U00012000");  // cuneiform
  const LaidOut made = LayOut(sheet);
  ASSERT_TRUE(made.error.IsNone());
  ASSERT_EQ(made.pages->Notes().size(), 1);
  EXPECT_TRUE(made.pages->Notes()[0].startsWith(QStringLiteral("no font shows the caption")));
  EXPECT_FALSE(PictureOf(made).isNull());
}

TEST(Worksheet, MakesALongWordSmallerAndThenBreaksIt) {
  const auto pageOf = [](const QString& word) {
    Worksheet sheet = SheetOf({WordPractice(word)}, {RowKind::Grey});
    sheet.practices[0].caption.clear();
    sheet.style.ruling = Ruling::None;
    return DarkBox(Page(sheet), 250);
  };
  const QRectF once = pageOf(QStringLiteral("Venkat"));
  const QRectF smaller = pageOf(QStringLiteral("Venkateshwara"));
  const QRectF lines = pageOf(QStringLiteral("Venkateshwara ").repeated(5).left(60));
  EXPECT_LT(smaller.height(), once.height());
  EXPECT_GT(lines.height(), 2 * smaller.height()) << "two lines at least";
  for (const QRectF& box : {once, smaller, lines}) {
    EXPECT_GE(box.left(), kMarginMm - 0.1);
    EXPECT_LE(box.right(), 210 - kMarginMm + 0.1);
  }
}

TEST(Heading, TakesMoreLinesForALongName) {
  const double width = 186;
  const double usual = HeadingHeightMm({.name = QStringLiteral("Amina Rao")}, width);
  EXPECT_EQ(HeadingHeightMm({}, width), usual);
  EXPECT_EQ(HeadingHeightMm({.name = QString(20, u'm')}, width), usual) << "smaller";
  EXPECT_GT(HeadingHeightMm({.name = QString(60, u'm')}, width), usual);
  EXPECT_EQ(HeadingHeightMm({.shown = false}, width), 0);
}

TEST(Heading, CanBeReadInTheDocument) {
  SKIP_WITHOUT_PDF_TOOLS();
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("sheet.pdf"));
  Worksheet sheet = SheetOf({Tile("engc", 1)}, {RowKind::Model});
  sheet.heading = {.name = QStringLiteral("Amina Rao"), .schoolClass = QStringLiteral("LKG")};
  ASSERT_TRUE(WritePdf(*LayOut(sheet).pages, {}, file).IsNone());
  const QString text = TextOfPdf(file).simplified();
  EXPECT_TRUE(text.startsWith(QStringLiteral("Name Amina Rao Class LKG Date"))) << qPrintable(text);
  EXPECT_TRUE(text.endsWith(QStringLiteral("capital A"))) << qPrintable(text);
}

TEST(Heading, BreaksALongNameBetweenWords) {
  SKIP_WITHOUT_PDF_TOOLS();
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("sheet.pdf"));
  Worksheet sheet = SheetOf({Tile("engc", 1)}, {RowKind::Model});
  sheet.heading.name =
      QStringLiteral("Venkateshwara Subramaniam Krishnamurthy Lakshminarayana Rao Das");
  ASSERT_TRUE(WritePdf(*LayOut(sheet).pages, {}, file).IsNone());
  const QString text = TextOfPdf(file);
  for (const QString& word : sheet.heading.name.split(u' ')) {
    EXPECT_TRUE(text.contains(word)) << qPrintable(word);
  }
}

TEST(Choices, HaveNamesThatReadBack) {
  for (const RowKind kind : RowKinds()) {
    EXPECT_EQ(RowKindNamed(QLatin1String(NameOf(kind))), kind);
  }
  for (const Ruling ruling : Rulings()) {
    EXPECT_EQ(RulingNamed(QLatin1String(NameOf(ruling))), ruling);
  }
  EXPECT_EQ(RowKinds().size(), 6U);
  EXPECT_EQ(Rulings().size(), 5U);
  EXPECT_FALSE(RowKindNamed(QStringLiteral("striped")));
  EXPECT_FALSE(RulingNamed(QString()));
}

}  // namespace
}  // namespace bramlee
