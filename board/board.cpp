#include "board/board.h"

#include <QFocusEvent>
#include <QScrollArea>
#include <algorithm>
#include <cmath>

#include "board/book_letters.h"
#include "board/companions.h"
#include "board/reach.h"
#include "board/strip.h"
#include "files/environment.h"
#include "files/numbers.h"
#include "files/trap.h"
#include "letters/letter_names.h"
#include "media/media.h"
#include "ui/forms.h"
#include "ui/scale.h"
#include "ui/screen.h"
#include "writing/timeline.h"

namespace bramlee {
namespace {

constexpr int kRuleFlag = 26;  ///< the flag of rule 1 is txtundo(26 + 1)

static_assert(std::size(kMenuColours) == Board::kColours);
static_assert(std::size(kSpeedSteps) == Board::kSpeeds);

/// Free sheet around what is written or stands at its edge, in sheet pixels.
constexpr int kEdge = 10;

/// A board that fits a window so small that nothing on it could be told apart scrolls from here on.
constexpr double kSmallestFactor = 0.25;

/// An entry of a menu's table, counted from 1.
template <class Entry, std::size_t Count>
Entry EntryOf(const Entry (&table)[Count], int index) {
  if (index < 1 || index > static_cast<int>(Count)) {
    throw TrappedError(QStringLiteral("no menu entry %1").arg(index));
  }
  return table[index - 1];
}

/// The scale at which that part of a board as designed fills the view, in its middle.
Scale ScaleInto(QSize view, const QRect& part) {
  const double factor =
      std::max(std::min(1.0 * view.width() / part.width(), 1.0 * view.height() / part.height()),
               kSmallestFactor);
  const auto origin = [factor](int room, int start, int length) {
    const double before = std::max((room - length * factor) / 2, 0.0);
    return static_cast<int>(std::floor(before - start * factor));
  };
  return {
      .factor = factor,
      .origin = {origin(view.width(), part.left(), part.width()),
                 origin(view.height(), part.top(), part.height())}
  };
}

}  // namespace

Board::Board(const BoardRecord& record)
    : Form(record.form),
      record_(record),
      letters_(*FindLetterSet(record.letterSet)),
      scroller_(new QScrollArea(this)),
      sheet_(new Sheet),
      pen_(*sheet_) {
  scroller_->setFrameShape(QFrame::NoFrame);
  scroller_->setWidgetResizable(true);
  scroller_->setWidget(sheet_);
  SetClient(sheet_, scroller_);
  setWindowTitle(QString::fromUtf8(record.title));
  MakeControls();
  MakeMenus();
  for (PictureBox* picture : sheet_->findChildren<PictureBox*>()) picture->installEventFilter(this);
  scroller_->viewport()->installEventFilter(this);
  ResetToDesign();
  reach_ = ReachOfAll();
  connect(&BookLetters::Instance(), &BookLetters::Changed, this, &Board::FollowBook);
  MakeCompanions(*this);
}

Strip& Board::strip() {
  if (strip_ == nullptr) strip_ = new Strip(*this);
  return *strip_;
}

void Board::MakeControls() {
  // On the sheet and not on the form, whose font the menu bar would take as well.
  QFont font(QStringLiteral("MS Sans Serif"), 18);
  font.setStyleHint(QFont::SansSerif);
  SetDesignFont(sheet_, font);
  const int lastTile = record_.lastTile != 0 ? record_.lastTile : letters_.tiles;
  for (int i = record_.firstTile; i <= lastTile; ++i) {
    PictureBox* tile = AddPicture(Indexed("pic", i), QStringLiteral("Click To Draw"));
    ShowLetterOf(i);
    connect(tile, &PictureBox::clicked, this, [this, i] { pic_Click(i); });
  }
  TextBox* title = AddText(QStringLiteral("txthdr1"), QString::fromUtf8(record_.title));
  title->setReadOnly(true);
  title->setFrame(false);
  title->setFocusPolicy(Qt::NoFocus);
  title->setAlignment(Qt::AlignCenter);
  bramlee::SetBackColor(title, 0xFF0000);
  bramlee::SetForeColor(title, 0xFFFFFF);
  AddHiddenText(QStringLiteral("txtspd"), {});
  sheet_->SetStepBox(Named<QLineEdit>(QStringLiteral("txtspd")));
  AddHiddenText(QStringLiteral("txtgridcolor"), {});
  for (int i = 0; i <= kFlags; ++i) AddHiddenText(FlagName(i), {});
  AddHiddenText(QStringLiteral("txtdrv"), {});
  if (record_.showTiles != nullptr) AddHiddenText(QStringLiteral("txtalt"), QStringLiteral("0"));
  AddTimer(QStringLiteral("Timer1"), 100, true, [this] { Timer1_Timer(); });
}

void Board::Form_Load() {
  Trap(QStringLiteral("brd:01"), [this](ErrInfo&) {
    const ScreenSize screen = Screen();
    SetOuter({.left = 0, .top = 0, .width = screen.width, .height = screen.height});
    RunFormLoad();
  });
}

void Board::RunFormLoad() {
  if (const auto drive = TheEnvironment().mediaDrive()) SetText(QStringLiteral("txtdrv"), *drive);
  record_.layOut(*this);
  FitSheet();
}

QRect Board::ReachOfAll() const {
  QRectF all = ReachOf(record_.gridExtent).united(ReachOf(record_.ruleExtent));
  for (int tile = 1; tile <= letters_.tiles; ++tile) {
    for (const std::int16_t alternative : {std::int16_t{0}, std::int16_t{1}}) {
      StrokeRec rec = FillStrokeRec(letters_.sheet, static_cast<std::int16_t>(tile));
      rec.AltFlag = alternative;
      all = all.united(ReachOf(letters_.write, rec));
      const TileForm form{.alternative = alternative == 1, .book = true};
      if (!WritesBookLetters() || !HasBookForm(letters_, tile, form)) continue;
      all = all.united(ReachOf(ProgramOf(letters_, tile, form), rec));
    }
  }
  return all.toAlignedRect();
}

void Board::FitSheet() {
  QRect all = reach_;
  QRect placed = reach_;
  for (const QObject* child : sheet_->children()) {
    const auto* control = qobject_cast<const QWidget*>(child);
    if (control == nullptr) continue;
    const QRect pixels = PixelsOf(PlaceOf(control));
    all = all.united(pixels);
    if (IsPlaced(control)) placed = placed.united(pixels);
  }
  scrolled_ = {all.right() + kEdge, all.bottom() + kEdge};
  fitted_ = placed.adjusted(-kEdge, -kEdge, kEdge, kEdge) & QRect({}, scrolled_);
  ScaleSheet();
}

void Board::SetFitsWindow(bool on) {
  fitsWindow_ = on;
  ScaleSheet();
}

void Board::ScaleSheet() {
  if (fitted_.isEmpty()) return;  // not laid out yet
  sheet_->setMinimumSize(fitsWindow_ ? fitted_.size() * kSmallestFactor : scrolled_);
  SetScale(sheet_, fitsWindow_ ? ScaleInto(scroller_->maximumViewportSize(), fitted_) : Scale());
}

void Board::BringIntoView(const StrokeRec& rec) {
  if (fitsWindow_) return;
  QRect reach;
  // A letter that cannot be written is found out when its turn to be written comes.
  Trap(QStringLiteral("brd:12"),
       [&](ErrInfo&) { reach = ReachOf(ProgramFor(rec), rec).toAlignedRect(); });
  if (!reach.isEmpty()) BringIntoView(reach);
}

void Board::BringIntoView(QRect reach) {
  if (fitsWindow_) return;
  reach.adjust(-kEdge, -kEdge, kEdge, kEdge);
  // Of a letter larger than the window its beginning counts: the top left.
  reach.setSize(reach.size().boundedTo(scroller_->viewport()->size()));
  const QPoint centre = reach.center();
  scroller_->ensureVisible(centre.x(), centre.y(), reach.width() / 2, reach.height() / 2);
}

bool Board::eventFilter(QObject* watched, QEvent* event) {
  // Only the keyboard scrolls to what it reaches: a press that moved its tile away would be lost.
  if (event->type() == QEvent::FocusIn) {
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) {
      scroller_->ensureWidgetVisible(static_cast<QWidget*>(watched), kEdge, kEdge);
    }
  }
  if (watched == scroller_->viewport() && event->type() == QEvent::Resize && fitsWindow_) {
    ScaleSheet();
  }
  return Form::eventFilter(watched, event);
}

