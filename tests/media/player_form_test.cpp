#include "media/player_form.h"

#include <QEvent>
#include <QFileInfo>
#include <QToolButton>
#include <cmath>

#include "files/numbers.h"
#include "files/trap.h"
#include "home/home.h"
#include "media/media.h"
#include "tests/files/trap_log.h"
#include "tests/media/player_form_fixture.h"
#include "tests/media/sound_files.h"
#include "tests/ui/failing_event.h"
#include "ui/screen.h"
#include "ui/screen_rec.h"

namespace bramlee {
namespace {

TEST_F(PlayerFormTest, IsLoadedUnseenWithItsSettledValues) {
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(form->windowTitle(), Name("AUDIO / VIDEO CLIPS"));
  EXPECT_EQ(form->property("ScaleFlag"), QVariant(1));
  EXPECT_EQ(Text("txtpath"), Name("1"));
  EXPECT_EQ(Text("txtete"), Name("5"));
  EXPECT_EQ(Text("txtcnt"), Name("0"));
  EXPECT_EQ(Text("txtpcnt"), Name("1"));
  EXPECT_EQ(Text("txtformno"), Name("0"));
  EXPECT_EQ(Find<QWidget>("txtcnt")->toolTip(), Name("Form Count for unload"));
  EXPECT_EQ(Find<QWidget>("txtpcnt")->toolTip(), Name("Play Count"));
  EXPECT_EQ(Find<QLabel>("lblremtime")->text(), Name("P.TIME "));
  EXPECT_EQ(Find<QLabel>("lblremtime")->toolTip(), Name("Period Time"));
  EXPECT_EQ(Find<QLabel>("lblmin")->text(), Name("MIN."));
  EXPECT_EQ(Find<QLabel>("lblmin")->toolTip(), Name("Minutes"));
  EXPECT_NE(Find<PictureBox>("pictmp"), nullptr);
  EXPECT_NE(Find<Combo>("cmbindx"), nullptr);
}

TEST_F(PlayerFormTest, RunsBothTimersFromItsLoad) {
  EXPECT_EQ(Find<QTimer>("Timer1")->interval(), 9000);
  EXPECT_EQ(Find<QTimer>("Timerete")->interval(), 20000);
  EXPECT_TRUE(Find<QTimer>("Timer1")->isActive());
  EXPECT_TRUE(Find<QTimer>("Timerete")->isActive());
}

TEST_F(PlayerFormTest, HasItsMenus) {
  QStringList bar;
  for (const QAction* item : form->BarItems()) bar.append(item->text());
  EXPECT_EQ(bar, (QStringList{Name("&File"), Name("&List"), Name("&Play"), Name("&Stop"),
                              Name("&ScreenSize"), Name("&Speed"), Name("&CountDown")}));
  const struct {
    const char* menu;
    int items;
  } kMenus[] = {
      {"mnufile",    1 },
      {"mnudissize", 5 },
      {"mnuspeed",   19},
      {"mnucdown1",  2 }
  };
  for (const auto& menu : kMenus) {
    ASSERT_NE(Find<QMenu>(menu.menu), nullptr) << menu.menu;
    EXPECT_EQ(Find<QMenu>(menu.menu)->actions().size(), menu.items) << menu.menu;
  }
  const struct {
    const char* item;
    const char* caption;
  } kItems[] = {
      {"mnuback",     "&Back"      },
      {"mnulist",     "&List"      },
      {"mnuplay",     "&Play"      },
      {"mnustop",     "&Stop"      },
      {"mnudsize(0)", "&Default"   },
      {"mnudsize(1)", "&1/4"       },
      {"mnudsize(2)", "&HalfSize"  },
      {"mnudsize(3)", "&FullScreen"},
      {"mnudsize(4)", "&DoubleSize"},
      {"mnucdown(1)", "&On"        },
      {"mnucdown(2)", "&Off"       }
  };
  for (const auto& item : kItems) {
    ASSERT_NE(Find<QAction>(item.item), nullptr) << item.item;
    EXPECT_EQ(Find<QAction>(item.item)->text(), Name(item.caption));
    EXPECT_FALSE(Find<QAction>(item.item)->isCheckable()) << "nothing marks it";
  }
}

TEST_F(PlayerFormTest, HasNoSpeedOfFourTenths) {
  for (int i = 1; i <= 20; ++i) {
    const auto* item = form->findChild<QAction*>(Indexed("mnuspd", i));
    ASSERT_EQ(item != nullptr, i != 4) << i;
    if (item == nullptr) continue;
    EXPECT_EQ(item->text(), QString::number(i / 10.0, 'f', 1));
  }
  EXPECT_EQ(Find<QMenu>("mnuspeed")->actions().size(), 19);
}

TEST_F(PlayerFormTest, SetsTheSpeedOfTheItemsCaption) {
  Find<QAction>("mnuspd(1)")->trigger();
  EXPECT_EQ(player->Rate(), 0.1);
  Find<QAction>("mnuspd(20)")->trigger();
  EXPECT_EQ(player->Rate(), 2);
  Find<QAction>("mnuspd(10)")->setText(Name("&1.0"));
  Find<QAction>("mnuspd(10)")->trigger();
  EXPECT_EQ(player->Rate(), 1);
}

TEST_F(PlayerFormTest, IsAsLargeAsTheScreenRecordSays) {
  const TwipsRect outer = form->Outer();
  EXPECT_EQ(outer.width, 15345);
  EXPECT_EQ(outer.height, 11508);
  EXPECT_EQ(outer.left, 7.5);
  EXPECT_EQ(outer.top, 6);
}

TEST_F(PlayerFormTest, StandsItsBandInUnitsAboveThePlayer) {
  for (const char* name : {"lblremtime", "txtete", "lblmin"}) {
    const TwipsRect place = PlaceOf(Find<QWidget>(name));
    EXPECT_EQ(std::fmod(place.left, 77), 0) << name;
    EXPECT_EQ(std::fmod(place.width, 77), 0) << name;
    EXPECT_LE(place.top + place.height, PlaceOf(player).top) << name;
  }
}

TEST_F(PlayerFormTest, KeepsThePlayersSizeLessTenUnits) {
  const TwipsRect place = PlaceOf(player);
  EXPECT_EQ(Val(Text("txtssize(0)")), place.height - 1150);
  EXPECT_EQ(Val(Text("txtssize(1)")), place.left);
  EXPECT_EQ(Val(Text("txtssize(2)")), place.top);
  EXPECT_EQ(Val(Text("txtssize(3)")), place.width);
}

TEST_F(PlayerFormTest, SizesThePlayerByTheFormAndLeavesItsTopAlone) {
  const double top = PlaceOf(player).top;
  const double shares[] = {0.25, 0.5, 1, 2};
  for (int i = 1; i <= 4; ++i) {
    form->findChild<QAction*>(Indexed("mnudsize", i))->trigger();
    const TwipsRect place = PlaceOf(player);
    EXPECT_DOUBLE_EQ(place.height, 11508 * shares[i - 1]) << i;
    EXPECT_DOUBLE_EQ(place.width, 15345 * shares[i - 1]) << i;
    EXPECT_DOUBLE_EQ(place.left, (15345 - place.width) / 2) << i;
    EXPECT_EQ(place.top, top) << i;
  }
  EXPECT_LT(PlaceOf(player).left, 0);
}

TEST_F(PlayerFormTest, DefaultSizeIsTheSavedOne) {
  const TwipsRect before = PlaceOf(player);
  Find<QAction>("mnudsize(4)")->trigger();
  Find<QAction>("mnudsize(0)")->trigger();
  const TwipsRect place = PlaceOf(player);
  EXPECT_DOUBLE_EQ(place.height, before.height - 10 * 115);
  EXPECT_DOUBLE_EQ(place.left, before.left);
  EXPECT_DOUBLE_EQ(place.top, before.top);
  EXPECT_DOUBLE_EQ(place.width, before.width);
}

TEST_F(PlayerFormTest, FlipsItsListWhichIsEmptyAndHidden) {
  auto* list = Find<Combo>("cmbavi");
  EXPECT_EQ(list->toolTip(), Name("If File not found, It can't Play. "));
  EXPECT_EQ(list->count(), 0);
  EXPECT_TRUE(list->isHidden());
  Find<QAction>("mnulist")->trigger();
  EXPECT_FALSE(list->isHidden());
  Find<QAction>("mnulist")->trigger();
  EXPECT_TRUE(list->isHidden());
}

TEST_F(PlayerFormTest, PlaysAPickedClipAndHidesTheList) {
  auto* list = Find<Combo>("cmbavi");
  list->addItems({Name("C:\\one.wav"), Name(" C:\\two.wav ")});
  Find<QAction>("mnulist")->trigger();
  list->setCurrentIndex(1);
  EXPECT_TRUE(boxes.isEmpty());
  Q_EMIT list->activated(1);
  EXPECT_TRUE(list->isHidden());
  EXPECT_EQ(boxes, QStringList{Name("File Not Found: ( C:\\two.wav )")});
  EXPECT_EQ(player->URL(), Name("C:\\two.wav"));
}

TEST_F(PlayerFormTest, PlaysAndStopsByItsMenu) {
  Find<QAction>("mnuplay")->trigger();
  EXPECT_FALSE(player->Playing());
  WriteBytes(On("c/a.wav"), ToneWave(440, 300));
  player->SetURL(Name("C:\\a.wav"));
  EXPECT_FALSE(player->Playing());
  Find<QAction>("mnuplay")->trigger();
  EXPECT_TRUE(player->Playing());
  Find<QAction>("mnustop")->trigger();
  EXPECT_FALSE(player->Playing());
}

TEST_F(PlayerFormTest, ThePlayerHasControlsOfItsOwn) {
  WriteBytes(On("c/a.wav"), ToneWave(440, 300));
  player->SetURL(Name("C:\\a.wav"));
  const auto press = [this](const char* name) {
    for (auto* button : player->findChildren<QToolButton*>()) {
      if (button->accessibleName() != Name(name)) continue;
      EXPECT_EQ(button->toolTip(), Name(name));
      return button->click();
    }
    ADD_FAILURE() << "no button " << name;
  };
  press("Play");
  EXPECT_TRUE(player->Playing());
  press("Stop");
  EXPECT_FALSE(player->Playing());
  press("Mute");
  EXPECT_TRUE(player->Mute());
  press("Mute");
  EXPECT_FALSE(player->Mute());
}

TEST_F(PlayerFormTest, ANewPathEndsWhatIsPlayingTheSameAgainToo) {
  WriteBytes(On("c/a.wav"), ToneWave(440, 300));
  for (const char* next : {"C:\\a.wav", "C:\\b.wav"}) {
    player->SetURL(Name("C:\\a.wav"));
    player->Play();
    ASSERT_TRUE(player->Playing());
    player->SetURL(Name(next));
    EXPECT_FALSE(player->Playing()) << next;
  }
}

TEST_F(PlayerFormTest, FlipsMuteAndStretching) {
  form->FlipMute();
  EXPECT_TRUE(player->Mute());
  form->FlipMute();
  EXPECT_FALSE(player->Mute());
  form->FlipStretchToFit();
  EXPECT_TRUE(player->StretchToFit());
  form->FlipStretchToFit();
  EXPECT_FALSE(player->StretchToFit());
}

/// Fails over each place that its layout gives a control, and over its unload.
class TroubledPlayerForm : public PlayerForm {
 public:
  TroubledPlayerForm() { findChild<QWidget*>(Name("txtete"))->installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::DynamicPropertyChange) {
      throw TrappedError(Name("this cannot be stored"));
    }
    return PlayerForm::eventFilter(watched, event);
  }
  void Form_Unload() override {
    if (!mayGo) throw TrappedError(Name("cannot go"));
  }

