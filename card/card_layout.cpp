#include "card/card_layout.h"

#include <QMenuBar>
#include <QPainter>
#include <algorithm>

#include "ui/form.h"
#include "ui/label_button.h"
#include "ui/screen_rec.h"

namespace bramlee {
namespace {

/// A white panel that other controls stand on.
class Panel : public QWidget {
 public:
  Panel(const QString& name, const QColor& edge, QWidget* parent) : QWidget(parent), edge_(edge) {
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge_, 2));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 12, 12);
  }

 private:
  QColor edge_;
};

/// A place on the card: columns are hundredths of its width, rows are kRows to its height.
struct CardPlace {
  double column;
  double row;
  double columns;
  double rows;
};

constexpr double kRows = 26.5;

struct CardText {
  const char* text;
  const char* spoken;  ///< what a screen reader calls it
  CardPlace place;
};

constexpr CardText kTexts[] = {
    {"MyName",                    "Name",                 {20, 1.4, 41, 1.7}   },
    {"BRM",                       "Class",                {20, 3.5, 41, 1.7}   },
    {"Teacher Name",              "Class Teacher",        {20, 5.6, 41, 1.7}   },
    {"C:\\bramlee\\xxxxxxxx.jpg", "ID-Card picture file", {20, 7.7, 41, 1.7}   },
    {"C:\\bramlee\\xxxxxxxx.jpg", "School Logo file",     {20, 9.8, 41, 1.7}   },
    {"",                          "Sum of Total Items",   {21.5, 20.3, 17, 1.7}},
    {"",                          "Sum of Total Amounts", {40, 20.3, 18, 1.7}  },
    {"",                          "Sum of Pocket Money",  {59.5, 20.3, 18, 1.7}},
    {"",                          "Sum of Balances",      {79, 20.3, 18, 1.7}  },
};

struct CardField {
  const char* toolTip;
  const char* spoken;
  CardPlace place;
};

constexpr CardField kFields[] = {
    {"DD",                     "EnterDate day",          {16, 13.6, 9, 1.7} },
    {"MM",                     "EnterDate month",        {26, 13.6, 9, 1.7} },
    {"YYYY",                   "EnterDate year",         {36, 13.6, 12, 1.7}},
    {"Item Name",              "Item Name",              {63, 13.6, 34, 1.7}},
    {"Price Per Item",         "Price Per Item",         {3, 18, 17, 1.7}   },
    {"Total Intems ",          "Total Items",            {21.5, 18, 17, 1.7}},
    {"Amount For Total Items", "Amount For Total Items", {40, 18, 18, 1.7}  },
    {"Pocket Money",           "Pocket Money",           {59.5, 18, 18, 1.7}},
    {"Balance",                "Balance",                {79, 18, 18, 1.7}  },
};

struct CardLabel {
  const char* text;
  const char* field;  ///< what it names
  CardPlace place;
  bool above;  ///< stands above its field, else before it
};

constexpr CardLabel kLabels[] = {
    {" Name:",         "txt(0)", {2.5, 1.4, 16.5, 1.7},  false},
    {"Class:",         "txt(1)", {2.5, 3.5, 16.5, 1.7},  false},
    {"Class Teacher:", "txt(2)", {2.5, 5.6, 16.5, 1.7},  false},
    {"ID-Card:",       "txt(3)", {2.5, 7.7, 16.5, 1.7},  false},
    {"School Logo:",   "txt(4)", {2.5, 9.8, 16.5, 1.7},  false},
    {"EnterDate:",     "cmb(0)", {2.5, 13.6, 12.5, 1.7}, false},
    {"Item Name",      "cmb(3)", {49, 13.6, 13, 1.7},    false},
    {"Price / Item",   "cmb(4)", {3, 16.4, 17, 1.5},     true },
    {"Total Items",    "cmb(5)", {21.5, 16.4, 17, 1.5},  true },
    {"Total Amt.",     "cmb(6)", {40, 16.4, 18, 1.5},    true },
    {"P.Money",        "cmb(7)", {59.5, 16.4, 18, 1.5},  true },
    {"Balance",        "cmb(8)", {79, 16.4, 18, 1.5},    true },
};

