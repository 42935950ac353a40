// What the user chose on a board.
#pragma once

#include <QString>

#include "ink/colours.h"

namespace bramlee {

/// The choices that stay across a wipe. 0 stands for no rule and no format.
struct BoardSettings {
  ColourWord gridColour;
  ColourWord letterColour;
  double step;    ///< between two dots, in sheet pixels or degrees
  int rule;       ///< the first flagged of mnurulled(1) to mnurulled(5)
  bool grid;      ///< whether the grid is flagged
  QString drive;  ///< where the sounds lie, "C:"
  bool play;      ///< whether letters are spoken
  int format;     ///< the first marked of mnufor(1) to mnufor(4), while letters are spoken
};

}  // namespace bramlee
