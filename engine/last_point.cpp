#include "engine/last_point.h"

namespace bramlee {

double LastX, LastY;
double LastX2, LastY2;

void ClearLastPoint() {
  LastX = LastY = LastX2 = LastY2 = 0;
}

}  // namespace bramlee
