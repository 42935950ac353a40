// Documents as files, read back by other programs.
#include "paper/pdf_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include "paper/print_text.h"
#include "paper/vector_letter.h"
#include "tests/paper/pdf_reading.h"

namespace bramlee {
namespace {

const DocumentInfo kInfo{.title = QStringLiteral("Letters क"),
                         .author = QStringLiteral("A. Teacher (రా)"),
                         .language = QStringLiteral("hi")};

/// Pages with a bar of 100 mm, 1 mm thick, 20 mm from the left and 30 mm from the top, and a line
/// of text.
class BarPages : public PrintedPages {
 public:
  explicit BarPages(int count, QSizeF size = kA4Mm) : count_(count), size_(size) {}
  int Count() const override { return count_; }
  QSizeF SizeMm() const override { return size_; }
  void Paint(QPainter& painter, int page) const override {
    painter.fillRect(QRectF(20, 30, 100, 1), Qt::black);
    PaintText(painter, {20, 50}, QStringLiteral("Page %1 है").arg(page + 1), 6, Qt::black);
  }
  QStringList Notes() const override { return {}; }

 private:
  int count_;
  QSizeF size_;
};

class PdfFile : public testing::Test {
 protected:
  QString File() const { return folder_.filePath(QStringLiteral("sheet.pdf")); }
  QStringList Files() const {
    return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
  }

  QTemporaryDir folder_;
};

TEST_F(PdfFile, HasThePagesInTheirSize) {
  SKIP_WITHOUT_PDF_TOOLS();
  ASSERT_TRUE(WritePdf(BarPages(3), kInfo, File()).IsNone());
  EXPECT_EQ(InfoOfPdf(File(), QStringLiteral("Pages")), QStringLiteral("3"));
  EXPECT_TRUE(InfoOfPdf(File(), QStringLiteral("Page size")).contains(QStringLiteral("(A4)")));
  ASSERT_TRUE(WritePdf(BarPages(1, kLetterMm.transposed()), kInfo, File()).IsNone());
  const QString size = InfoOfPdf(File(), QStringLiteral("Page size"));
  EXPECT_TRUE(size.startsWith(QStringLiteral("792 x 612"))) << qPrintable(size);
}

TEST_F(PdfFile, HasLengthsInMillimetres) {
  SKIP_WITHOUT_PDF_TOOLS();
  ASSERT_TRUE(WritePdf(BarPages(1), kInfo, File()).IsNone());
  const QImage page = PageOfPdf(File());
  const auto dark = [&](double xMm, double yMm) {
    return qGray(page.pixel(static_cast<int>(xMm * kDotsPerMm),
                            static_cast<int>(yMm * kDotsPerMm))) < 128;
  };
  EXPECT_TRUE(dark(20.1, 30.5) && dark(119.9, 30.5));
  EXPECT_FALSE(dark(19.8, 30.5) || dark(120.2, 30.5));
  EXPECT_TRUE(dark(70, 30.1) && dark(70, 30.9));
  EXPECT_FALSE(dark(70, 29.8) || dark(70, 31.2));
}

TEST_F(PdfFile, SaysTitleAuthorAndLanguage) {
  SKIP_WITHOUT_PDF_TOOLS();
  ASSERT_TRUE(WritePdf(BarPages(1), kInfo, File()).IsNone());
  EXPECT_EQ(InfoOfPdf(File(), QStringLiteral("Title")), kInfo.title);
  EXPECT_EQ(InfoOfPdf(File(), QStringLiteral("Author")), kInfo.author);
  EXPECT_EQ(InfoOfPdf(File(), QStringLiteral("Creator")), QStringLiteral("BRAM LEE"));
  const QByteArray bytes = BytesOf(File());
  const auto catalog = bytes.lastIndexOf("/Type /Catalog");
  EXPECT_TRUE(
      bytes.mid(catalog, bytes.indexOf("endobj", catalog) - catalog).contains("/Lang (hi)"));
}

TEST_F(PdfFile, HasTextThatCanBeSearchedInEmbeddedFonts) {
  SKIP_WITHOUT_PDF_TOOLS();
  ASSERT_TRUE(WritePdf(BarPages(2), kInfo, File()).IsNone());
  EXPECT_TRUE(TextOfPdf(File(), 2).contains(QStringLiteral("Page 2")));
  const QByteArrayList fonts = OutputOf(QStringLiteral("pdffonts"), {File()}).split('\n').mid(2);
  ASSERT_GE(fonts.size(), 2);
  for (const QByteArray& font : fonts.mid(0, fonts.size() - 1)) {
    // name, kind in two words, encoding, then: embedded, a part of it, with its characters
    EXPECT_TRUE(font.simplified().contains("Identity-H yes")) << font.constData();
    EXPECT_FALSE(font.contains("Type 3")) << font.constData();
  }
  EXPECT_EQ(OutputOf(QStringLiteral("pdfimages"), {QStringLiteral("-list"), File()}).count('\n'), 2)
      << "a head of two lines and no picture";
}

TEST_F(PdfFile, TellsItsProgressBeforeEachPageAndAtTheEnd) {
  std::vector<std::pair<int, int>> told;
  const auto tell = [&told](int done, int of) { return told.emplace_back(done, of), true; };
  ASSERT_TRUE(WritePdf(BarPages(2), kInfo, File(), tell).IsNone());
  const std::vector<std::pair<int, int>> all{
      {0, 2},
      {1, 2},
      {2, 2}
  };
  EXPECT_EQ(told, all);
}

TEST_F(PdfFile, CancelledAtAnyPageLeavesNothing) {
  for (int last = 0; last <= 3; ++last) {
    const auto stop = [last](int done, int /*of*/) { return done < last; };
    const PaperError error = WritePdf(BarPages(3), kInfo, File(), stop);
    EXPECT_EQ(error.kind, PaperError::Kind::Cancelled) << last;
    EXPECT_EQ(Files(), QStringList()) << last;
  }
}

TEST_F(PdfFile, CancelledLeavesAnEarlierOneAsItWas) {
  ASSERT_TRUE(WritePdf(BarPages(1), kInfo, File()).IsNone());
  const QByteArray before = BytesOf(File());
  WritePdf(BarPages(3), kInfo, File(), [](int done, int /*of*/) { return done < 2; });
  EXPECT_EQ(BytesOf(File()), before);
}

TEST_F(PdfFile, SaysWhyItCannotBeWritten) {
  const QString nowhere = folder_.filePath(QStringLiteral("no/folder.pdf"));
  const PaperError error = WritePdf(BarPages(1), kInfo, nowhere);
  EXPECT_EQ(error.kind, PaperError::Kind::CannotWrite);
  EXPECT_TRUE(error.text.startsWith(nowhere + QStringLiteral(": "))) << qPrintable(error.text);
}

TEST_F(PdfFile, DoesNotWaitForPagesThatCannotBeKept) {
  int asked = 0;
  const auto count = [&asked](int /*done*/, int /*of*/) { return ++asked > 0; };
  WritePdf(BarPages(1), kInfo, folder_.filePath(QStringLiteral("no/folder.pdf")), count);
  EXPECT_EQ(asked, 0);
}

class PrintingPages : public PdfFile {
 protected:
  PrintingPages() : device_(File()) { device_.setResolution(300); }
  void SetPage(const QPageSize& size, const QMarginsF& margins) {
    device_.setPageLayout({size, QPageLayout::Portrait, margins, QPageLayout::Millimeter});
  }
  /// Where the bar begins and ends on the page, in millimetres.
  std::pair<double, double> Bar() const {
    const QImage page = PageOfPdf(File());
    int left = page.width(), right = 0;
    for (int y = 0; y < page.height() / 4; ++y) {
      for (int x = 0; x < page.width(); ++x) {
        if (qGray(page.pixel(x, y)) < 128) left = std::min(left, x), right = std::max(right, x + 1);
      }
    }
    return {left * 25.4 / 300, right * 25.4 / 300};
  }

