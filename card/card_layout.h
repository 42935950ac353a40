// The controls of the biodata card and where they stand.
#pragma once

namespace bramlee {

class Form;

/// Makes the controls, in the order in which Tab goes through them.
void MakeCardControls(Form& card);

/// Sizes the form from the screen, centres it and places its controls.
void LayOutCard(Form& card);

/// Places the line "lblsaid" in what the window has left below the buttons, with letters as large
/// as let its text stand there. To be called when either changes.
void PlaceSaid(const Form& card);

}  // namespace bramlee
