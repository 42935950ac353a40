// Where the stick is.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "voice/stick.h"

class QWidget;

namespace bramlee {

/// How a stick is found. Tests put there what they need.
struct StickSearch {
  /// The places of those that are plugged in.
  std::function<QStringList()> sticks;
  /// Has the user pick a folder, beginning with that one; empty when the user picks none.
  std::function<QString(QWidget* window, const QString& title, const QString& first)> pick;
};

/// One for the whole program, at first the system's.
StickSearch& TheStickSearch();

/// The one stick that is plugged in; with none or several, the folder that the user picks, first
/// the last one that a copy succeeded with. Empty when the user picks none.
QString StickPlace(QWidget* window, const QString& title);

/// Takes note of how a copy to or from that place ended: a picked one is offered next time, or no
/// more.
void NoteCopy(const QString& place, const Copied& copied);

}  // namespace bramlee
