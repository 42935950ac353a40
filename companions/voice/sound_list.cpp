#include "companions/voice/sound_list.h"

#include <QPainter>
#include <QPixmap>

namespace bramlee {
namespace {

constexpr QSize kPicture(84, 60);
constexpr QSize kCell(104, 92);
constexpr int kMarkPixels = 22;
constexpr int kShortName = 6;

const QColor kOwnGreen(0x2E, 0x7D, 0x32);
const QColor kMissingRed(0xC6, 0x28, 0x28);
const QColor kMakersGrey(0x75, 0x75, 0x75);
const QColor kChosenBlue(0x15, 0x65, 0xC0);

QColor ColourOf(VoiceOf voice) {
  switch (voice) {
    case VoiceOf::Own:
      return kOwnGreen;
    case VoiceOf::Maker:
      return kMakersGrey;
    case VoiceOf::Nobody:
      break;
  }
  return kMissingRed;
}

/// A tick, a dot or a cross, so that the marks differ without their colours too.
void PaintMark(QPainter& painter, VoiceOf voice) {
  const QRectF disc(kPicture.width() - kMarkPixels - 1, 1, kMarkPixels, kMarkPixels);
  painter.setPen(QPen(Qt::white, 2));
  painter.setBrush(ColourOf(voice));
  painter.drawEllipse(disc);
  painter.setPen(QPen(Qt::white, 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF centre = disc.center();
  if (voice == VoiceOf::Own) {
    const QPointF tick[] = {centre + QPointF(-5, 0), centre + QPointF(-1, 4),
                            centre + QPointF(5, -4)};
    painter.drawPolyline(tick, std::size(tick));
  } else if (voice == VoiceOf::Maker) {
    painter.drawPoint(centre);
  } else {
    painter.drawLine(centre + QPointF(-4, -4), centre + QPointF(4, 4));
    painter.drawLine(centre + QPointF(-4, 4), centre + QPointF(4, -4));
  }
}

void PaintSound(QPainter& painter, const BoardSound& sound) {
  const QRect field(QPoint(0, 0), kPicture);
  if (!sound.picture.isEmpty()) {
    const QPixmap picture(sound.picture);
    const QSize size = picture.size().scaled(kPicture, Qt::KeepAspectRatio);
    const QRect place(
        QPoint((kPicture.width() - size.width()) / 2, (kPicture.height() - size.height()) / 2),
        size);
    return painter.drawPixmap(place, picture);
  }
  painter.fillRect(field, Qt::white);
  QFont font = painter.font();
  const bool isShort = sound.name.size() <= kShortName;
  font.setPixelSize(kPicture.height() / (isShort ? 3 : 5));
  painter.setFont(font);
  painter.setPen(Qt::black);
  painter.drawText(field, Qt::AlignCenter | Qt::TextWordWrap, sound.name);
}

QPixmap PictureOf(const BoardSound& sound, VoiceOf voice, bool chosen) {
  constexpr double kRatio = 2;
  constexpr double kFrame = 4;
  QPixmap picture(kPicture * kRatio);
  picture.setDevicePixelRatio(kRatio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  PaintSound(painter, sound);
  if (chosen) {
    painter.setPen(QPen(kChosenBlue, kFrame));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(QPointF(), QSizeF(kPicture))
                         .adjusted(kFrame / 2, kFrame / 2, -kFrame / 2, -kFrame / 2));
  }
  PaintMark(painter, voice);
  return picture;
}

/// With a picture for a chosen one too: the usual tint would change the marks' colours.
QIcon IconOf(const BoardSound& sound, VoiceOf voice) {
  QIcon icon(PictureOf(sound, voice, false));
  icon.addPixmap(PictureOf(sound, voice, true), QIcon::Selected);
  icon.addPixmap(PictureOf(sound, voice, false), QIcon::Disabled);
  return icon;
}

}  // namespace

QString VoiceText(VoiceOf voice) {
  switch (voice) {
    case VoiceOf::Own:
      return QStringLiteral("own voice");
    case VoiceOf::Maker:
      return QStringLiteral("maker's");
    case VoiceOf::Nobody:
      break;
  }
  return QStringLiteral("missing");
}

SoundList::SoundList(QWidget* parent) : QListWidget(parent) {
  setViewMode(QListView::IconMode);
  setResizeMode(QListView::Adjust);
  setMovement(QListView::Static);
  setUniformItemSizes(true);
  setIconSize(kPicture);
  setGridSize(kCell);
}

int SoundList::Offer(const BoardSound& sound) {
  const auto known = sounds_.indexOf(sound);
  if (known >= 0) return static_cast<int>(known);
  sounds_.append(sound);
  voices_.append(VoiceOf::Nobody);
  addItem(QString());
  ShowVoice(count() - 1, VoiceOf::Nobody);
  return count() - 1;
}

BoardSound SoundList::Chosen() const {
  return currentRow() < 0 ? BoardSound() : sounds_[currentRow()];
}

VoiceOf SoundList::ChosenVoice() const {
  return currentRow() < 0 ? VoiceOf::Nobody : voices_[currentRow()];
}

bool SoundList::ChooseNext() {
  if (currentRow() + 1 >= count()) return false;
  setCurrentRow(currentRow() + 1);
  return true;
}

void SoundList::ShowVoice(int row, VoiceOf voice) {
  voices_[row] = voice;
  QListWidgetItem* cell = item(row);
  cell->setIcon(IconOf(sounds_[row], voice));
  cell->setText(VoiceText(voice));
  const QString whole = QStringLiteral("%1: %2").arg(sounds_[row].name, VoiceText(voice));
  cell->setToolTip(whole);
  cell->setData(Qt::AccessibleTextRole, whole);
}

void SoundList::ShowVoices(const OwnSounds& own) {
  for (int row = 0; row < count(); ++row) {
    const VoiceOf voice = own.Of(sounds_[row].sound);
    if (voice != voices_[row]) ShowVoice(row, voice);
  }
}

int SoundList::OwnOnes() const {
  return static_cast<int>(voices_.count(VoiceOf::Own));
}

}  // namespace bramlee
