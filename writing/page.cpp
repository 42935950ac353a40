#include "writing/page.h"

#include <utility>

namespace bramlee {

void Page::Add(PlacedLetter letter) {
  letters_.push_back(std::move(letter));
}

void Page::Clear() {
  letters_.clear();
  ++edition_;
}

}  // namespace bramlee
