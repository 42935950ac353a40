// What a pen did, read from a line.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <optional>

#include "strokes/letter_shape.h"

namespace bramlee {

struct PenEvent {
  enum class Kind : std::uint8_t { Down, Move, Up };
  Kind kind = Kind::Up;
  Point place;  ///< in sheet pixels; of a pen that is lifted (0, 0)
};

/// Reads {"down": [x, y]}, {"move": [x, y]} or {"up": true}; nothing when the line is anything
/// else.
std::optional<PenEvent> ReadPenEvent(const QByteArray& line);

}  // namespace bramlee
