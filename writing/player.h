// Writes a page on a surface, dot by dot, at whatever pace it is called.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "engine/run.h"
#include "writing/page.h"
#include "writing/rewindable_surface.h"

namespace bramlee {

/// Stands at a place on a page, at first at its start, and writes on from there. However it was
/// paused, stepped and taken back, the dots that stand on the surface are those of a plain writing
/// up to where it stands, in the same order.
///
/// It has no clock: a caller with one asks for as many dots as are due. Each run reaches the
/// surface as from the primitives: one BeginRun before its first dot, one EndRun after its last,
/// however often it pauses in between, its arguments as in the letter, wherever that is placed. The
/// player sets the pen's colour at the start of each pen stroke. It passes on what the surface
/// throws and then stands before the dot that could not be plotted. The last-point registers are
/// neither read nor changed.
class Player {
 public:
  static constexpr std::int64_t kAll = RunCursor::kAll;

  /// Writes on any surface; it cannot go back there. Page and surface outlive the player.
  Player(const Page& page, DrawingSurface& surface) : page_(page), surface_(surface) {}
  /// Writes on a surface that takes dots away again.
  Player(const Page& page, RewindableSurface& surface)
      : page_(page), surface_(surface), rewindable_(&surface) {}

  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;

  /// Whether Write() writes; it does at first.
  bool IsPlaying() const { return playing_; }
  void Pause() { playing_ = false; }
  void GoOn() { playing_ = true; }

  /// Writes the next dots, at most `most`, unless paused; returns how many. Fewer than `most` are
  /// written only when it is paused or the page ends.
  std::int64_t Write(std::int64_t most);

  /// Writes the next dots, at most `most`, but none beyond the end of the present pen stroke, or
  /// of the next one where it stands between two. Paused or not. Returns how many.
  std::int64_t WriteStroke(std::int64_t most = kAll);

  /// Writes all that is left, paused or not; returns how many dots.
  std::int64_t RunToEnd();

  /// Takes the present pen stroke away, back to its start; at the start of a stroke, takes away the
  /// stroke before. Returns false and changes nothing at the start of the page and where the
  /// surface cannot go back, or not so far. Rulings are no strokes: those that follow the letter on
  /// the page lie over what is left of it, and over each of its strokes again once that is whole.
  bool StepBack();
  /// Steps back to the start of the letter whose stroke was begun last. Returns false where it
  /// stands there already or the surface does not go back so far; what can be taken away then is.
  bool StepToLetterStart();

  /// Writes the rulings that follow the present letter at once, over what stands of it. At the end
  /// of the page it does nothing: rulings have their turn then.
  void LayRulings();

  /// Whether every dot of the page is written. It may grow and be written on.
  bool AtEnd();
  /// Whether it stands between two pen strokes, at the start or at the end.
  bool BetweenStrokes();
  /// How many pen strokes of the page's letters are written whole.
  std::size_t StrokesWritten();

  /// A place on the page.
  struct Where {
    std::size_t letter = 0;  ///< its index; the number of letters at the end
    std::size_t stroke = 0;  ///< of the letter
    bool begun = false;      ///< whether any of the stroke may be written
    bool operator==(const Where&) const = default;
  };
  /// Where it stands: at or in the pen stroke that it writes next.
  Where Stands();

  /// How fast the pen goes beside its usual pace: 1 at first. A figure that is not finite and
  /// greater than 0 is ignored.
  void SetRate(double rate);
  double Rate() const { return rate_; }
  /// How many dots are due by the rate where at the usual pace so many would be. Fractions of a
  /// dot are kept for the next call, so that nothing is lost in small slices of time.
  std::int64_t DotsDue(double atUsualPace);

 private:
  /// A place between two dots. Plain figures, as the page's letters may move in memory.
  struct Place {
    std::size_t letter = 0;
    std::size_t stroke = 0;  ///< of the letter
    std::size_t run = 0;     ///< of the stroke
  };
  /// What to go back to at the start of a stroke.
  struct StrokeBegin {
    Place place;
    SurfaceMark mark;
  };

  /// Rulings that were written before their turn, over an unfinished letter.
  struct Laid {
    SurfaceMark mark;     ///< before them
    std::size_t end = 0;  ///< the page's letter behind them
  };

  void FollowPage();
  bool FindStroke();
  const PlacedLetter& PresentLetter() const { return page_.Letters()[place_.letter]; }
  void BeginStroke();
  void EndStroke();
  void PutStrokeBeneathRulings(const Place& stroke);
  void WriteAtOnce(const PlacedLetter& letter, const PenStroke& stroke);
  std::size_t WriteRulings(std::size_t from);
  void BeginRun(const Run& run);
  void EndRun();
  std::int64_t WriteInRun(std::int64_t most);

  const Page& page_;
  DrawingSurface& surface_;
  RewindableSurface* rewindable_ = nullptr;

  std::uint64_t edition_ = page_.Edition();
  Place place_;
  bool inStroke_ = false;
  bool inRun_ = false;
  RunCursor cursor_;                 ///< of the present run
  std::vector<StrokeBegin> begins_;  ///< of the letters' strokes so far, the present one included
  std::optional<Laid> laid_;

  std::size_t strokesWritten_ = 0;

  bool playing_ = true;
  double rate_ = 1;
  double fraction_ = 0;  ///< of a dot that is due
};

}  // namespace bramlee
