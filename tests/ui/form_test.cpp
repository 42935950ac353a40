#include "ui/form.h"

#include <QEventLoop>
#include <QPointer>
#include <QSignalSpy>

#include "files/trap.h"
#include "tests/files/trap_log.h"
#include "tests/home/home_forms.h"
#include "ui/message_box.h"

namespace bramlee {
namespace {

/// What the forms under test tell of their lives.
QStringList lives;

class Plain : public Form {
 public:
  explicit Plain(const QString& name, Kind kind = Kind::Free) : Form(name, kind) {
    AddText(QStringLiteral("txt"), QStringLiteral("as made"));
    AddTimer(QStringLiteral("tmr"), 60000, true, [this] {
      if (handler) handler();
    });
    QMenu* menu = AddMenu(QStringLiteral("mnu"), QStringLiteral("&Menu"));
    AddItem(menu, QStringLiteral("mnumark"), QStringLiteral("&Mark"), [this] {
      if (handler) handler();
    });
    AddCommand(menu, QStringLiteral("mnudo"), QStringLiteral("&Do"), [this] {
      if (handler) handler();
    });
  }
  ~Plain() override { lives.append(QStringLiteral("destroyed")); }
  Plain(const Plain&) = delete;
  Plain& operator=(const Plain&) = delete;

  void Form_Load() override { lives.append(QStringLiteral("load ") + objectName()); }
  void Form_Unload() override {
    lives.append(QStringLiteral("unload ") + objectName());
    if (atUnload) atUnload();
  }

