#include "ui/forms.h"

#include <QHash>
#include <QMdiSubWindow>
#include <QScopeGuard>
#include <utility>

#include "files/environment.h"
#include "files/trap.h"
#include "ui/form.h"
#include "ui/form_ids.h"

namespace bramlee {
namespace {

struct FormList {
  QHash<QString, std::function<Form*()>> makers;
  QList<Form*> loaded;
  QList<Form*> unloading;
  bool unloadingAll = false;
};

/// One for the whole program: any form is found by its id, from any other.
FormList& List() {
  static FormList list;
  return list;
}

}  // namespace

void RegisterForm(QAnyStringView name, const std::function<Form*()>& make) {
  List().makers.insert(name.toString(), make);
}

Form* LoadedForm(QAnyStringView name) {
  for (Form* form : std::as_const(List().loaded)) {
    if (form->objectName() == name) return form;
  }
  return nullptr;
}

Form* LoadForm(QAnyStringView name) {
  if (Form* form = LoadedForm(name)) return form;
  const auto make = List().makers.constFind(name.toString());
  if (List().unloadingAll || make == List().makers.constEnd()) return nullptr;
  Form* form = (*make)();
  if (form->kind() == Form::Kind::FrameChild) {
    if (Form* frame = LoadForm(kFrameForm)) frame->Adopt(form);
  }
  List().loaded.append(form);
  form->Form_Load();
  return form;
}

void ShowForm(QAnyStringView name) {
  if (Form* form = LoadForm(name)) form->Present();
}

namespace {

/// Unloads these, the last first. They are not the list itself, from which each takes itself off,
/// and maybe others.
void UnloadFromTheLast(const QList<Form*>& forms) {
  for (auto form = forms.crbegin(); form != forms.crend(); ++form) UnloadForm(*form);
}

QList<Form*> AllForms() {
  return List().loaded;
}

QList<Form*> FormsInTheFrame() {
  QList<Form*> children;
  for (Form* form : std::as_const(List().loaded)) {
    if (form->kind() == Form::Kind::FrameChild) children.append(form);
  }
  return children;
}

}  // namespace

void UnloadForm(Form* form) {
  if (!List().loaded.contains(form) || List().unloading.contains(form)) return;
  List().unloading.append(form);
  const auto over = qScopeGuard([form] { List().unloading.removeOne(form); });
  if (form->kind() == Form::Kind::Frame) UnloadFromTheLast(FormsInTheFrame());
  form->Form_Unload();
  List().loaded.removeOne(form);
  form->LetGo();
}

const QList<Form*>& LoadedForms() {
  return List().loaded;
}

void UnloadAll() {
  List().unloadingAll = true;
  Trap(QStringLiteral("com1:20"), [](ErrInfo&) { UnloadFromTheLast(AllForms()); });
  List().unloadingAll = false;
}

void EndProgram() {
  TheEnvironment().endProgram();
}

void DestroyForms() {
  const QList<Form*> forms = std::exchange(List().loaded, {});
  for (auto form = forms.crbegin(); form != forms.crend(); ++form) {
    // A form in the frame goes with its window.
    if ((*form)->SubWindow() != nullptr) {
      delete (*form)->SubWindow();
    } else {
      delete *form;
    }
  }
}

}  // namespace bramlee
