// The strip: a slim bar along a board's lower edge, with what a teacher's hand reaches for.
#pragma once

#include <QIcon>
#include <QKeySequence>
#include <QString>
#include <QToolBar>
#include <QToolButton>
#include <array>
#include <functional>
#include <map>

class QHBoxLayout;
class QScrollArea;

namespace bramlee {

class Board;

/// Width and height of a button and of its picture, in logical pixels.
inline constexpr int kStripButtonPixels = 44;
inline constexpr int kStripPicturePixels = 36;

/// A button of the strip. Return presses it as Space does, though Space pauses the pen while a
/// letter is written. A click leaves the focus where it is.
class StripButton : public QToolButton {
 public:
  using QToolButton::QToolButton;

  /// As a click, unless it rests; also while the strip is folded away, which disables all on it.
  void Press();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

/// When the key of a button presses it. At other times it is a key like any other, which waits for
/// the letter's end while one is written.
enum class StripKeyWorks : std::uint8_t { WhenIdle, WhileWriting, Always };

/// What a button of the strip is.
struct StripItem {
  const char* name;  ///< of the object, as "strip_pause"
  QString text;      ///< for tool tip and screen reader
  QKeySequence key;  ///< presses it, and stands in the tool tip; empty for none
  QIcon picture;
  bool checkable = false;
  StripKeyWorks keyWorks = StripKeyWorks::WhenIdle;
  bool restsWhileWriting = false;  ///< disabled then: for a window whose input would be held
};

/// The bar itself, "strip", made when the first companion asks the board for it. Stands below the
/// board's client and takes nothing of its coordinates; at most 56 logical pixels high. Its input
/// is never held (see ui/held_input.h). Folded away it is a thin edge that brings it back; that
/// lasts, and all boards follow. Where the window is narrower than its row, that scrolls to what
/// has the focus.
class Strip : public QToolBar {
  Q_OBJECT
 public:
  /// From left to right.
  enum class Group : std::uint8_t { Watch, Write, Teacher };

  explicit Strip(Board& board);

  /// Adds a button to the right end of a group. `click` runs when it was pressed and switched, by
  /// hand or by its key; a held key presses once. With the strip focused, a key that works while a
  /// letter is written works too.
  StripButton* AddButton(Group group, const StripItem& item, std::function<void()> click);
  /// Adds another control there; its object name is its own. It belongs to the strip.
  void AddControl(Group group, QWidget* control);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddKey(const StripItem& item, StripButton* button);
  void RestWhileWriting(StripButton* button);
  bool WantsKey(const QKeyEvent& event) const;
  void Fold(bool folded);
  void FollowChoice();
  void SetTabOrders();

  Board& board_;
  QScrollArea* scroller_;
  QWidget* row_;
  QAction* shown_ = nullptr;  ///< whether the row is shown; a tool bar shows a hidden widget again
  std::array<QHBoxLayout*, 3> groups_{};
  QToolButton* fold_;
  std::map<QKeySequence, StripButton*> keys_;  ///< those that work while a letter is written
};

}  // namespace bramlee
