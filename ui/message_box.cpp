#include "ui/message_box.h"

#include <QMessageBox>
#include <QPushButton>
#include <utility>

namespace bramlee {
namespace {

MessageBoxes& Replaced() {
  static MessageBoxes boxes;
  return boxes;
}

}  // namespace

void MsgBox(const QString& text, const QString& title) {
  if (Replaced().show) return Replaced().show(text, title);
  QMessageBox box;
  box.setObjectName(QStringLiteral("MsgBox"));
  box.setWindowTitle(title);
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setAccessibleName(text);
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
}

bool AskBox(const QString& text, const QString& yes, const QString& no) {
  if (Replaced().ask) return Replaced().ask(text);
  QMessageBox box;
  box.setObjectName(QStringLiteral("MsgBox"));
  box.setWindowTitle(QStringLiteral("BRAM LEE"));
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setAccessibleName(text);
  const auto* agree = box.addButton(yes, QMessageBox::AcceptRole);
  box.setDefaultButton(box.addButton(no, QMessageBox::RejectRole));
  box.exec();
  return box.clickedButton() == agree;
}

MessageBoxes ReplaceMessageBoxes(MessageBoxes boxes) {
  return std::exchange(Replaced(), std::move(boxes));
}

}  // namespace bramlee