void Board::Present() {
  showMaximized();
  Form::Present();
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
  Trap(QStringLiteral("brd:02"), [&](ErrInfo&) {
    const ColourWord colour = EntryOf(kMenuColours, index);
    CheckOnly("mnugcolor", kColours, index);
    bramlee::SetForeColor(Named<QWidget>(QStringLiteral("txtgridcolor")), colour);
  });
}

void Board::mnucolor_Click(int index) {
  Trap(QStringLiteral("brd:03"), [&](ErrInfo&) {
    const ColourWord colour = EntryOf(kMenuColours, index);
    CheckOnly("mnucolor", kColours, index);
    sheet_->SetForeColor(colour);
  });
}

void Board::mnuspd_Click(int index) {
  Trap(QStringLiteral("brd:04"), [&](ErrInfo&) { record_.speed(*this, index); });
}

void SetSpeed(Board& board, int index) {
  const double step = EntryOf(kSpeedSteps, index);
  board.CheckOnly("mnuspd", Board::kSpeeds, index);
  board.SetText(QStringLiteral("txtspd"), NumberText(step));
}

void Board::mnufor_Click(int index) {
  CheckOnly("mnufor", kFormats, index);
}

void Board::mnuaud_Click() {
  Trap(QStringLiteral("brd:05"), [this](ErrInfo&) {
    const bool on = !Checked(QStringLiteral("mnuaud"));
    SetChecked(QStringLiteral("mnuaud"), on);
    if (on) {
      SetChecked(QStringLiteral("mnufor(1)"), true);
      Uncheck("mnuspd", kSpeeds);
      WarmUpPlayer();  // a letter will be asked for in a moment
    } else {
      Uncheck("mnufor", kFormats);
    }
    record_.playSwitched(*this, on);
  });
}

