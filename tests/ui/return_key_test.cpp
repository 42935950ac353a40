// Return on the buttons of a window.
#include "ui/return_key.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace bramlee {
namespace {

/// A line to type in and two buttons that no dialog makes its default by itself.
class ReturnKey : public ::testing::Test {
 protected:
  ReturnKey() {
    auto* rows = new QVBoxLayout(&window);
    for (QWidget* each : std::initializer_list<QWidget*>{&line, &one, &other})
      rows->addWidget(each);
    for (QPushButton* button : {&one, &other}) button->setAutoDefault(false);
    QObject::connect(&one, &QPushButton::clicked, &window, [this] { ++ones; });
    QObject::connect(&other, &QPushButton::clicked, &window, [this] { ++others; });
    PressByReturn(window);
  }
  void Show() {
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  }

  QDialog window;
  QLineEdit line;
  QPushButton one, other;
  int ones = 0, others = 0;
};

TEST_F(ReturnKey, PressesTheButtonWithTheFocusAndNoOther) {
  Show();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) QTest::keyClick(&other, key);
  EXPECT_EQ(others, 2);
  EXPECT_EQ(ones, 0);
}

TEST_F(ReturnKey, HoldsAButtonDownUntilItIsLetGo) {
  Show();
  int presses = 0;
  QObject::connect(&one, &QPushButton::pressed, &window, [&] { ++presses; });
  QTest::keyPress(&one, Qt::Key_Return);
  EXPECT_TRUE(one.isDown());
  QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
  QCoreApplication::sendEvent(&one, &repeat);
  EXPECT_EQ(presses, 1);
  EXPECT_EQ(ones, 0);
  QTest::keyRelease(&one, Qt::Key_Return);
  EXPECT_FALSE(one.isDown());
  EXPECT_EQ(ones, 1);
}

TEST_F(ReturnKey, InALinePressesTheDefaultButtonAlone) {
  Show();
  QTest::keyClick(&line, Qt::Key_Return);
  EXPECT_EQ(ones + others, 0);
  other.setDefault(true);
  QTest::keyClick(&line, Qt::Key_Return);
  EXPECT_EQ(others, 1);
  EXPECT_EQ(ones, 0);
}

TEST_F(ReturnKey, OnAButtonPressesNotTheDefaultOne) {
  other.setDefault(true);
  Show();
  QTest::keyClick(&one, Qt::Key_Return);
  EXPECT_EQ(ones, 1);
  EXPECT_EQ(others, 0);
}

TEST_F(ReturnKey, PressesTheDefaultButtonAtOnceAsEver) {
  other.setDefault(true);
  Show();
  QTest::keyPress(&other, Qt::Key_Return);
  EXPECT_EQ(others, 1);
  QTest::keyRelease(&other, Qt::Key_Return);
  EXPECT_EQ(others, 1);
}

TEST_F(ReturnKey, LeavesOtherKeysToTheButton) {
  Show();
  QTest::keyClick(&one, Qt::Key_Space);
  EXPECT_EQ(ones, 1);
  QTest::keyClick(&one, Qt::Key_A);
  EXPECT_EQ(ones, 1);
}

}  // namespace
}  // namespace bramlee
