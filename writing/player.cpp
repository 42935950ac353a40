#include "writing/player.h"

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
  if (rewindable_ != nullptr) begins_.push_back({.place = place_, .mark = rewindable_->Mark()});
  surface_.SetPen(PresentLetter().colour);
  inStroke_ = true;
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

std::int64_t Player::WriteInRun(std::int64_t most) {
  const Placing placing = PresentLetter().placing;
  if (placing.IsNone()) return cursor_.Plot(surface_, most);
  return cursor_.Advance(most, [&](double x, double y) {
    surface_.PSet(static_cast<float>(x * placing.scale + placing.right),
                  static_cast<float>(y * placing.scale + placing.down));
  });
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
  place_ = {.letter = place_.letter, .stroke = place_.stroke + 1};
  inStroke_ = false;
  ++strokesWritten_;
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
  place_ = begins_.back().place;
  begins_.pop_back();
  if (!inStroke_) --strokesWritten_;
  inStroke_ = inRun_ = false;
  return true;
}

bool Player::AtEnd() {
  FollowPage();
  return !FindStroke();
}

bool Player::BetweenStrokes() {
  FollowPage();
  return !inStroke_;
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
