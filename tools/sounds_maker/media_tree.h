// The tree of sound files on a drive.
#pragma once

#include <QHash>
#include <QString>

namespace bramlee {

/// The folder of sounds below a drive's folder. Names are found as the program finds them; what is
/// not there is made in small letters.
class MediaTree {
 public:
  explicit MediaTree(const QString& drive);

  /// The folder of sounds, made if need be. Empty when it cannot be made.
  const QString& Root() const { return root_; }

  /// The full path for "engc/eng-a.wma" below it, its folder made if need be. Empty when that
  /// cannot be made.
  QString PathOf(const QString& file);

  /// Whether there is a file of that full path with anything in it: an empty one is what a power
  /// cut left.
  static bool IsThere(const QString& path);

 private:
  QString root_;
  QHash<QString, QString> folders_;  ///< below root_: as asked for, full path
};

}  // namespace bramlee
