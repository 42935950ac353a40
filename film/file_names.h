// What the files of a letter are called.
#pragma once

#include <QString>

#include "strokes/pen_strokes.h"

namespace bramlee {

/// The name of a letter's file, without what it ends in: "hinc-03-ग". Names sort as the tiles of
/// their set do, and every file system takes them: a sign that some do not take stands as its name.
/// A letter that stands otherwise in the book says so where it is that form. The Hindi consonants'
/// half forms and those with the foot stroke count anew: "hinc-half-03-ग्‍".
QString FileNameOf(const LetterId& id);

/// The name of a word's file, which is the `number`-th word of an export, from 1: "word-02-राम".
/// Blanks and signs that some file systems refuse are dashes; a long word is cut.
QString WordFileName(const QString& word, int number);

/// The same for the picture of a step, from 1 on, of so many: "hinc-03-ग-2".
QString StepName(const QString& letter, int step, int steps);

}  // namespace bramlee
