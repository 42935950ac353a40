// Running a tool that was built beside the tests.
#pragma once

#include <QFile>
#include <QProcess>
#include <QStringList>

namespace bramlee {

struct ToolRun {
  int status = -1;  ///< -1 when it could not be run or crashed
  QByteArray out;
  QByteArray error;

  bool ErrorIsOneLine() const { return error.endsWith('\n') && error.count('\n') == 1; }
};

/// Runs a tool on that standard input, without a window system, and waits for its end.
inline ToolRun RunTool(const QString& name, const QStringList& arguments,
                       const QByteArray& input = {}) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    environment.remove(QString::fromLatin1(display));
  }
  process.setProcessEnvironment(environment);
  process.start(QStringLiteral(BRAMLEE_BINARY_DIR "/tools/") + name, arguments);
  process.write(input);
  process.closeWriteChannel();
  const bool ended = process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit;
  return {.status = ended ? process.exitCode() : -1,
          .out = process.readAllStandardOutput(),
          .error = process.readAllStandardError()};
}

/// The arguments of one line, parted by blanks.
inline ToolRun Strokes(const char* arguments) {
  return RunTool(QStringLiteral("bramlee-strokes"),
                 QString::fromUtf8(arguments).split(u' ', Qt::SkipEmptyParts));
}

/// The long options that a tool's help lists, such as "--help".
inline QByteArrayList OptionsOf(const QByteArray& help) {
  QByteArrayList options;
  for (const QByteArray& line : help.split('\n')) {
    const auto at = line.indexOf("--");
    if (at >= 0 && line.startsWith("  -")) options.append(line.mid(at).split(' ').constFirst());
  }
  return options;
}

/// What a manual page of tools/ says, without the signs that a dash is written with.
inline QByteArray ManPage(const QString& name) {
  QFile file(QStringLiteral(BRAMLEE_TEST_DATA "/../../tools/") + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll().replace("\\-", "-") : QByteArray();
}

}  // namespace bramlee
