// Boards that fit their window: all in view, and everything back afterwards.
#include <QScrollBar>
#include <cmath>

#include "board/reach.h"
#include "tests/board/fit_fixture.h"
#include "ui/scale.h"

namespace bramlee {
namespace {

TEST_F(Fit, IsOffAtFirst) {
  for (const char* form : kAllBoards) {
    const Board& board = Open(form);
    EXPECT_FALSE(board.FitsWindow()) << form;
    EXPECT_EQ(ScaleOf(&board.sheet()), Scale()) << form;
  }
}

TEST_F(Fit, NothingScrollsAndTheSheetFillsTheView) {
  for (const char* form : kAllBoards) {
    Board& board = OpenFitted(form, kWindows[0]);
    for (const QSize window : kWindows) {
      Resize(board, window);
      const QScrollArea* scroller = Scroller(board);
      for (const QScrollBar* bar :
           {scroller->horizontalScrollBar(), scroller->verticalScrollBar()}) {
        EXPECT_FALSE(bar->isVisible()) << Text(form, window);
        EXPECT_EQ(bar->maximum(), 0) << Text(form, window);
      }
      EXPECT_EQ(board.sheet().geometry(), scroller->viewport()->rect()) << Text(form, window);
    }
    Close(board);
  }
}

/// Around what is written by that tile's click, in each of its forms.
QRectF ReachOfTile(const Board& board, int tile) {
  QRectF reach;
  for (const std::int16_t alternative : {std::int16_t{0}, std::int16_t{1}}) {
    StrokeRec rec = FillStrokeRec(board.letters().sheet, static_cast<std::int16_t>(tile));
    rec.AltFlag = alternative;
    reach = reach.united(ReachOf(board.record().program(board, rec), rec));
  }
  return reach;
}

QRectF ReachOfAll(const Board& board) {
  QRectF reach = ReachOf(board.record().gridExtent).united(ReachOf(board.record().ruleExtent));
  for (int tile = 1; tile <= board.letters().tiles; ++tile) {
    reach = reach.united(ReachOfTile(board, tile));
  }
  return reach;
}

TEST_F(Fit, AllThatStandsAndAllThatCanBeWrittenIsInView) {
  for (const char* form : kAllBoards) {
    Board& board = OpenFitted(form, kWindows[0]);
    const QRectF reach = ReachOfAll(board);
    for (const QSize window : kWindows) {
      Resize(board, window);
      const QRect view = board.sheet().rect();
      EXPECT_TRUE(QRectF(view).contains(board.sheet().FromSheet().mapRect(reach)))
          << Text(form, window);
      for (const QWidget* control : Controls(board)) {
        if (control->isHidden()) continue;
        EXPECT_TRUE(view.contains(control->geometry()))
            << Text(form, window) << " " << control->objectName().toStdString();
      }
    }
    Close(board);
  }
}

TEST_F(Fit, TheBoardIsAsLargeAsTheWindowLetsItAndStandsInItsMiddle) {
  constexpr int kEdge = 10;
  for (const char* form : kAllBoards) {
    Board& board = OpenIn(form, kWindows[0]);
    QRect all = ReachOfAll(board).toAlignedRect();
    for (const QWidget* control : Controls(board)) {
      if (!control->isHidden()) all = all.united(control->geometry());
    }
    all = all.adjusted(-kEdge, -kEdge, kEdge, kEdge) & QRect(0, 0, 2000, 2000);
    board.SetFitsWindow(true);
    for (const QSize window : kWindows) {
      Resize(board, window);
      const QRectF whole = board.sheet().FromSheet().mapRect(QRectF(all));
      const QSizeF free = QSizeF(board.sheet().size()) - whole.size();
      const double pixel = 1.1 * board.sheet().FromSheet().m11();
      EXPECT_NEAR(std::min(free.width(), free.height()), 0, pixel) << Text(form, window);
      EXPECT_NEAR(whole.left(), free.width() / 2, pixel + 1) << Text(form, window);
      EXPECT_NEAR(whole.top(), free.height() / 2, pixel + 1) << Text(form, window);
    }
    Close(board);
  }
}

TEST_F(Fit, EverythingStandsInTheDesignsProportions) {
  for (const char* form : kAllBoards) {
    const Board& designed = Open(form);
    std::vector<QRect> places;
    for (const QWidget* control : Controls(designed)) places.push_back(control->geometry());
    const double letters = designed.sheet().font().pointSizeF();
    Board& board = OpenFitted(form, kWindows[2]);
    const QTransform fromSheet = board.sheet().FromSheet();
    EXPECT_NEAR(board.sheet().font().pointSizeF(), letters * fromSheet.m11(), 1e-6) << form;
    std::size_t next = 0;
    for (const QWidget* control : Controls(board)) {
      const QRect place = places[next++];
      if (control->isHidden()) continue;
      const QRectF expected = fromSheet.mapRect(QRectF(place));
      const QRectF stands = control->geometry();
      EXPECT_NEAR(stands.left(), expected.left(), 1.5) << form << " " << next;
      EXPECT_NEAR(stands.top(), expected.top(), 1.5) << form << " " << next;
      EXPECT_NEAR(stands.width(), expected.width(), 1.5) << form << " " << next;
      EXPECT_NEAR(stands.height(), expected.height(), 1.5) << form << " " << next;
    }
    Close(board);
  }
}

TEST_F(Fit, NothingShownCoversAnythingElse) {
  for (const char* form : kAllBoards) {
    Board& board = OpenFitted(form, kWindows[0]);
    for (const QSize window : kWindows) {
      Resize(board, window);
      // The capitals' tiles share their borders' pixels, which are larger here.
      const double border = std::ceil(board.sheet().FromSheet().m11());
      const std::vector<QWidget*> controls = Controls(board);
      for (auto one = controls.begin(); one != controls.end(); ++one) {
        for (auto other = std::next(one); other != controls.end(); ++other) {
          if ((*one)->isHidden() || (*other)->isHidden()) continue;
          const QSize shared = (*one)->geometry().intersected((*other)->geometry()).size();
          EXPECT_LE(std::min(shared.width(), shared.height()), border)
              << Text(form, window) << " " << (*one)->objectName().toStdString() << " "
              << (*other)->objectName().toStdString();
        }
      }
    }
    Close(board);
  }
}

TEST_F(Fit, TheTitleHoldsItsText) {
  for (const char* form : kAllBoards) {
    Board& board = OpenFitted(form, kWindows[0]);
    for (const QSize window : kWindows) {
      Resize(board, window);
      const auto* title = board.Named<QLineEdit>(Q("txthdr1"));
      EXPECT_LT(title->fontMetrics().horizontalAdvance(title->text()), title->width() - 8)
          << Text(form, window);
      EXPECT_LE(title->fontMetrics().height(), title->height()) << Text(form, window);
    }
    Close(board);
  }
}

TEST_F(Fit, EverythingIsBackOnceItIsOff) {
  for (const char* form : kAllBoards) {
    for (const QSize window : kWindows) {
      Board& board = OpenIn(form, window);
      const QStringList before = Standing(board);
      board.SetFitsWindow(true);
      QCoreApplication::processEvents();
      EXPECT_NE(Changes(before, Standing(board)), "") << Text(form, window);
      board.SetFitsWindow(false);
      QCoreApplication::processEvents();
      EXPECT_EQ(Changes(before, Standing(board)), "") << Text(form, window);
      Close(board);
    }
  }
}

/// What a user does on a board between switching Fit on and off again.
void UseBoard(Board& board) {
  const QString form = board.objectName();
  if (form == Q("fbrmhinc01")) board.Named<PictureBox>(Q("pic1", 2))->click();
  if (form == Q("fbrmhinv01")) board.Tile(14)->click();  // lays the line of lettering on the sheet
  board.pic_Click(board.record().groupStarts[1]);
  if (board.record().showTiles != nullptr) Pick(board, "mnudrawalt");
  board.Named<QTimer>(Q("Timer1"))->stop();  // each wipe has started it
  board.Named<QWidget>(Q("txthdr1"))->hide();
}

TEST_F(Fit, WhatWasDoneMeanwhileStandsAsIfItHadNeverBeenOn) {
  for (const char* form : kAllBoards) {
    Board& designed = OpenIn(form, kWindows[1]);
    UseBoard(designed);
    const QStringList expected = Standing(designed);
    Close(designed);
    Board& board = OpenFitted(form, kWindows[1]);
    UseBoard(board);
    Resize(board, kWindows[3]);
    board.SetFitsWindow(false);
    Resize(board, kWindows[1]);
    EXPECT_EQ(Changes(expected, Standing(board)), "") << form;
    Close(board);
  }
}

TEST_F(Fit, TheLineOfLetteringLiesOnItsCell) {
  Board& board = OpenFitted("fbrmhinv01", kWindows[2]);
  board.Tile(14)->click();
  const QRectF line = board.Tile(0)->geometry();
  const TwipsRect place = PlaceOf(board.Tile(0));
  const QRectF expected = board.sheet().FromSheet().mapRect(
      QRectF(place.left / kTwipsPerPixel, place.top / kTwipsPerPixel, place.width / kTwipsPerPixel,
             place.height / kTwipsPerPixel));
  EXPECT_FALSE(board.Tile(0)->isHidden());
  EXPECT_NEAR(line.left(), expected.left(), 1);
  EXPECT_NEAR(line.top(), expected.top(), 1);
  EXPECT_GT(line.width(), 238 * 1.4);
}

TEST_F(Fit, NothingMovesWhenALetterIsWrittenOrTheKeyboardGoesToATile) {
  for (const char* form : kAllBoards) {
    Board& board = OpenFitted(form, kWindows[0]);
    const QStringList before = Standing(board);
    board.Tile(20)->setFocus(Qt::TabFocusReason);
    board.pic_Click(3);
    EXPECT_EQ(board.sheet().pos(), QPoint(0, 0)) << form;
    EXPECT_EQ(Changes(before, Standing(board)), "") << form;
    Close(board);
  }
}

TEST_F(Fit, AWindowTooSmallForAnythingScrolls) {
  Board& board = OpenFitted("fbrmtelc01", {200, 150});
  EXPECT_EQ(board.sheet().FromSheet().m11(), 0.25);
  EXPECT_GT(Scroller(board)->horizontalScrollBar()->maximum(), 0);
  Resize(board, kWindows[0]);
  EXPECT_EQ(Scroller(board)->horizontalScrollBar()->maximum(), 0);
}

}  // namespace
}  // namespace bramlee
