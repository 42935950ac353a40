// What the panes of the worksheets' dialog share.
#pragma once

#include <QComboBox>
#include <QString>
#include <QWidget>

class QCheckBox;
class QFormLayout;
class QPushButton;

namespace bramlee {

/// Of buttons, choices and lines, in logical pixels: for a hand in a hurry.
inline constexpr int kControlHeight = 34;

/// Gives a control its object name, "worksheet_" and that, and what a screen reader says.
template <class Control>
Control* NamedControl(Control* control, const char* name, const QString& accessibleName) {
  control->setObjectName(QStringLiteral("worksheet_") + QString::fromLatin1(name));
  control->setAccessibleName(accessibleName);
  return control;
}

/// A button that Return does not press unless it has the focus.
QPushButton* MakeButton(const char* name, const QString& caption, const QString& accessibleName,
                        QWidget* parent);
QCheckBox* MakeCheckBox(const char* name, const QString& caption, QWidget* parent);
/// A list of choices that the wheel leaves alone, since it scrolls the pane.
QComboBox* MakeChoice(const char* name, const QString& accessibleName, QWidget* parent);

/// Picks the entry with that data; the first where there is none.
void PickData(QComboBox* choice, const QVariant& data);

/// Adds a control with its caption, whose mnemonic leads there.
void AddRow(QFormLayout* form, const QString& caption, QWidget* control);

}  // namespace bramlee
