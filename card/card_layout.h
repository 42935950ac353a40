// The controls of the biodata card and where they stand.
#pragma once

namespace bramlee {

class Form;

/// Makes the controls, in the order in which Tab goes through them.
void MakeCardControls(Form& card);

/// Sizes the form from the screen, centres it and places its controls.
void LayOutCard(Form& card);

/// Places the line "lblsaid" in the room below the buttons, in the largest letters in which its
/// text fits there. Call it when the text or the window's size changes.
void PlaceSaid(const Form& card);

}  // namespace bramlee
