// Several files that become others together, or none of them, wherever the program or the machine
// stops.
#pragma once

#include <QList>
#include <QString>

#include "files/platform.h"

namespace bramlee {

/// Changes files below a folder as one. Each of them is at any moment the old one or the new one.
/// What a stop leaves half-way, Finish brings to its end or takes back.
///
/// New files, copies of the old ones and a plan stand in a folder of the group's own; when all is
/// on the disk the plan gets the name "on", and from then on the files move to their places. If one
/// cannot, the plan gets the name "back", and the old ones do.
class FileGroup {
 public:
  /// `root` is the folder below which all files lie, `place` one for the group alone, on the same
  /// file system; there may be one group a place at a time. Finishes what was left there. Throws
  /// FileError when that or the place cannot be made.
  FileGroup(QString root, QString place);
  /// What is not committed leaves nothing behind.
  ~FileGroup();
  FileGroup(const FileGroup&) = delete;
  FileGroup& operator=(const FileGroup&) = delete;

  /// Where to make the new file of that name, which the group moves later.
  QString PlaceFor(const QString& name) const { return place_ + u'/' + name; }

  /// The file of that name in the place gets the whole path `target`, whose folder has to be there.
  void Put(const QString& name, const QString& target);
  /// The file at that whole path goes.
  void Remove(const QString& target);

  /// Does it all. Once only. Throws FileError, and all files are as they were; where the disk lets
  /// not even that be done, Finish does it later.
  void Commit();

  /// Brings what a stop left in that place to an end. Throws FileError when it cannot; it is left
  /// to the next call then.
  static void Finish(const QString& root, const QString& place);

 private:
  struct Change {
    QString made;    ///< its name in the place; empty for a file that goes
    QString old;     ///< of the old file's copy there; empty where there was none
    QString target;  ///< below root_
  };

  QString WholePath(const Change& change) const { return root_ + u'/' + change.target; }
  QString Below(const QString& target) const;
  void MakeReady();
  void WritePlan() const;
  void ReadPlan(const QString& name);
  void GoOn() const;
  void GoBack() const;
  void GoOnOrBack() const;

  struct Opened {};
  /// Without finishing anything.
  FileGroup(Opened, QString root, QString place);

  QString root_;
  QString place_;
  QList<Change> changes_;
};

}  // namespace bramlee
