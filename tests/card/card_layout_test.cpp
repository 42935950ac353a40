// The card's menu, texts and layout, and its work from the keyboard.
#include <QAccessible>
#include <QMenuBar>
#include <QTest>

#include "tests/card/card_test.h"
#include "ui/form.h"
#include "ui/screen.h"

namespace bramlee {
namespace {

TEST_F(BiodataCard, HasTheFileMenuAlone) {
  Open();
  QStringList seen;
  for (const QAction* item : Card()->menuBar()->actions()) {
    if (item->isVisible()) seen.append(item->text());
  }
  EXPECT_EQ(seen, Texts({"&File"}));
  EXPECT_EQ(Card()->Named<QAction>(QStringLiteral("mnufile(1)"))->text(), QStringLiteral("&Back"));
  EXPECT_EQ(Card()->Named<QAction>(QStringLiteral("mnufile(2)"))->text(), QStringLiteral("&Exit"));
  EXPECT_EQ(Card()->Named<QMenu>(QStringLiteral("mnubio1"))->title(), QStringLiteral("&BioData"));
  EXPECT_EQ(Card()->Named<QAction>(QStringLiteral("mnubio(1)"))->text(), QStringLiteral("&New"));
  EXPECT_EQ(Card()->Named<QAction>(QStringLiteral("mnubio(2)"))->text(), QStringLiteral("&Save"));
  EXPECT_EQ(Card()->Named<QAction>(QStringLiteral("mnuref"))->text(), QStringLiteral("&Refresh"));
  Card()->mnubio_Click(2);
  EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(BiodataCard, BackUnloadsIt) {
  Open();
  Card()->Named<QAction>(QStringLiteral("mnufile(1)"))->trigger();
  EXPECT_EQ(Card(), nullptr);
}

TEST_F(BiodataCard, ExitUnloadsAllAndEnds) {
  Open();
  bool ended = false;
  environment.endProgram = [&] { ended = true; };
  Card()->Named<QAction>(QStringLiteral("mnufile(2)"))->trigger();
  EXPECT_TRUE(ended);
  EXPECT_TRUE(LoadedForms().isEmpty());
}

TEST_F(BiodataCard, HasItsTextsAndToolTips) {
  Open();
  const char* captions[] = {" Name:",       "Class:",     "Class Teacher:", "ID-Card:",
                            "School Logo:", "EnterDate:", "Item Name",      "Price / Item",
                            "Total Items",  "Total Amt.", "P.Money",        "Balance",
                            "NEW",          "SAVE",       "REMOVE"};
  for (int i = 0; i < 15; ++i) EXPECT_EQ(Sign(i)->text(), QString::fromLatin1(captions[i]));
  const char* tips[] = {"DD",
                        "MM",
                        "YYYY",
                        "Item Name",
                        "Price Per Item",
                        "Total Intems ",
                        "Amount For Total Items",
                        "Pocket Money",
                        "Balance"};
  for (int k = 0; k < 9; ++k) EXPECT_EQ(Field(k)->toolTip(), QString::fromLatin1(tips[k]));
  EXPECT_EQ(Sign(12)->toolTip(), QStringLiteral("New Date"));
  EXPECT_EQ(Sign(13)->toolTip(), QStringLiteral("Save Date"));
  EXPECT_EQ(Sign(14)->toolTip(), QStringLiteral("Remove Date"));
}

TEST_F(BiodataCard, TabGoesThroughFieldsAndButtonsInOrder) {
  Open();
  QStringList expected;
  for (int i = 0; i < 5; ++i) expected.append(Indexed("txt", i));
  for (int k = 0; k < 9; ++k) expected.append(Indexed("cmb", k));
  for (int i = 12; i < 15; ++i) expected.append(Indexed("lbl", i));
  QApplication::setActiveWindow(Card());
  Box(0)->setFocus();
  for (const QString& name : expected) {
    const QWidget* now = Card()->focusWidget();
    if (now->objectName().isEmpty() || qobject_cast<const Combo*>(now->parentWidget()) != nullptr) {
      now = now->parentWidget();
    }
    EXPECT_EQ(now->objectName(), name);
    QTest::keyClick(Card()->focusWidget(), Qt::Key_Tab);
  }
}

TEST_F(BiodataCard, SpaceAndReturnPressTheButtons) {
  Put(Items(2));
  Open();
  QTest::keyClick(Sign(12), Qt::Key_Space);
  EXPECT_EQ(Card()->CardRecNo(), QStringLiteral("New"));
  QTest::keyClick(Sign(13), Qt::Key_Return);
  EXPECT_EQ(boxes, Texts({"Enter Numeric"}));
  Pick(0, 1);
  QTest::mouseClick(Sign(14), Qt::LeftButton);
  EXPECT_EQ(boxes.last(), QStringLiteral("Removed Successfully"));
  QTest::mouseClick(Sign(14), Qt::RightButton);
  EXPECT_EQ(boxes.size(), 2);
}

TEST_F(BiodataCard, ReadsWellToAScreenReader) {
  Open();
  QAccessibleInterface* button = QAccessible::queryAccessibleInterface(Sign(13));
  EXPECT_EQ(button->role(), QAccessible::Button);
  EXPECT_EQ(button->text(QAccessible::Name), QStringLiteral("SAVE"));
  ASSERT_TRUE(button->actionInterface() != nullptr);
  Type(0, "x");
  button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(boxes, Texts({"Enter Numeric"}));
  for (int i = 0; i < 9; ++i) EXPECT_FALSE(Box(i)->accessibleName().isEmpty());
  for (int k = 0; k < 9; ++k) EXPECT_FALSE(Field(k)->accessibleName().isEmpty());
}

TEST_F(BiodataCard, ItsMenuIsWorkedFromTheKeyboard) {
  Open();
  QApplication::setActiveWindow(Card());
  QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(Card()->menuBar());
  QStringList names;
  for (int i = 0; i < bar->childCount(); ++i) {
    if (!bar->child(i)->state().invisible) names.append(bar->child(i)->text(QAccessible::Name));
  }
  EXPECT_EQ(names, Texts({"File"}));
  auto* file = Card()->Named<QMenu>(QStringLiteral("mnufile1"));
  QAccessibleInterface* items = QAccessible::queryAccessibleInterface(file);
  ASSERT_EQ(items->childCount(), 2);
  EXPECT_EQ(items->child(0)->text(QAccessible::Name), QStringLiteral("Back"));
  EXPECT_EQ(items->child(1)->text(QAccessible::Name), QStringLiteral("Exit"));
  QTest::keyClick(Card(), Qt::Key_F, Qt::AltModifier);
  ASSERT_TRUE(file->isVisible());
  QTest::keyClick(file, Qt::Key_B);
  EXPECT_EQ(Card(), nullptr);
}

TEST_F(BiodataCard, StandsInTheMiddleOfTheScreen) {
  environment.screen = ScreenSize{.width = 15360, .height = 11520};
  Open();
  const TwipsRect outer = Card()->Outer();
  EXPECT_NEAR(2 * outer.left + outer.width, 15360, 2 * kTwipsPerPixel);
  EXPECT_NEAR(2 * outer.top + outer.height, 11520, 2 * kTwipsPerPixel);
}

TEST_F(BiodataCard, FitsIntoItself) {
  for (const QSize& screen : {QSize(1024, 768), QSize(1366, 768), QSize(1920, 1080)}) {
    environment.screen =
        ScreenSize{.width = 15.0 * screen.width(), .height = 15.0 * screen.height()};
    Open();
    EXPECT_NEAR(Card()->Outer().width, 0.7 * 0.999 * 15 * screen.width(), 10);
    EXPECT_NEAR(Card()->Outer().height, 0.8 * 0.999 * 15 * screen.height(), 10);
    Card()->resize(Card()->size() - QSize(0, 36));  // what a title bar takes
    const QRect room = Card()->client()->rect();
    QList<QWidget*> controls;
    for (auto* control :
         Card()->client()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      EXPECT_TRUE(room.contains(control->geometry())) << control->objectName().toStdString();
      if (!control->objectName().startsWith(QStringLiteral("pan"))) controls.append(control);
    }
    EXPECT_EQ(controls.size(), 9 + 9 + 15 + 2 + 2);
    for (qsizetype i = 0; i < controls.size(); ++i) {
      for (qsizetype j = 0; j < i; ++j) {
        EXPECT_FALSE(controls[i]->geometry().intersects(controls[j]->geometry()))
            << controls[i]->objectName().toStdString() << controls[j]->objectName().toStdString();
      }
    }
    for (int i = 0; i < 12; ++i) {
      EXPECT_GE(Sign(i)->width(), Sign(i)->fontMetrics().horizontalAdvance(Sign(i)->text())) << i;
    }
    UnloadAll();
  }
}

}  // namespace
}  // namespace bramlee
