// The biodata card: the child's name, class, teacher and two pictures, and below them the list of
// bought items. Nine combos show one item; position k in every list is record k + 1.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "card/card_file.h"
#include "files/numbers.h"
#include "files/student_rec.h"
#include "ui/form.h"

namespace bramlee {

/// What follows a path that names no file.
inline const QString kCardNotFound = QStringLiteral(" Not Found:");

// The grounds of a field that can be stored and of one that cannot.
inline constexpr ColourWord kCardWhite = 0xFFFFFF;
inline constexpr ColourWord kCardRed = 255;

class CardForm : public Form {
  Q_OBJECT
 public:
  CardForm();

  /// Lays the card out, makes a missing file and fills the form from it. Tag "601:23"; a layout
  /// that fails leaves the controls where they are. A card that cannot be read says why on the line
  /// below the buttons.
  void Form_Load() override;

  // --- handlers
  /// 12 is NEW, 13 SAVE, 14 REMOVE; other labels do nothing. A save or a removal that fails says
  /// why on the line below the buttons, and what was typed stays. A card that was not read is read
  /// again first and stores nothing yet. Tag "601:23".
  void lbl_Click(int index);
  /// A pick in that combo: all nine show the entry that it is at. The line is emptied.
  void cmb_Click(int index);
  /// 1 goes back to the form below, 2 ends the program in order.
  void mnufile_Click(int index);
  /// Does nothing: NEW and SAVE are buttons.
  void mnubio_Click(int index);
  /// Shows the two pictures that the paths name, the ID card's in the logo's place and the logo's
  /// in the ID card's. A message names the first path without a file; neither picture changes then.
  void mnuref_Click();

  // --- the card. Each is 0 when done, 1 after an error; then the file is as it was.
  /// Fills the form from the file; `rec` is then the last record read. Shows item 1.
  std::int16_t LoadCard(StudentRec& rec);
  /// Stores the head and the item on show. A new item gets the next record, whose number is then
  /// in `recNo`.
  std::int16_t SaveCard(std::int32_t& recNo, bool isNew);
  /// Puts the head's texts into record 1, and its item's too if that is the one on show. A path
  /// that names no file is shown red, and the record keeps its old one.
  std::int16_t SaveCardHeader(std::int32_t recNo, bool isNew, StudentRec& rec);

  /// Shows the head's texts and pictures. A path that names no file is shown with kCardNotFound
  /// behind it; what is no picture leaves the one that was there.
  void ShowCardHeader(const StudentRec& rec);
  /// Puts the nine combos' texts into the record. Throws std::overflow_error for a number that
  /// its field cannot hold.
  void ReadItemFields(StudentRec& rec) const;
  /// Makes room for a new item, dated today.
  void NewCardItem();

  /// The number of the record on show, or "New".
  QString CardRecNo() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// CardRecNo of an item that is not in the file yet.
  inline static const QString kNew = QStringLiteral("New");

  /// What a click on SAVE or REMOVE is about.
  struct Target {
    std::int32_t recNo;
    bool isNew;
  };

  /// What stands in the form and not in the file: what nobody typed is left out.
  struct Typed {
    std::array<std::optional<QString>, 5> head;
    std::optional<ItemTexts> item;
  };

  /// What a click asks for.
  struct Action {
    const char* button;   ///< as it reads
    const char* notDone;  ///< how a failure begins
  };
  static constexpr Action kLoad{"", "Not read"};
  static constexpr Action kSave{"SAVE", "Not saved"};
  static constexpr Action kRemove{"REMOVE", "Not removed"};

  void MakeMenus();
  /// Shows the card, and makes a missing one first. False when it cannot be read.
  bool Read();
  /// Reads the card once more. What was typed stays, an item as a new one.
  bool ReadAgain();
  /// Reads a card that could not be read before. True when it can be now: then the click is over,
  /// for it was not meant for what is shown now. When it still cannot it says so.
  bool ReadsOnlyNow(const Action& action);
  void SayWhyNot(const Action& action);
  /// SayWhyNot for a save or a removal; reads the card again that another program has changed.
  void Refused(const Action& action);
  /// Puts the text on the line below the buttons, where a screen reader reads it out.
  void Say(const QString& text) const;

  Typed WhatWasTyped() const;
  void PutBack(const Typed& typed);
  ItemTexts ShownTexts() const;
  ItemTexts ListedTexts(std::int32_t recNo) const;
  void ShowNewItem(const ItemTexts& texts);
  void RememberHead();
  void ShowItems(const CardContents& card);
  void ShowPath(const QString& path, const QString& textBox, const QString& picture);
  void ShowPicture(const QString& path, const QString& picture);
  void ShowItem(std::int32_t recNo);
  void SetCardRecNo(const QString& text);
  Target TakeTarget();
  void Failed(const Target& target);
  bool ItemIsNumeric();
  /// Asks before anything is stored that the file cannot hold as it was typed.
  bool LossesAreAgreedTo() const;
  void TakePath(const QString& textBox, FixedText<50>& field) const;
  void NewClicked();
  void SaveClicked();
  void RemoveClicked();

  Combo* Field(int index) const { return Named<Combo>(Indexed("cmb", index)); }
  double Number(int index) const { return Val(Field(index)->currentText()); }
  QString Words(int index) const { return Trim(TextOf(Indexed("txt", index))); }

  bool isRead_ = false;          ///< what the form shows came from the file
  CardFailure failure_;          ///< of the last reading, save or removal
  std::array<QString, 5> head_;  ///< the head's texts as they were shown
};

}  // namespace bramlee
