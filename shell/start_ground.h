// The ground of the start form: a meadow with cards of what there is to learn.
#pragma once

#include <QPixmap>

#include "shell/controls.h"

namespace bramlee {

/// Shows six cards, a letter or a digit each, along the left and right edges, where the title does
/// not come by. Pictures that the program does not hold are left out.
class StartGround : public Ground {
 public:
  StartGround(ColourWord colour, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QPixmap Card(const QString& picture, double width, double turn) const;

  struct Shown {
    QPoint place;
    QPixmap card;
  };
  QList<Shown> cards_;
};

}  // namespace bramlee
