// How much two letters overlap when they are laid over each other.
#pragma once

#include <vector>

#include "tests/book/centre_line.h"

namespace bramlee {

/// Lays the one line over the other with the scale and the shift that fit best, the two axes free
/// by a quarter of each other, thickens both alike, as the boards' pen is on a letter of 150
/// pixels, and returns the part of their ink that both have: 1 for the same letter, 0 for nothing
/// in common.
double Overlap(const CentreLine& line, const CentreLine& other);

/// Lays both into the same box, thickens both to 0.15 of its height (print has 0.1 or more), and
/// returns the part of their ink that both have: twice what is common, of what the two have
/// together. 1 for the same letter.
double OverlapInBox(const CentreLine& line, const CentreLine& other);

/// The middle one of them, or the mean of the two in the middle; 0 without any.
double MedianOf(std::vector<double> overlaps);

}  // namespace bramlee
