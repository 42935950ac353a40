// The notice of a report: it stands for three seconds from its load.
#pragma once

#include "shell/form.h"

namespace bramlee {

class fcomsav1 : public Form {
  Q_OBJECT
 public:
  fcomsav1();
  /// Stands in the middle of the screen and starts its timer. Leaves quietly on an error.
  void Form_Load() override;
  /// Unloads the notice.
  void Timer1_Timer();
};

}  // namespace bramlee
