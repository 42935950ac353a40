// Where the figures come from: heads are the places where the letters' own ticks turn upwards.
// Letters without a tick have theirs by hand, where their last bow ends, which is where print and
// primers have the sign. A side is where the sign of o ends on a letter whose last bow it hangs
// on, and how far right it lies at most on the others; a loop stands there too on those of one bow.
// A foot is the letter's own ink at its lowest third.
#include "strokes/telugu_anchors.h"

namespace bramlee {
namespace {

constexpr TeluguForm kOpen = TeluguForm::Open;
constexpr TeluguForm kHooked = TeluguForm::Hooked;
constexpr TeluguForm kHa = TeluguForm::Ha;

// clang-format off
constexpr TeluguAnchors kAnchors[] = {
    // code, tile, below, head, side, loop, foot, form
    {0x0C15,  1, 18, {225.5, 315}, 225.5, 225.5, {187.5, 262.5}},  // క
    {0x0C16,  2, 19, {495, 325}, 495, 495, {362.6, 562}},  // ఖ, by hand
    {0x0C17,  3, 20, {731.8, 315}, 744.3, 731.8, {655.8, 814.2}},  // గ
    {0x0C18,  4, 21, {919.3, 315}, 1063, 919.3, {857.5, 1089.5}, kHooked},  // ఘ
    {0x0C19,  5, 22, {235, 322}, 235, 235, {125, 275}},  // ఙ, by hand
    {0x0C1A,  6, 23, {216.4, 325}, 242.8, 216.4, {120, 320}},  // చ
    {0x0C1B,  8, 25, {716.4, 325}, 742.8, 716.4, {620, 820}},  // ఛ
    {0x0C1C,  9, 26, {242, 322}, 242, 242, {125, 275}},  // జ, by hand
    {0x0C1D, 11, 28, {696.4, 325}, 902, 696.4, {629.5, 928.3}, kHooked},  // ఝ
    {0x0C1E, 12, 29, {285, 322}, 285, 285, {150, 311.6}},  // ఞ, by hand
    {0x0C1F, 13, 30, {290, 325}, 290, 290, {125.6, 321.3}},  // ట, by hand
    {0x0C20, 14, 31, {471.4, 325}, 485.1, 471.4, {404.6, 545.4}},  // ఠ
    {0x0C21, 15, 32, {215.5, 322}, 224.2, 215.5, {115, 312.5}},  // డ
    {0x0C22, 16, 33, {215.5, 322}, 224.2, 215.5, {115, 312.5}},  // ఢ
    {0x0C23, 17, 34, {245, 322}, 245, 245, {125, 282.1}},  // ణ, by hand
    {0x0C24, 35, 52, {201.4, 325}, 225, 201.4, {117.7, 282.8}},  // త
    {0x0C25, 36, 53, {466.4, 325}, 492.8, 466.4, {370, 570}},  // థ
    {0x0C26, 37, 54, {716.4, 325}, 742.8, 716.4, {620, 820}},  // ద
    {0x0C27, 38, 55, {966.4, 325}, 992.8, 966.4, {870, 1070}},  // ధ
    {0x0C28, 39, 56, {196.4, 325}, 198, 196.4, {107.5, 264.7}},  // న
    {0x0C2A, 40, 57, {169.3, 315}, 222.6, 222.6, {107.5, 264.6}, kOpen},  // ప
    {0x0C2B, 41, 58, {419.3, 315}, 472.6, 472.6, {357.5, 514.6}, kOpen},  // ఫ
    {0x0C2C, 42, 59, {738, 325}, 738, 738, {625, 782.1}},  // బ, by hand
    {0x0C2D, 43, 60, {986.8, 325}, 986.8, 986.8, {875, 1032.1}},  // భ
    {0x0C2E, 44, 61, {196.4, 325}, 297, 196.4, {107.5, 339.6}, kHooked},  // మ
    {0x0C2F, 45, 62, {221.4, 325}, 324, 221.4, {74.5, 365.9}, kHooked},  // య
    {0x0C30, 46, 63, {471.4, 325}, 485.1, 471.4, {404.6, 545.4}},  // ర
    {0x0C31, 74, 75, {760, 322}, 760, 760, {624.9, 825.1}},  // ఱ, by hand
    {0x0C32, 47, 64, {806, 326}, 806, 806, {645.4, 814.5}},  // ల, by hand
    {0x0C33, 71, 72, {261.4, 325}, 261.4, 261.4, {200, 250}},  // ళ
    {0x0C35, 48, 65, {946.4, 325}, 948, 946.4, {857.5, 1014.7}},  // వ
    {0x0C36, 49, 66, {216.4, 323}, 216.4, 216.4, {187.5, 262.5}},  // శ
    {0x0C37, 50, 67, {444.3, 315}, 497.6, 497.6, {382.5, 539.6}, kOpen},  // ష
    {0x0C38, 51, 68, {694.3, 315}, 747.6, 747.6, {632.5, 789.6}, kOpen},  // స
    {0x0C39, 69, 70, {929.3, 315}, 1067, 982.6, {867.5, 1024.6}, kHa},  // హ
    {0x0C58,  7, 24, {466.4, 325}, 492.8, 466.4, {370, 570}},  // ౘ
    {0x0C59, 10, 27, {492, 322}, 492, 492, {375, 525}},  // ౙ, by hand
    {0,     73,  0, {475.5, 315}, 475.5, 475.5, {437.5, 512.5}},  // క్ష
};
// clang-format on

}  // namespace

std::span<const TeluguAnchors> TeluguLetters() {
  return kAnchors;
}

}  // namespace bramlee
