// A board that is moved to a screen of another pixel ratio while its pen pauses. With a main of its
// own, as the screens are there from the start.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>
#include <algorithm>

#include "companions/fit/fit.h"
#include "companions/watch/watch.h"
#include "tests/board/board_fixture.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

constexpr char kTwoScreens[] = R"({"screens": [
  {"name": "plain", "x": 0, "y": 0, "width": 1366, "height": 768, "dpr": 1},
  {"name": "fine", "x": 1366, "y": 0, "width": 1366, "height": 768, "dpr": 2}]})";

class TwoScreens : public BoardTest {
 protected:
  static void SetUpTestSuite() {
    AddOnce<AddWatching>();
    AddOnce<AddFitting>();
  }
  void TearDown() override {
    Choices::Instance().Choose(Q("fit/window"), false);
    BoardTest::TearDown();
  }

  static void MoveTo(Board& board, const char* screen) {
    const auto screens = QApplication::screens();
    const auto found = std::ranges::find(screens, Q(screen), &QScreen::name);
    ASSERT_NE(found, screens.end());
    QScreen* to = *found;
    board.windowHandle()->setScreen(to);
    board.setGeometry(to->geometry());
    QCoreApplication::processEvents();
  }
  /// Writes B, pauses in its middle, moves the board and lets the pen go on.
  static void WriteOverTwoScreens(Board& board) {
    int frame = 0;
    board.pen().SetFrameCall([&board, &frame] {
      ++frame;
      if (frame == 3) board.pen().Pause();
      if (frame == 4) MoveTo(board, "fine");
      if (frame == 6) board.pen().GoOn();
    });
    board.pic_Click(2);
    EXPECT_GT(frame, 6);
  }
  Board& Show() {
    Board& board = Open("fbrmengc02");
    board.SetText(Q("txtspd"), Q("0.01"));
    board.Present();
    MoveTo(board, "plain");
    EXPECT_EQ(board.sheet().devicePixelRatioF(), 1);
    return board;
  }
  static QImage Dots(const Board& board, double ratio) {
    return board.sheet().Dots().Picture(QRectF(600, 100, 200, 300), ratio, Qt::white);
  }
};

TEST_F(TwoScreens, ALetterThatPausesIsWrittenOnInTheNewRatio) {
  Ink plain(0.01);
  StrokeRec rec = FillStrokeRec(SheetKind::Capitals, 2);
  WriteCapital(rec, plain);
  Board& board = Show();
  WriteOverTwoScreens(board);
  EXPECT_EQ(board.sheet().devicePixelRatioF(), 2);
  EXPECT_EQ(Dots(board, 2), plain.Picture(QRectF(600, 100, 200, 300), 2, Qt::white));
  const QImage shown = board.sheet().grab(QRect(600, 100, 200, 300)).toImage();
  EXPECT_EQ(shown.devicePixelRatio(), 2);
  EXPECT_EQ(shown.size(), QSize(400, 600));
  EXPECT_EQ(shown.pixelColor(50, 200), kRed);  // the stem, in device pixels
}

TEST_F(TwoScreens, ABoardThatFitsDoesSoOnTheNewScreen) {
  Choices::Instance().Choose(Q("fit/window"), true);
  Board& board = Show();
  const QTransform before = board.sheet().FromSheet();
  WriteOverTwoScreens(board);
  EXPECT_EQ(board.sheet().devicePixelRatioF(), 2);
  const QTransform after = board.sheet().FromSheet();
  EXPECT_NEAR(after.m11(), before.m11(), 0.02);  // the menu bar is a little lower there
  const QPoint stem = after.map(QPoint(625, 250));
  EXPECT_EQ(ColourAt(board, stem.x(), stem.y()), kRed);
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  const QTemporaryDir folder;
  QFile screens(folder.filePath(QStringLiteral("screens.json")));
  if (!screens.open(QIODevice::WriteOnly) || screens.write(bramlee::kTwoScreens) < 0) return 1;
  screens.close();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
  QStandardPaths::setTestModeEnabled(true);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
  ::testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
