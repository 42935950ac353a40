// The pictures of the strip's buttons, written by the boards' own pen.
#pragma once

#include <QIcon>
#include <QPointF>
#include <initializer_list>
#include <vector>

namespace bramlee {

/// The pen's way in one stroke of a picture: from point to point, on a field of 100 by 100.
using StripStroke = std::vector<QPointF>;

/// An arc of a picture from one angle to another, degrees anticlockwise from the right.
StripStroke StripArc(QPointF centre, double radius, double from, double to);

/// A picture of these strokes, sharp in any size and at any pixel ratio.
QIcon StripPicture(const std::vector<StripStroke>& strokes);

}  // namespace bramlee
