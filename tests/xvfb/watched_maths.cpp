// The maths board in a program that prints, line by line, what its user sees: where the
// cursor is, results, marks, messages, numbers; and keys that repeat as they are held. Its argument
// is the pen's step, 1 without one.
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>
#include <cstdio>

#include "board/board.h"
#include "maths/maths.h"
#include "maths/result_box.h"
#include "ui/forms.h"
#include "ui/message_box.h"

namespace bramlee {
namespace {

void Say(const QString& line) {
  std::puts(qPrintable(line));
  std::fflush(stdout);
}

/// Tells of messages and lists as they come up, and of a held key as it comes to a window.
class Watch : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    const auto* box = qobject_cast<QMessageBox*>(receiver);
    if (box != nullptr && event->type() == QEvent::WindowActivate) {
      Say(QStringLiteral("message ") + box->text());
    }
    if (qobject_cast<const QAbstractItemView*>(receiver) != nullptr &&
        event->type() == QEvent::FocusIn) {
      Say(QStringLiteral("list open"));
    }
    if (receiver->isWindowType() && event->type() == QEvent::KeyPress &&
        static_cast<const QKeyEvent*>(event)->isAutoRepeat()) {
      Say(QStringLiteral("key repeated"));
    }
    return false;
  }
};

class WatchedMaths {
 public:
  explicit WatchedMaths(const QString& step) {
    RegisterMaths();
    ShowForm(QStringLiteral("fbrmmat01"));
    board_ = static_cast<Board*>(LoadedForm(QStringLiteral("fbrmmat01")));
    board_->SetText(QStringLiteral("txtspd"), step);
    auto* result = board_->Named<ResultBox>(QStringLiteral("txtval(20)"));
    QObject::connect(result, &QPlainTextEdit::textChanged, board_, [result] {
      Say(QStringLiteral("result ") +
          result->Text().replace(QStringLiteral("\r\n"), QStringLiteral("|")));
    });
    QObject::connect(qApp, &QApplication::focusChanged, board_,
                     [](const QWidget* /*old*/, const QWidget* now) {
                       if (now != nullptr) Say(QStringLiteral("cursor ") + now->objectName());
                     });
    for (const QMenu* menu : board_->findChildren<QMenu*>()) {
      QObject::connect(menu, &QMenu::hovered, board_, [](const QAction* item) {
        Say(QStringLiteral("at ") +
            (item->menu() != nullptr ? item->menu()->objectName() : item->objectName()));
      });
    }
    for (const QAction* item : board_->findChildren<QAction*>()) {
      QObject::connect(item, &QAction::triggered, board_,
                       [item] { Say(QStringLiteral("picked ") + item->objectName()); });
    }
    // Connected after the board's own handler, so this comes when that has returned.
    const auto* box = board_->Named<Combo>(QStringLiteral("cmb(0)"));
    const auto written = [box] { Say(QStringLiteral("number written ") + box->currentText()); };
    QObject::connect(box, &Combo::Entered, board_, written);
    QObject::connect(box, &Combo::Picked, board_, written);
    settling_.start(20);
    QObject::connect(&settling_, &QTimer::timeout, board_, [this] { SayWhenReady(); });
  }

 private:
  /// Ready once the window manager has placed the window and moved it no more.
  void SayWhenReady() {
    const QPoint place = board_->sheet().mapToGlobal(QPoint());
    stood_ = place == place_ && board_->isActiveWindow() ? stood_ + 1 : 0;
    place_ = place;
    if (stood_ < 15) return;
    settling_.stop();
    const QPoint box = board_->Named<QWidget>(QStringLiteral("cmb(0)"))->geometry().center();
    Say(QStringLiteral("sheet %1 %2").arg(place.x()).arg(place.y()));
    Say(QStringLiteral("number box %1 %2").arg(place.x() + box.x()).arg(place.y() + box.y()));
    Say(QStringLiteral("ready"));
  }

  Board* board_;
  QTimer settling_;
  QPoint place_;
  int stood_ = 0;
};

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  qApp->installEventFilter(new bramlee::Watch(qApp));
  bramlee::Environment environment;
  bramlee::UseMessageBoxes(environment);
  const bramlee::WatchedMaths maths(QApplication::arguments().value(1, QStringLiteral("1")));
  return QApplication::exec();
}
