#include "ui/message_box.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>

namespace bramlee {
namespace {

/// A plain text with the program's title in the middle of the primary screen, where the forms are;
/// by itself a box goes to the screen that the pointer is on.
class TextInTheMiddle : public QMessageBox {
 public:
  explicit TextInTheMiddle(const QString& text) {
    setObjectName(QStringLiteral("MsgBox"));
    setWindowTitle(QStringLiteral("BRAM LEE"));
    setTextFormat(Qt::PlainText);
    setText(text);
    setAccessibleName(text);
  }

 protected:
  void showEvent(QShowEvent* event) override {
    QMessageBox::showEvent(event);  // which sizes it
    if (event->spontaneous()) return;
    QRect place = rect();
    place.moveCenter(QGuiApplication::primaryScreen()->availableGeometry().center());
    move(place.topLeft());
  }
};

void ShowBox(const QString& text) {
  TextInTheMiddle box(text);
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
}

bool AskInBox(const QString& text, const QString& yes, const QString& no) {
  TextInTheMiddle box(text);
  const auto* agree = box.addButton(yes, QMessageBox::AcceptRole);
  box.setDefaultButton(box.addButton(no, QMessageBox::RejectRole));
  box.exec();
  return box.clickedButton() == agree;
}

}  // namespace

void MsgBox(const QString& text) {
  TheEnvironment().tell(text);
}

bool AskBox(const QString& text, const QString& yes, const QString& no) {
  return TheEnvironment().ask(text, yes, no);
}

void UseMessageBoxes(Environment& environment) {
  environment.tell = ShowBox;
  environment.ask = AskInBox;
}

}  // namespace bramlee
