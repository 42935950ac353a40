#include "files/environment.h"

#include <gtest/gtest.h>

namespace bramlee {
namespace {

TEST(EnvironmentTest, TheNewestCountsUntilItGoes) {
  const Environment outer;
  EXPECT_EQ(&TheEnvironment(), &outer);
  {
    const Environment inner;
    EXPECT_EQ(&TheEnvironment(), &inner);
  }
  EXPECT_EQ(&TheEnvironment(), &outer);
}

TEST(EnvironmentTest, WhatATestPutsThereGoesWithIt) {
  const Environment outer;
  {
    Environment inner;
    inner.screen = ScreenSize{.width = 15, .height = 30};
    inner.mediaDrive = [] { return QStringLiteral("D:"); };
    EXPECT_EQ(TheEnvironment().mediaDrive(), QStringLiteral("D:"));
  }
  EXPECT_FALSE(TheEnvironment().screen.has_value());
  EXPECT_EQ(TheEnvironment().mediaDrive(), std::nullopt);
}

TEST(EnvironmentTest, AtFirstNobodyAgreesAndItIsTheSystemsDay) {
  const Environment environment;
  EXPECT_FALSE(environment.ask(QStringLiteral("Well?"), QStringLiteral("Yes"), {}));
  const QDate before = QDate::currentDate();
  const QDate today = environment.today();
  EXPECT_TRUE(before <= today && today <= QDate::currentDate());
}

}  // namespace
}  // namespace bramlee
