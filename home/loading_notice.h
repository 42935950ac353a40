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
  /// Goes by the number in txtpwd: 0 goes on to the home form; 1 to 3 ask for a form that there
  /// is none of, which is told, and the notice stays; at any other the notice just goes. Ticks
  /// once in a notice's life.
  void Timer1_Timer();
};

}  // namespace bramlee
