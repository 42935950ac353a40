// What the page may call. JavaScript passes numbers alone: sets by their place among the looks,
// letters, sheets and tracers by handles, texts through a buffer. Results of more than one number
// are left to be read (web/result.h). web/letters.js makes objects of it all.
//
// A handle that does not exist is harmless: the call does nothing and gives 0 or an empty result.
// Lengths are sheet pixels; counts are doubles since a page has no larger whole numbers.
#pragma once

#include <cstdint>

#ifdef __wasm__
#define BRAMLEE_EXPORT(name) __attribute__((export_name(#name)))
#else
#define BRAMLEE_EXPORT( \
    name)  // the same code is compiled for this machine, to be tested and checked
#endif

namespace bramlee {

// --- texts and results

/// Room for that many bytes of UTF-8, to be written to before a call that takes a text.
BRAMLEE_EXPORT(textRoom) char* TextRoom(int bytes);
/// The numbers that the last call left.
BRAMLEE_EXPORT(resultNumbers) const double* ResultNumbers();
BRAMLEE_EXPORT(resultCount) int ResultCount();
/// The text that it left, UTF-8.
BRAMLEE_EXPORT(resultText) const char* ResultText();
BRAMLEE_EXPORT(resultBytes) int ResultBytes();

// --- facts

/// Text: an object of what all sets share. Numbers: dots in a second, the usual step, the steps of
/// the speeds, how far a tracing hand may be off at least (millimetres).
BRAMLEE_EXPORT(commonFacts) void CommonFacts();
/// Text: an object of what is special to a set. Numbers: its writing lines (top, middle, base,
/// foot, top of the body), then x, y, width and height of what grid and rules take up.
BRAMLEE_EXPORT(factsOfSet) void FactsOfSet(int set);
/// Text: a list of objects, one a tile.
BRAMLEE_EXPORT(tilesOfSet) void TilesOfSet(int set);

// --- letters

/// The forms of a tile, to be added up.
enum class WebForm : std::uint8_t { Alternative = 1, Book = 2 };

/// A handle of a tile's letter; 0 for a tile that does not exist. `place`: 1 to 5 in a typed
/// number, 0 for the tile's own.
BRAMLEE_EXPORT(letterOfTile) int LetterOfTile(int set, int tile, int forms, int place, double step);
/// Lays the text out on one line, or on lines of a width above 0. Numbers: for each line handle,
/// width and how many letters, then for each letter first stroke, strokes, left, right. Text: a
/// list of {letters, leftOut}, one a line.
BRAMLEE_EXPORT(layText) void LayText(int bytes, double width, int headPerLetter, double step);
/// Sets the text on a set's sheet as large as it fits. Numbers: handle of the lines as one letter,
/// scale, right, down; none when nothing can be written. Text: a list of what was left out.
BRAMLEE_EXPORT(setText) void SetTextOn(int set, int bytes, int headPerLetter, double step);
BRAMLEE_EXPORT(freeLetter) void FreeLetter(int letter);

/// Numbers: the bounds (x, y, width, height), the whole length, then the length of each stroke.
BRAMLEE_EXPORT(shapeOf) void ShapeOfLetter(int letter);
/// Numbers: the bounds alone, from dots half a pixel apart: less exact, and ready at once.
BRAMLEE_EXPORT(roughBoundsOf) void RoughBoundsOfLetter(int letter);
/// Numbers: x and y of each point of a pen stroke.
BRAMLEE_EXPORT(pointsOf) void PointsOfStroke(int letter, int stroke);
/// Text: the SVG path of a pen stroke, or of the whole letter for stroke -1.
BRAMLEE_EXPORT(pathOf) void PathOfLetter(int letter, int stroke);
/// How many seconds the pen takes for it at that rate.
BRAMLEE_EXPORT(secondsOf) double SecondsOfLetter(int letter, double rate);
/// Numbers: for each stroke what AddNumber in letter_exports.cpp says.
BRAMLEE_EXPORT(numbersOf)
void NumbersOfLetter(int letter, double discRadius, double penHalfWidth, int leftHand);
/// Numbers: for each stroke how many dots, then x and y of each.
BRAMLEE_EXPORT(dotsOf) void DotsOfLetter(int letter, double pitch, double diameter);

// --- sheets: a page, its player and its ink

BRAMLEE_EXPORT(makeSheet) int MakeSheet();
BRAMLEE_EXPORT(freeSheet) void FreeSheet(int sheet);
/// `colour` as a ColourWord. `scale` greater than 0 and at most 1.
BRAMLEE_EXPORT(addLetter)
void AddLetter(int sheet, int letter, double colour, double scale, double right, double down);
/// The set's grid for rule 0, or its rule 1 to 5.
BRAMLEE_EXPORT(addRuling) void AddRuling(int sheet, int set, int rule, double colour, double step);
/// Takes all letters off the page and all dots off the sheet.
BRAMLEE_EXPORT(clearSheet) void ClearSheet(int sheet);

// As those of Player; `most` below 0 for all.
BRAMLEE_EXPORT(dotsDue) double DotsDue(int sheet, double atUsualPace);
BRAMLEE_EXPORT(writeDots) double WriteDots(int sheet, double most);
BRAMLEE_EXPORT(writeStroke) double WriteStrokeDots(int sheet, double most);
BRAMLEE_EXPORT(stepBack) int StepBack(int sheet);
BRAMLEE_EXPORT(stepToLetterStart) int StepToLetterStart(int sheet);
BRAMLEE_EXPORT(layRulings) void LayRulings(int sheet);
BRAMLEE_EXPORT(setRate) void SetRate(int sheet, double rate);
/// Numbers: letter, stroke, whether it is begun, whether all is written, whether between strokes,
/// how many strokes are written, the rate.
BRAMLEE_EXPORT(standsAt) void StandsAt(int sheet);
/// Numbers: for each number that is to be seen letter and stroke, then as NumbersOfLetter.
BRAMLEE_EXPORT(numbersOnSheet)
void NumbersOnSheet(int sheet, double discRadius, double penHalfWidth, int leftHand);

/// Keeps what lies within the area ready at `ratio` over that ground (a ColourWord, or below 0 for
/// none: what is no ink is transparent). Returns 0 when it is empty or too large. Numbers: width
/// and height in device pixels.
BRAMLEE_EXPORT(coverSheet)
int CoverSheet(int sheet, double x, double y, double width, double height, double ratio,
               double ground);
/// Numbers: width and height of what is covered and, within it, x, y, width and height of what
/// changed since the last call, in device pixels. Returns the pixels, 4 bytes each: red, green,
/// blue, how opaque; null when nothing is covered.
BRAMLEE_EXPORT(paintSheet) const std::uint32_t* PaintSheet(int sheet);

/// Whether the dots themselves are kept for TakeDots.
BRAMLEE_EXPORT(keepDots) void KeepDots(int sheet, int keep);
/// The dots written since the last call, x and y of each. Numbers: how many dots, then for each
/// change of the pen its first dot and the colour.
BRAMLEE_EXPORT(takeDots) const float* TakeDots(int sheet);

// --- tracers

/// Without strokes at first.
BRAMLEE_EXPORT(makeTracer) int MakeTracer(int level);
BRAMLEE_EXPORT(freeTracer) void FreeTracer(int tracer);
/// Begins anew with the strokes so far and those of a letter where it is placed.
BRAMLEE_EXPORT(addToTracer)
void AddToTracer(int tracer, int letter, double scale, double right, double down);
BRAMLEE_EXPORT(penDown) void PenDown(int tracer, double x, double y);
BRAMLEE_EXPORT(penMove) void PenMove(int tracer, double x, double y);
/// Text: what is to be said about the touch as an object, but for its progress; numbers: that.
/// Both are empty when the pen was up.
BRAMLEE_EXPORT(penUp) void PenUp(int tracer);
BRAMLEE_EXPORT(penCancel) void PenCancel(int tracer);
BRAMLEE_EXPORT(writeForChild) void WriteForChild(int tracer);
BRAMLEE_EXPORT(setLevel) void SetLevel(int tracer, int level);
BRAMLEE_EXPORT(setLeastRadius) void SetLeastRadius(int tracer, double sheetPixels);
/// Numbers: strokes, stroke, progress, misses, helped, x and y where it goes on, reach, level, pen
/// (as TracePen), help due (as TraceHelp).
BRAMLEE_EXPORT(tracerState) void TracerState(int tracer);
/// Numbers: x and y of each point of a stroke to trace, as placed.
BRAMLEE_EXPORT(guideOf) void GuideOfTracer(int tracer, int stroke);
/// Numbers: x and y of each point of the stroke that is on from where it goes on.
BRAMLEE_EXPORT(restOf) void RestOfTracer(int tracer);
/// Numbers: the arrow that shows where the way goes on in a stroke's middle, as AddArrow says.
BRAMLEE_EXPORT(arrowOf) void ArrowOfTracer(int tracer, int leftHand);

}  // namespace bramlee
