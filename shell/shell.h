// The forms of this folder.
#pragma once

namespace bramlee {

/// Makes them known by their names.
void RegisterShell();

}  // namespace bramlee
