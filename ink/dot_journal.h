// The dots of a sheet, kept so that any part of it can be shown at any size.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "ink/planes.h"
#include "writing/rewindable_surface.h"

namespace bramlee {

/// Takes dots and shows them as smooth-edged discs of kDrawWidth at any pixel ratio.
///
/// Dots of a run lie a hundredth of a pixel apart. A journal keeps those that change the picture
/// and leaves the others out. Pictures, and what a window shows, are stamped from the journal and
/// can be made anew at any time, so the same dots give the same picture wherever and however fast
/// they were written. It does not grow with letters that are written again: it drops a dot once a
/// later one lies exactly on it.
class DotJournal : public RewindableSurface {
 public:
  /// `step`: what Step() returns, greater than 0.
  explicit DotJournal(double step = 0.01) : step_(step) {}

  void PSet(float x, float y) final {
    const float along = (x - lastX_) * directionX_ + (y - lastY_) * directionY_;
    const float across = (x - lastX_) * directionY_ - (y - lastY_) * directionX_;
    // One test for both, as nearly every dot ends here.
    if ((along >= heldAlong_) & (along <= kSpacing) & (across * across < kStray * kStray)) {
      heldX_ = x;
      heldY_ = y;
      heldAlong_ = along;
      return;
    }
    Turn(x, y);
  }

  double Step() const override { return step_; }
  void SetStep(double step) { step_ = step; }
  void BeginRun(Primitive /*primitive*/, std::span<const double> /*arguments*/) override {
    Flush();
  }
  void EndRun() override { Flush(); }

  /// The colour of the dots to come; red at first. Never throws, so that a pen can be put back when
  /// memory has run out.
  ColourWord Colour() const { return colour_; }
  void SetPen(ColourWord colour) noexcept override;

  /// Takes every dot away; no mark is left.
  void Wipe();

  // --- marks: places in the journal that one can go back to, until a wipe
  SurfaceMark Mark() override;
  /// The pen has the colour of then.
  bool RewindTo(SurfaceMark mark) override;
  /// Drops all marks, so that dots which later ones cover can be forgotten. A dot before a mark is
  /// kept as long as the mark stands, whatever is written over it.
  void DropMarks() { marks_.clear(); }

  /// Paints all dots over what stands in a picture: what lies within `area` (sheet pixels) at
  /// `ratio` device pixels to a sheet pixel. The picture has SizeOf(area, ratio). Returns false
  /// when there is no memory for it, with nothing painted.
  bool PaintAll(const Box& area, double ratio, const Pixels& picture) const;
  /// What `area` at `ratio` comes to, in device pixels.
  static PixelSize SizeOf(const Box& area, double ratio) { return Planes::SizeOf(area, ratio); }

  // --- what a window shows: kept ready, so that each frame costs only what is new

  /// Keeps what lies within `area` ready at `ratio`. Asked for the same again it does nothing.
  /// Returns false when there is no memory for it: nothing is covered then.
  bool Cover(const Box& area, double ratio) noexcept;
  /// Size of what is covered, in device pixels.
  PixelSize CoveredPixels() const { return planes_ ? planes_->Size() : PixelSize(); }
  /// Where the covered part has changed since the last call, in device pixels.
  PixelRect TakeDirtyPixels();
  /// Paints a part of what is covered into the same place of a picture of CoveredPixels(), over
  /// what stands there.
  void Compose(const Pixels& picture, const PixelRect& part) noexcept;

  /// How many dots the journal holds.
  std::size_t KeptDots() const { return dots_.size(); }

 private:
  /// How far apart kept dots of a run may lie, in sheet pixels. The notch between two discs is
  /// spacing * spacing / 40 deep: a 240th of a pixel.
  static constexpr float kSpacing = 0.41F;
  /// How far a dot that is left out may lie beside the line of the others, in sheet pixels.
  static constexpr float kStray = 0.04F;
  /// Dots nearer than this to the last kept one give no direction yet, in sheet pixels.
  static constexpr float kNear = 0.02F;
  static constexpr float kNever = 1e30F;
  /// As many dots are kept before covered ones are looked for: a hundred letters.
  static constexpr std::size_t kManyDots = 1 << 17;

  struct Dot {
    float x;
    float y;
  };
  /// Dots of one colour, up to the next stretch's first.
  struct Stretch {
    ColourWord colour;
    std::size_t first;
  };

  /// Takes a dot that is not left out. Throws std::bad_alloc when there is no memory for it.
  void Turn(float x, float y);
  void Flush() noexcept;
  void MakeRoom();
  void Keep(float x, float y);
  void ForgetCovered();
  std::size_t EndOf(std::size_t stretch) const {
    return stretch + 1 < stretches_.size() ? stretches_[stretch + 1].first : dots_.size();
  }
  void ReplayInto(Planes& planes) const;
  template <class Change>
  void ChangePlanes(Change change) noexcept;

  /// A mark and what stood then.
  struct MarkedPlace {
    std::uint64_t serial;
    std::size_t dots;
    ColourWord colour;
  };

  double step_;
  ColourWord colour_ = kPenColour;

  bool atWork_ = false;  ///< whether last is the last kept dot of a run not yet ended
  float lastX_ = 0;
  float lastY_ = 0;
  bool held_ = false;  ///< whether a dot waits for the next one, which decides if it is needed
  float heldX_ = 0;
  float heldY_ = 0;
  float heldAlong_ = kNever;  ///< how far the held dot lies along the direction
  float directionX_ = 0;
  float directionY_ = 0;

  std::vector<Dot> dots_;
  std::vector<Stretch> stretches_;
  std::vector<MarkedPlace> marks_;  ///< in the order of their making
  std::uint64_t marksMade_ = 0;
  std::size_t forgetAt_ = kManyDots;  ///< how many dots make it worth to look for covered ones
  std::optional<Planes> planes_;
};

}  // namespace bramlee
