// The maths board: numbers, drills and tables.
#pragma once

namespace bramlee {

/// Makes fbrmmat01 known.
void RegisterMaths();

}  // namespace bramlee
