// The board frame: one form that is all seven writing boards. Tiles, a sheet, one menu bar; what
// differs is the board's record.
#pragma once

#include <QAction>
#include <QString>
#include <cstdint>

#include "board/board_record.h"
#include "board/sheet.h"
#include "shell/form.h"

namespace bramlee {

/// Makes the boards of this folder known by their forms' names.
void RegisterBoards();
void RegisterBoard(const BoardRecord& record);

/// A writing board. Handlers bear the names of their controls.
class Board : public Form {
  Q_OBJECT
 public:
  explicit Board(const BoardRecord& record);

  const BoardRecord& record() const { return record_; }
  Sheet& sheet() const { return *sheet_; }

  void Form_Load() override;
  void Present() override;

  // --- handlers
  void Timer1_Timer();
  void mnublink_Click();
  void mnuclose_Click();
  void mnugcolor_Click(int index);
  void mnucolor_Click(int index);
  void mnuspd_Click(int index);
  void mnufor_Click(int index);
  void mnuaud_Click();
  void mnugrid_Click();
  void mnurulled_Click(int index);
  void mnuclear1_Click();
  void mnudall_Click();
  void pic_Click(int index);

  // --- what the handlers and the boards' own parts share
  bool IsGroupStart(int index) const;
  /// Draws in the grid colour and puts the pen back, also when the drawing throws.
  void DrawGridInItsColour();
  void DrawRulesInTheirColour(std::int16_t number);

  bool Checked(const QString& item) const { return Named<QAction>(item)->isChecked(); }
  void SetChecked(const QString& item, bool on) const { Named<QAction>(item)->setChecked(on); }
  /// Takes the marks of array(first) to array(last) away.
  void Uncheck(const char* array, int first, int last) const;
  /// Marks array(index) alone.
  void CheckOnly(const char* array, int last, int index) const;
  /// The numeric value of a text box that keeps a flag.
  double FlagOf(const QString& textBox) const;
  PictureBox* Tile(int index) const;

 private:
  void MakeControls();
  void MakeMenus();
  void StartGroup();
  void ResetToDesign();
  void RunFormLoad();
  QColor GridColour() const;

  const BoardRecord& record_;
  Sheet* sheet_;
};

}  // namespace bramlee