  std::function<void()> handler;
  std::function<void()> atUnload;
};

class FormLife : public HomeForms {
 protected:
  FormLife() {
    for (const char* name : {"fone", "ftwo", "fthree"}) {
      const QString form = QString::fromLatin1(name);
      RegisterForm(form, [form] { return new Plain(form); });
    }
    lives.clear();
  }
  static Plain* Load(const char* name) {
    return dynamic_cast<Plain*>(LoadForm(QString::fromLatin1(name)));
  }
};

TEST_F(FormLife, NamingAFormLoadsItUnseenWithItsTimersRunning) {
  const Form* form = Load("fone");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(lives, QStringList{QStringLiteral("load fone")});
  EXPECT_TRUE(form->Named<QTimer>(QStringLiteral("tmr"))->isActive());
}

TEST_F(FormLife, ShowingALoadedFormDoesNotLoadItAgain) {
  Form* form = Load("fone");
  form->SetText(QStringLiteral("txt"), QStringLiteral("as changed"));
  ShowForm(QStringLiteral("fone"));
  EXPECT_TRUE(form->isVisible());
  form->showMinimized();
  ShowForm(QStringLiteral("fone"));
  EXPECT_FALSE(form->isMinimized());
  EXPECT_EQ(lives.size(), 1);
  EXPECT_EQ(LoadedForm(QStringLiteral("fone")), form);
  EXPECT_EQ(form->TextOf(QStringLiteral("txt")), QStringLiteral("as changed"));
}

TEST_F(FormLife, AHiddenFormsTimersRunOn) {
  Plain* form = Load("fone");
  int ticks = 0;
  form->handler = [&ticks] { ++ticks; };
  ShowForm(QStringLiteral("fone"));
  form->hide();
  auto* timer = form->Named<QTimer>(QStringLiteral("tmr"));
  EXPECT_TRUE(timer->isActive());
  Tick(timer);
  EXPECT_EQ(ticks, 1);
}

TEST_F(FormLife, AnUnknownNameIsIgnored) {
  EXPECT_EQ(LoadForm(QStringLiteral("fbrmnone")), nullptr);
  ShowForm(QStringLiteral("fbrmnone"));
  UnloadForm(nullptr);
  EXPECT_TRUE(LoadedNames().isEmpty());
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(FormLife, AnUnloadedFormsNameIsFreeInTheSameHandler) {
  QPointer<Form> first = Load("fone");
  UnloadForm(first);
  EXPECT_EQ(LoadedForm(QStringLiteral("fone")), nullptr);
  EXPECT_FALSE(first->isVisible());
  EXPECT_FALSE(first->Named<QTimer>(QStringLiteral("tmr"))->isActive());
  const Form* second = Load("fone");
  EXPECT_NE(second, first);
  int named = 0;
  for (const QWidget* widget : QApplication::allWidgets()) {
    if (widget->objectName() == QStringLiteral("fone")) ++named;
  }
  EXPECT_EQ(named, 1);
  UnloadForm(first);  // a second time
  EXPECT_EQ(lives.count(QStringLiteral("unload fone")), 1);
}

TEST_F(FormLife, TheWindowManagersCloseIsAnUnload) {
  QPointer<Form> form = Load("fone");
  form->Present();
  form->close();
  EXPECT_EQ(Loaded("fone"), nullptr);
  EXPECT_TRUE(lives.contains(QStringLiteral("unload fone")));
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(form.isNull());
}

/// Runs `handler` as a handler of the form, in the program's event loop, and waits until the form
/// is gone.
void RunAndWaitForTheEnd(Plain* form, const std::function<void()>& handler) {
  QEventLoop program;
  QObject::connect(form, &QObject::destroyed, &program, &QEventLoop::quit);
  form->handler = handler;
  QTimer::singleShot(0, form, [form] { form->Named<QAction>(QStringLiteral("mnudo"))->trigger(); });
  program.exec();
}

TEST_F(FormLife, AFormThatUnloadsItselfOutlivesItsHandler) {
  QPointer<Plain> form = Load("fone");
  bool lived = false;
  RunAndWaitForTheEnd(form, [&] {
    UnloadForm(form);
    MsgBox(QStringLiteral("box"));
    lived = !form.isNull();
  });
  EXPECT_TRUE(lived);
  EXPECT_TRUE(form.isNull());
}

TEST_F(FormLife, AFormOutlivesItsHandlerThatWaitsForABoxWhileAnotherEventUnloadsIt) {
  QPointer<Plain> form = Load("fone");
  bool lived = false;
  RunAndWaitForTheEnd(form, [&] {
    QEventLoop box;  // a message box waits in one like this
    QTimer::singleShot(0, &box, [&] { UnloadForm(form); });
    QTimer::singleShot(200, &box, &QEventLoop::quit);
    box.exec();
    lived = !form.isNull();
  });
  EXPECT_TRUE(lived);
  EXPECT_EQ(lives.last(), QStringLiteral("destroyed"));
}

TEST_F(FormLife, UnloadAllGoesFromTheLastToTheFirstUnseenOnesToo) {
  Load("ftwo");
  ShowForm(QStringLiteral("fthree"));
  Load("fone");
  lives.clear();
  UnloadAll();
  EXPECT_EQ(lives, QStringList({QStringLiteral("unload fone"), QStringLiteral("unload fthree"),
                                QStringLiteral("unload ftwo")}));
  EXPECT_TRUE(LoadedForms().isEmpty());
}

TEST_F(FormLife, UnloadAllLoadsNothing) {
  bool named = false;
  Load("fone");
  Load("ftwo")->atUnload = [&] {
    named = true;
    EXPECT_EQ(LoadForm(QStringLiteral("fthree")), nullptr);
    EXPECT_NE(LoadForm(QStringLiteral("fone")), nullptr);  // it is still there
    UnloadAll();                                           // while it unloads all
  };
  UnloadAll();
  EXPECT_TRUE(named);
  EXPECT_TRUE(LoadedForms().isEmpty());
  EXPECT_EQ(lives.count(QStringLiteral("load fthree")), 0);
  EXPECT_NE(LoadForm(QStringLiteral("fthree")), nullptr);  // afterwards it loads again
}

TEST_F(FormLife, AFormThatNamesItselfAsItGoesIsNotMadeTwice) {
  Plain* form = Load("fone");
  form->atUnload = [form] { EXPECT_EQ(LoadForm(QStringLiteral("fone")), form); };
  UnloadForm(form);
  EXPECT_EQ(lives.count(QStringLiteral("load fone")), 1);
  EXPECT_EQ(Loaded("fone"), nullptr);
}

TEST_F(FormLife, AFailureEndsUnloadAllQuietly) {
  Load("fone");
  Load("ftwo")->atUnload = [] { throw TrappedError(QStringLiteral("cannot go")); };
  const TrapLog log;
  UnloadAll();
  EXPECT_EQ(TrapLog::Lines(), QStringList(QStringLiteral("[com1:20] cannot go")));
  EXPECT_TRUE(boxes.isEmpty());
  EXPECT_NE(Loaded("fone"), nullptr);
  dynamic_cast<Plain*>(Loaded("ftwo"))->atUnload = {};
}

TEST_F(FormLife, TheEndDestroysWhatIsLeftAndRunsNoHandler) {
  QPointer<Form> free = Load("fone");
  QPointer<Form> child = Shown("fbrmsta1");
  QPointer<Form> frame = Loaded("MDIbrm");
  lives.clear();
  DestroyForms();
  EXPECT_TRUE(free.isNull());
  EXPECT_TRUE(child.isNull());
  EXPECT_TRUE(frame.isNull());
  EXPECT_EQ(lives, QStringList{QStringLiteral("destroyed")});
  EXPECT_TRUE(LoadedForms().isEmpty());
}

TEST_F(FormLife, TheProgramEndsWithStatus0) {
  environment.endProgram = realEnd;
  QTimer::singleShot(0, [] { EndProgram(); });
  EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(FormLife, AHandlerFindsItsItemsMarkAsItWas) {
  Plain* form = Load("fone");
  QAction* mark = Item(form, "mnumark");
  QList<bool> found;
  form->handler = [&] { found.append(mark->isChecked()); };
  mark->trigger();
  mark->setChecked(true);
  mark->trigger();
  EXPECT_EQ(found, QList<bool>({false, true}));
  EXPECT_TRUE(mark->isChecked());
  EXPECT_FALSE(Item(form, "mnudo")->isCheckable());
}

TEST_F(FormLife, MenusItemsAndTimersAreFoundBelowTheForm) {
  const Form* form = Load("fone");
  EXPECT_NE(form->findChild<QMenu*>(QStringLiteral("mnu")), nullptr);
  EXPECT_NE(form->findChild<QAction*>(QStringLiteral("mnumark")), nullptr);
  EXPECT_NE(form->findChild<QTimer*>(QStringLiteral("tmr")), nullptr);
}

TEST_F(FormLife, AControlsPlaceIsBelowTheMenuBar) {
  Form* form = Load("fone");
  form->SetOuter({.left = 0, .top = 0, .width = 6000, .height = 4500});
  auto* text = form->Named<QWidget>(QStringLiteral("txt"));
  Place(text, {.left = 0, .top = 0, .width = 1500, .height = 300});
  form->Present();
  const QWidget* bar = form->menuWidget();
  EXPECT_GE(text->mapTo(form, QPoint()).y(), bar->geometry().bottom() + 1);
}

TEST_F(FormLife, AFormsOuterPlaceIsKeptInTwips) {
  Form* form = Load("fone");
  form->SetOuter({.left = 7.5, .top = 6, .width = 15345, .height = 11508});
  const auto isThere = [form] {
    const TwipsRect outer = form->Outer();
    EXPECT_EQ(outer.left, 7.5);
    EXPECT_EQ(outer.top, 6);
    EXPECT_EQ(outer.width, 15345);
    EXPECT_EQ(outer.height, 11508);
  };
  isThere();
  form->Present();
  QCoreApplication::processEvents();
  isThere();
  EXPECT_EQ(form->frameGeometry(), QRect(0, 0, 1023, 767));
}

}  // namespace
}  // namespace bramlee
