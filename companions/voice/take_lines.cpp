#include "companions/voice/take_lines.h"

namespace bramlee {
namespace {

const char* TroubleLine(RecorderTrouble trouble) {
  switch (trouble) {
    case RecorderTrouble::NoMicrophone:
      return "That microphone is not there: plug it in, or choose another one.";
    case RecorderTrouble::Refused:
      return "The microphone cannot be opened: another program has it, or the system does not "
             "allow it.";
    case RecorderTrouble::Gone:
      return "The microphone is gone: plug it in, or choose another one, and record again.";
    case RecorderTrouble::None:
      break;
  }
  return nullptr;
}

const char* FaultLine(VoiceFault fault) {
  switch (fault) {
    case VoiceFault::Dead:
      return "The microphone gives no sound at all: it is switched off, muted or not allowed.";
    case VoiceFault::Unheard:
      return "No voice was heard. Is it the right microphone?";
    case VoiceFault::TooQuiet:
      return "Too quiet for the noise around: come nearer to the microphone, or speak up.";
    case VoiceFault::TooLoud:
      return "Too loud: go further from the microphone, or turn it down.";
    case VoiceFault::Endless:
      return "The voice did not end within 12 seconds: it may be too noisy around.";
    case VoiceFault::None:
      break;
  }
  return "Keep it, or record it again.";
}

}  // namespace

QString LineOf(const Recording& recording) {
  const char* trouble = TroubleLine(recording.trouble);
  return QString::fromLatin1(trouble != nullptr ? trouble : FaultLine(recording.fault));
}

}  // namespace bramlee
