// Input that waits while a handler is busy, and the widgets that it does not wait for.
#include "ui/held_input.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>
#include <QWindow>

namespace bramlee {
namespace {

/// A window with a tile and a strip, each a button, and a slider on the strip.
class HeldInputTest : public ::testing::Test {
 protected:
  HeldInputTest() {
    auto* rows = new QVBoxLayout(&window_);
    rows->addWidget(&tile);
    rows->addWidget(&strip);
    auto* row = new QVBoxLayout(&strip);
    row->addWidget(&button);
    row->addWidget(&slider);
    slider.setOrientation(Qt::Horizontal);
    window_.resize(300, 300);
    window_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window_));
    QObject::connect(&tile, &QPushButton::clicked, &tile, [this] { ++tileClicks; });
    QObject::connect(&button, &QPushButton::clicked, &button, [this] { ++buttonClicks; });
  }

  /// What is still held would wait into the next test.
  void TearDown() override {
    bool free = false;
    WhenFree(&window_, [&free] { free = true; });
    ASSERT_TRUE(QTest::qWaitFor([&free] { return free; }));
  }

  /// What a user does while a handler is busy: `act` runs as the windows live.
  static void Meanwhile(const std::function<void()>& act) {
    QMetaObject::invokeMethod(QCoreApplication::instance(), act, Qt::QueuedConnection);
    LetWindowsLive();
  }
  QPoint MiddleOf(const QWidget& widget) const {
    return widget.mapTo(&window_, widget.rect().center());
  }
  void Press(const QPoint& place) const {
    QTest::mousePress(window_.windowHandle(), Qt::LeftButton, {}, place);
  }
  void Release(const QPoint& place) const {
    QTest::mouseRelease(window_.windowHandle(), Qt::LeftButton, {}, place);
  }
  void ClickAt(const QPoint& place) const {
    Press(place);
    Release(place);
  }

  QWidget window_;
  QPushButton tile{QStringLiteral("tile")};
  QWidget strip;
  QPushButton button{QStringLiteral("strip")};
  QSlider slider;
  int tileClicks = 0;
  int buttonClicks = 0;
};

TEST_F(HeldInputTest, WaitsUntilTheHandlerReturns) {
  {
    const HoldInput hold;
    Meanwhile([this] { ClickAt(MiddleOf(tile)); });
    EXPECT_EQ(tileClicks, 0);
  }
  EXPECT_EQ(tileClicks, 0);
  EXPECT_TRUE(QTest::qWaitFor([this] { return tileClicks == 1; }));
}

TEST_F(HeldInputTest, ReachesAnAdmittedWidgetAtOnceAndNoOther) {
  HoldInput::Admit(&strip);
  {
    const HoldInput hold;
    Meanwhile([this] {
      ClickAt(MiddleOf(tile));
      ClickAt(MiddleOf(button));
    });
    EXPECT_EQ(buttonClicks, 1);
    EXPECT_EQ(tileClicks, 0);
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return tileClicks == 1; }));
  EXPECT_EQ(buttonClicks, 1);
}

TEST_F(HeldInputTest, StaysWithTheWidgetThatWasPressed) {
  HoldInput::Admit(&strip);
  const HoldInput hold;
  Meanwhile([this] {
    Press(MiddleOf(button));
    Release(MiddleOf(tile));
  });
  EXPECT_FALSE(button.isDown());  // let go elsewhere, the button is up again and not clicked
  EXPECT_EQ(buttonClicks, 0);
  Meanwhile([this] {
    Press(MiddleOf(tile));
    Release(MiddleOf(button));
    ClickAt(MiddleOf(button));
  });
  EXPECT_EQ(buttonClicks, 1);
}

