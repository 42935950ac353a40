// The centre lines of letters: of strokes, and of signs in print.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "strokes/letter.h"

namespace bramlee {

/// Points of a letter's centre lines, each in a place of its own.
using CentreLine = std::vector<Point>;

/// Of the letter's strokes. A ring so small that the pen fills it is its centre: in print it is a
/// dot.
CentreLine LineOf(const Letter& letter);

/// Of the sign in print, thinned to a line, about as large whatever the sign; nothing where the
/// font lacks one of its characters. A sign that stands on another is drawn alone.
std::optional<CentreLine> LineOf(const QString& sign, const QString& family);

/// The width of what the line shows, or half its length for one that is flat, at least 1.
double SizeOf(const CentreLine& line);

/// At most `most` of the points, evenly spread over what the line shows.
CentreLine Thinned(const CentreLine& line, std::size_t most);

}  // namespace bramlee
