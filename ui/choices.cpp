#include "ui/choices.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSettings>

namespace bramlee {
namespace {

/// Made anew each time: Qt keeps what the file holds, and writes it soon after a change.
QSettings Kept() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("bramlee"),
                   QStringLiteral("bramlee"));
}

}  // namespace

Choices& Choices::Instance() {
  static QPointer<Choices> choices;
  if (choices == nullptr) choices = new Choices(QCoreApplication::instance());
  return *choices;
}

QVariant Choices::Of(const QString& name, const QVariant& otherwise) const {
  return Kept().value(name, otherwise);
}

void Choices::Choose(const QString& name, const QVariant& value) {
  QSettings kept = Kept();
  if (kept.value(name) == value) return;
  kept.setValue(name, value);
  Q_EMIT Changed(name);
}

}  // namespace bramlee