bool Board::IsGroupStart(int index) const {
  return std::ranges::find(record_.groupStarts, index) != record_.groupStarts.end();
}

void Board::Uncheck(const char* array, int last) const {
  for (int i = 1; i <= last; ++i) SetChecked(Indexed(array, i), false);
}

void Board::CheckOnly(const char* array, int last, int index) const {
  Uncheck(array, last);
  SetChecked(Indexed(array, index), true);
}

int Board::FirstChecked(const char* array, int last) const {
  for (int i = 1; i <= last; ++i) {
    if (Checked(Indexed(array, i))) return i;
  }
  return 0;
}

double Board::FlagOf(const QString& textBox) const {
  return Val(TextOf(textBox));
}

QString Board::FlagName(int index) {
  return Indexed("txtundo", index);
}

QString Board::RuleFlagName(int rule) {
  return FlagName(kRuleFlag + rule);
}

QString Board::GridFlagName() {
  return FlagName(kFlags);
}

PictureBox* Board::Tile(int index) const {
  return Named<PictureBox>(Indexed("pic", index));
}

void Board::PlaceTile(int index, double left, double top, double width, double height) const {
  Place(Tile(index), {.left = left, .top = top, .width = width, .height = height});
}

void Board::PlaceTitle(double left, double width) const {
  Place(Named<QWidget>(QStringLiteral("txthdr1")),
        {.left = left, .top = 15, .width = width, .height = 510});
}

void NoOwnPart(Board& /*board*/) {}
void NoOwnPart(Board& /*board*/, StrokeRec& /*rec*/) {}
void NoOwnPart(Board& /*board*/, bool /*on*/) {}

}  // namespace bramlee
