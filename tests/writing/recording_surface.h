// A surface that remembers all calls and can take the latest ones back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/primitives.h"
#include "tests/recorder.h"
#include "writing/page.h"
#include "writing/rewindable_surface.h"

namespace bramlee {

// Colours that a page may have.
inline constexpr std::uint32_t kRed = 0x0000FF;
inline constexpr std::uint32_t kBlue = 0xFF0000;

struct ColouredDot {
  Dot dot;
  std::uint32_t colour = 0;
  std::size_t run = 0;  ///< counted from the start of the page
  bool operator==(const ColouredDot&) const = default;
};

/// Remembers the dots, and whether the calls come in a right order.
class RecordingSurface : public RewindableSurface {
 public:
  void PSet(float x, float y) override {
    if (!inRun_) errors += "a dot outside of a run; ";
    dots.push_back({
        {x, y},
        colour_, runs_.size()
    });
  }
  double Step() const override { return kStepOfNobody; }
  void SetPen(std::uint32_t colour) override { colour_ = colour; }
  void BeginRun(Primitive primitive, std::span<const double> arguments) override {
    if (inRun_) errors += "a run begins within another; ";
    inRun_ = true;
    runs_.push_back(MakeRun(primitive, arguments));
  }
  void EndRun() override {
    if (!inRun_) errors += "no run to end; ";
    inRun_ = false;
  }

  SurfaceMark Mark() override {
    if (inRun_) errors += "a mark within a run; ";
    kept_.push_back({.dots = dots.size(), .runs = runs_.size()});
    return {kept_.size() - 1};
  }
  bool RewindTo(SurfaceMark mark) override {
    if (mark.at >= kept_.size()) {
      errors += "a mark that holds no longer; ";
      return false;
    }
    if (mark.at < forgotten) return false;
    ++rewinds;
    dots.resize(kept_[mark.at].dots);
    runs_.resize(kept_[mark.at].runs);
    kept_.resize(mark.at + 1);
    inRun_ = false;
    colour_ = 0xBAD;  // it is set anew before the next dot
    return true;
  }

  bool IsInRun() const { return inRun_; }
  const std::vector<Run>& Runs() const { return runs_; }

  std::vector<ColouredDot> dots;
  std::string errors;
  std::size_t forgotten = 0;  ///< marks before this one are not there any more
  int rewinds = 0;            ///< how often it went back

 private:
  static constexpr double kStepOfNobody = 123;  // letters bring their own

  struct Kept {
    std::size_t dots;
    std::size_t runs;
  };
  std::vector<Kept> kept_;
  std::vector<Run> runs_;
  std::uint32_t colour_ = 0xBAD;
  bool inRun_ = false;
};

/// The letter as a board writes it at that step.
inline Letter LetterAt(std::string_view set, int tile, double step) {
  StrokeRec rec = FillStrokeRec(FindLetterSet(set)->sheet, static_cast<std::int16_t>(tile));
  return RecordLetter({.set = set, .tile = tile, .form = {}}, FindLetterSet(set)->write, rec, step);
}

/// What the page's letters come to by the primitives alone.
inline std::vector<ColouredDot> PlainDots(const Page& page) {
  std::vector<ColouredDot> all;
  std::size_t run = 0;
  for (const PlacedLetter& placed : page.Letters()) {
    for (const Run& each : placed.letter.Runs()) {
      Recorder sheet(placed.letter.Step());
      WriteRun(sheet, each);
      ++run;
      for (const Dot& dot : sheet.dots) all.push_back({dot, placed.colour, run});
    }
  }
  return all;
}

}  // namespace bramlee
