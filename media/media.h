// What the program calls in this folder at its start.
#pragma once

namespace bramlee {

/// Registers PlayerForm. Loads no media code.
void RegisterMedia();

/// Has the sound library take stock of its plug-ins, which takes a second once a user, in a process
/// of its own that ends by itself or with this one. Returns at once and loads nothing; to be called
/// when the first window stands. Without the program that does it (bramlee-sound-scan, beside this
/// one) the first cue waits for that second.
void ScanSoundLibrary();

/// Gets the sound ready on its own thread, so that the first cue is as quick as any later one.
/// Returns at once and loads no form; a second call does nothing. What it loads takes more memory
/// than the rest of the program: call it when sounds are expected, not at the start.
void WarmUpPlayer();

}  // namespace bramlee
