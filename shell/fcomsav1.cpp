#include "shell/fcomsav1.h"

#include "shell/forms.h"
#include "shell/numbers.h"
#include "shell/screen_rec.h"
#include "shell/trap.h"

namespace bramlee {

fcomsav1::fcomsav1() : Form(QStringLiteral("fcomsav1")) {
  setWindowTitle(QStringLiteral("SAVE"));
  AddHiddenText(QStringLiteral("txtmsg"), {});
  AddHiddenText(QStringLiteral("txtpwd"), {});
  Label* text = AddLabel(QStringLiteral("lbl1"), QStringLiteral("     Saved "));
  text->setAlignment(Qt::AlignCenter);
  setAccessibleName(Trim(text->text()));
  QFont font = text->font();
  font.setPointSize(14);
  text->setFont(font);
  AddTimer(QStringLiteral("Timer1"), 3000, false, [this] { Timer1_Timer(); });
}

void fcomsav1::Form_Load() {
  Trap({}, [this](ErrInfo&) {
    ScreenRec screen;
    FillScreenRec(screen);
    setProperty("ScaleFlag", screen.ScaleFlag);
    const double width = screen.ScrW * 1.8 / 3;
    const double height = screen.ScrH / 6.0;
    CentreOnScreen(width, height);
    Place(
        Named<Label>(QStringLiteral("lbl1")),
        {.left = width / 10, .top = height * 3 / 8, .width = width * 8 / 10, .height = height / 4});
    Named<QTimer>(QStringLiteral("Timer1"))->start();
  });
}

void fcomsav1::Timer1_Timer() {
  Named<QTimer>(QStringLiteral("Timer1"))->stop();
  UnloadForm(this);
}

}  // namespace bramlee
