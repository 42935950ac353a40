#include "media/media.h"

#include <QCoreApplication>
#include <QProcess>

#include "media/player_form.h"
#include "media/sound_engine.h"
#include "ui/form_ids.h"
#include "ui/forms.h"

namespace bramlee {

void RegisterMedia() {
  RegisterForm(kPlayerForm, [] { return new PlayerForm; });
}

void ScanSoundLibrary() {
  auto* scan = new QProcess(QCoreApplication::instance());
  QObject::connect(scan, &QProcess::finished, scan, &QObject::deleteLater);
  QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, scan, [scan] {
    scan->kill();
    scan->waitForFinished();
  });
  scan->setStandardOutputFile(QProcess::nullDevice());
  scan->setStandardErrorFile(QProcess::nullDevice());
  scan->start(QCoreApplication::applicationDirPath() + QStringLiteral("/bramlee-sound-scan"), {});
}

void WarmUpPlayer() {
  SoundEngine::Instance().WarmUp();
}

}  // namespace bramlee
