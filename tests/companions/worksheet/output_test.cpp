// Worksheets as files and on a printer, and what can go wrong there.
#include <sys/resource.h>

#include <QFileInfo>
#include <QLayout>
#include <QProcess>
#include <QProgressBar>
#include <QScopeGuard>
#include <QStandardPaths>
#include <csignal>

#include "tests/companions/worksheet/opened_worksheet.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

class WorksheetOutput : public OpenedWorksheet {
 protected:
  static qsizetype PagesOf(const QString& pdf) {
    const QByteArray bytes = BytesOf(pdf);
    return bytes.count("/Type /Page\n") + bytes.count("/Type /Page ") + bytes.count("/Type/Page ") +
           bytes.count("/Type /Page/");
  }
  QStringList FilesOnDrive() const { return QDir(On("c")).entryList(QDir::Files | QDir::Hidden); }
  /// While the dialog works, clicks Cancel (or closes it) once that many pages are done.
  void WhenDone(int pages, const std::function<void()>& act) {
    auto* bar = The<QProgressBar>("progress");
    QObject::connect(bar, &QProgressBar::valueChanged, bar, [pages, act](int value) {
      if (value == pages) act();
    });
  }
};

TEST_F(WorksheetOutput, SavesThePagesAsAPdf) {
  OpenOn(kCapitalsForm);
  Click("all");
  Click("pdf");
  EXPECT_TRUE(BytesOf(file).startsWith("%PDF-"));
  EXPECT_EQ(PagesOf(file), Pages());
  EXPECT_TRUE(Said().contains(Q("sheet.pdf"))) << Said().toStdString();
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_TRUE(questions.isEmpty());
}

TEST_F(WorksheetOutput, ThePdfCanBeSearchedAndSaysWhatItIs) {
  const QString pdftotext = QStandardPaths::findExecutable(Q("pdftotext"));
  if (pdftotext.isEmpty()) GTEST_SKIP() << "no pdftotext";
  OpenOn(kCapitalsForm);
  The<QLineEdit>("name")->setText(Q("Lakshmi"));
  Settle();
  Click("pdf");
  QProcess reader;
  reader.start(pdftotext, {file, Q("-")});
  ASSERT_TRUE(reader.waitForFinished());
  const QString text = QString::fromUtf8(reader.readAllStandardOutput());
  EXPECT_TRUE(text.contains(Q("Lakshmi"))) << text.toStdString();
  EXPECT_TRUE(text.contains(Q("capital A"))) << text.toStdString();
}

TEST_F(WorksheetOutput, ProposesANameAndTheFolderOfLastTime) {
  OpenOn(kCapitalsForm);
  ClickTile(2);
  Click("pdf");
  EXPECT_EQ(QFileInfo(proposals.value(0)).fileName(), Q("English Capital Letters A, B.pdf"));
  EXPECT_TRUE(QFileInfo(proposals.value(0)).absoluteDir().exists());
  Click("all");
  Click("pdf");
  EXPECT_EQ(proposals.value(1), On("c/English Capital Letters.pdf"));
}

TEST_F(WorksheetOutput, ALongNameOfAFileDoesNotWidenTheDialog) {
  file = On("c/") + QString(200, u'n') + Q(".pdf");
  OpenOn(kCapitalsForm);
  const int least = dialog->minimumSizeHint().width();
  Click("pdf");
  EXPECT_TRUE(Said().contains(QString(200, u'n')));
  dialog->layout()->activate();
  EXPECT_LE(dialog->minimumSizeHint().width(), std::max(least, 780));
}

TEST_F(WorksheetOutput, OffersTheFolderAfterwards) {
  OpenOn(kCapitalsForm);
  EXPECT_FALSE(Button("folder")->isVisible());
  Click("pdf");
  EXPECT_TRUE(Button("folder")->isVisible());
  Click("folder");
  EXPECT_EQ(folders, QStringList{QFileInfo(file).absolutePath()});
}

TEST_F(WorksheetOutput, WithoutAFileNothingIsSaved) {
  file.clear();
  OpenOn(kCapitalsForm);
  Click("pdf");
  EXPECT_TRUE(FilesOnDrive().isEmpty());
  EXPECT_FALSE(Button("folder")->isVisible());
  EXPECT_EQ(Said(), QString());
}

