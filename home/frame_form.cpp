#include "home/frame_form.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>

#include "files/trap.h"
#include "ui/form_ids.h"
#include "ui/forms.h"
#include "ui/screen_rec.h"

namespace bramlee {
namespace {

Form* FormIn(const QMdiSubWindow* window) {
  return window != nullptr ? qobject_cast<Form*>(window->widget()) : nullptr;
}

}  // namespace

FrameForm::FrameForm() : Form(kFrameForm, Kind::Frame), area_(new QMdiArea(this)) {
  setWindowTitle(QStringLiteral("Welcome To BRAMLEE"));
  area_->setBackground(QColor(0xEEF3EA));
  area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
  // A notice must not fill the frame because the form below it does.
  area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  SetClient(area_);
  connect(area_, &QMdiArea::subWindowActivated, this, [this](const QMdiSubWindow* window) {
    // None is active while another window of the program is: what lies in front here stays.
    if (const Form* child = FormIn(window)) PutInFront(child);
  });
}

void FrameForm::MDIForm_Load() {
  Trap(QStringLiteral("601:02"), [this](ErrInfo&) {
    ScreenRec rec;
    FillScreenRec(rec);
    setProperty("ScaleFlag", rec.ScaleFlag);
    CentreOnScreen(rec.ScrW, rec.ScrH);
  });
}

void FrameForm::CloseAsked() {
  UnloadAll();
  EndProgram();
}

void FrameForm::Adopt(Form* child) {
  QMdiSubWindow* window = area_->addSubWindow(child);
  window->setAttribute(Qt::WA_DeleteOnClose, false);
  child->StandIn(this, window);
}

void FrameForm::BringForward(Form* child) {
  QMdiSubWindow* window = child->SubWindow();
  if (window->isMinimized()) window->showNormal();
  child->show();
  window->show();
  window->raise();
  area_->setActiveSubWindow(window);
  PutInFront(child);
}

/// A notice leaves both menus and room to the form below it.
void FrameForm::PutInFront(const Form* child) {
  if (child->BarItems().isEmpty()) return;
  ShowMenusOf(child);
  const auto windows = area_->subWindowList();
  for (QMdiSubWindow* window : windows) {
    if (window == child->SubWindow() || window->isHidden() || !window->isMaximized()) continue;
    window->showNormal();
    child->SubWindow()->showMaximized();
  }
}

void FrameForm::Release(Form* child) {
  const bool wasMaximised = child->SubWindow()->isMaximized();
  child->SubWindow()->hide();
  area_->removeSubWindow(child->SubWindow());
  if (menusOf_ == child) ShowMenusOfTheFormInFront();
  if (wasMaximised && menusOf_ != nullptr) menusOf_->SubWindow()->showMaximized();
}

void FrameForm::ShowMenusOf(const Form* child) {
  if (child == menusOf_) return;
  menusOf_ = child;
  menuBar()->clear();
  menuBar()->addActions(child->BarItems());
}

void FrameForm::ShowMenusOfTheFormInFront() {
  menusOf_ = nullptr;
  menuBar()->clear();
  const auto windows = area_->subWindowList(QMdiArea::StackingOrder);
  for (auto window = windows.crbegin(); window != windows.crend() && !menusOf_; ++window) {
    const Form* form = FormIn(*window);
    if (!(*window)->isHidden() && !form->BarItems().isEmpty()) ShowMenusOf(form);
  }
}

TwipsRect FrameForm::Inside() const {
  return TwipsOf(area_->contentsRect());
}

}  // namespace bramlee
