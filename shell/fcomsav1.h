// The notice of a report: it stands for three seconds from its load.
#pragma once

#include "shell/form.h"

namespace bramlee {

class fcomsav1 : public Form {
  Q_OBJECT
 public:
  fcomsav1();
  void Form_Load() override;
  void Timer1_Timer();
};

}  // namespace bramlee
