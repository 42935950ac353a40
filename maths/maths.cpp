#include "maths/maths.h"

namespace bramlee {

void RegisterMaths() {}

}  // namespace bramlee
