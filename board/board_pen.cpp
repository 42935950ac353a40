#include "board/board_pen.h"

#include <QGuiApplication>
#include <QScopeGuard>
#include <QScreen>
#include <utility>

#include "files/trap.h"

namespace bramlee {
namespace {

/// As many letters a page holds; a sheet that is never wiped begins a new one.
constexpr std::size_t kManyLetters = 256;

bool HasDisplay() {
  return QGuiApplication::platformName() != QStringLiteral("offscreen");
}

}  // namespace

BoardPen::BoardPen(Sheet& sheet) : sheet_(sheet), player_(page_, sheet) {}

BoardPen::Writing::Writing(BoardPen& pen) : pen_(pen) {
  if (pen_.writing_++ == 0) pen_.BeginWriting();
}

BoardPen::Writing::~Writing() {
  if (--pen_.writing_ == 0) pen_.EndWriting();
}

void BoardPen::BeginWriting() {
  newWork_ = true;
  toStrokeEnd_ = false;
  player_.GoOn();
  paced_ = HasDisplay() && sheet_.isVisible();
  pace_.Begin(sheet_.screen()->refreshRate());
  sheet_.SetShownByCaller(paced_);
}

void BoardPen::EndWriting() {
  sheet_.SetShownByCaller(false);
  if (std::exchange(paced_, false)) sheet_.ShowNewDots();
  sheet_.SetPen(sheet_.ForeColor());
}

void BoardPen::Write(PlacedLetter letter, std::function<void()> speak) {
  const Writing writing(*this);
  const bool leavesRest = std::exchange(newWork_, false) && !player_.AtEnd();
  if (leavesRest || page_.Letters().size() >= kManyLetters) page_.Clear();
  sheet_.DropMarks();  // the way back leads through the last letter only
  page_.Add(std::move(letter));
  speak_ = std::move(speak);
  // The next letter does not go on with one that ended half-way.
  auto unfinished = qScopeGuard([this] { LeaveUnfinished(); });
  if (taker_ != nullptr && taker_()) {
    SayChanged();
  } else {
    Run(Until::PageEnd);
  }
  unfinished.dismiss();
}

void BoardPen::WriteRuling(Letter lines, ColourWord colour) {
  const Writing writing(*this);
  const bool overRest = !player_.AtEnd();
  page_.Add({.letter = std::move(lines), .colour = colour, .placing = {}, .ruling = true});
  auto unfinished = qScopeGuard([this] { LeaveUnfinished(); });
  if (overRest) {
    player_.LayRulings();
  } else {
    Run(Until::PageEnd);
  }
  unfinished.dismiss();
}

/// What stands of it by now stays.
void BoardPen::LeaveUnfinished() noexcept {
  page_.Clear();
  SayChanged();
}

void BoardPen::ForgetPage() {
  page_.Clear();
  speak_ = nullptr;
  Q_EMIT Wiped();
  SayChanged();
}

std::size_t BoardPen::LastLetter() const {
  const auto letters = page_.Letters();
  for (std::size_t i = letters.size(); i-- > 0;) {
    if (!letters[i].ruling) return i;
  }
  return letters.size();
}

/// What follows the pen may fail where nothing may be thrown, and is no reason for the pen to stop.
void BoardPen::SayChanged() noexcept {
  Trap(QStringLiteral("pen:01"), [this](ErrInfo&) { Q_EMIT Changed(); });
}

void BoardPen::Run(Until until) {
  ++running_;
  const auto ran = qScopeGuard([this] {
    --running_;
    SayChanged();
  });
  SayChanged();
  // In the middle of a stroke the player does not set the pen, which has had another colour since.
  const Player::Where stands = player_.Stands();
  if (stands.begun) sheet_.SetPen(page_.Letters()[stands.letter].colour);
  while (again_ || !player_.AtEnd()) {
    if (again_) {
      SpeakAgain();
    } else if (EndIsAwaited()) {
      player_.RunToEnd();
    } else if (player_.IsPlaying() || toStrokeEnd_) {
      WriteFrame();
    } else if (until == Until::Pause) {
      return;
    } else {
      WaitAFrame();
    }
  }
}

void BoardPen::WriteFrame() {
  const auto frame = static_cast<double>(pace_.DotsPerFrame());
  const std::int64_t due = IsPaced() ? player_.DotsDue(frame) : Player::kAll;
  std::int64_t written = 0;
  if (toStrokeEnd_) {
    written = player_.WriteStroke(due);
    if (player_.BetweenStrokes()) {
      toStrokeEnd_ = false;
      player_.Pause();
    }
  } else {
    written = player_.Write(due);
  }
  if (!IsPaced()) return;
  if (!paced_ || pace_.FrameIsDue()) ShowFrame();
  // Of a last frame only what its dots take: the next letter begins when this one would end.
  if (!EndIsAwaited()) Rest(player_.AtEnd() ? static_cast<double>(written) / Rate() : frame);
}

void BoardPen::Rest(double dots) {
  if (paced_) pace_.Rest(dots);
}

void BoardPen::ShowFrame() {
  if (paced_) sheet_.ShowNewDots();
  if (frameCall_ != nullptr) frameCall_();
  LetWindowsLive();
  const Player::Where stands = Stands();
  if (stands != std::exchange(told_, stands)) SayChanged();
}

void BoardPen::WaitAFrame() {
  ShowFrame();
  if (paced_) pace_.Pause();
}

/// Not from the hand's own handler: what speaks may show a message, which then could not be
/// answered.
void BoardPen::SpeakAgain() {
  again_ = false;
  player_.StepToLetterStart();
  if (paced_) sheet_.ShowNewDots();
  player_.GoOn();
  SayChanged();
  Speak();
}

void BoardPen::Speak() const {
  if (speak_ != nullptr) speak_();
}

bool BoardPen::IsPaused() {
  if (IsWriting()) return !player_.IsPlaying() && !toStrokeEnd_;
  return !player_.AtEnd();
}

void BoardPen::Pause() {
  if (!IsWriting()) return;
  toStrokeEnd_ = false;
  player_.Pause();
  SayChanged();
}

void BoardPen::GoOn() {
  toStrokeEnd_ = false;
  player_.GoOn();
  RunFromHand();
}

void BoardPen::StrokeOn() {
  if (IsWriting() || !player_.AtEnd()) toStrokeEnd_ = true;
  RunFromHand();
}

/// In the middle of a writing the loop of that goes on; else this is a writing of its own.
void BoardPen::RunFromHand() {
  SayChanged();
  if (IsWriting() || (!again_ && player_.AtEnd())) return;
  const bool toStrokeEnd = toStrokeEnd_;
  const Writing writing(*this);
  toStrokeEnd_ = toStrokeEnd;
  Run(Until::Pause);
}

bool BoardPen::StrokeBack() {
  toStrokeEnd_ = false;
  player_.Pause();
  const bool back = player_.StepBack();
  if (!IsWriting()) sheet_.SetPen(sheet_.ForeColor());
  SayChanged();
  return back;
}

void BoardPen::Again() {
  if (LastLetter() == page_.Letters().size()) return;
  again_ = true;
  RunFromHand();
}

bool BoardPen::WriteStrokeNow() {
  const bool left = !player_.AtEnd();
  player_.WriteStroke();
  sheet_.SetPen(sheet_.ForeColor());
  SayChanged();
  return left;
}

}  // namespace bramlee
