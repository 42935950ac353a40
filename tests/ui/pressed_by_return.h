// Whether Return presses the buttons of a window.
#pragma once

#include <QPushButton>
#include <QSignalBlocker>
#include <QTest>

namespace bramlee {

/// The names of a window's buttons, the default one aside, that Return does not hold down as Space
/// does. None of them acts.
inline QStringList DeafToReturn(const QWidget& window) {
  QStringList deaf;
  for (QPushButton* button : window.findChildren<QPushButton*>()) {
    if (button->isDefault()) continue;
    const QSignalBlocker acts(button);
    button->setEnabled(true);
    QTest::keyPress(button, Qt::Key_Return);
    if (!button->isDown()) deaf.append(button->objectName());
    button->setDown(false);
  }
  return deaf;
}

}  // namespace bramlee
