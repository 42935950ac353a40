#include "media/sound_file.h"

#include <QFileInfo>
#include <QStringList>

namespace bramlee {

bool IsPlayableFile(const QString& file) {
  const QFileInfo info(file);
  return info.isFile() && info.isReadable() && info.size() > 0;
}

bool IsPictureFile(const QString& file) {
  static const QStringList kPictureSuffixes = {
      QStringLiteral("wmv"), QStringLiteral("avi"),  QStringLiteral("mpg"), QStringLiteral("mpeg"),
      QStringLiteral("mp4"), QStringLiteral("m4v"),  QStringLiteral("mkv"), QStringLiteral("mov"),
      QStringLiteral("asf"), QStringLiteral("webm"), QStringLiteral("flv"), QStringLiteral("3gp"),
      QStringLiteral("ogv"), QStringLiteral("vob"),  QStringLiteral("dat")};
  return kPictureSuffixes.contains(QFileInfo(file).suffix().toLower());
}

}  // namespace bramlee
