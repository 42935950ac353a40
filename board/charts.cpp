#include "board/charts.h"

#include <QMouseEvent>

#include "shell/forms.h"
#include "shell/screen.h"
#include "shell/trap.h"

namespace bramlee {
namespace {

/// The Hindi charts: a form of the screen's size that lies almost beyond its lower right corner,
/// with a small picture in the middle.
void LayOutHindi(Form& chart, PictureBox& picture) {
  const ScreenSize screen = Screen();
  const TwipsRect form{.left = screen.width - screen.width / 100,
                       .top = screen.height - screen.height / 100,
                       .width = screen.width,
                       .height = screen.height};
  chart.SetOuter(form);
  const double width = form.width - 0.776 * screen.width;
  const double height = form.height - 0.92 * screen.height;
  Place(&picture, {.left = (screen.width - width) / 2,
                   .top = (screen.height - height) / 2,
                   .width = width,
                   .height = height});
  picture.show();
}

/// The Telugu charts: a form as large as a board's, with the picture filling it but for a margin.
void LayOutTelugu(Form& chart, PictureBox& picture) {
  const ScreenSize screen = Screen();
  chart.SetOuter({.left = 0, .top = 0, .width = screen.width, .height = screen.height});
  const double width = 0.95 * screen.width;
  const double height = 0.85 * screen.height;
  Place(&picture, {.left = (screen.width - width) / 2,
                   .top = (screen.height - height) / 2,
                   .width = width,
                   .height = height});
}

constexpr ChartRecord kHindiVowels{
    .form = "fbrmhinv00",
    .title = "Hindi Vowels",
    .picture = ":/pictures/charts/hinv.jpg",
    .board = "fbrmhinv01",
    .layOut = LayOutHindi,
};
constexpr ChartRecord kHindiConsonants{
    .form = "fbrmhinc00",
    .title = "Hindi Consonants",
    .picture = ":/pictures/charts/hinc.jpg",
    .board = "",
    .layOut = LayOutHindi,
};
constexpr ChartRecord kTeluguVowels{
    .form = "fbrmtelv00",
    .title = "TELUGU-VOWELS",
    .picture = ":/pictures/charts/telv.jpg",
    .board = "fbrmtelv01",
    .layOut = LayOutTelugu,
    .maximised = true,
    .formClicks = true,
};
constexpr ChartRecord kTeluguConsonants{
    .form = "fbrmtelc00",
    .title = "TELUGU-CONSONANTS",
    .picture = ":/pictures/charts/telc.jpg",
    .board = "fbrmtelc01",
    .layOut = LayOutTelugu,
    .maximised = true,
};

}  // namespace

Chart::Chart(const ChartRecord& record) : Form(QString::fromLatin1(record.form)), record_(record) {
  setWindowTitle(QString::fromLatin1(record.title));
  picture_ = AddPicture(Indexed("pic", 1));
  picture_->SetPicture(QString::fromLatin1(record.picture));
  connect(picture_, &PictureBox::clicked, this, &Chart::pic_Click);
}

void Chart::Form_Load() {
  Trap(QStringLiteral("brd:30"), [this](ErrInfo&) { record_.layOut(*this, *picture_); });
}

void Chart::Present() {
  if (record_.maximised) showMaximized();
  Form::Present();
}

void Chart::Form_Click() {
  if (record_.formClicks) pic_Click();
}

void Chart::pic_Click() {
  Trap(QStringLiteral("brd:31"),
       [this](ErrInfo&) { ShowForm(QString::fromLatin1(record_.board)); });
}

void Chart::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Form_Click();
}

fbrmhinv00::fbrmhinv00() : Chart(kHindiVowels) {}
fbrmhinc00::fbrmhinc00() : Chart(kHindiConsonants) {}
fbrmtelv00::fbrmtelv00() : Chart(kTeluguVowels) {}
fbrmtelc00::fbrmtelc00() : Chart(kTeluguConsonants) {}

void RegisterCharts() {
  RegisterForm(QStringLiteral("fbrmhinv00"), [] { return new fbrmhinv00; });
  RegisterForm(QStringLiteral("fbrmhinc00"), [] { return new fbrmhinc00; });
  RegisterForm(QStringLiteral("fbrmtelv00"), [] { return new fbrmtelv00; });
  RegisterForm(QStringLiteral("fbrmtelc00"), [] { return new fbrmtelc00; });
}

}  // namespace bramlee
