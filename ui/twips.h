// Places of controls in twips.
#pragma once

#include <QRect>

class QWidget;

namespace bramlee {

/// A twip is 1/15 of a logical pixel.
inline constexpr double kTwipsPerPixel = 15;

/// A length in logical pixels, to the nearest, ties to even.
int PixelsOf(double twips);

/// A control's place in its form's client area, below the menu bar, as designed. In twips.
struct TwipsRect {
  double left;
  double top;
  double width;
  double height;
};

/// The rectangle's logical pixels, each of the four to the nearest.
QRect PixelsOf(const TwipsRect& rect);
TwipsRect TwipsOf(const QRect& pixels);  ///< exactly

/// Puts the control there, at the scale of the ground that it stands on (scale.h). The place is
/// kept in twips, so that what is laid out from a neighbour's place does not pick up the rounding
/// to pixels.
void Place(QWidget* control, const TwipsRect& rect);
void MoveTo(QWidget* control, double left, double top);  ///< its size stays
/// Puts a control that was placed where its place lies at its ground's present scale.
void PlaceAnew(QWidget* control);

/// Whether the control was ever placed.
bool IsPlaced(const QWidget* control);

/// Where the control stands, in twips as designed: as placed, or worked out from its pixels.
TwipsRect PlaceOf(const QWidget* control);

}  // namespace bramlee
