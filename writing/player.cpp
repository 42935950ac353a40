#include "writing/player.h"

#include <algorithm>
#include <cmath>

namespace bramlee {

/// A page that was cleared holds nothing of what the player knows.
void Player::FollowPage() {
  if (edition_ == page_.Edition()) return;
  edition_ = page_.Edition();
  EndRun();
  place_ = {};
  inStroke_ = false;
  begins_.clear();
  laid_.reset();
  strokesWritten_ = 0;
}

/// Passes over letters without strokes left; returns whether there is a stroke to write.
bool Player::FindStroke() {
  while (place_.letter < page_.Letters().size()) {
    if (place_.stroke < PresentLetter().letter.PenStrokes().size()) return true;
    place_ = {.letter = place_.letter + 1};
  }
  return false;
}

void Player::BeginStroke() {
  const PlacedLetter& letter = PresentLetter();
  if (rewindable_ != nullptr && !letter.ruling) {
    begins_.push_back({.place = place_, .mark = rewindable_->Mark()});
  }
  surface_.SetPen(letter.colour);
  inStroke_ = true;
}

void Player::EndStroke() {
  const Place stroke = place_;
  place_ = {.letter = stroke.letter, .stroke = stroke.stroke + 1};
  inStroke_ = false;
  if (PresentLetter().ruling) return;
  ++strokesWritten_;
  if (laid_) PutStrokeBeneathRulings(stroke);
}

void Player::BeginRun(const Run& run) {
  surface_.BeginRun(run.primitive, run.Arguments());
  cursor_ = RunCursor(run, PresentLetter().letter.Step());
  inRun_ = true;
}

void Player::EndRun() {
  if (inRun_) surface_.EndRun();
  inRun_ = false;
}

namespace {

std::int64_t Plot(RunCursor& cursor, const Placing& placing, DrawingSurface& surface,
                  std::int64_t most) {
  if (placing.IsNone()) return cursor.Plot(surface, most);
  return cursor.Advance(most, [&](double x, double y) {
    surface.PSet(static_cast<float>(x * placing.scale + placing.right),
                 static_cast<float>(y * placing.scale + placing.down));
  });
}

}  // namespace

std::int64_t Player::WriteInRun(std::int64_t most) {
  return Plot(cursor_, PresentLetter().placing, surface_, most);
}

/// Leaves the place where the player stands alone.
void Player::WriteAtOnce(const PlacedLetter& placed, const PenStroke& stroke) {
  surface_.SetPen(placed.colour);
  for (const Run& run : placed.letter.Runs().subspan(stroke.firstRun, stroke.runs)) {
    surface_.BeginRun(run.primitive, run.Arguments());
    RunCursor cursor(run, placed.letter.Step());
    Plot(cursor, placed.placing, surface_, kAll);
    surface_.EndRun();
  }
}

/// Writes the rulings from the page's letter `from` on and returns the letter behind them.
std::size_t Player::WriteRulings(std::size_t from) {
  const auto letters = page_.Letters();
  for (; from < letters.size() && letters[from].ruling; ++from) {
    for (const PenStroke& line : letters[from].letter.PenStrokes()) {
      WriteAtOnce(letters[from], line);
    }
  }
  return from;
}

void Player::LayRulings() {
  FollowPage();
  if (inStroke_) WriteStroke();
  while (FindStroke() && PresentLetter().ruling) WriteStroke();
  const std::size_t next = laid_ ? laid_->end : place_.letter + 1;
  if (next >= page_.Letters().size() || !page_.Letters()[next].ruling) return;
  if (!laid_) laid_ = Laid{.mark = rewindable_ != nullptr ? rewindable_->Mark() : SurfaceMark{}};
  laid_->end = WriteRulings(next);
}

/// A stroke that was written over rulings which came after its letter goes where it would lie had
/// the letter been whole by then. Where the surface does not go back it stays on top.
void Player::PutStrokeBeneathRulings(const Place& stroke) {
  const PlacedLetter& placed = page_.Letters()[stroke.letter];
  const auto strokes = placed.letter.PenStrokes();
  if (rewindable_ != nullptr && rewindable_->RewindTo(laid_->mark)) {
    begins_.back().mark = laid_->mark;
    WriteAtOnce(placed, strokes[stroke.stroke]);
    laid_->mark = rewindable_->Mark();
    WriteRulings(stroke.letter + 1);
  }
  if (place_.stroke < strokes.size()) return;
  place_ = {.letter = laid_->end};
  laid_.reset();
}

std::int64_t Player::WriteStroke(std::int64_t most) {
  FollowPage();
  if (most <= 0 || !FindStroke()) return 0;
  const Letter& letter = PresentLetter().letter;
  const PenStroke stroke = letter.PenStrokes()[place_.stroke];
  if (!inStroke_) BeginStroke();
  std::int64_t written = 0;
  while (place_.run < stroke.runs) {
    if (!inRun_ && written == most) return written;
    if (!inRun_) BeginRun(letter.Runs()[stroke.firstRun + place_.run]);
    written += WriteInRun(most - written);
    if (!cursor_.AtEnd()) return written;
    EndRun();
    ++place_.run;
  }
  EndStroke();
  return written;
}

std::int64_t Player::Write(std::int64_t most) {
  std::int64_t written = 0;
  while (playing_ && written < most && !AtEnd()) written += WriteStroke(most - written);
  return written;
}

std::int64_t Player::RunToEnd() {
  std::int64_t written = 0;
  while (!AtEnd()) written += WriteStroke();
  return written;
}

bool Player::StepBack() {
  FollowPage();
  if (begins_.empty() || !rewindable_->RewindTo(begins_.back().mark)) return false;
  const bool withinLetter = inStroke_ && !PresentLetter().ruling;
  place_ = begins_.back().place;
  begins_.pop_back();
  inStroke_ = inRun_ = false;
  if (withinLetter) return true;  // rulings that lay beneath the stroke's start lie there still
  --strokesWritten_;
  laid_.reset();
  LayRulings();
  return true;
}

bool Player::StepToLetterStart() {
  const Where where = Stands();
  const bool isLetter = !AtEnd() && !PresentLetter().ruling;
  if (isLetter && where.stroke == 0 && !where.begun) return false;
  if (!StepBack()) return false;
  // From here at once and not stroke by stroke: a surface makes all of itself anew each time.
  auto begin = std::ranges::find(begins_, place_.letter,
                                 [](const StrokeBegin& each) { return each.place.letter; });
  while (begin != begins_.end() && !rewindable_->RewindTo(begin->mark)) ++begin;
  if (begin != begins_.end()) {
    place_ = begin->place;
    strokesWritten_ -= static_cast<std::size_t>(begins_.end() - begin);
    begins_.erase(begin, begins_.end());
    laid_.reset();
    LayRulings();
  }
  return place_.stroke == 0;
}

bool Player::AtEnd() {
  FollowPage();
  return !FindStroke();
}

bool Player::BetweenStrokes() {
  FollowPage();
  return !inStroke_;
}

Player::Where Player::Stands() {
  FollowPage();
  FindStroke();
  return {.letter = place_.letter, .stroke = place_.stroke, .begun = inStroke_};
}

std::size_t Player::StrokesWritten() {
  FollowPage();
  return strokesWritten_;
}

void Player::SetRate(double rate) {
  if (std::isfinite(rate) && rate > 0) rate_ = rate;
}

std::int64_t Player::DotsDue(double atUsualPace) {
  fraction_ += atUsualPace * rate_;
  const double whole = std::floor(fraction_);
  fraction_ -= whole;
  return static_cast<std::int64_t>(whole);
}

}  // namespace bramlee
