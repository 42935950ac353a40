// Where the stick is.
#pragma once

#include <QString>

class QWidget;

namespace bramlee {

/// The one stick that is plugged in; with none or several, the folder that the user picks, first
/// the last one. Empty when the user picks none.
QString StickPlace(QWidget* window, const QString& title);

}  // namespace bramlee
