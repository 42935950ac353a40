#include "board/companions.h"

#include <vector>

namespace bramlee {
namespace {

std::vector<Companion>& All() {
  static std::vector<Companion> companions;
  return companions;
}

}  // namespace

void AddCompanion(Companion companion) {
  All().push_back(companion);
}

void MakeCompanions(Board& board) {
  for (const Companion companion : All()) companion(board);
}

}  // namespace bramlee