  QPdfWriter device_;
};

TEST_F(PrintingPages, TakesThePagesThatAreAskedFor) {
  SKIP_WITHOUT_PDF_TOOLS();
  SetPage(QPageSize(QPageSize::A4), {});
  ASSERT_TRUE(PrintPages(BarPages(5), device_, 1, 2).IsNone());
  EXPECT_EQ(InfoOfPdf(File(), QStringLiteral("Pages")), QStringLiteral("2"));
  EXPECT_TRUE(TextOfPdf(File(), 1).contains(QStringLiteral("Page 2")));
}

TEST_F(PrintingPages, CountsFromThePapersCornerWhateverThePrintersMargins) {
  SKIP_WITHOUT_PDF_TOOLS();
  SetPage(QPageSize(QPageSize::A4), {7, 8, 9, 10});
  ASSERT_TRUE(PrintPages(BarPages(1), device_, 0, 0).IsNone());
  EXPECT_NEAR(Bar().first, 20, 0.1);
  EXPECT_NEAR(Bar().second, 120, 0.1);
}

/// A printer that has gone away by the second page.
class GoneAway : public QPdfWriter {
 public:
  using QPdfWriter::QPdfWriter;
  bool newPage() override { return false; }
};

TEST_F(PrintingPages, SaysThatThePrinterDoesNotTakeThem) {
  GoneAway device(File());
  const PaperError error = PrintPages(BarPages(2), device, 0, 1);
  EXPECT_EQ(error.kind, PaperError::Kind::CannotPrint);
  EXPECT_FALSE(error.text.isEmpty());
}

TEST_F(PrintingPages, MakesThemSmallerForSmallerPaper) {
  SKIP_WITHOUT_PDF_TOOLS();
  SetPage(QPageSize(QPageSize::A5), {});
  ASSERT_TRUE(PrintPages(BarPages(1), device_, 0, 0).IsNone());
  EXPECT_NEAR(Bar().second - Bar().first, 100 * 148.0 / 210, 0.3);
}

TEST_F(PrintingPages, KeepsThemAsTheyAreOnLargerPaper) {
  SKIP_WITHOUT_PDF_TOOLS();
  SetPage(QPageSize(QPageSize::A3), {});
  ASSERT_TRUE(PrintPages(BarPages(1), device_, 0, 0).IsNone());
  EXPECT_NEAR(Bar().second - Bar().first, 100, 0.1);
}

}  // namespace
}  // namespace bramlee
