#include "voice/own_sounds.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <algorithm>
#include <exception>
#include <memory>
#include <utility>

#include "files/file_group.h"
#include "files/platform.h"
#include "files/sound_sets.h"
#include "voice/media_tree.h"
#include "voice/sound_formats.h"

namespace bramlee {
namespace {

const QString kOwn = QStringLiteral("own");
const QString kVoice = QStringLiteral("voice");
const QString kKept = QStringLiteral("kept");
const QString kWork = QStringLiteral(".work");
const QString kWav = QStringLiteral("wav");

/// How long a change waits for another one, which takes a moment; the maker takes minutes.
constexpr int kWaitMs = 2000;

QString WithFormat(const QString& sound, const QString& format) {
  return sound + u'.' + format;
}

QStringList Formats() {
  QStringList formats;
  for (const char* format : kSoundFormats) formats.append(QString::fromLatin1(format));
  return formats;
}

QString TroubleOf(const FileError& error) {
  switch (error.trouble()) {
    case FileTrouble::DiskFull:
      return QStringLiteral("The disk is full.");
    case FileTrouble::DiskReadOnly:
    case FileTrouble::FolderReadOnly:
    case FileTrouble::FileReadOnly:
      return QStringLiteral("The folder of sounds is read-only.");
    case FileTrouble::FolderMissing:
      return QStringLiteral("The folder of sounds is not there.");
    case FileTrouble::FolderInTheWay:
    case FileTrouble::OtherInTheWay:
      return QStringLiteral("What is in the place of %1 is no file.").arg(error.file());
    default:
      return QStringLiteral("The sounds cannot be changed: %1.")
          .arg(QString::fromUtf8(error.what()));
  }
}

/// Runs a change of files; what goes wrong becomes a line.
template <class Change>
QString Lines(Change change) {
  try {
    return change();
  } catch (const FileError& error) {
    return TroubleOf(error);
  } catch (const std::exception& error) {
    return QStringLiteral("The sounds cannot be changed: %1.").arg(QString::fromUtf8(error.what()));
  }
}

/// One change of a drive's sounds, under the lock.
class SoundsChange {
 public:
  explicit SoundsChange(const QString& drive) : tree_(drive) {
    if (LookAt(drive) != Sight::Folder) {
      trouble_ = QStringLiteral("The drive is not there.");
    } else if (PathOf(QStringLiteral("own/x")).isEmpty()) {
      trouble_ = QStringLiteral("The folder of sounds is read-only.");
    } else {
      Lock();
    }
  }

  const QString& Trouble() const { return trouble_; }
  const QString& Root() const { return tree_.Root(); }
  QString Place() const { return Root() + u'/' + kOwn + u'/' + kWork; }
  /// As MediaTree has it.
  QString PathOf(const QString& file) { return tree_.PathOf(file); }

 private:
  void Lock() {
    lock_ = std::make_unique<SoundsLock>(Root(), kWaitMs);
    if (lock_->Holds()) return;
    trouble_ = lock_->IsHeldByAnother()
                   ? QStringLiteral("The sounds' maker is at work: try again when it has ended.")
                   : QStringLiteral("The folder of sounds is read-only.");
  }