TEST_F(HeldInputTest, LetsASliderBeDrawnPastItsStrip) {
  HoldInput::Admit(&strip);
  slider.setRange(0, 100);
  const HoldInput hold;
  Meanwhile([this] {
    const QPoint begin = slider.mapTo(&window_, QPoint(4, slider.height() / 2));
    Press(begin);
    QTest::mouseMove(window_.windowHandle(), QPoint(290, 5));
    Release(QPoint(290, 5));
  });
  EXPECT_EQ(slider.value(), 100);
  EXPECT_EQ(tileClicks, 0);
}

TEST_F(HeldInputTest, GivesTheKeysToAnAdmittedWidgetThatHasTheFocus) {
  HoldInput::Admit(&strip);
  window_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  const auto space = [this] { QTest::keyClick(window_.windowHandle(), Qt::Key_Space); };
  {
    const HoldInput hold;
    button.setFocus();
    Meanwhile(space);
    EXPECT_EQ(buttonClicks, 1);
    tile.setFocus();
    Meanwhile(space);
    EXPECT_EQ(tileClicks, 0);
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return tileClicks == 1; }));
  EXPECT_EQ(buttonClicks, 1);
}

TEST_F(HeldInputTest, ForgetsAnAdmittedWidgetThatIsGone) {
  auto* gone = new QWidget(&window_);
  HoldInput::Admit(gone);
  delete gone;
  const HoldInput hold;
  Meanwhile([this] { ClickAt(MiddleOf(tile)); });
  EXPECT_EQ(tileClicks, 0);
}

TEST_F(HeldInputTest, MeansThePointOfAControlWhereverThatLiesThen) {
  {
    const HoldInput hold;
    Meanwhile([this] { ClickAt(tile.geometry().bottomRight() - QPoint(3, 3)); });
    window_.layout()->setEnabled(false);
    tile.setGeometry(100, 200, tile.width() / 2, tile.height() / 2);
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return tileClicks == 1; }));
}

TEST_F(HeldInputTest, KeepsEscWhereverTheFocusIs) {
  HoldInput::Admit(&strip);
  window_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  button.setFocus();
  const HoldInput hold;
  Meanwhile([this] { QTest::keyClick(window_.windowHandle(), Qt::Key_A); });
  EXPECT_FALSE(EndIsAwaited());
  Meanwhile([this] { QTest::keyClick(window_.windowHandle(), Qt::Key_Escape); });
  EXPECT_TRUE(EndIsAwaited());
}

TEST_F(HeldInputTest, ReachesTheListThatAnAdmittedWidgetOpens) {
  auto* levels = new QComboBox(&strip);
  levels->addItems({QStringLiteral("easy"), QStringLiteral("hard")});
  levels->show();
  HoldInput::Admit(&strip);
  HoldInput::AdmitKeys(&strip, [](const QKeyEvent& event) { return event.key() == Qt::Key_Down; });
  const HoldInput hold;
  const auto key = [](Qt::Key which) {
    Meanwhile(
        [which] { QTest::keyClick(QApplication::activePopupWidget()->windowHandle(), which); });
  };
  levels->showPopup();
  key(Qt::Key_Down);
  key(Qt::Key_Return);
  EXPECT_EQ(levels->currentIndex(), 1);
  levels->showPopup();
  Meanwhile([levels] {
    const QWidget* list = levels->view();
    QTest::mouseClick(list->window()->windowHandle(), Qt::LeftButton, {},
                      list->mapTo(list->window(), QPoint(5, 5)));
  });
  EXPECT_EQ(levels->currentIndex(), 0);
  levels->showPopup();
  key(Qt::Key_Escape);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

/// Notes the keys that are pressed on it.
class KeyTaker : public QWidget {
 public:
  using QWidget::QWidget;
  std::string taken;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    taken += QKeySequence(event->key()).toString().toStdString() + " ";
  }
};

class AdmittedKeys : public HeldInputTest {
 protected:
  AdmittedKeys() {
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    tile.setFocus();
    HoldInput::AdmitKeys(
        taker, [this](const QKeyEvent& event) { return wants && event.key() == Qt::Key_Space; });
  }
  void KeyMeanwhile(Qt::Key key) const {
    Meanwhile([this, key] { QTest::keyClick(window_.windowHandle(), key); });
  }

