#include "home/loading_notice.h"

#include "files/numbers.h"
#include "files/trap.h"
#include "home/frame_form.h"
#include "ui/form_ids.h"
#include "ui/forms.h"
#include "ui/message_box.h"

namespace bramlee {
namespace {

constexpr double kWidth = 6000;
constexpr double kHeight = 2400;

void TellOfPassword() {
  MsgBox(QStringLiteral("Verify Password Protection"));
}

}  // namespace

LoadingNotice::LoadingNotice() : Form(kLoadingNotice, Kind::FrameChild) {
  setWindowTitle(QStringLiteral("LOAD APPS"));
  SetGround(0x00E0FFFF);
  AddHiddenText(QStringLiteral("txtpwd"), QStringLiteral("0"));
  AddHiddenText(QStringLiteral("txtmsg"), {});
  const Label* text = AddLabel(QStringLiteral("lbl1"), QStringLiteral("     Loading... "));
  setAccessibleName(Trim(text->text()));
  AddTimer(QStringLiteral("Timer1"), 2000, false, [this] { Timer1_Timer(); });
}

void LoadingNotice::Form_Load() {
  Trap({}, [this](ErrInfo&) {
    const auto* frame = qobject_cast<FrameForm*>(LoadedForm(kFrameForm));
    const TwipsRect inside = frame != nullptr ? frame->Inside() : Outer();
    SetOuter({.left = (inside.width - kWidth) / 2,
              .top = (inside.height - kHeight) / 2,
              .width = kWidth,
              .height = kHeight});
    auto* text = Named<Label>(QStringLiteral("lbl1"));
    Place(text, {.left = 0, .top = 0, .width = kWidth, .height = kHeight * 3 / 4});
    text->setAlignment(Qt::AlignCenter);
    QFont font(QStringLiteral("Times New Roman"));
    font.setStyleHint(QFont::Serif);
    font.setPixelSize(32);
    text->setFont(font);
    Named<QTimer>(QStringLiteral("Timer1"))->start();
  });
}

void LoadingNotice::Timer1_Timer() {
  Named<QTimer>(QStringLiteral("Timer1"))->stop();
  Trap(
      {},
      [this](ErrInfo&) {
        const double number = Val(TextOf(QStringLiteral("txtpwd")));
        // The switch stands before a form that the program does not have.
        if (number == 1 || number == 2 || number == 3) return TellOfPassword();
        if (number == 0) ShowForm(kHomeForm);
        UnloadForm(this);
      },
      [](ErrInfo&) { TellOfPassword(); });
}

}  // namespace bramlee
