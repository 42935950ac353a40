#include "companions/fit/fit.h"

#include "board/board.h"
#include "board/strip.h"
#include "board/strip_pictures.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

const QString kFits = QStringLiteral("fit/window");

/// The corners of a window, and a board that grows towards them.
QIcon FitPicture() {
  const StripStroke topLeft = {
      {12, 34},
      {12, 14},
      {34, 14}
  };
  const StripStroke topRight = {
      {66, 14},
      {88, 14},
      {88, 34}
  };
  const StripStroke bottomRight = {
      {88, 66},
      {88, 86},
      {66, 86}
  };
  const StripStroke bottomLeft = {
      {34, 86},
      {12, 86},
      {12, 66}
  };
  const StripStroke board = {
      {36, 40},
      {64, 40},
      {64, 60},
      {36, 60},
      {36, 40}
  };
  return StripPicture({topLeft, topRight, bottomRight, bottomLeft, board});
}

bool Chosen() {
  return Choices::Instance().Of(kFits, false).toBool();
}

/// One a board.
class Fitting : public QObject {
 public:
  explicit Fitting(Board& board) : QObject(&board), board_(board) {
    button_ = board.strip().AddButton(Strip::Group::Teacher,
                                      {.name = "strip_fit",
                                       .text = QStringLiteral("Fit the board to the window"),
                                       .key = Qt::Key_F,
                                       .picture = FitPicture(),
                                       .checkable = true,
                                       .keyWorks = StripKeyWorks::Always},
                                      [this] { Choose(button_->isChecked()); });
    connect(&Choices::Instance(), &Choices::Changed, this, [this](const QString& name) {
      if (name == kFits) Follow();
    });
    Follow();
  }

 private:
  static void Choose(bool fits) { Choices::Instance().Choose(kFits, fits); }

  void Follow() {
    button_->setChecked(Chosen());
    board_.SetFitsWindow(Chosen());
  }

  Board& board_;
  StripButton* button_ = nullptr;
};

}  // namespace

void AddFitting(Board& board) {
  new Fitting(board);
}

}  // namespace bramlee
