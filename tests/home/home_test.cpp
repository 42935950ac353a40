#include <limits>
#include <new>

#include "files/trap.h"
#include "tests/files/trap_log.h"
#include "tests/home/home_fixture.h"
#include "tests/ui/failing_event.h"

namespace bramlee {
namespace {

TEST_F(Home, ItsTextsAreAsDesigned) {
  const Form* home = TheForm();
  const char* const captions[] = {
      "English:Capital Letters", "English:Small Letters", "Hindi:Wovels",  "Hindi:Consonants",
      "Telugu:Wovels",           "Telugu:Consonants",     "Maths:Numbers", "Maths:Basics"};
  for (int i = 1; i <= 8; ++i) {
    EXPECT_EQ(Subject(home, i)->text(), QString::fromLatin1(captions[i - 1]));
    EXPECT_EQ(Subject(home, i)->toolTip(), QStringLiteral("Click Me"));
  }
  const auto title = [home](int i) { return home->Named<Label>(Indexed("lblsol", i)); };
  EXPECT_EQ(title(0)->text(), QStringLiteral("BRAM-LEE  "));
  EXPECT_EQ(title(1)->text(), QStringLiteral(" BRM"));
  EXPECT_EQ(title(1)->toolTip(), QStringLiteral("Click Me"));
  EXPECT_EQ(title(2)->text(), QStringLiteral("Teacher Help Line: 000-000-0000"));
  const auto* number = home->Named<QLineEdit>(QStringLiteral("txtfrmno"));
  EXPECT_EQ(number->text(), QStringLiteral("-3"));
  EXPECT_EQ(number->toolTip(), QStringLiteral("Form Number"));
  EXPECT_TRUE(number->isHidden());
  EXPECT_TRUE(home->Named<QLineEdit>(QStringLiteral("txtdrv"))->isHidden());
}

TEST_F(Home, OffersTheSubjectsOfItsTableAndNoOther) {
  static constexpr HomeSubject kThree[] = {
      {"Music",  "fmusic", 0x00112233, ":/pictures/home/1.jpg"},
      {"Shapes", nullptr,  0x00445566, nullptr                },
      {"Words",  "fwords", 0x00778899, ":/pictures/home/2.jpg"},
  };
  RegisterHome(kThree);
  for (const char* board : {"fmusic", "fwords"}) {
    RegisterForm(board, [board] { return new DriveBoard(QString::fromLatin1(board)); });
  }
  const Form* home = TheForm();
  EXPECT_EQ(home->findChildren<PictureBox*>().size(), 2);
  EXPECT_EQ(Subject(home, 2)->text(), QStringLiteral("Shapes"));
  EXPECT_EQ(home->findChild<Label*>(Indexed("lbl1", 4)), nullptr);
  EXPECT_LT(PlaceOf(Tile(home, 1)).top, PlaceOf(Tile(home, 3)).top);
  ClickOn(Subject(home, 2));
  ClickOn(Tile(home, 3));
  EXPECT_EQ(LoadedNames().last(), QStringLiteral("fwords"));
  ClickOn(Subject(home, 1));
  EXPECT_EQ(LoadedNames().last(), QStringLiteral("fmusic"));
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Home, ItsMenusAreAsDesigned) {
  const Form* home = TheForm();
  const auto title = [home](const char* menu) {
    return home->findChild<QMenu*>(QString::fromLatin1(menu))->title();
  };
  EXPECT_EQ(title("mnufile"), QStringLiteral("&File"));
  EXPECT_EQ(title("mnudrvs"), QStringLiteral("&Drive"));
  EXPECT_EQ(Item(home, "mnuback")->text(), QStringLiteral("&Back"));
  EXPECT_EQ(Item(home, "mnuexit")->text(), QStringLiteral("&Exit"));
  EXPECT_EQ(Item(home, "mnubiodata")->text(), QStringLiteral("&BioData"));
  const auto drives = home->findChild<QMenu*>(QStringLiteral("mnudrvs"))->actions();
  ASSERT_EQ(drives.size(), 26);
  for (int i = 0; i < 26; ++i) {
    EXPECT_EQ(drives[i]->text(), QString(QChar('A' + i)) + QStringLiteral(":"));
    EXPECT_EQ(drives[i]->objectName(), Indexed("mnudrv", i + 1));
  }
}

TEST_F(Home, BeginsWithDriveC) {
  const Form* home = TheForm();
  EXPECT_EQ(MarkedDrives(home), QStringList{QStringLiteral("C:")});
  EXPECT_EQ(DriveOf("fbrmhom1"), QStringLiteral("C:"));
}

TEST_F(Home, ADriveThatIsChosenIsMarkedAlone) {
  const Form* home = TheForm();
  Item(home, "mnudrv(26)")->trigger();
  EXPECT_EQ(MarkedDrives(home), QStringList{QStringLiteral("Z:")});
  EXPECT_EQ(DriveOf("fbrmhom1"), QStringLiteral("Z:"));
  Item(home, "mnudrv(26)")->trigger();  // again: it stays
  EXPECT_EQ(MarkedDrives(home), QStringList{QStringLiteral("Z:")});
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Home, ADrivesCaptionIsReadWithoutItsMark) {
  const Form* home = TheForm();
  Item(home, "mnudrv(4)")->setText(QStringLiteral("&D:"));
  Item(home, "mnudrv(4)")->trigger();
  EXPECT_EQ(DriveOf("fbrmhom1"), QStringLiteral("D:"));
}

TEST_F(Home, StartShowsALoadedHomeWithItsDriveAndBackResetsIt) {
  const Form* start = Shown("fbrmsta1");
  Item(start, "mnustart")->trigger();
  Item(Loaded("fbrmhom1"), "mnudrv(4)")->trigger();
  Item(start, "mnustart")->trigger();
  EXPECT_EQ(DriveOf("fbrmhom1"), QStringLiteral("D:"));
  Item(Loaded("fbrmhom1"), "mnuback")->trigger();
  EXPECT_EQ(Loaded("fbrmhom1"), nullptr);
  EXPECT_TRUE(start->isVisible());
  Item(start, "mnustart")->trigger();
  EXPECT_EQ(DriveOf("fbrmhom1"), QStringLiteral("C:"));
  EXPECT_EQ(MarkedDrives(Loaded("fbrmhom1")), QStringList{QStringLiteral("C:")});
}

TEST_F(Home, TilesAndLabelsOpenTheirBoards) {
  const Form* home = TheForm();
  for (int i = 1; i <= 7; ++i) {
    const char* board = kBoards[i - 1];
    ClickOn(Tile(home, i));
    ASSERT_NE(Loaded(board), nullptr) << board;
    EXPECT_TRUE(Loaded(board)->isVisible()) << board;
    EXPECT_TRUE(Loaded(board)->isWindow()) << board;
    UnloadForm(Loaded(board));
    ClickOn(Subject(home, i));
    ASSERT_NE(Loaded(board), nullptr) << board;
    EXPECT_TRUE(Loaded(board)->isVisible()) << board;
    UnloadForm(Loaded(board));
  }
  EXPECT_EQ(LoadedForm(QStringLiteral("fbrmhom1")), home);
}

TEST_F(Home, MathsBasicsDoesNothingAtAll) {
  const Form* home = TheForm();
  const QStringList before = LoadedNames();
  ClickOn(Subject(home, 8));
  EXPECT_EQ(LoadedNames(), before);
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Home, AClickBesideTheSubjectsStartsNothing) {
  const Form* home = TheForm();
  const QStringList before = LoadedNames();
  QTest::mouseClick(home->client(), Qt::LeftButton, {}, QPoint(3, 3));
  for (int i = 0; i < 3; ++i) ClickOn(home->Named<Label>(Indexed("lblsol", i)));
  EXPECT_EQ(LoadedNames(), before);
}

TEST_F(Home, ABoardLoadedFreshTakesTheDriveOver) {
  const Form* home = TheForm();
  Item(home, "mnudrv(5)")->trigger();
  ClickOn(Tile(home, 1));
  EXPECT_EQ(DriveOf("fbrmengc02"), QStringLiteral("E:"));
}

TEST_F(Home, LoadsUnseenForWhoAsksForTheMediasDrive) {
  EXPECT_EQ(TheEnvironment().mediaDrive(), QStringLiteral("C:"));
  ASSERT_NE(Loaded("fbrmhom1"), nullptr);
  EXPECT_FALSE(Loaded("fbrmhom1")->isVisible());
  Item(Loaded("fbrmhom1"), "mnudrv(5)")->trigger();
  EXPECT_EQ(TheEnvironment().mediaDrive(), QStringLiteral("E:"));
}

TEST_F(Home, HasNoDriveForTheMediaWhileAllFormsGo) {
  std::optional<QString> drive = QStringLiteral("not asked");
  RegisterForm(QStringLiteral("fbrmmat01"), [&drive] {
    return new WatchedForm(QStringLiteral("fbrmmat01"),
                           [&drive] { drive = TheEnvironment().mediaDrive(); });
  });
  ShowForm(QStringLiteral("fbrmmat01"));
  UnloadAll();
  EXPECT_EQ(drive, std::nullopt);
  EXPECT_TRUE(LoadedForms().isEmpty());
}

TEST_F(Home, ABoardLeftOpenGetsTheDriveByItsLabelAlone) {
  const Form* home = TheForm();
  for (int i = 1; i <= 7; ++i) ClickOn(Tile(home, i));
  Item(home, "mnudrv(6)")->trigger();
  for (int i = 1; i <= 7; ++i) {
    const char* board = kBoards[i - 1];
    ClickOn(Tile(home, i));
    EXPECT_EQ(DriveOf(board), QStringLiteral("C:")) << board;
    ClickOn(Subject(home, i));
    EXPECT_EQ(DriveOf(board), i == 1 ? QStringLiteral("C:") : QStringLiteral("F:")) << board;
  }
}

TEST_F(Home, TheCardIsShownByName) {
  int made = 0;
  RegisterForm(QStringLiteral("fbrminf1"), [&made] {
    ++made;
    return new Form(QStringLiteral("fbrminf1"));
  });
  Item(TheForm(), "mnubiodata")->trigger();
  EXPECT_EQ(made, 1);
  EXPECT_TRUE(Loaded("fbrminf1")->isVisible());
}

TEST_F(Home, IgnoresWhatCannotBeLoaded) {
  MakeDataFolder();
  const Form* home = TheForm();
  const QStringList before = LoadedNames();
  int asked = 0;
  for (const char* form : {"fbrmtelc01", "fbrminf1"}) {
    RegisterForm(QString::fromLatin1(form), [&asked]() -> Form* {
      ++asked;
      throw std::bad_alloc();
    });
  }
  EXPECT_NO_THROW(ClickOn(Tile(home, 6)));
  EXPECT_NO_THROW(ClickOn(Subject(home, 6)));
  EXPECT_NO_THROW(Item(home, "mnubiodata")->trigger());
  EXPECT_EQ(asked, 3);
  EXPECT_EQ(LoadedNames(), before);
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_TRUE(QDir(On("c/bramlee/dba")).isEmpty()) << "nothing is reported";
}

TEST_F(Home, ExitUnloadsAllAndEndsWithoutAQuestion) {
  Shown("fbrmsta1");
  const Form* home = TheForm();
  ClickOn(Tile(home, 3));
  Item(home, "mnuexit")->trigger();
  EXPECT_TRUE(LoadedForms().isEmpty());
  EXPECT_EQ(ends, 1);
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_TRUE(questions.isEmpty());
}

TEST_F(Home, ExitUnloadsFromTheLastToTheFirstTheUnseenOnesToo) {
  QList<QStringList> stillThere;
  const auto watch = [&](const char* form) {
    const QString name = QString::fromLatin1(form);
    RegisterForm(name, [&, name] {
      return new WatchedForm(name, [&, name] {
        stillThere.append(LoadedNames());
        EXPECT_EQ(LoadedNames().last(), name);
        EXPECT_EQ(LoadForm(QStringLiteral("fcomsav1")), nullptr) << "nothing is loaded meanwhile";
      });
    });
  };
  watch("fbrmmat01");
  watch("fbrminf1");
  watch("f1207vid");
  Shown("fbrmsta1");
  const Form* home = TheForm();
  LoadForm(QStringLiteral("f1207vid"));
  ClickOn(Tile(home, 7));
  Item(home, "mnubiodata")->trigger();
  ShowForm(QStringLiteral("fbrmhom1"));  // shown again, it keeps its turn
  Item(home, "mnuexit")->trigger();
  const QStringList always{QStringLiteral("MDIbrm"), QStringLiteral("fbrmsta1"),
                           QStringLiteral("fbrmhom1")};
  const QStringList first = always + QStringList{QStringLiteral("f1207vid")};
  const QStringList second = first + QStringList{QStringLiteral("fbrmmat01")};
  EXPECT_EQ(stillThere,
            (QList<QStringList>{second + QStringList{QStringLiteral("fbrminf1")}, second, first}));
  EXPECT_TRUE(LoadedForms().isEmpty());
  EXPECT_EQ(ends, 1);
}

TEST_F(Home, ExitEndsQuietlyThoughAFormFailsToUnload) {
  MakeDataFolder();
  bool mayGo = false;
  RegisterForm(QStringLiteral("fbrmmat01"), [&mayGo] {
    return new WatchedForm(QStringLiteral("fbrmmat01"), [&mayGo] {
      if (!mayGo) throw TrappedError(QStringLiteral("cannot go"));
    });
  });
  const Form* home = TheForm();
  ClickOn(Tile(home, 7));
  Item(home, "mnuexit")->trigger();
  EXPECT_EQ(ends, 1);
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_TRUE(QDir(On("c/bramlee/dba")).isEmpty()) << "nothing is reported";
  mayGo = true;
  UnloadAll();
}

/// One that fails over the first thing its load stores.
class FailingHome : public HomeForm {
 public:
  FailingHome() : HomeForm(HomeSubjects()) {}

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::DynamicPropertyChange) {
      throw TrappedError(QStringLiteral("this cannot be stored"));
    }
    return HomeForm::event(event);
  }
};

