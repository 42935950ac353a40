// The capitals board in a program that prints, line by line, what reaches it. Beside the board
// stand a text box, a window with a button, and a handler that asks between two strokes.
//
//   watched_board STEP [WIDTHxHEIGHT] [strip]
//
// With "strip" the board has one, with the hand on the pen; "paused" and "runs" tell of the pen.
// It begins with places on the screen, that of the sheet in its window, in device pixels.
// Lines it reads: "call NAME" comes back by another thread, as a queued call to the form;
// "save FILE" saves the picture of the sheet's dots.
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>
#include <cstdio>
#include <iostream>
#include <string>
#include <thread>
#include <utility>

#include "board/board.h"
#include "board/companions.h"
#include "companions/watch/watch.h"
#include "engine/run.h"
#include "ui/forms.h"
#include "ui/message_box.h"

namespace bramlee {
namespace {

void Say(const QString& line) {
  std::puts(qPrintable(line));
  std::fflush(stdout);
}

void SayPlace(const QString& name, const QWidget* control) {
  const double ratio = control->devicePixelRatioF();
  const QPointF place = control->mapToGlobal(control->rect().center()).toPointF() * ratio;
  Say(QStringLiteral("%1 at %2 %3").arg(name).arg(place.x()).arg(place.y()));
}

/// Tells of keys and closes as controls and forms meet them.
class Watch : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() == QEvent::KeyPress && receiver == QApplication::focusWidget()) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      Say(QStringLiteral("key ") + QKeySequence(key).toString(QKeySequence::PortableText));
    }
    if (event->type() == QEvent::Wheel && qobject_cast<Sheet*>(receiver) != nullptr) {
      Say(QStringLiteral("wheel"));
    }
    if (event->type() == QEvent::Move && qobject_cast<Sheet*>(receiver) != nullptr) {
      const QPoint place = static_cast<QMoveEvent*>(event)->pos();
      Say(QStringLiteral("sheet moved %1 %2").arg(place.x()).arg(place.y()));
    }
    if (event->type() == QEvent::Resize && qobject_cast<Board*>(receiver) != nullptr) {
      const QSize size = static_cast<QResizeEvent*>(event)->size();
      Say(QStringLiteral("board %1 %2").arg(size.width()).arg(size.height()));
    }
    if (event->type() == QEvent::WindowActivate && qobject_cast<QDialog*>(receiver) != nullptr) {
      Say(QStringLiteral("box"));
    }
    if (event->type() == QEvent::Close && qobject_cast<Form*>(receiver) != nullptr) {
      Say(QStringLiteral("close ") + receiver->objectName());
    }
    return false;
  }
};

/// A window beside the board, with a button.
class OtherWindow : public Form {
 public:
  OtherWindow() : Form(QStringLiteral("other")) {
    setWindowTitle(QStringLiteral("other"));
    button_ = new QPushButton(QStringLiteral("other"), client());
    button_->setGeometry(10, 10, 100, 40);
    connect(button_, &QPushButton::clicked, this, [] { Say(QStringLiteral("other clicked")); });
  }
  void SayItsPlace() const { SayPlace(QStringLiteral("other"), button_); }

 private:
  QPushButton* button_;
};

void WriteLine(Board& board, double y) {
  const double line[] = {400, y, 700};
  board.pen().WriteRuling({{}, board.sheet().Step(), {MakeRun(Primitive::LineRight, line)}}, 0xFF);
}

/// Writes a line, asks, and writes another.
void AskBetweenLines(Board& board) {
  Say(QStringLiteral("begins asking"));
  WriteLine(board, 400);
  Say(QStringLiteral("asks"));
  MsgBox(QStringLiteral("Well?"));
  Say(QStringLiteral("answered"));
  WriteLine(board, 420);
}

class WatchedBoard {
 public:
  WatchedBoard(const QString& step, const QSize& size) {
    RegisterBoards();
    RegisterForm(QStringLiteral("other"), [] { return new OtherWindow; });
    board_ = static_cast<Board*>(LoadForm(QStringLiteral("fbrmengc02")));
    board_->SetText(QStringLiteral("txtspd"), step);
    WatchTiles();
    WatchPen();
    AddControls();
    other_ = static_cast<OtherWindow*>(LoadForm(QStringLiteral("other")));
    if (size.isEmpty()) {
      board_->Present();
    } else {
      board_->SetOuter(TwipsOf(QRect({0, 0}, size)));
      board_->show();
    }
    other_->setGeometry(1000, 560, 200, 100);
    other_->show();
    settled_.start();
    settling_.start(20);
    QObject::connect(&settling_, &QTimer::timeout, board_, [this] { SayWhenReady(); });
  }

