#include "voice/sound_formats.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>

namespace bramlee {
namespace {

const QString kFfmpeg = QStringLiteral("ffmpeg");
/// For all sounds of one call on the slowest machine.
constexpr int kMostMs = 600'000;

/// 16000 samples a second keep the silence short that the decoders of .wma begin with, 44100 do so
/// for .mp3.
QStringList FormatArguments(const QString& format) {
  if (format == QStringLiteral("wma")) {
    return {QStringLiteral("-c:a"),  QStringLiteral("wmav2"), QStringLiteral("-ar"),
            QStringLiteral("16000"), QStringLiteral("-b:a"),  QStringLiteral("24k")};
  }
  return {QStringLiteral("-ar"), QStringLiteral("44100"), QStringLiteral("-b:a"),
          QStringLiteral("48k")};
}

QStringList ArgumentsFor(const QList<Encoding>& encodings) {
  QStringList arguments{QStringLiteral("-loglevel"), QStringLiteral("error"),
                        QStringLiteral("-nostdin"), QStringLiteral("-y")};
  for (const Encoding& encoding : encodings) arguments << QStringLiteral("-i") << encoding.wave;
  for (qsizetype i = 0; i < encodings.size(); ++i) {
    for (const QString& made : encodings[i].made) {
      arguments << QStringLiteral("-map") << QString::number(i);
      arguments << FormatArguments(QFileInfo(made).suffix()) << made;
    }
  }
  return arguments;
}

QString FailureOf(QProcess& process) {
  const QString said = QString::fromLocal8Bit(process.readAllStandardError());
  for (const char* full : {"No space left", "Disk quota", "File too large"}) {
    if (said.contains(QLatin1String(full))) return QStringLiteral("The disk is full.");
  }
  const QStringList lines = said.split(u'\n', Qt::SkipEmptyParts);
  if (lines.isEmpty()) return QStringLiteral("ffmpeg made no sound.");
  return QStringLiteral("ffmpeg made no sound: %1").arg(lines.constLast().simplified());
}

bool IsMade(const Encoding& encoding) {
  return std::all_of(encoding.made.begin(), encoding.made.end(),
                     [](const QString& made) { return QFileInfo(made).size() > 0; });
}

}  // namespace

QString EncoderTrouble() {
  if (!QStandardPaths::findExecutable(kFfmpeg).isEmpty()) return {};
  return QStringLiteral("ffmpeg is missing: install the package ffmpeg.");
}

QString EncodeSounds(const QList<Encoding>& encodings) {
  QProcess process;
  process.setStandardInputFile(QProcess::nullDevice());
  process.start(kFfmpeg, ArgumentsFor(encodings), QIODevice::ReadOnly);
  if (!process.waitForFinished(kMostMs)) {
    process.kill();
    process.waitForFinished();
    return FailureOf(process);
  }
  const bool good = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
  const bool whole = std::all_of(encodings.begin(), encodings.end(), IsMade);
  return good && whole ? QString() : FailureOf(process);
}

}  // namespace bramlee
