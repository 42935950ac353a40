// The screen that the forms take their sizes from.
#pragma once

#include <QPoint>
#include <optional>

namespace bramlee {

/// A screen's size in twips.
struct ScreenSize {
  double width;
  double height;
};

/// The primary screen, all of it, or the size that SetScreen gave.
ScreenSize Screen();

/// Where the primary screen's top left lies among all screens, in pixels.
QPoint ScreenOrigin();

/// Lays the forms out for a screen of that size from now on; nothing brings the real one back.
void SetScreen(std::optional<ScreenSize> size);

}  // namespace bramlee
