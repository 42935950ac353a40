#include "ui/message_box.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <utility>

namespace bramlee {
namespace {

MessageBoxes& Replaced() {
  static MessageBoxes boxes;
  return boxes;
}

/// A plain text with a title in the middle of the primary screen, where the forms are; by itself a
/// box goes to the screen that the pointer is on.
class TextInTheMiddle : public QMessageBox {
 public:
  TextInTheMiddle(const QString& text, const QString& title) {
    setObjectName(QStringLiteral("MsgBox"));
    setWindowTitle(title);
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

}  // namespace

void MsgBox(const QString& text, const QString& title) {
  if (Replaced().show) return Replaced().show(text, title);
  TextInTheMiddle box(text, title);
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
}

bool AskBox(const QString& text, const QString& yes, const QString& no) {
  if (Replaced().ask) return Replaced().ask(text);
  TextInTheMiddle box(text, QStringLiteral("BRAM LEE"));
  const auto* agree = box.addButton(yes, QMessageBox::AcceptRole);
  box.setDefaultButton(box.addButton(no, QMessageBox::RejectRole));
  box.exec();
  return box.clickedButton() == agree;
}

MessageBoxes ReplaceMessageBoxes(MessageBoxes boxes) {
  return std::exchange(Replaced(), std::move(boxes));
}

}  // namespace bramlee
