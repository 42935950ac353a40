// What a call leaves for the page to read: JavaScript can be given one number, and reads the rest
// from memory.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "strokes/letter_shape.h"

namespace bramlee {

/// Figures and text of the call made last. Each call that has a result begins a new one.
struct Result {
  std::vector<double> numbers;
  std::string text;  ///< UTF-8

  void Add(double number) { numbers.push_back(number); }
  void Add(const Point& point) { numbers.insert(numbers.end(), {point.x, point.y}); }
  void Add(const Box& box) { numbers.insert(numbers.end(), {box.x, box.y, box.width, box.height}); }
};

/// The one result, emptied.
Result& NewResult();
/// The one result as it stands.
Result& PresentResult();

/// A text as JSON has it, in quotes.
std::string Quoted(std::string_view text);

}  // namespace bramlee
