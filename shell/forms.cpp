#include "shell/forms.h"

#include <QCoreApplication>
#include <QHash>
#include <utility>

#include "shell/form.h"
#include "shell/trap.h"

namespace bramlee {
namespace {

const QString kFrame = QStringLiteral("MDIbrm");

struct FormList {
  QHash<QString, std::function<Form*()>> makers;
  QList<Form*> loaded;
  bool unloadingAll = false;
  std::function<void()> end;
};

FormList& List() {
  static FormList list;
  return list;
}

}  // namespace

void RegisterForm(const QString& name, std::function<Form*()> make) {
  List().makers.insert(name, std::move(make));
}

Form* LoadedForm(const QString& name) {
  for (Form* form : std::as_const(List().loaded)) {
    if (form->objectName() == name) return form;
  }
  return nullptr;
}

Form* LoadForm(const QString& name) {
  if (Form* form = LoadedForm(name)) return form;
  if (List().unloadingAll || !List().makers.contains(name)) return nullptr;
  Form* form = List().makers[name]();
  if (form->kind() == Form::Kind::FrameChild) {
    if (Form* frame = LoadForm(kFrame)) frame->Adopt(form);
  }
  List().loaded.append(form);
  form->Form_Load();
  return form;
}

void ShowForm(const QString& name) {
  if (Form* form = LoadForm(name)) form->Present();
}

void UnloadForm(Form* form) {
  if (!List().loaded.removeOne(form)) return;
  form->Form_Unload();
  form->LetGo();
}

const QList<Form*>& LoadedForms() {
  return List().loaded;
}

void UnloadAll() {
  List().unloadingAll = true;
  Trap(QStringLiteral("com1:20"), [](ErrInfo&) {
    while (!List().loaded.isEmpty()) UnloadForm(List().loaded.last());
  });
  List().unloadingAll = false;
}

void EndProgram() {
  if (List().end) return List().end();
  QCoreApplication::exit(0);
}

void ReplaceEndProgram(std::function<void()> end) {
  List().end = std::move(end);
}

}  // namespace bramlee
