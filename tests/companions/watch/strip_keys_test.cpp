// The keys of the strip's buttons: when they press, and when they wait.
#include <QTest>

#include "board/strip.h"
#include "tests/companions/watch/watch_fixture.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

/// A board whose strip has a button of each kind, on the keys I, L, M and Z, that counts its
/// presses; folded away or not.
class StripKeys : public WatchTest, public testing::WithParamInterface<bool> {
 protected:
  void SetUp() override {
    WatchTest::SetUp();
    Choices::Instance().Choose(Q("strip/folded"), GetParam());
    board = &Show("fbrmengc02");
    idle = Add({.name = "strip_idle", .text = Q("Idle"), .key = Qt::Key_I, .picture = {}});
    letter = Add({.name = "strip_letter",
                  .text = Q("Letter"),
                  .key = Qt::Key_L,
                  .picture = {},
                  .keyWorks = StripKeyWorks::WhileWriting});
    always = Add({.name = "strip_always",
                  .text = Q("Always"),
                  .key = Qt::Key_M,
                  .picture = {},
                  .checkable = true,
                  .keyWorks = StripKeyWorks::Always});
    resting = Add({.name = "strip_resting",
                   .text = Q("Resting"),
                   .key = Qt::Key_Z,
                   .picture = {},
                   .restsWhileWriting = true});
  }
  void TearDown() override {
    Choices::Instance().Choose(Q("strip/folded"), false);
    WatchTest::TearDown();
  }

  StripButton* Add(const StripItem& item) {
    const std::string name = item.name;
    return board->strip().AddButton(Strip::Group::Teacher, item,
                                    [this, name] { pressed += " " + name.substr(6); });
  }
  /// As the windows live next.
  void PressAll() {
    for (const Qt::Key key : {Qt::Key_I, Qt::Key_L, Qt::Key_M, Qt::Key_Z}) Key(*board, key)();
  }
  void PressAllNow() {
    PressAll();
    QCoreApplication::processEvents();
  }

  Board* board = nullptr;
  StripButton* idle = nullptr;
  StripButton* letter = nullptr;
  StripButton* always = nullptr;
  StripButton* resting = nullptr;
  std::string pressed;  ///< what was, in that order
};

TEST_P(StripKeys, PressTheirButtonsWhileNothingIsWritten) {
  PressAllNow();
  EXPECT_EQ(pressed, " idle always resting");
  EXPECT_TRUE(always->isChecked());
  PressAllNow();
  EXPECT_FALSE(always->isChecked());
}

TEST_P(StripKeys, WaitForTheLettersEndUnlessTheyWorkWhileItIsWritten) {
  std::string meanwhile;
  AtFrames(*board, {[this] { PressAll(); }, [] {}, [] {}, [&] { meanwhile = pressed; }});
  board->pic_Click(2);
  EXPECT_EQ(meanwhile, " letter always");
  EXPECT_TRUE(QTest::qWaitFor([this] { return pressed == " letter always idle resting"; }))
      << pressed;
}

TEST_P(StripKeys, DoNotPressAButtonThatIsSwitchedOff) {
  for (StripButton* button : {idle, letter, always, resting}) button->setEnabled(false);
  PressAllNow();
  EXPECT_EQ(pressed, "");
  AtFrames(*board, {[this] { PressAll(); }});
  board->pic_Click(2);
  EXPECT_TRUE(QTest::qWaitFor([this] { return pressed == " resting"; }))
      << pressed << ": the letter's end has switched that one on again";
}

TEST_P(StripKeys, AButtonRestsOnlyWhileALetterIsWritten) {
  const QWidget* row = resting->parentWidget();
  bool rests = false;
  bool others = false;
  AtFrames(*board, {[&] {
    rests = !resting->isEnabledTo(row);
    others = idle->isEnabledTo(row) && letter->isEnabledTo(row);
  }});
  EXPECT_TRUE(resting->isEnabledTo(row));
  board->pic_Click(2);
  EXPECT_TRUE(rests);
  EXPECT_TRUE(others);
  EXPECT_TRUE(resting->isEnabledTo(row));
}

TEST_P(StripKeys, StandInTheToolTip) {
  EXPECT_EQ(resting->toolTip(), Q("Resting (Z)"));
}

INSTANTIATE_TEST_SUITE_P(UnfoldedAndFolded, StripKeys, testing::Bool());

}  // namespace
}  // namespace bramlee
