// Frame, start, home and card under test: a screen of its own, a folder of drives of its own, and
// an end of the program that is only counted.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTest>

#include "app/subjects.h"
#include "card/card.h"
#include "home/home.h"
#include "tests/files/temp_drives.h"
#include "ui/form.h"
#include "ui/screen.h"

namespace bramlee {

/// A click by hand on the middle of a control.
inline void ClickOn(QWidget* control) {
  QTest::mouseClick(control, Qt::LeftButton);
}

/// One tick of a timer, when it would have come.
inline void Tick(QTimer* timer) {
  QTimerEvent tick(timer->timerId());
  QCoreApplication::sendEvent(timer, &tick);
}

/// The loaded forms' names in the order of their loading.
inline QStringList LoadedNames() {
  QStringList names;
  for (const Form* form : LoadedForms()) names.append(form->objectName());
  return names;
}

class HomeForms : public TempDrives {
 protected:
  HomeForms() {
    RegisterHome(HomeSubjects());
    RegisterCard();
    environment.screen = ScreenSize{.width = 15360, .height = 11520};
    environment.endProgram = [this] { ++ends; };
  }
  ~HomeForms() override {
    UnloadAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  static Form* Shown(const char* name) {
    ShowForm(QString::fromLatin1(name));
    return LoadedForm(QString::fromLatin1(name));
  }
  static Form* Loaded(const char* name) { return LoadedForm(QString::fromLatin1(name)); }
  static QAction* Item(const Form* form, const char* name) {
    return form->Named<QAction>(QString::fromLatin1(name));
  }

  const std::function<void()> realEnd = environment.endProgram;
  int ends = 0;  ///< how often the program was asked to end
};

}  // namespace bramlee
