// Error traps: no failure crosses a routine. A routine that can fail wraps its body in a trap
// and ends quietly, shows a message or reports. What failed, and where, goes to the log.
#pragma once

#include <QString>
#include <exception>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace bramlee {

/// What a routine with a trap says of itself.
struct ErrInfo {
  QString ErrTag;   ///< where it stands in the source, "601:03"; never shown, but logged
  QString ErrText;  ///< what a report shows and stores; empty unless the routine sets it
};

/// A failure that a trap catches.
class TrappedError : public std::runtime_error {
 public:
  explicit TrappedError(const QString& what) : std::runtime_error(what.toStdString()) {}
};

/// Logs a caught failure and the tag of its trap in the category "bramlee.trap", which is silent
/// unless its debug messages are asked for (QT_LOGGING_RULES). Never fails.
void LogTrapped(const QString& tag, const std::exception& error) noexcept;

/// Runs `body(err)`; when it throws, `onError(err)` instead, or `onError(err, error)` if it takes
/// what was thrown too. Returns whether the body came to its end. What the handler itself throws is
/// swallowed, as a second trap would only loop. Both are logged under the trap's tag.
template <class Body, class OnError>
bool Trap(const QString& tag, Body body, OnError onError) {
  ErrInfo err{.ErrTag = tag, .ErrText = {}};
  try {
    body(err);
    return true;
  } catch (const std::exception& error) {
    LogTrapped(tag, error);
    try {
      if constexpr (std::is_invocable_v<OnError, ErrInfo&, const std::exception&>) {
        onError(err, error);
      } else {
        onError(err);
      }
    } catch (const std::exception& second) {  // nothing above could do better
      LogTrapped(tag, second);
    }
    return false;
  }
}

/// The trap of most routines: on an error they end quietly.
template <class Body>
bool Trap(const QString& tag, Body body) {
  return Trap(tag, std::move(body), [](ErrInfo&) {});
}

}  // namespace bramlee
