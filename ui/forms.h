// The loaded forms. A form is loaded by its first use and stays loaded, seen or unseen, beneath
// the next one until it is unloaded; what lay below is then there again.
#pragma once

#include <QAnyStringView>
#include <QList>
#include <functional>

namespace bramlee {

class Form;

/// Registers how to make the form of that name. Each folder does so for its forms once, at the
/// start of the program. Registering a name again replaces the way.
void RegisterForm(QAnyStringView name, const std::function<Form*()>& make);

/// The form of that name; loads it unseen if it is not loaded. nullptr for a name that is not
/// registered, and for a form that is not loaded while UnloadAll runs. Passes on what making the
/// form throws; the form is not loaded then.
Form* LoadForm(QAnyStringView name);

/// The form of that name if it is loaded, else nullptr.
Form* LoadedForm(QAnyStringView name);

/// Loads the form if needed, as LoadForm does, and brings it to the front. Ignores an unknown
/// name.
void ShowForm(QAnyStringView name);

/// Runs the form's Form_Unload, takes it off the list and hides it at once; deletes it once none of
/// its handlers is running. Unloads the forms that stand in the frame before the frame. Ignores a
/// form that is not loaded or whose unload is under way. Passes on what a Form_Unload throws; the
/// form stays loaded then.
void UnloadForm(Form* form);

/// All loaded forms in the order of their loading.
const QList<Form*>& LoadedForms();

/// Unloads from the last form to the first and loads none meanwhile. Ends quietly at a form whose
/// unload fails: it and those before it stay loaded. Tag "com1:20".
void UnloadAll();

/// Ends the program with status 0 when the running handler returns.
void EndProgram();

/// Destroys whatever form is left once the event loop has ended. Runs no handler.
void DestroyForms();

}  // namespace bramlee
