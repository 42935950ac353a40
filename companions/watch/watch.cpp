#include "companions/watch/watch.h"

#include <QSlider>
#include <cmath>

#include "board/board.h"
#include "board/strip.h"
#include "board/strip_pictures.h"
#include "files/trap.h"
#include "ui/choices.h"

namespace bramlee {
namespace {

const QString kSpeed = QStringLiteral("watch/speed");

/// The slider stands at tenths of a doubling: from an eighth to eight times.
constexpr int kStepsPerDoubling = 10;
constexpr int kMostDoublings = 3;
constexpr int kSliderPixels = 132;

double RateAt(int position) {
  return std::exp2(static_cast<double>(position) / kStepsPerDoubling);
}

QIcon BackPicture() {
  return StripPicture({
      {{26, 22},  {26, 78}},
      { {72, 22}, {42, 50}, {72, 78}, {72, 22}}
  });
}

QIcon OnPicture() {
  return StripPicture({
      {{74, 22},  {74, 78}},
      { {28, 22}, {58, 50}, {28, 78}, {28, 22}}
  });
}

QIcon PausePicture() {
  return StripPicture({
      {{36, 22}, {36, 78}},
      {{64, 22}, {64, 78}}
  });
}

QIcon GoOnPicture() {
  return StripPicture({
      {{34, 20}, {72, 50}, {34, 80}, {34, 20}}
  });
}

QIcon AgainPicture() {
  return StripPicture({
      StripArc({50,        52      },
      28, 60, 360), { {48, 12}, {64, 28}, {48, 44}}
  });
}

/// One a board.
class Watching : public QObject {
 public:
  explicit Watching(Board& board) : QObject(&board), board_(board) {
    Strip& strip = board.strip();
    const auto add = [&](const StripItem& item, void (Watching::*press)()) {
      return strip.AddButton(Strip::Group::Watch, item, [this, press] { Do(press); });
    };
    back_ = add({.name = "strip_back",
                 .text = QStringLiteral("Stroke back"),
                 .key = Qt::Key_Left,
                 .picture = BackPicture(),
                 .keyWorks = StripKeyWorks::WhileWriting},
                &Watching::Back);
    pause_ = add({.name = "strip_pause",
                  .text = QStringLiteral("Pause"),
                  .key = Qt::Key_Space,
                  .picture = pausePicture_,
                  .keyWorks = StripKeyWorks::WhileWriting},
                 &Watching::PauseOrGoOn);
    on_ = add({.name = "strip_on",
               .text = QStringLiteral("Stroke on"),
               .key = Qt::Key_Right,
               .picture = OnPicture(),
               .keyWorks = StripKeyWorks::WhileWriting},
              &Watching::On);
    again_ = add({.name = "strip_again",
                  .text = QStringLiteral("Again"),
                  .key = Qt::Key_R,
                  .picture = AgainPicture(),
                  .keyWorks = StripKeyWorks::Always},
                 &Watching::Again);
    strip.AddControl(Strip::Group::Watch, MakeSlider());
    connect(&board.pen(), &BoardPen::Changed, this, [this] { Follow(); });
    connect(&Choices::Instance(), &Choices::Changed, this, [this] { FollowSpeed(); });
    FollowSpeed();
    Follow();
  }

 private:
  BoardPen& Pen() { return board_.pen(); }

  /// What is written by then stays when a stroke finds no memory.
  void Do(void (Watching::*press)()) {
    Trap(QStringLiteral("wat:01"), [&](ErrInfo&) { (this->*press)(); });
  }
  void Back() { Pen().StrokeBack(); }
  void On() { Pen().StrokeOn(); }
  void Again() { Pen().Again(); }
  void PauseOrGoOn() {
    if (Pen().IsPaused()) {
      Pen().GoOn();
    } else {
      Pen().Pause();
    }
  }

  QSlider* MakeSlider() {
    slider_ = new QSlider(Qt::Horizontal);
    slider_->setObjectName(QStringLiteral("strip_speed"));
    slider_->setAccessibleName(QStringLiteral("Speed of the pen"));
    slider_->setRange(-kMostDoublings * kStepsPerDoubling, kMostDoublings * kStepsPerDoubling);
    slider_->setSingleStep(kStepsPerDoubling / 2);
    slider_->setPageStep(kStepsPerDoubling);
    slider_->setTickInterval(kStepsPerDoubling);
    slider_->setTickPosition(QSlider::TicksBothSides);
    slider_->setFixedSize(kSliderPixels, kStripButtonPixels);
    slider_->setFocusPolicy(Qt::TabFocus);
    connect(slider_, &QSlider::valueChanged, this,
            [](int position) { Choices::Instance().Choose(kSpeed, position); });
    return slider_;
  }

  void FollowSpeed() {
    slider_->setValue(Choices::Instance().Of(kSpeed, 0).toInt());
    const double rate = RateAt(slider_->value());
    slider_->setToolTip(QStringLiteral("Speed of the pen: %1 times").arg(rate, 0, 'g', 2));
    Pen().SetRate(rate);
  }

  void Follow() {
    const bool writing = Pen().IsWriting();
    const bool paused = Pen().IsPaused();
    const std::size_t last = Pen().LastLetter();
    const bool hasLetter = last < Pen().Letters().Letters().size();
    const Player::Where stands = Pen().Stands();
    const bool atStart = stands.letter <= last && stands.stroke == 0 && !stands.begun;
    back_->setEnabled(hasLetter && !atStart);
    on_->setEnabled(writing || paused);
    pause_->setEnabled(writing || paused);
    again_->setEnabled(hasLetter);
    const QString text = paused ? QStringLiteral("Go on") : QStringLiteral("Pause");
    if (pause_->accessibleName() == text) return;
    pause_->setAccessibleName(text);
    pause_->setToolTip(text + QStringLiteral(" (Space)"));
    pause_->setIcon(paused ? goOnPicture_ : pausePicture_);
  }

  Board& board_;
  const QIcon pausePicture_ = PausePicture();
  const QIcon goOnPicture_ = GoOnPicture();
  StripButton* back_;
  StripButton* pause_;
  StripButton* on_;
  StripButton* again_;
  QSlider* slider_ = nullptr;
};

}  // namespace

void AddWatching(Board& board) {
  new Watching(board);
}

}  // namespace bramlee
