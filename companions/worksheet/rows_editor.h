// The rows of a worksheet, one below the other.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

class QComboBox;
class QListWidget;
class QPushButton;

namespace bramlee {

/// A kind of row: what is kept, and what a teacher reads.
struct OfferedRow {
  QString name;  ///< "dotted"
  QString text;  ///< "Dotted: to trace along"
};

/// Any sequence of kinds of rows: one is added below the row with the mark, the marked one is
/// removed (Del) or moved (Alt+Up, Alt+Down, or dragged).
class RowsEditor : public QWidget {
  Q_OBJECT
 public:
  explicit RowsEditor(const QList<OfferedRow>& offered, QWidget* parent = nullptr);

  /// The names of the rows from the first to the last.
  QStringList Rows() const;
  /// Puts these rows in place of all others; names that are not offered are left out.
  void SetRows(const QStringList& names);

 Q_SIGNALS:
  /// The rows are others now.
  void Changed();

 private:
  void ConnectButtons();
  void AddRow();
  void RemoveRow();
  void MoveRow(int by);
  void Insert(int at, const OfferedRow& row);
  /// Enables what can be done with the marked row.
  void FollowMark();

  const QList<OfferedRow> offered_;
  QListWidget* list_;
  QComboBox* kind_;
  QPushButton* add_;
  QPushButton* remove_;
  QPushButton* up_;
  QPushButton* down_;
};

}  // namespace bramlee
