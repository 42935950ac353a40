// The strip: a slim bar along a board's lower edge, with what a teacher's hand reaches for.
#pragma once

#include <QIcon>
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

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

/// What a button of the strip is.
struct StripItem {
  const char* name;  ///< of the object, as "strip_pause"
  QString text;      ///< for tool tip and screen reader
  QString key;       ///< as the tool tip shows it; empty for none
  QIcon picture;
  bool checkable = false;
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

  /// Adds a button to the right end of a group. `click` runs when it was pressed and switched.
  StripButton* AddButton(Group group, const StripItem& item, std::function<void()> click);
  /// Adds another control there; its object name is its own. It belongs to the strip.
  void AddControl(Group group, QWidget* control);

  /// While a letter is written, and while the strip has the focus, that key runs `press`, a held
  /// key once.
  void OnKey(Qt::Key key, std::function<void()> press) { keys_[key] = std::move(press); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
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
  std::map<int, std::function<void()>> keys_;
};

}  // namespace bramlee
