// The maths board when it fits its window: typed numbers, drills and tables at other sizes.
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <vector>

#include "tests/maths/maths_fixture.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

constexpr QSize kWindows[] = {
    {1024, 768 },
    {1366, 768 },
    {1920, 1080},
    {3840, 2160}
};

class MathsFit : public MathsTest {
 protected:
  void SetUp() override {
    MathsTest::SetUp();
    board->showNormal();
    Resize(kWindows[1]);
  }
  void Resize(QSize window) const {
    board->resize(window);
    QCoreApplication::processEvents();
  }
  QImage Dots() const {
    return board->sheet().Dots().Picture(QRectF(0, 0, 1300, 700), 1, Qt::white);
  }
  /// What stands on the sheet and can be seen.
  std::vector<QWidget*> ShownControls() const {
    std::vector<QWidget*> shown;
    for (QObject* child : board->sheet().children()) {
      auto* control = qobject_cast<QWidget*>(child);
      if (control != nullptr && !control->isHidden()) shown.push_back(control);
    }
    return shown;
  }
  void ExpectAllInView() const {
    const auto* scroller = board->findChild<QScrollArea*>();
    EXPECT_EQ(scroller->horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(scroller->verticalScrollBar()->maximum(), 0);
    for (const QWidget* control : ShownControls()) {
      EXPECT_TRUE(board->sheet().rect().contains(control->geometry()))
          << control->objectName().toStdString();
    }
  }
  QStringList Standing() const {
    board->Named<QWidget>(QStringLiteral("txthdr1"))->show();  // it blinks
    QStringList standing;
    for (const QWidget* control : ShownControls()) {
      const QRect place = control->geometry();
      standing.append(QStringLiteral("%1 %2 %3 %4 %5 %6")
                          .arg(control->objectName())
                          .arg(place.x())
                          .arg(place.y())
                          .arg(place.width())
                          .arg(place.height())
                          .arg(control->font().toString()));
    }
    return standing;
  }
};

TEST_F(MathsFit, ATypedNumberLeavesTheSameDotsAtEverySize) {
  TypeAndEnter("cmb(0)", "2074");
  const QImage expected = Dots();
  board->SetFitsWindow(true);
  for (const QSize window : kWindows) {
    Resize(window);
    Pick("mnuclear1");
    ASSERT_NE(Dots(), expected);
    TypeAndEnter("cmb(0)", "2074");
    EXPECT_EQ(Dots(), expected) << window.width();
    const QTransform fromSheet = board->sheet().FromSheet();
    const QRectF written = fromSheet.mapRect(QRectF(100, 250, 1000, 300));
    EXPECT_TRUE(QRectF(board->sheet().rect()).contains(written)) << window.width();
  }
}

TEST_F(MathsFit, TheNumberBoxLiesOverThePlusWhichStaysFreeForAClick) {
  board->SetFitsWindow(true);
  for (const QSize window : kWindows) {
    Resize(window);
    ExpectAllInView();
    const QWidget* box = Find<QWidget>("cmb(0)");
    EXPECT_EQ(box->geometry().topLeft(), board->Tile(11)->geometry().topLeft()) << window.width();
    for (const int tile : {11, 12, 13}) {
      const QPoint middle = board->Tile(tile)->geometry().center();
      EXPECT_EQ(board->sheet().childAt(middle), board->Tile(tile)) << window.width();
    }
  }
}

TEST_F(MathsFit, DrillsAreInViewInLettersOfTheirSize) {
  board->SetFitsWindow(true);
  Pick("mnuadd");
  for (const QSize window : kWindows) {
    Resize(window);
    ExpectAllInView();
    const double factor = board->sheet().FromSheet().m11();
    EXPECT_EQ(Find<QWidget>("cmb(16)")->font().pixelSize(), static_cast<int>(30 * factor));
    Type("cmb(16)", "17");
    Type("cmb(18)", "25");
    Click("picequal");
    EXPECT_EQ(Result(), QStringLiteral("42"));
    EXPECT_EQ(Find<QWidget>("txtval(20)")->font().pixelSize(), static_cast<int>(30 * factor));
  }
}

TEST_F(MathsFit, AllRowsOfATableCanBeSeenAtOnceAtEverySize) {
  board->SetFitsWindow(true);
  Pick("mnutbl");
  Type("cmb(16)", "100");
  Click("pict");
  const auto* box = Find<QPlainTextEdit>("txtval(20)");
  for (int width = 1024; width <= 3840; width += 64) {
    Resize({width, width * 9 / 16});
    ExpectAllInView();
    EXPECT_FALSE(box->verticalScrollBar()->isVisible()) << width;
    EXPECT_EQ(box->verticalScrollBar()->maximum(), 0) << width;
    EXPECT_EQ(box->horizontalScrollBar()->maximum(), 0) << width;
  }
}

/// A drill, a table, and the digits again.
void UseMaths(Board& board) {
  for (const char* item : {"mnusub", "mnutbl"}) {
    board.Named<QAction>(QString::fromLatin1(item))->trigger();
  }
  board.Named<PictureBox>(QStringLiteral("pict"))->click();
}

TEST_F(MathsFit, WhatWasDoneMeanwhileStandsAsIfItHadNeverBeenOn) {
  board->SetFitsWindow(true);
  UseMaths(*board);
  Resize(kWindows[2]);
  board->SetFitsWindow(false);
  Resize(kWindows[1]);
  const QStringList fitted = Standing();
  UnloadForm(board);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

  ShowForm(QStringLiteral("fbrmmat01"));
  board = qobject_cast<Board*>(LoadedForm(QStringLiteral("fbrmmat01")));
  board->showNormal();
  Resize(kWindows[1]);
  UseMaths(*board);
  EXPECT_EQ(fitted, Standing());
}

}  // namespace
}  // namespace bramlee
