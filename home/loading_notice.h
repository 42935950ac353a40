// The notice "Loading...": two seconds after its load it decides what comes next.
#pragma once

#include "ui/form.h"

namespace bramlee {

class LoadingNotice : public Form {
  Q_OBJECT
 public:
  LoadingNotice();

  /// Stands in the middle of the frame and starts its timer. Leaves quietly on an error.
  void Form_Load() override;
  /// Follows the number in txtpwd: 0 shows the home form and closes the notice; 1 to 3 stand for a
  /// form that the program does not have, so a message says so and the notice stays; any other
  /// number closes the notice. Ticks once in a notice's life.
  void Timer1_Timer();
};

}  // namespace bramlee
