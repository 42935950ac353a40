#include "companions/worksheet/tile_picker.h"

#include <QPainter>
#include <QScrollArea>
#include <QShortcut>
#include <algorithm>

#include "ui/controls.h"

namespace bramlee {
namespace {

/// Of a toggle, in logical pixels: the shape of a board's tile, large enough for a finger.
constexpr QSize kToggle(72, 56);
constexpr int kGap = 6;
constexpr int kUsualColumns = 5;

const QColor kChosen(0x15, 0x65, 0xC0);

/// A picture that shows whether it is chosen by an edge and a tick.
class TileToggle : public PictureBox {
 public:
  explicit TileToggle(QWidget* parent) : PictureBox(parent) { setCheckable(true); }

 protected:
  void paintEvent(QPaintEvent* event) override {
    PictureBox::paintEvent(event);
    if (!isChecked()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintEdge(painter);
    PaintTick(painter);
  }

  /// The arrow keys lead to tiles out of sight, too.
  void focusInEvent(QFocusEvent* event) override {
    PictureBox::focusInEvent(event);
    QWidget* around = parentWidget();
    while (around != nullptr && qobject_cast<QScrollArea*>(around) == nullptr) {
      around = around->parentWidget();
    }
    if (around != nullptr) static_cast<QScrollArea*>(around)->ensureWidgetVisible(this);
  }

 private:
  /// Within the edge that shows the focus, so that both can be seen.
  void PaintEdge(QPainter& painter) const {
    constexpr double kWidth = 3;
    constexpr double kInset = 4.5;
    constexpr double kRounding = 4;
    painter.setPen(QPen(kChosen, kWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(kInset, kInset, -kInset, -kInset), kRounding,
                            kRounding);
  }

  void PaintTick(QPainter& painter) const {
    constexpr double kRadius = 9;
    const QPointF centre(width() - kRadius - 2, kRadius + 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kChosen);
    painter.drawEllipse(centre, kRadius, kRadius);
    painter.setPen(QPen(Qt::white, 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF tick[] = {centre + QPointF(-4, 0), centre + QPointF(-1, 3.5),
                            centre + QPointF(4.5, -3.5)};
    painter.drawPolyline(tick, std::size(tick));
  }
};

}  // namespace

TilePicker::TilePicker(QWidget* parent) : QWidget(parent) {
  auto* all = new QShortcut(QKeySequence::SelectAll, this);
  all->setContext(Qt::WidgetWithChildrenShortcut);
  connect(all, &QShortcut::activated, this, &TilePicker::ChooseAll);
}

PictureBox* TilePicker::MakeToggle(int number) {
  auto* box = new TileToggle(this);
  box->setObjectName(Indexed("worksheet_tile", number));
  box->resize(kToggle);
  connect(box, &PictureBox::clicked, this, &TilePicker::Changed);
  return box;
}

void TilePicker::Offer(const QList<OfferedTile>& tiles) {
  if (toggles_.isEmpty()) {
    for (const OfferedTile& tile : tiles) {
      toggles_.append({tile.number, MakeToggle(tile.number)});
    }
    Arrange();
  }
  for (int i = 0; i < Offered(); ++i) {
    PictureBox* box = toggles_[i].box;
    box->SetPicture(tiles[i].picture);
    box->setAccessibleName(tiles[i].name);
    box->setToolTip(tiles[i].name);
  }
}

QList<int> TilePicker::Chosen() const {
  QList<int> chosen;
  for (const Toggle& toggle : toggles_) {
    if (toggle.box->isChecked()) chosen.append(toggle.number);
  }
  return chosen;
}

template <class Wanted>
void TilePicker::ChooseThose(Wanted wanted) {
  const QList<int> before = Chosen();
  for (const Toggle& toggle : toggles_) toggle.box->setChecked(wanted(toggle.number));
  if (Chosen() != before) Q_EMIT Changed();
}

void TilePicker::Choose(const QList<int>& numbers) {
  ChooseThose([&](int number) { return numbers.contains(number); });
}

void TilePicker::ChooseAll() {
  ChooseThose([](int) { return true; });
}

QSize TilePicker::sizeHint() const {
  return {kUsualColumns * (kToggle.width() + kGap) - kGap, minimumHeight()};
}

void TilePicker::Arrange() {
  const int columns = std::max(1, (width() + kGap) / (kToggle.width() + kGap));
  for (int i = 0; i < Offered(); ++i) {
    toggles_[i].box->move(i % columns * (kToggle.width() + kGap),
                          i / columns * (kToggle.height() + kGap));
  }
  const int rows = (Offered() + columns - 1) / columns;
  setMinimumHeight(std::max(0, rows * (kToggle.height() + kGap) - kGap));
}

void TilePicker::resizeEvent(QResizeEvent* /*event*/) {
  Arrange();
}

}  // namespace bramlee
