#include "voice/voice_cutter.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <numbers>

#include "voice/speech_wave.h"

namespace bramlee {
namespace {

constexpr int kFrameMs = 5;
constexpr std::size_t kLookEvery = 20;  ///< frames between two looks for the end
constexpr std::size_t kBands = 3;

// Where the bands part, in Hz: below lies what makes a voice sound, above what hisses. What is
// deeper than the first is no voice at all.
constexpr double kRumble = 70;
constexpr double kLowTo = 1000;
constexpr double kHighFrom = 3500;

constexpr int kLimit = 32600;  ///< samples from here on are as high as they can be
constexpr int kMostAtLimit = 30;
constexpr double kLeastPower = 1e-9;  ///< of a sample of 1

/// Frames over which a level is smoothed; half of them lie ahead.
constexpr std::size_t kSmooth = 4;

// How far above the noise's own level a sound is one, in decibels: for a band of few frequencies
// more, as its noise is more uneven.
struct Margins {
  std::array<double, kBands> least;
  double spreads;  ///< of the noise
};
constexpr Margins kWeak = {
    .least = {5, 3, 1.5},
      .spreads = 4.5
};
constexpr Margins kStrong = {
    .least = {11, 9, 8},
      .spreads = 6
};

// Below the voice's level, in decibels, what is beside it can no longer be heard.
constexpr double kAudible = 35;

constexpr double kLeastLevel = -50;
constexpr double kLeastAboveNoise = 10;
constexpr double kPlainVoice = -40;

constexpr std::size_t InFrames(int ms) {
  return static_cast<std::size_t>(ms / kFrameMs);
}

constexpr std::size_t kNoiseFrames = InFrames(400);
constexpr std::size_t kEarFrames = InFrames(300);
constexpr std::size_t kLeastVoice = InFrames(60);
constexpr std::size_t kLeastHint = InFrames(150);
constexpr std::size_t kLeastStrong = InFrames(10);
constexpr std::size_t kLeastWeak = InFrames(20);
constexpr std::size_t kWeakGap = InFrames(130);
constexpr std::size_t kDyingAway = InFrames(20);  ///< of a word's end below all noise
constexpr std::size_t kClick = InFrames(45);
constexpr std::size_t kClickGap = InFrames(350);

double Decibels(double power) {
  return 10 * std::log10(std::max(power, kLeastPower));
}

/// The frames' levels in decibels, smoothed, from `first` on.
struct Levels {
  std::array<std::vector<double>, kBands> bands;
  std::vector<double> all;
  std::size_t first = 0;  ///< the frame that levels[0] are of

  std::size_t Count() const { return all.size(); }
};

template <class PowerOf>
std::vector<double> Smoothed(std::span<const VoiceFrame> frames, PowerOf powerOf) {
  std::vector<double> levels(frames.size());
  for (std::size_t i = 0; i < frames.size(); ++i) {
    const std::size_t from = i - std::min(i, kSmooth / 2);
    const std::size_t to = std::min(frames.size(), i + kSmooth / 2);
    double power = 0;
    for (std::size_t j = from; j < to; ++j) power += powerOf(frames[j]);
    levels[i] = Decibels(power / static_cast<double>(to - from));
  }
  return levels;
}

/// Without what a microphone gives while it wakes up: nothing at all.
Levels LevelsOf(std::span<const VoiceFrame> frames) {
  Levels levels;
  const auto awake = std::find_if(frames.begin(), frames.end(),
                                  [](const VoiceFrame& frame) { return frame.all > kLeastPower; });
  levels.first = static_cast<std::size_t>(awake - frames.begin());
  const std::span<const VoiceFrame> heard = frames.subspan(levels.first);
  for (std::size_t band = 0; band < kBands; ++band) {
    levels.bands[band] =
        Smoothed(heard, [band](const VoiceFrame& frame) { return frame.bands[band]; });
  }
  levels.all = Smoothed(heard, [](const VoiceFrame& frame) { return frame.all; });
  return levels;
}

/// What is heard without a voice.
struct Noise {
  std::array<double, kBands> median{};
  std::array<double, kBands> spread{};
  double all = 0;
};

double MeanOf(std::span<const double> levels) {
  double sum = 0;
  for (const double level : levels) sum += level;
  return sum / static_cast<double>(levels.size());
}

double MedianOf(std::span<const double> levels) {
  std::vector<double> sorted(levels.begin(), levels.end());
  const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
  std::nth_element(sorted.begin(), middle, sorted.end());
  return *middle;
}

/// How far levels lie below their median: those above it may be no noise.
double SpreadOf(std::span<const double> levels, double median) {
  double squares = 0;
  int below = 0;
  for (const double level : levels) {
    if (level > median) continue;
    squares += (level - median) * (level - median);
    ++below;
  }
  return std::sqrt(squares / below);
}

/// Where the quietest stretch of so many frames begins.
std::size_t QuietestOf(const Levels& levels, std::size_t frames) {
  std::vector<double> sums(levels.Count() + 1);
  for (std::size_t i = 0; i < levels.Count(); ++i) {
    sums[i + 1] = sums[i] + levels.bands[0][i] + levels.bands[1][i] + levels.bands[2][i];
  }
  std::size_t quietest = 0;
  for (std::size_t i = 0; i + frames <= levels.Count(); ++i) {
    const double sum = sums[i + frames] - sums[i];
    if (sum < sums[quietest + frames] - sums[quietest]) quietest = i;
  }
  return quietest;
}

/// The noise in the quietest stretch. There has to be a frame.
Noise NoiseOf(const Levels& levels, std::size_t frames) {
  frames = std::clamp<std::size_t>(frames, 1, levels.Count());
  const std::size_t from = QuietestOf(levels, frames);
  Noise noise;
  for (std::size_t band = 0; band < kBands; ++band) {
    const auto quiet = std::span(levels.bands[band]).subspan(from, frames);
    noise.median[band] = MedianOf(quiet);
    noise.spread[band] = SpreadOf(quiet, noise.median[band]);
  }
  noise.all = MedianOf(std::span(levels.all).subspan(from, frames));
  return noise;
}

bool IsAbove(const Levels& levels, std::size_t at, const Noise& noise, const Margins& margins) {
  for (std::size_t band = 0; band < kBands; ++band) {
    const double margin = std::max(margins.least[band], margins.spreads * noise.spread[band]);
    if (levels.bands[band][at] > noise.median[band] + margin) return true;
  }
  return false;
}

bool IsStrong(const Levels& levels, std::size_t at, const Noise& noise) {
  return IsAbove(levels, at, noise, kStrong);
}

/// The mean level of what stands out.
double VoiceLevel(const Levels& levels, const Noise& noise) {
  double power = 0;
  int frames = 0;
  for (std::size_t i = 0; i < levels.Count(); ++i) {
    if (!IsStrong(levels, i, noise)) continue;
    power += std::pow(10, levels.all[i] / 10);
    ++frames;
  }
  return frames == 0 ? Decibels(0) : Decibels(power / frames);
}

/// Frames that stand out without a break.
struct Run {
  std::size_t begin;
  std::size_t end;
  std::size_t strong;  ///< as many of them stand out plainly

