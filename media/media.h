// What the program tells this folder at its start.
#pragma once

namespace bramlee {

/// Makes PlayerForm known. Loads no media code.
void RegisterMedia();

/// Gets the sound ready on its own thread, so that the first cue is as quick as any later one.
/// Returns at once and loads no form; a second call does nothing. What it loads weighs more than
/// the rest of the program: to be called when sounds are to be expected, not at the start.
void WarmUpPlayer();

}  // namespace bramlee
