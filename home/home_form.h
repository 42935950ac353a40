// The home form: the subjects, the drive that the media lie on, the way to the card and out.
#pragma once

#include <span>
#include <vector>

#include "home/subject.h"
#include "ui/controls.h"
#include "ui/form.h"
#include "ui/screen_rec.h"

namespace bramlee {

class HomeForm : public Form {
  Q_OBJECT
 public:
  /// Offers those subjects, kMostSubjects at most; their table has to outlast the form.
  explicit HomeForm(std::span<const HomeSubject> subjects);

  /// Lays the form out and chooses drive C:. Tag "603:01"; an error is shown and reported.
  void Form_Load() override;
  /// Places all controls by those sizes. Tag "601:23"; an error is shown.
  void LayOut(const ScreenRec& rec);

  // --- handlers. They ignore what cannot be loaded.
  /// Shows the board of that subject, counted from 1. It has to have one.
  void pic_Click(int index);
  /// Shows the subject's board and, but for the first, hands it the drive. Does nothing for a
  /// subject without a board.
  void lbl1_Click(int index);
  /// Chooses the drive of that letter, 1 for "A:"; whether it is there shows at the next cue.
  void mnudrv_Click(int index);
  /// Back to the start form; the drive chosen is forgotten.
  void mnuback_Click();
  /// Shows the biodata card.
  void mnubiodata_Click();
  /// Unloads all forms and ends the program, also when one of them fails to go. Tag "603:02".
  void mnuexit_Click();

 private:
  void MakeTitle();
  void MakeSubjects();
  void MakeCaption(int index);
  void MakeTile(int index);
  void MakeMenus();
  const HomeSubject& Subject(int index) const {
    return subjects_[static_cast<std::size_t>(index - 1)];
  }

  std::span<const HomeSubject> subjects_;
  std::vector<Label*> rightCaptions_;
  std::vector<PictureBox*> leftTiles_;
  std::vector<PictureBox*> rightTiles_;
};

}  // namespace bramlee
