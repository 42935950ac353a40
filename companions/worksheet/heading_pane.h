// The line for name, class and date on a worksheet.
#pragma once

#include <QWidget>

#include "companions/worksheet/worksheet_record.h"

class QCheckBox;
class QLineEdit;

namespace bramlee {

/// The dialog's pane of the line on top of each page.
class HeadingPane : public QWidget {
  Q_OBJECT
 public:
  explicit HeadingPane(QWidget* parent = nullptr);

  void Show(const WorksheetRecord& record);
  void Read(WorksheetRecord& record) const;

 Q_SIGNALS:
  void Changed();

 private:
  /// Enables what counts.
  void Follow();

  QCheckBox* shown_;
  QCheckBox* fromCard_;
  QLineEdit* name_;
  QLineEdit* class_;
  QCheckBox* today_;
};

/// The heading as it is printed: with the card's name and class if they are wanted, and the day of
/// the environment. A card that nobody has filled in, or that cannot be read, leaves both empty.
Heading HeadingOf(const WorksheetRecord& record);

}  // namespace bramlee
