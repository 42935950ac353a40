#include "board/charts.h"

#include <QMouseEvent>

#include "board/book_letters.h"
#include "files/trap.h"
#include "ui/form_ids.h"
#include "ui/forms.h"
#include "ui/screen.h"

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
    .form = kHindiVowelsChart,
    .title = "Hindi Vowels",
    .picture = ":/pictures/charts/hinv.jpg",
    .bookPicture = ":/pictures/book/charts/hinv.jpg",
    .board = kHindiVowelsForm,
    .layOut = LayOutHindi,
};
constexpr ChartRecord kHindiConsonants{
    .form = kHindiConsonantsChart,
    .title = "Hindi Consonants",
    .picture = ":/pictures/charts/hinc.jpg",
    .bookPicture = ":/pictures/book/charts/hinc.jpg",
    .board = "",
    .layOut = LayOutHindi,
};
constexpr ChartRecord kTeluguVowels{
    .form = kTeluguVowelsChart,
    .title = "TELUGU-VOWELS",
    .picture = ":/pictures/charts/telv.jpg",
    .bookPicture = ":/pictures/book/charts/telv.jpg",
    .board = kTeluguVowelsForm,
    .layOut = LayOutTelugu,
    .maximised = true,
    .formClicks = true,
};
constexpr ChartRecord kTeluguConsonants{
    .form = kTeluguConsonantsChart,
    .title = "TELUGU-CONSONANTS",
    .picture = ":/pictures/charts/telc.jpg",
    .bookPicture = ":/pictures/book/charts/telc.jpg",
    .board = kTeluguConsonantsForm,
    .layOut = LayOutTelugu,
    .maximised = true,
};

}  // namespace

Chart::Chart(const ChartRecord& record) : Form(record.form), record_(record) {
  setWindowTitle(QString::fromLatin1(record.title));
  picture_ = AddPicture(Indexed("pic", 1));
  picture_->setAccessibleName(QStringLiteral("Chart: %1").arg(windowTitle()));
  FollowBook();
  connect(&BookLetters::Instance(), &BookLetters::Changed, this, [this] { FollowBook(); });
  connect(picture_, &PictureBox::clicked, this, &Chart::pic_Click);
}

void Chart::FollowBook() {
  const bool book = BookLetters::Instance().On();
  picture_->SetPicture(QString::fromLatin1(book ? record_.bookPicture : record_.picture));
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
  Trap(QStringLiteral("brd:31"), [this](ErrInfo&) { ShowForm(record_.board); });
}

void Chart::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Form_Click();
}

HindiVowelsChart::HindiVowelsChart() : Chart(kHindiVowels) {}
HindiConsonantsChart::HindiConsonantsChart() : Chart(kHindiConsonants) {}
TeluguVowelsChart::TeluguVowelsChart() : Chart(kTeluguVowels) {}
TeluguConsonantsChart::TeluguConsonantsChart() : Chart(kTeluguConsonants) {}

void RegisterCharts() {
  RegisterForm(kHindiVowelsChart, [] { return new HindiVowelsChart; });
  RegisterForm(kHindiConsonantsChart, [] { return new HindiConsonantsChart; });
  RegisterForm(kTeluguVowelsChart, [] { return new TeluguVowelsChart; });
  RegisterForm(kTeluguConsonantsChart, [] { return new TeluguConsonantsChart; });
}

}  // namespace bramlee
