#include "board/board.h"

#include <QScrollArea>
#include <optional>

#include "board/cues.h"
#include "shell/forms.h"
#include "shell/message_box.h"
#include "shell/numbers.h"
#include "shell/screen.h"

namespace bramlee {
namespace {

constexpr int kFlags = 32;     ///< txtundo(0) to txtundo(32)
constexpr int kRules = 5;      ///< mnurulled(1) to mnurulled(5)
constexpr int kRuleFlag = 26;  ///< the flag of rule 1 is txtundo(26 + 1)
constexpr int kColours = 6;    ///< entries of a colour menu
constexpr int kSpeeds = 6;     ///< entries of the speed menu
constexpr int kFormats = 4;    ///< entries of the format menu
const QString kGridFlag = QStringLiteral("txtundo(32)");

QString FlagName(int index) {
  return Indexed("txtundo", index);
}

/// The colours of both colour menus, in their order.
constexpr ColourWord kMenuColours[] = {0x000000, 0xFF0000, 0x00FF00, 0x0000FF, 0x00FFFF, 0xFFFFFF};

/// The steps of the speed menu, as quotients of whole numbers.
constexpr double kMenuSteps[] = {1.0 / 1000, 2.0 / 500, 3.0 / 100, 4.0 / 50, 5.0 / 25, 6.0 - 5};

const QString kText0 = QStringLiteral("0");
const QString kText1 = QStringLiteral("1");

}  // namespace

Board::Board(const BoardRecord& record) : Form(QString::fromLatin1(record.form)), record_(record) {
  auto* scroller = new QScrollArea(this);
  scroller->setFrameShape(QFrame::NoFrame);
  scroller->setWidgetResizable(true);
  sheet_ = new Sheet;
  scroller->setWidget(sheet_);
  SetClient(sheet_, scroller);
  setWindowTitle(QString::fromUtf8(record.title));
  MakeControls();
  MakeMenus();
  record_.makeOwn(*this);
  ResetToDesign();
}

void Board::MakeControls() {
  for (int i = record_.firstTile; i <= record_.lastTile; ++i) {
    PictureBox* tile = AddPicture(Indexed("pic", i), tr("Click To Draw"));
    tile->SetPicture(
        QStringLiteral(":/pictures/%1/%2.jpg").arg(QString::fromLatin1(record_.letterSet)).arg(i));
    connect(tile, &PictureBox::clicked, this, [this, i] { pic_Click(i); });
  }
  TextBox* title = AddText(QStringLiteral("txthdr1"), QString::fromUtf8(record_.title));
  title->setReadOnly(true);
  title->setFocusPolicy(Qt::NoFocus);
  title->setAlignment(Qt::AlignCenter);
  SetBackColor(title, 0xFF0000);
  SetForeColor(title, 0xFFFFFF);
  AddHiddenText(QStringLiteral("txtspd"), {});
  sheet_->SetStepBox(Named<QLineEdit>(QStringLiteral("txtspd")));
  AddHiddenText(QStringLiteral("txtgridcolor"), kText0);
  for (int i = 0; i <= kFlags; ++i) AddHiddenText(FlagName(i), kText0);
  AddHiddenText(QStringLiteral("txtdrv"), {});
  AddTimer(QStringLiteral("Timer1"), 100, true, [this] { Timer1_Timer(); });
  if (record_.alternatives) AddHiddenText(QStringLiteral("txtalt"), kText0);
  QFont font(QStringLiteral("MS Sans Serif"), 18);
  font.setStyleHint(QFont::SansSerif);
  sheet_->setFont(font);
}

void Board::ResetToDesign() {
  sheet_->Wipe();
  sheet_->SetBackColor(record_.backColor);
  sheet_->SetForeColor(0x000000FF);
  SetForeColor(Named<QLineEdit>(QStringLiteral("txtgridcolor")), 0x00FF0000);
  SetText(QStringLiteral("txtgridcolor"), kText0);
  SetText(QStringLiteral("txtspd"), QStringLiteral("0.01"));
  SetText(QStringLiteral("txtdrv"), QStringLiteral("C:"));
  for (int i = 0; i <= kFlags; ++i) SetText(FlagName(i), kText0);
  Uncheck("mnugcolor", 1, kColours);
  Uncheck("mnucolor", 1, kColours);
  Uncheck("mnuspd", 1, kSpeeds);
  Uncheck("mnurulled", 1, kRules);
  Uncheck("mnufor", 1, kFormats);
  SetChecked(QStringLiteral("mnugrid"), false);
  SetChecked(QStringLiteral("mnuaud"), false);
  Named<QWidget>(QStringLiteral("txthdr1"))->show();
  Named<QTimer>(QStringLiteral("Timer1"))->start();
  record_.resetOwn(*this);
}

void Board::Form_Load() {
  RunFormLoad();
}

void Board::RunFormLoad() {
  if (Form* home = LoadForm(QStringLiteral("fbrmhom1"))) {
    SetText(QStringLiteral("txtdrv"), home->TextOf(QStringLiteral("txtdrv")));
  }
  record_.layOut(*this);
}

void Board::Present() {
  showMaximized();
  raise();
  activateWindow();
}

void Board::Timer1_Timer() {
  auto* title = Named<QWidget>(QStringLiteral("txthdr1"));
  title->setVisible(title->isHidden());
}

void Board::mnublink_Click() {
  auto* timer = Named<QTimer>(QStringLiteral("Timer1"));
  if (timer->isActive()) {
    timer->stop();
  } else {
    timer->start();
  }
}

void Board::mnuclose_Click() {
  UnloadForm(this);
}

void Board::mnugcolor_Click(int index) {
  CheckOnly("mnugcolor", kColours, index);
  SetForeColor(Named<QLineEdit>(QStringLiteral("txtgridcolor")), kMenuColours[index - 1]);
}

void Board::mnucolor_Click(int index) {
  CheckOnly("mnucolor", kColours, index);
  sheet_->SetForeColor(kMenuColours[index - 1]);
}

void Board::mnuspd_Click(int index) {
  record_.speed(*this, index);
}

void SetSpeed(Board& board, int index) {
  board.CheckOnly("mnuspd", kSpeeds, index);
  board.SetText(QStringLiteral("txtspd"), NumberText(kMenuSteps[index - 1]));
}

void Board::mnufor_Click(int index) {
  CheckOnly("mnufor", kFormats, index);
}

void Board::mnuaud_Click() {
  const bool on = !Checked(QStringLiteral("mnuaud"));
  SetChecked(QStringLiteral("mnuaud"), on);
  if (on) {
    SetChecked(QStringLiteral("mnufor(1)"), true);
    Uncheck("mnuspd", 1, kSpeeds);
  } else {
    Uncheck("mnufor", 1, kFormats);
  }
}

void Board::mnugrid_Click() {
  const QString item = QStringLiteral("mnugrid");
  if (Checked(item)) {
    SetChecked(item, false);
    SetText(kGridFlag, kText0);
    return;
  }
  SetChecked(item, true);
  DrawGridInItsColour();
  SetText(kGridFlag, kText1);
}

void Board::mnurulled_Click(int index) {
  const QString item = Indexed("mnurulled", index);
  if (Checked(item)) {
    SetChecked(item, false);
    SetText(FlagName(kRuleFlag + index), kText0);
    return;
  }
  for (int i = 1; i <= kRules; ++i) SetText(FlagName(kRuleFlag + i), kText0);
  Uncheck("mnurulled", 1, kRules);
  SetText(FlagName(kRuleFlag + index), kText1);
  SetChecked(item, true);
  DrawRulesInTheirColour(static_cast<std::int16_t>(index));
}

namespace {

/// The pen in another colour, until this goes.
class PenColour {
 public:
  PenColour(Sheet& sheet, ColourWord colour) : sheet_(sheet), kept_(sheet.ForeColor()) {
    sheet_.SetForeColor(colour);
  }
  ~PenColour() { sheet_.SetForeColor(kept_); }
  PenColour(const PenColour&) = delete;
  PenColour& operator=(const PenColour&) = delete;

