#include "ui/choices.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSettings>

namespace bramlee {
namespace {

/// Made anew each time: Qt keeps what the file holds.
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
  const auto unwritten = unwritten_.constFind(name);
  return unwritten != unwritten_.cend() ? *unwritten : Kept().value(name, otherwise);
}

void Choices::Choose(const QString& name, const QVariant& value) {
  const QVariant stands = Of(name, {});
  // What was read from the file is a text.
  if (stands.isValid() && (stands == value || stands == QVariant(value.toString()))) return;
  QSettings kept = Kept();
  kept.setValue(name, value);
  kept.sync();
  if (kept.status() == QSettings::NoError) {
    unwritten_.remove(name);
  } else {
    unwritten_.insert(name, value);
  }
  Q_EMIT Changed(name);
}

}  // namespace bramlee
