#include "ui/screen.h"

#include <QGuiApplication>
#include <QScreen>

#include "ui/twips.h"

namespace bramlee {

ScreenSize Screen() {
  if (TheEnvironment().screen) return *TheEnvironment().screen;
  const QSize pixels = QGuiApplication::primaryScreen()->size();
  return {.width = kTwipsPerPixel * pixels.width(), .height = kTwipsPerPixel * pixels.height()};
}

QPoint ScreenOrigin() {
  return QGuiApplication::primaryScreen()->geometry().topLeft();
}

}  // namespace bramlee