 private:
  Sheet& sheet_;
  ColourWord kept_;
};

}  // namespace

void Board::DrawGridInItsColour() {
  const Sheet::Writing writing(*sheet_);
  const PenColour pen(*sheet_, ForeColorOf(Named<QLineEdit>(QStringLiteral("txtgridcolor"))));
  DrawGrid(*sheet_, record_.gridExtent);
}

void Board::DrawRulesInTheirColour(std::int16_t number) {
  const Sheet::Writing writing(*sheet_);
  const PenColour pen(*sheet_, ForeColorOf(Named<QLineEdit>(QStringLiteral("txtgridcolor"))));
  DrawRules(*sheet_, record_.ruleExtent, record_.ruleLines, number);
}

void Board::mnuclear1_Click() {
  const ColourWord gridColour = ForeColorOf(Named<QLineEdit>(QStringLiteral("txtgridcolor")));
  const ColourWord letterColour = sheet_->ForeColor();
  const double step = FlagOf(QStringLiteral("txtspd"));
  int rule = 1;
  while (rule <= kRules && FlagOf(FlagName(kRuleFlag + rule)) == 0) ++rule;
  const bool grid = FlagOf(kGridFlag) == 1;
  const QString drive = TextOf(QStringLiteral("txtdrv"));
  const bool play = Checked(QStringLiteral("mnuaud"));
  int format = 1;
  while (format <= kFormats && !Checked(Indexed("mnufor", format))) ++format;
  const PutBack putOwnBack = record_.keepOwn(*this);

  ResetToDesign();
  RunFormLoad();

  SetForeColor(Named<QLineEdit>(QStringLiteral("txtgridcolor")), gridColour);
  sheet_->SetForeColor(letterColour);
  SetText(QStringLiteral("txtspd"), NumberText(step));
  if (rule <= kRules) {
    SetText(FlagName(kRuleFlag + rule), kText1);
    SetChecked(Indexed("mnurulled", rule), true);
  }
  if (grid) {
    SetText(kGridFlag, kText1);
    SetChecked(QStringLiteral("mnugrid"), true);
  }
  SetText(QStringLiteral("txtdrv"), drive);
  SetChecked(QStringLiteral("mnuaud"), play);
  if (play && format <= kFormats) SetChecked(Indexed("mnufor", format), true);
  if (putOwnBack) putOwnBack(*this);
}

bool Board::IsGroupStart(int index) const {
  const auto starts = record_.groupStarts;
  return std::find(starts.begin(), starts.end(), index) != starts.end();
}

void Board::StartGroup() {
  mnuclear1_Click();
  SetText(FlagName(0), kText0);
  if (Checked(QStringLiteral("mnugrid"))) DrawGridInItsColour();
  if (!record_.rulesComeBack) return;
  for (int rule = 1; rule <= kRules; ++rule) {
    if (!Checked(Indexed("mnurulled", rule))) continue;
    DrawRulesInTheirColour(static_cast<std::int16_t>(rule));
    return;
  }
}

void Board::pic_Click(int index) {
  const Sheet::Writing writing(*sheet_);
  if (IsGroupStart(index)) StartGroup();
  const LetterSet* letters = FindLetterSet(record_.letterSet);
  StrokeRec rec = FillStrokeRec(letters->sheet, static_cast<std::int16_t>(index));
  record_.prepare(*this, rec);
  record_.cue(*this, rec);
  record_.write(*this, rec);
}

void CueIfPlayIsOn(Board& board, const StrokeRec& rec) {
  if (!board.Checked(QStringLiteral("mnuaud"))) return;
  CueBoardNo = board.record().cueBoardNo;
  PlayCue(rec.LetterNo, CueBoardNo);
}

void WriteTile(Board& board, StrokeRec& rec) {
  const LetterSet* letters = FindLetterSet(board.record().letterSet);
  if (rec.LetterNo < 1 || rec.LetterNo > letters->tiles) {
    return MsgBox(QString::fromUtf8(board.record().strangeTile));
  }
  letters->write(rec, board.sheet());
}

void Board::mnudall_Click() {
  const Sheet::Writing writing(*sheet_);
  SetChecked(QStringLiteral("mnuaud"), false);
  record_.drawAll(*this);
}

void DrawAllTiles(Board& board) {
  const auto draw = [&board](int tile) {
    if (board.IsGroupStart(tile)) board.mnuclear1_Click();
    board.pic_Click(tile);
  };
  const auto order = board.record().drawOrder;
  for (const int tile : order) draw(tile);
  if (!order.empty()) return;
  const int last = FindLetterSet(board.record().letterSet)->tiles;
  for (int tile = 1; tile <= last; ++tile) draw(tile);
}

void Board::Uncheck(const char* array, int first, int last) const {
  for (int i = first; i <= last; ++i) SetChecked(Indexed(array, i), false);
}

void Board::CheckOnly(const char* array, int last, int index) const {
  Uncheck(array, 1, last);
  SetChecked(Indexed(array, index), true);
}

double Board::FlagOf(const QString& textBox) const {
  return Val(TextOf(textBox));
}

PictureBox* Board::Tile(int index) const {
  return Named<PictureBox>(Indexed("pic", index));
}

void NoOwnPart(Board& /*board*/) {}
void NoOwnPart(Board& /*board*/, StrokeRec& /*rec*/) {}
PutBack KeepNothing(const Board& /*board*/) {
  return {};
}

}  // namespace bramlee
