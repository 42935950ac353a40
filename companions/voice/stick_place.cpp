#include "companions/voice/stick_place.h"

#include <QFileDialog>
#include <QStorageInfo>
#include <QStringList>

#include "ui/choices.h"

namespace bramlee {
namespace {

const QString kStick = QStringLiteral("voice/stick");

/// What desktops put into place by themselves when it is plugged in.
QStringList Sticks() {
  QStringList sticks;
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    const QString place = volume.rootPath();
    const bool plugged = place.startsWith(QStringLiteral("/media/")) ||
                         place.startsWith(QStringLiteral("/run/media/"));
    if (plugged && volume.isReady()) sticks.append(place);
  }
  return sticks;
}

}  // namespace

QString StickPlace(QWidget* window, const QString& title) {
  const QStringList sticks = Sticks();
  if (sticks.size() == 1) return sticks.constFirst();
  const QString last = Choices::Instance().Of(kStick, QStringLiteral("/media")).toString();
  QString picked = QFileDialog::getExistingDirectory(window, title, last);
  if (!picked.isEmpty()) Choices::Instance().Choose(kStick, picked);
  return picked;
}

}  // namespace bramlee
