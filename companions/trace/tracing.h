// Tracing on one board.
#pragma once

#include <QObject>
#include <QPointF>
#include <QShortcut>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "board/board.h"
#include "board/strip.h"
#include "companions/trace/stars.h"
#include "companions/trace/trace_input.h"
#include "companions/trace/trace_view.h"
#include "strokes/stroke_numbers.h"
#include "writing/tracer.h"

namespace bramlee {

/// While on, letters that join the board's page are not written by the pen but laid as pale guides.
/// The child writes their strokes one by one; each that is done is written by the pen at once, in
/// the letter's colour, so that the sheet then holds the same dots as ever. Draw All, and a pen
/// that goes on by itself, end it. The guides are the letters of the book, unless a teacher wants
/// those that the board has.
class Tracing : public QObject {
  Q_OBJECT
 public:
  explicit Tracing(Board& board);

 private:
  /// A stroke to trace: where it stands on the page.
  struct Target {
    std::size_t letter = 0;
    std::size_t stroke = 0;  ///< of the letter
  };
  void MakeButtons();
  void SwitchOn(bool on);
  void NextLevel();
  void FollowChoices();
  void FollowLevel();

  // --- the pen and the page
  void FollowPen();
  void Restart();
  void AddTargets(std::size_t letter, std::size_t firstStroke, std::vector<GuideStroke>& strokes);
  bool IsWritten(Target target);
  void WriteDoneStroke(Target target);
  void WriteStrokeForChild(Target target);
  void EndStroke(Target target);
  void EndLetter(std::size_t letter);

  // --- the child's hand
  void Down(QPointF place);
  void Move(QPointF place);
  void Up();
  void Cancel();
  void Help(const TraceJudgement& judgement);
  void WriteNextForChild();

  void ShowWay();
  QColor LetterColour() const;
  double LeastRadius() const;
  Hand TheHand() const { return hand_->isChecked() ? Hand::Left : Hand::Right; }

  Board& board_;
  Sheet& sheet_;
  BoardPen& pen_;
  StripButton* trace_ = nullptr;
  StripButton* level_ = nullptr;
  StripButton* hand_ = nullptr;
  StripButton* clicks_ = nullptr;
  StripButton* given_ = nullptr;
  QShortcut* space_ = nullptr;

  TraceView view_;
  SheetStar star_;
  TileStars tileStars_;
  TraceInput input_;

  bool on_ = false;
  bool writing_ = false;  ///< whether the pen writes for this companion just now
  Tracer tracer_;         ///< of the strokes from where the pen stands on
  std::vector<Target> targets_;
  std::vector<StrokeNumber> numbers_;  ///< of the targets' strokes
  Player::Where stands_;
  std::uint64_t edition_ = 0;
  std::size_t letters_ = 0;
  int helped_ = 0;  ///< strokes of the present letter that the pen wrote
};

}  // namespace bramlee
