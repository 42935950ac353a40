#include "home/start_form.h"

#include <QMdiSubWindow>
#include <QMouseEvent>
#include <cmath>

#include "files/drives.h"
#include "files/numbers.h"
#include "files/platform.h"
#include "files/trap.h"
#include "home/start_ground.h"
#include "ui/form_ids.h"
#include "ui/forms.h"
#include "ui/report.h"
#include "ui/screen.h"
#include "ui/screen_rec.h"

namespace bramlee {
namespace {

constexpr int kLines = 3;
constexpr int kLastPass = 170;  ///< after this tick the passing lines begin anew

struct WelcomeLine {
  const char* caption;
  const char* font;
  ColourWord colour;
};

constexpr WelcomeLine kWelcome[kLines] = {
    {"Welcome to ",    "Times New Roman", 0x00A0400D}, // deep blue
    {"Online System ", "Times New Roman", 0x005B18AD}, // raspberry
    {"BRAM-LEE",       "MS Serif",        0x00004FBF}, // warm orange brown
};

}  // namespace

StartForm::StartForm() : Form(kStartForm, Kind::FrameChild) {
  setWindowTitle(QStringLiteral("BRAM-LEE"));
  SetClient(new StartGround(0x00C0FFC0, this));
  client()->setCursor(Qt::PointingHandCursor);
  for (int i = 0; i < kLines; ++i) {
    const WelcomeLine& line = kWelcome[i];
    auto* label = new MovingLine(QString::fromLatin1(line.caption), client());
    label->setObjectName(Indexed("lblsta", i));
    label->setAlignment(Qt::AlignCenter);
    SetForeColor(label, line.colour);
    connect(label, &Label::Clicked, this, &StartForm::Form_Click);
  }
  AddHiddenText(QStringLiteral("txtcnt"), {});
  AddTimer(QStringLiteral("tmr1"), 50, false, [this] { tmr1_Timer(); });
  AddTimer(QStringLiteral("tmr2"), 300, true, [this] { tmr2_Timer(); });
  MakeMenus();
}

void StartForm::MakeMenus() {
  QMenu* menu = AddMenu(QStringLiteral("mnumenu"), QStringLiteral("&Menu"));
  AddCommand(menu, QStringLiteral("mnustart"), QStringLiteral("&Start"),
             [this] { mnustart_Click(); });
  AddCommand(menu, QStringLiteral("mnuexit"), QStringLiteral("&Exit"), [this] { mnuexit_Click(); });
  QMenu* lock = AddMenu(QStringLiteral("mnupp1"), QStringLiteral("&Passwod Protection"));
  AddItem(lock, Indexed("mnupp", 1), QStringLiteral("&On"), [this] { mnupp_Click(1); });
  AddItem(lock, Indexed("mnupp", 2), QStringLiteral("&Off"), [this] { mnupp_Click(2); });
}

void StartForm::Form_Load() {
  Trap(QStringLiteral("601:02"), [this](ErrInfo& err) {
    LayOut();
    if (SubWindow() != nullptr) {
      connect(SubWindow(), &QMdiSubWindow::aboutToActivate, this,
              [this] { client()->setUpdatesEnabled(true); });
    }
    const QString folder = QStringLiteral("C:/bramlee");
    if (LookAt(SystemPath(folder)) == Sight::Nothing) {
      Trap(err.ErrTag, [&](ErrInfo&) { MkDir(folder); });
    }
    ChDrive(QStringLiteral("C:"));
    ChDir(QStringLiteral("C:\\"));
  });
}

void StartForm::LayOut() {
  ScreenRec rec;
  FillScreenRec(rec);
  setProperty("ScaleFlag", rec.ScaleFlag);
  CentreOnScreen(rec.ScrW, rec.ScrH);
  const double height = rec.ScrH;
  const double width = rec.ScrW;
  rec.UnitH = RoundToLong(height / 100);
  rec.UnitW = RoundToLong(width / 100);
  const double h = rec.UnitH;
  const double w = rec.UnitW;
  Place(Line(0), {.left = 3 * w, .top = 10 * h, .width = 50 * w, .height = 13 * h});
  Place(Line(1), {.left = 3 * w, .top = 75 * h, .width = 50 * w, .height = 13 * h});
  Place(Line(2), {.left = (width - 50 * w) / 2,
                  .top = (height - 18 * h) / 2,
                  .width = 50 * w,
                  .height = 18 * h});
  for (int i = 0; i < kLines; ++i) {
    QFont font(QString::fromLatin1(kWelcome[i].font));
    font.setStyleHint(QFont::Serif);
    font.setBold(true);
    FitFont(Line(i), font, Line(i)->size());
  }
  Named<QAction>(Indexed("mnupp", 1))->setChecked(false);
  Named<QAction>(Indexed("mnupp", 2))->setChecked(false);
  Named<QTimer>(QStringLiteral("tmr1"))->start();
}

Label* StartForm::Line(int index) const {
  return Named<Label>(Indexed("lblsta", index));
}

void StartForm::CloseAsked() {
  mnuexit_Click();
}

void StartForm::Form_Click() {
  Trap(
      QStringLiteral("601:01"), [this](ErrInfo&) { mnustart_Click(); },
      [](ErrInfo& err) { ReportError(err); });
}

void StartForm::mnustart_Click() {
  Trap(QStringLiteral("601:03"), [](ErrInfo&) { ShowForm(kHomeForm); });
}

void StartForm::mnuexit_Click() {
  EndProgram();
}

void StartForm::mnupp_Click(int index) {
  Trap(QStringLiteral("601:06"), [this, index](ErrInfo&) {
    Named<QAction>(Indexed("mnupp", 1))->setChecked(false);
    Named<QAction>(Indexed("mnupp", 2))->setChecked(false);
    Named<QAction>(Indexed("mnupp", index))->setChecked(true);
    if (Form* notice = LoadForm(kLoadingNotice)) {
      notice->SetText(QStringLiteral("txtpwd"), NumberText(index + 1));
    }
    ShowForm(kLoadingNotice);
  });
}

/// While the home form covers all of this one, the title walks on unpainted.
void StartForm::PaintIfSeen() {
  client()->setUpdatesEnabled(!client()->visibleRegion().isEmpty());
}

void StartForm::tmr1_Timer() {
  Trap(QStringLiteral("601:04"), [this](ErrInfo&) {
    PaintIfSeen();
    const ScreenSize screen = Screen();
    const double a = RoundToLong(screen.width / 284);
    const double b = RoundToLong(screen.width / 36);
    ++cnt_;
    const std::int32_t x0 = RoundToLong(3 * a * cnt_ + b);
    const std::int32_t x1 = RoundToLong(35 * b - 3 * a * cnt_);
    if (cnt_ > kLastPass) cnt_ = 0;
    MoveTo(Line(0), x0, PlaceOf(Line(0)).top);
    MoveTo(Line(1), x1, PlaceOf(Line(1)).top);
  });
}

void StartForm::tmr2_Timer() {
  Trap(QStringLiteral("601:05"), [this](ErrInfo&) {
    const ScreenSize screen = Screen();
    const double p = RoundToLong(screen.width / 100);
    const double q = RoundToLong(screen.height / 100);
    const double r = 12 * p;
    // The steps are radians, though the turn ends at 360: that makes the walk the jerky one it is.
    MoveTo(Line(2), 24 * p - RoundToLong(r * std::cos(angle_)),
           40 * q - RoundToLong(r * std::sin(angle_)));
    angle_ += 1;
    if (angle_ > 360) angle_ = 0;
  });
}

void StartForm::mousePressEvent(QMouseEvent* event) {
  event->setAccepted(event->button() == Qt::LeftButton);
}

void StartForm::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    Form_Click();
  }
}

}  // namespace bramlee
