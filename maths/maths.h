// The maths board: numbers, drills and tables.
#pragma once

namespace bramlee {

/// Registers the board under its form's name, fbrmmat01.
void RegisterMaths();

}  // namespace bramlee
