#include "ui/screen.h"

#include <QGuiApplication>
#include <QScreen>

#include "ui/twips.h"

namespace bramlee {
namespace {

std::optional<ScreenSize>& GivenSize() {
  static std::optional<ScreenSize> size;
  return size;
}

}  // namespace

ScreenSize Screen() {
  if (GivenSize()) return *GivenSize();
  const QSize pixels = QGuiApplication::primaryScreen()->size();
  return {.width = kTwipsPerPixel * pixels.width(), .height = kTwipsPerPixel * pixels.height()};
}

QPoint ScreenOrigin() {
  return QGuiApplication::primaryScreen()->geometry().topLeft();
}

void SetScreen(std::optional<ScreenSize> size) {
  GivenSize() = size;
}

}  // namespace bramlee
