#include "board/cues.h"

namespace bramlee {

std::int16_t CueBoardNo = 0;

std::int16_t PlayCue(std::int16_t /*letterNo*/, std::int16_t /*cueBoardNo*/) {
  return 0;
}

}  // namespace bramlee
