// The screen that the forms take their sizes from.
#pragma once

#include <optional>

namespace bramlee {

/// A screen's size in twips.
struct ScreenSize {
  double width;
  double height;
};

/// The primary screen, or the size that SetScreen gave.
ScreenSize Screen();

/// Lays the forms out for a screen of that size from now on; nothing brings the real one back.
void SetScreen(std::optional<ScreenSize> size);

}  // namespace bramlee
