// The subjects that home offers in this program.
#pragma once

#include <span>

#include "home/subject.h"

namespace bramlee {

/// In home's order, left and right by turns. A subject that is taken out here is out of home.
std::span<const HomeSubject> HomeSubjects();

}  // namespace bramlee
