#include "board/sheet.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLineEdit>
#include <QPaintEvent>
#include <QScrollArea>
#include <QTest>

#include "engine/primitives.h"
#include "letters/letter_sets.h"
#include "tests/board/sheet_colours.h"

namespace bramlee {
namespace {

void WriteLetterOn(DrawingSurface& sheet, std::int16_t letter) {
  StrokeRec rec = FillStrokeRec(SheetKind::Capitals, letter);
  WriteCapital(rec, sheet);
}

/// A sheet of 1366 by 700 that is scrolled in a window of its own.
struct Scrolled {
  explicit Scrolled(const QSize& size) {
    sheet->setMinimumSize(1366, 700);
    sheet->SetBackColor(kSheetGround);
    window.setWidgetResizable(true);
    window.setWidget(sheet);
    window.resize(size);
    window.show();
    QCoreApplication::processEvents();
  }

  QScrollArea window;
  Sheet* sheet = new Sheet;
};

/// What is written as the sheet shows it, and as its dots tell.
void ExpectShowsItsDots(Sheet& sheet) {
  const QImage shown = sheet.grab().toImage().convertToFormat(QImage::Format_RGB32);
  EXPECT_EQ(shown, sheet.Dots().Picture(sheet.rect(), 1, ColourOf(kSheetGround)));
}

TEST(Sheet, ShowsWhatIsWritten) {
  Scrolled scrolled({1366, 700});
  WriteLetterOn(*scrolled.sheet, 1);
  EXPECT_EQ(ColourOf(kSheetGround), scrolled.sheet->grab().toImage().pixelColor(450, 60));
  EXPECT_EQ(QColor(Qt::red), scrolled.sheet->grab().toImage().pixelColor(500, 151));
  ExpectShowsItsDots(*scrolled.sheet);
}

TEST(Sheet, ShowsARunOutsideOfAnyWriting) {
  Scrolled scrolled({1366, 700});
  ExpectShowsItsDots(*scrolled.sheet);
  LineRight(*scrolled.sheet, 400, 100, 500);
  EXPECT_EQ(QColor(Qt::red), scrolled.sheet->grab().toImage().pixelColor(450, 100));
  ExpectShowsItsDots(*scrolled.sheet);
}

/// Remembers where a widget was painted.
class PaintedRegion : public QObject {
 public:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  QRegion region;
};

TEST(Sheet, ShowsNewDotsThoughSomethingElseWasUncovered) {
  Scrolled scrolled({1366, 700});
  scrolled.sheet->SetShownByCaller(true);  // as while a message stands between two letters
  LineRight(*scrolled.sheet, 400, 100, 500);
  PaintedRegion painted;
  scrolled.sheet->installEventFilter(&painted);
  scrolled.sheet->repaint(0, 0, 10, 10);
  EXPECT_TRUE(QTest::qWaitFor([&] { return painted.region.contains(QPoint(450, 100)); }));
}

TEST(Sheet, KeepsWhatLiesOutsideOfASmallWindow) {
  Scrolled small({200, 100});
  WriteLetterOn(*small.sheet, 4);
  small.window.resize(1366, 700);
  QCoreApplication::processEvents();
  Scrolled large({1366, 700});
  WriteLetterOn(*large.sheet, 4);
  EXPECT_EQ(small.sheet->grab().toImage(), large.sheet->grab().toImage());
  EXPECT_EQ(QColor(Qt::red), large.sheet->grab().toImage().pixelColor(1025, 200));
}

TEST(Sheet, KeepsWhatWasWrittenThroughSizesDuringAndAfterALetter) {
  Scrolled scrolled({1366, 700});
  scrolled.sheet->setMinimumSize(10, 10);
  Ink whole(0.01);
  WriteLetterOn(whole, 2);
  WriteLetterOn(whole, 3);
  WriteLetterOn(*scrolled.sheet, 2);
  scrolled.window.resize(300, 200);
  QCoreApplication::processEvents();
  ExpectShowsItsDots(*scrolled.sheet);
  WriteLetterOn(*scrolled.sheet, 3);
  scrolled.window.resize(1500, 900);
  QCoreApplication::processEvents();
  ExpectShowsItsDots(*scrolled.sheet);
  EXPECT_EQ(scrolled.sheet->Dots().Picture(QRectF(400, 100, 800, 300), 1, Qt::white),
            whole.Picture(QRectF(400, 100, 800, 300), 1, Qt::white));
}

TEST(Sheet, WipesEveryDotAndKeepsItsPen) {
  Scrolled scrolled({1366, 700});
  scrolled.sheet->SetForeColor(kBlueWord);
  WriteLetterOn(*scrolled.sheet, 1);
  scrolled.sheet->Wipe();
  EXPECT_EQ(scrolled.sheet->ForeColor(), kBlueWord);
  EXPECT_EQ(scrolled.sheet->Dots().KeptDots(), 0U);
  const QImage shown = scrolled.sheet->grab().toImage();
  QImage empty(shown.size(), shown.format());
  empty.fill(ColourOf(kSheetGround));
  EXPECT_EQ(shown, empty);
}

TEST(Sheet, ShowsAnotherGroundAtOnce) {
  Scrolled scrolled({1366, 700});
  WriteLetterOn(*scrolled.sheet, 1);
  scrolled.sheet->grab();
  scrolled.sheet->SetBackColor(0xE0E0E0);
  const QImage shown = scrolled.sheet->grab().toImage().convertToFormat(QImage::Format_RGB32);
  EXPECT_EQ(shown,
            scrolled.sheet->Dots().Picture(scrolled.sheet->rect(), 1, QColor(224, 224, 224)));
}

TEST(Sheet, StandsBehindItsTiles) {
  Scrolled scrolled({1366, 700});
  auto* tile = new QWidget(scrolled.sheet);
  tile->setAutoFillBackground(true);
  QPalette palette;
  palette.setColor(QPalette::Window, Qt::green);
  tile->setPalette(palette);
  tile->setGeometry(440, 90, 20, 20);
  tile->show();
  LineRight(*scrolled.sheet, 400, 100, 500);
  const QImage shown = scrolled.sheet->grab().toImage();
  EXPECT_EQ(shown.pixelColor(430, 100), QColor(Qt::red));
  EXPECT_EQ(shown.pixelColor(450, 100), QColor(Qt::green));
}

TEST(Sheet, WritesAtTheStepOfItsBox) {
  QLineEdit box(QStringLiteral("0.2"));
  Sheet sheet;
  EXPECT_EQ(sheet.Step(), 0.01);
  sheet.SetStepBox(&box);
  EXPECT_EQ(sheet.Step(), 0.2);
  box.setText(QStringLiteral(" 1 "));
  EXPECT_EQ(sheet.Step(), 1);
}

class RefusedStep : public ::testing::TestWithParam<const char*> {};

TEST_P(RefusedStep, PutsTheTextBackThatWasThere) {
  QLineEdit box(QStringLiteral("0.03"));
  Sheet sheet;
  sheet.SetStepBox(&box);
  box.setText(QString::fromLatin1(GetParam()));
  EXPECT_EQ(box.text(), QStringLiteral("0.03"));
  EXPECT_EQ(sheet.Step(), 0.03);
}

TEST_P(RefusedStep, BecomesAHundredthWhenItIsTheFirst) {
  QLineEdit box(QString::fromLatin1(GetParam()));
  Sheet sheet;
  sheet.SetStepBox(&box);
  EXPECT_EQ(box.text(), QStringLiteral("0.01"));
  EXPECT_EQ(sheet.Step(), 0.01);
}

INSTANTIATE_TEST_SUITE_P(Sheet, RefusedStep,
                         ::testing::Values("", "0", "-1", "-0", "slow", "nan", "inf", "-inf",
                                           "1e400", "1e-300", "0.0000001", "0.01x"));

}  // namespace
}  // namespace bramlee