  KeyTaker* taker = new KeyTaker(&window_);
  bool wants = true;
};

TEST_F(AdmittedKeys, GoToTheirWidgetWhateverHasTheFocus) {
  {
    const HoldInput hold;
    KeyMeanwhile(Qt::Key_Space);
    EXPECT_EQ(taker->taken, "Space ");
  }
  bool free = false;
  WhenFree(&window_, [&free] { free = true; });
  EXPECT_TRUE(free);  // neither press nor release waits
  EXPECT_EQ(tileClicks, 0);
}

TEST_F(AdmittedKeys, AreThoseThatTheWidgetWantsNow) {
  wants = false;
  {
    const HoldInput hold;
    KeyMeanwhile(Qt::Key_Space);
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return tileClicks == 1; }));
  wants = true;
  const HoldInput hold;
  KeyMeanwhile(Qt::Key_A);
  KeyMeanwhile(Qt::Key_Space);
  EXPECT_EQ(taker->taken, "Space ");
}

TEST_F(AdmittedKeys, AreOrdinaryKeysWhileNothingIsHeld) {
  QTest::keyClick(window_.windowHandle(), Qt::Key_Space);
  EXPECT_EQ(taker->taken, "");
  EXPECT_EQ(tileClicks, 1);
}

TEST_F(AdmittedKeys, OfOtherWindowsWait) {
  QPushButton other(QStringLiteral("other"));
  int clicks = 0;
  QObject::connect(&other, &QPushButton::clicked, &other, [&clicks] { ++clicks; });
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  {
    const HoldInput hold;
    Meanwhile([&other] { QTest::keyClick(other.windowHandle(), Qt::Key_Space); });
    EXPECT_EQ(taker->taken, "");
    EXPECT_EQ(clicks, 0);
  }
  EXPECT_TRUE(QTest::qWaitFor([&clicks] { return clicks == 1; }));
}

TEST_F(AdmittedKeys, WaitOnceTheirWidgetIsGone) {
  delete taker;
  {
    const HoldInput hold;
    KeyMeanwhile(Qt::Key_Space);
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return tileClicks == 1; }));
}

/// Notes the presses of keys that come to a window: new ones and repeats.
class KeysNoted : public QObject {
 public:
  std::string keys;

 protected:
  bool eventFilter(QObject* /*window*/, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      keys += static_cast<QKeyEvent*>(event)->isAutoRepeat() ? " repeat" : " new";
    }
    return false;
  }
};

TEST_F(HeldInputTest, MarksTheKeysThatRepeatThoughQtDoesNot) {
  KeysNoted noted;
  { const HoldInput hold; }  // the watch begins with the first one
  window_.windowHandle()->installEventFilter(&noted);
  const auto send = [this](QEvent::Type type, quint32 scanCode, quint64 time) {
    QKeyEvent event(type, Qt::Key_Down, Qt::NoModifier, scanCode, 0, 0);
    event.setTimestamp(time);
    QCoreApplication::sendEvent(window_.windowHandle(), &event);
  };
  send(QEvent::KeyPress, 116, 100);
  send(QEvent::KeyRelease, 116, 600);  // the server's repeat
  send(QEvent::KeyPress, 116, 600);
  send(QEvent::KeyRelease, 116, 640);
  send(QEvent::KeyPress, 111, 640);  // another key
  send(QEvent::KeyRelease, 111, 700);
  send(QEvent::KeyPress, 111, 701);  // pressed anew
  send(QEvent::KeyRelease, 0, 800);
  send(QEvent::KeyPress, 0, 800);  // no key of a keyboard
  EXPECT_EQ(noted.keys, " new repeat new new new");
}

}  // namespace
}  // namespace bramlee
