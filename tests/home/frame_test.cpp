#include <QAccessible>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>

#include "home/frame_form.h"
#include "tests/files/trap_log.h"
#include "tests/home/home_forms.h"
#include "tests/ui/failing_event.h"

namespace bramlee {
namespace {

class Frame : public HomeForms {
 protected:
  static Form* TheFrame() { return Loaded("MDIbrm"); }
  /// The captions on the frame's menu bar.
  static QStringList Bar() {
    QStringList captions;
    for (const QAction* item : TheFrame()->menuBar()->actions()) captions.append(item->text());
    return captions;
  }
  const QStringList startBar{QStringLiteral("&Menu"), QStringLiteral("&Passwod Protection")};
  const QStringList homeBar{QStringLiteral("&File"), QStringLiteral("&BioData"),
                            QStringLiteral("&Drive")};
};

TEST_F(Frame, LoadsBeforeTheFormThatStandsInIt) {
  Shown("fbrmsta1");
  EXPECT_EQ(LoadedNames(), QStringList({QStringLiteral("MDIbrm"), QStringLiteral("fbrmsta1")}));
}

TEST_F(Frame, IsAThousandthShortOfTheScreenAndInItsMiddle) {
  LoadForm(QStringLiteral("MDIbrm"));
  EXPECT_EQ(TheFrame()->windowTitle(), QStringLiteral("Welcome To BRAMLEE"));
  const TwipsRect outer = TheFrame()->Outer();
  EXPECT_EQ(outer.width, 15345);
  EXPECT_EQ(outer.height, 11508);
  EXPECT_EQ(outer.left, 7.5);
  EXPECT_EQ(outer.top, 6);
}

TEST_F(Frame, ItsLoadLogsItsTag) {
  SKIP_WHERE_LEAKS_COUNT();
  const TrapLog log;
  const FailingEvent noFlag("MDIbrm", QEvent::DynamicPropertyChange);
  Shown("MDIbrm");
  EXPECT_EQ(TrapLog::Tags(), Tags({"601:02"}));
}

TEST_F(Frame, StartHomeAndTheNoticeStandInIt) {
  for (const char* name : {"fbrmsta1", "fbrmhom1", "fbrmsav1"}) {
    const Form* form = Shown(name);
    EXPECT_EQ(form->kind(), Form::Kind::FrameChild) << name;
    EXPECT_EQ(form->window(), TheFrame()) << name;
    EXPECT_NE(qobject_cast<QMdiSubWindow*>(form->parentWidget()), nullptr) << name;
    EXPECT_TRUE(form->isVisible()) << name;
  }
  const Form* other = Shown("fcomsav1");
  EXPECT_TRUE(other->isWindow());
  EXPECT_EQ(other->parentWidget(), nullptr);
}

TEST_F(Frame, ShowsItselfWithAFormThatIsShown) {
  LoadForm(QStringLiteral("fbrmsta1"));
  EXPECT_FALSE(TheFrame()->isVisible());
  Shown("fbrmsta1");
  EXPECT_TRUE(TheFrame()->isVisible());
}

TEST_F(Frame, TheMenuBarIsThatOfTheFormInFront) {
  const Form* start = Shown("fbrmsta1");
  EXPECT_EQ(Bar(), startBar);
  Form* home = Shown("fbrmhom1");
  EXPECT_EQ(Bar(), homeBar);
  ShowForm(QStringLiteral("fbrmsta1"));
  EXPECT_EQ(Bar(), startBar);
  ShowForm(QStringLiteral("fbrmhom1"));
  EXPECT_EQ(Bar(), homeBar);
  UnloadForm(home);
  EXPECT_EQ(Bar(), startBar);
  EXPECT_EQ(TheFrame()->menuBar()->actions().first()->menu(),
            start->findChild<QMenu*>(QStringLiteral("mnumenu")));
}

TEST_F(Frame, ItsMenusAreReadOutWithoutTheirMarks) {
  const auto names = [](QWidget* of) {
    QAccessibleInterface* read = QAccessible::queryAccessibleInterface(of);
    QStringList list;
    for (int i = 0; i < read->childCount(); ++i) {
      EXPECT_EQ(read->child(i)->role(), QAccessible::MenuItem);
      list.append(read->child(i)->text(QAccessible::Name));
    }
    return list;
  };
  const Form* start = Shown("fbrmsta1");
  EXPECT_EQ(names(TheFrame()->menuBar()),
            QStringList({QStringLiteral("Menu"), QStringLiteral("Passwod Protection")}));
  EXPECT_EQ(names(start->findChild<QMenu*>(QStringLiteral("mnumenu"))),
            QStringList({QStringLiteral("Start"), QStringLiteral("Exit")}));
  const Form* home = Shown("fbrmhom1");
  EXPECT_EQ(
      names(TheFrame()->menuBar()),
      QStringList({QStringLiteral("File"), QStringLiteral("BioData"), QStringLiteral("Drive")}));
  const QStringList drives = names(home->findChild<QMenu*>(QStringLiteral("mnudrvs")));
  ASSERT_EQ(drives.size(), 26);
  EXPECT_EQ(drives.first(), QStringLiteral("A:"));
  EXPECT_EQ(drives.last(), QStringLiteral("Z:"));
}

TEST_F(Frame, AFormWithoutMenusLeavesTheBarAsItIs) {
  Shown("fbrmsta1");
  Form* notice = Shown("fbrmsav1");
  EXPECT_EQ(Bar(), startBar);
  UnloadForm(notice);
  EXPECT_EQ(Bar(), startBar);
}

TEST_F(Frame, TheBarIsThatOfTheFormBelowWhenANoticeStandsOnTop) {
  Shown("fbrmsta1");
  Form* home = Shown("fbrmhom1");
  Shown("fbrmsav1");
  UnloadForm(home);
  EXPECT_EQ(Bar(), startBar);
}

TEST_F(Frame, WhatLayBelowIsInFrontAgain) {
  const Form* start = Shown("fbrmsta1");
  Form* home = Shown("fbrmhom1");
  const auto* area = TheFrame()->findChild<QMdiArea*>();
  EXPECT_EQ(area->currentSubWindow(), home->SubWindow());
  UnloadForm(home);
  EXPECT_EQ(area->currentSubWindow(), start->SubWindow());
  EXPECT_EQ(area->subWindowList().size(), 1);
  EXPECT_TRUE(start->isVisible());
}

TEST_F(Frame, AMinimisedFormIsBroughtBackByShow) {
  const Form* start = Shown("fbrmsta1");
  start->SubWindow()->showMinimized();
  TheFrame()->showMinimized();
  ShowForm(QStringLiteral("fbrmsta1"));
  EXPECT_FALSE(start->SubWindow()->isMinimized());
  EXPECT_FALSE(TheFrame()->isMinimized());
}

TEST_F(Frame, ANoticeDoesNotFillTheFrameBecauseTheFormBelowDoes) {
  const Form* start = Shown("fbrmsta1");
  start->SubWindow()->showMaximized();
  const Form* notice = Shown("fbrmsav1");
  EXPECT_FALSE(notice->SubWindow()->isMaximized());
  EXPECT_EQ(notice->Outer().width, 6000);
}

class MaximisedInTheFrame : public Frame {
 protected:
  /// By the user, before whom the frame stands.
  static void Maximise(const Form* form) {
    TheFrame()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(TheFrame()));
    form->SubWindow()->showMaximized();
  }
  /// The buttons of a maximised form, at the end of the menu bar.
  static QWidget* Buttons() { return TheFrame()->menuBar()->cornerWidget(Qt::TopRightCorner); }
  /// What is maximised, by what the frame's title says and by the forms' own windows.
  static QString Maximised() {
    const QString title = TheFrame()->windowTitle();
    for (const Form* form : LoadedForms()) {
      if (form->SubWindow() == nullptr || !form->SubWindow()->isMaximized()) continue;
      EXPECT_TRUE(title.endsWith(u'[' + form->windowTitle() + u']')) << qPrintable(title);
      return form->objectName();
    }
    EXPECT_FALSE(title.contains(u'[')) << qPrintable(title);
    return {};
  }
};

TEST_F(MaximisedInTheFrame, HomeComesMaximisedInThePlaceOfTheStartForm) {
  Maximise(Shown("fbrmsta1"));
  EXPECT_EQ(Maximised(), QStringLiteral("fbrmsta1"));
  const Form* home = Shown("fbrmhom1");
  EXPECT_EQ(Maximised(), QStringLiteral("fbrmhom1"));
  EXPECT_FALSE(Loaded("fbrmsta1")->SubWindow()->isMaximized());
  EXPECT_EQ(home->SubWindow()->size(), home->SubWindow()->mdiArea()->viewport()->size());
  EXPECT_EQ(Bar(), homeBar);
}

TEST_F(MaximisedInTheFrame, ItsCloseButtonClosesHomeAndTheStartFormIsMaximisedAgain) {
  Maximise(Shown("fbrmsta1"));
  Shown("fbrmhom1");
  ASSERT_NE(Buttons(), nullptr);
  QTest::mouseClick(Buttons(), Qt::LeftButton, {},
                    {Buttons()->width() - Buttons()->width() / 6, Buttons()->height() / 2});
  EXPECT_EQ(LoadedNames(), QStringList({QStringLiteral("MDIbrm"), QStringLiteral("fbrmsta1")}));
  EXPECT_EQ(ends, 0);
  EXPECT_EQ(Maximised(), QStringLiteral("fbrmsta1"));
  EXPECT_EQ(Bar(), startBar);
}

TEST_F(MaximisedInTheFrame, TheFormBehindTakesThePlaceWhenItIsActivated) {
  Form* start = Shown("fbrmsta1");
  Maximise(Shown("fbrmhom1"));
  start->SubWindow()->mdiArea()->activateNextSubWindow();
  EXPECT_EQ(Maximised(), QStringLiteral("fbrmsta1"));
  EXPECT_EQ(Bar(), startBar);
}

TEST_F(MaximisedInTheFrame, AClosedNoticeLeavesTheFormBelowMaximised) {
  Maximise(Shown("fbrmsta1"));
  UnloadForm(Shown("fbrmsav1"));
  EXPECT_EQ(Maximised(), QStringLiteral("fbrmsta1"));
}

TEST_F(Frame, ClosingItEndsTheProgramInOrder) {
  Shown("fbrmsta1");
  Shown("fbrmhom1");
  Shown("fcomsav1");
  TheFrame()->close();
  EXPECT_TRUE(LoadedForms().isEmpty());
  EXPECT_EQ(ends, 1);
}

TEST_F(Frame, ClosingHomeInItIsAnUnload) {
  Shown("fbrmsta1");
  Shown("fbrmhom1")->SubWindow()->close();
  EXPECT_EQ(LoadedNames(), QStringList({QStringLiteral("MDIbrm"), QStringLiteral("fbrmsta1")}));
  EXPECT_EQ(ends, 0);
}

TEST_F(Frame, ClosingTheStartFormInItEndsTheProgramAsItsExitDoes) {
  Shown("fbrmsta1")->SubWindow()->close();
  EXPECT_EQ(ends, 1);
  EXPECT_NE(Loaded("fbrmsta1"), nullptr);  // nothing was unloaded
}

TEST_F(Frame, ItsFormsGoBeforeIt) {
  Shown("fbrmsta1");
  Shown("fbrmhom1");
  Shown("fcomsav1");
  UnloadForm(TheFrame());
  EXPECT_EQ(LoadedNames(), QStringList{QStringLiteral("fcomsav1")});
}

TEST_F(Frame, AFormsWindowDiesWithIt) {
  Shown("fbrmsta1");
  Form* home = Shown("fbrmhom1");
  QPointer<QMdiSubWindow> window = home->SubWindow();
  QPointer<Form> form = home;
  UnloadForm(home);
  EXPECT_FALSE(window.isNull());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(window.isNull());
  EXPECT_TRUE(form.isNull());
}

}  // namespace
}  // namespace bramlee
