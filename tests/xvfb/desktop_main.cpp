// The main of tests that run programs on a desktop of their own.
#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
