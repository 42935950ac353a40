// The screen that the forms take their sizes from.
#pragma once

#include <QPoint>

#include "files/environment.h"

namespace bramlee {

/// The environment's screen, or else the primary one, all of it.
ScreenSize Screen();

/// Where the primary screen's top left lies among all screens, in pixels.
QPoint ScreenOrigin();

}  // namespace bramlee
