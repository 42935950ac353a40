// The forms of this folder.
#pragma once

#include <span>

#include "home/subject.h"

namespace bramlee {

/// Makes them known by their names, and home's drive as the one that the environment has for the
/// media: asking for it loads home unseen if need be. Home offers those subjects, kMostSubjects at
/// most; their table has to outlast the forms.
void RegisterHome(std::span<const HomeSubject> subjects);

}  // namespace bramlee
