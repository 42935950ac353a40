// Why the card could not be read or stored, in words for its user.
#pragma once

#include <QString>
#include <exception>

#include "files/trap.h"

namespace bramlee {

/// The card's file was there when the card was shown, and is no longer.
class CardGone : public TrappedError {
 public:
  using TrappedError::TrappedError;
};

/// Another program has removed or changed the item since it was shown.
class ItemChanged : public TrappedError {
 public:
  using TrappedError::TrappedError;
};

/// What failed.
struct CardFailure {
  QString why;               ///< in a parent's words: "the disk is full"; empty for no failure
  bool itemChanged = false;  ///< it was an ItemChanged: reading the card again helps
};

CardFailure FailureOf(const std::exception& error);

/// A trap's handler that puts what failed there, if there is a place for it.
inline auto KeptIn(CardFailure* failure) {
  return [failure](ErrInfo&, const std::exception& error) {
    if (failure != nullptr) *failure = FailureOf(error);
  };
}

}  // namespace bramlee
