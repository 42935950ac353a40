// Contact sheets of words: each letter with each sign as laid out from strokes and in print.
#pragma once

#include <QString>
#include <string_view>

namespace bramlee {

/// Draws the sheets of a script, "hin" or "tel", into the folder: a row a consonant. Returns
/// whether they could be written.
bool DrawWordSheets(std::string_view script, const QString& folder);

}  // namespace bramlee