TEST_F(WorksheetOutput, AFileThatIsThereIsReplacedOnlyOnceTheUserWantsIt) {
  WriteBytes(file, "mine");
  OpenOn(kCapitalsForm);
  answer = false;
  Click("pdf");
  EXPECT_EQ(questions, QStringList{Q("sheet.pdf is there already. Replace it?")});
  EXPECT_EQ(BytesOf(file), "mine");
  answer = true;
  Click("pdf");
  EXPECT_EQ(questions.size(), 2);
  EXPECT_TRUE(BytesOf(file).startsWith("%PDF-"));
}

TEST_F(WorksheetOutput, AFolderThatCannotBeWrittenIsNamedAndNothingIsLost) {
  file = Q("/proc/sheet.pdf");
  OpenOn(kCapitalsForm);
  const QImage page = Page();
  Click("pdf");
  ASSERT_EQ(boxes.size(), 1);
  EXPECT_TRUE(boxes[0].contains(Q("/proc"))) << boxes[0].toStdString();
  EXPECT_EQ(Said(), boxes[0]);
  EXPECT_FALSE(Button("folder")->isVisible());
  EXPECT_EQ(Page(), page);
  EXPECT_TRUE(Button("pdf")->isEnabled());
}

TEST_F(WorksheetOutput, AFullDiskIsSaidAndTheOldFileStays) {
  WriteBytes(file, "mine");
  OpenOn(kCapitalsForm);
  Click("all");
  const auto before = std::signal(SIGXFSZ, SIG_IGN);
  rlimit old{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
  const rlimit small{.rlim_cur = 2000, .rlim_max = old.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  Click("pdf");
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, before);
  ASSERT_EQ(boxes.size(), 1);
  EXPECT_EQ(BytesOf(file), "mine");
  EXPECT_EQ(FilesOnDrive(), QStringList{Q("sheet.pdf")});
}

TEST_F(WorksheetOutput, LongWorkShowsItsProgress) {
  OpenOn(kCapitalsForm);
  Click("all");
  int seen = 0;
  WhenDone(2, [&] {
    ++seen;
    EXPECT_TRUE(The<QProgressBar>("progress")->isVisible());
    EXPECT_EQ(The<QProgressBar>("progress")->maximum(), Pages());
    EXPECT_FALSE(Button("print")->isEnabled());
    EXPECT_FALSE(The<QWidget>("tabs")->isEnabled());
  });
  Click("pdf");
  EXPECT_EQ(seen, 1);
  EXPECT_FALSE(The<QProgressBar>("progress")->isVisible());
  EXPECT_TRUE(Button("print")->isEnabled());
  EXPECT_TRUE(The<QWidget>("tabs")->isEnabled());
}

TEST_F(WorksheetOutput, CancelLeavesNothing) {
  OpenOn(kCapitalsForm);
  Pick("matter", kBook);
  WhenDone(3, [&] { Button("cancel")->click(); });
  Click("pdf");
  EXPECT_TRUE(FilesOnDrive().isEmpty());
  EXPECT_EQ(Said(), Q("Cancelled. Nothing was saved."));
  EXPECT_EQ(The<QProgressBar>("progress")->value(), 3);
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(WorksheetOutput, TheBooksLayoutCanBeCancelledAndBegunAgain) {
  OpenOn(kCapitalsForm);
  bool cancels = true;
  WhenDone(20, [&] {
    if (cancels) Button("cancel")->click();
  });
  Click("given");  // given letters are not worked out by then
  Pick("matter", kBook);
  EXPECT_EQ(Pages(), 0);
  EXPECT_EQ(Said(), Q("Cancelled."));
  EXPECT_FALSE(Button("pdf")->isEnabled());
  EXPECT_TRUE(The<QWidget>("tabs")->isEnabled());
  cancels = false;
  Pick("size", 2);
  EXPECT_GT(Pages(), 60);
}

TEST_F(WorksheetOutput, EscCancelsTheWorkAndNotTheDialog) {
  OpenOn(kCapitalsForm);
  Click("all");
  WhenDone(2, [&] { QTest::keyClick(dialog, Qt::Key_Escape); });
  Click("pdf");
  EXPECT_TRUE(FilesOnDrive().isEmpty());
  EXPECT_TRUE(dialog->isVisible());
  QTest::keyClick(dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(WorksheetOutput, PrintsAllPages) {
  OpenOn(kCapitalsForm);
  Click("all");
  Click("print");
  EXPECT_EQ(PagesOf(printed), Pages());
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(WorksheetOutput, PrintingToAFileSaysWhereItIsAndOffersItsFolder) {
  OpenOn(kCapitalsForm);
  Click("print");
  EXPECT_EQ(Said(), Q("Saved: ") + printed);
  EXPECT_TRUE(Button("folder")->isVisible());
  Click("folder");
  EXPECT_EQ(folders, QStringList{QFileInfo(printed).absolutePath()});
}

TEST_F(WorksheetOutput, PrintingOnPaperSaysThatItIsSentAndOffersNoFolder) {
  OpenOn(kCapitalsForm);
  QPrinter* printer = nullptr;
  setUp = [&](QPrinter& set) { printer = &set; };
  // A machine without printers can only write a file: once it has the pages, it is one no more.
  WhenDone(Pages(), [&] {
    printer->setOutputFileName(QString());
    printers.append(printer->printerName());
  });
  Click("print");
  EXPECT_EQ(Said(), Q("Sent to the printer."));
  EXPECT_FALSE(Button("folder")->isVisible());
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(WorksheetOutput, ThePrinterIsSetUpAsThePaperIs) {
  OpenOn(kCapitalsForm);
  Click("all");
  Pick("paper", 1);
  Pick("orientation", 1);
  setUp = [&](QPrinter& printer) {
    EXPECT_EQ(printer.pageLayout().pageSize().id(), QPageSize::Letter);
    EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_EQ(printer.toPage(), Pages());
    EXPECT_TRUE(printer.docName().startsWith(Q("English Capital Letters")));
  };
  Click("print");
}

TEST_F(WorksheetOutput, PrintsTheWantedPagesAlone) {
  OpenOn(kCapitalsForm);
  Click("all");
  ASSERT_GE(Pages(), 4);
  setUp = [](QPrinter& printer) {
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 3);
  };
  Click("print");
  EXPECT_EQ(PagesOf(printed), 2);
}

TEST_F(WorksheetOutput, WhoWantsNoPrinterPrintsNothing) {
  wantsPrinter = false;
  OpenOn(kCapitalsForm);
  Click("print");
  EXPECT_FALSE(QFileInfo::exists(printed));
  EXPECT_EQ(Said(), QString());
}

TEST_F(WorksheetOutput, WithoutAPrinterAPdfIsOffered) {
  printers.clear();
  answer = false;
  OpenOn(kCapitalsForm);
  Click("print");
  ASSERT_EQ(questions.size(), 1);
  EXPECT_TRUE(questions[0].contains(Q("no printer"))) << questions[0].toStdString();
  EXPECT_TRUE(proposals.isEmpty());
  answer = true;
  Click("print");
  EXPECT_TRUE(BytesOf(file).startsWith("%PDF-"));
}

TEST_F(WorksheetOutput, APrinterThatGoesAwayIsSaidAndNothingIsLost) {
  OpenOn(kCapitalsForm);
  const QImage page = Page();
  setUp = [this](QPrinter&) { printed = Q("/proc/printed.pdf"); };
  Click("print");
  ASSERT_EQ(boxes.size(), 1);
  EXPECT_TRUE(boxes[0].contains(Q("Nothing is lost"))) << boxes[0].toStdString();
  EXPECT_EQ(Page(), page);
  EXPECT_TRUE(Button("print")->isEnabled());
}

TEST_F(WorksheetOutput, CancelledPrintingIntoAFileLeavesNone) {
  OpenOn(kCapitalsForm);
  Click("all");
  WhenDone(2, [&] { Button("cancel")->click(); });
  Click("print");
  EXPECT_FALSE(QFileInfo::exists(printed));
  EXPECT_EQ(Said(), Q("Cancelled. Nothing was saved."));
  EXPECT_FALSE(Button("folder")->isVisible());
}

}  // namespace
}  // namespace bramlee
