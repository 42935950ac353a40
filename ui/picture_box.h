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

  /// Shows the picture of that resource; an unreadable one leaves the box empty. It is read when
  /// it is painted at another size, and only what is painted is kept: the pictures are several
  /// times as large as their boxes, and a board has dozens. Where the box is larger than the
  /// picture "dir/name.jpg", the same picture with more pixels is read if there is one,
  /// "dir/name_large.png".
  void SetPicture(const QString& resource);
  void SetPicture(const QPixmap& picture);
  /// The whole picture, read anew from its resource; null for an empty box.
  QPixmap Picture() const;

  QSize sizeHint() const override { return {80, 60}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Fit(QSize room);
  QPixmap PictureFor(QSize room) const;

  QString resource_;
  QPixmap picture_;  ///< unless it is a resource's
  QColor ground_{Qt::white};
  QPixmap fitted_;    ///< the picture as it is painted
  QSize fittedRoom_;  ///< the room it was fitted to, in device pixels
};

}  // namespace bramlee
