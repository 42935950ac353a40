#include "companions/voice/stick_place.h"

#include <QFileDialog>
#include <QStorageInfo>

#include "ui/choices.h"

namespace bramlee {
namespace {

const QString kStick = QStringLiteral("voice/stick");
const QString kUsual = QStringLiteral("/media");

/// What desktops put into place by themselves when it is plugged in.
QStringList PluggedIn() {
  QStringList sticks;
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    const QString place = volume.rootPath();
    const bool plugged = place.startsWith(QStringLiteral("/media/")) ||
                         place.startsWith(QStringLiteral("/run/media/"));
    if (plugged && volume.isReady()) sticks.append(place);
  }
  return sticks;
}

QString PickFolder(QWidget* window, const QString& title, const QString& first) {
  return QFileDialog::getExistingDirectory(window, title, first);
}

QString LastPlace() {
  return Choices::Instance().Of(kStick, kUsual).toString();
}

}  // namespace

StickSearch& TheStickSearch() {
  static StickSearch search{.sticks = PluggedIn, .pick = PickFolder};
  return search;
}

QString StickPlace(QWidget* window, const QString& title) {
  const QStringList sticks = TheStickSearch().sticks();
  if (sticks.size() == 1) return sticks.constFirst();
  return TheStickSearch().pick(window, title, LastPlace());
}

void NoteCopy(const QString& place, const Copied& copied) {
  if (TheStickSearch().sticks() == QStringList(place)) return;  // the one stick is found again
  const bool failed = !copied.error.isEmpty();
  if (!failed && copied.sounds > 0) Choices::Instance().Choose(kStick, place);
  if (failed && place == LastPlace()) Choices::Instance().Choose(kStick, kUsual);
}

}  // namespace bramlee
