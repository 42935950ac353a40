// A sheet of the page: letters to write, the pen that writes them, the pixels that are seen.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "ink/dot_journal.h"
#include "writing/page.h"
#include "writing/player.h"
#include "writing/rewindable_surface.h"

namespace bramlee {

/// Where the pen's dots go: to a journal, and on request to a list.
class WebInk final : public RewindableSurface {
 public:
  /// The pen had that colour from that dot on.
  struct PenChange {
    std::size_t first;
    ColourWord colour;
  };

  void PSet(float x, float y) override {
    journal_.PSet(x, y);
    if (keeps_) dots_.insert(dots_.end(), {x, y});
  }
  double Step() const override { return journal_.Step(); }
  void SetPen(ColourWord colour) override;
  void BeginRun(Primitive primitive, std::span<const double> arguments) override {
    journal_.BeginRun(primitive, arguments);
  }
  void EndRun() override { journal_.EndRun(); }
  SurfaceMark Mark() override { return journal_.Mark(); }
  bool RewindTo(SurfaceMark mark) override { return journal_.RewindTo(mark); }

  DotJournal& Journal() { return journal_; }
  void KeepDots(bool keep) { keeps_ = keep; }
  /// Hands over the dots since the last call, x and y of each; they stay until the next call.
  const std::vector<float>& TakeDots();
  /// The changes of the pen among the dots handed over.
  const std::vector<PenChange>& TakenChanges() const { return takenChanges_; }

 private:
  DotJournal journal_;
  bool keeps_ = false;
  std::vector<float> dots_;
  std::vector<PenChange> changes_;
  std::vector<float> taken_;
  std::vector<PenChange> takenChanges_;
};

class WebSheet {
 public:
  WebSheet() : player_(page_, ink_) {}

  Page& Letters() { return page_; }
  Player& Pen() { return player_; }
  WebInk& Ink() { return ink_; }

  void Clear();

  /// What of the sheet is shown, at `ratio` device pixels to a sheet pixel, over that ground;
  /// without one what is no ink is transparent. False when it is empty or has more pixels than a
  /// canvas may have.
  bool Cover(const Box& area, double ratio, std::optional<ColourWord> ground);
  PixelSize CoveredSize() { return ink_.Journal().CoveredPixels(); }
  /// Brings the pixels up to date; returns what changed.
  PixelRect Paint();
  /// Line by line, 4 bytes each: red, green, blue, how opaque.
  const std::vector<std::uint32_t>& Picture() const { return pixels_; }

 private:
  Page page_;
  WebInk ink_;
  Player player_;
  void PaintPart(const PixelRect& part);
  void PaintOver(const PixelRect& part, std::uint32_t ground, std::vector<std::uint32_t>& picture);
  void PaintWithoutGround(const PixelRect& part);

  std::optional<ColourWord> ground_;
  std::vector<std::uint32_t> pixels_;
  std::vector<std::uint32_t> overWhite_;  ///< of a sheet without ground
};

}  // namespace bramlee
