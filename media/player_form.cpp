#include "media/player_form.h"

#include <QPointer>

#include "files/numbers.h"
#include "files/trap.h"
#include "media/play_media_file.h"
#include "ui/form_ids.h"
#include "ui/forms.h"
#include "ui/message_box.h"
#include "ui/report.h"
#include "ui/screen_rec.h"

namespace bramlee {
namespace {

constexpr ColourWord kYellow = 65535;
constexpr ColourWord kWhite = 0x00FFFFFF;

/// The band along the top, in units: UnitW across and UnitH down.
struct BandPlace {
  int left;
  int width;
};
constexpr BandPlace kCaptionPlace = {2, 16};
constexpr BandPlace kMinutesPlace = {19, 14};
constexpr BandPlace kMinPlace = {34, 12};
constexpr BandPlace kListPlace = {48, 120};
constexpr int kBandTop = 1;
constexpr int kBandRow = 4;
constexpr int kBandHeight = 6;
constexpr int kBelowHeight = 9;  ///< what the title and menu bars take of the form's height

/// The list of speeds has a gap: 0.4 is missing.
constexpr int kSpeeds = 20;
constexpr int kMissingSpeed = 4;

/// Characters of the remaining minutes that txtete shows.
constexpr int kShownCharacters = 5;

/// With this number in txtformno, Back also shows the form of that number. The program has no such
/// form, so it shows none.
constexpr double kCallerNo = 1205;

QString Name(const char* latin) {
  return QString::fromLatin1(latin);
}

}  // namespace

PlayerForm::PlayerForm() : Form(kPlayerForm) {
  setWindowTitle(QStringLiteral("AUDIO / VIDEO CLIPS"));
  auto* player = new WindowsMediaPlayer(client());
  player->setAccessibleName(windowTitle());
  AddLabel(Name("lblremtime"), QStringLiteral("P.TIME "))->setToolTip(tr("Period Time"));
  AddText(Name("txtete"), QStringLiteral("5"))->setAccessibleName(tr("Period Time"));
  AddLabel(Name("lblmin"), QStringLiteral("MIN."))->setToolTip(tr("Minutes"));
  Combo* list = AddCombo(Name("cmbavi"));
  list->setToolTip(tr("If File not found, It can't Play. "));
  list->hide();
  connect(list, &Combo::Picked, this, [this] { cmbavi_Click(); });
  AddCombo(Name("cmbindx"))->hide();
  AddHiddenText(Name("txtpath"), QStringLiteral("1"));
  AddHiddenText(Name("txtcnt"), QStringLiteral("0"))->setToolTip(tr("Form Count for unload"));
  AddHiddenText(Name("txtpcnt"), QStringLiteral("1"))->setToolTip(tr("Play Count"));
  AddHiddenText(Name("txtformno"), QStringLiteral("0"));
  for (int i = 0; i <= 3; ++i) AddHiddenText(Indexed("txtssize", i), {});
  AddPicture(Name("pictmp"))->hide();
  AddTimer(Name("Timer1"), 9000, true, [this] { Timer1_Timer(); });
  AddTimer(Name("Timerete"), 20000, true, [this] { Timerete_Timer(); });
  MakeMenus();
}

void PlayerForm::MakeMenus() {
  QMenu* file = AddMenu(Name("mnufile"), Name("&File"));
  AddCommand(file, Name("mnuback"), Name("&Back"), [this] { mnuback_Click(); });
  AddBarItem(Name("mnulist"), Name("&List"), [this] { mnulist_Click(); });
  AddBarItem(Name("mnuplay"), Name("&Play"), [this] { mnuplay_Click(); });
  AddBarItem(Name("mnustop"), Name("&Stop"), [this] { mnustop_Click(); });
  QMenu* sizes = AddMenu(Name("mnudissize"), Name("&ScreenSize"));
  int index = 0;
  for (const char* caption : {"&Default", "&1/4", "&HalfSize", "&FullScreen", "&DoubleSize"}) {
    AddCommand(sizes, Indexed("mnudsize", index), Name(caption),
               [this, index] { mnudsize_Click(index); });
    ++index;
  }
  QMenu* speeds = AddMenu(Name("mnuspeed"), Name("&Speed"));
  for (int i = 1; i <= kSpeeds; ++i) {
    if (i == kMissingSpeed) continue;
    AddCommand(speeds, Indexed("mnuspd", i), QString::number(i / 10.0, 'f', 1),
               [this, i] { mnuspd_Click(i); });
  }
  QMenu* countdown = AddMenu(Name("mnucdown1"), Name("&CountDown"));
  AddCommand(countdown, Indexed("mnucdown", 1), Name("&On"), [this] { mnucdown_Click(1); });
  AddCommand(countdown, Indexed("mnucdown", 2), Name("&Off"), [this] { mnucdown_Click(2); });
}

WindowsMediaPlayer* PlayerForm::Player() const {
  return Named<WindowsMediaPlayer>(Name("WindowsMediaPlayer1"));
}

void PlayerForm::Form_Load() {
  Trap(QStringLiteral("1207:02"), [this](ErrInfo&) {
    LayOut();
    Player()->Stop();
    ScreenRec screen;
    FillScreenRec(screen);
    setProperty("ScaleFlag", screen.ScaleFlag);
    const TwipsRect place = PlaceOf(Player());
    SetText(Indexed("txtssize", 0), NumberText(place.height - 10.0 * screen.UnitH));
    SetText(Indexed("txtssize", 1), NumberText(place.left));
    SetText(Indexed("txtssize", 2), NumberText(place.top));
    SetText(Indexed("txtssize", 3), NumberText(place.width));
  });
}

void PlayerForm::Form_Unload() {
  Player()->Stop();
}

void PlayerForm::LayOut() {
  Trap(
      QStringLiteral("1207:21"),
      [this](ErrInfo&) {
        ScreenRec screen;
        FillScreenRec(screen);
        CentreOnScreen(screen.ScrW, screen.ScrH);
        const auto place = [&](const char* name, const BandPlace& band) {
          Place(Named<QWidget>(Name(name)), {.left = 1.0 * band.left * screen.UnitW,
                                             .top = 1.0 * kBandTop * screen.UnitH,
                                             .width = 1.0 * band.width * screen.UnitW,
                                             .height = 1.0 * kBandRow * screen.UnitH});
        };
        place("lblremtime", kCaptionPlace);
        place("txtete", kMinutesPlace);
        place("lblmin", kMinPlace);
        place("cmbavi", kListPlace);
        const double band = 1.0 * kBandHeight * screen.UnitH;
        const double below = 1.0 * kBelowHeight * screen.UnitH;
        Place(Player(), {.left = 0,
                         .top = band,
                         .width = 1.0 * screen.ScrW,
                         .height = screen.ScrH - band - below});
      },
      ReportError);
}

void PlayerForm::mnuback_Click() {
  if (Val(TextOf(Name("txtformno"))) == kCallerNo) ShowForm({});
  UnloadForm(this);
}

void PlayerForm::mnulist_Click() {
  auto* list = Named<QWidget>(Name("cmbavi"));
  list->setVisible(list->isHidden());
}

void PlayerForm::mnuplay_Click() {
  Player()->Play();
}

void PlayerForm::mnustop_Click() {
  Player()->Stop();
}

void PlayerForm::mnudsize_Click(int index) {
  if (index == 0) {
    const auto saved = [this](int i) { return Val(TextOf(Indexed("txtssize", i))); };
    return Place(Player(),
                 {.left = saved(1), .top = saved(2), .width = saved(3), .height = saved(0)});
  }
  constexpr double kShares[] = {1.0 / 4, 1.0 / 2, 1, 2};
  const double share = kShares[index - 1];
  const TwipsRect form = Outer();
  const double width = form.width * share;
  Place(Player(), {.left = (form.width - width) / 2,
                   .top = PlaceOf(Player()).top,
                   .width = width,
                   .height = form.height * share});
}

void PlayerForm::mnuspd_Click(int index) {
  Player()->SetRate(Val(CaptionOf(Named<QAction>(Indexed("mnuspd", index)))));
}

void PlayerForm::mnucdown_Click(int index) {
  const bool on = index == 1;
  auto* timer = Named<QTimer>(Name("Timerete"));
  if (!on) timer->stop();
  if (on && !timer->isActive()) timer->start();
  SetBackColor(Named<QWidget>(Name("txtete")), on ? kYellow : kWhite);
}

void PlayerForm::cmbavi_Click() {
  Trap(QStringLiteral("1207:01"), [this](ErrInfo&) {
    auto* list = Named<Combo>(Name("cmbavi"));
    list->hide();
    PlayMediaFile(Trim(list->itemText(list->currentIndex())));
  });
}

void PlayerForm::Timer1_Timer() {
  Trap(
      QStringLiteral("1207:03"),
      [this](ErrInfo&) {
        if (Val(TextOf(Name("txtcnt"))) != 1) return;
        Named<QTimer>(Name("Timer1"))->stop();
        UnloadForm(this);
      },
      ReportError);
}

void PlayerForm::Timerete_Timer() {
  if (!started_ && !BeginCountdown()) return;
  elapsed_ += Named<QTimer>(Name("Timerete"))->interval() / 1000.0;
  const double rest = (total_ - elapsed_) / 60;
  if (rest <= 0) {
    EndCountdown();
  } else {
    SetText(Name("txtete"), NumberText(rest).left(kShownCharacters));
  }
}

/// Reads the minutes. Returns false when there are none; this form may be unloaded then.
bool PlayerForm::BeginCountdown() {
  total_ = Val(TextOf(Name("txtete"))) * 60;
  if (total_ == 0) {
    const QPointer<PlayerForm> self(this);
    MsgBox(QStringLiteral("READER:Duration is Nil"));
    // The other timer may have unloaded the form while the box stood.
    if (self == nullptr || LoadedForm(kPlayerForm) != this) return false;
    Named<QWidget>(Name("txtete"))->hide();
    EndCountdown();
    return false;
  }
  started_ = true;
  elapsed_ = 0;
  return true;
}

void PlayerForm::EndCountdown() {
  SetText(Name("txtete"), QStringLiteral("0"));
  Named<QTimer>(Name("Timerete"))->stop();
  UnloadForm(this);
}

void PlayerForm::FlipMute() {
  Player()->SetMute(!Player()->Mute());
}

void PlayerForm::FlipStretchToFit() {
  Player()->SetStretchToFit(!Player()->StretchToFit());
}

}  // namespace bramlee
