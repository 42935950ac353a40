// A folder of drives of a test's own, with the drive C:, message boxes that only remember, and a
// configuration without choices.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>

#include "files/drives.h"
#include "files/environment.h"
#include "ui/forms.h"

namespace bramlee {

inline QByteArray BytesOf(const QString& systemPath) {
  QFile file(systemPath);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << systemPath.toStdString();
  return file.readAll();
}

inline void WriteBytes(const QString& systemPath, const QByteArray& bytes) {
  QFile file(systemPath);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << systemPath.toStdString();
  ASSERT_EQ(file.write(bytes), bytes.size());
}

/// Tests with drives. `boxes` are the texts shown, `questions` the texts asked; a question is
/// answered by `answer`. What a test puts into the environment goes with the test.
class TempDrives : public ::testing::Test {
 protected:
  TempDrives() {
    qputenv("BRAMLEE_DRIVES", QFile::encodeName(drives_.path()));
    QDir().mkpath(drives_.filePath(QStringLiteral("c")));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       drives_.filePath(QStringLiteral("choices")));
    ChDrive(QStringLiteral("C:"));
    ChDir(QStringLiteral("C:\\"));
    environment.tell = [this](const QString& text) { boxes.append(text); };
    environment.ask = [this](const QString& text, const QString&, const QString&) {
      questions.append(text);
      return answer;
    };
  }
  ~TempDrives() override {
    UnloadAll();
    qunsetenv("BRAMLEE_DRIVES");
  }
  TempDrives(const TempDrives&) = delete;
  TempDrives& operator=(const TempDrives&) = delete;

  /// The system's name of something in the folder of drives: On("c/bramlee").
  QString On(const char* place) const { return drives_.filePath(QString::fromUtf8(place)); }
  void MakeDataFolder() const { QDir().mkpath(On("c/bramlee/dba")); }

  Environment environment;
  QStringList boxes;
  QStringList questions;
  bool answer = true;

 private:
  QTemporaryDir drives_;
};

}  // namespace bramlee
