// The loaded forms. A form is loaded by its first use and stays loaded, seen or unseen, beneath
// the next one until it is unloaded; what lay below is then there again.
#pragma once

#include <QAnyStringView>
#include <QList>
#include <functional>

namespace bramlee {

class Form;

/// Makes known how the form of that name is made. Done once, at the start of the program, by
/// the folder that holds the form. A name made known again is made the new way from then on.
void RegisterForm(QAnyStringView name, const std::function<Form*()>& make);

/// The form of that name, loaded unseen if it was not. nullptr for a name that no folder has
/// made known, and for one not loaded while UnloadAll runs. What the making throws comes through,
/// and the form is not loaded then.
Form* LoadForm(QAnyStringView name);

/// The form of that name if it is loaded, else nullptr.
Form* LoadedForm(QAnyStringView name);

/// Loads the form if need be, as LoadForm does, and brings it to the front. An unknown name does
/// nothing.
void ShowForm(QAnyStringView name);

/// Runs the form's Form_Unload and takes it off the list and out of sight at once; it is
/// destroyed once no handler of its own is running. The forms that stand in the frame go before
/// it. A form that is not loaded, or whose unload is under way, is passed over. What a Form_Unload
/// throws comes through, and the form stays loaded then.
void UnloadForm(Form* form);

/// All loaded forms in the order of their loading.
const QList<Form*>& LoadedForms();

/// Unloads from the last form to the first. Loads nothing on the way. Ends quietly at a form that
/// fails to go: it and those before it stay loaded. Tag "com1:20".
void UnloadAll();

/// Ends the program with status 0 when the running handler returns.
void EndProgram();

/// Destroys whatever form is left once the event loop has ended. Runs no handler.
void DestroyForms();

/// What EndProgram does instead, for tests; an empty function brings the real one back.
void ReplaceEndProgram(std::function<void()> end);

}  // namespace bramlee
