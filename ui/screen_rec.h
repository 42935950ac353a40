// The sizes that all forms but the boards lay themselves out by.
#pragma once

#include <cstdint>

namespace bramlee {

/// Filled anew by each such form when it loads. All lengths in twips.
struct ScreenRec {
  std::int32_t ScrH = 0;       ///< the screen's height, a thousandth short
  std::int32_t ScrW = 0;       ///< the screen's width, a thousandth short
  std::int32_t UnitH = 0;      ///< a hundredth of ScrH
  std::int32_t UnitW = 0;      ///< a two-hundredth of ScrW
  std::int32_t WorkH = 0;      ///< four fifths of ScrH
  std::int32_t MarginW = 0;    ///< three and a half UnitW
  std::int32_t MarginH = 0;    ///< three UnitH
  std::int32_t WorkW = 0;      ///< four fifths of ScrW
  std::uint8_t ScaleFlag = 0;  ///< each form's property "ScaleFlag"; read by nothing
};

/// Fills the record from the screen. A size too large for its field is reported, and the record
/// then stays as it was. Tag "com1:01".
void FillScreenRec(ScreenRec& rec);

}  // namespace bramlee
