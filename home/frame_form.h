// The frame: the program's main window, in which the start form, the home form and their notice
// stand. Its menu bar is that of the form in front.
#pragma once

#include "ui/form.h"

class QMdiArea;

namespace bramlee {

class FrameForm : public Form {
  Q_OBJECT
 public:
  FrameForm();

  void Form_Load() override { MDIForm_Load(); }
  /// Closing the frame ends the program in order.
  void CloseAsked() override;
  void Adopt(Form* child) override;
  void BringForward(Form* child) override;
  void Release(Form* child) override;

  /// Sizes the frame to the screen. Tag "601:02".
  void MDIForm_Load();

  /// What the frame has room for its forms in, in twips.
  TwipsRect Inside() const;

 private:
  void PutInFront(const Form* child);
  void ShowMenusOf(const Form* child);
  void ShowMenusOfTheFormInFront();

  QMdiArea* area_;
  const Form* menusOf_ = nullptr;
};

}  // namespace bramlee
