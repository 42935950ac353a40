// Speech as it comes from the synthesiser or a microphone, made ready to be a cue.
#pragma once

#include <QByteArray>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace bramlee {

/// The loudest sample.
inline constexpr double kFullScale = 32767;

/// Speech of one channel, 16 bits a sample.
struct SpeechWave {
  int rate = 0;  ///< samples a second
  std::vector<std::int16_t> samples;
};

/// Reads a .wav file of one channel and 16 bits. Empty for any other file.
std::optional<SpeechWave> ReadWave(const QByteArray& file);

/// The .wav file of that speech.
QByteArray WriteWave(const SpeechWave& wave);

/// Takes the silence off both ends, brings the speech to -20 dB on the average with no peak above
/// -1 dB, softens its ends and puts a short silence around it. Returns no samples for speech that
/// is silent throughout.
SpeechWave MakeCue(const SpeechWave& speech);

/// The same of a voice that a microphone heard, from sample `begin` to `end`; a little of what was
/// heard before is kept for a soft beginning. Peaks that a voice may
/// have far above its average are pressed down, so that it is as loud as the others all the same.
SpeechWave MakeCueOfVoice(const SpeechWave& heard, std::size_t begin, std::size_t end);

}  // namespace bramlee