  MediaTree tree_;
  std::unique_ptr<SoundsLock> lock_;
  QString trouble_;
};

QString OwnFile(const QString& part, const QString& file) {
  return kOwn + u'/' + part + u'/' + file;
}

}  // namespace

SoundsLock::SoundsLock(const QString& root, int waitMs)
    : lock_(root + QStringLiteral("/.bramlee-sounds.lock")) {
  lock_.setStaleLockTime(0);
  held_ = lock_.tryLock(waitMs);
}

OwnSounds::OwnSounds(QString drive) : drive_(std::move(drive)) {}

QString OwnSounds::Root() const {
  return FindBelow(drive_, QString::fromLatin1(kSoundFolder), u'\\');
}

QString OwnSounds::InOwn(const QString& part, const QString& file) const {
  return FindBelow(Root(), OwnFile(part, file), u'/');
}

QString OwnSounds::RecordingOf(const QString& sound) const {
  return InOwn(kVoice, WithFormat(sound, kWav));
}

bool OwnSounds::IsRecorded(const QString& sound) const {
  return LookAt(RecordingOf(sound)) == Sight::File;
}

QString OwnSounds::FileOf(const QString& sound) const {
  QStringList formats = Formats();
  std::reverse(formats.begin(), formats.end());
  for (const QString& format : std::as_const(formats)) {
    QString file = FindBelow(Root(), WithFormat(sound, format), u'/');
    if (MediaTree::IsThere(file)) return file;
  }
  return {};
}

VoiceOf OwnSounds::Of(const QString& sound) const {
  if (FileOf(sound).isEmpty()) return VoiceOf::Nobody;
  return IsRecorded(sound) ? VoiceOf::Own : VoiceOf::Maker;
}

QStringList OwnSounds::Recorded() const {
  const QDir folder(FindBelow(Root(), kOwn + u'/' + kVoice, u'/'));
  QStringList sounds;
  QDirIterator files(folder.path(), QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString file = folder.relativeFilePath(files.next()).toLower();
    if (file.endsWith(u'.' + kWav)) sounds.append(file.chopped(kWav.size() + 1));
  }
  sounds.sort();
  return sounds;
}

QString OwnSounds::Keep(const QString& sound, const SpeechWave& cue) const {
  return Lines([&]() -> QString {
    SoundsChange change(drive_);
    if (!change.Trouble().isEmpty()) return change.Trouble();
    FileGroup group(change.Root(), change.Place());
    const QByteArray wave = WriteWave(cue);
    const QString recording = change.PathOf(OwnFile(kVoice, WithFormat(sound, kWav)));
    const bool makers = LookAt(recording) != Sight::File;
    WriteFile(group.PlaceFor(QStringLiteral("recording")), wave);
    WriteFile(group.PlaceFor(QStringLiteral("new.wav")), wave);
    Encoding encoding{.wave = group.PlaceFor(QStringLiteral("new.wav")), .made = {}};
    for (const QString& format : Formats()) {
      if (format != kWav) encoding.made << group.PlaceFor(QStringLiteral("new.") + format);
    }
    QString trouble = EncoderTrouble().isEmpty() ? EncodeSounds({encoding}) : EncoderTrouble();
    if (!trouble.isEmpty()) return trouble;

    group.Put(QStringLiteral("recording"), recording);
    for (const QString& format : Formats()) {
      const QString target = change.PathOf(WithFormat(sound, format));
      const QString kept = change.PathOf(OwnFile(kKept, WithFormat(sound, format)));
      if (target.isEmpty() || kept.isEmpty())
        return QStringLiteral("The folder of sounds is read-only.");
      if (makers && MediaTree::IsThere(target) && LookAt(kept) == Sight::Nothing) {
        const FileBytes old = FileBytes::Open(target);
        WriteFile(group.PlaceFor(QStringLiteral("kept.") + format), old.Read(0, old.Size()));
        group.Put(QStringLiteral("kept.") + format, kept);
      }
      group.Put(QStringLiteral("new.") + format, target);
    }
    group.Commit();
    return {};
  });
}

QString OwnSounds::GiveBack(const QString& sound) const {
  return Lines([&]() -> QString {
    if (!IsRecorded(sound)) return QStringLiteral("There is no recording of it.");
    SoundsChange change(drive_);
    if (!change.Trouble().isEmpty()) return change.Trouble();
    FileGroup group(change.Root(), change.Place());
    for (const QString& format : Formats()) {
      const QString target = change.PathOf(WithFormat(sound, format));
      const QString kept = InOwn(kKept, WithFormat(sound, format));
      if (LookAt(kept) != Sight::File) {
        group.Remove(target);
        continue;
      }
      const FileBytes old = FileBytes::Open(kept);
      WriteFile(group.PlaceFor(QStringLiteral("kept.") + format), old.Read(0, old.Size()));
      group.Put(QStringLiteral("kept.") + format, target);
      group.Remove(kept);
    }
    group.Remove(RecordingOf(sound));
    group.Commit();
    return {};
  });
}

QString OwnSounds::Finish() const {
  return Lines([&]() -> QString {
    const QString place = FindBelow(Root(), kOwn + u'/' + kWork, u'/');
    if (LookAt(place) != Sight::Folder) return {};
    const SoundsLock lock(Root());
    if (lock.Holds()) FileGroup::Finish(Root(), place);
    return {};
  });
}

}  // namespace bramlee
