// Real message boxes, read and closed as a user would.
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <vector>

#include "ui/message_box.h"

namespace bramlee {

struct SeenBox {
  QString text;
  QString title;
  QString spoken;  ///< what a screen reader says
  bool plain = false;
};

/// Runs with real message boxes; each is answered by the button of that text, or else by its
/// default button. What was shown.
inline std::vector<SeenBox> WithRealBoxes(const std::function<void()>& run,
                                          const QString& answer = {}) {
  std::vector<SeenBox> seen;
  Environment& environment = TheEnvironment();
  const auto tell = environment.tell;
  const auto ask = environment.ask;
  UseMessageBoxes(environment);
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, &user, [&] {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* box = qobject_cast<QMessageBox*>(window);
      if (box == nullptr || !box->isVisible()) continue;
      if (box->objectName() != QStringLiteral("MsgBox")) continue;
      seen.push_back({.text = box->text(),
                      .title = box->windowTitle(),
                      .spoken = box->accessibleName(),
                      .plain = box->textFormat() == Qt::PlainText});
      QPushButton* pressed = nullptr;
      for (auto* button : box->findChildren<QPushButton*>()) {
        if (button->isDefault() && pressed == nullptr) pressed = button;
        if (!answer.isEmpty() && button->text() == answer) pressed = button;
      }
      if (pressed == nullptr) return box->reject();
      pressed->click();
    }
  });
  user.start(0);
  run();
  environment.tell = tell;
  environment.ask = ask;
  return seen;
}

}  // namespace bramlee
