#include "tools/sounds_maker/sound_maker.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "voice/media_tree.h"
#include "voice/sound_formats.h"
#include "voice/speech_wave.h"

namespace bramlee {
namespace {

/// How many sounds one call of the encoder makes, since its start takes longer than its work.
constexpr qsizetype kBatch = 24;

/// Runs a program to its end and returns what it wrote, nothing when it failed.
bool Run(const QString& program, const QStringList& arguments, QByteArray* output = nullptr) {
  QProcess process;
  process.setStandardInputFile(QProcess::nullDevice());
  process.start(program, arguments, QIODevice::ReadOnly);
  if (!process.waitForFinished(-1)) return false;
  if (output != nullptr) *output = process.readAllStandardOutput();
  return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

QStringList SpeakArguments(const Spoken& spoken, const QStringList& more) {
  return QStringList{QStringLiteral("-v"), spoken.voice, QStringLiteral("-s"),
                     QString::number(spoken.speed)} +
         more + QStringList{QStringLiteral("--"), spoken.text};
}

bool Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

/// When that fails, each by itself, so that one bad sound spoils no other.
void Encode(const QList<Encoding>& encodings) {
  if (encodings.isEmpty() || EncodeSounds(encodings).isEmpty() || encodings.size() == 1) return;
  for (const Encoding& encoding : encodings) Encode({encoding});
}

}  // namespace

QString PhonemesOf(const Spoken& spoken) {
  QByteArray output;
  const bool said =
      Run(QStringLiteral("espeak-ng"),
          SpeakArguments(spoken, {QStringLiteral("-q"), QStringLiteral("-x")}), &output);
  return said ? QString::fromUtf8(output).simplified() : QString();
}

SoundMaker::SoundMaker(QString workFolder, bool overwrite)
    : workFolder_(std::move(workFolder)), overwrite_(overwrite) {}

/// Leaves the cue as a .wav file.
bool SoundMaker::Speak(const Spoken& spoken, const QString& wave) const {
  if (!Run(QStringLiteral("espeak-ng"), SpeakArguments(spoken, {QStringLiteral("-w"), wave}))) {
    return false;
  }
  QFile file(wave);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const auto speech = ReadWave(file.readAll());
  file.close();
  if (!speech) return false;
  const SpeechWave cue = MakeCue(*speech);
  return !cue.samples.empty() && Write(wave, WriteWave(cue));
}

bool SoundMaker::PutInPlace(const QString& made, const QString& target) const {
  if (!MediaTree::IsThere(made)) return false;
  // Keeps one that was put there meanwhile, too.
  if (!overwrite_ && MediaTree::IsThere(target)) return true;
  return std::rename(QFile::encodeName(made).constData(), QFile::encodeName(target).constData()) ==
         0;
}

QStringList SoundMaker::MakeBatch(const QList<SoundJob>& jobs, const QString& stem) const {
  const auto made = [&](qsizetype i, const QString& format) {
    return QStringLiteral("%1/%2-%3.%4").arg(workFolder_, stem).arg(i).arg(format);
  };
  const QString wav = QStringLiteral("wav");
  QList<Encoding> encodings;
  for (qsizetype i = 0; i < jobs.size(); ++i) {
    if (!Speak(jobs[i].spoken, made(i, wav))) continue;
    Encoding encoding{.wave = made(i, wav), .made = {}};
    for (const QString& target : jobs[i].targets) {
      const QString format = QFileInfo(target).suffix();
      if (format != wav) encoding.made.append(made(i, format));
    }
    if (!encoding.made.isEmpty()) encodings.append(encoding);
  }
  Encode(encodings);
  QStringList failed;
  for (qsizetype i = 0; i < jobs.size(); ++i) {
    for (const QString& target : jobs[i].targets) {
      if (!PutInPlace(made(i, QFileInfo(target).suffix()), target)) failed.append(target);
    }
    QFile::remove(made(i, wav));
  }
  return failed;
}

QStringList SoundMaker::Make(const QList<SoundJob>& jobs, int threads,
                             const std::function<void(qsizetype)>& progress) const {
  std::atomic<qsizetype> next = 0;
  std::mutex mutex;  // of what follows
  qsizetype done = 0;
  QStringList failed;
  const auto work = [&] {
    for (qsizetype at = 0; (at = next.fetch_add(kBatch)) < jobs.size();) {
      const QList<SoundJob> batch = jobs.mid(at, kBatch);
      const QStringList missing = MakeBatch(batch, QString::number(at));
      const std::lock_guard lock(mutex);
      failed += missing;
      done += batch.size();
      progress(done);
    }
  };
  std::vector<std::thread> workers;
  workers.reserve(static_cast<std::size_t>(threads));
  for (int i = 0; i < threads; ++i) workers.emplace_back(work);
  for (std::thread& worker : workers) worker.join();
  return failed;
}

}  // namespace bramlee
