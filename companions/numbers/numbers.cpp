#include "companions/numbers/numbers.h"

#include "board/board.h"
#include "board/strip.h"
#include "board/strip_pictures.h"
#include "companions/numbers/number_layer.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

const QString kShown = QStringLiteral("numbers/shown");
const QString kLeftHand = QString::fromLatin1(kLeftHandChoice);

StripStroke Line(QPointF from, QPointF to) {
  return {from, to};
}

/// A 1 in a ring, and the arrow of a stroke downward.
QIcon Picture() {
  const StripStroke ring = StripArc({36, 38}, 26, 90, 450);
  const StripStroke one = Line({36, 28}, {36, 48});
  const StripStroke shaft = Line({78, 18}, {78, 82});
  const StripStroke left = Line({64, 66}, {78, 84});
  const StripStroke right = Line({78, 84}, {92, 66});
  return StripPicture({ring, one, shaft, left, right});
}

/// One a board.
class Numbering : public QObject {
 public:
  explicit Numbering(Board& board) : QObject(&board), board_(board), layer_(board.pen()) {
    button_ = board.strip().AddButton(
        Strip::Group::Teacher,
        {.name = "strip_numbers",
         .text = QStringLiteral("Numbers and arrows"),
         .key = Qt::Key_N,
         .picture = Picture(),
         .checkable = true,
         .keyWorks = StripKeyWorks::Always},
        [this] { Choices::Instance().Choose(kShown, button_->isChecked()); });
    board.sheet().AddLayerAbove(layer_);
    connect(&board.pen(), &BoardPen::Changed, this, [this] { FollowPen(); });
    connect(&Choices::Instance(), &Choices::Changed, this, [this] { FollowChoices(); });
    FollowChoices();
  }

 private:
  void FollowPen() {
    if (button_->isChecked()) board_.sheet().update();
  }

  void FollowChoices() {
    const Choices& choices = Choices::Instance();
    button_->setChecked(choices.Of(kShown, false).toBool());
    layer_.Show(button_->isChecked());
    layer_.SetHand(choices.Of(kLeftHand, false).toBool() ? Hand::Left : Hand::Right);
    board_.sheet().update();
  }

  Board& board_;
  StripButton* button_;
  NumberLayer layer_;
};

}  // namespace

void AddNumbers(Board& board) {
  new Numbering(board);
}

}  // namespace bramlee
