// A child's afternoon: thousands of random picks, clicks, typed texts and closes over all forms.
// SOAK_STEPS and SOAK_SEED change how many and which.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <random>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include "app/subjects.h"
#include "board/board.h"
#include "card/card.h"
#include "home/home.h"
#include "maths/maths.h"
#include "media/media.h"
#include "ui/form.h"
#include "ui/forms.h"
#include "ui/message_box.h"
#include "ui/screen.h"

namespace bramlee {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSanitized = true;  // the sanitizer keeps what is freed in quarantine
#else
constexpr bool kSanitized = false;
#endif

/// The program's resident memory in megabytes; 0 where the system does not say.
double ResidentMegabytes() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmRSS:"))
      return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
  }
  return 0;
}

class Afternoon {
 public:
  explicit Afternoon(unsigned seed) : random_(seed) {}

  void Step() {
    Form* form = AnyForm();
    switch (Below(20)) {
      case 0:
      case 1:
      case 2:
      case 3:
      case 4:
      case 5:
      case 6:
        PickMenu(form);
        break;
      case 7:
      case 8:
      case 9:
      case 10:
      case 11:
      case 12:
        Click(form);
        break;
      case 13:
      case 14:
      case 15:
        Type(form);
        break;
      case 16:
        PickEntry(form);
        break;
      case 17:
      case 18:
        Tick(form);
        break;
      default:
        if (Below(6) == 0) form->close();
        break;
    }
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

 private:
  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

  template <class Thing>
  Thing* AnyOf(const QList<Thing*>& things) {
    return things.isEmpty() ? nullptr : things[Below(static_cast<int>(things.size()))];
  }

  /// A loaded form; the newest more often, as it lies on top.
  Form* AnyForm() {
    if (LoadedForm(QStringLiteral("fbrmsta1")) == nullptr) ShowForm(QStringLiteral("fbrmsta1"));
    QList<Form*> forms = LoadedForms();
    return Below(2) == 0 ? forms.last() : AnyOf(forms);
  }

  void PickMenu(Form* form) {
    QList<QAction*> items;
    for (QAction* item : form->findChildren<QAction*>()) {
      if (item->menu() == nullptr && !item->objectName().isEmpty()) items.append(item);
    }
    QAction* item = AnyOf(items);
    if (item == nullptr) return;
    // What writes for minutes even unpaced is picked now and then only.
    static const QSet<QString> kSlow = {QStringLiteral("mnuspd(1)"), QStringLiteral("mnuspd(2)"),
                                        QStringLiteral("mnudall")};
    if (kSlow.contains(item->objectName()) && Below(25) != 0) return;
    item->trigger();
  }

  void Click(Form* form) {
    QList<QWidget*> targets;
    for (QWidget* widget : form->findChildren<QWidget*>()) {
      const bool clickable =
          qobject_cast<PictureBox*>(widget) != nullptr || qobject_cast<Label*>(widget) != nullptr;
      if (clickable && !widget->isHidden()) targets.append(widget);
    }
    if (QWidget* target = AnyOf(targets)) QTest::mouseClick(target, Qt::LeftButton);
  }

  void Type(Form* form) {
    static const QString kTexts[] = {QStringLiteral("7"),
                                     QStringLiteral("15"),
                                     QStringLiteral("2512"),
                                     QStringLiteral("-3.5"),
                                     QStringLiteral("abc"),
                                     QStringLiteral("nan"),
                                     QStringLiteral("1e400"),
                                     QStringLiteral(""),
                                     QStringLiteral("99999999999999999999"),
                                     QStringLiteral("<b>x"),
                                     QStringLiteral("C:\\bramlee\\..\\x.jpg"),
                                     QString(300, u'\u0905')};
    QList<QLineEdit*> boxes;
    for (QLineEdit* box : form->findChildren<QLineEdit*>()) {
      if (!box->isHidden() && !box->isReadOnly()) boxes.append(box);
    }
    QLineEdit* box = AnyOf(boxes);
    if (box == nullptr) return;
    box->setText(kTexts[Below(static_cast<int>(std::size(kTexts)))]);
    QTest::keyClick(box, Below(2) == 0 ? Qt::Key_Return : Qt::Key_Tab);
  }

  void PickEntry(Form* form) {
    QComboBox* combo = AnyOf(form->findChildren<QComboBox*>());
    if (combo == nullptr || combo->count() == 0) return;
    const int index = Below(combo->count());
    combo->setCurrentIndex(index);
    Q_EMIT combo->activated(index);
  }

  void Tick(Form* form) {
    QList<QTimer*> running;
    for (QTimer* timer : form->findChildren<QTimer*>()) {
      if (timer->isActive() && !timer->objectName().isEmpty()) running.append(timer);
    }
    if (QTimer* timer = AnyOf(running)) {
      QTimerEvent tick(timer->timerId());
      QApplication::sendEvent(timer, &tick);
    }
  }

  std::mt19937 random_;
};

void ExpectEveryFormOnce() {
  QSet<QString> names;
  for (const Form* form : LoadedForms()) {
    ASSERT_FALSE(form->objectName().isEmpty());
    ASSERT_FALSE(names.contains(form->objectName())) << form->objectName().toStdString();
    names.insert(form->objectName());
  }
}

void LeaveNothingLoaded() {
  UnloadAll();
  QApplication::processEvents();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(LoadedForms().isEmpty());
#if defined(__GLIBC__)
  malloc_trim(0);  // what is free goes back, so that what is left is what is held
#endif
}

int FromEnvironment(const char* name, int otherwise) {
  const int given = qEnvironmentVariableIntValue(name);
  return given > 0 ? given : otherwise;
}

TEST(SweepOfAnAfternoon, EndsWithoutAFaultAndInNoMoreMemory) {
  QTemporaryDir drives;
  qputenv("BRAMLEE_DRIVES", drives.path().toLocal8Bit());
  ASSERT_TRUE(QDir(drives.path()).mkpath(QStringLiteral("c/bramlee/dba")));
  Environment environment;
  environment.screen = ScreenSize{.width = 15.0 * 1366, .height = 15.0 * 768};
  int boxes = 0;
  int ends = 0;
  environment.tell = [&](const QString&) { ++boxes; };
  environment.ask = [&](const QString&, const QString&, const QString&) {
    return ++boxes % 2 == 0;
  };
  environment.endProgram = [&] { ++ends; };
  RegisterHome(HomeSubjects());
  RegisterCard();
  RegisterMedia();
  RegisterBoards();
  RegisterMaths();

  const int steps = FromEnvironment("SOAK_STEPS", 10000);
  const unsigned seed = static_cast<unsigned>(FromEnvironment("SOAK_SEED", 20261121));
  SCOPED_TRACE(testing::Message() << "SOAK_SEED=" << seed);
  Afternoon afternoon(seed);
  // Memory is compared with nothing loaded: what the forms themselves hold is theirs.
  double afterFirstThird = 0;
  for (int step = 0; step < steps; ++step) {
    afternoon.Step();
    ASSERT_NO_FATAL_FAILURE(ExpectEveryFormOnce()) << "step " << step;
    if (step != steps / 3) continue;
    LeaveNothingLoaded();
    afterFirstThird = ResidentMegabytes();
  }
  LeaveNothingLoaded();
  EXPECT_GT(boxes, 0);
  EXPECT_GT(ends, 0);
  if (!kSanitized) {
    EXPECT_LT(ResidentMegabytes(), afterFirstThird + 10);
  }
}

}  // namespace
}  // namespace bramlee
