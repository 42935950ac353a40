// What bramlee-strokes was asked for.
#pragma once

#include <QString>
#include <QStringList>

#include "strokes/pen_strokes.h"
#include "tools/letters/letter_arguments.h"
#include "tools/letters/tool.h"
#include "tools/strokes/film_options.h"

namespace bramlee {

inline constexpr Tool kTool("bramlee-strokes");

/// A request that can be carried out.
struct Request : LetterRequest {
  double step = kUsualStep;
  bool penStrokes = false;     ///< whether pen strokes are asked for, rather than runs
  QString svg;                 ///< the file for the letter as SVG; empty for none
  QString png;                 ///< the file for the letter as PNG; empty for none
  QString word;                ///< a text instead of a tile's letter; empty for none
  bool headPerLetter = false;  ///< of a word: the head line over each letter
  double scale = 1;            ///< of the PNG: its pixels to a sheet pixel
  FilmRequest film;
};

/// What the arguments come to: a text to print (help, version), an error of one line, or, when
/// both are empty, a request.
struct Parsed {
  Request request;
  QString text;
  QString error;
};

/// Reads a command line; its first element is the program's name.
Parsed ParseArguments(const QStringList& arguments);

}  // namespace bramlee
