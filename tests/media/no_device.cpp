// Removes every way to a sound device before main begins, so that these tests do the same on all
// machines and make no noise.
#include <cstdlib>

namespace {

struct NoDevice {
  NoDevice() {
    setenv("PULSE_SERVER", "unix:/nonexistent/pulse", 1);
    setenv("PIPEWIRE_REMOTE", "/nonexistent/pipewire", 1);
    setenv("ALSA_CONFIG_PATH", "/dev/null", 1);
  }
};
const NoDevice kNoDevice;

}  // namespace
