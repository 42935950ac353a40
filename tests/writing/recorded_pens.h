// Letters that people wrote with a pen, for tests of the tracer.
#pragma once

#include <string>
#include <vector>

#include "strokes/letter.h"
#include "tests/writing/pen_marks.h"

namespace bramlee {

/// A letter as somebody's pen wrote it.
struct RecordedLetter {
  LetterId id;
  std::vector<Way> touches;  ///< in sheet pixels: as large as the program's letter and in its place
};

/// Reads recorded_pens.txt, which stands at that path. None when it cannot be read.
std::vector<RecordedLetter> RecordedLetters(const std::string& path);

}  // namespace bramlee
