// Names for controls: one that tests and tools find them by, one that a screen reader says.
#pragma once

#include <QWidget>

namespace bramlee {

/// Gives the widget its object name and its accessible name; returns it.
template <class Widget>
Widget* Named(Widget* widget, const char* name, const char* accessible) {
  widget->setObjectName(QString::fromLatin1(name));
  widget->setAccessibleName(QString::fromLatin1(accessible));
  return widget;
}

}  // namespace bramlee
