// Tiles of a board to choose from.
#pragma once

#include <QList>
#include <QWidget>

#include "ui/picture_box.h"

namespace bramlee {

/// One tile as it is offered.
struct OfferedTile {
  int number = 0;   ///< on its board
  QString picture;  ///< resource, as the board shows it
  QString name;     ///< for the screen reader
};

/// Pictures of tiles, each a toggle, "worksheet_tile(number)", in as many columns as fit. Space or
/// Return toggles the one with the focus, the arrow keys go from one to the next, Ctrl+A chooses
/// all.
class TilePicker : public QWidget {
  Q_OBJECT
 public:
  explicit TilePicker(QWidget* parent = nullptr);

  /// Offers these tiles, none of them chosen. Later calls give tiles of the same numbers other
  /// pictures and names.
  void Offer(const QList<OfferedTile>& tiles);

  /// The numbers of the chosen tiles, in the order of the offer.
  QList<int> Chosen() const;
  /// Chooses exactly these of the tiles; numbers that are not offered do not matter.
  void Choose(const QList<int>& numbers);
  void ChooseAll();
  void ChooseNone() { Choose({}); }
  /// How many tiles are offered.
  int Offered() const { return static_cast<int>(toggles_.size()); }

  QSize sizeHint() const override;

 Q_SIGNALS:
  /// Others are chosen now.
  void Changed();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Toggle {
    int number;
    PictureBox* box;
  };
  /// Chooses the tiles for which `wanted(number)` holds; says so once if that changes anything.
  template <class Wanted>
  void ChooseThose(Wanted wanted);
  void Arrange();
  PictureBox* MakeToggle(int number);

  QList<Toggle> toggles_;
};

}  // namespace bramlee
