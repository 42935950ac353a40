// Mouse, finger and stylus as one pen.
#include "companions/trace/trace_input.h"

#include <gtest/gtest.h>

#include <QPointingDevice>
#include <QTabletEvent>
#include <QTest>
#include <QWidget>
#include <memory>
#include <string>

namespace bramlee {
namespace {

std::string Text(QPointF place) {
  return std::to_string(static_cast<int>(place.x())) + "," +
         std::to_string(static_cast<int>(place.y()));
}

class OnePen : public testing::Test {
 protected:
  OnePen()
      : input(widget,
              {.down = [this](QPointF place) { log += "down " + Text(place) + "; "; },
               .move = [this](QPointF place) { log += "move " + Text(place) + "; "; },
               .up = [this] { log += "up; "; },
               .cancel = [this] { log += "cancel; "; }},
              nullptr) {
    widget.resize(200, 200);
    widget.show();
    input.SwitchOn(true);
  }
  void Mouse(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons buttons) {
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
  }
  void MoveMouse(QPoint place, Qt::MouseButtons buttons = Qt::LeftButton) {
    Mouse(QEvent::MouseMove, place, Qt::NoButton, buttons);
  }
  /// What a touch screen says of one point that is so wide, in pixels.
  void Touch(QEventPoint::State state, QPointF place, double wide, int id = 1) {
    input.Take({
        .id = id, .state = state, .place = place, .diameters = {wide, wide}
    });
  }
  static constexpr double kFinger = 40;
  static constexpr double kPalm = 120;

  void Tablet(QEvent::Type type, QPointF place, Qt::MouseButton button = Qt::LeftButton) {
    QTabletEvent event(type, &stylus, place, widget.mapToGlobal(place), 1, 0, 0, 0, 0, 0,
                       Qt::NoModifier, button, Qt::LeftButton);
    QCoreApplication::sendEvent(&widget, &event);
  }
  void Proximity(QEvent::Type type) {
    QTabletEvent event(type, &stylus, {}, {}, 0, 0, 0, 0, 0, 0, Qt::NoModifier, Qt::NoButton, {});
    QCoreApplication::sendEvent(qApp, &event);
  }

