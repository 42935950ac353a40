// The form of this folder.
#pragma once

namespace bramlee {

/// Makes the biodata card known by its form's name.
void RegisterCard();

}  // namespace bramlee
