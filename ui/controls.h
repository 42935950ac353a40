// The controls that forms are made of. Plain text everywhere; what a control keeps as data (a
// flag, a drive) it keeps as text.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QString>

#include "ink/colours.h"
#include "ui/picture_box.h"

namespace bramlee {

/// The name of an array's element: Indexed("pic", 3) is "pic(3)".
QString Indexed(const char* array, int index);

/// A form's ground: a plain widget of one colour, on which the controls stand. Its colour is its
/// own and reaches no child, and text on it stays dark under any desktop theme.
class Ground : public QWidget {
 public:
  explicit Ground(QWidget* parent = nullptr);
  void SetBackColor(ColourWord colour);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor backColor_{Qt::white};
};

/// A text box. ForeColor and BackColor are its palette's.
class TextBox : public QLineEdit {
 public:
  explicit TextBox(const QString& text, QWidget* parent = nullptr);
};

void SetBackColor(QWidget* control, ColourWord colour);  ///< of its ground; fills a label
void SetForeColor(QWidget* control, ColourWord colour);  ///< of its text
ColourWord BackColorOf(const QWidget* control);
ColourWord ForeColorOf(const QWidget* control);

/// Gives the label that font, in the largest size in which its text fits a room of that size, in
/// pixels.
void FitFont(QLabel* label, QFont font, QSize room);

/// A label that can be clicked.
class Label : public QLabel {
  Q_OBJECT
 public:
  explicit Label(const QString& text, QWidget* parent = nullptr);
 Q_SIGNALS:
  void Clicked();  ///< by the left button

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
};

/// A combo box with free text and a fixed list: typing, leaving and the wheel pick nothing and add
/// nothing.
class Combo : public QComboBox {
  Q_OBJECT
 public:
  explicit Combo(QWidget* parent = nullptr);
  /// From now on an arrow key that is held picks one entry, not one after the other.
  void RefuseHeldKeys() { refusesHeldKeys_ = true; }
  void showPopup() override;

 Q_SIGNALS:
  /// An entry was picked from the list or by the arrow keys.
  void Picked(int index);
  /// Return was pressed in the text.
  void Entered();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  bool FilterReturn(QKeyEvent& event);

  bool listMayPick_ = false;
  bool refusesHeldKeys_ = false;
};

}  // namespace bramlee
