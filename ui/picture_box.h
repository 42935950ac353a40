// A picture that can be clicked: a tile, a sign, a chart.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QPixmap>
#include <QString>

namespace bramlee {

/// Shows its picture scaled to fit, without distortion, on a card of the picture's own ground.
/// Answers hover, press and focus visibly; Tab reaches it, the arrow keys go on to the next picture
/// in their direction, Space and Return press it. A disabled one only shows.
class PictureBox : public QAbstractButton {
  Q_OBJECT
 public:
  explicit PictureBox(QWidget* parent = nullptr);

  /// Shows the picture of that resource or file; an unreadable one leaves the box empty.
  void SetPicture(const QString& path);
  void SetPicture(const QPixmap& picture);
  const QPixmap& Picture() const { return picture_; }

  QSize sizeHint() const override { return {80, 60}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Fit(QSize room);

  QPixmap picture_;
  QColor ground_{Qt::white};
  QPixmap fitted_;    ///< the picture as it is painted
  QSize fittedRoom_;  ///< the room it was fitted to, in device pixels
};

}  // namespace bramlee