struct CardButton {
  const char* text;
  const char* toolTip;
  QRgb colour;
  CardPlace place;
};

constexpr int kFirstButton = 12;
constexpr CardButton kButtons[] = {
    {"NEW",    "New Date",    0xFF1565C0, {14, 23.7, 22, 1.7}},
    {"SAVE",   "Save Date",   0xFF2E7D32, {39, 23.7, 22, 1.7}},
    {"REMOVE", "Remove Date", 0xFFB3261E, {64, 23.7, 22, 1.7}},
};

struct CardPicture {
  const char* name;
  const char* spoken;
  const char* file;  ///< the default picture
  CardPlace place;
};

constexpr CardPicture kPictures[] = {
    {"img", "ID-Card picture",     ":/pictures/card/idcard.jpg", {63.5, 1.4, 16, 10.1}},
    {"pic", "School Logo picture", ":/pictures/card/school.jpg", {81, 1.4, 16, 10.1}  },
};

struct CardPanel {
  const char* name;
  QRgb edge;
  CardPlace place;
};

constexpr CardPanel kPanels[] = {
    {"panhead", 0xFF90CAF9, {1.5, 0.6, 97, 11.7}},
    {"panitem", 0xFFFFCC80, {1.5, 12.8, 97, 10} },
};

/// What the title and the borders of the window take from the form's height.
constexpr double kTitleHeight = 36 * kTwipsPerPixel;
constexpr double kLargestLetters = 20;          ///< pixels
constexpr ColourWord kSaidColour = 0x0014148C;  ///< dark red

QString Words(const char* text) {
  return QString::fromLatin1(text);
}

int Count(const auto& table) {
  return static_cast<int>(std::size(table));
}

/// The ground is white also under a dark desktop, and what is written on it black.
void MakeLegible(QWidget* field) {
  SetBackColor(field, 0xFFFFFF);
  SetForeColor(field, 0);
}

void MakeTexts(Form& card, int first, int end) {
  for (int i = first; i < end; ++i) {
    TextBox* box = card.AddText(Indexed("txt", i), Words(kTexts[i].text));
    box->setAccessibleName(Words(kTexts[i].spoken));
    if (i < 3) box->setMaxLength(100);
    box->setTextMargins(3, 0, 3, 0);
    MakeLegible(box);
  }
}

void MakeFields(Form& card) {
  for (int i = 0; i < Count(kFields); ++i) {
    Combo* field = card.AddCombo(Indexed("cmb", i));
    field->setToolTip(Words(kFields[i].toolTip));
    field->setAccessibleName(Words(kFields[i].spoken));
    MakeLegible(field);
  }
  card.Named<Combo>(QStringLiteral("cmb(3)"))->lineEdit()->setMaxLength(100);
}

