// Message boxes.
#pragma once

#include <QString>

#include "files/environment.h"

namespace bramlee {

/// Shows a plain text and waits until the user closes it. Timers tick meanwhile and may unload a
/// form: look forms up again after it.
void MsgBox(const QString& text);

/// Asks a question with two answers and waits; true when the user picked `yes`.
bool AskBox(const QString& text, const QString& yes, const QString& no);

/// From now on that environment tells and asks in boxes on the screen.
void UseMessageBoxes(Environment& environment);

}  // namespace bramlee
