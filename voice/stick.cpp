#include "voice/stick.h"

#include <QDir>
#include <QFile>
#include <QList>
#include <QRegularExpression>

#include "files/platform.h"
#include "files/sound_sets.h"
#include "voice/media_tree.h"

namespace bramlee {
namespace {

/// Longer than any recording; more is no sound of a board.
constexpr qint64 kLargest = 4'000'000;

const QString kEnding = QStringLiteral(".wav");

/// A recording on the stick.
struct Recording {
  QString sound;
  QString file;
};

QString FolderOn(const QString& stick) {
  const QString folder = InFolder(stick, QString::fromLatin1(kStickFolder));
  return LookAt(folder) == Sight::Folder ? folder : stick;
}

/// The recordings of a set in a folder.
QList<Recording> RecordingsOf(const SoundSet& set, const QString& folder) {
  static const QRegularExpression kPart(QStringLiteral(R"(\A([a-z]|-?[0-9]{1,5})\z)"));
  const QString prefix = FilesOf(set);
  const qsizetype slash = prefix.lastIndexOf(u'/');
  const QDir place(FindBelow(folder, prefix.left(slash), u'/'));
  QList<Recording> found;
  for (const QString& file : place.entryList(QDir::Files)) {
    const QString sound = prefix.left(slash + 1) + file.toLower();
    if (!sound.startsWith(prefix) || !sound.endsWith(kEnding)) continue;
    const QString part = sound.mid(prefix.size()).chopped(kEnding.size());
    if (kPart.match(part).hasMatch()) found.append({prefix + part, place.filePath(file)});
  }
  return found;
}

QList<Recording> RecordingsIn(const QString& folder) {
  QList<Recording> found;
  for (const SoundSet& set : kSoundSets) found += RecordingsOf(set, folder);
  return found + RecordingsOf(kNumberSounds, folder);
}

QByteArray ShortFile(const QString& path) {
  QFile file(path);
  if (file.size() > kLargest || !file.open(QIODevice::ReadOnly)) return {};
  return file.readAll();
}

/// Whole at any moment.
void PutFile(const QString& path, const QByteArray& bytes) {
  const QString aside = path + QStringLiteral(".new");
  try {
    WriteFile(aside, bytes);
    MoveFile(aside, path);
  } catch (const FileError&) {
    QFile::remove(aside);
    throw;
  }
}

QString StickTrouble(const FileError& error) {
  const bool full = error.trouble() == FileTrouble::DiskFull;
  return full ? QStringLiteral("The stick is full.")
              : QStringLiteral("Nothing can be written there: %1.")
                    .arg(QString::fromUtf8(error.what()));
}

}  // namespace

Copied CopyToStick(const OwnSounds& own, const QString& stick, const CopyProgress& progress,
                   const std::stop_token& stop) {
  const QStringList sounds = own.Recorded();
  Copied copied;
  if (sounds.isEmpty()) return {.sounds = 0, .error = QStringLiteral("Nothing is recorded yet.")};
  if (LookAt(stick) != Sight::Folder) {
    return {.sounds = 0, .error = QStringLiteral("There is no such folder.")};
  }
  MediaTree tree(stick, QString::fromLatin1(kStickFolder));
  for (const QString& sound : sounds) {
    if (stop.stop_requested()) break;
    const QByteArray recording = ShortFile(own.RecordingOf(sound));
    const QString target = tree.PathOf(sound + kEnding);
    if (target.isEmpty()) {
      copied.error = QStringLiteral("Nothing can be written there.");
      break;
    }
    try {
      if (!recording.isEmpty()) PutFile(target, recording);
    } catch (const FileError& error) {
      copied.error = StickTrouble(error);
      break;
    }
    progress(++copied.sounds, static_cast<int>(sounds.size()));
  }
  return copied;
}

Copied TakeFromStick(const OwnSounds& own, const QString& stick, const CopyProgress& progress,
                     const std::stop_token& stop) {
  const QList<Recording> found = RecordingsIn(FolderOn(stick));
  Copied copied;
  if (found.isEmpty()) {
    return {.sounds = 0, .error = QStringLiteral("There are no recordings in that folder.")};
  }
  for (const Recording& recording : found) {
    if (stop.stop_requested()) break;
    const QByteArray file = ShortFile(recording.file);
    const auto wave = ReadWave(file);
    if (!wave) continue;
    const bool same = own.Of(recording.sound) == VoiceOf::Own &&
                      ShortFile(own.RecordingOf(recording.sound)) == file;
    if (!same) copied.error = own.Keep(recording.sound, *wave);
    if (!copied.error.isEmpty()) break;
    progress(++copied.sounds, static_cast<int>(found.size()));
  }
  return copied;
}

}  // namespace bramlee
