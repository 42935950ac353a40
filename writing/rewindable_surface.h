// A surface from which the latest dots can be taken away again.
#pragma once

#include <cstdint>

#include "engine/drawing_surface.h"

namespace bramlee {

/// A state of a surface to which it can go back. What the figure means is the surface's own
/// business.
struct SurfaceMark {
  std::uint64_t at = 0;
};

class RewindableSurface : public DrawingSurface {
 public:
  /// The present state. Asked for between two runs only.
  virtual SurfaceMark Mark() = 0;

  /// Takes away what was plotted after the mark, and shows again what that had covered. A run under
  /// way is given up, without an EndRun. The marks made after this one hold no longer; it and those
  /// before do. The pen's colour is set anew before the next dot. Returns false, with nothing done,
  /// when the mark is not there any more.
  virtual bool RewindTo(SurfaceMark mark) = 0;
};

}  // namespace bramlee
