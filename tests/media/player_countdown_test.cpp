// When the hidden player's form unloads by itself.
#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>

#include "tests/media/player_form_fixture.h"

namespace bramlee {
namespace {

TEST_F(PlayerFormTest, CountsFromItsFirstTick) {
  Tick(1);
  EXPECT_EQ(Text("txtete"), Name("4.666"));
  Tick(1);
  EXPECT_EQ(Text("txtete"), Name("4.333"));
  Tick(1);
  EXPECT_EQ(Text("txtete"), Name("4"));
}

TEST_F(PlayerFormTest, UnloadsAtTheFifteenthTick) {
  Tick(14);
  EXPECT_TRUE(Loaded());
  EXPECT_EQ(Text("txtete"), Name("0.333"));
  Tick(1);
  EXPECT_FALSE(Loaded());
  EXPECT_FALSE(Find<QTimer>("Timerete")->isActive());
  EXPECT_EQ(Text("txtete"), Name("0"));
  EXPECT_TRUE(boxes.isEmpty());
}

/// A tick as the event loop brings it, when its time has come.
void BringTick(QTimer* timer) {
  QTimerEvent tick(timer->timerId());
  QCoreApplication::sendEvent(timer, &tick);
}

TEST_F(PlayerFormTest, IsUnloadedByItsTimersUnseen) {
  auto* countdown = Find<QTimer>("Timerete");
  for (int tick = 1; tick <= 14; ++tick) BringTick(countdown);
  EXPECT_EQ(Text("txtete"), Name("0.333"));
  EXPECT_TRUE(Loaded());
  BringTick(countdown);
  EXPECT_FALSE(Loaded());

  const Form* again = LoadForm(kForm);
  again->SetText(Name("txtcnt"), Name("1"));
  BringTick(again->Named<QTimer>(Name("Timer1")));
  EXPECT_FALSE(Loaded());
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(PlayerFormTest, ReadsTheMinutesAtTheFirstTickOnly) {
  form->SetText(Name("txtete"), Name("2"));
  Tick(1);
  EXPECT_EQ(Text("txtete"), Name("1.666"));
  form->SetText(Name("txtete"), Name("90"));
  Tick(1);
  EXPECT_EQ(Text("txtete"), Name("1.333"));
}

TEST_F(PlayerFormTest, SaysThatThereAreNoMinutesAndUnloads) {
  for (const char* minutes : {"0", "", "five"}) {
    auto* fresh = dynamic_cast<PlayerForm*>(LoadForm(kForm));
    fresh->SetText(Name("txtete"), Name(minutes));
    boxes.clear();
    fresh->Timerete_Timer();
    EXPECT_EQ(boxes, QStringList{Name("READER:Duration is Nil")}) << minutes;
    EXPECT_FALSE(Loaded());
    EXPECT_TRUE(fresh->findChild<QLineEdit*>(Name("txtete"))->isHidden());
    EXPECT_EQ(fresh->TextOf(Name("txtete")), Name("0"));
    EXPECT_FALSE(fresh->findChild<QTimer*>(Name("Timerete"))->isActive());
  }
}

TEST_F(PlayerFormTest, UnloadsAtOnceForLessThanNoMinutes) {
  form->SetText(Name("txtete"), Name("-1"));
  Tick(1);
  EXPECT_FALSE(Loaded());
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(PlayerFormTest, MayUnloadWhileItsBoxStands) {
  form->SetText(Name("txtete"), Name("0"));
  PlayerForm* reloaded = nullptr;
  environment.tell = [&](const QString&) {
    form->SetText(Name("txtcnt"), Name("1"));
    form->Timer1_Timer();
    QCoreApplication::sendPostedEvents(form, QEvent::DeferredDelete);
    reloaded = dynamic_cast<PlayerForm*>(LoadForm(kForm));
  };
  form->Timerete_Timer();
  EXPECT_EQ(LoadedForm(kForm), reloaded);
  EXPECT_EQ(reloaded->TextOf(Name("txtete")), Name("5"));
}

TEST_F(PlayerFormTest, SwitchesTheCountdownWithColoursAndKeepsWhatHasElapsed) {
  Tick(3);
  Find<QAction>("mnucdown(2)")->trigger();
  EXPECT_FALSE(Find<QTimer>("Timerete")->isActive());
  EXPECT_EQ(BackColorOf(Find<QWidget>("txtete")), 0x00FFFFFFU);
  Find<QAction>("mnucdown(1)")->trigger();
  EXPECT_TRUE(Find<QTimer>("Timerete")->isActive());
  EXPECT_EQ(BackColorOf(Find<QWidget>("txtete")), 65535U);
  Tick(1);
  EXPECT_EQ(Text("txtete"), Name("3.666"));
}

TEST_F(PlayerFormTest, ACountdownThatRunsIsNotBegunAnewBySwitchingItOn) {
  auto* countdown = Find<QTimer>("Timerete");
  // Without the event loop's knowledge it runs on with no time left to it; a start would give it
  // a new one.
  QAbstractEventDispatcher::instance()->unregisterTimer(countdown->timerId());
  ASSERT_TRUE(countdown->isActive());
  ASSERT_EQ(countdown->remainingTime(), -1);
  Find<QAction>("mnucdown(1)")->trigger();
  EXPECT_EQ(countdown->remainingTime(), -1);
  Find<QAction>("mnucdown(2)")->trigger();
  Find<QAction>("mnucdown(1)")->trigger();
  EXPECT_GT(countdown->remainingTime(), 0);
}

TEST_F(PlayerFormTest, LoadedAnewCountsAnew) {
  Tick(15);
  auto* fresh = dynamic_cast<PlayerForm*>(LoadForm(kForm));
  fresh->Timerete_Timer();
  EXPECT_EQ(fresh->TextOf(Name("txtete")), Name("4.666"));
}

TEST_F(PlayerFormTest, UnloadsByItsFormCount) {
  for (const char* count : {"0", "2", "-1", ""}) {
    form->SetText(Name("txtcnt"), Name(count));
    form->Timer1_Timer();
    EXPECT_TRUE(Loaded()) << count;
  }
  form->SetText(Name("txtcnt"), Name("1"));
  form->Timer1_Timer();
  EXPECT_FALSE(Loaded());
  EXPECT_FALSE(Find<QTimer>("Timer1")->isActive());
}

}  // namespace
}  // namespace bramlee
