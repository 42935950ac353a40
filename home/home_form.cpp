#include "home/home_form.h"

#include <algorithm>
#include <cmath>
#include <iterator>
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

constexpr int kDrives = 26;
constexpr int kDriveC = 3;
constexpr int kTitleLines = 3;

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
constexpr int kRows = std::size(kLabelTop);
static_assert(kMostSubjects == std::size_t{2} * kRows);
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

/// Subjects stand left and right by turns, the first of them left.
bool IsLeft(int index) {
  return index % 2 == 1;
}

/// How far right a tile of the left column may reach that begins at `top`: up to the captions of
/// the right column beside it, which end at their labels' right.
double RightmostBeside(const std::vector<Label*>& captions, double top) {
  double rightmost = std::numeric_limits<double>::infinity();
  for (const Label* label : captions) {
    const TwipsRect place = PlaceOf(label);
    const QFontMetrics metrics = label->fontMetrics();
    if (place.top + (place.height + kTwipsPerPixel * metrics.height()) / 2 <= top) continue;
    const double words = kTwipsPerPixel * metrics.horizontalAdvance(label->text());
    rightmost = std::min(rightmost, place.left + place.width - words - kBesideTile);
  }
  return rightmost;
}

/// The tiles' size, in their design's proportions, for all rows from `top` on: at design size
/// beside the labels, where they may be `reach` wide; below them as large as the screen lets them
/// be.
TwipsRect TileSize(double reach, double top, double gap) {
  const double shape = kTileWidth / kTileHeight;
  double height = (Screen().height - kAboveAndBelow - top - (kRows - 1) * gap) / kRows;
  if (std::isfinite(reach)) height = std::min({height, reach / shape, kTileHeight});
  height = RoundToLong(std::max(height, kLeastTileHeight));
  return {.left = 0, .top = 0, .width = 1.0 * RoundToLong(height * shape), .height = height};
}

/// One column of tiles, the first of them at that place.
void PlaceColumn(const std::vector<PictureBox*>& tiles, TwipsRect place, double gap) {
  for (PictureBox* tile : tiles) {
    Place(tile, place);
    place.top += gap + place.height;
  }
}

/// Between the columns, below the captions; none where a column has no tile.
TwipsRect PencilRoom(const std::vector<PictureBox*>& leftTiles,
                     const std::vector<PictureBox*>& rightTiles) {
  if (leftTiles.empty() || rightTiles.empty()) return {};
  const TwipsRect left = PlaceOf(leftTiles.back());
  const TwipsRect right = PlaceOf(rightTiles.front());
  const double from = left.left + left.width + 2 * kBesideTile;
  const double top = std::max(kLabelTop[kRows - 1] + kLabelHeight, right.top) + kBesideTile;
  return {.left = from,
          .top = top,
          .width = right.left - 2 * kBesideTile - from,
          .height = left.top + left.height - top};
}

}  // namespace

HomeForm::HomeForm(std::span<const HomeSubject> subjects)
    : Form(kHomeForm, Kind::FrameChild), subjects_(subjects) {
  Q_ASSERT(subjects.size() <= kMostSubjects);
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
  for (std::size_t i = 0; i < subjects_.size(); ++i) MakeCaption(static_cast<int>(i + 1));
  for (std::size_t i = 0; i < subjects_.size(); ++i) MakeTile(static_cast<int>(i + 1));
}

void HomeForm::MakeCaption(int index) {
  const HomeSubject& subject = Subject(index);
  Label* label = AddLabel(Indexed("lbl1", index), QString::fromLatin1(subject.caption));
  label->setToolTip(QStringLiteral("Click Me"));
  label->setCursor(Qt::PointingHandCursor);
  const bool left = IsLeft(index);
  label->setAlignment((left ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
  QFont font = Serif("Times New Roman", true);
  font.setPixelSize(kLabelPixels);
  label->setFont(font);
  SetForeColor(label, subject.colour);
  Place(label, {.left = kLabelLeft[left ? 0 : 1],
                .top = kLabelTop[(index - 1) / 2],
                .width = kLabelWidth,
                .height = kLabelHeight});
  connect(label, &Label::Clicked, this, [this, index] { lbl1_Click(index); });
  if (!left) rightCaptions_.push_back(label);
}

void HomeForm::MakeTile(int index) {
  const HomeSubject& subject = Subject(index);
  if (subject.board == nullptr) return;
  const QString caption = QString::fromLatin1(subject.caption);
  PictureBox* tile = AddPicture(Indexed("pic", index), caption);
  tile->setAccessibleName(caption);
  tile->SetPicture(QString::fromLatin1(subject.picture));
  connect(tile, &PictureBox::clicked, this, [this, index] { pic_Click(index); });
  (IsLeft(index) ? leftTiles_ : rightTiles_).push_back(tile);
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
        TwipsRect tile = TileSize(RightmostBeside(rightCaptions_, top) - last.left, top, 2 * u);
        tile.top = top;
        tile.left = last.left;
        PlaceColumn(leftTiles_, tile, 2 * u);
        tile.left = last.left + last.width - tile.width;
        PlaceColumn(rightTiles_, tile, 2 * u);
        const TwipsRect pencil = PencilRoom(leftTiles_, rightTiles_);
        static_cast<HomeGround*>(client())->SetPencilRoom(PixelsOf(pencil));
      },
      [](ErrInfo&) { MsgBox(QStringLiteral("ERROR2")); });
}

void HomeForm::pic_Click(int index) {
  Trap({}, [this, index](ErrInfo&) { ShowForm(Subject(index).board); });
}

void HomeForm::lbl1_Click(int index) {
  if (Subject(index).board == nullptr) return;
  pic_Click(index);
  // A board that was left open keeps its drive when the capitals are asked for by their label, as
  // it does for all tiles.
  if (index == 1) return;
  Trap({}, [this, index](ErrInfo&) {
    if (Form* board = LoadedForm(Subject(index).board)) {
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
  // By its id: what stands behind it is no matter of home's.
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
