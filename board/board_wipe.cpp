// How a board is wiped: as if its form were made afresh and the user's choices were put back. It
// is done in place, so that no window flashes or moves and no form goes in its own handler.
#include "board/board.h"
#include "files/numbers.h"
#include "files/trap.h"
#include "ui/report.h"

namespace bramlee {

/// What the user chose, across a wipe. 0 stands for no rule and no format.
struct Board::Kept {
  ColourWord gridColour;
  ColourWord letterColour;
  double step;
  int rule;
  bool grid;
  QString drive;
  bool play;
  int format;
};

namespace {

const QString kNo = QStringLiteral("0");
const QString kYes = QStringLiteral("1");

}  // namespace

void Board::ResetToDesign() {
  sheet_->Wipe();
  sheet_->SetBackColor(record_.backColor);
  sheet_->SetForeColor(kPenColour);
  auto* gridColour = Named<QLineEdit>(QStringLiteral("txtgridcolor"));
  bramlee::SetForeColor(gridColour, 0x00FF0000);
  gridColour->setText(kNo);
  SetText(QStringLiteral("txtspd"), QStringLiteral("0.01"));
  SetText(QStringLiteral("txtdrv"), QStringLiteral("C:"));
  for (int i = 0; i <= kFlags; ++i) SetText(FlagName(i), kNo);
  Uncheck("mnugcolor", kColours);
  Uncheck("mnucolor", kColours);
  Uncheck("mnuspd", kSpeeds);
  Uncheck("mnurulled", kRules);
  Uncheck("mnufor", kFormats);
  SetChecked(QStringLiteral("mnugrid"), false);
  SetChecked(QStringLiteral("mnuaud"), false);
  Named<QWidget>(QStringLiteral("txthdr1"))->show();
  Named<QTimer>(QStringLiteral("Timer1"))->start();
  record_.resetOwn(*this);
}

Board::Kept Board::Keep() const {
  int rule = 1;
  while (rule <= kRules && FlagOf(RuleFlagName(rule)) == 0) ++rule;
  const bool play = Checked(QStringLiteral("mnuaud"));
  return {.gridColour = GridColour(),
          .letterColour = sheet_->ForeColor(),
          .step = FlagOf(QStringLiteral("txtspd")),
          .rule = rule <= kRules ? rule : 0,
          .grid = FlagOf(GridFlagName()) == 1,
          .drive = TextOf(QStringLiteral("txtdrv")),
          .play = play,
          .format = play ? FirstChecked("mnufor", kFormats) : 0};
}

void Board::PutBack(const Kept& kept) {
  bramlee::SetForeColor(Named<QLineEdit>(QStringLiteral("txtgridcolor")), kept.gridColour);
  sheet_->SetForeColor(kept.letterColour);
  SetText(QStringLiteral("txtspd"), NumberText(kept.step));
  if (kept.rule != 0) {
    SetText(RuleFlagName(kept.rule), kYes);
    SetChecked(Indexed("mnurulled", kept.rule), true);
  }
  if (kept.grid) {
    SetText(GridFlagName(), kYes);
    SetChecked(QStringLiteral("mnugrid"), true);
  }
  SetText(QStringLiteral("txtdrv"), kept.drive);
  SetChecked(QStringLiteral("mnuaud"), kept.play);
  if (kept.format != 0) SetChecked(Indexed("mnufor", kept.format), true);
}

void Board::mnuclear1_Click() {
  Trap(
      QStringLiteral("brd:06"),
      [this](ErrInfo&) {
        const Kept kept = Keep();
        ResetToDesign();
        RunFormLoad();  // copies the drive of the home form, which the board's own then replaces
        PutBack(kept);
      },
      ReportError);
}

}  // namespace bramlee
