// A letter as data.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/run.h"
#include "letters/letter_sets.h"
#include "strokes/letter_shape.h"
#include "strokes/pen_strokes.h"

namespace bramlee {

/// What a letter is once it has been written: its runs in writing order, and which of them are
/// one movement of the hand. A value: copies are letters of their own.
class Letter {
 public:
  /// A letter without runs.
  Letter() = default;
  /// The letter of these runs, as its program wrote them at that step. `id` says which letter it
  /// is; without a set it is none that has a name, such as the rules of a sheet.
  Letter(const LetterId& id, double step, std::vector<Run> runs);
  /// Runs whose pen strokes are known, which together hold every run: several letters as one that
  /// say `text`, UTF-8, each about so large (sheet pixels).
  Letter(double step, std::vector<Run> runs, std::vector<PenStroke> penStrokes, double size,
         std::string text = {});

  const LetterId& Id() const { return id_; }
  /// What a word says, UTF-8; empty for a letter that Id() names.
  const std::string& Text() const { return text_; }
  /// The step that its runs were recorded at, and are to be written at.
  double Step() const { return step_; }
  std::span<const Run> Runs() const { return runs_; }
  /// The pen strokes in writing order; together they hold every run.
  std::span<const PenStroke> PenStrokes() const { return penStrokes_; }

  /// Its points, bounds and lengths; worked out when first asked for.
  const LetterShape& Shape() const;
  /// Around all its dots, without the pen's width.
  const Box& Bounds() const { return Shape().bounds; }
  /// How far the pen goes on the sheet, in sheet pixels.
  double Length() const { return Shape().length; }
  /// How large a letter a hand writes here, in sheet pixels: the longer side of its box, or, of
  /// several as one, about that of each.
  double Size() const;

 private:
  LetterId id_;
  std::string text_;
  double step_ = kUsualStep;
  std::vector<Run> runs_;
  std::vector<PenStroke> penStrokes_;
  double sizeOfEach_ = 0;  ///< of several letters; 0 for one
  mutable std::optional<LetterShape> shape_;
};

/// The letter of a tile, as a board just opened writes it: at kUsualStep, from cleared registers.
/// Recorded when it is first asked for; the registers stay as they are. A set that does not exist
/// or a tile outside of it gives a letter without runs. Valid as long as the program runs.
const Letter& LetterOf(const LetterId& id);

/// The letter of a tile at another step, recorded anew, from cleared registers; they are left as
/// its program leaves them. Without runs like LetterOf.
Letter RecordTile(const LetterId& id, double step);

/// Runs a letter's program once on the record and takes its runs down, as a surface of that step
/// would have them. Starts from the registers as they are and leaves them as the program does.
Letter RecordLetter(const LetterId& id, WriteLetter program, StrokeRec& rec, double step);

}  // namespace bramlee
