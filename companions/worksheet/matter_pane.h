// What a worksheet is about: letters, words, numbers, sums, or the book.
#pragma once

#include <QWidget>

#include "companions/worksheet/worksheet_pages.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QStackedWidget;

namespace bramlee {

class TilePicker;

/// The dialog's first pane.
class MatterPane : public QWidget {
  Q_OBJECT
 public:
  explicit MatterPane(const WorksheetSource& source, QWidget* parent = nullptr);

  /// Shows what the record asks for.
  void Show(const WorksheetRecord& record);
  /// Writes into the record what is chosen here.
  void Read(WorksheetRecord& record) const;

 Q_SIGNALS:
  /// Something else is chosen now.
  void Changed();

 private:
  QWidget* MakeLetters();
  QWidget* MakeWords();
  QWidget* MakeNumbers();
  QWidget* MakeSums();
  QWidget* MakeBook();
  QSpinBox* MakeNumber(const char* name, const char* accessibleName, int least, int most);
  /// Follows what is chosen: the part below, the tiles' pictures, how many are chosen.
  void Follow();
  void OfferTiles();
  /// Whether what is chosen may stand otherwise in the book.
  bool BookMatters() const;

  const WorksheetSource source_;
  QComboBox* matter_;
  QStackedWidget* parts_;
  TilePicker* tiles_ = nullptr;
  QLabel* chosen_ = nullptr;
  QLineEdit* words_ = nullptr;
  QSpinBox* first_ = nullptr;
  QSpinBox* last_ = nullptr;
  QComboBox* sums_ = nullptr;
  QSpinBox* largest_ = nullptr;
  QSpinBox* count_ = nullptr;
  QCheckBox* answers_ = nullptr;
  QCheckBox* given_;
  std::uint32_t seed_ = 1;
};

}  // namespace bramlee
