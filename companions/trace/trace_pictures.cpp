#include "companions/trace/trace_pictures.h"

#include "board/strip_pictures.h"

namespace bramlee {

/// A pencil and the line that it writes.
QIcon TracePicture() {
  return StripPicture({
      {{44, 60},  {50, 42}, {80, 12}, {90, 24}, {60, 52}, {44, 60}},
      StripArc({22, 80},
      10, 180, 0),
      StripArc({42,         80               },
      10, 180, 360),
      StripArc({62,         80               },
      10, 180, 0),
  });
}

/// A pencil that leans to the left.
QIcon LeftHandPicture() {
  return StripPicture({
      {{72, 76},  {62, 54}, {28, 18}, {16, 30}, {50, 66}, {72, 76}},
      {{72, 86}, {30, 86}}
  });
}

/// Two places and the way between them.
QIcon ClicksPicture() {
  return StripPicture({
      StripArc({22,       72      },
      10, 0, 360),
      StripArc({78,       28      },
      10, 0, 360),
      {{38, 60}, {40, 58}},
      {{50, 50}, {50, 50}},
      {{60, 42}, {62, 40}}
  });
}

/// A tile with a letter.
QIcon GivenPicture() {
  return StripPicture({
      {{14, 14},  {86, 14}, {86, 86}, {14, 86}, {14, 14}},
      {{32, 70}, {50, 30}, {68, 70}},
      {{40, 56},  {60, 56} }
  });
}

QIcon LevelPicture(TraceLevel level) {
  const int bars = static_cast<int>(std::size(kTraceLevels)) - static_cast<int>(level);
  std::vector<StripStroke> strokes;
  for (int i = 0; i < bars; ++i) {
    const double x = 20 + 20 * i;
    strokes.push_back({
        {x, 80           },
        {x, 62.0 - 14 * i}
    });
  }
  return StripPicture(strokes);
}

}  // namespace bramlee
