// Boards that fit their window: clicks and dots as ever.
#include <QPainter>
#include <span>
#include <vector>

#include "letters/letter_sets.h"
#include "tests/board/fit_fixture.h"

namespace bramlee {
namespace {

class FitDots : public Fit {
 protected:
  void ExpectTheSameDots(const char* form, std::span<const QSize> windows) {
    constexpr int kTiles[] = {2, 8, 22};
    Board& designed = Open(form);
    std::vector<QImage> expected;
    for (const int tile : kTiles) {
      designed.pic_Click(tile);
      expected.push_back(Dots(designed));
    }
    Close(designed);
    for (const QSize window : windows) {
      Board& board = OpenFitted(form, window);
      std::size_t next = 0;
      for (const int tile : kTiles) {
        ClickTile(board, tile);
        EXPECT_EQ(Dots(board), expected[next++]) << Text(form, window) << " " << tile;
      }
      Close(board);
    }
  }
};

TEST_F(FitDots, OfAClickOnATileAreTheSameInASmallAndAnUprightWindow) {
  const QSize windows[] = {kWindows[0], kWindows[4]};
  for (const char* form : kAllBoards) ExpectTheSameDots(form, windows);
}

TEST_F(FitDots, SweepOfClicksAtEverySize) {
  for (const char* form : kAllBoards) ExpectTheSameDots(form, kWindows);
}

TEST_F(Fit, DotsAreStampedInTheSizeInWhichTheyAreSeen) {
  Board& board = OpenFitted("fbrmengc02", kWindows[2]);
  board.pic_Click(1);
  const Sheet& sheet = board.sheet();
  const QRect letter = sheet.FromSheet().mapRect(QRectF(420, 140, 160, 220)).toAlignedRect();
  const QImage seen = board.sheet().grab(letter).toImage().convertToFormat(QImage::Format_RGB32);
  const QRectF area = sheet.FromSheet().inverted().mapRect(QRectF(sheet.rect()));
  const QImage dots =
      sheet.Dots().Picture(area, sheet.FromSheet().m11(), ColourOf(board.record().backColor));
  EXPECT_EQ(seen, dots.copy(letter));
  EXPECT_NE(seen.pixelColor(0, 0), seen.pixelColor(letter.width() / 2, letter.height() / 2));
}

TEST_F(Fit, SwitchedAndResizedAsALetterIsWrittenItLeavesTheSameDots) {
  Board& board = OpenIn("fbrmengc02", kWindows[1]);
  board.SetText(Q("txtspd"), Q("0.03"));  // many frames; the dots that are kept are the same
  int frames = 0;
  board.pen().SetFrameCall([&] {
    board.SetFitsWindow(frames % 3 != 2);
    board.resize(kWindows[frames % static_cast<int>(std::size(kWindows))]);
    ++frames;
  });
  board.pic_Click(2);
  board.pen().SetFrameCall(nullptr);
  QCoreApplication::processEvents();
  EXPECT_GT(frames, 6);
  const QImage written = Dots(board);
  Ink plain(0.03);
  StrokeRec rec = FillStrokeRec(SheetKind::Capitals, 2);
  WriteCapital(rec, plain);
  EXPECT_EQ(written, plain.Picture(QRectF(0, 0, 1300, 700), 1, Qt::white));
  board.SetFitsWindow(true);
  const QTransform fromSheet = board.sheet().FromSheet();
  const QImage seen = board.sheet().grab().toImage();
  const QImage dots =
      board.sheet().Dots().Picture(fromSheet.inverted().mapRect(QRectF(board.sheet().rect())),
                                   fromSheet.m11(), ColourOf(board.record().backColor));
  const QRect letter = fromSheet.mapRect(QRectF(600, 140, 200, 220)).toAlignedRect();
  EXPECT_EQ(seen.copy(letter).convertToFormat(QImage::Format_RGB32), dots.copy(letter));
}

/// A cross that a layer paints over the sheet's place 700, 100.
class Cross : public SheetLayer {
 public:
  void Paint(QPainter& painter) const override {
    painter.fillRect(QRectF(695, 95, 10, 10), Qt::green);
  }
};

TEST_F(Fit, LayersArePaintedWhereTheirPlacesOfTheSheetLie) {
  const Cross cross;
  Board& board = OpenFitted("fbrmengc02", kWindows[2]);
  for (const bool above : {false, true}) {
    if (above) {
      board.sheet().AddLayerAbove(cross);
    } else {
      board.sheet().AddLayerBeneath(cross);
      board.sheet().UpdateBeneath();
    }
    for (const QSize window : kWindows) {
      Resize(board, window);
      const QTransform fromSheet = board.sheet().FromSheet();
      const QImage seen = board.sheet().grab().toImage();
      const auto at = [&](double x, double y) {
        return seen.pixelColor(fromSheet.map(QPointF(x, y)).toPoint());
      };
      EXPECT_EQ(at(697, 97), QColor(Qt::green)) << Text("", window);
      EXPECT_EQ(at(703, 103), QColor(Qt::green)) << Text("", window);
      EXPECT_EQ(at(690, 100), ColourOf(board.record().backColor)) << Text("", window);
      EXPECT_EQ(at(710, 100), ColourOf(board.record().backColor)) << Text("", window);
    }
  }
}

}  // namespace
}  // namespace bramlee
