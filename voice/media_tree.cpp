#include "voice/media_tree.h"

#include <QDir>
#include <QFileInfo>

#include "files/platform.h"

namespace bramlee {
namespace {

/// The folder of those names, one in the other, below `from`; makes what is missing. Empty when
/// that fails.
QString MakeFolder(QString from, const QString& names, QChar parted) {
  for (const QString& name : names.split(parted, Qt::SkipEmptyParts)) {
    from = InFolder(from, name);
    if (LookAt(from) != Sight::Folder && !QDir().mkdir(from)) return {};
  }
  return from;
}

}  // namespace

QString FindBelow(QString from, const QString& names, QChar parted) {
  for (const QString& name : names.split(parted, Qt::SkipEmptyParts)) from = InFolder(from, name);
  return from;
}

MediaTree::MediaTree(const QString& drive, const QString& names)
    : root_(MakeFolder(QFileInfo(drive).absoluteFilePath(), names, u'\\')) {}

QString MediaTree::PathOf(const QString& file) {
  const qsizetype slash = file.lastIndexOf(u'/');
  const QString asked = file.left(slash);
  if (root_.isEmpty()) return {};
  if (!folders_.contains(asked)) folders_.insert(asked, MakeFolder(root_, asked, u'/'));
  const QString folder = folders_.value(asked);
  return folder.isEmpty() ? QString() : InFolder(folder, file.mid(slash + 1));
}

bool MediaTree::IsThere(const QString& path) {
  return QFileInfo(path).size() > 0;
}

}  // namespace bramlee
