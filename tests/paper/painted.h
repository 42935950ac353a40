// Letters to practise, and what is painted of them.
#pragma once

#include <QImage>
#include <string_view>

#include "paper/practice.h"
#include "tests/paper/pdf_reading.h"

namespace bramlee {

/// A letter as the book has it.
inline Practice Tile(std::string_view set, int tile) {
  return PracticeOf({.set = set, .tile = tile, .form = {.book = true}});
}

/// Whether that place of a page, in millimetres, is darker than that.
inline bool IsDark(const QImage& picture, double xMm, double yMm, int darker = 200) {
  return qGray(picture.pixel(static_cast<int>(xMm * kDotsPerMm),
                             static_cast<int>(yMm * kDotsPerMm))) < darker;
}

}  // namespace bramlee
