// The main of tests that use the program's forms as a user does: the forms on this thread, on a
// desktop of their own, and the tests on another.
#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>
#include <thread>

#include "app/subjects.h"
#include "board/board.h"
#include "card/card.h"
#include "home/home.h"
#include "maths/maths.h"
#include "media/media.h"
#include "tests/xvfb/forms/user.h"
#include "ui/forms.h"
#include "ui/message_box.h"

namespace bramlee {

Desktop& TheDesktop() {
  static Desktop desktop;
  return desktop;
}

}  // namespace bramlee

int main(int argc, char** argv) {
  using namespace bramlee;
  ::testing::InitGoogleTest(&argc, argv);
  if (::testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
  qputenv("DISPLAY", TheDesktop().Name().toLatin1());
  qputenv("QT_QPA_PLATFORM", "xcb");
  QStandardPaths::setTestModeEnabled(true);
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("bramlee"));
  QApplication::setQuitOnLastWindowClosed(false);
  Environment environment;
  UseMessageBoxes(environment);
  RegisterHome(HomeSubjects());
  RegisterCard();
  RegisterMedia();
  RegisterBoards();
  RegisterMaths();
  int status = 1;
  std::thread tests([&status] {
    status = RUN_ALL_TESTS();
    QMetaObject::invokeMethod(
        qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
  });
  QApplication::exec();
  tests.join();
  DestroyForms();
  return status;
}
