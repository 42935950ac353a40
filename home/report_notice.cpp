#include "home/report_notice.h"

#include "files/numbers.h"
#include "files/trap.h"
#include "ui/form_ids.h"
#include "ui/forms.h"
#include "ui/screen_rec.h"

namespace bramlee {

ReportNotice::ReportNotice() : Form(kReportNotice) {
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

void ReportNotice::Form_Load() {
  Trap({}, [this](ErrInfo&) {
    ScreenRec screen;
    FillScreenRec(screen);
    setProperty("ScaleFlag", screen.ScaleFlag);
    const double width = screen.ScrW * 1.8 / 3;
    const double height = screen.ScrH / 6.0;
    CentreOnScreen(width, height);
    Place(Named<Label>(QStringLiteral("lbl1")),
          {.left = 0, .top = 0, .width = width * 8 / 10, .height = height / 4});
    PutTextInTheMiddle();
    Named<QTimer>(QStringLiteral("Timer1"))->start();
  });
}

/// Of the window without its borders and its title bar, whose width is known once it is seen.
void ReportNotice::PutTextInTheMiddle() {
  auto* text = Named<Label>(QStringLiteral("lbl1"));
  const TwipsRect outer = Outer();
  const QSize borders = frameGeometry().size() - size();
  const TwipsRect words = PlaceOf(text);
  MoveTo(text, (outer.width - kTwipsPerPixel * borders.width() - words.width) / 2,
         (outer.height - kTwipsPerPixel * borders.height() - words.height) / 2);
}

void ReportNotice::resizeEvent(QResizeEvent* event) {
  Form::resizeEvent(event);
  PutTextInTheMiddle();
}

void ReportNotice::Timer1_Timer() {
  Named<QTimer>(QStringLiteral("Timer1"))->stop();
  UnloadForm(this);
}

}  // namespace bramlee
