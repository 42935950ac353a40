// Writes the alphabet on the capitals board, on a display and at the pen's pace, and tells for
// each letter how long it should have taken, how long it took, and what of a processor it used.
// With the argument "strip" the board has one, and the hand on the pen.
#include "board/pace.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <cstdio>
#include <string>

#include "bench/pen/clocks.h"
#include "board/board.h"
#include "board/companions.h"
#include "companions/watch/watch.h"
#include "engine/drawing_surface.h"
#include "files/environment.h"
#include "ui/forms.h"

namespace bramlee {
namespace {

class DotCounter : public DrawingSurface {
 public:
  explicit DotCounter(double step) : step_(step) {}
  void PSet(float /*x*/, float /*y*/) override { ++dots_; }
  double Step() const override { return step_; }
  int Dots() const { return dots_; }

 private:
  double step_;
  int dots_ = 0;
};

double Nominal(const Board& board, int letter) {
  DotCounter counter(board.sheet().Step());
  StrokeRec rec = FillStrokeRec(board.letters().sheet, static_cast<std::int16_t>(letter));
  board.letters().write(rec, counter);
  return counter.Dots() / kDotsPerSecond;
}

struct Figures {
  double nominal = 0;
  double real = 0;
  double processor = 0;
};

void Print(const char* name, const Figures& figures) {
  std::printf("%-8s %9.3f %9.3f %+7.2f %% %7.2f %%\n", name, figures.nominal, figures.real,
              (figures.real / figures.nominal - 1) * 100, figures.processor / figures.real * 100);
}

void WriteAlphabet(Board& board) {
  std::printf("step %g, %g dots a second, %g frames a second\n", board.sheet().Step(),
              kDotsPerSecond, board.screen()->refreshRate());
  std::printf("%-8s %9s %9s %9s %9s\n", "letter", "nominal s", "real s", "off", "processor");
  Figures all;
  for (int letter = 1; letter <= 26; ++letter) {
    const double nominal = Nominal(board, letter);
    const double real = RealSeconds();
    const double processor = ProcessorSeconds();
    board.pic_Click(letter);
    const Figures figures{nominal, RealSeconds() - real, ProcessorSeconds() - processor};
    Print(std::string(1, static_cast<char>('A' + letter - 1)).c_str(), figures);
    all.nominal += figures.nominal;
    all.real += figures.real;
    all.processor += figures.processor;
  }
  Print("alphabet", all);
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  using namespace bramlee;
  QApplication app(argc, argv);
  const Environment environment;
  RegisterBoards();
  if (QApplication::arguments().contains(QStringLiteral("strip"))) AddCompanion(AddWatching);
  auto* board = static_cast<Board*>(LoadForm(QStringLiteral("fbrmengc02")));
  board->Present();
  // Until the window manager has placed the window.
  constexpr int kSettlingMs = 1500;
  QTimer::singleShot(kSettlingMs, board, [board] {
    WriteAlphabet(*board);
    QApplication::exit(0);
  });
  return QApplication::exec();
}
