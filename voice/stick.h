// All recordings of one's own on a stick, so that a school makes them once.
#pragma once

#include <QString>
#include <functional>
#include <stop_token>

#include "voice/own_sounds.h"

namespace bramlee {

/// The folder on a stick.
inline constexpr char kStickFolder[] = "bramlee-own-voice";

/// How a copy ended.
struct Copied {
  int sounds = 0;  ///< as many are there now
  QString error;   ///< a line for people; empty for none
};

/// Is called with how many of how many are done.
using CopyProgress = std::function<void(int done, int of)>;

/// Copies all recordings into the stick's folder, whose place `stick` names. Each file there is
/// whole at any moment; other files stay.
Copied CopyToStick(const OwnSounds& own, const QString& stick, const CopyProgress& progress,
                   const std::stop_token& stop);

/// Takes over all recordings of the stick's folder; `stick` is its place or itself. Each becomes a
/// sound's own voice as if it were recorded here. Files that are no recording of a board's sound
/// are left.
Copied TakeFromStick(const OwnSounds& own, const QString& stick, const CopyProgress& progress,
                     const std::stop_token& stop);

}  // namespace bramlee
