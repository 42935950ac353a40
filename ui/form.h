// What all forms share: a name, a client area with named controls, a menu bar with named items.
#pragma once

#include <QAction>
#include <QAnyStringView>
#include <QList>
#include <QMainWindow>
#include <QMenu>
#include <QString>
#include <QTimer>
#include <functional>
#include <optional>

#include "ui/controls.h"
#include "ui/twips.h"

class QMdiSubWindow;

namespace bramlee {

/// One form. It is made and loaded by its name (see forms.h) and deletes itself some time after
/// its unload, never while one of its handlers is on the stack, not even one that waits for a
/// message box. All controls are made in the constructor of the form's own class; Form_Load lays
/// them out. Timers run from then on, whether the form is seen or not.
class Form : public QMainWindow {
  Q_OBJECT
 public:
  /// Whether the form is a window of its own, the frame, or stands in the frame.
  enum class Kind { Free, Frame, FrameChild };

  explicit Form(QAnyStringView name, Kind kind = Kind::Free);

  Kind kind() const { return kind_; }

  /// Colours the client, unless the form has put another than the plain one in its place.
  void SetGround(ColourWord colour) const;

  /// Where the controls stand. Its origin is the form's: below the menu bar.
  QWidget* client() const { return client_; }

  /// Runs once, when the form is loaded, before it is seen.
  virtual void Form_Load() {}
  /// Runs once, when the form is unloaded.
  virtual void Form_Unload() {}
  /// Brings the form into view, in front; a form in the frame brings the frame along.
  virtual void Present();
  /// What the window manager's close button does: unloads the form, unless a form overrides it.
  virtual void CloseAsked();

  // --- what the frame does for the forms that stand in it
  /// Takes a child form in, unseen.
  virtual void Adopt(Form* /*child*/) {}
  /// Brings a child form to the front of the others.
  virtual void BringForward(Form* /*child*/) {}
  /// Lets a child form go: its window and its menus leave the frame at once.
  virtual void Release(Form* /*child*/) {}

  // --- the form's outer place, in twips, the window manager's borders and title included, from the
  // corner of the primary screen; of a form in the frame, that of its sub-window
  void SetOuter(const TwipsRect& rect);
  TwipsRect Outer() const;
  /// SetOuter with that size, centred on the screen.
  void CentreOnScreen(double width, double height);

  // --- controls, found by their names below the form. They stand on the client, not laid out
  // before Form_Load; the form owns them.
  TextBox* AddText(const QString& name, const QString& text);
  /// A text box that keeps data and is never seen.
  TextBox* AddHiddenText(const QString& name, const QString& text);
  Label* AddLabel(const QString& name, const QString& text);
  /// An empty picture box.
  PictureBox* AddPicture(const QString& name, const QString& toolTip = {});
  /// A combo box with an empty list and that text.
  Combo* AddCombo(const QString& name, const QString& text = {});
  /// Calls `tick` every `intervalMs` milliseconds, from now on if it is enabled, else once it is
  /// started. It ends with the form's unload.
  QTimer* AddTimer(const QString& name, int intervalMs, bool enabled, std::function<void()> tick);

  // --- menus. Captions are as they read, "&" before the mnemonic.
  /// A menu on the form's bar.
  QMenu* AddMenu(const QString& name, const QString& caption);
  /// A menu within another.
  QMenu* AddMenu(QMenu* parent, const QString& name, const QString& caption);
  /// An item that can be marked. The handler finds its mark as it was before the pick.
  QAction* AddItem(QMenu* menu, const QString& name, const QString& caption,
                   std::function<void()> click);
  /// An item that is never marked.
  QAction* AddCommand(QMenu* menu, const QString& name, const QString& caption,
                      std::function<void()> click);
  /// A command that stands on the bar itself.
  QAction* AddBarItem(const QString& name, const QString& caption, std::function<void()> click);
  /// What stands on the form's bar, in order.
  const QList<QAction*>& BarItems() const { return barItems_; }

  /// The control, timer or item of that name below this form; a wrong name is a bug and ends the
  /// program in debug builds.
  template <class Control>
  Control* Named(const QString& name) const {
    auto* found = findChild<Control*>(name);
    Q_ASSERT_X(found != nullptr, "Form::Named", qPrintable(name));
    return found;
  }
  /// The text of that text box, which must exist as with Named.
  QString TextOf(const QString& textBox) const { return Named<QLineEdit>(textBox)->text(); }
  void SetText(const QString& textBox, const QString& text) const {
    Named<QLineEdit>(textBox)->setText(text);
  }

  /// Used by forms.cpp alone: hides the form for good and deletes it later.
  void LetGo();
  /// Used by the frame alone: sets the sub-window in which the form stands; it is deleted with the
  /// form.
  void StandIn(Form* frame, QMdiSubWindow* subWindow);
  QMdiSubWindow* SubWindow() const { return subWindow_; }

 protected:
  /// Puts another widget in the client's place; `scroller`, if given, stands around it.
  void SetClient(QWidget* client, QWidget* scroller = nullptr);
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QAction* NewItem(const QString& name, const QString& caption, std::function<void()> click);
  void PutOnBar(QAction* item);
  void FitToOuter();
  void AllowForBorders();

  Kind kind_;
  QWidget* client_ = nullptr;
  Form* frame_ = nullptr;
  QMdiSubWindow* subWindow_ = nullptr;
  std::optional<TwipsRect> outer_;
  bool bordersKnown_ = false;
  QList<QAction*> barItems_;
};

/// A caption as data (a drive, a file extension): without the mnemonic marks.
QString CaptionOf(const QAction* item);

}  // namespace bramlee
