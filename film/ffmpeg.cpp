#include "film/ffmpeg.h"

#include <QRegularExpression>
#include <QStandardPaths>
#include <utility>

namespace bramlee {
namespace {

const QString kFfmpeg = QStringLiteral("ffmpeg");

/// How often a wait looks whether it is to stop, in milliseconds.
constexpr int kLookMs = 50;
constexpr int kStartMs = 30'000;
constexpr int kVersionMs = 30'000;
/// As many bytes may wait for ffmpeg: a few frames.
constexpr qint64 kAhead = 1 << 22;

QString LastLineOf(const QByteArray& text) {
  const QByteArrayList lines = text.trimmed().split('\n');
  return QString::fromUtf8(lines.constLast()).simplified();
}

}  // namespace

QString FfmpegTrouble() {
  if (QStandardPaths::findExecutable(kFfmpeg).isEmpty()) {
    return QStringLiteral(
        "ffmpeg is missing: install the package ffmpeg. SVG and PNG need it not.");
  }
  QProcess process;
  process.start(kFfmpeg, {QStringLiteral("-version")}, QIODevice::ReadOnly);
  if (!process.waitForFinished(kVersionMs)) process.kill(), process.waitForFinished();
  const QString said = QString::fromUtf8(process.readAllStandardOutput());
  // One that says no such number is the developers' own, or fails; its run will tell.
  static const QRegularExpression kVersion(QStringLiteral("^ffmpeg version n?(\\d+)\\.(\\d+)"));
  const QRegularExpressionMatch version = kVersion.match(said);
  const std::pair given(version.captured(1).toInt(), version.captured(2).toInt());
  if (!version.hasMatch() || given >= std::pair(kLeastFfmpegMajor, kLeastFfmpegMinor)) return {};
  return QStringLiteral(
             "ffmpeg is too old: %1.%2 or newer is needed, from the package ffmpeg. SVG and PNG "
             "need it not.")
      .arg(kLeastFfmpegMajor)
      .arg(kLeastFfmpegMinor);
}

Ffmpeg::Ffmpeg(const QStringList& arguments, std::stop_token stop) : stop_(std::move(stop)) {
  const QStringList quiet{QStringLiteral("-hide_banner"), QStringLiteral("-loglevel"),
                          QStringLiteral("error"), QStringLiteral("-y")};
  process_.setStandardOutputFile(QProcess::nullDevice());
  process_.start(kFfmpeg, quiet + arguments);
}

Ffmpeg::~Ffmpeg() {
  if (process_.state() == QProcess::NotRunning) return;
  process_.kill();
  process_.waitForFinished();
}

bool Ffmpeg::Write(const QByteArray& bytes) {
  if (process_.state() == QProcess::Starting) process_.waitForStarted(kStartMs);
  if (process_.state() != QProcess::Running) return false;
  process_.write(bytes);
  while (process_.bytesToWrite() > kAhead) {
    if (stop_.stop_requested()) return false;
    process_.waitForBytesWritten(kLookMs);
    if (process_.state() != QProcess::Running) return false;
  }
  return !stop_.stop_requested();
}

QString Ffmpeg::Finish() {
  process_.closeWriteChannel();
  while (process_.state() != QProcess::NotRunning && !process_.waitForFinished(kLookMs)) {
    if (stop_.stop_requested()) return QStringLiteral("cancelled");
  }
  if (process_.exitStatus() == QProcess::NormalExit && process_.exitCode() == 0) return {};
  const QString said = LastLineOf(process_.readAllStandardError());
  return QStringLiteral("ffmpeg failed") +
         (said.isEmpty() ? QString() : QStringLiteral(": ") + said);
}

}  // namespace bramlee
