// What a board writes on its sheet: rules, grid and letters.
#include <utility>

#include "board/board.h"
#include "board/cues.h"
#include "files/trap.h"
#include "strokes/letter.h"
#include "strokes/run_recorder.h"
#include "ui/message_box.h"

namespace bramlee {

ColourWord Board::GridColour() const {
  return ForeColorOf(Named<QWidget>(QStringLiteral("txtgridcolor")));
}

void Board::DrawGridInItsColour() {
  RunRecorder recorder(sheet_->Step());
  DrawGrid(recorder, record_.gridExtent);
  pen_.WriteRuling({{}, recorder.Step(), recorder.TakeRuns()}, GridColour());
}

// Takes the number by value: DrawRules may leave another in the variable that it is given.
void Board::DrawRulesInTheirColour(std::int16_t number) {
  RunRecorder recorder(sheet_->Step());
  DrawRules(recorder, record_.ruleExtent, record_.ruleLines, number);
  pen_.WriteRuling({{}, recorder.Step(), recorder.TakeRuns()}, GridColour());
}

void Board::mnugrid_Click() {
  Trap(QStringLiteral("brd:07"), [this](ErrInfo&) {
    const QString item = QStringLiteral("mnugrid");
    if (Checked(item)) {
      SetChecked(item, false);
      SetText(GridFlagName(), QStringLiteral("0"));
      return;
    }
    SetChecked(item, true);
    DrawGridInItsColour();
    SetText(GridFlagName(), QStringLiteral("1"));
  });
}

void Board::mnurulled_Click(int index) {
  Trap(QStringLiteral("brd:08"), [&](ErrInfo&) {
    const QString item = Indexed("mnurulled", index);
    if (Checked(item)) {
      SetChecked(item, false);
      SetText(RuleFlagName(index), QStringLiteral("0"));
      return;
    }
    for (int i = 1; i <= kRules; ++i) SetText(RuleFlagName(i), QStringLiteral("0"));
    Uncheck("mnurulled", kRules);
    SetText(RuleFlagName(index), QStringLiteral("1"));
    SetChecked(item, true);
    DrawRulesInTheirColour(static_cast<std::int16_t>(index));
  });
}

void Board::StartGroup() {
  mnuclear1_Click();
  SetText(FlagName(0), QStringLiteral("0"));
  if (Checked(QStringLiteral("mnugrid"))) DrawGridInItsColour();
  if (!record_.rulesComeBack) return;
  const int rule = FirstChecked("mnurulled", kRules);
  if (rule != 0) DrawRulesInTheirColour(static_cast<std::int16_t>(rule));
}

void Board::pic_Click(int index) {
  Trap(QStringLiteral("brd:09"), [&](ErrInfo&) {
    if (IsGroupStart(index)) StartGroup();
    StrokeRec rec = FillStrokeRec(letters_.sheet, static_cast<std::int16_t>(index));
    record_.prepare(*this, rec);
    BringIntoView(rec);  // nothing can be scrolled while the pen runs
    record_.cue(*this, rec);
    record_.write(*this, rec);
  });
}

void CueIfPlayIsOn(Board& board, const StrokeRec& rec) {
  if (!board.Checked(QStringLiteral("mnuaud"))) return;
  CueBoardNo = board.record().cueBoardNo;
  PlayCue(rec.LetterNo, CueBoardNo);
}

WriteLetter ProgramOfSet(const Board& board, const StrokeRec& /*rec*/) {
  return board.letters().write;
}

void WriteTile(Board& board, StrokeRec& rec) {
  const BoardRecord& record = board.record();
  if (rec.LetterNo < 1 || rec.LetterNo > board.letters().tiles) {
    if (record.strangeTile != nullptr) MsgBox(QString::fromUtf8(record.strangeTile));
    return;
  }
  board.Write(board.ProgramFor(rec), rec);
}

void Board::Write(WriteLetter program, StrokeRec& rec) {
  const LetterId id{.set = letters_.name, .tile = rec.LetterNo, .form = FormOf(rec)};
  const auto speakIfPlayIsOn = [this, rec] {
    if (Checked(QStringLiteral("mnuaud"))) record_.cue(*this, rec);
  };
  Letter letter = RecordLetter(id, program, rec, sheet_->Step());
  pen_.Write({.letter = std::move(letter), .colour = sheet_->ForeColor(), .placing = {}},
             speakIfPlayIsOn);
}

void Board::mnudrawalt_Click() {
  Trap(QStringLiteral("brd:10"), [this](ErrInfo&) {
    mnuclear1_Click();
    const bool on = !Checked(QStringLiteral("mnudrawalt"));
    SetChecked(QStringLiteral("mnudrawalt"), on);
    SetText(QStringLiteral("txtalt"), on ? QStringLiteral("1") : QStringLiteral("0"));
    record_.showTiles(*this);
  });
}

void Board::mnudall_Click() {
  Trap(QStringLiteral("brd:11"), [this](ErrInfo&) {
    SetChecked(QStringLiteral("mnuaud"), false);
    Q_EMIT DrawAllStarts();
    const BoardPen::Writing writing(pen_);  // one for all letters: a close waits for the last
    record_.drawAll(*this);
  });
}

void DrawAllTiles(Board& board) {
  const auto draw = [&board](int tile) {
    if (board.IsGroupStart(tile)) board.mnuclear1_Click();
    board.pic_Click(tile);
  };
  const auto order = board.record().drawOrder;
  for (const int tile : order) draw(tile);
  if (!order.empty()) return;
  for (int tile = 1; tile <= board.letters().tiles; ++tile) draw(tile);
}

}  // namespace bramlee
