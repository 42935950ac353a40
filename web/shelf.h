// Things that the page holds by handles.
#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace bramlee {

/// Keeps things until they are freed. A handle is a number from 1 on; that of a freed thing is
/// used again.
template <class Thing>
class Shelf {
 public:
  int Put(std::unique_ptr<Thing> thing) {
    if (free_.empty()) {
      things_.push_back(std::move(thing));
      return static_cast<int>(things_.size());
    }
    const int handle = free_.back();
    free_.pop_back();
    things_[Index(handle)] = std::move(thing);
    return handle;
  }

  /// Nothing for a handle that does not exist.
  Thing* At(int handle) const { return Has(handle) ? things_[Index(handle)].get() : nullptr; }

  void Free(int handle) {
    if (At(handle) == nullptr) return;
    things_[Index(handle)].reset();
    free_.push_back(handle);
  }

 private:
  static std::size_t Index(int handle) { return static_cast<std::size_t>(handle) - 1; }
  bool Has(int handle) const { return handle >= 1 && Index(handle) < things_.size(); }

  std::vector<std::unique_ptr<Thing>> things_;
  std::vector<int> free_;
};

}  // namespace bramlee
