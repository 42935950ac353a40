// The switch in front of the home form, and its notice.
#include <QMdiSubWindow>

#include "home/frame_form.h"
#include "tests/files/trap_log.h"
#include "tests/home/home_forms.h"

namespace bramlee {
namespace {

class Lock : public HomeForms {
 protected:
  Lock() : start_(Shown("fbrmsta1")) {}

  void Pick(int index) { Item(start_, index == 1 ? "mnupp(1)" : "mnupp(2)")->trigger(); }
  bool Marked(int index) const {
    return start_->Named<QAction>(Indexed("mnupp", index))->isChecked();
  }
  static QString Number() { return Loaded("fbrmsav1")->TextOf(QStringLiteral("txtpwd")); }
  static QTimer* Timer() { return Loaded("fbrmsav1")->Named<QTimer>(QStringLiteral("Timer1")); }
  const QStringList message{QStringLiteral("Verify Password Protection")};

 private:
  Form* start_;
};

TEST_F(Lock, OnMarksItselfWritesTwoIntoTheNoticeAndShowsIt) {
  Pick(1);
  EXPECT_TRUE(Marked(1));
  EXPECT_FALSE(Marked(2));
  EXPECT_EQ(Number(), QStringLiteral("2"));
  EXPECT_TRUE(Loaded("fbrmsav1")->isVisible());
}

TEST_F(Lock, OffMarksItselfAndWritesThree) {
  Pick(1);
  Pick(2);
  EXPECT_FALSE(Marked(1));
  EXPECT_TRUE(Marked(2));
  EXPECT_EQ(Number(), QStringLiteral("3"));
  Pick(2);  // its mark stays
  EXPECT_TRUE(Marked(2));
}

TEST_F(Lock, TheNoticesTextsAreAsDesigned) {
  Pick(1);
  const Form* notice = Loaded("fbrmsav1");
  EXPECT_EQ(notice->windowTitle(), QStringLiteral("LOAD APPS"));
  EXPECT_EQ(notice->Named<Label>(QStringLiteral("lbl1"))->text(),
            QStringLiteral("     Loading... "));
  EXPECT_TRUE(notice->Named<QLineEdit>(QStringLiteral("txtpwd"))->isHidden());
  EXPECT_TRUE(notice->Named<QLineEdit>(QStringLiteral("txtmsg"))->isHidden());
  EXPECT_EQ(Timer()->interval(), 2000);
}

TEST_F(Lock, TheNoticeStandsInTheMiddleOfTheFrame) {
  Pick(1);
  const TwipsRect outer = Loaded("fbrmsav1")->Outer();
  const TwipsRect inside = dynamic_cast<FrameForm*>(Loaded("MDIbrm"))->Inside();
  EXPECT_NEAR(2 * outer.left + outer.width, inside.width, 2 * kTwipsPerPixel);
  EXPECT_NEAR(2 * outer.top + outer.height, inside.height, 2 * kTwipsPerPixel);
  EXPECT_EQ(inside.width, kTwipsPerPixel * Loaded("MDIbrm")->width());
}

TEST_F(Lock, NamingTheNoticeForItsNumberLoadsItAndStartsItsTimer) {
  LoadForm(QStringLiteral("fbrmsav1"));
  EXPECT_FALSE(Loaded("fbrmsav1")->isVisible());
  EXPECT_TRUE(Timer()->isActive());
}

TEST_F(Lock, BothEndInTheMessageAndTheNoticeStays) {
  const TrapLog log;
  for (const int index : {1, 2}) {
    Pick(index);
    Tick(Timer());
    EXPECT_EQ(boxes, message);
    ASSERT_NE(Loaded("fbrmsav1"), nullptr);
    EXPECT_TRUE(Loaded("fbrmsav1")->isVisible());
    EXPECT_FALSE(Timer()->isActive());
    EXPECT_EQ(Loaded("fbrmhom1"), nullptr);
    UnloadForm(Loaded("fbrmsav1"));
    boxes.clear();
  }
  EXPECT_TRUE(TrapLog::Lines().isEmpty());  // nothing is thrown
}

TEST_F(Lock, ANoticeTicksOnceInItsLife) {
  Pick(1);
  Tick(Timer());
  Pick(2);
  EXPECT_FALSE(Timer()->isActive());
  EXPECT_EQ(boxes, message);
  Loaded("fbrmsav1")->SubWindow()->close();
  EXPECT_EQ(Loaded("fbrmsav1"), nullptr);
  Pick(1);
  EXPECT_TRUE(Timer()->isActive());
  Tick(Timer());
  EXPECT_EQ(boxes, message + message);
}

TEST_F(Lock, ZeroGoesOnToHome) {
  LoadForm(QStringLiteral("fbrmsav1"));
  for (const char* nought : {"0", "", "no number"}) {
    LoadForm(QStringLiteral("fbrmsav1"))
        ->SetText(QStringLiteral("txtpwd"), QString::fromLatin1(nought));
    Tick(Timer());
    ASSERT_NE(Loaded("fbrmhom1"), nullptr) << nought;
    EXPECT_TRUE(Loaded("fbrmhom1")->isVisible());
    EXPECT_EQ(Loaded("fbrmsav1"), nullptr) << nought;
    UnloadForm(Loaded("fbrmhom1"));
  }
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Lock, OneIsInForceToo) {
  LoadForm(QStringLiteral("fbrmsav1"))->SetText(QStringLiteral("txtpwd"), QStringLiteral("1"));
  Tick(Timer());
  EXPECT_EQ(boxes, message);
  EXPECT_NE(Loaded("fbrmsav1"), nullptr);
}

TEST_F(Lock, AnyOtherNumberOnlyClosesTheNotice) {
  for (const char* other : {"4", "-1", "2.5", "100"}) {
    LoadForm(QStringLiteral("fbrmsav1"))
        ->SetText(QStringLiteral("txtpwd"), QString::fromLatin1(other));
    Tick(Timer());
    EXPECT_EQ(Loaded("fbrmsav1"), nullptr) << other;
    EXPECT_EQ(Loaded("fbrmhom1"), nullptr) << other;
  }
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Lock, StartGoesHomeWhetherItIsOnOrOff) {
  for (const int index : {1, 2}) {
    Pick(index);
    Item(Loaded("fbrmsta1"), "mnustart")->trigger();
    ASSERT_NE(Loaded("fbrmhom1"), nullptr);
    UnloadForm(Loaded("fbrmhom1"));
    EXPECT_TRUE(Marked(index));
  }
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Lock, ItIsNotStored) {
  Pick(1);
  UnloadAll();
  const Form* start = Shown("fbrmsta1");
  EXPECT_FALSE(Item(start, "mnupp(1)")->isChecked());
  EXPECT_FALSE(Item(start, "mnupp(2)")->isChecked());
}

}  // namespace
}  // namespace bramlee
