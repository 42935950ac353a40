// The notice of a report: it stands for three seconds from its load.
#pragma once

#include "ui/form.h"

namespace bramlee {

class ReportNotice : public Form {
  Q_OBJECT
 public:
  ReportNotice();
  /// Stands in the middle of the screen and starts its timer. Leaves quietly on an error.
  void Form_Load() override;
  /// Unloads the notice.
  void Timer1_Timer();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void PutTextInTheMiddle();
};

}  // namespace bramlee
