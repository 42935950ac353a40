// The record a letter is written from: the sheet's geometry, the letter's anchors and the
// scratch fields its strokes work with.
#pragma once

#include <cstdint>

namespace bramlee {

/// One letter's record. A click makes a fresh one by FillStrokeRec and passes it to the letter,
/// which may rewrite anything but the cell tables; it ends with the click.
/// Coordinates, sizes and radii are sheet pixels, angles degrees.
struct StrokeRec {
  std::int16_t LetterNo{};  ///< number of the tile, 1-based

  // Anchors. They start as the cell tables; each letter lays its own over them.
  double X1{}, X2{}, X3{}, X4{}, X5{}, X6{}, X7{}, X8{}, X9{}, X10{};
  double Y1{}, Y2{}, Y3{}, Y4{}, Y5{}, Y6{}, Y7{}, Y8{}, Y9{}, Y10{};

  // The cell tables: left edges of the columns and the row lines. Letters only read them.
  double Col1{}, Col2{}, Col3{}, Col4{}, Col5{};
  double Row1{}, Row2{}, Row3{}, Row4{}, Row5{};

  double Rad{};                              ///< radius in use
  double CX1{}, CX2{}, CX3{}, CX4{}, CX5{};  ///< arc centres, X
  double CY1{}, CY2{}, CY3{}, CY4{}, CY5{};  ///< arc centres, Y
  double R1{}, R2{}, R3{}, R4{}, R5{};       ///< radii
  double StartAngle{};                       ///< an arc's first angle; a slant's angle
  double EndAngle{};                         ///< an arc's last angle
  std::int16_t StepFlag{};                   ///< an argument of ArcStroke, which does not read it
  std::int16_t SweepDir{};                   ///< +1 anticlockwise, -1 clockwise
  std::int16_t LastResult{};                 ///< what the last primitive returned: 0
  double CellW{}, CellH{};                   ///< size of a cell
  double Unit{};                             ///< the base unit, 50
  double RowH{};                             ///< row pitch
  double WX1{}, WX2{}, WX3{}, WX4{}, WX5{};  ///< working X values of a letter
  double WY1{}, WY2{}, WY3{}, WY4{}, WY5{};  ///< working Y values of a letter
  std::int16_t LoopNo{};                     ///< a typed digit's column in its number, 1 to 5
  std::int16_t AltFlag{};                    ///< 1: write the alternative form
};

/// The three ways a sheet is divided into cells.
enum class SheetKind : std::uint8_t {
  Capitals,      ///< cells 200 by 200 from (400, 50), rows 100 apart
  SmallLetters,  ///< cells 200 wide from (400, 50), rows 75 apart
  Wide,          ///< cells 250 by 75 from (100, 250): Hindi, Telugu and maths
};

/// A record fresh for one click: all zeros but the sizes, the cell tables and the anchors
/// that start from them.
StrokeRec FillStrokeRec(SheetKind kind, std::int16_t letterNo);

/// Whether a sheet has that column: 1 to 5.
constexpr bool IsColumn(int column) {
  return column >= 1 && column <= 5;
}

/// The left edge of that column; 0 for one that the sheet does not have.
double ColumnOf(const StrokeRec& rec, int column);

}  // namespace bramlee
