// How a board is wiped: as if its form were made afresh and the user's choices were put back. It
// is done in place, so that no window flashes or moves and no form goes in its own handler.
#include "board/board.h"
#include "files/numbers.h"
#include "files/trap.h"
#include "ui/report.h"

namespace bramlee {

namespace {

const QString kNo = QStringLiteral("0");
const QString kYes = QStringLiteral("1");

}  // namespace

void Board::ResetToDesign() {
  pen_.ForgetPage();
  sheet_->Wipe();
  sheet_->SetBackColor(record_.backColor);
  sheet_->SetForeColor(kPenColour);
  auto* gridColour = Named<QLineEdit>(QStringLiteral("txtgridcolor"));
  bramlee::SetForeColor(gridColour, kRulingColour);
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

BoardSettings Board::Settings() const {
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

void Board::Apply(const BoardSettings& settings) {
  bramlee::SetForeColor(Named<QLineEdit>(QStringLiteral("txtgridcolor")), settings.gridColour);
  sheet_->SetForeColor(settings.letterColour);
  SetText(QStringLiteral("txtspd"), NumberText(settings.step));
  if (settings.rule != 0) {
    SetText(RuleFlagName(settings.rule), kYes);
    SetChecked(Indexed("mnurulled", settings.rule), true);
  }
  if (settings.grid) {
    SetText(GridFlagName(), kYes);
    SetChecked(QStringLiteral("mnugrid"), true);
  }
  SetText(QStringLiteral("txtdrv"), settings.drive);
  SetChecked(QStringLiteral("mnuaud"), settings.play);
  if (settings.format != 0) SetChecked(Indexed("mnufor", settings.format), true);
}

void Board::mnuclear1_Click() {
  Trap(
      QStringLiteral("brd:06"),
      [this](ErrInfo&) {
        const BoardSettings kept = Settings();
        ResetToDesign();
        RunFormLoad();  // copies the drive of the home form, which the board's own then replaces
        Apply(kept);
      },
      ReportError);
}

}  // namespace bramlee
