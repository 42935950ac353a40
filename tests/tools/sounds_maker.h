// bramlee-sounds, run by a test on a drive of its own.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <map>

#include "tests/tools/run_tool.h"

namespace bramlee {

inline ToolRun Sounds(const QStringList& arguments) {
  return RunTool(QStringLiteral("bramlee-sounds"), arguments);
}

class SoundsMaker : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* program : {"espeak-ng", "ffmpeg"}) {
      if (QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty()) {
        GTEST_SKIP() << "needs " << program;
      }
    }
  }

  /// Makes a part of the pack on the test's drive; `arguments` are parted by blanks.
  ToolRun Make(const char* arguments) const {
    return Sounds(QString::fromLatin1(arguments).split(u' ', Qt::SkipEmptyParts) << drive.path());
  }

  QString At(const char* file) const {
    return drive.filePath(QStringLiteral("bramlee/aud/") + QString::fromLatin1(file));
  }
  void Put(const char* file, const QByteArray& bytes) const {
    QDir().mkpath(QFileInfo(At(file)).path());
    QFile made(At(file));
    ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    made.write(bytes);
  }
  QByteArray Bytes(const char* file) const {
    QFile made(At(file));
    return made.open(QIODevice::ReadOnly) ? made.readAll() : QByteArray();
  }

  /// All files below the media folder.
  QStringList Files() const {
    QStringList files;
    const QDir root(At(""));
    for (QDirIterator it(root.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         it.hasNext();) {
      files.append(root.relativeFilePath(it.next()));
    }
    files.sort();
    return files;
  }

  /// File and phonemes, as --phonemes prints them.
  static std::map<QString, QString> Phonemes(const char* sets) {
    const ToolRun run =
        Sounds({QStringLiteral("--phonemes"), QStringLiteral("--sets"), QString::fromLatin1(sets)});
    EXPECT_EQ(run.status, 0);
    std::map<QString, QString> phonemes;
    for (const QString& line : QString::fromUtf8(run.out).split(u'\n', Qt::SkipEmptyParts)) {
      const QStringList cells = line.split(u'\t');
      EXPECT_EQ(cells.size(), 4) << line.toStdString();
      phonemes[cells.first()] = cells.last();
    }
    return phonemes;
  }

  QTemporaryDir drive;
};

}  // namespace bramlee
