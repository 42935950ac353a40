#include <QDir>
#include <cmath>
#include <new>

#include "home/start_form.h"
#include "tests/files/trap_log.h"
#include "tests/home/home_forms.h"

namespace bramlee {
namespace {

class Start : public HomeForms {
 protected:
  static StartForm* TheForm() { return dynamic_cast<StartForm*>(Shown("fbrmsta1")); }
  static TwipsRect LineAt(const Form* form, int index) {
    return PlaceOf(form->Named<QWidget>(Indexed("lblsta", index)));
  }
};

void ExpectRect(const TwipsRect& rect, const TwipsRect& expected) {
  EXPECT_EQ(rect.left, expected.left);
  EXPECT_EQ(rect.top, expected.top);
  EXPECT_EQ(rect.width, expected.width);
  EXPECT_EQ(rect.height, expected.height);
}

TEST_F(Start, ItsTitleMenusAndGroundAreAsDesigned) {
  const Form* form = TheForm();
  const auto line = [form](int i) { return form->Named<Label>(Indexed("lblsta", i)); };
  EXPECT_EQ(line(0)->text(), QStringLiteral("Welcome to "));
  EXPECT_EQ(line(1)->text(), QStringLiteral("Online System "));
  EXPECT_EQ(line(2)->text(), QStringLiteral("BRAM-LEE"));
  EXPECT_EQ(line(0)->font().family(), QStringLiteral("Times New Roman"));
  EXPECT_EQ(line(1)->font().family(), QStringLiteral("Times New Roman"));
  EXPECT_EQ(line(2)->font().family(), QStringLiteral("MS Serif"));
  EXPECT_EQ(form->findChild<QMenu*>(QStringLiteral("mnumenu"))->title(), QStringLiteral("&Menu"));
  EXPECT_EQ(form->findChild<QMenu*>(QStringLiteral("mnupp1"))->title(),
            QStringLiteral("&Passwod Protection"));
  EXPECT_EQ(Item(form, "mnustart")->text(), QStringLiteral("&Start"));
  EXPECT_EQ(Item(form, "mnuexit")->text(), QStringLiteral("&Exit"));
  EXPECT_EQ(Item(form, "mnupp(1)")->text(), QStringLiteral("&On"));
  EXPECT_EQ(Item(form, "mnupp(2)")->text(), QStringLiteral("&Off"));
  EXPECT_TRUE(form->Named<QLineEdit>(QStringLiteral("txtcnt"))->isHidden());
  const QColor ground = form->client()->grab().toImage().pixelColor(5, 5);
  EXPECT_EQ(WordOf(ground), 0xC0FFC0U);
}

TEST_F(Start, BothTimersRunAndBothItemsOfTheSwitchAreUnmarked) {
  const Form* form = TheForm();
  const auto* tmr1 = form->Named<QTimer>(QStringLiteral("tmr1"));
  const auto* tmr2 = form->Named<QTimer>(QStringLiteral("tmr2"));
  EXPECT_TRUE(tmr1->isActive());
  EXPECT_TRUE(tmr2->isActive());
  EXPECT_EQ(tmr1->interval(), 50);
  EXPECT_EQ(tmr2->interval(), 300);
  EXPECT_FALSE(Item(form, "mnupp(1)")->isChecked());
  EXPECT_FALSE(Item(form, "mnupp(2)")->isChecked());
}

struct StartOn {
  ScreenSize screen;
  TwipsRect form;
  TwipsRect lines[3];
};

const StartOn kStartOn[] = {
    {{.width = 15360, .height = 11520},
     {.left = 7.5, .top = 6, .width = 15345, .height = 11508},
     {{.left = 459, .top = 1150, .width = 7650, .height = 1495},
      {.left = 459, .top = 8625, .width = 7650, .height = 1495},
      {.left = 3847.5, .top = 4719, .width = 7650, .height = 2070}} },
    {{.width = 20490, .height = 11520},
     {.left = 10, .top = 6, .width = 20470, .height = 11508},
     {{.left = 615, .top = 1150, .width = 10250, .height = 1495},
      {.left = 615, .top = 8625, .width = 10250, .height = 1495},
      {.left = 5110, .top = 4719, .width = 10250, .height = 2070}}  },
    {{.width = 28800, .height = 16200},
     {.left = 14.5, .top = 8, .width = 28771, .height = 16184},
     {{.left = 864, .top = 1620, .width = 14400, .height = 2106},
      {.left = 864, .top = 12150, .width = 14400, .height = 2106},
      {.left = 7185.5, .top = 6634, .width = 14400, .height = 2916}}},
};

TEST_F(Start, IsLaidOutByItsOwnSize) {
  for (const StartOn& on : kStartOn) {
    SCOPED_TRACE(on.screen.width);
    environment.screen = on.screen;
    Form* form = LoadForm(QStringLiteral("fbrmsta1"));
    ExpectRect(form->Outer(), on.form);
    for (int i = 0; i < 3; ++i) ExpectRect(LineAt(form, i), on.lines[i]);
    UnloadAll();
  }
}

TEST_F(Start, TheTitleStaysWithinItsLines) {
  for (const StartOn& on : kStartOn) {
    environment.screen = on.screen;
    const Form* form = LoadForm(QStringLiteral("fbrmsta1"));
    for (int i = 0; i < 3; ++i) {
      const auto* line = form->Named<Label>(Indexed("lblsta", i));
      const QFontMetrics letters(line->font());
      EXPECT_LE(letters.horizontalAdvance(line->text()), line->width());
      EXPECT_LE(letters.height(), line->height());
      EXPECT_GT(letters.height(), line->height() / 2);
    }
    UnloadAll();
  }
}

TEST_F(Start, TwoLinesPassEachOther) {
  StartForm* form = TheForm();
  const double top0 = LineAt(form, 0).top;
  const double top1 = LineAt(form, 1).top;
  for (int tick = 1; tick <= 171; ++tick) {
    form->tmr1_Timer();
    // 15360 / 284 is 54.08 and 15360 / 36 is 426.67; three times 54 is 162.
    EXPECT_EQ(LineAt(form, 0).left, 427 + 162 * tick);
    EXPECT_EQ(LineAt(form, 1).left, 35 * 427 - 162 * tick);
    EXPECT_EQ(form->cnt(), tick == 171 ? 0 : tick);
  }
  EXPECT_EQ(LineAt(form, 0).left, 28129);
  EXPECT_EQ(LineAt(form, 0).top, top0);
  EXPECT_EQ(LineAt(form, 1).top, top1);
  form->tmr1_Timer();  // the jump is seen one tick after the count began anew
  EXPECT_EQ(LineAt(form, 0).left, 589);
  EXPECT_EQ(LineAt(form, 1).left, 14783);
  EXPECT_EQ(form->cnt(), 1);
}

TEST_F(Start, TheThirdLineWalksInACircleByRadians) {
  StartForm* form = TheForm();
  // 15360 / 100 is 153.6, 11520 / 100 is 115.2; twelve times 154 is 1848.
  constexpr double kLefts[] = {1848, 2698, 4465, 5526, 4904};
  constexpr double kTops[] = {4600, 3045, 2920, 4339, 5999};
  for (int tick = 0; tick < 5; ++tick) {
    form->tmr2_Timer();
    EXPECT_EQ(LineAt(form, 2).left, kLefts[tick]);
    EXPECT_EQ(LineAt(form, 2).top, kTops[tick]);
    EXPECT_EQ(form->angle(), tick + 1);
  }
  for (int tick = 5; tick < 360; ++tick) form->tmr2_Timer();
  EXPECT_EQ(form->angle(), 360);
  form->tmr2_Timer();
  EXPECT_EQ(form->angle(), 0);
  form->tmr2_Timer();
  EXPECT_EQ(LineAt(form, 2).left, 1848);
}

/// Where the title's lines are on a screen, worked out by hand: each length is the screen's width
/// or height parted and rounded first, then multiplied.
struct WayOn {
  ScreenSize screen;
  double line0At1;
  double line1At1;
  double line0At171;
  double line1At171;
  double walk[4][2];  ///< left and top of the third line at its first four ticks
};

const WayOn kWayOn[] = {
    {{.width = 15360, .height = 11520},
     589,  14783,
     28129, -12757,
     {{1848, 4600}, {2698, 3045}, {4465, 2920}, {5526, 4339}} },
    {{.width = 20490, .height = 11520},
     785,  19699,
     37505, -17021,
     {{2460, 4600}, {3591, 2530}, {5944, 2363}, {7355, 4253}} },
    {{.width = 28800, .height = 16200},
     1103, 27697,
     52613, -23813,
     {{3456, 6480}, {5045, 3572}, {8350, 3337}, {10333, 5992}}},
};

TEST_F(Start, TheTitleMovesByTheScreensSizeNotTheForms) {
  for (const WayOn& on : kWayOn) {
    SCOPED_TRACE(on.screen.width);
    environment.screen = on.screen;
    StartForm* form = TheForm();
    form->tmr1_Timer();
    EXPECT_EQ(LineAt(form, 0).left, on.line0At1);
    EXPECT_EQ(LineAt(form, 1).left, on.line1At1);
    for (int tick = 2; tick <= 171; ++tick) form->tmr1_Timer();
    EXPECT_EQ(form->cnt(), 0);
    EXPECT_EQ(LineAt(form, 0).left, on.line0At171);
    EXPECT_EQ(LineAt(form, 1).left, on.line1At171);
    for (const auto& step : on.walk) {
      form->tmr2_Timer();
      EXPECT_EQ(LineAt(form, 2).left, step[0]);
      EXPECT_EQ(LineAt(form, 2).top, step[1]);
    }
    UnloadAll();
  }
}

TEST_F(Start, TheTimersMoveTheTitle) {
  StartForm* form = TheForm();
  Tick(form->Named<QTimer>(QStringLiteral("tmr1")));
  EXPECT_EQ(form->cnt(), 1);
  Tick(form->Named<QTimer>(QStringLiteral("tmr2")));
  EXPECT_EQ(form->angle(), 1);
}

TEST_F(Start, AFailedTickLosesOnlyThatTick) {
  StartForm* form = TheForm();
  form->tmr1_Timer();
  const double left = LineAt(form, 0).left;
  environment.screen = ScreenSize{.width = 1e15, .height = 11520};
  form->tmr1_Timer();
  form->tmr2_Timer();
  EXPECT_EQ(LineAt(form, 0).left, left);
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_EQ(Loaded("fcomsav1"), nullptr);
  environment.screen = ScreenSize{.width = 15360, .height = 11520};
  form->tmr1_Timer();
  EXPECT_GT(LineAt(form, 0).left, left);
}

TEST_F(Start, AClickAnywhereStarts) {
  const StartForm* form = TheForm();
  QWidget* const places[] = {form->client(), form->Named<Label>(QStringLiteral("lblsta(0)")),
                             form->Named<Label>(QStringLiteral("lblsta(1)")),
                             form->Named<Label>(QStringLiteral("lblsta(2)"))};
  for (QWidget* place : places) {
    ClickOn(place);
    ASSERT_NE(Loaded("fbrmhom1"), nullptr);
    EXPECT_TRUE(Loaded("fbrmhom1")->isVisible());
    EXPECT_NE(Loaded("fbrmsta1"), nullptr);
    UnloadForm(Loaded("fbrmhom1"));
  }
  QTest::mouseClick(form->client(), Qt::RightButton);
  EXPECT_EQ(Loaded("fbrmhom1"), nullptr);
}

TEST_F(Start, APressThatIsLetGoElsewhereIsNoClick) {
  const StartForm* form = TheForm();
  QTest::mousePress(form->client(), Qt::LeftButton);
  QTest::mouseRelease(form->client(), Qt::LeftButton, {}, QPoint(-5, -5));
  EXPECT_EQ(Loaded("fbrmhom1"), nullptr);
}

TEST_F(Start, ItsMenuItemStartsToo) {
  Item(TheForm(), "mnustart")->trigger();
  ASSERT_NE(Loaded("fbrmhom1"), nullptr);
  EXPECT_TRUE(Loaded("fbrmhom1")->isVisible());
  EXPECT_EQ(LoadedNames().count(QStringLiteral("fbrmsta1")), 1);
}

TEST_F(Start, IgnoresWhatCannotBeLoaded) {
  MakeDataFolder();
  const Form* form = TheForm();
  int asked = 0;
  for (const char* name : {"fbrmhom1", "fbrmsav1"}) {
    RegisterForm(QString::fromLatin1(name), [&asked]() -> Form* {
      ++asked;
      throw std::bad_alloc();
    });
  }
  EXPECT_NO_THROW(ClickOn(form->client()));
  EXPECT_NO_THROW(Item(form, "mnustart")->trigger());
  EXPECT_NO_THROW(Item(form, "mnupp(1)")->trigger());
  EXPECT_EQ(asked, 3);
  EXPECT_TRUE(Item(form, "mnupp(1)")->isChecked());
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_TRUE(QDir(On("c/bramlee/dba")).isEmpty()) << "nothing is reported";
}

TEST_F(Start, ItsTimersRunOnUnderHome) {
  StartForm* form = TheForm();
  form->mnustart_Click();
  Tick(form->Named<QTimer>(QStringLiteral("tmr1")));
  UnloadForm(Loaded("fbrmhom1"));
  EXPECT_EQ(form->cnt(), 1);
  EXPECT_TRUE(form->Named<QTimer>(QStringLiteral("tmr1"))->isActive());
}

TEST_F(Start, ExitEndsAtOnceWithoutUnloadingAndWithoutAQuestion) {
  const StartForm* form = TheForm();
  Shown("fcomsav1");
  const QStringList before = LoadedNames();
  Item(form, "mnuexit")->trigger();
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(LoadedNames(), before);
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_TRUE(questions.isEmpty());
}

TEST_F(Start, ExitEndsTheProgramWithStatus0) {
  environment.endProgram = realEnd;
  const StartForm* form = TheForm();
  QTimer::singleShot(0, form, [form] { Item(form, "mnuexit")->trigger(); });
  EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(Start, ItsLoadMakesTheFolderOnDriveCAndNothingBelowIt) {
  QDir().mkpath(On("d/toys"));
  ChDrive(QStringLiteral("D:"));
  ChDir(QStringLiteral("D:\\toys"));
  TheForm();
  EXPECT_TRUE(QDir(On("c/bramlee")).exists());
  EXPECT_TRUE(QDir(On("c/bramlee")).isEmpty());
  EXPECT_EQ(CurDir(), QStringLiteral("C:\\"));
}

TEST_F(Start, ItsLoadGoesToTheRootOfDriveC) {
  MakeDataFolder();
  ChDir(QStringLiteral("C:\\bramlee"));
  TheForm();
  EXPECT_EQ(CurDir(), QStringLiteral("C:\\"));
}

TEST_F(Start, AFolderThatIsThereIsNoError) {
  MakeDataFolder();
  const TrapLog log;
  TheForm();
  EXPECT_TRUE(TrapLog::Lines().isEmpty());
}

TEST_F(Start, ItsRoutinesLogTheirTags) {
  const TrapLog log;
  QDir(On("c")).removeRecursively();
  StartForm* form = TheForm();
  EXPECT_EQ(TrapLog::Tags(), Tags({"601:02", "601:02"}));  // the folder, then the drive
  for (const char* name : {"fbrmhom1", "fbrmsav1"}) {
    RegisterForm(QString::fromLatin1(name), []() -> Form* { throw std::bad_alloc(); });
  }
  TrapLog::Lines().clear();
  form->mnustart_Click();
  form->mnupp_Click(1);
  environment.screen = ScreenSize{.width = 1e13, .height = 1e13};
  Tick(form->Named<QTimer>(QStringLiteral("tmr1")));
  Tick(form->Named<QTimer>(QStringLiteral("tmr2")));
  EXPECT_EQ(TrapLog::Tags(), Tags({"601:03", "601:06", "601:04", "601:05"}));
}

TEST_F(Start, AFolderThatIsThereOrADriveThatIsMissingIsIgnored) {
  MakeDataFolder();
  TheForm();
  EXPECT_TRUE(QDir(On("c/bramlee/dba")).exists());
  UnloadAll();
  QDir(On("c")).removeRecursively();
  EXPECT_TRUE(TheForm()->isVisible());
  EXPECT_FALSE(QDir(On("c")).exists());
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_EQ(Loaded("fcomsav1"), nullptr);
}

}  // namespace
}  // namespace bramlee
