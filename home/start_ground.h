// What the start form shows: a meadow with cards of what there is to learn, and over it the lines
// of a title that move.
#pragma once

#include <QPixmap>

#include "ui/controls.h"

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

/// A line of the title. Its large letters are drawn once, not at every step of its way.
class MovingLine : public Label {
 public:
  MovingLine(const QString& text, QWidget* parent) : Label(text, parent) {}

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QPixmap letters_;
  QString drawn_;  ///< the text that `letters_` shows
};

}  // namespace bramlee
