// A routine that fails half-way: what it does to a control fails.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>

#include "files/trap.h"

namespace bramlee {

/// Ends a test where leaks are looked for: an exception that passes through Qt's own code leaves
/// some of Qt's memory behind.
#if defined(__SANITIZE_ADDRESS__)
#define SKIP_WHERE_LEAKS_COUNT() GTEST_SKIP() << "it throws through Qt, which then leaks"
#else
#define SKIP_WHERE_LEAKS_COUNT() static_cast<void>(0)
#endif

/// While it lives, each event of that type throws, to an object of that name or, without a name,
/// to any.
class FailingEvent : public QObject {
 public:
  FailingEvent(const char* name, QEvent::Type type)
      : name_(QString::fromLatin1(name)), type_(type) {
    qApp->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != type_) return false;
    if (!name_.isEmpty() && watched->objectName() != name_) return false;
    throw TrappedError(QStringLiteral("the event fails"));
  }

 private:
  QString name_;
  QEvent::Type type_;
};

}  // namespace bramlee
