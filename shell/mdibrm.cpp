#include "shell/mdibrm.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>

#include "shell/forms.h"
#include "shell/screen_rec.h"
#include "shell/trap.h"

namespace bramlee {
namespace {

Form* FormIn(const QMdiSubWindow* window) {
  return window != nullptr ? qobject_cast<Form*>(window->widget()) : nullptr;
}

}  // namespace

MDIbrm::MDIbrm() : Form(QStringLiteral("MDIbrm"), Kind::Frame), area_(new QMdiArea(this)) {
  setWindowTitle(QStringLiteral("Welcome To BRAMLEE"));
  area_->setBackground(QColor(0xEEF3EA));
  area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
  // A notice must not fill the frame because the form below it does.
  area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  SetClient(area_);
  connect(area_, &QMdiArea::subWindowActivated, this, [this](const QMdiSubWindow* window) {
    // None is active while another window of the program is: what lies in front here stays.
    if (const Form* child = FormIn(window)) ShowMenusOf(child);
  });
}

void MDIbrm::MDIForm_Load() {
  Trap(QStringLiteral("601:02"), [this](ErrInfo&) {
    ScreenRec rec;
    FillScreenRec(rec);
    setProperty("ScaleFlag", rec.ScaleFlag);
    CentreOnScreen(rec.ScrW, rec.ScrH);
  });
}

void MDIbrm::CloseAsked() {
  UnloadAll();
  EndProgram();
}

void MDIbrm::Adopt(Form* child) {
  QMdiSubWindow* window = area_->addSubWindow(child);
  window->setAttribute(Qt::WA_DeleteOnClose, false);
  child->StandIn(this, window);
}

void MDIbrm::BringForward(Form* child) {
  QMdiSubWindow* window = child->SubWindow();
  if (window->isMinimized()) window->showNormal();
  child->show();
  window->show();
  window->raise();
  area_->setActiveSubWindow(window);
  ShowMenusOf(child);
}

void MDIbrm::Release(Form* child) {
  child->SubWindow()->hide();
  area_->removeSubWindow(child->SubWindow());
  if (menusOf_ == child) ShowMenusOfTheFormInFront();
}

void MDIbrm::ShowMenusOf(const Form* child) {
  if (child->BarItems().isEmpty() || child == menusOf_) return;
  menusOf_ = child;
  menuBar()->clear();
  menuBar()->addActions(child->BarItems());
}

void MDIbrm::ShowMenusOfTheFormInFront() {
  menusOf_ = nullptr;
  menuBar()->clear();
  const auto windows = area_->subWindowList(QMdiArea::StackingOrder);
  for (auto window = windows.crbegin(); window != windows.crend() && !menusOf_; ++window) {
    if (!(*window)->isHidden()) ShowMenusOf(FormIn(*window));
  }
}

TwipsRect MDIbrm::Inside() const {
  return TwipsOf(area_->contentsRect());
}

}  // namespace bramlee
