// How large the controls on a ground stand beside their design.
#pragma once

#include <QFont>
#include <QPoint>

class QWidget;

namespace bramlee {

/// Each control on a ground stands `factor` times as large as designed, and as many times as far
/// from `origin`.
struct Scale {
  double factor = 1;
  QPoint
      origin;  ///< where the design's top left corner lies, in the ground's pixels; maybe outside

  friend bool operator==(const Scale&, const Scale&) = default;
};

/// The ground's scale: as designed until SetScale. Null is no ground and has that scale, too.
Scale ScaleOf(const QWidget* ground);

/// Gives the ground another scale: each control on it that was put in its place by Place goes to
/// where that lies now, its edges to the nearest pixel, and each font that was given by
/// SetDesignFont, to the ground or to a control on it, becomes larger or smaller. Back at the first
/// scale all is as it was.
void SetScale(QWidget* ground, const Scale& scale);

/// How many times as large as designed a control's letters are: by the scale of the ground that it
/// stands on, or its own if it is a ground itself.
double LettersScaleOf(const QWidget* control);

/// Gives the control that font in the size that its scale makes of it; pixels are rounded down, so
/// that a text which fits as designed fits at any scale.
void SetDesignFont(QWidget* control, const QFont& font);

}  // namespace bramlee
