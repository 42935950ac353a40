// Which files the player opens at all.
#pragma once

#include <QString>

namespace bramlee {

/// Whether that system path is a plain file that can be read and is not empty. Anything else
/// would hang the decoders (a pipe) or end in an error that says less.
bool IsPlayableFile(const QString& file);

/// Whether the file's name says that it has pictures.
bool IsPictureFile(const QString& file);

}  // namespace bramlee
