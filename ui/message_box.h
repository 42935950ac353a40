// Message boxes.
#pragma once

#include <QString>
#include <functional>

namespace bramlee {

/// Shows a plain text and waits until the user has read it. Timers tick meanwhile, and a form
/// may go: name forms afresh after it.
void MsgBox(const QString& text, const QString& title = QStringLiteral("BRAM LEE"));

/// Asks a question with two answers and waits; true when the user picked `yes`.
bool AskBox(const QString& text, const QString& yes, const QString& no);

/// What stands in for the boxes in tests, which cannot wait for anyone.
struct MessageBoxes {
  std::function<void(const QString& text, const QString& title)> show;
  std::function<bool(const QString& text)> ask;
};

/// Replaces the boxes and gives back what was there; an empty function brings the real one back.
MessageBoxes ReplaceMessageBoxes(MessageBoxes boxes);

}  // namespace bramlee