TEST_F(Home, ALoadThatFailsShowsAMessageAndIsReported) {
  MakeDataFolder();
  FailingHome home;
  home.Form_Load();
  EXPECT_EQ(boxes, QStringList{QStringLiteral("ERROR")});
  EXPECT_NE(Loaded("fcomsav1"), nullptr);
  EXPECT_FALSE(BytesOf(On("c/bramlee/dba/errrepv0.dat")).isEmpty());
}

TEST_F(Home, ExitEndsTheProgramWithStatus0) {
  environment.endProgram = realEnd;
  const Form* home = TheForm();
  QTimer::singleShot(0, home, [home] { Item(home, "mnuexit")->trigger(); });
  EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(Home, SubjectsAreReachedAndPressedFromTheKeyboard) {
  const Form* home = TheForm();
  for (int i = 1; i <= 7; ++i) {
    EXPECT_EQ(Tile(home, i)->accessibleName(), Subject(home, i)->text());
    EXPECT_TRUE(Tile(home, i)->focusPolicy() & Qt::TabFocus);
  }
  for (int i = 1; i < 7; ++i) {
    const QWidget* next = Tile(home, i);
    do {
      next = next->nextInFocusChain();
    } while (!(next->focusPolicy() & Qt::TabFocus) || next->isHidden());
    EXPECT_EQ(next, Tile(home, i + 1)) << i;
  }
  QTest::keyClick(Tile(home, 4), Qt::Key_Space);
  EXPECT_NE(Loaded("fbrmhinc01"), nullptr);
}

TEST_F(Home, ItsRoutinesLogTheirTags) {
  SKIP_WHERE_LEAKS_COUNT();
  MakeDataFolder();
  const TrapLog log;
  {
    const FailingEvent noFlag("fbrmhom1", QEvent::DynamicPropertyChange);
    TheForm();
  }
  EXPECT_EQ(TrapLog::Tags(), Tags({"603:01"}));
  UnloadAll();
  TrapLog::Lines().clear();
  ScreenRec rec;
  rec.UnitW = std::numeric_limits<std::int32_t>::max();
  TheForm()->LayOut(rec);
  EXPECT_EQ(TrapLog::Tags(), Tags({"601:23"}));
  TrapLog::Lines().clear();
  environment.endProgram = [] { throw TrappedError(QStringLiteral("no end")); };
  TheForm()->mnuexit_Click();
  EXPECT_EQ(TrapLog::Tags(), Tags({"603:02"}));
}

TEST_F(Home, ALayoutThatFailsSaysSo) {
  HomeForm* home = TheForm();
  ScreenRec rec;
  rec.UnitW = std::numeric_limits<std::int32_t>::max();
  home->LayOut(rec);
  EXPECT_EQ(boxes, QStringList{QStringLiteral("ERROR2")});
  EXPECT_EQ(Loaded("fcomsav1"), nullptr);  // it is shown, not reported
}

}  // namespace
}  // namespace bramlee
