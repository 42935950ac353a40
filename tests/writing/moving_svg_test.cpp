// Letters that write themselves, as SVG.
#include "writing/moving_svg.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/strokes/every_letter.h"

namespace bramlee {
namespace {

/// A stroke of a second: 500 pixels down and, joined, 500 to the right; then one of half a second
/// that is apart.
Letter OfASecondAndAHalf() {
  const double down[] = {100, 0, 500};
  const double right[] = {100, 500, 600};
  const double apart[] = {300, 0, 500};
  return {
      {      },
      kUsualStep,
      { MakeRun(Primitive::LineDown, down), MakeRun(Primitive::LineRight, right),
       MakeRun(Primitive::LineDown, apart)}
  };
}

MovingSvg Look() {
  return {
      .view = {.x = 50, .y = -50, .width = 600, .height = 600},
      .width = 400,
      .ink = "#f00",
      .ground = "",
      .title = "two <strokes> & more",
      .rest = 1,
      .sign = "#000",
      .rim = "#fff"
  };
}

bool Has(const std::string& text, const char* part) {
  return text.find(part) != std::string::npos;
}

int CountOf(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

TEST(MovingSvg, WritesEachStrokeInItsPartOfTheCycle) {
  const std::string svg = MovingSvgOf(OfASecondAndAHalf(), Look());
  EXPECT_TRUE(Has(svg, "animation:2.5s linear infinite")) << svg;
  EXPECT_TRUE(Has(svg, "path{stroke-dasharray:1001}")) << svg;
  EXPECT_TRUE(Has(svg,
                  "@keyframes a{0%,0%{stroke-dashoffset:1001.1}20%{stroke-dashoffset:501}"
                  "40%,to{stroke-dashoffset:1}}"))
      << svg;
  EXPECT_TRUE(Has(svg,
                  "@keyframes b{0%,40%{stroke-dashoffset:1001.1}"
                  "60%,to{stroke-dashoffset:501}}"))
      << svg;
  EXPECT_TRUE(Has(svg, R"(<path style="animation-name:a" d="M50 50v500h500"/>)")) << svg;
  EXPECT_TRUE(Has(svg, R"(<path style="animation-name:b" d="M250 50v500"/>)")) << svg;
}

TEST(MovingSvg, MovesOnlyForWhomMotionIsRight) {
  const std::string svg = MovingSvgOf(OfASecondAndAHalf(), Look());
  EXPECT_TRUE(Has(svg, "@media(prefers-reduced-motion:no-preference){path{animation:")) << svg;
  EXPECT_FALSE(Has(svg, "script")) << svg;
}

TEST(MovingSvg, ParsesThoughTheTitleHasSigns) {
  EXPECT_TRUE(
      Has(MovingSvgOf(OfASecondAndAHalf(), Look()), "<title>two &lt;strokes> &amp; more</title>"));
}

TEST(MovingSvg, HasAGroundOnlyWhenOneIsWanted) {
  MovingSvg look = Look();
  EXPECT_FALSE(Has(MovingSvgOf(OfASecondAndAHalf(), look), "<rect"));
  look.ground = "#e0e0e0";
  EXPECT_TRUE(Has(MovingSvgOf(OfASecondAndAHalf(), look),
                  R"(<rect width="100%" height="100%" fill="#e0e0e0"/>)"));
}

TEST(MovingSvg, HidesANumberFromItsStrokesBeginToTheLettersEnd) {
  MovingSvg look = Look();
  const Letter letter = OfASecondAndAHalf();
  const auto numbers = PlaceNumbers(letter.Shape().strokes, {});
  look.numbers = numbers;
  const std::string svg = MovingSvgOf(letter, look);
  EXPECT_TRUE(Has(svg,
                  "@keyframes d{0%,40%{visibility:visible}40.01%,60%{visibility:hidden}"
                  "60.01%,to{visibility:visible}}"))
      << svg;
  EXPECT_EQ(CountOf(svg, "<circle"), 2) << svg;
  EXPECT_TRUE(Has(svg, ">2</text>")) << svg;
}

TEST(MovingSvg, DrawsRunsThatStandApartAsPathsOfTheirOwn) {
  const double down[] = {100, 0, 500};
  const double near[] = {105, 500, 600};
  const Letter letter({}, kUsualStep,
                      {MakeRun(Primitive::LineDown, down), MakeRun(Primitive::LineRight, near)});
  ASSERT_EQ(letter.PenStrokes().size(), 1U);
  EXPECT_EQ(CountOf(MovingSvgOf(letter, Look()), "<path "), 2);
}

TEST(MovingSvg, OfALetterWithoutStrokesIsAnEmptyPicture) {
  const std::string svg = MovingSvgOf(Letter(), Look());
  EXPECT_FALSE(Has(svg, "<path")) << svg;
  EXPECT_FALSE(Has(svg, "nan")) << svg;
}

TEST(MovingSvg, IsSmall) {
  std::vector<std::size_t> sizes;
  for (const LetterId& id : EveryLetter()) {
    const Letter& letter = LetterOf(id);
    MovingSvg look = Look();
    look.view = letter.Bounds();
    if (!letter.Runs().empty()) sizes.push_back(MovingSvgOf(letter, look).size());
  }
  std::ranges::sort(sizes);
  EXPECT_LE(sizes[sizes.size() / 2], 2048U);
}

}  // namespace
}  // namespace bramlee
