#include <QMdiArea>
#include <functional>
#include <limits>
#include <new>
#include <utility>
#include <vector>

#include "files/trap.h"
#include "home/home_form.h"
#include "tests/files/trap_log.h"
#include "tests/home/home_forms.h"
#include "tests/ui/failing_event.h"

namespace bramlee {
namespace {

const char* const kBoards[] = {"fbrmengc02", "fbrmengs01", "fbrmhinv01", "fbrmhinc01",
                               "fbrmtelv01", "fbrmtelc01", "fbrmmat01"};

/// A board as home knows it: it takes the media's drive when it is loaded.
class DriveBoard : public Form {
 public:
  explicit DriveBoard(const QString& name) : Form(name) {
    AddHiddenText(QStringLiteral("txtdrv"), QStringLiteral("?:"));
  }
  void Form_Load() override { SetText(QStringLiteral("txtdrv"), *TheEnvironment().mediaDrive()); }
};

/// A form whose unload the test watches.
class WatchedForm : public Form {
 public:
  WatchedForm(const QString& name, std::function<void()> atUnload)
      : Form(name), atUnload_(std::move(atUnload)) {}
  void Form_Unload() override { atUnload_(); }

 private:
  std::function<void()> atUnload_;
};

class Home : public HomeForms {
 protected:
  Home() {
    for (const char* board : kBoards) {
      const QString name = QString::fromLatin1(board);
      RegisterForm(name, [name] { return new DriveBoard(name); });
    }
  }
  static HomeForm* TheForm() { return dynamic_cast<HomeForm*>(Shown("fbrmhom1")); }
  static PictureBox* Tile(const Form* home, int i) {
    return home->Named<PictureBox>(Indexed("pic", i));
  }
  static Label* Subject(const Form* home, int i) { return home->Named<Label>(Indexed("lbl1", i)); }
  static QString DriveOf(const char* form) {
    return Loaded(form)->TextOf(QStringLiteral("txtdrv"));
  }
  /// The captions of the marked items of the drive menu.
  static QStringList MarkedDrives(const Form* home) {
    QStringList marked;
    for (int i = 1; i <= 26; ++i) {
      const auto* item = home->Named<QAction>(Indexed("mnudrv", i));
      if (item->isChecked()) marked.append(CaptionOf(item));
    }
    return marked;
  }
};

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

/// Where home is laid out for a screen, told in its units u (width) and v (height).
struct HomeOn {
  ScreenSize screen;
  double u;
  double v;
  double bandLeft;
};

const HomeOn kHomeOn[] = {
    {{.width = 15360, .height = 11520}, 77,  115, 3052 }, // 3052.5, to the even one
    {{.width = 20490, .height = 11520}, 102, 115, 4115 },
    {{.width = 28800, .height = 16200}, 144, 162, 5746 }, // 5745.5
    {{.width = 15360, .height = 9000},  77,  90,  3052 },
    {{.width = 57600, .height = 32400}, 288, 324, 11491},
};

class HomeLayout : public Home, public ::testing::WithParamInterface<HomeOn> {
 protected:
  HomeLayout() {
    environment.screen = GetParam().screen;
    home = TheForm();
    QCoreApplication::processEvents();
  }
  TwipsRect At(const QString& name) const { return PlaceOf(home->Named<QWidget>(name)); }

  /// Where the words or the picture of a control are, on the client.
  QRect Readable(const QWidget* control) const {
    QRect room = control->geometry();
    if (const auto* label = qobject_cast<const QLabel*>(control)) {
      const QSize words(label->fontMetrics().horizontalAdvance(label->text().trimmed()),
                        label->fontMetrics().height());
      QRect there({}, words);
      there.moveCenter(room.center());
      if (label->alignment().testFlag(Qt::AlignLeft)) there.moveLeft(room.left());
      if (label->alignment().testFlag(Qt::AlignRight)) {
        const QString trailing = label->text().mid(label->text().trimmed().size() +
                                                   label->text().indexOf(label->text().trimmed()));
        there.moveRight(room.right() - label->fontMetrics().horizontalAdvance(trailing));
      }
      return there;
    }
    return room;
  }
  std::vector<const QWidget*> AllReadable() const {
    std::vector<const QWidget*> all;
    for (int i = 0; i < 3; ++i) all.push_back(home->Named<Label>(Indexed("lblsol", i)));
    for (int i = 1; i <= 8; ++i) all.push_back(Subject(home, i));
    for (int i = 1; i <= 7; ++i) all.push_back(Tile(home, i));
    return all;
  }

