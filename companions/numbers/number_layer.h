// The numbers and arrows as a layer of the sheet.
#pragma once

#include <vector>

#include "board/board_pen.h"
#include "board/sheet.h"
#include "writing/page_numbers.h"

namespace bramlee {

/// Paints the numbers of what the pen has written and is to write, placed anew whenever the letters
/// or the scale at which the sheet is seen are others.
class NumberLayer final : public SheetLayer {
 public:
  /// The pen lives as long as the layer is painted. Shows nothing at first.
  explicit NumberLayer(BoardPen& pen) : pen_(pen) {}

  void Show(bool shown) { shown_ = shown; }
  void SetHand(Hand hand) { hand_ = hand; }

  void Paint(QPainter& painter) const override;

 private:
  /// What the places were found for.
  struct Asked {
    std::uint64_t edition = 0;
    std::size_t letters = 0;
    double radius = 0;
    Hand hand = Hand::Right;
    bool operator==(const Asked&) const = default;
  };
  void PlaceFor(double scale) const;

  BoardPen& pen_;
  bool shown_ = false;
  Hand hand_ = Hand::Right;
  mutable Asked asked_;
  mutable std::vector<PageNumber> numbers_;
};

}  // namespace bramlee