  std::size_t Length() const { return end - begin; }
  bool IsSolid() const { return strong >= kLeastStrong; }
};

std::vector<Run> RunsOf(const Levels& levels, const Noise& noise, double audible) {
  std::vector<Run> runs;
  bool inRun = false;
  for (std::size_t i = 0; i < levels.Count(); ++i) {
    const bool stands = levels.all[i] >= audible && IsAbove(levels, i, noise, kWeak);
    if (stands && !inRun) runs.push_back({.begin = i, .end = i, .strong = 0});
    inRun = stands;
    if (!stands) continue;
    runs.back().end = i + 1;
    if (IsStrong(levels, i, noise)) ++runs.back().strong;
  }
  return runs;
}

/// Takes off what is short and far from the rest: a click of the mouse, a smack of the lips.
void DropClicks(std::vector<Run>& solid) {
  const auto isClick = [](const Run& run, std::size_t gap) {
    return run.Length() <= kClick && gap > kClickGap;
  };
  while (solid.size() > 1 && isClick(solid[0], solid[1].begin - solid[0].end)) {
    solid.erase(solid.begin());
  }
  while (solid.size() > 1 &&
         isClick(solid.back(), solid.back().begin - solid[solid.size() - 2].end)) {
    solid.pop_back();
  }
}

/// Adds the soft sounds that a word begins or ends with.
Run WithSoftEnds(Run word, const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    const bool follows = run.begin >= word.end && run.begin - word.end <= kWeakGap;
    if (follows && run.Length() >= kLeastWeak) word.end = run.end;
  }
  for (auto run = runs.rbegin(); run != runs.rend(); ++run) {
    const bool leads = run->end <= word.begin && word.begin - run->end <= kWeakGap;
    if (leads && run->Length() >= kLeastWeak) word.begin = run->begin;
  }
  return word;
}

std::size_t TotalOf(const std::vector<Run>& runs) {
  std::size_t total = 0;
  for (const Run& run : runs) total += run.Length();
  return total;
}

}  // namespace

// After "Cookbook formulae for audio EQ biquad filter coefficients", with a quality of 0.7071.
VoiceCutter::Filter::Filter(Passes passes, double hertz, int rate) {
  const double w = 2 * std::numbers::pi * std::min(hertz, 0.45 * rate) / rate;
  const double cosine = std::cos(w);
  const double alpha = std::sin(w) / std::numbers::sqrt2;
  const double a0 = 1 + alpha;
  const double edge = passes == Passes::Low ? 1 - cosine : 1 + cosine;
  b0_ = b2_ = edge / 2 / a0;
  b1_ = (passes == Passes::Low ? edge : -edge) / a0;
  a1_ = -2 * cosine / a0;
  a2_ = (1 - alpha) / a0;
}

double VoiceCutter::Filter::Next(double sample) {
  const double y = b0_ * sample + b1_ * x1_ + b2_ * x2_ - a1_ * y1_ - a2_ * y2_;
  x2_ = x1_;
  x1_ = sample;
  y2_ = y1_;
  y1_ = y;
  return y;
}