  bool mayGo = false;
};

class FailingPlayerForm : public PlayerFormTest {
 protected:
  FailingPlayerForm() {
    UnloadForm(form);
    MakeDataFolder();
    RegisterHome({});
    RegisterForm(kForm, [] { return new TroubledPlayerForm; });
    failing = dynamic_cast<TroubledPlayerForm*>(LoadForm(kForm));
  }
  ~FailingPlayerForm() override { failing->mayGo = true; }
  FailingPlayerForm(const FailingPlayerForm&) = delete;
  FailingPlayerForm& operator=(const FailingPlayerForm&) = delete;

  qint64 Reports() const { return QFileInfo(On("c/bramlee/dba/errrepv0.dat")).size() / 150; }

  TroubledPlayerForm* failing;
};

TEST_F(FailingPlayerForm, ReportsALayoutThatFailsAndFinishesItsLoad) {
  EXPECT_EQ(Reports(), 1);
  EXPECT_NE(LoadedForm(Name("fcomsav1")), nullptr);
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_EQ(LoadedForm(kForm), failing);
  EXPECT_FALSE(failing->TextOf(Name("txtssize(0)")).isEmpty()) << "the load went on";
}

TEST_F(FailingPlayerForm, ReportsThatItCannotGoByItsFormCount) {
  failing->SetText(Name("txtcnt"), Name("1"));
  EXPECT_NO_THROW(failing->Timer1_Timer());
  EXPECT_EQ(Reports(), 2);
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_FALSE(failing->Named<QTimer>(Name("Timer1"))->isActive());
  EXPECT_EQ(LoadedForm(kForm), failing);
}

TEST_F(PlayerFormTest, GoesBackToNoForm) {
  form->SetText(Name("txtformno"), Name("1205"));
  const auto others = LoadedForms().size() - 1;
  Find<QAction>("mnuback")->trigger();
  EXPECT_FALSE(Loaded());
  EXPECT_EQ(LoadedForms().size(), others);
}

TEST_F(PlayerFormTest, StopsItsSoundWhenItUnloads) {
  WriteBytes(On("c/a.wav"), ToneWave(440, 300));
  player->SetURL(Name("C:\\a.wav"));
  player->Play();
  UnloadForm(form);
  EXPECT_FALSE(player->Playing());
}

TEST_F(PlayerFormTest, ItsRoutinesLogTheirTags) {
  SKIP_WHERE_LEAKS_COUNT();
  const TrapLog log;
  form->show();
  environment.screen = ScreenSize{.width = 20000, .height = 15000};  // all is placed anew
  {
    const FailingEvent noPlace("lblmin", QEvent::Move);
    form->Form_Load();
  }
  EXPECT_EQ(TrapLog::Tags().first(), Name("1207:21"));  // then that there is no report
  TrapLog::Lines().clear();
  UnloadForm(form);
  {
    const FailingEvent noFlag("f1207vid", QEvent::DynamicPropertyChange);
    form = dynamic_cast<PlayerForm*>(LoadForm(kForm));
  }
  EXPECT_EQ(TrapLog::Tags(), Tags({"1207:02"}));
  TrapLog::Lines().clear();
  form->mnulist_Click();
  {
    const FailingEvent noHiding("cmbavi", QEvent::HideToParent);
    form->cmbavi_Click();
    form->cmbavi_Click();
  }
  EXPECT_EQ(TrapLog::Tags(), Tags({"1207:01"}));
  TrapLog::Lines().clear();
  form->SetText(Name("txtcnt"), Name("1"));
  form->show();
  {
    const FailingEvent noHiding("", QEvent::Hide);
    form->Timer1_Timer();
  }
  EXPECT_EQ(TrapLog::Tags().first(), Name("1207:03"));
  delete form;
}

}  // namespace
}  // namespace bramlee
