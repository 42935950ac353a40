#include "home/home_form.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "files/numbers.h"
#include "files/trap.h"
#include "home/home_ground.h"
#include "ui/form_ids.h"
#include "ui/forms.h"
#include "ui/message_box.h"
#include "ui/report.h"
#include "ui/screen.h"

namespace bramlee {
namespace {

constexpr int kSubjects = 7;  ///< that have a tile and a board
constexpr int kLabels = 8;
constexpr int kDrives = 26;
constexpr int kDriveC = 3;
constexpr int kTitleLines = 3;

struct Subject {
  const char* caption;
  const char* board;
  ColourWord colour;  ///< of its tile's frame, which its label shares
};

constexpr Subject kSubject[kLabels] = {
    {"English:Capital Letters", kCapitalsForm,         0x002828C6},
    {"English:Small Letters",   kSmallLettersForm,     0x008A3AAD},
    {"Hindi:Wovels",            kHindiVowelsForm,      0x00C06515},
    {"Hindi:Consonants",        kHindiConsonantsForm,  0x005C6800},
    {"Telugu:Wovels",           kTeluguVowelsForm,     0x009A1B6A},
    {"Telugu:Consonants",       kTeluguConsonantsForm, 0x00004C9C},
    {"Maths:Numbers",           kMathsForm,            0x00327D2E},
    {"Maths:Basics",            nullptr,               0x00444444},
};

struct TitleLine {
  const char* caption;
  double height;  ///< of its letters, in units of the layout
};

constexpr TitleLine kTitle[kTitleLines] = {
    {"BRAM-LEE  ",                      8},
    {" BRM",                            7},
    {"Teacher Help Line: 000-000-0000", 5},
};

// The labels' design, in twips.
constexpr double kLabelLeft[] = {240, 4440};
constexpr double kLabelTop[] = {1560, 2280, 3000, 3600};
constexpr double kLabelWidth = 3885;
constexpr double kLabelHeight = 495;
constexpr int kLabelPixels = 16;  ///< 12 points
constexpr double kLabelsRight = kLabelLeft[1] + kLabelWidth;

constexpr double kTileWidth = 2650;
constexpr double kTileHeight = 1550;
constexpr double kBesideTile = 240;  ///< between a tile and a caption beside it
/// What the titles of frame and form, the menu bar and some air take from the screen's height.
constexpr double kAboveAndBelow = 1450;
constexpr double kLeastTileHeight = 600;

QFont Serif(const char* family, bool bold) {
  QFont font(QString::fromLatin1(family));
  font.setStyleHint(QFont::Serif);
  font.setBold(bold);
  return font;
}

/// How far right a tile of the left column may reach that begins at `top`: up to the captions of
/// the right column beside it, which end at their labels' right.
double RightmostBeside(const Form& home, double top) {
  double rightmost = std::numeric_limits<double>::infinity();
  for (int i = 2; i <= kLabels; i += 2) {
    const auto* label = home.Named<Label>(Indexed("lbl1", i));
    const TwipsRect place = PlaceOf(label);
    const QFontMetrics metrics = label->fontMetrics();
    if (place.top + (place.height + kTwipsPerPixel * metrics.height()) / 2 <= top) continue;
    const double words = kTwipsPerPixel * metrics.horizontalAdvance(label->text());
    rightmost = std::min(rightmost, place.left + place.width - words - kBesideTile);
  }
  return rightmost;
}

/// The tiles' size, in their design's proportions, for four rows from `top` on: at design size
/// beside the labels, below them as large as the screen lets them be.
void SizeTiles(const Form& home, double left, double top, double gap) {
  const double shape = kTileWidth / kTileHeight;
  const double reach = RightmostBeside(home, top) - left;
  double height = (Screen().height - kAboveAndBelow - top - 3 * gap) / 4;
  if (std::isfinite(reach)) height = std::min({height, reach / shape, kTileHeight});
  height = RoundToLong(std::max(height, kLeastTileHeight));
  for (int i = 1; i <= kSubjects; ++i) {
    Place(home.Named<PictureBox>(Indexed("pic", i)),
          {.left = 0, .top = 0, .width = 1.0 * RoundToLong(height * shape), .height = height});
  }
}

/// One column of tiles, from `first` on every second.
void PlaceColumn(const Form& home, int first, double left, double top, double gap) {
  const double height = PlaceOf(home.Named<PictureBox>(Indexed("pic", 1))).height;
  for (int i = first; i <= kSubjects; i += 2) {
    auto* tile = home.Named<PictureBox>(Indexed("pic", i));
    Place(tile, {.left = left, .top = top, .width = PlaceOf(tile).width, .height = height});
    top += gap + height;
  }
}

/// Between the columns, below the captions.
TwipsRect PencilRoom(const Form& home) {
  const TwipsRect left = PlaceOf(home.Named<PictureBox>(Indexed("pic", kSubjects)));
  const TwipsRect right = PlaceOf(home.Named<PictureBox>(Indexed("pic", 2)));
  const double from = left.left + left.width + 2 * kBesideTile;
  const double top = std::max(kLabelTop[3] + kLabelHeight, right.top) + kBesideTile;
  return {.left = from,
          .top = top,
          .width = right.left - 2 * kBesideTile - from,
          .height = left.top + left.height - top};
}

}  // namespace

HomeForm::HomeForm() : Form(kHomeForm, Kind::FrameChild) {
  setWindowTitle(QStringLiteral("BRAM-LEE: Home"));
  SetClient(new HomeGround(this));
  SetGround(0x00FFF4E0);
  // Where they meet, the title lies lowest and the tiles on top.
  MakeTitle();
  MakeSubjects();
  AddHiddenText(QStringLiteral("txtdrv"), QStringLiteral("C:"));
  AddHiddenText(QStringLiteral("txtfrmno"), QStringLiteral("-3"))
      ->setToolTip(QStringLiteral("Form Number"));
  MakeMenus();
}

void HomeForm::MakeTitle() {
  for (int i = 0; i < kTitleLines; ++i) {
    Label* line = AddLabel(Indexed("lblsol", i), QString::fromLatin1(kTitle[i].caption));
    line->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    SetForeColor(line, 0x00A0400D);
  }
  Named<Label>(Indexed("lblsol", 1))->setToolTip(QStringLiteral("Click Me"));
}

void HomeForm::MakeSubjects() {
  for (int i = 1; i <= kLabels; ++i) {
    const Subject& subject = kSubject[i - 1];
    Label* label = AddLabel(Indexed("lbl1", i), QString::fromLatin1(subject.caption));
    label->setToolTip(QStringLiteral("Click Me"));
    label->setCursor(Qt::PointingHandCursor);
    const bool left = i % 2 == 1;
    label->setAlignment((left ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    QFont font = Serif("Times New Roman", true);
    font.setPixelSize(kLabelPixels);
    label->setFont(font);
    SetForeColor(label, subject.colour);
    Place(label, {.left = kLabelLeft[left ? 0 : 1],
                  .top = kLabelTop[(i - 1) / 2],
                  .width = kLabelWidth,
                  .height = kLabelHeight});
    connect(label, &Label::Clicked, this, [this, i] { lbl1_Click(i); });
  }
  for (int i = 1; i <= kSubjects; ++i) {
    PictureBox* tile = AddPicture(Indexed("pic", i), QString::fromLatin1(kSubject[i - 1].caption));
    tile->setAccessibleName(QString::fromLatin1(kSubject[i - 1].caption));
    tile->SetPicture(QStringLiteral(":/pictures/home/%1.jpg").arg(i));
    connect(tile, &PictureBox::clicked, this, [this, i] { pic_Click(i); });
  }
}

void HomeForm::MakeMenus() {
  QMenu* file = AddMenu(QStringLiteral("mnufile"), QStringLiteral("&File"));
  AddCommand(file, QStringLiteral("mnuback"), QStringLiteral("&Back"), [this] { mnuback_Click(); });
  AddCommand(file, QStringLiteral("mnuexit"), QStringLiteral("&Exit"), [this] { mnuexit_Click(); });
  AddBarItem(QStringLiteral("mnubiodata"), QStringLiteral("&BioData"),
             [this] { mnubiodata_Click(); });
  QMenu* drives = AddMenu(QStringLiteral("mnudrvs"), QStringLiteral("&Drive"));
  for (int i = 1; i <= kDrives; ++i) {
    const QString caption = QStringLiteral("%1:").arg(QChar(u'A' + i - 1));
    AddItem(drives, Indexed("mnudrv", i), caption, [this, i] { mnudrv_Click(i); });
  }
}

void HomeForm::Form_Load() {
  Trap(
      QStringLiteral("603:01"),
      [this](ErrInfo&) {
        ScreenRec rec;
        FillScreenRec(rec);
        setProperty("ScaleFlag", rec.ScaleFlag);
        CentreOnScreen(rec.ScrW, rec.ScrH);
        LayOut(rec);
        auto* drive = Named<QAction>(Indexed("mnudrv", kDriveC));
        drive->setChecked(true);
        SetText(QStringLiteral("txtdrv"), CaptionOf(drive));
      },
      [](ErrInfo& err) {
        MsgBox(QStringLiteral("ERROR"));
        ReportError(err);
      });
}

void HomeForm::LayOut(const ScreenRec& rec) {
  Trap(
      QStringLiteral("601:23"),
      [this, &rec](ErrInfo&) {
        const double u = rec.UnitW;
        const double v = rec.UnitH;
        TwipsRect line{.left = 1.0 * RoundToLong((rec.ScrW - 120 * u) / 2),
                       .top = 2 * u,
                       .width = 1.0 * RoundToLong(120 * u),
                       .height = 8 * u};
        const double right = line.left + line.width;
        for (int i = 0; i < kTitleLines; ++i) {
          auto* label = Named<Label>(Indexed("lblsol", i));
          Place(label, line);
          // The words end at the right and leave the subjects' captions uncovered.
          const double room = right - std::max(line.left, kLabelsRight + kLabelLeft[0]);
          FitFont(label, Serif("Times New Roman", true),
                  {PixelsOf(room), PixelsOf(kTitle[i].height * u)});
          line.top += 9 * u;
        }
        const TwipsRect last = PlaceOf(Named<Label>(Indexed("lblsol", kTitleLines - 1)));
        const double top = last.top + last.height + 5 * v;
        SizeTiles(*this, last.left, top, 2 * u);
        PlaceColumn(*this, 1, last.left, top, 2 * u);
        const double width = PlaceOf(Named<PictureBox>(Indexed("pic", 2))).width;
        PlaceColumn(*this, 2, last.left + last.width - width, top, 2 * u);
        static_cast<HomeGround*>(client())->SetPencilRoom(PixelsOf(PencilRoom(*this)));
      },
      [](ErrInfo&) { MsgBox(QStringLiteral("ERROR2")); });
}

void HomeForm::pic_Click(int index) {
  Trap({}, [index](ErrInfo&) { ShowForm(kSubject[index - 1].board); });
}

void HomeForm::lbl1_Click(int index) {
  if (index > kSubjects) return;
  pic_Click(index);
  // A board that was left open keeps its drive when the capitals are asked for by their label, as
  // it does for all tiles.
  if (index == 1) return;
  Trap({}, [this, index](ErrInfo&) {
    if (Form* board = LoadedForm(kSubject[index - 1].board)) {
      board->SetText(QStringLiteral("txtdrv"), TextOf(QStringLiteral("txtdrv")));
    }
  });
}

void HomeForm::mnudrv_Click(int index) {
  Trap({}, [this, index](ErrInfo&) {
    for (int i = 1; i <= kDrives; ++i) Named<QAction>(Indexed("mnudrv", i))->setChecked(i == index);
    SetText(QStringLiteral("txtdrv"), CaptionOf(Named<QAction>(Indexed("mnudrv", index))));
  });
}

void HomeForm::mnuback_Click() {
  Trap({}, [this](ErrInfo&) { UnloadForm(this); });
}

void HomeForm::mnubiodata_Click() {
  Trap({}, [](ErrInfo&) { ShowForm(kCardForm); });
}

void HomeForm::mnuexit_Click() {
  Trap(QStringLiteral("603:02"), [](ErrInfo& err) {
    err.ErrText = QStringLiteral("Error:Unload all");
    UnloadAll();
    EndProgram();
  });
}

}  // namespace bramlee
