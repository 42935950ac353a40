#include "tools/sounds_maker/media_tree.h"

#include <QDir>
#include <QFileInfo>

namespace bramlee {

MediaTree::MediaTree(const QString& drive) {
  folders_.insert({}, QFileInfo(drive).absoluteFilePath());
  root_ = Folder(QStringLiteral("bramlee/aud"));
}

/// The name as the folder spells it.
QString MediaTree::Entry(const QString& folder, const QString& name) {
  if (!entries_.contains(folder)) {
    QHash<QString, QString>& entries = entries_[folder];
    for (const QString& entry :
         QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
      entries.insert(entry.toLower(), entry);
    }
  }
  return entries_[folder].value(name.toLower(), name);
}

/// `folder` is below the drive, its parts parted by slashes.
QString MediaTree::Folder(const QString& folder) {
  if (folders_.contains(folder)) return folders_[folder];
  const qsizetype slash = folder.lastIndexOf(u'/');
  const QString parent = Folder(slash < 0 ? QString() : folder.left(slash));
  if (parent.isEmpty()) return {};
  QString path = parent + u'/' + Entry(parent, folder.mid(slash + 1));
  if (!QDir(path).exists() && !QDir().mkdir(path)) return {};
  folders_.insert(folder, path);
  return path;
}

QString MediaTree::PathOf(const QString& file) {
  const qsizetype slash = file.lastIndexOf(u'/');
  const QString folder = Folder(QStringLiteral("bramlee/aud/") + file.left(slash));
  return folder.isEmpty() ? QString() : folder + u'/' + Entry(folder, file.mid(slash + 1));
}

bool MediaTree::IsThere(const QString& path) {
  return QFileInfo(path).size() > 0;
}

}  // namespace bramlee
