// cue_latency [FILE...]: milliseconds from asking for a cue to its first audible sample, while the
// window's thread is held as by a letter's strokes. Each file is played first in a process of its
// own, without and with warming up, then twenty times in one that is warm. Without files: a tone
// in each format. The sounds go to a sound server of its own, unheard.
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <vector>

#include "files/environment.h"
#include "media/media.h"
#include "media/play_media_file.h"
#include "tests/media/sound_files.h"
#include "tests/media/sound_rig.h"

namespace bramlee {
namespace {

constexpr int kTimes = 20;
constexpr unsigned long kWarmUpMs = 2000;
constexpr unsigned long kHoldMs = 1200;
constexpr double kLongestMs = 24000;  ///< a cold start on a busy machine takes more than a hold
constexpr double kOverMs = 300;       ///< after this much silence a sound is over

/// Asks for the file and holds the thread until it is over, so that its end is not taken for the
/// next one's beginning. -1 when nothing is heard that ends.
double LatencyMs(const Recorder48& recorder, const QString& file) {
  const double begin = NowMs();
  PlayMediaFile(file);
  for (double end = begin + kHoldMs; end <= begin + kLongestMs; end += kHoldMs) {
    QThread::msleep(kHoldMs);
    const Heard heard = recorder.Until(end).Between(begin, end);
    const auto last = heard.LastSoundMs();
    if (last && end - *last > kOverMs) return *heard.FirstSoundMs() - begin;
  }
  return -1;
}

/// The first cue of this process.
int MeasureFirst(const QString& file, bool warm) {
  RegisterMedia();
  const Recorder48 recorder;
  if (warm) {
    WarmUpPlayer();
    QThread::msleep(kWarmUpMs);
  }
  std::printf("%.0f", LatencyMs(recorder, file));
  std::fflush(stdout);  // a media library that crashes at the process' end takes no figure along
  return 0;
}

/// -1 when the process ends without a figure. Why is said on the error channel.
double FirstInAProcess(const QString& how, const QString& file) {
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(QCoreApplication::applicationFilePath(), {how, file});
  process.waitForFinished(-1);
  if (process.error() != QProcess::UnknownError || process.exitCode() != 0) {
    std::fprintf(stderr, "cue_latency: %s %s: %s, exit code %d\n", qPrintable(how),
                 qPrintable(file), qPrintable(process.errorString()), process.exitCode());
  }
  bool isFigure = false;
  const double ms = process.readAllStandardOutput().toDouble(&isFigure);
  return isFigure ? ms : -1;
}

QStringList MakeTones(const QDir& folder) {
  QFile wave(folder.filePath(QStringLiteral("tone.wav")));
  if (!wave.open(QIODevice::WriteOnly)) throw std::runtime_error("no tone can be written");
  wave.write(ToneWave(440, 600, 100));
  wave.close();
  QStringList files{QStringLiteral("C:\\tone.wav")};
  for (const QString& format : {QStringLiteral("mp3"), QStringLiteral("wma")}) {
    QStringList arguments{QStringLiteral("-loglevel"), QStringLiteral("error"),
                          QStringLiteral("-i"), wave.fileName()};
    if (format == QStringLiteral("wma")) {
      arguments << QStringLiteral("-c:a") << QStringLiteral("wmav2");
    }
    const QString made = folder.filePath(QStringLiteral("tone.") + format);
    if (QProcess::execute(QStringLiteral("ffmpeg"), arguments << made) == 0) {
      files << QStringLiteral("C:\\tone.") + format;
    }
  }
  return files;
}

/// Puts copies of the files on drive C:.
QStringList CopyFiles(const QStringList& given, const QDir& folder) {
  QStringList files;
  for (const QString& file : given) {
    const QString name = QFileInfo(file).fileName();
    QFile::copy(file, folder.filePath(name));
    files << QStringLiteral("C:\\") + name;
  }
  return files;
}

int MeasureAll(const QStringList& given) {
  const QTemporaryDir drives;
  qputenv("BRAMLEE_DRIVES", QFile::encodeName(drives.path()));
  const QDir folder(drives.filePath(QStringLiteral("c")));
  folder.mkpath(QStringLiteral("."));
  const SoundServer server;
  const QStringList files = given.isEmpty() ? MakeTones(folder) : CopyFiles(given, folder);
  std::printf("%-16s %10s %10s %8s %8s %8s   (ms)\n", "cue", "first cold", "first warm", "least",
              "median", "most");
  std::vector<double> cold;
  std::vector<double> warmed;
  FirstInAProcess(QStringLiteral("--cold"), files.first());  // reads the programs from the disk
  for (const QString& file : files) {
    cold.push_back(FirstInAProcess(QStringLiteral("--cold"), file));
    warmed.push_back(FirstInAProcess(QStringLiteral("--warm"), file));
  }
  RegisterMedia();
  const Recorder48 recorder;
  WarmUpPlayer();
  QThread::msleep(kWarmUpMs);
  for (qsizetype i = 0; i < files.size(); ++i) {
    std::vector<double> times(kTimes);
    for (double& time : times) time = LatencyMs(recorder, files[i]);
    std::sort(times.begin(), times.end());
    const auto at = static_cast<std::size_t>(i);
    std::printf("%-16s %10.0f %10.0f %8.0f %8.0f %8.0f\n", qPrintable(files[i].mid(3)), cold[at],
                warmed[at], times.front(), times[kTimes / 2], times.back());
  }
  return 0;
}

int Run(const QStringList& arguments) {
  if (arguments.size() == 2 && arguments[0] == QStringLiteral("--cold")) {
    return MeasureFirst(arguments[1], false);
  }
  if (arguments.size() == 2 && arguments[0] == QStringLiteral("--warm")) {
    return MeasureFirst(arguments[1], true);
  }
  return MeasureAll(arguments);
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);
  const bramlee::Environment environment;
  try {
    return bramlee::Run(QCoreApplication::arguments().mid(1));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "cue_latency: %s\n", error.what());
    return 1;
  }
}
