// The hand on the pen of the capitals board, on a display as large as that is: what a pause takes
// of a processor, and how long a stroke back takes until it is shown.
#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "bench/pen/clocks.h"
#include "board/board.h"
#include "board/companions.h"
#include "companions/watch/watch.h"
#include "files/environment.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

constexpr double kPauseSeconds = 5;
constexpr int kStepsBack = 20;

/// Pauses in the letter's fifth frame, and goes on once the time is over.
void MeasurePause(Board& board) {
  double real = 0;
  double processor = 0;
  board.pen().SetFrameCall([&, frame = 0]() mutable {
    if (++frame < 5) return;
    if (frame == 5) {
      board.pen().Pause();
      real = RealSeconds();
      processor = ProcessorSeconds();
    } else if (board.pen().IsPaused() && RealSeconds() - real > kPauseSeconds) {
      real = RealSeconds() - real;
      processor = ProcessorSeconds() - processor;
      board.pen().GoOn();
    }
  });
  board.pic_Click(2);
  board.pen().SetFrameCall(nullptr);
  std::printf("pause of %.1f s: %.2f %% of a core\n", real, processor / real * 100);
}

/// The sheet is full: a grid and a row of letters.
void MeasureStepsBack(Board& board) {
  board.mnugrid_Click();
  for (const int tile : {2, 3, 4}) board.pic_Click(tile);
  std::vector<double> taken;
  for (int i = 0; i < kStepsBack; ++i) {
    const double start = RealSeconds();
    board.pen().StrokeBack();
    board.sheet().ShowNewDots();
    taken.push_back((RealSeconds() - start) * 1000);
    board.pen().GoOn();
  }
  std::sort(taken.begin(), taken.end());
  std::printf("stroke back on %d x %d: %.1f ms (median of %d), %.1f ms at most\n",
              board.sheet().width(), board.sheet().height(), taken[taken.size() / 2], kStepsBack,
              taken.back());
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  using namespace bramlee;
  QApplication app(argc, argv);
  const Environment environment;
  RegisterBoards();
  AddCompanion(AddWatching);
  auto* board = static_cast<Board*>(LoadForm(QStringLiteral("fbrmengc02")));
  board->pen().SetRate(1);
  board->Present();
  // Until the window manager has placed the window.
  constexpr int kSettlingMs = 1500;
  QTimer::singleShot(kSettlingMs, board, [board] {
    MeasurePause(*board);
    MeasureStepsBack(*board);
    QApplication::exit(0);
  });
  return QApplication::exec();
}
