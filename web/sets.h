// The sets as the page counts them.
#pragma once

#include <iterator>

#include "strokes/set_looks.h"

namespace bramlee {

/// The look of the set at that place, from 0 on; nothing for a place that there is not.
inline const SetLook* LookAt(int index) {
  return index >= 0 && index < std::ssize(kSetLooks) ? kSetLooks[index] : nullptr;
}

}  // namespace bramlee
