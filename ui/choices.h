// What a teacher chose beside the menus: how fast the pen goes, what is folded away. It lasts.
#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

namespace bramlee {

/// The choice that the child writes with the left hand, false at first. Whatever shows where to
/// write follows it.
inline constexpr char kLeftHandChoice[] = "trace/leftHand";

/// The choices, by name, kept in the user's configuration (QSettings, "bramlee/bramlee"). One for
/// the whole program, as all boards follow them. Where the configuration cannot be written they
/// last as long as the program runs.
class Choices : public QObject {
  Q_OBJECT
 public:
  static Choices& Instance();

  /// What was chosen last, or `otherwise`.
  QVariant Of(const QString& name, const QVariant& otherwise) const;
  /// Keeps a choice and says so, unless it is the one that stands.
  void Choose(const QString& name, const QVariant& value);

 Q_SIGNALS:
  void Changed(const QString& name);

 private:
  using QObject::QObject;

  QHash<QString, QVariant> unwritten_;  ///< choices that the configuration does not take
};

}  // namespace bramlee
