// The board frame: one form that is all seven writing boards. Tiles, a sheet, one menu bar; what
// differs is the board's record.
#pragma once

#include <QAction>
#include <QRect>
#include <QString>
#include <cstdint>

#include "board/board_record.h"
#include "board/sheet.h"
#include "letters/letter_sets.h"
#include "shell/form.h"

class QScrollArea;

namespace bramlee {

/// Makes the boards of this folder known by their forms' names.
void RegisterBoards();
void RegisterBoard(const BoardRecord& record);

/// A writing board. Handlers bear the names of their controls; on an error they end without a
/// word, but for mnuclear1_Click, which reports it.
class Board : public Form {
  Q_OBJECT
 public:
  explicit Board(const BoardRecord& record);

  const BoardRecord& record() const { return record_; }
  const LetterSet& letters() const { return letters_; }
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
  void mnudrawalt_Click();
  void mnuclear1_Click();
  void mnudall_Click();
  void pic_Click(int index);

  // --- what the handlers and the boards' own parts share
  bool IsGroupStart(int index) const;
  /// Makes the sheet large enough for all that stands or is written on it, so that it scrolls
  /// where the window is smaller.
  void FitSheet();

  bool Checked(const QString& item) const { return Named<QAction>(item)->isChecked(); }
  void SetChecked(const QString& item, bool on) const { Named<QAction>(item)->setChecked(on); }
  /// Takes the marks of array(1) to array(last) away.
  void Uncheck(const char* array, int last) const;
  /// Marks array(index) alone.
  void CheckOnly(const char* array, int last, int index) const;
  /// The lowest marked of array(1) to array(last), 0 for none.
  int FirstChecked(const char* array, int last) const;
  /// The numeric value of a text box that keeps a flag.
  double FlagOf(const QString& textBox) const;
  PictureBox* Tile(int index) const;
  /// Puts a tile there, in twips. The usual size leaves 50 free at a pitch of 950 by 875.
  void PlaceTile(int index, double left, double top, double width = 900, double height = 825) const;
  /// Puts txthdr1 above the tiles.
  void PlaceTitle(double left, double width = 4815) const;
  /// Shows exactly those of tiles `first` to `last` for which `shown(tile)` holds.
  template <class Shown>
  void ShowTiles(int first, int last, Shown shown) {
    for (int i = first; i <= last; ++i) Tile(i)->setVisible(shown(i));
  }

  /// Entries of the boards' menu and flag arrays, counted from 1.
  static constexpr int kColours = 6, kSpeeds = 6, kFormats = 4, kRules = 5;
  static constexpr int kFlags = 32;       ///< txtundo(0) to txtundo(32)
  static QString FlagName(int index);     ///< "txtundo(index)"
  static QString RuleFlagName(int rule);  ///< the flag of mnurulled(rule), "txtundo(27)" and on
  static QString GridFlagName();          ///< the flag of mnugrid, "txtundo(32)"

 protected:
  bool eventFilter(QObject* picture, QEvent* event) override;

 private:
  struct Kept;

  void MakeControls();
  void MakeMenus();
  void RunFormLoad();
  void ResetToDesign();
  Kept Keep() const;
  void PutBack(const Kept& kept);
  void StartGroup();
  ColourWord GridColour() const;
  void DrawGridInItsColour();
  void DrawRulesInTheirColour(std::int16_t number);
  /// Around all that this board's sheet can show written, in sheet pixels.
  QRect ReachOfAll() const;
  void BringIntoView(const StrokeRec& rec);

  const BoardRecord& record_;
  const LetterSet& letters_;
  QScrollArea* scroller_;
  Sheet* sheet_;
  QRect reach_;
};

}  // namespace bramlee
