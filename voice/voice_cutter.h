// Finds the voice in what a microphone hears. Standard library only; knows no clock: time is what
// the samples take.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace bramlee {

/// A recording ends by itself after so much quiet behind the voice.
inline constexpr int kQuietEndMs = 1000;
/// It ends after so long without any voice, and after so long in all. Longer than the longest sound
/// of a board, a line of six syllables, and short enough for a microphone that only rustles.
inline constexpr int kUnheardMs = 8000;
inline constexpr int kLongestMs = 12000;

/// Why a recording is of no use.
enum class VoiceFault : std::uint8_t {
  None,
  Dead,      ///< not even noise: the microphone is off, or withheld
  Unheard,   ///< no voice
  TooQuiet,  ///< for what is around it
  TooLoud,   ///< cut off at the microphone's limit
  Endless,   ///< something goes on and on
};

/// A voice among samples.
struct VoicePart {
  VoiceFault fault = VoiceFault::Unheard;
  std::size_t begin = 0;  ///< first sample
  std::size_t end = 0;    ///< behind the last one; begin without a voice
};

/// How loud a few milliseconds are, in three bands, since a hiss is lost among the deep noises of a
/// room and a hum among the high ones. Decibels below full scale.
struct VoiceFrame {
  std::array<double, 3> bands;
  double all;
};

/// Takes in a recording of one channel and 16 bits as it comes. Room and work are bounded, whatever
/// comes and for however long: what follows the recording's end is ignored.
class VoiceCutter {
 public:
  /// For so many samples a second, 8000 at least.
  explicit VoiceCutter(int rate);

  /// Takes in the next samples. Returns whether the recording goes on: not after a second of quiet
  /// behind a voice, nor when nothing is heard for long, or too much.
  bool Take(std::span<const std::int16_t> samples);

  /// The voice in what was taken in, from its first to its last sound with what is between. Sounds
  /// far from the others that are as short as a mouse's click are none of it. A recording that was
  /// ended by hand may have no quiet around the voice.
  VoicePart Cut() const;

  int Rate() const { return rate_; }
  /// What was taken in, without what is too deep to be heard.
  const std::vector<std::int16_t>& Samples() const { return samples_; }

 private:
  /// A filter of two poles and two zeros.
  class Filter {
   public:
    enum class Passes : std::uint8_t { Low, High };
    Filter(Passes passes, double hertz, int rate);
    double Next(double sample);

   private:
    double b0_, b1_, b2_, a1_, a2_;
    double x1_ = 0, x2_ = 0, y1_ = 0, y2_ = 0;
  };

  void TakeSample(std::int16_t sample);
  void EndFrame();
  bool GoesOn();

  int rate_;
  std::size_t frameSamples_;
  Filter rumble_;
  Filter low_;
  Filter middleFrom_;
  Filter middleTo_;
  Filter high_;

  std::vector<std::int16_t> samples_;
  std::vector<VoiceFrame> frames_;
  std::array<double, 3> squares_{};  ///< of the frame that is not yet full
  double allSquares_ = 0;
  std::size_t inFrame_ = 0;
  std::size_t looked_ = 0;  ///< frames at the last look for the end
  int peak_ = 0;
  int atLimit_ = 0;  ///< samples that stand at the microphone's limit beside another such one
  bool lastAtLimit_ = false;
  bool endless_ = false;
  bool over_ = false;
};

}  // namespace bramlee
