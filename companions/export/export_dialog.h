// The dialog of an export.
#pragma once

#include <QDialog>

#include "companions/export/export_choices.h"
#include "companions/export/export_work.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QSpinBox;

namespace bramlee {

class Board;

/// Asks which letters, as what and where to; writes them while its window lives on, with a progress
/// and Cancel, and offers the folder afterwards. Files that are there already are asked about once.
/// What was chosen lasts. Escape cancels what runs, else closes the dialog.
class ExportDialog : public QDialog {
  Q_OBJECT
 public:
  /// Of that board, which outlives the dialog.
  explicit ExportDialog(Board& board);

  /// Cancels what runs, else closes.
  void reject() override;

 private:
  QFormLayout* MakeQuestions();
  QWidget* MakeFolderRow();
  QWidget* MakeButtons();
  void ShowChoices(const ExportChoices& choices);
  ExportChoices Chosen() const;
  std::optional<FilmKind> Kind() const;
  void FollowKind();
  void FollowWork();
  bool IsRunning() const { return makesCards_ || work_.IsRunning(); }
  void ShowProgress(int done, int of);
  void Browse();
  void Begin();
  void BeginFilms(FilmKind kind, const ExportChoices& choices);
  void WriteCards(const ExportChoices& choices);
  bool MayReplace(qsizetype files);
  void Finish(const Exported& exported);
  void Say(const QString& text);

  Board& board_;
  QComboBox* which_;
  QComboBox* kind_;
  QSpinBox* pixels_;
  QComboBox* ink_;
  QComboBox* ground_;
  QCheckBox* numbers_;
  QCheckBox* sound_;
  QLineEdit* folder_;
  QWidget* questions_;
  QProgressBar* progress_;
  QLabel* said_;
  QPushButton* begin_;
  QPushButton* show_;
  QPushButton* close_;
  bool makesCards_ = false;
  bool cardsCancelled_ = false;
  bool numbersChosen_ = false;  ///< what the box has when the kind leaves the choice
  ExportWork work_;
};

}  // namespace bramlee
