// The pen of a board: writes letters, rules and grid on the sheet within the click, at the pen's
// pace, and does meanwhile and afterwards what a teacher's hand asks of it.
#pragma once

#include <QObject>
#include <cstdint>
#include <functional>
#include <vector>

#include "board/pace.h"
#include "board/sheet.h"
#include "engine/run.h"
#include "ui/held_input.h"
#include "writing/page.h"
#include "writing/player.h"

namespace bramlee {

/// Writes the letters of a page, one after the other. On a display it keeps the pen's pace, else it
/// writes as fast as it can. Whatever was paused, stepped and written again, the dots that stand in
/// the end are those of a plain writing.
///
/// The hand's commands act in the middle of what is written, from handlers of admitted widgets (see
/// ui/held_input.h), and after a letter stands, for the last letter of the sheet. Those that write
/// then return once the pen stands still.
class BoardPen : public QObject {
  Q_OBJECT
 public:
  /// The sheet outlives the pen.
  explicit BoardPen(Sheet& sheet);

  /// Strokes are written while one of these lives (they nest): no input, timer tick or close
  /// reaches a form before the outermost one ends, but for admitted widgets. On a visible window
  /// the pen keeps its pace from the outermost one's begin on; it hurries once the user waits for
  /// the end.
  class Writing {
   public:
    explicit Writing(BoardPen& pen);
    ~Writing();
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;

   private:
    BoardPen& pen_;
    HoldInput hold_;
  };

  /// The letter joins the page and is written; returns once it stands, however long the pen pauses.
  /// `speak` makes the letter's sound once more. A letter that was left half-way when the outermost
  /// Writing began stays as it is and is forgotten. Throws what the sheet throws; the page is then
  /// empty, and what is written by then stays.
  void Write(PlacedLetter letter, std::function<void()> speak);

  /// Writes rules or a grid in that colour. Over a letter that stands half-way they come at once,
  /// and the letter can go on. Throws as Write() does.
  void WriteRuling(Letter lines, ColourWord colour);

  /// Forgets the page, for a sheet that is wiped.
  void ForgetPage();

  /// The letters on the sheet since it was wiped, and where the pen stands among them.
  const Page& Letters() const { return page_; }
  Player::Where Stands() { return player_.Stands(); }
  /// Index of the last letter on the page that is no ruling; the number of letters when there is
  /// none.
  std::size_t LastLetter() const;

  // --- the hand
  /// Whether a letter or ruling is being written, or waits in a pause to go on.
  bool IsWriting() const { return running_ > 0; }
  /// Whether the pen stands still before the page's end.
  bool IsPaused();
  /// The pen stops before the next dot. Does nothing when nothing is written.
  void Pause();
  /// The pen goes on at the next dot.
  void GoOn();
  /// Writes to the end of the present pen stroke, or of the next one where the pen stands between
  /// two, and pauses.
  void StrokeOn();
  /// Takes the present pen stroke away, at its start the one before, and pauses there. Returns
  /// false when there is none left of the last letter.
  bool StrokeBack();
  /// Takes the last letter away, speaks and writes it anew.
  void Again();

  /// How fast the pen goes beside its usual pace; see Player::SetRate. No dot changes.
  void SetRate(double rate) { player_.SetRate(rate); }
  double Rate() const { return player_.Rate(); }

  /// Makes the last letter's sound once more, as Again() does.
  void Speak() const;

  /// Writes the next pen stroke at once, whoever has drawn it. Returns false at the page's end.
  bool WriteStrokeNow();

  /// Who takes a letter that has joined the page returns true: the pen then leaves its strokes to
  /// WriteStrokeNow. At most one at a time; null for none.
  void SetTaker(std::function<bool()> taker) { taker_ = std::move(taker); }

  /// Has `call` run after each frame. With one the pen writes frame by frame where there is no
  /// display too, without a rest: for tests and benches.
  void SetFrameCall(std::function<void()> call) { frameCall_ = std::move(call); }

 Q_SIGNALS:
  /// What the pen has written, where it stands or whether it goes is another from now on. Comes at
  /// the start and the end of what is written, at pauses, and between pen strokes. What a slot
  /// throws is caught.
  void Changed();
  /// The sheet is wiped, and with it the page.
  void Wiped();

 private:
  enum class Until : std::uint8_t { PageEnd, Pause };

  void SayChanged() noexcept;
  void LeaveUnfinished() noexcept;
  void BeginWriting();
  void EndWriting();
  void Run(Until until);
  void WriteFrame();
  void ShowFrame();
  void Rest(double dots);
  void WaitAFrame();
  void SpeakAgain();
  void RunFromHand();
  bool IsPaced() const { return paced_ || frameCall_ != nullptr; }

  Sheet& sheet_;
  Page page_;
  Player player_;
  Pace pace_;
  std::function<void()> speak_;
  std::function<bool()> taker_;
  std::function<void()> frameCall_;

  int writing_ = 0;
  int running_ = 0;
  bool paced_ = false;        ///< whether the pen keeps its pace in this writing
  bool newWork_ = false;      ///< whether no letter has been written in this writing
  bool toStrokeEnd_ = false;  ///< whether the pen stops at the stroke's end
  bool again_ = false;        ///< whether the letter is to be spoken and written anew
  Player::Where told_;        ///< where the pen stood when Changed() came last
};

}  // namespace bramlee