  std::string log;
  QWidget widget;
  TraceInput input;
  const std::unique_ptr<QPointingDevice> device{QTest::createTouchDevice()};
  QPointingDevice* finger = device.get();
  QPointingDevice stylus{QStringLiteral("stylus"),
                         1,
                         QInputDevice::DeviceType::Stylus,
                         QPointingDevice::PointerType::Pen,
                         QInputDevice::Capability::Position,
                         1,
                         1};
};

TEST_F(OnePen, ADraggedMouseWrites) {
  QTest::mousePress(&widget, Qt::LeftButton, {}, {10, 20});
  MoveMouse({11, 21});
  QTest::mouseRelease(&widget, Qt::LeftButton, {}, {11, 21});
  EXPECT_EQ(log, "down 10,20; move 11,21; up; ");
}

TEST_F(OnePen, AMouseThatOnlyMovesWritesNothing) {
  MoveMouse({11, 21}, Qt::NoButton);
  EXPECT_EQ(log, "");
}

TEST_F(OnePen, OtherButtonsChangeNothing) {
  QTest::mouseClick(&widget, Qt::RightButton, {}, {10, 20});
  EXPECT_EQ(log, "");
  QTest::mousePress(&widget, Qt::LeftButton, {}, {10, 20});
  Mouse(QEvent::MouseButtonPress, {10, 20}, Qt::RightButton, Qt::LeftButton | Qt::RightButton);
  MoveMouse({11, 21}, Qt::LeftButton | Qt::RightButton);
  Mouse(QEvent::MouseButtonRelease, {11, 21}, Qt::RightButton, Qt::LeftButton);
  MoveMouse({12, 22});
  EXPECT_EQ(log, "down 10,20; move 11,21; move 12,22; ");
}

TEST_F(OnePen, ARapidSecondClickIsATouchToo) {
  QTest::mouseClick(&widget, Qt::LeftButton, {}, {10, 20});
  Mouse(QEvent::MouseButtonDblClick, {10, 20}, Qt::LeftButton, Qt::LeftButton);
  EXPECT_EQ(log, "down 10,20; up; down 10,20; ");
}

TEST_F(OnePen, GoesOnOutsideOfTheWindow) {
  QTest::mousePress(&widget, Qt::LeftButton, {}, {10, 20});
  MoveMouse({-40, 500});
  MoveMouse({12, 22});
  EXPECT_EQ(log, "down 10,20; move -40,500; move 12,22; ");
}

TEST_F(OnePen, AReleaseThatNeverCameLiftsItAtTheNextMove) {
  QTest::mousePress(&widget, Qt::LeftButton, {}, {10, 20});
  MoveMouse({50, 50}, Qt::NoButton);
  EXPECT_EQ(log, "down 10,20; up; ");
}

TEST_F(OnePen, ALostGrabOrWindowLiftsIt) {
  for (const QEvent::Type lost : {QEvent::UngrabMouse, QEvent::WindowDeactivate, QEvent::Hide}) {
    log.clear();
    QTest::mousePress(&widget, Qt::LeftButton, {}, {10, 20});
    QEvent event(lost);
    QCoreApplication::sendEvent(&widget, &event);
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {10, 20});
    EXPECT_EQ(log, "down 10,20; up; ") << lost;
  }
}

TEST_F(OnePen, SwitchedOffItTakesTheTouchBackAndLeavesTheMouseAlone) {
  QTest::mousePress(&widget, Qt::LeftButton, {}, {10, 20});
  input.SwitchOn(false);
  QTest::mousePress(&widget, Qt::LeftButton, {}, {10, 20});
  EXPECT_EQ(log, "down 10,20; cancel; ");
  EXPECT_FALSE(widget.testAttribute(Qt::WA_AcceptTouchEvents));
}

TEST_F(OnePen, AFingerWrites) {
  QTest::touchEvent(&widget, finger).press(1, {10, 20}, &widget);
  QTest::touchEvent(&widget, finger).move(1, {12, 22}, &widget);
  QTest::touchEvent(&widget, finger).release(1, {13, 23}, &widget);
  EXPECT_EQ(log, "down 10,20; move 12,22; move 13,23; up; ");
}

TEST_F(OnePen, FurtherFingersChangeNothing) {
  QTest::touchEvent(&widget, finger).press(1, {10, 20}, &widget);
  QTest::touchEvent(&widget, finger).stationary(1).press(2, {90, 90}, &widget);
  QTest::touchEvent(&widget, finger).stationary(1).move(2, {95, 95}, &widget);
  QTest::touchEvent(&widget, finger).move(1, {12, 22}, &widget).release(2, {95, 95}, &widget);
  EXPECT_EQ(log.find("9"), std::string::npos) << log;
  EXPECT_EQ(log.find("up"), std::string::npos) << log;
}

TEST_F(OnePen, APalmWritesNothing) {
  Touch(QEventPoint::Pressed, {10, 20}, kPalm);
  Touch(QEventPoint::Updated, {12, 22}, kPalm);
  Touch(QEventPoint::Released, {12, 22}, kPalm);
  EXPECT_EQ(log, "");
}

TEST_F(OnePen, AFingerWritesBesideAPalm) {
  Touch(QEventPoint::Pressed, {90, 90}, kPalm, 7);
  Touch(QEventPoint::Pressed, {10, 20}, kFinger);
  Touch(QEventPoint::Updated, {95, 95}, kPalm, 7);
  Touch(QEventPoint::Released, {12, 22}, kFinger);
  EXPECT_EQ(log, "down 10,20; move 12,22; up; ");
}

TEST_F(OnePen, AFingerThatBecomesAPalmTakesItsTouchBack) {
  Touch(QEventPoint::Pressed, {10, 20}, kFinger);
  Touch(QEventPoint::Updated, {12, 22}, kPalm);
  Touch(QEventPoint::Updated, {14, 24}, kFinger);
  Touch(QEventPoint::Released, {14, 24}, kFinger);
  EXPECT_EQ(log, "down 10,20; cancel; ");
}

TEST_F(OnePen, ACancelledTouchIsNone) {
  QTest::touchEvent(&widget, finger).press(1, {10, 20}, &widget);
  QTouchEvent cancelled(QEvent::TouchCancel, finger);
  QCoreApplication::sendEvent(&widget, &cancelled);
  EXPECT_EQ(log, "down 10,20; cancel; ");
}

TEST_F(OnePen, AStylusWritesWithItsTip) {
  Tablet(QEvent::TabletPress, {10, 20});
  Tablet(QEvent::TabletMove, {11.5, 21.5});
  Tablet(QEvent::TabletRelease, {11.5, 21.5});
  Tablet(QEvent::TabletPress, {50, 50}, Qt::RightButton);
  EXPECT_EQ(log, "down 10,20; move 11,21; up; ");
}

TEST_F(OnePen, FingersAreIgnoredWhileAStylusIsNear) {
  Proximity(QEvent::TabletEnterProximity);
  QTest::touchEvent(&widget, finger).press(1, {10, 20}, &widget);
  QTest::touchEvent(&widget, finger).release(1, {10, 20}, &widget);
  EXPECT_EQ(log, "");
  Proximity(QEvent::TabletLeaveProximity);
  QTest::touchEvent(&widget, finger).press(2, {10, 20}, &widget);  // the hand that held it
  QTest::touchEvent(&widget, finger).release(2, {10, 20}, &widget);
  EXPECT_EQ(log, "");
}

TEST_F(OnePen, AStylusThatComesNearTakesTheFingersTouchBack) {
  QTest::touchEvent(&widget, finger).press(1, {10, 20}, &widget);
  Proximity(QEvent::TabletEnterProximity);
  QTest::touchEvent(&widget, finger).move(1, {12, 22}, &widget);
  EXPECT_EQ(log, "down 10,20; cancel; ");
  Proximity(QEvent::TabletLeaveProximity);
}

TEST_F(OnePen, AStylusThatGoesAwayIsLifted) {
  Proximity(QEvent::TabletEnterProximity);
  Tablet(QEvent::TabletPress, {10, 20});
  Proximity(QEvent::TabletLeaveProximity);
  EXPECT_EQ(log, "down 10,20; up; ");
}

TEST_F(OnePen, ByClicksTheMouseWritesBetweenTwoClicks) {
  input.SetByClicks(true);
  EXPECT_TRUE(widget.hasMouseTracking());
  QTest::mouseClick(&widget, Qt::LeftButton, {}, {10, 20});
  MoveMouse({12, 22}, Qt::NoButton);
  QTest::mouseClick(&widget, Qt::LeftButton, {}, {12, 22});
  MoveMouse({50, 50}, Qt::NoButton);
  EXPECT_EQ(log, "down 10,20; move 12,22; up; ");
}

}  // namespace
}  // namespace bramlee
