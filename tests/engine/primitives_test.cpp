#include "engine/primitives.h"

#include <gtest/gtest.h>

#include "engine/last_point.h"
#include "tests/recorder.h"

namespace bramlee {
namespace {

TEST(ArcStroke, PlotsTheRightHalfFromTopToBottom) {
  Recorder sheet(1);
  ArcStroke(sheet, -1, 0, 90, -90, 100, 100, 50);
  ASSERT_EQ(sheet.dots.size(), 181U);
  EXPECT_NEAR(sheet.dots.front().y, 50, 1e-3);
  EXPECT_NEAR(sheet.dots.back().y, 150, 1e-3);
  for (const Dot& dot : sheet.dots) EXPECT_GE(dot.x, 99.99F);
  EXPECT_NEAR(LastY, 150, 1e-3);
}

}  // namespace
}  // namespace bramlee
