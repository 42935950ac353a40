// How long a word takes until its first dot can be written: it is laid out anew each time, at the
// size that fits a board's lines, as the boards' words are. A word's first dot is due within 50 ms.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "strokes/word.h"
#include "writing/player.h"

namespace bramlee {
namespace {

constexpr int kTimes = 20;
constexpr double kRoom = 1000;  ///< of a board's lines, in sheet pixels
constexpr double kSmaller = 0.95;
constexpr double kPitch = 260;

/// Takes the first dot and no other.
class FirstDot : public DrawingSurface {
 public:
  void PSet(float /*x*/, float /*y*/) override { ++dots; }
  double Step() const override { return kUsualStep; }
  int dots = 0;
};

double MillisecondsOf(const std::string& text) {
  const auto start = std::chrono::steady_clock::now();
  double scale = 1;
  const WordText words(text);
  const auto height = [&] { return static_cast<double>(words.CountLines(kRoom / scale)) * kPitch; };
  while (height() * scale > kRoom / 3 && scale > 0.1) scale *= kSmaller;
  const std::vector<Word> lines = words.Lay(kRoom / scale);
  Page page;
  page.Add({.letter = LinesAsLetter(lines, kPitch), .colour = 0, .placing = {.scale = scale}});
  FirstDot surface;
  Player(page, surface).Write(1);
  const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
  return surface.dots == 1 ? taken.count() : -1;
}

void Measure(const char* name, const std::string& text) {
  std::vector<double> taken;
  for (int i = 0; i < kTimes; ++i) taken.push_back(MillisecondsOf(text));
  const double first = taken.front();  // letters are recorded when they are first asked for
  std::sort(taken.begin(), taken.end());
  std::printf("%-28s first %6.2f ms, median %6.2f ms, at most %6.2f ms\n", name, first,
              taken[taken.size() / 2], taken.back());
}

std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

}  // namespace
}  // namespace bramlee

int main() {
  using namespace bramlee;
  Measure("Anna", "Anna");
  Measure("Lakshminarayana", "Lakshminarayana");
  Measure("Hindi, five letters", "सिद्धार्थ");
  Measure("Telugu, ten letters", "వేంకటేశ్వర్లు");
  Measure("200 letters, Latin", Repeated("m", 200));
  Measure("200 letters, Hindi", Repeated("नी", 200));
  Measure("200 letters, Telugu", Repeated("కొ", 200));
}