  const Form* home;
};

TEST_P(HomeLayout, TheTitleBandIsInTheMiddle) {
  const HomeOn& on = GetParam();
  for (int i = 0; i < 3; ++i) {
    const TwipsRect line = At(Indexed("lblsol", i));
    EXPECT_EQ(line.left, on.bandLeft);
    EXPECT_EQ(line.top, (2 + 9 * i) * on.u);
    EXPECT_EQ(line.width, 120 * on.u);
    EXPECT_EQ(line.height, 8 * on.u);
  }
}

TEST_P(HomeLayout, TilesStandInTwoColumnsFlushWithTheBand) {
  const HomeOn& on = GetParam();
  const double height = At(QStringLiteral("pic(1)")).height;
  const double width = At(QStringLiteral("pic(2)")).width;
  for (int i = 1; i <= 7; ++i) {
    const TwipsRect tile = At(Indexed("pic", i));
    EXPECT_EQ(tile.left, i % 2 == 1 ? on.bandLeft : on.bandLeft + 120 * on.u - width);
    EXPECT_EQ(tile.top, 28 * on.u + 5 * on.v + (i - 1) / 2 * (2 * on.u + height));
    EXPECT_EQ(tile.height, height);
    EXPECT_EQ(tile.width, width);
  }
}

TEST_P(HomeLayout, LabelsStandAtTheirDesignPlaces) {
  constexpr double kTops[] = {1560, 2280, 3000, 3600};
  for (int i = 1; i <= 8; ++i) {
    const TwipsRect label = At(Indexed("lbl1", i));
    EXPECT_EQ(label.left, i % 2 == 1 ? 240 : 4440);
    EXPECT_EQ(label.top, kTops[(i - 1) / 2]);
    EXPECT_EQ(label.width, 3885);
    EXPECT_EQ(label.height, 495);
  }
}

TEST_P(HomeLayout, NothingReadableCoversAnother) {
  const auto all = AllReadable();
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (std::size_t j = i + 1; j < all.size(); ++j) {
      EXPECT_FALSE(Readable(all[i]).intersects(Readable(all[j])))
          << qPrintable(all[i]->objectName()) << " and " << qPrintable(all[j]->objectName());
    }
  }
}

TEST_P(HomeLayout, WordsFitTheirLabels) {
  for (const QWidget* control : AllReadable()) {
    EXPECT_TRUE(control->geometry().contains(Readable(control)))
        << qPrintable(control->objectName());
  }
}

TEST_P(HomeLayout, NothingTakesAClickFromASubject) {
  for (int i = 1; i <= 8; ++i) {
    EXPECT_EQ(home->client()->childAt(Readable(Subject(home, i)).center()), Subject(home, i)) << i;
  }
  for (int i = 1; i <= 7; ++i) {
    EXPECT_EQ(home->client()->childAt(Tile(home, i)->geometry().center()), Tile(home, i)) << i;
    EXPECT_EQ(home->client()->childAt(Tile(home, i)->geometry().topLeft()), Tile(home, i)) << i;
  }
}

TEST_P(HomeLayout, AllOfItIsSeen) {
  // On the screen, what the window manager's title takes is not seen either.
  constexpr int kTitle = 30;
  const QWidget* client = home->client();
  const QWidget* area = Loaded("MDIbrm")->findChild<QMdiArea*>();
  const QRect seen = area->rect().adjusted(0, 0, 0, -kTitle);
  for (const QWidget* control : AllReadable()) {
    const QRect there = Readable(control).translated(client->mapTo(area, QPoint()));
    EXPECT_TRUE(seen.contains(there)) << qPrintable(control->objectName());
  }
}

INSTANTIATE_TEST_SUITE_P(On, HomeLayout, ::testing::ValuesIn(kHomeOn), [](const auto& param) {
  return std::to_string(static_cast<int>(param.param.screen.width / 15)) + "x" +
         std::to_string(static_cast<int>(param.param.screen.height / 15));
});

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