 private:
  void WatchTiles() {
    for (int i = 1; i <= 26; ++i) {
      const QString number = QString::number(i);
      QObject::connect(board_->Tile(i), &PictureBox::released, board_,
                       [number] { Say(QStringLiteral("begins ") + number); });
      // Connected after the board's own handler, so this comes when that has returned.
      QObject::connect(board_->Tile(i), &PictureBox::clicked, board_, [this, number] {
        Say(QStringLiteral("written %1 dots %2")
                .arg(number)
                .arg(board_->sheet().Dots().KeptDots()));
      });
    }
    QObject::connect(board_->Named<QTimer>(QStringLiteral("Timer1")), &QTimer::timeout, board_,
                     [] { Say(QStringLiteral("tick")); });
    QObject::connect(board_->Named<QMenu>(QStringLiteral("mnufile")), &QMenu::aboutToShow, board_,
                     [] { Say(QStringLiteral("menu mnufile")); });
    QObject::connect(board_, &QObject::destroyed, [] { Say(QStringLiteral("gone")); });
  }

  void WatchPen() {
    QObject::connect(&board_->pen(), &BoardPen::Changed, board_, [this] {
      const bool paused = board_->pen().IsPaused();
      if (paused != std::exchange(paused_, paused)) {
        Say(paused ? QStringLiteral("paused") : QStringLiteral("runs"));
      }
    });
  }

  void AddControls() {
    text_ = new QLineEdit(&board_->sheet());
    text_->setGeometry(20, 540, 200, 30);
    QObject::connect(text_, &QLineEdit::textEdited, board_,
                     [](const QString& text) { Say(QStringLiteral("text ") + text); });
    asks_ = new QPushButton(QStringLiteral("asks"), &board_->sheet());
    asks_->setGeometry(20, 580, 100, 30);
    asks_->setFocusPolicy(Qt::NoFocus);
    QObject::connect(asks_, &QPushButton::clicked, board_, [this] {
      AskBetweenLines(*board_);
      Say(QStringLiteral("done asking"));
    });
  }

  /// Ready once the window manager has placed both windows and moved them no more.
  void SayWhenReady() {
    const QRect place(board_->mapToGlobal(QPoint()), board_->size());
    if (place != place_) settled_.restart();
    place_ = place;
    const bool seen = board_->windowHandle()->isExposed() && other_->windowHandle()->isExposed();
    if (!seen || settled_.elapsed() < 300) return;
    settling_.stop();
    for (int i = 1; i <= 26; ++i) {
      SayPlace(QStringLiteral("tile %1").arg(i), board_->Tile(i));
    }
    for (const QToolButton* button : board_->findChildren<QToolButton*>()) {
      if (button->objectName().startsWith(QStringLiteral("strip_"))) {
        SayPlace(button->objectName(), button);
      }
    }
    SayPlace(QStringLiteral("text"), text_);
    SayPlace(QStringLiteral("asks"), asks_);
    other_->SayItsPlace();
    const double ratio = board_->devicePixelRatioF();
    const QPointF sheet = board_->sheet().mapTo(board_, QPoint()).toPointF() * ratio;
    Say(QStringLiteral("sheet at %1 %2").arg(sheet.x()).arg(sheet.y()));
    Say(QStringLiteral("window %1").arg(board_->winId()));
    Say(QStringLiteral("ready"));
  }

 public:
  void TakeLine(const QString& line) {
    const QString rest = line.section(u' ', 1);
    if (line.startsWith(QStringLiteral("call "))) {
      Say(QStringLiteral("called ") + rest);
    } else if (line.startsWith(QStringLiteral("save "))) {
      const Sheet& sheet = board_->sheet();
      sheet.Dots()
          .Picture(sheet.rect(), sheet.devicePixelRatioF(), ColourOf(board_->record().backColor))
          .save(rest, "png");
      Say(QStringLiteral("saved"));
    }
  }

  Board* board_;

 private:
  OtherWindow* other_;
  QLineEdit* text_;
  QPushButton* asks_;
  bool paused_ = false;
  QTimer settling_;
  QElapsedTimer settled_;
  QRect place_;
};

/// Takes lines on a thread of its own, as the strokes hold the other, and sends each over.
void TakeLines(WatchedBoard& board) {
  for (std::string line; std::getline(std::cin, line);) {
    const QString text = QString::fromStdString(line);
    QMetaObject::invokeMethod(
        qApp,
        [&board, text] {
          Say(QStringLiteral("came ") + text);
          WhenFree(qApp, [&board, text] { board.TakeLine(text); });
        },
        Qt::QueuedConnection);
  }
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  using namespace bramlee;
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  qApp->installEventFilter(new Watch(qApp));
  const QStringList arguments = QApplication::arguments();
  QSize size;
  if (arguments.contains(QStringLiteral("strip"))) AddCompanion(AddWatching);
  if (arguments.size() > 2 && arguments[2].contains(u'x')) {
    size = {arguments[2].section(u'x', 0, 0).toInt(), arguments[2].section(u'x', 1).toInt()};
  }
  Environment environment;
  UseMessageBoxes(environment);
  WatchedBoard board(arguments[1], size);
  std::thread([&board] { TakeLines(board); }).detach();
  return QApplication::exec();
}
