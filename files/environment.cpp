#include "files/environment.h"

namespace bramlee {

Environment& TheEnvironment() {
  static Environment environment;
  return environment;
}

}  // namespace bramlee
