// What is said of a recording.
#pragma once

#include <QString>

#include "media/voice_recorder.h"

namespace bramlee {

/// For people: what went wrong and what helps; what to do next with a good one.
QString LineOf(const Recording& recording);

}  // namespace bramlee
