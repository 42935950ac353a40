// The greys of a sheet. A black-and-white printer of 600 dots an inch makes grey of black dots,
// about a hundred an inch: what is thin is dark enough to stay one line, what is pale is wide.
#pragma once

#include <QColor>

namespace bramlee {

inline constexpr QColor kBlackInk(0, 0, 0);
inline constexpr QColor kDotInk(0x38, 0x38, 0x38);
inline constexpr QColor kPaleInk(0xBE, 0xBE, 0xBE);  ///< letters to write over
inline constexpr QColor kRuleInk(0x80, 0x80, 0x80);
inline constexpr QColor kThickRuleInk(0x70, 0x70, 0x70);
inline constexpr QColor kCaptionInk(0x50, 0x50, 0x50);

// In millimetres.
inline constexpr double kRuleMm = 0.2;
inline constexpr double kThickRuleMm = 0.45;  ///< of letters from 20 mm on, thinner below

}  // namespace bramlee
