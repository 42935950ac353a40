// The program as it stands when it has been started, for tests: a folder of drives of its own,
// and an end of the program that is only counted.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <functional>
#include <utility>

#include "files/environment.h"
#include "tests/xvfb/forms/user.h"
#include "ui/forms.h"

namespace bramlee {

class AtTheStart : public ::testing::Test {
 protected:
  AtTheStart() {
    QDir().mkpath(On("c/bramlee/dba"));
    Ask([this] {
      qputenv("BRAMLEE_DRIVES", QFile::encodeName(drives_.path()));
      endProgram_ = std::exchange(TheEnvironment().endProgram, [this] { ++ends; });
      ShowForm(QStringLiteral("fbrmsta1"));
    });
  }
  ~AtTheStart() override {
    if (HasFailure()) TheDesktop().Screenshot().save(QStringLiteral("failed.png"));
    Ask([this] {
      UnloadAll();
      TheEnvironment().endProgram = endProgram_;
    });
  }
  AtTheStart(const AtTheStart&) = delete;
  AtTheStart& operator=(const AtTheStart&) = delete;

  /// The system's name of something in the folder of drives: On("c/bramlee").
  QString On(const char* place) const { return drives_.filePath(QString::fromUtf8(place)); }

  static OpenForm GoHome() {
    OpenForm("fbrmsta1").Pick("mnustart");
    return OpenForm("fbrmhom1");
  }

  std::atomic<int> ends = 0;  ///< how often the program was asked to end

 private:
  QTemporaryDir drives_;
  std::function<void()> endProgram_;
};

}  // namespace bramlee
