// The tree of sound files on a drive.
#pragma once

#include <QHash>
#include <QString>

#include "files/sound_sets.h"

namespace bramlee {

/// What those names, one in the other, lead to without regard to case, be it there or not.
QString FindBelow(QString from, const QString& names, QChar parted);

/// The folder of sounds below a drive's folder, or another folder there. Finds names as the program
/// does, without regard to case; makes what is missing in small letters.
class MediaTree {
 public:
  /// `names` are those of the folder, parted by backslashes.
  explicit MediaTree(const QString& drive,
                     const QString& names = QString::fromLatin1(kSoundFolder));

  /// The folder, made if it is missing. Empty when it cannot be made.
  const QString& Root() const { return root_; }

  /// The full path for "engc/eng-a.wma" below it; makes a missing folder. Empty when that fails.
  QString PathOf(const QString& file);

  /// Whether there is a file of that full path that is not empty: a power cut leaves empty ones.
  static bool IsThere(const QString& path);

 private:
  QString root_;
  QHash<QString, QString> folders_;  ///< below root_: as asked for, full path
};

}  // namespace bramlee
