// How a worksheet stands on its paper.
#pragma once

#include <QWidget>

#include "companions/worksheet/worksheet_record.h"

class QCheckBox;
class QComboBox;

namespace bramlee {

/// The dialog's pane of sizes, lines and paper.
class PaperPane : public QWidget {
  Q_OBJECT
 public:
  explicit PaperPane(QWidget* parent = nullptr);

  void Show(const WorksheetRecord& record);
  void Read(WorksheetRecord& record) const;

 Q_SIGNALS:
  void Changed();

 private:
  QComboBox* size_;
  QComboBox* ruling_;
  QComboBox* paper_;
  QComboBox* orientation_;
  QCheckBox* left_;
};

}  // namespace bramlee
