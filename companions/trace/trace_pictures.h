// The pictures of tracing's buttons.
#pragma once

#include <QIcon>

#include "writing/tracer.h"

namespace bramlee {

QIcon TracePicture();
QIcon LeftHandPicture();
QIcon ClicksPicture();
QIcon GivenPicture();
/// As many bars as the level asks for exactness.
QIcon LevelPicture(TraceLevel level);

}  // namespace bramlee
