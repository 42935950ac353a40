// Judges a child that traces a letter, while its pen moves.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "strokes/letter.h"
#include "writing/guide_path.h"
#include "writing/page.h"
#include "writing/trace_touch.h"

namespace bramlee {

/// How near to the stroke the pen must keep.
enum class TraceLevel : std::uint8_t { Strict, Normal, Gentle, Toddler };

inline constexpr TraceLevel kTraceLevels[] = {TraceLevel::Strict, TraceLevel::Normal,
                                              TraceLevel::Gentle, TraceLevel::Toddler};

/// Half a corridor is never less than this on a screen, in millimetres: a child's finger or hand
/// misses by so much on any screen. See Tracer::SetLeastRadius.
inline constexpr double kLeastRadiusMm = 4;

/// The help that is due after a miss: a touch that is neither Done nor Resume.
enum class TraceHelp : std::uint8_t {
  None,
  Pulse,    ///< miss 1: the place to begin at pulses, an arrow stands there
  Show,     ///< miss 2: the pen shows the stroke once, slowly
  Wider,    ///< miss 3: from now on the corridor is half as wide again
  Written,  ///< miss 4: the stroke is written for the child, the next one is on
};

/// Where the pen is.
enum class TracePen : std::uint8_t {
  Up,
  OnWay,      ///< it follows the stroke
  Astray,     ///< it left the stroke: it marks no more, an arrow stands at Tracer::PlaceToGoOn()
  Elsewhere,  ///< it came down away from the stroke
};

// The names as the command line and settings have them, such as "normal", "elsewhere", "pulse".
const char* NameOf(TraceLevel level);
const char* NameOf(TraceVerdict verdict);
const char* NameOf(TraceHelp help);
/// The level of that name, if any.
std::optional<TraceLevel> TraceLevelNamed(std::string_view name);

/// A stroke to trace.
struct GuideStroke {
  std::vector<Point> points;  ///< in the direction of the pen, in sheet pixels
  /// A hundredth of its letter's size, in sheet pixels: what a child's hand misses by grows with
  /// what it writes. 1 in place of one that is not finite and above 0.
  double unit = 1;
};

/// The pen strokes of a letter where it is placed. Those of several letters one after the other are
/// a word.
std::vector<GuideStroke> GuideOf(const Letter& letter, const Placing& placing = {});

/// What is to be said about a touch.
struct TraceJudgement {
  std::size_t stroke = 0;  ///< the index of the stroke that it was meant for
  TraceVerdict verdict = TraceVerdict::Done;
  double progress = 0;               ///< how much of that is written, 0 to 1; 1 when it is done
  int misses = 0;                    ///< of that stroke so far, 0 to 4
  TraceHelp help = TraceHelp::None;  ///< what this touch adds; None after Done and Resume
  bool operator==(const TraceJudgement&) const = default;
};

/// Leads a child through the strokes of a letter, or a word, one by one in their order: a stroke
/// can be begun when the one before is done, by the child or for it. A stroke may be written in
/// several touches: the pen comes down near where the last one ended, or on what is written
/// already, or at the stroke's start, and is followed from there.
///
/// It has no clock: points may come at any rate, and the verdict hardly depends on it. Places are
/// in sheet pixels; one that is not finite is ignored. A value: a copy goes on by itself.
class Tracer {
 public:
  /// Nothing to trace; finished.
  Tracer() = default;
  /// Strokes without points are passed over; the others keep their index.
  explicit Tracer(std::vector<GuideStroke> strokes, TraceLevel level = TraceLevel::Normal);

  /// The pen comes down. A touch whose end was lost is taken back as by Cancel().
  void Down(const Point& place);
  /// The pen moves. Ignored while it is up.
  void Move(const Point& place);
  /// The pen is lifted where it was last; says what the touch came to. Nothing when it was up.
  std::optional<TraceJudgement> Up();
  /// The touch is taken back: it was a palm, or its end will never come. No miss.
  void Cancel() { touch_.reset(); }
  /// Writes the stroke that is on for the child and counts it as helped. A touch is taken back.
  void WriteForChild();

  TraceLevel Level() const { return level_; }
  /// Takes effect at once, for the touch under way too.
  void SetLevel(TraceLevel level);
  /// Half the corridor's width is never less than this, in sheet pixels; 0 at first. A small letter
  /// on a small screen asks for no more than a finger can do. A figure that is not finite is
  /// ignored.
  void SetLeastRadius(double sheetPixels);

  std::span<const GuideStroke> Strokes() const { return strokes_; }
  /// The index of the stroke that is on; Strokes().size() when there is none left.
  std::size_t Stroke() const { return stroke_; }
  bool IsFinished() const { return stroke_ == strokes_.size(); }
  /// How much of the stroke that is on is written, 0 to 1, with what the touch under way has added
  /// so far; 0 when finished.
  double Progress() const;
  /// Where the stroke goes on: its start at first; while the pen is down, as far as that has
  /// followed. (0, 0) when finished.
  Point PlaceToGoOn() const;
  /// How far from there the pen may come down, in sheet pixels; 0 when finished.
  double Reach() const;
  TracePen Pen() const;
  /// Of the stroke that is on, 0 to 3.
  int Misses() const { return misses_; }
  /// What the misses of the stroke that is on ask for.
  TraceHelp HelpDue() const { return static_cast<TraceHelp>(misses_); }
  /// How many strokes were written for the child.
  int Helped() const { return helped_; }

 private:
  void BeginStroke(std::size_t stroke);
  Point InUnits(const Point& place) const;
  std::size_t Reached() const;
  TraceRule Rule() const;

  std::vector<GuideStroke> strokes_;
  TraceLevel level_ = TraceLevel::Normal;
  double leastRadius_ = 0;  ///< in sheet pixels
  int helped_ = 0;

  // The stroke that is on. Its way is in its own unit.
  std::size_t stroke_ = 0;
  GuidePath path_;
  GuidePath next_;           ///< the stroke after that, in the unit of this one
  std::size_t written_ = 0;  ///< the index of the point as far as which it is written
  int misses_ = 0;
  std::optional<TraceTouch> touch_;
};

}  // namespace bramlee
