// Input that waits while a handler keeps the program busy for long.
//
// A letter is written within its click, and its strokes may take a minute. Meanwhile nothing may
// reach a form, and nothing may get lost: clicks, keys and the wheel wait and are delivered in
// order once the handler has returned, closes last of all. The windows live on all the same.
#pragma once

#include <QObject>
#include <functional>

class QKeyEvent;
class QWidget;

namespace bramlee {

/// How often what waits for a handler to return looks whether it has, in milliseconds.
inline constexpr int kLookAgainMs = 50;

/// Input waits while one of these lives; they nest. Delivery never begins in the destructor but
/// in a later turn of the event loop, one event a turn.
class HoldInput {
 public:
  HoldInput();
  ~HoldInput();
  HoldInput(const HoldInput&) = delete;
  HoldInput& operator=(const HoldInput&) = delete;

  /// From now on as long as the widget lives, input that is meant for it, for what stands on it or
  /// for a list that it opens waits for nothing: the mouse and the wheel above it, a button until
  /// it is let go again, and the keys but Esc while it has the focus. Its handlers then run in the
  /// middle of what is written.
  static void Admit(QWidget* widget);

  /// From now on as long as the widget lives, the keys of its window for which `wants` holds go to
  /// it while input is held, whatever has the focus, instead of waiting. Only their presses are
  /// delivered. An open list keeps its keys.
  static void AdmitKeys(QWidget* widget, std::function<bool(const QKeyEvent&)> wants);
};

/// Call it every few milliseconds while input is held: repaints windows where they were uncovered
/// or resized and answers the window manager. No timer ticks, and new input joins what waits. Does
/// nothing when input is not held.
void LetWindowsLive();

/// Whether the user waits for the end: the close of a window, or Esc, is among what waits.
bool EndIsAwaited();

/// For calls from other threads to a form: runs `call` at once, or, while input waits, in its turn
/// after that input, if `context` still lives then.
void WhenFree(QObject* context, std::function<void()> call);

}  // namespace bramlee
