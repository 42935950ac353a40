// The forms of this folder.
#pragma once

namespace bramlee {

/// Makes them known by their names.
void RegisterHome();

}  // namespace bramlee
