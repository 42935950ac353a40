// The board frame: one form that is all seven writing boards. Tiles, a sheet, one menu bar; what
// differs is the board's record.
#pragma once

#include <QAction>
#include <QRect>
#include <QString>
#include <cstdint>
#include <string_view>

#include "board/board_pen.h"
#include "board/board_record.h"
#include "board/board_settings.h"
#include "board/sheet.h"
#include "letters/letter_sets.h"
#include "ui/form.h"

class QScrollArea;

namespace bramlee {

class Strip;

/// Makes the boards of this folder known by their forms' names.
void RegisterBoards();
/// Makes one board known by its form's name. The record is used as long as the program runs.
void RegisterBoard(const BoardRecord& record);

/// The resource of a tile's picture, as given or, where the tile stands otherwise there, as in the
/// book.
QString TilePicture(std::string_view letterSet, int tile, bool book);

/// A writing board. Handlers have the names of their controls and end quietly on an error;
/// mnuclear1_Click reports it.
class Board : public Form {
  Q_OBJECT
 public:
  /// Makes all controls and menus, at their design values. The record is used as long as the
  /// board lives; its letter set has to exist.
  explicit Board(const BoardRecord& record);

  const BoardRecord& record() const { return record_; }  ///< what it differs in
  const LetterSet& letters() const { return letters_; }  ///< what its tiles write
  Sheet& sheet() const { return *sheet_; }               ///< what they write on; the client
  BoardPen& pen() { return pen_; }                       ///< what writes there

  /// The bar along the lower edge for companions, made when it is first asked for.
  Strip& strip();

  /// As large as the screen, the media's drive in txtdrv, the tiles in their places.
  void Form_Load() override;
  /// Comes into view maximised.
  void Present() override;

  // --- handlers. An index counts from 1 and is one of its menu's; a tile may be of any number.
  void Timer1_Timer();              ///< the title blinks: hidden, shown, hidden
  void mnublink_Click();            ///< stops or starts the blinking; the title stays as it is
  void mnuclose_Click();            ///< "&Back": unloads the form
  void mnugcolor_Click(int index);  ///< the colour of rules and grid to come
  void mnucolor_Click(int index);   ///< the colour of letters to come
  void mnuspd_Click(int index);     ///< the step, by the record
  void mnufor_Click(int index);     ///< the sounds' format
  /// Sound on, in the first format and with the speeds' marks gone, or off, all formats unmarked.
  void mnuaud_Click();
  /// Draws the grid and marks it; marked before, it loses its mark and stays until the next wipe.
  void mnugrid_Click();
  /// Draws that rule and marks it alone; marked before, it loses its mark. Nothing is erased.
  void mnurulled_Click(int index);
  /// Wipes and goes over to the letters' alternative forms or back.
  void mnudrawalt_Click();
  /// Wipes the sheet and keeps the settings: as if the form were made afresh and the user's
  /// choices put back. Rule and grid come back as marks, not on the sheet.
  void mnuclear1_Click();
  /// Sound off, then every tile in the record's order. Returns once all is written.
  void mnudall_Click();
  /// A tile's click: a wipe if it begins a group, then its sound, then its strokes. Returns once
  /// they are written.
  void pic_Click(int index);

  /// Has this board write the letters of the book, whatever all boards do.
  void WantBookLetters(bool on);
  /// Whether a tile that stands otherwise in the book is written so.
  bool WritesBookLetters() const;
  /// The program that writes the record's letter now.
  WriteLetter ProgramFor(const StrokeRec& rec) const;

  // --- what the handlers and the boards' own parts share
  /// Whether that tile's click wipes the sheet first.
  bool IsGroupStart(int index) const;
  /// Writes the record's letter by that program, as the sheet's step and colour are now: the letter
  /// joins the page, and the pen runs to its end. Throws what the program or the sheet throws; what
  /// is written by then stays.
  void Write(WriteLetter program, StrokeRec& rec);
  /// Wipes the sheet as the first tile of a group does: grid and rules that come back are drawn.
  void StartGroup();
  /// Makes the sheet large enough for all that stands or is written on it, so that it scrolls
  /// where the window is smaller. While the board fits its window, gives it the scale for that.
  void FitSheet();

  /// Scrolls to that part of the sheet (sheet pixels), or to the beginning of one that is larger
  /// than the window. Does nothing while the board fits its window.
  void BringIntoView(QRect reach);

  /// From now on the whole board is scaled so that it fills the window and nothing scrolls, or it
  /// stands as designed again; as it does at first. Also while a letter is written.
  void SetFitsWindow(bool on);
  bool FitsWindow() const { return fitsWindow_; }

  /// What the user chose, as flags, boxes and menus keep it.
  BoardSettings Settings() const;
  /// Puts choices back into flags, boxes and menus. Rule and grid come back as marks, not on the
  /// sheet.
  void Apply(const BoardSettings& settings);

  /// The mark of a menu item, by its name.
  bool Checked(const QString& item) const { return Named<QAction>(item)->isChecked(); }
  void SetChecked(const QString& item, bool on) const { Named<QAction>(item)->setChecked(on); }
  /// Takes the marks of array(1) to array(last) away.
  void Uncheck(const char* array, int last) const;
  /// Marks array(index) alone.
  void CheckOnly(const char* array, int last, int index) const;
  /// The lowest marked of array(1) to array(last), 0 for none.
  int FirstChecked(const char* array, int last) const;
  /// The numeric value of a text box that keeps a flag, 0 for a text that is no number.
  double FlagOf(const QString& textBox) const;
  /// pic(index), one from the record's first to its last tile.
  PictureBox* Tile(int index) const;
  /// Puts a tile there, in twips. The usual size leaves 50 free at a pitch of 950 by 875.
  void PlaceTile(int index, double left, double top, double width = 900, double height = 825) const;
  /// Puts txthdr1 above the tiles, in twips. The usual width holds the longest title.
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

 Q_SIGNALS:
  /// Draw All was asked for, and nothing is wiped or written yet.
  void DrawAllStarts();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeControls();
  void FollowBook();
  void ShowLetterOf(int tile) const;
  TileForm FormOf(const StrokeRec& rec) const;
  void MakeMenus();
  void RunFormLoad();
  void ResetToDesign();
  ColourWord GridColour() const;
  void DrawGridInItsColour();
  void DrawRulesInTheirColour(std::int16_t number);
  /// Around all that this board's sheet can show written, in sheet pixels.
  QRect ReachOfAll() const;
  void BringIntoView(const StrokeRec& rec);
  void ScaleSheet();

  const BoardRecord& record_;
  const LetterSet& letters_;
  QScrollArea* scroller_;
  Sheet* sheet_;
  BoardPen pen_;
  Strip* strip_ = nullptr;
  QRect reach_;
  bool wantsBook_ = false;
  QSize scrolled_;  ///< of the sheet as designed, with all that is on it
  QRect fitted_;    ///< its part that a window shows which the board fits; empty before Form_Load
  bool fitsWindow_ = false;
};

}  // namespace bramlee
