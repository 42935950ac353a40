// The start form: a moving title, and the way on to the home form.
#pragma once

#include <cstdint>

#include "ui/form.h"

namespace bramlee {

class StartForm : public Form {
  Q_OBJECT
 public:
  StartForm();

  /// Lays the form out, makes drive C: current and makes its folder "bramlee" if it is missing.
  /// Ends quietly on an error; ignores a folder that cannot be made. Tag "601:02".
  void Form_Load() override;
  /// The program has no other way in: closing it is its "&Exit".
  void CloseAsked() override;

  // --- handlers. They ignore errors unless they say otherwise.
  /// A click anywhere on the form starts. An error is reported. Tag "601:01".
  void Form_Click();
  /// Shows the home form, loaded or not. Tag "601:03".
  void mnustart_Click();
  /// Ends the program at once; no form is unloaded first.
  void mnuexit_Click();
  /// The switch in front of the home form: marks its item and shows the notice. Tag "601:06".
  void mnupp_Click(int index);
  /// Two lines of the title pass each other, by the screen's size in twips. Tag "601:04".
  void tmr1_Timer();
  /// The third line walks in a circle. Tag "601:05".
  void tmr2_Timer();

  /// How far the passing lines are, in ticks, and the walk, in radians.
  std::int32_t cnt() const { return cnt_; }
  double angle() const { return angle_; }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void MakeMenus();
  void LayOut();
  void PaintIfSeen();
  Label* Line(int index) const;

  std::int32_t cnt_ = 0;
  double angle_ = 0;
};

}  // namespace bramlee
