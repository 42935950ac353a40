#include "files/file_group.h"

#include <QDir>
#include <QFileInfo>
#include <utility>

namespace bramlee {
namespace {

const QString kPlan = QStringLiteral("plan");
const QString kOn = QStringLiteral("on");
const QString kBack = QStringLiteral("back");
/// What a plan ends with, so that a part of one is none.
const QString kEnd = QStringLiteral("end");

QByteArray BytesOf(const QString& file) {
  const FileBytes bytes = FileBytes::Open(file);
  return bytes.Read(0, bytes.Size());
}

bool IsThere(const QString& path) {
  return LookAt(path) != Sight::Nothing;
}

void Clear(const QString& place) {
  QDir(place).removeRecursively();
}

}  // namespace

FileGroup::FileGroup(Opened /*opened*/, QString root, QString place)
    : root_(std::move(root)), place_(std::move(place)) {}

FileGroup::FileGroup(QString root, QString place)
    : FileGroup(Opened{}, std::move(root), std::move(place)) {
  Finish(root_, place_);
  if (!QDir().mkdir(place_)) {
    throw FileError(FileTrouble::FolderReadOnly, {}, QStringLiteral("no folder can be made"));
  }
}

FileGroup::~FileGroup() {
  const bool underWay = IsThere(PlaceFor(kOn)) || IsThere(PlaceFor(kBack));
  if (!underWay) Clear(place_);
}

QString FileGroup::Below(const QString& target) const {
  return QDir(root_).relativeFilePath(target);
}

void FileGroup::Put(const QString& name, const QString& target) {
  changes_.append({.made = name, .old = {}, .target = Below(target)});
}

void FileGroup::Remove(const QString& target) {
  changes_.append({.made = {}, .old = {}, .target = Below(target)});
}

/// All that may need room on the disk, while nothing is changed.
void FileGroup::MakeReady() {
  for (qsizetype i = 0; i < changes_.size(); ++i) {
    Change& change = changes_[i];
    if (!change.made.isEmpty()) SyncFile(PlaceFor(change.made));
    if (!IsThere(WholePath(change))) continue;
    change.old = QStringLiteral("old-%1").arg(i);
    WriteFile(PlaceFor(change.old), BytesOf(WholePath(change)));
  }
}

void FileGroup::WritePlan() const {
  QString plan;
  for (const Change& change : changes_) {
    plan += QStringLiteral("%1\t%2\t%3\n").arg(change.made, change.old, change.target);
  }
  WriteFile(PlaceFor(kPlan), (plan + kEnd).toUtf8());
}

void FileGroup::ReadPlan(const QString& name) {
  QStringList lines = QString::fromUtf8(BytesOf(PlaceFor(name))).split(u'\n');
  if (lines.takeLast() != kEnd) return;  // a broken disk: nobody knows what was to be done
  for (const QString& line : std::as_const(lines)) {
    const QStringList cells = line.split(u'\t');
    if (cells.size() == 3) changes_.append({cells[0], cells[1], cells[2]});
  }
}

/// What is done already is left.
void FileGroup::GoOn() const {
  for (const Change& change : changes_) {
    if (change.made.isEmpty()) {
      RemoveFile(WholePath(change));
    } else if (IsThere(PlaceFor(change.made))) {
      MoveFile(PlaceFor(change.made), WholePath(change));
    }
  }
  RemoveFile(PlaceFor(kOn));
}

void FileGroup::GoBack() const {
  for (const Change& change : changes_) {
    const bool moved = !change.made.isEmpty() && !IsThere(PlaceFor(change.made));
    if (change.old.isEmpty()) {
      if (moved) RemoveFile(WholePath(change));
    } else if (IsThere(PlaceFor(change.old))) {
      MoveFile(PlaceFor(change.old), WholePath(change));
    }
  }
  RemoveFile(PlaceFor(kBack));
}

void FileGroup::GoOnOrBack() const {
  try {
    GoOn();
  } catch (const FileError&) {
    MoveFile(PlaceFor(kOn), PlaceFor(kBack));
    GoBack();
    throw;
  }
}

void FileGroup::Commit() {
  MakeReady();
  WritePlan();
  MoveFile(PlaceFor(kPlan), PlaceFor(kOn));
  GoOnOrBack();
}

void FileGroup::Finish(const QString& root, const QString& place) {
  if (!IsThere(place)) return;
  FileGroup left(Opened{}, root, place);  // its end clears the place
  if (IsThere(left.PlaceFor(kBack))) {
    left.ReadPlan(kBack);
    left.GoBack();
  } else if (IsThere(left.PlaceFor(kOn))) {
    left.ReadPlan(kOn);
    left.GoOnOrBack();
  }
}

}  // namespace bramlee
