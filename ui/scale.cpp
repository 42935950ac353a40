#include "ui/scale.h"

#include <QVariant>
#include <QWidget>
#include <algorithm>

#include "ui/twips.h"

namespace bramlee {
namespace {

constexpr char kScale[] = "scale";
constexpr char kDesignFont[] = "designFont";

QFont Scaled(QFont font, double factor) {
  if (factor == 1) return font;
  if (font.pixelSize() > 0) {
    font.setPixelSize(std::max(static_cast<int>(font.pixelSize() * factor), 1));
  } else {
    font.setPointSizeF(font.pointSizeF() * factor);
  }
  return font;
}

void ScaleFont(QWidget* control) {
  const QVariant font = control->property(kDesignFont);
  if (font.isValid()) control->setFont(Scaled(font.value<QFont>(), LettersScaleOf(control)));
}

}  // namespace

Scale ScaleOf(const QWidget* ground) {
  return ground != nullptr ? ground->property(kScale).value<Scale>() : Scale();
}

void SetScale(QWidget* ground, const Scale& scale) {
  if (scale == ScaleOf(ground)) return;
  ground->setProperty(kScale, QVariant::fromValue(scale));
  ScaleFont(ground);
  for (QWidget* control : ground->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    PlaceAnew(control);
    ScaleFont(control);
  }
  ground->update();
}

double LettersScaleOf(const QWidget* control) {
  return ScaleOf(control->parentWidget()).factor * ScaleOf(control).factor;
}

void SetDesignFont(QWidget* control, const QFont& font) {
  control->setProperty(kDesignFont, font);
  ScaleFont(control);
}

}  // namespace bramlee
