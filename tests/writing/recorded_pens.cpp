#include "tests/writing/recorded_pens.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>

namespace bramlee {
namespace {

/// Where a figure between two comes to between two others.
double Carried(double figure, double low, double high, double from, double length) {
  return high > low ? from + (figure - low) / (high - low) * length : from + length / 2;
}

/// Puts what a pen wrote where the program's own letter stands.
void PutInPlace(RecordedLetter& letter) {
  Way all;
  for (const Way& touch : letter.touches) all.insert(all.end(), touch.begin(), touch.end());
  const auto [left, right] = std::ranges::minmax(all, {}, &Point::x);
  const auto [top, bottom] = std::ranges::minmax(all, {}, &Point::y);
  const Box& box = LetterOf(letter.id).Bounds();
  for (Way& touch : letter.touches) {
    for (Point& place : touch) {
      place.x = Carried(place.x, left.x, right.x, box.x, box.width);
      place.y = Carried(place.y, top.y, bottom.y, box.y, box.height);
    }
  }
}

Way TouchIn(const std::string& line) {
  std::istringstream figures(line);
  Way touch;
  for (Point place; figures >> place.x >> place.y;) touch.push_back(place);
  return touch;
}

}  // namespace

std::vector<RecordedLetter> RecordedLetters(const std::string& path) {
  std::ifstream file(path);
  std::vector<RecordedLetter> letters;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with('#')) continue;
    if (std::isdigit(static_cast<unsigned char>(line.front())) != 0) {
      letters.back().touches.push_back(TouchIn(line));
      continue;
    }
    std::string set;
    RecordedLetter letter;
    std::istringstream(line) >> set >> letter.id.tile;
    letter.id.set = FindLetterSet(set)->name;
    letters.push_back(letter);
  }
  std::ranges::for_each(letters, PutInPlace);
  return letters;
}

}  // namespace bramlee
