// Reading and comparing the golden strokes of tests/golden.
#pragma once

#include <QByteArrayList>
#include <map>
#include <string>
#include <vector>

namespace bramlee {

/// One stroke as told in a line of JSON.
struct ToldStroke {
  std::string run;
  std::vector<double> arguments;
  int dots = 0;
};

/// One line: a tile's strokes and the last-point registers after them.
struct ToldTile {
  std::string board;
  std::string step;
  int tile = 0;
  int alt = 0;
  int place = 0;
  std::vector<ToldStroke> strokes;
  std::vector<double> last;

  /// "engc step 0.01 tile 1 alt 0 place 0".
  std::string Name() const;
};

/// The lines of a file in tests/golden that are not empty; none when there is no such file.
QByteArrayList GoldenLines(const std::string& file);

ToldTile ParseTile(const QByteArray& line);

/// The second right count of dots for the strokes that have two, by tile and stroke.
class LastDots {
 public:
  /// Reads last_dots.txt.
  LastDots();
  bool Empty() const { return counts_.empty(); }
  /// The second count of a stroke, the first stroke being 1; -1 for none.
  int Of(const ToldTile& tile, int stroke) const;

 private:
  std::map<std::string, int> counts_;
};

/// The first thing in which a tile differs from the golden one; empty when it does not.
std::string Difference(const ToldTile& golden, const ToldTile& told, const LastDots& lastDots);

}  // namespace bramlee
