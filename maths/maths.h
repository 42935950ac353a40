// The maths board: numbers, drills and tables.
#pragma once

namespace bramlee {

/// Makes the board known by its form's name, fbrmmat01.
void RegisterMaths();

}  // namespace bramlee