VoiceCutter::VoiceCutter(int rate)
    : rate_(std::max(rate, 8000)),
      frameSamples_(static_cast<std::size_t>(rate_) * kFrameMs / 1000),
      rumble_(Filter::Passes::High, kRumble, rate_),
      low_(Filter::Passes::Low, kLowTo, rate_),
      middleFrom_(Filter::Passes::High, kLowTo, rate_),
      middleTo_(Filter::Passes::Low, kHighFrom, rate_),
      high_(Filter::Passes::High, kHighFrom, rate_) {}

bool VoiceCutter::Take(std::span<const std::int16_t> samples) {
  for (const std::int16_t sample : samples) {
    if (over_) return false;
    TakeSample(sample);
  }
  return !over_;
}

void VoiceCutter::TakeSample(std::int16_t sample) {
  const int height = std::abs(int{sample});
  peak_ = std::max(peak_, height);
  const bool atLimit = height >= kLimit;
  if (atLimit && lastAtLimit_) ++atLimit_;
  lastAtLimit_ = atLimit;

  const double heard = rumble_.Next(sample);
  const double bands[kBands] = {low_.Next(heard), middleTo_.Next(middleFrom_.Next(heard)),
                                high_.Next(heard)};
  for (std::size_t i = 0; i < kBands; ++i) squares_[i] += bands[i] * bands[i];
  allSquares_ += heard * heard;
  samples_.push_back(
      static_cast<std::int16_t>(std::lround(std::clamp(heard, -kFullScale, kFullScale))));
  if (++inFrame_ == frameSamples_) EndFrame();
}

void VoiceCutter::EndFrame() {
  const double full = kFullScale * kFullScale * static_cast<double>(frameSamples_);
  VoiceFrame frame{.bands = {}, .all = allSquares_ / full};
  for (std::size_t i = 0; i < kBands; ++i) frame.bands[i] = squares_[i] / full;
  frames_.push_back(frame);
  squares_ = {};
  allSquares_ = 0;
  inFrame_ = 0;
  if (frames_.size() < looked_ + kLookEvery) return;
  looked_ = frames_.size();
  over_ = !GoesOn();
}

/// Looks through all again: as long as the voice goes on, nobody knows how quiet it will be.
bool VoiceCutter::GoesOn() {
  if (frames_.size() >= InFrames(kLongestMs)) {
    endless_ = true;
    return false;
  }
  const Levels levels = LevelsOf(frames_);
  if (levels.Count() < kEarFrames) return frames_.size() < InFrames(kUnheardMs);
  const Noise noise = NoiseOf(levels, kEarFrames);
  std::size_t voice = 0;
  std::size_t lastVoice = 0;
  for (std::size_t i = 1; i < levels.Count(); ++i) {
    if (!IsStrong(levels, i, noise) || !IsStrong(levels, i - 1, noise)) continue;
    ++voice;
    lastVoice = i;
  }
  if (voice < kLeastVoice) return frames_.size() < InFrames(kUnheardMs);
  return levels.Count() - lastVoice < InFrames(kQuietEndMs);
}

VoicePart VoiceCutter::Cut() const {
  if (peak_ <= 1) return {.fault = VoiceFault::Dead};
  const Levels levels = LevelsOf(frames_);
  if (levels.Count() == 0) return {.fault = VoiceFault::Unheard};
  const Noise noise = NoiseOf(levels, kNoiseFrames);
  const double level = VoiceLevel(levels, noise);
  const std::vector<Run> runs = RunsOf(levels, noise, level - kAudible);
  std::vector<Run> solid;
  std::copy_if(runs.begin(), runs.end(), std::back_inserter(solid),
               [](const Run& run) { return run.IsSolid(); });
  DropClicks(solid);
  if (endless_ && !solid.empty()) return {.fault = VoiceFault::Endless};
  if (TotalOf(solid) < kLeastVoice) {
    const double whole = MeanOf(levels.all);
    if (!over_ && whole > kPlainVoice && atLimit_ < kMostAtLimit) {
      return {.fault = VoiceFault::None, .begin = 0, .end = samples_.size()};
    }
    const bool hint = TotalOf(runs) >= kLeastHint;
    return {.fault = hint ? VoiceFault::TooQuiet : VoiceFault::Unheard};
  }
  const Run word =
      WithSoftEnds({.begin = solid.front().begin, .end = solid.back().end, .strong = 0}, runs);
  VoicePart part{.fault = VoiceFault::None,
                 .begin = (levels.first + word.begin) * frameSamples_,
                 .end = (levels.first + word.end + kDyingAway) * frameSamples_};
  part.end = std::min(part.end, samples_.size());
  if (level < kLeastLevel || level - noise.all < kLeastAboveNoise)
    part.fault = VoiceFault::TooQuiet;
  if (atLimit_ >= kMostAtLimit) part.fault = VoiceFault::TooLoud;
  return part;
}

}  // namespace bramlee