/// Read-outs, which Tab passes over on its way to the buttons.
void MakeSums(Form& card) {
  MakeTexts(card, 5, Count(kTexts));
  for (int i = 5; i < Count(kTexts); ++i) {
    auto* sum = card.Named<TextBox>(Indexed("txt", i));
    sum->setReadOnly(true);
    sum->setFocusPolicy(Qt::ClickFocus);
    SetBackColor(sum, 0xC0FFFF);
  }
  card.AddLabel(QStringLiteral("lblsum"), QStringLiteral("Sum:"))
      ->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void MakeLabels(Form& card) {
  for (int i = 0; i < Count(kLabels); ++i) {
    Label* label = card.AddLabel(Indexed("lbl", i), Words(kLabels[i].text));
    label->setAlignment((kLabels[i].above ? Qt::AlignHCenter : Qt::AlignRight) | Qt::AlignVCenter);
    label->setBuddy(card.Named<QWidget>(Words(kLabels[i].field)));
  }
}

void MakeButtons(Form& card) {
  for (int i = 0; i < Count(kButtons); ++i) {
    auto* button =
        new LabelButton(Words(kButtons[i].text), QColor(kButtons[i].colour), card.client());
    button->setObjectName(Indexed("lbl", kFirstButton + i));
    button->setToolTip(Words(kButtons[i].toolTip));
  }
}

/// Says what failed; empty otherwise.
void MakeSaid(Form& card) {
  Label* line = card.AddLabel(QStringLiteral("lblsaid"), {});
  line->setAlignment(Qt::AlignCenter);
  SetForeColor(line, kSaidColour);
}

void MakePictures(Form& card) {
  for (const CardPicture& picture : kPictures) {
    PictureBox* box = card.AddPicture(Words(picture.name));
    box->SetPicture(Words(picture.file));
    box->setAccessibleName(Words(picture.spoken));
    box->setEnabled(false);  // it only shows
  }
}

/// Places controls on a card of that size, in twips.
class Grid {
 public:
  Grid(double width, double height) : column_(width / 100), row_(height / kRows) {}

  void Put(QWidget* control, const CardPlace& place) const {
    Place(control, {.left = place.column * column_,
                    .top = place.row * row_,
                    .width = place.columns * column_,
                    .height = place.rows * row_});
    QFont font = control->font();
    font.setPixelSize(LetterHeight());
    control->setFont(font);
  }

 private:
  int LetterHeight() const {
    const double fitting = std::min(row_ * 0.85, column_ * 2);
    return std::max(PixelsOf(std::min(fitting, kLargestLetters * kTwipsPerPixel)), 1);
  }

  double column_;
  double row_;
};

}  // namespace

void MakeCardControls(Form& card) {
  card.SetGround(0xFFF4E0);
  for (const CardPanel& panel : kPanels) {
    new Panel(Words(panel.name), QColor(panel.edge), card.client());
  }
  MakeTexts(card, 0, 5);
  MakeFields(card);
  MakeSums(card);
  MakeLabels(card);
  MakePictures(card);
  MakeButtons(card);
  MakeSaid(card);
}

void LayOutCard(Form& card) {
  ScreenRec screen;
  FillScreenRec(screen);
  card.setProperty("ScaleFlag", screen.ScaleFlag);
  const double width = 0.7 * screen.ScrW;
  const double height = 0.8 * screen.ScrH;
  card.CentreOnScreen(width, height);
  const double menu = kTwipsPerPixel * card.menuBar()->sizeHint().height();
  const Grid grid(width, height - menu - kTitleHeight);
  for (const CardPanel& panel : kPanels) {
    grid.Put(card.Named<QWidget>(Words(panel.name)), panel.place);
  }
  for (int i = 0; i < Count(kTexts); ++i) {
    grid.Put(card.Named<QWidget>(Indexed("txt", i)), kTexts[i].place);
  }
  for (int i = 0; i < Count(kFields); ++i) {
    grid.Put(card.Named<QWidget>(Indexed("cmb", i)), kFields[i].place);
  }
  for (int i = 0; i < Count(kLabels); ++i) {
    grid.Put(card.Named<QWidget>(Indexed("lbl", i)), kLabels[i].place);
  }
  grid.Put(card.Named<QWidget>(QStringLiteral("lblsum")), {3, 20.3, 17.5, 1.7});
  for (int i = 0; i < Count(kButtons); ++i) {
    grid.Put(card.Named<QWidget>(Indexed("lbl", kFirstButton + i)), kButtons[i].place);
  }
  for (const CardPicture& picture : kPictures) {
    grid.Put(card.Named<QWidget>(Words(picture.name)), picture.place);
  }
}

void PlaceSaid(const Form& card) {
  auto* line = card.Named<Label>(QStringLiteral("lblsaid"));
  const QWidget* first = card.Named<QWidget>(Indexed("lbl", kFirstButton));
  const QWidget* panel = card.Named<QWidget>(Words(kPanels[1].name));
  // How much a window has below the buttons depends on the borders that it was given.
  const int top = first->geometry().bottom() + 1;
  const int letters = first->fontMetrics().height();
  const int height = std::min(2 * letters, card.client()->height() - top);
  line->setGeometry(panel->x(), top, panel->width(), height);
  if (line->text().isEmpty()) return;
  FitFont(line, first->font(), {line->width(), std::min(letters, height)});
}

}  // namespace bramlee
