// The last-point registers: where the pen was, for the stroke that joins on.
#pragma once

namespace bramlee {

// One set for the whole program. A letter reads what its own earlier stroke left here.
extern double LastX, LastY;    ///< end of an arc; SlantLeft: last dot within 100 of its start Y
extern double LastX2, LastY2;  ///< SlantRight, SlantUpRight: last dot within 100 of their start Y

/// Puts all four to 0, as at the start of the program.
void ClearLastPoint();

/// Keeps the registers at its construction and puts them back at its destruction.
class KeepLastPoint {
 public:
  KeepLastPoint() = default;
  ~KeepLastPoint() { LastX = x_, LastY = y_, LastX2 = x2_, LastY2 = y2_; }
  KeepLastPoint(const KeepLastPoint&) = delete;
  KeepLastPoint& operator=(const KeepLastPoint&) = delete;

 private:
  double x_ = LastX, y_ = LastY, x2_ = LastX2, y2_ = LastY2;
};

}  // namespace bramlee
