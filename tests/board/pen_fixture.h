// A pen on a sheet alone, and what happens at its frames.
#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <functional>
#include <vector>

#include "board/board_pen.h"
#include "tests/board/sheet_colours.h"

namespace bramlee {

inline constexpr double kStep = 0.01;

/// A letter of two pen strokes, either of 20,000 dots: a dozen frames at 60 a second.
inline Letter TwoStrokes(double y = 100) {
  return {
      {                                         },
      kStep, { {Primitive::LineRight, {50, y, 250}}, {Primitive::LineRight, {50, y + 50, 250}}}
  };
}

class BoardPenTest : public ::testing::Test {
 protected:
  BoardPenTest() {
    sheet.resize(400, 400);
    QObject::connect(&pen, &BoardPen::Changed, &pen, [this] { ++changes; });
  }

  using Act = std::function<void()>;
  /// Has these happen at the pen's next frames, one a frame.
  void AtFrames(std::vector<Act> acts) {
    pen.SetFrameCall([acts = std::move(acts), next = std::size_t{0}]() mutable {
      if (next < acts.size()) acts[next++]();
    });
  }
  void Write(Letter letter, ColourWord colour = kRedWord) {
    pen.Write({.letter = std::move(letter), .colour = colour, .placing = {}}, [this] { ++spoken; });
  }
  QImage Picture() const { return sheet.Dots().Picture(QRect(0, 0, 400, 400), 1, Qt::white); }
  /// The page as it is written with no hand on the pen.
  QImage Plain() const {
    Ink ink;
    Player(pen.Letters(), ink).RunToEnd();
    return ink.Picture(QRect(0, 0, 400, 400), 1, Qt::white);
  }
  std::size_t Dots() const { return sheet.Dots().KeptDots(); }

  Sheet sheet;
  BoardPen pen{sheet};
  int changes = 0;
  int spoken = 0;
};

}  // namespace bramlee
