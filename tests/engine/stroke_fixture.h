// What tests of the primitives share.
#pragma once

#include <gtest/gtest.h>

#include "engine/last_point.h"
#include "engine/primitives.h"

namespace bramlee {

inline constexpr double kRadians = kPi / 180;

/// Registers that no stroke of the tests leaves by itself.
inline constexpr double kUntouched = -7;

class Stroke : public testing::Test {
 protected:
  void SetUp() override { LastX = LastY = LastX2 = LastY2 = kUntouched; }
};

}  // namespace bramlee
